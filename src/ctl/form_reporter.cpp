#include "form_reporter.h"

#include "ienabler.h"
#include "stored_positions.h"
#include "unseen_form.h"

namespace {
const QString kPrint = QStringLiteral("Print");

// A tool has no clipboard.
class NoClipboard final : public ClipboardText {
  public:
    [[nodiscard]] bool HasText() const override { return false; }
    [[nodiscard]] QString Text() const override { return {}; }
    void SetText(const QString & /*text*/) override {}
};

// The main window that is not there, as the form sees it that is printed.
class NoWindow final : public FormShell {
  public:
    explicit NoWindow(const PrintableForm &form) : mForm(form) {}

    [[nodiscard]] qint32 TextAlignment() const override { return 0; }
    [[nodiscard]] bool ChangingForms() const override { return false; }
    [[nodiscard]] QString LoadedFormTypeName() const override { return mForm.key; }
    [[nodiscard]] QString LoadedFormTitle() const override { return mForm.title; }
    [[nodiscard]] QWidget *MainWindow() const override { return nullptr; }
    void ShowWhatsThisHelp(qint32 /*HelpContextID*/) override {}
    void StartDrag(const QString & /*id*/, const QString & /*typeName*/) override {}
    void FinishedDrag() override {}
    void SilentMode(bool /*silent*/) override {}

  private:
    const PrintableForm &mForm;
};

// The enabler stands where the component's events find it.
class EnteredEnabler {
  public:
    EnteredEnabler(ProcessValues &process, const std::shared_ptr<Ienabler> &enabler) : mProcess(process) {
        mProcess.colEnablers.Add(enabler, kPrint);
        mProcess.CurrentEnablerKey = kPrint;
    }
    ~EnteredEnabler() {
        mProcess.CurrentEnablerKey.clear();
        mProcess.colEnablers.Remove(kPrint);
    }
    Q_DISABLE_COPY_MOVE(EnteredEnabler)

  private:
    ProcessValues &mProcess;
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
    NoWindow window(form);
    UnseenForm unseen(mCatalogue.form(form.key), {mProcess, mTranslation, mErrors, mBoxes, clipboard, window});
    const auto enabler = unseen.Iusrfrm_Enabler();
    const EnteredEnabler entered(mProcess, enabler);
    const StoredPositions positions(mSession.transformer(), unseen.Iusrfrm_Controls());
    enabler->Ienabler_InitialiseFields(-1);
    const bool printed = enabler->Ienabler_PrintForm(unseen, form.title, lines, printAll);
    positions.Restore();
    return printed && !mErrors.HasReported();
}

void FormReporter::ShowCritical(const QString &text, const QString & /*title*/) { mSession.console().message(text); }
