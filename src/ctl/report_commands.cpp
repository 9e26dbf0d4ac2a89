#include "command_handlers.h"

#include "form_reporter.h"
#include "page_writer.h"
#include "pdf_page_sink.h"
#include "print_messages.h"
#include "report_banner.h"
#include "report_font.h"
#include "report_lines.h"
#include "text_page_sink.h"
#include "whole_file.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFont>
#include <QFontInfo>
#include <QLocale>

#include <algorithm>
#include <array>
#include <memory>

namespace {
// The file that a report goes into; it appears whole or not at all.
class ReportFile {
  public:
    virtual ~ReportFile() = default;
    [[nodiscard]] virtual PageSink &sink() = 0;
    // Both raise RunTimeError.
    virtual void begin() { sink().BeginDocument(); }
    virtual void end() { sink().EndDocument(); }
};

class PdfReport final : public ReportFile {
  public:
    explicit PdfReport(const QString &path) : mSink(path) {}
    [[nodiscard]] PageSink &sink() override { return mSink; }

  private:
    PdfPageSink mSink;
};

class TextReport final : public ReportFile {
  public:
    explicit TextReport(QString path) : mPath(std::move(path)) {}
    [[nodiscard]] PageSink &sink() override { return mSink; }
    void end() override { WholeFile::replace(mPath, TextPageSink::textOf(mPages).toUtf8()); }

  private:
    QString mPath;
    std::vector<QStringList> mPages;
    TextPageSink mSink{{}, mPages};
};

struct FileKind {
    const char *suffix;
    std::unique_ptr<ReportFile> (*make)(const QString &path);
};
constexpr std::array kFileKinds = {
    FileKind{"pdf",
             [](const QString &path) -> std::unique_ptr<ReportFile> { return std::make_unique<PdfReport>(path); }},
    FileKind{"txt",
             [](const QString &path) -> std::unique_ptr<ReportFile> { return std::make_unique<TextReport>(path); }},
};

std::unique_ptr<ReportFile> makeFile(const QString &path) {
    const QString suffix = QFileInfo(path).suffix();
    for (const FileKind &kind : kFileKinds) {
        if (suffix.compare(QLatin1StringView(kind.suffix), Qt::CaseInsensitive) == 0)
            return kind.make(path);
    }
    throw UsageError(QStringLiteral("the name of a report ends in .pdf or .txt"));
}

// Lines on the pages of a sink.
class PagedLines final : public ReportLines {
  public:
    explicit PagedLines(PageSink &sink) : mWriter(sink, fontOf(sink)) {}
    bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) override try {
        mWriter.PrintLine(Text, Bold, Columns, Ruled);
        return true;
    } catch (const RunTimeError &) {
        return false;
    }

  private:
    [[nodiscard]] static QString fontOf(const PageSink &sink) {
        const QLocale locale = QLocale::system();
        const bool isChinese = locale.language() == QLocale::Chinese && locale.territory() == QLocale::China;
        return reportFont(sink.Fonts(), isChinese, QFontInfo(QFont()).family());
    }

    PageWriter mWriter;
};

bool isCalled(const PrintableForm &form, const QString &name) {
    const std::array names = {form.key, form.caption, form.title};
    return std::ranges::any_of(names,
                               [&name](const QString &own) { return own.compare(name, Qt::CaseInsensitive) == 0; });
}

// Those of --form, else all.
std::vector<PrintableForm> chosenForms(ToolSession &session, const std::vector<PrintableForm> &forms) {
    const Arguments &arguments = session.arguments();
    QStringList names = arguments.rest().sliced(1);
    if (!arguments.has(QStringLiteral("--form"))) {
        if (!names.isEmpty())
            throw UsageError(QStringLiteral("write --form before the names of forms"));
        return forms;
    }
    names.prepend(arguments.value(QStringLiteral("--form")));
    for (const QString &name : names) {
        if (std::ranges::none_of(forms, [&name](const PrintableForm &form) { return isCalled(form, name); }))
            throw UsageError(QStringLiteral("no form %1 can be printed in this tier").arg(name));
    }
    std::vector<PrintableForm> chosen;
    std::ranges::copy_if(forms, std::back_inserter(chosen), [&names](const PrintableForm &form) {
        return std::ranges::any_of(names, [&form](const QString &name) { return isCalled(form, name); });
    });
    return chosen;
}

bool printAll(FormReporter &reporter, const std::vector<PrintableForm> &forms, ReportLines &lines, bool allRecords) {
    return std::ranges::all_of(forms,
                               [&](const PrintableForm &form) { return reporter.Print(form, lines, allRecords); });
}
} // namespace

int Commands::report(ToolSession &session) {
    const std::unique_ptr<ReportFile> file = makeFile(session.requiredOutput());
    session.open(session.arguments().rest().first());
    FormReporter reporter(session);
    const std::vector<PrintableForm> forms = chosenForms(session, reporter.Forms());
    Transformer &component = session.transformer();
    try {
        PagedLines lines(file->sink());
        file->begin();
        if (!lines.PrintLine(
                reportBanner(component.GetRadioModel(), QDateTime::currentDateTime(), component.GetFileName()), true,
                false, true))
            throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("report"), QString());
        if (!printAll(reporter, forms, lines, session.arguments().has(QStringLiteral("--all")))) {
            file->sink().CancelDocument();
            return ExitCode::kFile;
        }
        file->end();
        return ExitCode::kDone;
    } catch (const RunTimeError &) {
        PrintMessages::tell(reporter.Boxes(), PrintMessages::kCancelled);
        return ExitCode::kFile;
    }
}
