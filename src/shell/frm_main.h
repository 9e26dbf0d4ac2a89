#pragma once

#include "interrogation_type.h"
#include "shell_ports.h"
#include "transformer_events.h"
#include "window_services.h"

#include <QMainWindow>
#include <QStringList>

#include <functional>
#include <memory>

class FileDialogs;
class Transformer;

// What the main window is made with. All references outlive it.
struct ShellServices {
    Transformer &transformer;
    ProcessValues &process;
    Translation &translation;
    ErrorReport &errors;
    MessageBoxes &boxes;
    ClipboardText &clipboard;
    FormFactoryInterface &forms;
    FileDialogs &fileDialogs;
    SplashWindow &splash;
    ProcessControl &processControl;
    // Runs a radio operation in its modal window.
    std::function<bool(InterrogationType, QWidget *owner)> progressWindow;
    // The command line without the program's name.
    QStringList arguments;
};

// The program's one main window: a front before its collaborators, each of which does one concern. Made, then
// Form_Initialize, Form_Load, show, the event loop, Form_Terminate.
class frmMain final : public QMainWindow, public FormShell, public TransformerEvents {
    Q_OBJECT

  public:
    explicit frmMain(const ShellServices &services);
    ~frmMain() override;

    void Form_Initialize();
    void Form_Load();
    void Form_QueryUnload(bool &Cancel, qint32 UnloadMode);
    void Form_Terminate();
    void Form_Resize();

    [[nodiscard]] QString ProjectName() const;
    void ProjectName(const QString &name);
    void ResetToDefaults();
    void ShowWhatsThisHelp(qint32 HelpContextID) override;
    [[nodiscard]] bool ValidFormControlNameForTier(const QString &strFormControlName) const;
    // False for a form that this program cannot build.
    [[nodiscard]] bool CanOpen(const QString &usrfrmName) const;
    bool OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately);
    bool SaveForm();
    bool CloseForm(bool SaveNow);
    void TransformerEvents_ChangeToForm(const QString &strFormKey) override;
    void TransformerEvents_ChangeToNetwork() override;
    void TransformerEvents_ChangeToSpecificationsForm() override;
    void TransformerEvents_ChangeTreeFilterPos(qint32 lngFilterPos) override;
    void TransformerEvents_DisableUserEvents(bool blnStatus) override;
    void TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                         const QString &strParameters) override;
    void TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) override;
    void TransformerEvents_LoadError(const QString &DllName) override;
    void TransformerEvents_MouseDefault() override;
    void TransformerEvents_MouseHourglass() override;
    void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                  const QString &strParameters) override;
    void TransformerEvents_RefreshGridByUIID(const QString &UIID) override;
    void TransformerEvents_SetTierNodeGreenTick(bool HighlightForm) override;
    void TransformerEvents_ShowCredits() override;
    void TransformerEvents_TerminateApplication() override;
    void TransformerEvents_WriteLine(const QString &message) override;
    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    [[nodiscard]] qint32 TextAlignment() const override;
    void TransformerEvents_FieldHasChanged() override;
    void TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                        const QStringList &FormDescList,
                                        const QHash<QString, QVariant> &FormAccessLevels,
                                        const QHash<QString, QVariant> &FormNetworks, const QStringList &FormTypeList,
                                        bool &Result) override;
    void TransformerEvents_ClearRange() override;
    void TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) override;
    void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) override;
    void TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step, const QString &Unit) override;
    void TransformerEvents_UIIDNotFound(const QString &UIID) override;
    // As TransformerEvents_GeneralDialog, for the shell's own questions.
    void GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                       const QString &strParameters);
    [[nodiscard]] bool SilentMode() const;
    void SilentMode(bool silent) override;
    [[nodiscard]] const HostedForm &LoadedUsrControl() const;
    [[nodiscard]] bool ChangingForms() const override;
    // What the component wrote, for tests.
    [[nodiscard]] const QStringList &MessageLog() const;
    [[nodiscard]] const FieldServices &Services() const;

    [[nodiscard]] QString LoadedFormTypeName() const override;
    [[nodiscard]] QString LoadedFormTitle() const override;
    [[nodiscard]] QWidget *MainWindow() const override;
    void StartDrag(const QString &id, const QString &typeName) override;
    void FinishedDrag() override;

  protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    struct Wiring;
    std::unique_ptr<Wiring> mWiring;
    bool mActivated = false;
};
