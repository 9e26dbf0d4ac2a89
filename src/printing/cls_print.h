#pragma once

#include "cls_printer_settings.h"
#include "report_lines.h"

#include <memory>

class ErrorReport;
class PageSink;
class PageWriter;

// Turns lines of text into the pages of one document after the other: NewDocument, any number of PrintLine, then
// EndDocument or CancelDocument. Failures of the printer are told and answered with false; the program goes on.
class clsPrint final : public ReportLines {
  public:
    // All outlive it.
    clsPrint(PrinterPlatform &platform, MessageBoxes &boxes, ErrorReport &errors);
    ~clsPrint() override;
    clsPrint(const clsPrint &) = delete;
    clsPrint &operator=(const clsPrint &) = delete;

    // The system's print dialog; true when confirmed. The choice holds for all further documents.
    bool PrintDialog(QWidget *window, qint32 flags);
    // Starts a document on the chosen printer. False if that cannot be used.
    bool NewDocument();
    // Starts a document on this sink instead.
    bool NewDocument(std::unique_ptr<PageSink> sink);
    // False once the printer has failed; who prints tells it.
    bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) override;
    // False when the document could not be finished.
    bool EndDocument();
    // Nothing is printed or kept, as far as the printer allows.
    void CancelDocument();

  private:
    bool start(std::unique_ptr<PageSink> sink);
    bool SetPrinterParameters(PageSink *sink);

    PrinterPlatform &mPlatform;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    clsPrinterSettings mSettings;
    std::unique_ptr<PageSink> mSink;
    std::unique_ptr<PageWriter> mWriter;
};
