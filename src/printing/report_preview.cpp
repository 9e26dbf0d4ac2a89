#include "report_preview.h"

#include "cls_print.h"
#include "common_error_handler.h"
#include "printer_page_sink.h"
#include "recorded_report.h"

#include <QPrintPreviewDialog>

ReportPreview::ReportPreview(PrinterPlatform &platform, MessageBoxes &boxes, ErrorReport &errors)
    : mPlatform(platform), mBoxes(boxes), mErrors(errors) {}

void ReportPreview::Show(const RecordedReport &report, const QString &title, QWidget *window) try {
    QPrintPreviewDialog dialog(window);
    dialog.setObjectName(QStringLiteral("frmPrintPreview"));
    dialog.setWindowTitle(title);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [this, &report](QPrinter *printer) { Paint(report, *printer); });
    dialog.exec();
}
ERROR_TAIL()

bool ReportPreview::Paint(const RecordedReport &report, QPrinter &printer) try {
    clsPrint print(mPlatform, mBoxes, mErrors);
    if (!print.NewDocument(std::make_unique<PrinterPageSink>(printer)))
        return false;
    return report.PrintTo(print) && print.EndDocument();
}
ERROR_TAIL(false)
