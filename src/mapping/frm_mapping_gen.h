#pragma once

#include "cls_mapping_gen.h"
#include "mapping_commands.h"

#include <QMainWindow>

#include <optional>

class clsControlItem;
class FieldEvent;
class Ifield;
class MappingShell;

// The tool window that shows a test script while it is being made.
//
// FieldEvent, MarkOriginalValue, frmMainResetCall, RevertForm and SaveForm are the recorder's hook points. Nothing
// calls them: without a caller the window loads, shows, replays and saves scripts. To record, FieldEvent belongs behind
// each event of clsControlItem, and MarkOriginalValue ahead of Notify_GotFocus.
class frmMappingGen final : public QMainWindow {
    Q_OBJECT
  public:
    struct Services {
        Transformer &transformer;
        MessageBoxes &boxes;
        const Translation &translation;
        ErrorReport &errors;
        MappingShell &shell;
    };
    explicit frmMappingGen(const Services &services);

    // Shows the script as it now stands.
    void UpdateUI();
    void FieldEvent(const std::shared_ptr<clsControlItem> &objCtrlItem, const ::FieldEvent &event);
    // Keeps the field's value on entry.
    void MarkOriginalValue(const std::shared_ptr<clsControlItem> &objCtrlItem, const ::FieldEvent &event);
    bool frmMainResetCall(bool blnReset);
    // Takes the lines since the last SaveForm() away.
    bool RevertForm();
    bool SaveForm();

    void mnuFileLoad_Click();
    void mnuFileSave_Click();
    void mnuNew_Click();
    void mnuInitialStateLoad_Click();
    void mnuInitialStateClear_Click();
    // Docks the window beside the main window, or lets it float again.
    void mnuDock_Click();
    void SetTitle(const QString &FileName);

    [[nodiscard]] clsMappingGen &Recorder() { return mRecorder; }
    // UIID, record and value of the field that was entered last.
    [[nodiscard]] const QStringList &OriginalValue() const { return mOriginal; }

  protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

  private:
    struct MenuRow;
    static const MenuRow kMenuRows[];
    void addMenus();
    [[nodiscard]] QString translated(const QString &text) const;
    [[nodiscard]] QString fileFilter() const;
    // In the present language, which may have changed since the window was last shown.
    void setTexts();
    void txtComments_Change();
    void load(const QString &fileName);
    void LoadInitialState(const QString &FileName);
    void showComments();
    void dock();
    void ValueChanged(const std::shared_ptr<clsControlItem> &item, const QString &name);
    void recordValue(Ifield &field);
    [[nodiscard]] bool hasData();

    Services mServices;
    ErrorReport &mErrors;
    clsMappingGen mRecorder;
    class QPlainTextEdit *mTxtComments;
    class QPlainTextEdit *mTxtScript;
    QString mLastValue;
    qsizetype mSavedLines = 0; // at the last save of a form
    QStringList mOriginal{QString(), QString(), QString()};
    QString mShownName; // of the script, without folders
    bool mDocked = false;
};
