#pragma once

#include "sub_form_values.h"
#include "window_services.h"

#include <QDialog>

#include <optional>

class DataForm;
class FormFactory;
class QFrame;
class QPushButton;

// The modal window of a sub-form. OK keeps the edits, Cancel and the window's close box put back what the fields held.
// While it is open, its form's enabler stands under "Sub" and is the current one. Esc and Enter belong to the fields:
// neither closes the window, and no button is the default one.
class frmSubForm final : public QDialog {
    Q_OBJECT
  public:
    // factory and the references in services outlive the window.
    frmSubForm(FormFactory &factory, const FieldServices &services, QWidget *owner);
    ~frmSubForm() override;
    Q_DISABLE_COPY_MOVE(frmSubForm)

    // The control name of the form to be hosted.
    [[nodiscard]] const QString &Tag() const { return mTag; }
    void Tag(const QString &formName) { mTag = formName; }
    // Hosts the form on that record, shows the window with the focus on the control of that name, "" for the first one,
    // and returns when it has closed. An error closes it.
    void OpenSubForm(qint32 record, const QString &firstControl = {});
    // Puts every field back to what it held when the window opened; what is refused stays silent.
    void RollbackSubForm();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void setUpParts();
    void hostForm(qint32 record);
    void focusOn(const QString &control);
    void Form_Unload();
    void OKButton_Click();
    void cmdCancel_Click();

    FormFactory &mFactory;
    FieldServices mServices;
    ErrorReport &mErrors;
    QString mTag;
    QFrame *mfraBorder;         // this and the following are owned by this window
    QWidget *mpicInternalFrame; // holds the hosted form
    QPushButton *mOKButton;
    QPushButton *mcmdCancel;
    DataForm *mForm = nullptr;
    std::optional<SubFormValues> mSaved;
};
