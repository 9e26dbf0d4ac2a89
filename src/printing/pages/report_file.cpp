#include "report_file.h"

#include "pdf_page_sink.h"
#include "run_time_error.h"
#include "text_page_sink.h"

#include <QFileInfo>

namespace {
// The flush tells that the disk is full.
void writeText(const QString &fileName, const QString &text) {
    QSaveFile file(fileName);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("PageSink"), file.errorString());
}
} // namespace

std::unique_ptr<PageSink> reportFile(const QString &fileName) {
    if (QFileInfo(fileName).suffix().compare(QStringLiteral("txt"), Qt::CaseInsensitive) != 0)
        return std::make_unique<PdfPageSink>(fileName);
    return std::make_unique<TextPageSink>(TextPageSink::Size(), [fileName](const TextPageSink::Pages &pages) {
        writeText(fileName, TextPageSink::textOf(pages));
    });
}
