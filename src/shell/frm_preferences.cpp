#include "frm_preferences.h"

#include "access_levels.h"
#include "code_page.h"
#include "common_error_handler.h"
#include "language_setup.h"
#include "message_style.h"
#include "plain_caption.h"
#include "preferences_ports.h"
#include "product_identity.h"
#include "translation.h"
#include "window_services.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace {
constexpr std::array<const char *, frmPreferences::kLanguageCount> kLanguages{"English", "French",
                                                                              "Chinese, Simplified", "Spanish"};
const QString kLineBreak = QStringLiteral("\r\n");
constexpr int kLeastWidth = 460;

// What a control behind a label is called by assistive tools.
QString nameOf(const QLabel &label) {
    const QString caption = plainCaption(label.text());
    return caption.endsWith(u':') ? caption.chopped(1) : caption;
}

// The checked option alone is reached by Tab, from the first time on.
void check(const QButtonGroup &group, int index) {
    for (QAbstractButton *option : group.buttons())
        option->setFocusPolicy(group.id(option) == index ? Qt::StrongFocus : Qt::ClickFocus);
    group.button(index)->setChecked(true);
}
} // namespace

frmPreferences::frmPreferences(const Services &services, QWidget *owner)
    : QDialog(owner), mServices(services), mErrors(services.errors), mcboComPort(new QComboBox(this)),
      mcboLanguage(new QComboBox(this)), mtxtVornHome(new QLineEdit(this)), mchkDialog(new QCheckBox(this)),
      moptTextAlignment(new QButtonGroup(this)), moptStartupPosition(new QButtonGroup(this)),
      moptAccessLevel(new QButtonGroup(this)), mcmdDefaultAddress(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmPreferences"));
    setModal(true);
    setWindowTitle(translated("Preferences"));
    setMinimumWidth(kLeastWidth);
    buildWindow();
    connect(mcboComPort, &QComboBox::currentIndexChanged, this, &frmPreferences::showPortTip);
    connect(mcmdDefaultAddress, &QPushButton::clicked, this, &frmPreferences::cmdDefaultAddress_Click);
}

QString frmPreferences::translated(const char *text) const {
    return mServices.translation.NLSStr(QString::fromLatin1(text));
}

// Tab goes through the window from top to bottom, in the order in which the rows are made.
void frmPreferences::buildWindow() {
    auto *all = new QVBoxLayout(this);
    all->addLayout(portAndLanguage());
    all->addLayout(options());
    mchkDialog->setObjectName(QStringLiteral("chkDialog"));
    mchkDialog->setText(translated("Show general &questions and the start-up picture"));
    all->addWidget(mchkDialog);
    all->addLayout(homePage());
    all->addStretch(1);
    all->addLayout(buttonRow());
    QWidget *last = mcboLanguage;
    for (QAbstractButton *option : findChildren<QRadioButton *>()) {
        setTabOrder(last, option);
        last = option;
    }
    for (QWidget *next : std::array<QWidget *, 3>{mchkDialog, mtxtVornHome, mcmdDefaultAddress}) {
        setTabOrder(last, next);
        last = next;
    }
    for (QPushButton *button : findChildren<QPushButton *>()) {
        setTabOrder(last, button);
        last = button;
    }
    mcboComPort->setFocus();
}

QLayout *frmPreferences::portAndLanguage() {
    auto *rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const auto addRow = [&](const char *caption, QComboBox *box, const char *name) {
        box->setObjectName(QString::fromLatin1(name));
        auto *label = new QLabel(translated(caption), this);
        label->setBuddy(box);
        box->setAccessibleName(nameOf(*label));
        rows->addRow(label, box);
    };
    addRow("&Port of the radio:", mcboComPort, "cboComPort");
    addRow("La&nguage:", mcboLanguage, "cboLanguage");
    return rows;
}

QLayout *frmPreferences::options() {
    QStringList levels;
    for (qint32 level = 1; level <= AccessLevels::kCount; ++level)
        levels << AccessLevels::Caption(level);
    levels << QStringLiteral("The le&vel last used");
    auto *left = new QVBoxLayout;
    left->addWidget(optionGroup(QStringLiteral("optTextAlignment"), translated("Labels of fields"),
                                {QStringLiteral("Le&ft"), QStringLiteral("&Right")}, *moptTextAlignment));
    left->addWidget(
        optionGroup(QStringLiteral("optStartupPosition"), translated("Window at start"),
                    {QStringLiteral("C&entred"), QStringLiteral("Ma&ximised"), QStringLiteral("&Where it stood last")},
                    *moptStartupPosition));
    auto *both = new QHBoxLayout;
    both->addLayout(left);
    both->addWidget(
        optionGroup(QStringLiteral("optAccessLevel"), translated("Access level at start"), levels, *moptAccessLevel));
    return both;
}

QGroupBox *frmPreferences::optionGroup(const QString &name, const QString &title, const QStringList &captions,
                                       QButtonGroup &group) {
    auto *box = new QGroupBox(title, this);
    auto *rows = new QVBoxLayout(box);
    for (int index = 0; index < captions.size(); ++index) {
        auto *option = new QRadioButton(mServices.translation.NLSStr(captions[index]), box);
        option->setObjectName(QStringLiteral("%1(%2)").arg(name).arg(index));
        group.addButton(option, index);
        rows->addWidget(option);
    }
    rows->addStretch(1);
    return box;
}

QLayout *frmPreferences::homePage() {
    mtxtVornHome->setObjectName(QStringLiteral("txtVornHome"));
    auto *label = new QLabel(translated("Home pa&ge:"), this);
    label->setBuddy(mtxtVornHome);
    mtxtVornHome->setAccessibleName(nameOf(*label));
    mcmdDefaultAddress->setObjectName(QStringLiteral("cmdDefaultAddress"));
    mcmdDefaultAddress->setText(translated("&Default Address"));
    mcmdDefaultAddress->setAutoDefault(false);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(mtxtVornHome, 1);
    row->addWidget(mcmdDefaultAddress);
    return row;
}

QLayout *frmPreferences::buttonRow() {
    auto *ok = new QPushButton(translated("&OK"), this);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(translated("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(ok, &QPushButton::clicked, this, &frmPreferences::OKButton_Click);
    connect(cancel, &QPushButton::clicked, this, &frmPreferences::cmdCancel_Click);
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

void frmPreferences::Form_Load() try {
    mStored = PreferencesValues::load(mServices.transformer);
    fillPorts();
    fillLanguages();
    mtxtVornHome->setText(mStored.Website);
    mchkDialog->setChecked(mStored.GeneralDialogs == 1);
    check(*moptTextAlignment, mStored.TextAlignment);
    check(*moptStartupPosition, mStored.StartupPosition);
    check(*moptAccessLevel, mStored.AccessLevel);
}
ERROR_TAIL()

void frmPreferences::fillPorts() {
    for (const PreferencesPort &port :
         PreferencesPorts::list(mServices.ports, mServices.translation, mStored.CommPortNumber)) {
        mcboComPort->addItem(port.text, port.number);
        mcboComPort->setItemData(mcboComPort->count() - 1, port.tip, Qt::ToolTipRole);
    }
    if (mcboComPort->count() == 0)
        tellNoPorts();
    else
        mcboComPort->setCurrentIndex(mcboComPort->findData(mStored.CommPortNumber));
    showPortTip();
}

void frmPreferences::tellNoPorts() {
    mServices.boxes.TranslateMsgBox(QStringLiteral("There appears to be no available COM ports on your "
                                                   "Computer.%0:S You will be unable to Read or Program Radios."),
                                    MessageStyle::kExclamation,
                                    mServices.translation.NLSStr(ProductIdentity::title()) + kLineBreak +
                                        translated("Error No Com Ports"),
                                    kLineBreak);
    mcboComPort->addItem(translated("No COM Ports"));
    mcboComPort->setCurrentIndex(0);
    mcboComPort->setEnabled(false);
}

void frmPreferences::showPortTip() {
    const QString tip = mcboComPort->currentData(Qt::ToolTipRole).toString();
    mcboComPort->setToolTip(tip.toHtmlEscaped());
    mcboComPort->setAccessibleDescription(tip);
}

void frmPreferences::fillLanguages() {
    for (const char *language : kLanguages)
        mcboLanguage->addItem(translated(language));
    mcboLanguage->setCurrentIndex(mStored.Language - 1);
}

void frmPreferences::cmdDefaultAddress_Click() try { mtxtVornHome->setText(ProductIdentity::homePage()); }
ERROR_TAIL()

PreferencesValues frmPreferences::chosen() const {
    PreferencesValues values = mStored;
    // A port that is not offered at present (an adapter that is unplugged) stays the stored one.
    if (mcboComPort->currentData().isValid())
        values.CommPortNumber = mcboComPort->currentData().toInt();
    values.Website = mtxtVornHome->text();
    values.TextAlignment = moptTextAlignment->checkedId();
    values.GeneralDialogs = mchkDialog->isChecked() ? 1 : 0;
    values.StartupPosition = moptStartupPosition->checkedId();
    values.AccessLevel = moptAccessLevel->checkedId();
    values.Language = mcboLanguage->currentIndex() + 1;
    return values;
}

void frmPreferences::OKButton_Click() try {
    const PreferencesValues values = chosen();
    if (!LanguageSetup::Supported(values.Language, CodePage::current())) {
        mServices.boxes.TranslateMsgBox(
            QStringLiteral("You can not choose this language because your operating system does not support it."),
            MessageStyle::kExclamation, QStringLiteral("Option Error"), QString());
        mcboLanguage->setCurrentIndex(mStored.Language - 1);
        return;
    }
    values.save(mServices.transformer);
    if (values.Language != mStored.Language) {
        values.saveLanguage(mServices.transformer);
        mServices.boxes.TranslateMsgBox(
            QStringLiteral("You will need to restart the application for the changes to take affect."),
            MessageStyle::kInformation, QString(), QString());
    }
    accept();
}
ERROR_TAIL()
