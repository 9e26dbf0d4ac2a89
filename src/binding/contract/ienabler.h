#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class Iusrfrm;
class ReportLines;
class clsControlItem;

// What a form's enabler offers to the main window, and, through clsControlItem, to the fields.
class Ienabler {
  public:
    virtual ~Ienabler() = default;

    virtual void Ienabler_RevertCurrentField() = 0;
    // Takes the value that still stands in the active editor; called before anything saves, prints or leaves.
    virtual void Ienabler_ForceSaveToCurrentField() = 0;
    virtual void Ienabler_RefreshGridByUIID(const QString &UIID) = 0;
    virtual QString Ienabler_GetUIIDOfFieldWithFocus() = 0;
    virtual void Ienabler_SetEnableDisableByUIID(const QString &UIID, bool Enabled) = 0;
    virtual void Ienabler_ClearWhatsThisHelpIDs() = 0;
    virtual void Ienabler_SetWhatsThisHelpIDs() = 0;
    // False after a refused validation, until one succeeds.
    virtual bool Ienabler_OKToLeaveForm() = 0;
    // Null when no field has the focus.
    virtual std::shared_ptr<clsControlItem> Ienabler_GetActiveControl() = 0;
    virtual qint32 Ienabler_HelpContextID() = 0;
    // Fills every field. -1: each navigator goes to its stored position; else all go to this record.
    virtual void Ienabler_InitialiseFields(qint32 lngRecordNr) = 0;
    // Prints the form under its title; printAll: every record of its first navigator. False after a failure that ended
    // the report and has been told.
    virtual bool Ienabler_PrintForm(Iusrfrm &form, const QString &title, ReportLines &printDialog, bool printAll) = 0;
    virtual qint32 Ienabler_TextAlignment() = 0;
    virtual void Ienabler_UIIDNotFound(const QString &UIID) = 0;
    virtual void Ienabler_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) = 0;
    virtual bool Ienabler_ValidateForm(bool blnClosingForm) = 0;
};
