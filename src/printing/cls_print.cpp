#include "cls_print.h"

#include "common_error_handler.h"
#include "page_sink.h"
#include "page_writer.h"
#include "print_messages.h"
#include "report_font.h"

#include <utility>

clsPrint::clsPrint(PrinterPlatform &platform, MessageBoxes &boxes, ErrorReport &errors)
    : mPlatform(platform), mBoxes(boxes), mErrors(errors), mSettings(platform, boxes) {}

clsPrint::~clsPrint() = default;

bool clsPrint::PrintDialog(QWidget *window, qint32 flags) { return mSettings.ShowPrinter(window, flags); }

bool clsPrint::NewDocument() try {
    mSettings.SetupPrinterObject();
    return start(mPlatform.OpenSink());
} catch (...) {
    PrintMessages::tell(mBoxes, PrintMessages::kCancelled);
    return false;
}

bool clsPrint::NewDocument(std::unique_ptr<PageSink> sink) try { return start(std::move(sink)); } catch (...) {
    PrintMessages::tell(mBoxes, PrintMessages::kCancelled);
    return false;
}

bool clsPrint::start(std::unique_ptr<PageSink> sink) {
    mWriter.reset();
    mSink.reset();
    if (!SetPrinterParameters(sink.get()))
        return false;
    sink->BeginDocument();
    mSink = std::move(sink);
    return true;
}

bool clsPrint::SetPrinterParameters(PageSink *sink) try {
    if (sink == nullptr)
        throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("clsPrint"), QStringLiteral("Printer error"));
    const QString font = reportFont(sink->Fonts(), mPlatform.IsChineseLocale(), mPlatform.WindowFont());
    mWriter = std::make_unique<PageWriter>(*sink, font);
    return true;
} catch (const RunTimeError &error) {
    if (error.Number != ErrorNumber::kPrinter && error.Number != ErrorNumber::kPrinterSetup)
        throw;
    PrintMessages::tell(mBoxes,
                        error.Number == ErrorNumber::kPrinter ? PrintMessages::kNoPrinters : PrintMessages::kNotSetUp);
    return false;
}

// A printer that fails while it prints is no error of the program: the report above stops and tells it.
bool clsPrint::PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) try {
    if (mSink == nullptr)
        return false;
    mWriter->PrintLine(Text, Bold, Columns, Ruled);
    return true;
} catch (const RunTimeError &error) {
    if (error.Number != ErrorNumber::kPrinter)
        mErrors.Tail(__func__);
    return false;
}
ERROR_TAIL(false)

bool clsPrint::EndDocument() try {
    const std::unique_ptr<PageSink> sink = std::exchange(mSink, nullptr);
    if (sink != nullptr) {
        mWriter->Finish();
        sink->EndDocument();
    }
    return true;
} catch (...) {
    PrintMessages::tell(mBoxes, PrintMessages::kCancelled);
    return false;
}

void clsPrint::CancelDocument() {
    if (const std::unique_ptr<PageSink> sink = std::exchange(mSink, nullptr))
        sink->CancelDocument();
}
