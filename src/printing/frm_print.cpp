#include "frm_print.h"

#include "cls_print.h"
#include "common_error_handler.h"
#include "pdf_page_sink.h"
#include "print_messages.h"
#include "printed_form.h"
#include "printer_platform.h"
#include "process_values.h"
#include "recorded_report.h"
#include "report_banner.h"
#include "report_form_shell.h"
#include "report_preview.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int kNodeRole = Qt::UserRole;

QString askPdfName(QWidget *window, const QString &proposal) {
    QFileDialog dialog(window, window->windowTitle(), proposal, QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
} // namespace

frmPrint::frmPrint(const FieldServices &services, ReportShell &shell, PrinterPlatform &printers, QWidget *owner)
    : QDialog(owner), mServices(services), mErrors(services.errors), mShell(shell), mPrinters(printers),
      mOwnPrint(std::make_unique<clsPrint>(printers, services.boxes, services.errors)), mPrint(mOwnPrint.get()),
      mAskFileName(&askPdfName) {
    setObjectName(QStringLiteral("frmPrint"));
    setWindowTitle(translated("Print"));
    buildControls();
    fillForms();
    connectControls();
    lstForms_ItemCheck();
}

frmPrint::~frmPrint() = default;

void frmPrint::PrinterSettings(clsPrint &print) { mPrint = &print; }

QString frmPrint::translated(const char *text) const { return mServices.translation.NLSStr(QString::fromLatin1(text)); }

void frmPrint::buildControls() {
    const auto addButton = [this](const char *name, const char *caption) {
        auto *button = new QPushButton(translated(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        return button;
    };
    lstForms = new QListWidget(this);
    lstForms->setObjectName(QStringLiteral("lstForms"));
    auto *label = new QLabel(translated("&Forms to print:"), this);
    label->setBuddy(lstForms);
    lstForms->setAccessibleName(translated("Forms to print"));
    chkPrintAll = new QCheckBox(translated("Print all &records"), this);
    chkPrintAll->setObjectName(QStringLiteral("chkPrintAll"));
    lblProgress = new QLabel(this);
    lblProgress->setObjectName(QStringLiteral("lblProgress"));
    cmdPrint = addButton("cmdPrint", "&Print");
    cmdPrint->setDefault(true);
    cmdPreview = addButton("cmdPreview", "Pre&view...");
    cmdSavePdf = addButton("cmdSavePdf", "Save as P&DF...");
    cmdSelectAll = addButton("cmdSelectAll", "&Select All");
    cmdPrinterSettings = addButton("cmdPrinterSettings", "Printer Se&ttings...");
    cmdCancel = addButton("cmdCancel", "Cancel");

    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : {cmdPrint, cmdPreview, cmdSavePdf, cmdSelectAll, cmdPrinterSettings, cmdCancel})
        buttons->addWidget(button);
    buttons->addStretch();
    auto *choice = new QVBoxLayout;
    choice->addWidget(label);
    choice->addWidget(lstForms);
    choice->addWidget(chkPrintAll);
    auto *upper = new QHBoxLayout;
    upper->addLayout(choice, 1);
    upper->addLayout(buttons);
    auto *all = new QVBoxLayout(this);
    all->addLayout(upper, 1);
    all->addWidget(lblProgress);
}

void frmPrint::fillForms() {
    for (const ReportableForm &form : mShell.Forms()) {
        auto *item = new QListWidgetItem(form.text, lstForms);
        item->setData(kNodeRole, form.node);
        item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setCheckState(form.open ? Qt::Checked : Qt::Unchecked);
        if (form.open)
            lstForms->setCurrentItem(item);
    }
    lstForms->setMinimumWidth(lstForms->sizeHintForColumn(0) + lstForms->fontMetrics().height() * 3);
    lstForms->setMinimumHeight(lstForms->fontMetrics().height() * 20);
}

void frmPrint::connectControls() {
    connect(lstForms, &QListWidget::itemChanged, this, &frmPrint::lstForms_ItemCheck);
    connect(cmdPrint, &QPushButton::clicked, this, &frmPrint::cmdPrint_Click);
    connect(cmdPreview, &QPushButton::clicked, this, &frmPrint::cmdPreview_Click);
    connect(cmdSavePdf, &QPushButton::clicked, this, &frmPrint::cmdSavePdf_Click);
    connect(cmdSelectAll, &QPushButton::clicked, this, &frmPrint::cmdSelectAll_Click);
    connect(cmdPrinterSettings, &QPushButton::clicked, this, &frmPrint::cmdPrinterSettings_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmPrint::cmdCancel_Click);
}

std::vector<int> frmPrint::checkedItems() const {
    std::vector<int> items;
    for (int row = 0; row < lstForms->count(); ++row) {
        if (lstForms->item(row)->checkState() == Qt::Checked)
            items.push_back(row);
    }
    return items;
}

void frmPrint::lstForms_ItemCheck() {
    const bool any = !checkedItems().empty();
    for (QPushButton *button : {cmdPrint, cmdPreview, cmdSavePdf})
        button->setEnabled(any && !mPrinting);
}

void frmPrint::cmdSelectAll_Click() {
    for (int row = 0; row < lstForms->count(); ++row)
        lstForms->item(row)->setCheckState(Qt::Checked);
    lstForms->scrollToTop();
}

void frmPrint::cmdPrinterSettings_Click() try {
    if (mPrinters.DefaultPrinter().isEmpty())
        PrintMessages::tell(mServices.boxes, PrintMessages::kNoDefaultPrinter);
    else
        mPrint->PrintDialog(this, PrintDialogFlags::kReport);
} catch (...) {
    PrintMessages::tell(mServices.boxes, PrintMessages::kCancelled);
}

void frmPrint::cmdPrint_Click() try {
    if (mPrint->NewDocument() && printDocument())
        accept();
}
ERROR_TAIL()

void frmPrint::cmdSavePdf_Click() try {
    const QFileInfo loaded(mServices.process.objTransformer->GetFileName());
    const QString proposal = loaded.fileName().isEmpty()
                                 ? QStringLiteral("KX4600.pdf")
                                 : loaded.path() + u'/' + loaded.completeBaseName() + QStringLiteral(".pdf");
    const QString fileName = mAskFileName(this, proposal);
    if (!fileName.isEmpty() && mPrint->NewDocument(std::make_unique<PdfPageSink>(fileName)) && printDocument())
        accept();
}
ERROR_TAIL()

void frmPrint::cmdPreview_Click() try {
    RecordedReport report;
    const ReportEnd end = printReport(report);
    showEnd(end);
    if (end == ReportEnd::Done)
        ReportPreview(mPrinters, mServices.boxes, mErrors).Show(report, windowTitle(), this);
}
ERROR_TAIL()

bool frmPrint::printDocument() {
    const ReportEnd end = printReport(*mPrint);
    showEnd(end);
    if (end == ReportEnd::Done)
        return mPrint->EndDocument();
    mPrint->CancelDocument();
    return false;
}

frmPrint::ReportEnd frmPrint::printReport(ReportLines &lines) {
    mLines = &lines;
    mCancelled = false;
    showBusy();
    ReportEnd end = ReportEnd::Failed;
    if (PrintHeaderInfo())
        end = printForms();
    else
        PrintMessages::tell(mServices.boxes, PrintMessages::kCancelled);
    showIdle();
    mLines = nullptr;
    return end;
}

frmPrint::ReportEnd frmPrint::printForms() {
    const std::vector<int> items = checkedItems();
    int done = 0;
    for (const int item : items) {
        showProgress(item, done++, int(items.size()));
        QCoreApplication::processEvents();
        if (mCancelled)
            return ReportEnd::Cancelled;
        if (!OpenForm(item, chkPrintAll->isChecked()))
            return ReportEnd::Failed;
    }
    return ReportEnd::Done;
}

void frmPrint::showProgress(int item, int done, int all) {
    const QString parameters = MakeParamString({done + 1, all});
    lblProgress->setText(mServices.translation.NLSFmt(QStringLiteral("Form %0:S of %1:S: "), parameters) +
                         lstForms->item(item)->text());
}

void frmPrint::showBusy() {
    mPrinting = true;
    for (QWidget *control : std::initializer_list<QWidget *>{lstForms, chkPrintAll, cmdSelectAll, cmdPrinterSettings})
        control->setEnabled(false);
    lstForms_ItemCheck();
    cmdCancel->setFocus();
    mShell.MouseHourglass();
}

void frmPrint::showIdle() {
    mShell.MouseDefault();
    mPrinting = false;
    for (QWidget *control : std::initializer_list<QWidget *>{lstForms, chkPrintAll, cmdSelectAll, cmdPrinterSettings})
        control->setEnabled(true);
    lstForms_ItemCheck();
    if (mErrors.HasReported()) // the program is closing, and this window could not while it printed
        QDialog::reject();
}

void frmPrint::showEnd(ReportEnd end) {
    lblProgress->setText(end == ReportEnd::Cancelled ? translated("The report was cancelled.") : QString());
}

bool frmPrint::PrintHeaderInfo() try {
    Transformer &component = *mServices.process.objTransformer;
    return PrintLine(reportBanner(component.GetRadioModel(), QDateTime::currentDateTime(), component.GetFileName()),
                     true, false, true);
}
ERROR_TAIL(false)

bool frmPrint::PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) {
    return (mLines == nullptr ? *mPrint : *mLines).PrintLine(Text, Bold, Columns, Ruled);
}

bool frmPrint::OpenForm(int index, bool printAll) try {
    const QListWidgetItem *const item = lstForms->item(index);
    const QString key = mShell.FormKey(item->data(kNodeRole).toInt());
    ReportFormShell shell(key, item->text());
    const FieldServices services{mServices.process, mServices.translation, mServices.errors,
                                 mServices.boxes,   mServices.clipboard,   shell};
    const std::unique_ptr<Iusrfrm> form = mShell.CreateForm(key, services);
    return PrintedForm(services, *form).PrintTo(*this, item->text(), printAll);
}
ERROR_TAIL(false)

void frmPrint::cmdCancel_Click() { reject(); }

void frmPrint::reject() {
    if (mPrinting)
        mCancelled = true;
    else
        QDialog::reject();
}
