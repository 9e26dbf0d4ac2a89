#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class clsControlItem;

// What every field control offers to the enabler and the main window. A member that has no sense for a type does
// nothing and returns the default. Fields know nothing of the component's rules; the enabler fills and reads them.
class Ifield {
  public:
    virtual ~Ifield() = default;

    virtual void Ifield_Delete() = 0;
    virtual void Ifield_SelectAll() = 0;
    virtual void Ifield_Copy() = 0;
    virtual void Ifield_Paste() = 0;
    virtual void Ifield_Cut() = 0;
    // Bits of the edit commands that now apply: 1 cut, 2 copy, 4 paste.
    virtual qint32 Ifield_GetEditOperations() = 0;
    // Kept in the field, not read from the window.
    virtual bool Ifield_GetVisible() const = 0;
    virtual qint32 Ifield_GetHelpID() const = 0;
    virtual void Ifield_GetUIIDNotFound(bool NewUIIDNotFound) = 0;
    virtual bool Ifield_GetUIIDNotFound() const = 0;
    virtual QVariant Ifield_GetValue() = 0;
    virtual void Ifield_SetHelpID(qint32 HelpID) = 0;
    virtual void Ifield_SetWhatsThisHelpID(qint32 HelpID) = 0;
    // Limits what the user types, in characters; 0 or less means no limit. A value set by code is never cut.
    virtual void Ifield_SetUIWidth(qint32 Width) = 0;
    // The caption, already translated; also the accessible name. A navigator takes two halves joined by "|".
    virtual QVariant Ifield_SetName(const QString &Name) = 0;
    virtual QString Ifield_GetName() const = 0;
    // Shows the value ("Undefined" as an empty one). With blnValidate the field then raises "ManualValidate" and the
    // result is the opposite of its Cancel; without, it is true unless the field's own rules say otherwise.
    virtual bool Ifield_SetValue(const QVariant &Value, bool blnValidate) = 0;
    virtual void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) = 0;
    virtual QString Ifield_GetUIID() const = 0;
    virtual void Ifield_SetUIID(const QString &UIID) = 0;
    virtual void Ifield_SetEnabled() = 0;
    virtual void Ifield_SetDisabled() = 0;
    virtual void Ifield_SetInvisible() = 0;
    virtual bool Ifield_GetEnabled() const = 0;
    // Empties and disables the field and sets the not-found flag.
    virtual void Ifield_UIIDNotFound() = 0;
    virtual qint32 Ifield_GetRecordNr() const = 0;
    // "fldTextField" and so on; for a grid the type of its current cell.
    virtual QString Ifield_GetTypeName() const = 0;
    virtual void Ifield_SetFocus() = 0;
    // Number of the navigator that drives the field; 0: none.
    virtual qint32 Ifield_GetNavigatorStream() const = 0;
    // Breaks the link to the wrapper; called when the form closes.
    virtual void Ifield_Terminate() = 0;
    virtual std::shared_ptr<clsControlItem> Ifield_WrapperCtrlItem() const = 0;
    virtual void Ifield_WrapperCtrlItem(const std::shared_ptr<clsControlItem> &objCtrlItem) = 0;
};

// What the enabler needs of a drop-down list beside Ifield. Texts are translated.
class ComboItems {
  public:
    virtual ~ComboItems() = default;
    virtual void Clear() = 0;
    virtual void AddItem(const QString &Text) = 0;
    // The stored values of the items joined by "|"; "" when the list index is the value.
    virtual void SetComboIndex(const QString &Map) = 0;
};

// What the enabler needs of an ID tracker beside Ifield.
class IdItems {
  public:
    virtual ~IdItems() = default;
    virtual void Clear() = 0;
    // The last AddItem of a text decides its value.
    virtual void AddItem(const QString &Text, const QVariant &Value) = 0;
};

// What the enabler needs of a slider beside Ifield.
class SliderRange {
  public:
    virtual ~SliderRange() = default;
    virtual void SetMin(qint32 Min) = 0;
    virtual void SetMax(qint32 Max) = 0;
    virtual void SetStep(qint32 Step) = 0;
};
