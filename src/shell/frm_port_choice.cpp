#include "frm_port_choice.h"

#include "preferences_ports.h"
#include "product_identity.h"
#include "serial_ports.h"
#include "translation.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int kWidth = 620;
constexpr int kRowsShown = 6;
} // namespace

frmPortChoice::frmPortChoice(const Translation &translation, const SerialPorts &ports, const QString &problem,
                             int storedNumber, QWidget *owner)
    : QDialog(owner), mTranslation(translation), mPorts(ports), mStoredNumber(storedNumber),
      lblNoPorts(new QLabel(this)), lstPorts(new QTreeWidget(this)), cmdInterrogate(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmPortChoice"));
    setModal(true);
    setWindowTitle(mTranslation.NLSStr(ProductIdentity::title()));
    setMinimumWidth(kWidth);
    buildWindow(problem);
    connect(lstPorts, &QTreeWidget::itemSelectionChanged, this,
            [this] { cmdInterrogate->setEnabled(PortNumber() != 0); });
    connect(lstPorts, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    showPorts();
}

int frmPortChoice::PortNumber() const {
    const QList<QTreeWidgetItem *> selected = lstPorts->selectedItems();
    return selected.isEmpty() ? 0 : selected.constFirst()->data(0, Qt::UserRole).toInt();
}

void frmPortChoice::buildWindow(const QString &problem) {
    auto *message = new QLabel(problem, this);
    message->setObjectName(QStringLiteral("lblProblem"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    const QString caption = mTranslation.NLSStr(QStringLiteral("Try the radio on another &port:"));
    auto *label = new QLabel(caption, this);
    label->setBuddy(lstPorts);
    lblNoPorts->setText(mTranslation.NLSStr(QStringLiteral("There is no serial port at present.")));
    lstPorts->setObjectName(QStringLiteral("lstPorts"));
    lstPorts->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    lstPorts->setRootIsDecorated(false);
    lstPorts->setMinimumHeight(kRowsShown * fontMetrics().lineSpacing() * 3 / 2);
    QStringList heads{QStringLiteral("Port"), QStringLiteral("Device"), QStringLiteral("Maker and product")};
    mTranslation.NLSArray(heads);
    lstPorts->setHeaderLabels(heads);

    auto *again = new QPushButton(mTranslation.NLSStr(QStringLiteral("&Look Again")), this);
    auto *cancel = new QPushButton(mTranslation.NLSStr(QStringLiteral("&Cancel")), this);
    again->setObjectName(QStringLiteral("cmdLookAgain"));
    again->setAutoDefault(false);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    cmdInterrogate->setObjectName(QStringLiteral("cmdInterrogate"));
    cmdInterrogate->setText(mTranslation.NLSStr(QStringLiteral("&Interrogate")));
    cmdInterrogate->setDefault(true);
    connect(again, &QPushButton::clicked, this, &frmPortChoice::showPorts);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdInterrogate, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(again);
    buttons->addStretch(1);
    buttons->addWidget(cmdInterrogate);
    buttons->addWidget(cancel);
    auto *all = new QVBoxLayout(this);
    all->addWidget(message);
    all->addSpacing(fontMetrics().height() / 2);
    for (QWidget *row : std::initializer_list<QWidget *>{label, lstPorts, lblNoPorts})
        all->addWidget(row);
    all->addLayout(buttons);
    lstPorts->setFocus();
}

// Selects the first port that is not the one that was tried.
void frmPortChoice::showPorts() {
    lstPorts->clear();
    for (const PreferencesPort &port : PreferencesPorts::list(mPorts, mTranslation, mStoredNumber)) {
        auto *item = new QTreeWidgetItem(lstPorts, {port.text, port.device, port.name});
        item->setData(0, Qt::UserRole, port.number);
        if (lstPorts->selectedItems().isEmpty() && port.number != mStoredNumber)
            lstPorts->setCurrentItem(item);
    }
    for (int column = 0; column < lstPorts->columnCount(); ++column)
        lstPorts->resizeColumnToContents(column);
    lblNoPorts->setVisible(lstPorts->topLevelItemCount() == 0);
    cmdInterrogate->setEnabled(PortNumber() != 0);
}
