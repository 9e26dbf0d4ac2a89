#include "progress_info.h"

#include "common_error_handler.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace {
const QString kInterrogation = QStringLiteral("Radio Interrogation");
const QString kProgramming = QStringLiteral("Programming Radio");
constexpr int kWidth = 520;

struct ButtonState {
    bool cancelEnabled;
    bool okVisible;
};

// Buttons by the phase's title; any other title is the last row.
ButtonState buttonsFor(const QString &title) {
    if (title == kInterrogation)
        return {.cancelEnabled = true, .okVisible = true};
    if (title == kProgramming)
        return {.cancelEnabled = false, .okVisible = false};
    return {.cancelEnabled = true, .okVisible = false};
}

QString startCaption(InterrogationType type) {
    return type == InterrogationType::kRead ? QStringLiteral("Reading Radio") : kInterrogation;
}

// The window keeps its size and its order from phase to phase.
void keepPlaceWhenHidden(QWidget *widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}
} // namespace

frmProgressInfo::frmProgressInfo(ProcessValues &process, const Translation &translation, ErrorReport &errors,
                                 InterrogationType type, const QString &portName, QWidget *owner)
    : QDialog(owner), mProcess(process), mTranslation(translation), mErrors(errors), mType(type),
      lblItemName(new QLabel(this)), lblPercentage(new QLabel(this)), ProgressBar1(new QProgressBar(this)),
      lblRadioTier(new QLabel(this)), lblSWVersion(new QLabel(this)), lblDBVersion(new QLabel(this)),
      lblHardwareRev(new QLabel(this)), lblProductCode(new QLabel(this)), lblNoCancel(new QLabel(this)),
      cmdOK(new QPushButton(this)), cmdCancel(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmProgressInfo"));
    setModal(true);
    setWindowTitle(mTranslation.NLSStr(startCaption(type)));
    auto *all = new QVBoxLayout(this);
    all->addLayout(detailRows(portName));
    all->addSpacing(fontMetrics().height() / 2);
    all->addLayout(phaseRows());
    all->addStretch(1);
    all->addLayout(buttonRow());
    setMinimumWidth(kWidth);
    mProcess.objTransformer->AddProgressListener(this);
}

frmProgressInfo::~frmProgressInfo() {
    if (mProcess.objTransformer == nullptr)
        return;
    mProcess.objTransformer->AbortComms();
    mProcess.objTransformer->RemoveProgressListener(this);
}

QLayout *frmProgressInfo::detailRows(const QString &portName) {
    struct Row {
        const char *caption;
        QLabel *value;
        const char *name;
    };
    auto *port = new QLabel(portName, this);
    const std::array<Row, 6> rows{{{"Port", port, "lblPort"},
                                   {"Radio", lblRadioTier, "lblRadioTier"},
                                   {"Software version", lblSWVersion, "lblSWVersion"},
                                   {"Database version", lblDBVersion, "lblDBVersion"},
                                   {"Hardware revision", lblHardwareRev, "lblHardwareRev"},
                                   {"Product code", lblProductCode, "lblProductCode"}}};
    auto *details = new QFormLayout;
    details->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (const Row &row : rows) {
        const QString caption = mTranslation.NLSStr(QString::fromLatin1(row.caption));
        row.value->setObjectName(QString::fromLatin1(row.name));
        row.value->setTextFormat(Qt::PlainText);
        row.value->setWordWrap(true);
        row.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        row.value->setAccessibleName(caption);
        row.value->setAccessibleDescription(row.value->text());
        details->addRow(caption + u':', row.value);
    }
    return details;
}

QLayout *frmProgressInfo::phaseRows() {
    lblItemName->setObjectName(QStringLiteral("lblItemName"));
    lblItemName->setTextFormat(Qt::PlainText);
    lblItemName->setWordWrap(true);
    lblItemName->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    lblItemName->setMinimumHeight(2 * fontMetrics().lineSpacing());
    lblPercentage->setObjectName(QStringLiteral("lblPercentage"));
    lblPercentage->setTextFormat(Qt::PlainText);
    lblPercentage->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setTextVisible(false);
    ProgressBar1->setAccessibleName(mTranslation.NLSStr(QStringLiteral("Progress")));
    keepPlaceWhenHidden(ProgressBar1);
    lblNoCancel->setObjectName(QStringLiteral("lblNoCancel"));
    lblNoCancel->setTextFormat(Qt::PlainText);
    lblNoCancel->setWordWrap(true);
    lblNoCancel->setText(mTranslation.NLSStr(QStringLiteral(
        "Programming cannot be cancelled. The radio keeps its old content until the new one is whole.")));
    keepPlaceWhenHidden(lblNoCancel);

    auto *phase = new QHBoxLayout;
    phase->addWidget(lblItemName, 1);
    phase->addWidget(lblPercentage);
    auto *rows = new QVBoxLayout;
    rows->addLayout(phase);
    rows->addWidget(ProgressBar1);
    rows->addWidget(lblNoCancel);
    return rows;
}

QLayout *frmProgressInfo::buttonRow() {
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setText(mTranslation.NLSStr(QStringLiteral("&OK")));
    cmdOK->setDefault(true);
    keepPlaceWhenHidden(cmdOK);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setText(mTranslation.NLSStr(QStringLiteral("&Cancel")));
    cmdCancel->setAutoDefault(false); // an Enter too many must not abort the operation
    connect(cmdOK, &QPushButton::clicked, this, &frmProgressInfo::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmProgressInfo::cmdCancel_Click);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    return buttons;
}

void frmProgressInfo::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    if (mStarted)
        return;
    mStarted = true;
    QTimer::singleShot(0, this, &frmProgressInfo::Form_Activate);
}

void frmProgressInfo::Form_Activate() try {
    if (mProcess.objTransformer == nullptr || mBusy)
        return;
    // A phase that the operation never ended, for want of a radio or by an error, leaves no window behind.
    const auto closeOpenPhase = qScopeGuard([this] {
        if (mPhaseRuns)
            hide();
    });
    const QScopedValueRollback busy(mBusy, true);
    ProgressBarStart(0, startCaption(mType));
    runOperation();
    if (mProcess.objTransformer == nullptr || mProcess.objTransformer->GetLoadFailed())
        hide();
}
ERROR_TAIL()

void frmProgressInfo::runOperation() {
    Transformer &transformer = *mProcess.objTransformer;
    switch (mType) {
    case InterrogationType::kInterrogate:
        transformer.InterrogateRadio();
        return;
    case InterrogationType::kRead:
        transformer.ReadRadio(true, mResult);
        return;
    case InterrogationType::kProgram:
        transformer.ProgramRadio();
        return;
    }
}

void frmProgressInfo::reject() try {
    if (mBusy && cmdCancel->isEnabled())
        cmdCancel_Click();
    else if (!mBusy || cmdOK->isEnabled())
        QDialog::reject();
}
ERROR_TAIL()

void frmProgressInfo::mobjTransformerEvents_ProgressBarStart(qint32 Total, const QString &strProgressTitle) try {
    ProgressBarStart(Total, strProgressTitle);
}
ERROR_TAIL()

void frmProgressInfo::mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                                         const QString &strItemPercentage) try {
    ProgressPing(lngIncrement, strItemName, strItemPercentage);
}
ERROR_TAIL()

void frmProgressInfo::mobjTransformerEvents_ProgressBarEnd(bool blnForceClose) try { ProgressBarEnd(blnForceClose); }
ERROR_TAIL()

void frmProgressInfo::mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString &strSWVersion,
                                                      const QString &strDBVersion, const QString &strHardwareRev,
                                                      const QString &strProductCode) try {
    RadioInfo(strRadioModel, strSWVersion, strDBVersion, strHardwareRev, strProductCode);
}
ERROR_TAIL()

void frmProgressInfo::mobjTransformerEvents_NoRadio(const QString &Prompt, const QString &strParameters) try {
    mNoRadio = mTranslation.NLSFmt(Prompt, strParameters);
}
ERROR_TAIL()

void frmProgressInfo::ProgressBarStart(qint32 Max, const QString &Title) {
    mPhaseRuns = true;
    ProgressBar1->setVisible(Max >= 1);
    if (Max >= 1) {
        ProgressBar1->setRange(0, Max);
        ProgressBar1->setValue(0);
    }
    mCaption = TrimBlanks(Title);
    setWindowTitle(mTranslation.NLSStr(mCaption.isEmpty() ? QStringLiteral("Progress") : mCaption));
    const ButtonState buttons = buttonsFor(mCaption);
    cmdCancel->setVisible(true);
    cmdCancel->setEnabled(buttons.cancelEnabled);
    cmdOK->setVisible(buttons.okVisible);
    cmdOK->setEnabled(false);
    lblNoCancel->setVisible(!buttons.cancelEnabled);
    if (buttons.cancelEnabled)
        cmdCancel->setFocus();
    if (!isVisible())
        show();
}

void frmProgressInfo::ProgressPing(qint32 Increment, const QString &ItemName, const QString &Percentage) {
    const qint32 rest = ProgressBar1->maximum() - ProgressBar1->value();
    if (!ProgressBar1->isHidden() && rest > 0)
        ProgressBar1->setValue(ProgressBar1->value() + qMin(Increment, rest));
    if (!TrimBlanks(ItemName).isEmpty())
        lblItemName->setText(mTranslation.NLSStr(ItemName));
    if (!TrimBlanks(Percentage).isEmpty())
        lblPercentage->setText(Percentage);
}

void frmProgressInfo::ProgressBarEnd(bool Result) {
    mPhaseRuns = false;
    if (mCaption != kInterrogation) {
        hide();
        return;
    }
    cmdCancel->setVisible(true);
    cmdCancel->setEnabled(false);
    cmdOK->setVisible(true);
    cmdOK->setEnabled(true);
    cmdOK->setFocus();
    lblItemName->clear();
    lblPercentage->clear();
    if (Result)
        hide();
}

void frmProgressInfo::RadioInfo(const QString &Tier, const QString &SWVersion, const QString &DBVersion,
                                const QString &HardwareRev, const QString &ProductCode) {
    const std::array<std::pair<QLabel *, QString>, 5> texts{{{lblRadioTier, Tier},
                                                             {lblSWVersion, SWVersion},
                                                             {lblDBVersion, DBVersion},
                                                             {lblHardwareRev, HardwareRev},
                                                             {lblProductCode, ProductCode}}};
    mRadioAnswered = true;
    for (const auto &[label, text] : texts) {
        label->setText(text);
        label->setAccessibleDescription(text);
    }
}

void frmProgressInfo::cmdOK_Click() try { done(QDialog::Accepted); }
ERROR_TAIL()

void frmProgressInfo::cmdCancel_Click() try {
    if (mProcess.objTransformer != nullptr)
        mProcess.objTransformer->AbortComms();
}
ERROR_TAIL()
