#include "frm_main.h"

#include "frm_main_wiring.h"
#include "product_identity.h"
#include "program_icons.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMimeData>

namespace {
constexpr QSize kFirstSize(1010, 700); // fits a screen of 1024 by 768 with its frame
constexpr QSize kLeastSize(480, 360);
} // namespace

frmMain::frmMain(const ShellServices &services) : mWiring(std::make_unique<Wiring>(*this, services)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(ProductIdentity::title());
    setWindowIcon(loadIcon(ProgramIcon::kApplication));
    setMinimumSize(kLeastSize);
    resize(kFirstSize);
    layout()->activate(); // the first form is laid out before the window shows
    setAcceptDrops(true);
}

frmMain::~frmMain() { mWiring->with.errors.SetSink(nullptr); }

void frmMain::Form_Initialize() { mWiring->startUp.Form_Initialize(); }
void frmMain::Form_Load() { mWiring->startUp.Form_Load(); }
void frmMain::Form_QueryUnload(bool &Cancel, qint32 UnloadMode) {
    mWiring->shutDown.Form_QueryUnload(Cancel, UnloadMode);
}
void frmMain::Form_Terminate() { mWiring->shutDown.Form_Terminate(); }
void frmMain::Form_Resize() { mWiring->layout.Form_Resize(); }

QString frmMain::ProjectName() const { return mWiring->startUp.ProjectName(); }
void frmMain::ProjectName(const QString &name) { mWiring->startUp.ProjectName(name); }
void frmMain::ResetToDefaults() { mWiring->documentCommands.ResetToDefaults(); }
void frmMain::ShowWhatsThisHelp(qint32 HelpContextID) { mWiring->help.ShowWhatsThisHelp(HelpContextID); }
bool frmMain::ValidFormControlNameForTier(const QString &strFormControlName) const {
    return mWiring->nodes.ValidFormControlNameForTier(strFormControlName);
}
bool frmMain::CanOpen(const QString &usrfrmName) const { return mWiring->host.CanOpen(usrfrmName); }
bool frmMain::OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately) {
    return mWiring->host.OpenForm(usrfrmName, usrfrmDesc, blnDoWeSaveFormImmediately);
}
bool frmMain::SaveForm() { return mWiring->host.SaveForm(); }
bool frmMain::CloseForm(bool SaveNow) { return mWiring->host.CloseForm(SaveNow); }

void frmMain::TransformerEvents_ChangeToForm(const QString &strFormKey) {
    mWiring->events.TransformerEvents_ChangeToForm(strFormKey);
}
void frmMain::TransformerEvents_ChangeToNetwork() { mWiring->events.TransformerEvents_ChangeToNetwork(); }
void frmMain::TransformerEvents_ChangeToSpecificationsForm() {
    mWiring->events.TransformerEvents_ChangeToSpecificationsForm();
}
void frmMain::TransformerEvents_ChangeTreeFilterPos(qint32 lngFilterPos) {
    mWiring->events.TransformerEvents_ChangeTreeFilterPos(lngFilterPos);
}
void frmMain::TransformerEvents_DisableUserEvents(bool blnStatus) {
    mWiring->events.TransformerEvents_DisableUserEvents(blnStatus);
}
void frmMain::TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                              qint32 &Answer, const QString &strParameters) {
    mWiring->events.TransformerEvents_GeneralDialog(Prompt, Buttons, Title, Answer, strParameters);
}
void frmMain::TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) {
    mWiring->events.TransformerEvents_LastAction(LastAction, AuxMessage);
}
void frmMain::TransformerEvents_LoadError(const QString &DllName) {
    mWiring->events.TransformerEvents_LoadError(DllName);
}
void frmMain::TransformerEvents_MouseDefault() { mWiring->events.TransformerEvents_MouseDefault(); }
void frmMain::TransformerEvents_MouseHourglass() { mWiring->events.TransformerEvents_MouseHourglass(); }
void frmMain::TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                       const QString &strParameters) {
    mWiring->events.TransformerEvents_MsgBox(Prompt, Buttons, Title, Answer, strParameters);
}
void frmMain::TransformerEvents_RefreshGridByUIID(const QString &UIID) {
    mWiring->events.TransformerEvents_RefreshGridByUIID(UIID);
}
void frmMain::TransformerEvents_SetTierNodeGreenTick(bool HighlightForm) {
    mWiring->events.TransformerEvents_SetTierNodeGreenTick(HighlightForm);
}
void frmMain::TransformerEvents_ShowCredits() { mWiring->events.TransformerEvents_ShowCredits(); }
void frmMain::TransformerEvents_TerminateApplication() { mWiring->events.TransformerEvents_TerminateApplication(); }
void frmMain::TransformerEvents_WriteLine(const QString &message) {
    mWiring->events.TransformerEvents_WriteLine(message);
}
void frmMain::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) {
    mWiring->events.TransformerEvents_UpdateUIFieldByUIID(UIID, RecordNr, Value);
}
qint32 frmMain::TextAlignment() const { return mWiring->startUp.TextAlignment(); }
void frmMain::TransformerEvents_FieldHasChanged() { mWiring->events.TransformerEvents_FieldHasChanged(); }
void frmMain::TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                             const QStringList &FormDescList,
                                             const QHash<QString, QVariant> &FormAccessLevels,
                                             const QHash<QString, QVariant> &FormNetworks,
                                             const QStringList &FormTypeList, bool &Result) {
    mWiring->events.TransformerEvents_ChangeToTier(TierKey, FormList, FormDescList, FormAccessLevels, FormNetworks,
                                                   FormTypeList, Result);
}
void frmMain::TransformerEvents_ClearRange() { mWiring->events.TransformerEvents_ClearRange(); }
void frmMain::TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) {
    mWiring->events.TransformerEvents_EnableDisableFormItem(FormName, Enable);
}
void frmMain::TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) {
    mWiring->events.TransformerEvents_SetEnableDisableByUIID(UIID, Enable);
}
void frmMain::TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step, const QString &Unit) {
    mWiring->events.TransformerEvents_ShowFieldDetails(Min, Max, Step, Unit);
}
void frmMain::TransformerEvents_UIIDNotFound(const QString &UIID) {
    mWiring->events.TransformerEvents_UIIDNotFound(UIID);
}

void frmMain::GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                            const QString &strParameters) {
    mWiring->dialogs.GeneralDialog(Prompt, Buttons, Title, Answer, strParameters);
}
bool frmMain::SilentMode() const { return mWiring->dialogs.SilentMode(); }
void frmMain::SilentMode(bool silent) { mWiring->dialogs.SilentMode(silent); }
const HostedForm &frmMain::LoadedUsrControl() const { return mWiring->host.LoadedUsrControl(); }
bool frmMain::ChangingForms() const { return mWiring->host.ChangingForms(); }
const QStringList &frmMain::MessageLog() const { return mWiring->events.MessageLog(); }
const FieldServices &frmMain::Services() const { return mWiring->forForms; }

QString frmMain::LoadedFormTypeName() const { return mWiring->host.LoadedUsrControl().typeName; }
QString frmMain::LoadedFormTitle() const { return mWiring->pane.Caption(); }
QWidget *frmMain::MainWindow() const { return &mWiring->window; }
void frmMain::StartDrag(const QString &id, const QString &typeName) { mWiring->details.StartDrag(id, typeName); }
void frmMain::FinishedDrag() { mWiring->details.FinishedDrag(); }

bool frmMain::event(QEvent *event) {
    if (event->type() == QEvent::WindowActivate && mWiring != nullptr)
        Form_Resize();
    return QMainWindow::event(event);
}

void frmMain::showEvent(QShowEvent *event) {
    if (!std::exchange(mActivated, true))
        mWiring->position.StartupPosition();
    QMainWindow::showEvent(event);
}

void frmMain::closeEvent(QCloseEvent *event) {
    bool cancel = false;
    mWiring->shutDown.CloseRequested(cancel);
    event->setAccepted(!cancel);
}

void frmMain::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        mWiring->formCommands.Form_KeyPress(27);
    else if (event->key() != Qt::Key_F1 || !mWiring->help.Form_KeyDown(HelpCommands::kF1Code, event->modifiers()))
        QMainWindow::keyPressEvent(event);
}

void frmMain::dragEnterEvent(QDragEnterEvent *event) {
    if (FileDrop::isAcceptable(event->mimeData()))
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent *event) {
    event->acceptProposedAction();
    mWiring->documents.OpenDropped(FileDrop::firstFile(event->mimeData()));
}
