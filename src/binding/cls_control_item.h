#pragma once

#include "field_type.h"
#include "host_control.h"
#include "ifield.h"
#include "run_time_error.h"
#include "window_services.h"

#include <QString>

#include <memory>

class ctlFormEnabler;

// Stands between one field of a form and the form's enabler: hears the field's events and turns each into one Notify_
// operation. Holds no data of the field.
//
// Ownership: the enabler and the field share the item; the item refers to the control without owning it and to the
// enabler weakly. A form may be closed from inside an event of its own field: then the item is terminated while its
// handler is still on the stack. So whoever calls the component keeps a shared pointer to the item and asks
// Terminated() after the call, before the field is touched.
//
// The generic events and the types of their parameters, position 0 first ("out" is written by the handler). A parameter
// that names the raising control itself (Frame, GridField, navNavigator) is not read: the item knows its control.
//   "Escape", "Click", "EnterFocus", "ExitFocus", "AddRecord", "InsertRecord", "RepeatRecord", "Initialise",
//   "TabToNextField"         none
//   "Change"                 none; a grid may give RecordNr (qint32)
//   "ChangedPosition"        QString strUIID, qint32 lngId (the stream), qint32 lngPosition
//   "ChangePositionStorage"  QString strUIID, qint32 lngPosition, out bool Result
//   "GetFieldsInFrame"       Frame, out QStringList colUIID
//   "ImportRecordByDrop"     GridField, QString UIIDList, const QMimeData * Data
//   "ImportRecordByPaste"    QString strUIIDList, QString strSelectedRecordsList
//   "DeleteRecord"           out bool DeletedOK
//   "AddRecordNavigator", "RepeatRecordNavigator", "InsertRecordNavigator"
//                            navNavigator
//   "DeleteRecordNavigator"  navNavigator, out bool Result
//   "GetComboItems"          QString UIID, qint32 RecordNr, out XArrayDB ComboArray, out qint32 eCboType
//   "GetIDItems"             QString UIID, qint32 RecordNr, out XArrayDB ComboArray
//   "GetValidationString"    out QString Validation
//   "ManualValidate"         out bool Cancel (read and written)
//   "GetLabel"               QString UIID, out QString Label
//   "SortColumnByUIID"       QString UIID
//   "RowSelectionChanged"    qint32 lngNewRowNumber, from 0
//   "SetProviderUpdateUIOnFieldChange"
//                            bool blnNewVal
//   "ValidateForm"           out bool blnResult
class clsControlItem final : public HostEvents, public std::enable_shared_from_this<clsControlItem> {
  public:
    explicit clsControlItem(const FieldServices &services);
    ~clsControlItem() override;
    clsControlItem(const clsControlItem &) = delete;
    clsControlItem &operator=(const clsControlItem &) = delete;

    // Subscribes to the control's events. Control must be a field and outlive Class_Terminate.
    void Init(HostControl &Control, const std::shared_ptr<ctlFormEnabler> &Enabler);
    // Ends the subscription and forgets control and enabler; may be called twice.
    void Class_Terminate();
    [[nodiscard]] bool Terminated() const { return mControl == nullptr; }

    // These raise error 91 once the item is terminated.
    [[nodiscard]] Ifield &Field() const;
    [[nodiscard]] HostControl &Control() const;
    [[nodiscard]] qint32 TabIndex() const;
    void SetFocus();

    // The control's type name; Type() follows it.
    [[nodiscard]] const QString &FieldTypeName() const { return mFieldTypeName; }
    void FieldTypeName(const QString &NewFieldTypeName);
    [[nodiscard]] FieldType Type() const { return mType; }
    [[nodiscard]] bool hasType(std::initializer_list<FieldType> types) const { return isOneOf(mType, types); }

    // A further interface of the field (Igrid, Inavigator, ComboItems ...). Raises error 91 where it has none.
    template <class Interface>
    [[nodiscard]] Interface &as() const {
        if (auto *const interface = dynamic_cast<Interface *>(&Field()))
            return *interface;
        raiseMissing();
    }

    void frmField_GotFocus() override;
    void frmField_LostFocus() override;
    void frmField_Validate(bool &Cancel) override;
    void frmField_ObjectEvent(const FieldEvent &Event) override;

  private:
    [[noreturn]] static void raiseMissing();
    // The handlers proper. The overrides above keep the item alive round them, so that their error tails still have it.
    void gotFocus();
    void lostFocus();
    void validate(bool &cancel);
    void route(const FieldEvent &event);

    FieldServices mServices;
    ErrorReport &mErrors;
    HostControl *mControl = nullptr;
    Ifield *mField = nullptr;
    std::weak_ptr<ctlFormEnabler> mEnabler;
    QString mFieldTypeName;
    FieldType mType = FieldType::Other;
};

using ControlItemPtr = std::shared_ptr<clsControlItem>;
