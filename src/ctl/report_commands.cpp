#include "command_handlers.h"

#include "form_reporter.h"
#include "page_sink.h"
#include "page_writer.h"
#include "print_messages.h"
#include "report_banner.h"
#include "report_file.h"
#include "report_font.h"
#include "report_lines.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFont>
#include <QFontInfo>
#include <QLocale>

#include <algorithm>
#include <array>
#include <memory>

namespace {
// A name of neither kind is a slip of the user's.
std::unique_ptr<PageSink> openFile(const QString &path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != u"pdf" && suffix != u"txt")
        throw UsageError(QStringLiteral("the name of a report ends in .pdf or .txt"));
    return reportFile(path);
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
    // Raises RunTimeError.
    void finish() { mWriter.Finish(); }

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
    const std::unique_ptr<PageSink> file = openFile(session.requiredOutput());
    session.open(session.arguments().rest().first());
    FormReporter reporter(session);
    const std::vector<PrintableForm> forms = chosenForms(session, reporter.Forms());
    Transformer &component = session.transformer();
    try {
        PagedLines lines(*file);
        file->BeginDocument();
        if (!lines.PrintLine(
                reportBanner(component.GetRadioModel(), QDateTime::currentDateTime(), component.GetFileName()), true,
                false, true))
            throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("report"), QString());
        if (!printAll(reporter, forms, lines, session.arguments().has(QStringLiteral("--all")))) {
            file->CancelDocument();
            return ExitCode::kFile;
        }
        lines.finish();
        file->EndDocument();
        return ExitCode::kDone;
    } catch (const RunTimeError &) {
        PrintMessages::tell(reporter.Boxes(), PrintMessages::kCancelled);
        return ExitCode::kFile;
    }
}
