#include "form_reporter.h"

#include "printed_form.h"
#include "report_form_shell.h"
#include "unseen_form.h"

namespace {
// A tool has no clipboard.
class NoClipboard final : public ClipboardText {
  public:
    [[nodiscard]] bool HasText() const override { return false; }
    [[nodiscard]] QString Text() const override { return {}; }
    void SetText(const QString & /*text*/) override {}
};
} // namespace

FormReporter::FormReporter(ToolSession &session) : mSession(session), mBoxes(session.events()) {
    mTranslation.gLanguage = 1;
    mProcess.objTransformer = &session.transformer();
    mErrors.SetSink(this);
    session.events().showOn(&mProcess.colEnablers);
}

FormReporter::~FormReporter() { mSession.events().showOn(nullptr); }

std::vector<PrintableForm> FormReporter::Forms() {
    mSession.transformer().RefreshFormList();
    std::vector<PrintableForm> forms;
    QString parent;
    for (const TreeEntry &entry : mSession.dictionary().tree(mSession.state().tier())) {
        const QString caption = QString(entry.caption).remove(u'&');
        if (!entry.isChild)
            parent = caption;
        const bool available = !entry.isGroup && !mSession.events().unavailableForms().contains(caption);
        if (available && mCatalogue.contains(entry.form))
            forms.push_back({entry.form, caption, entry.isChild ? parent + QStringLiteral(" - ") + caption : caption});
    }
    return forms;
}

bool FormReporter::Print(const PrintableForm &form, ReportLines &lines, bool printAll) {
    NoClipboard clipboard;
    ReportFormShell shell(form.key, form.title);
    const FieldServices services{mProcess, mTranslation, mErrors, mBoxes, clipboard, shell};
    UnseenForm unseen(mCatalogue.form(form.key), services);
    const bool printed = PrintedForm(services, unseen).PrintTo(lines, form.title, printAll);
    return printed && !mErrors.HasReported();
}

void FormReporter::ShowCritical(const QString &text, const QString & /*title*/) { mSession.console().message(text); }
