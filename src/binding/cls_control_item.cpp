#include "cls_control_item.h"

#include "common_error_handler.h"
#include "ctl_form_enabler.h"
#include "message_style.h"
#include "record_errors.h"

#include <algorithm>
#include <type_traits>

namespace {
using Handler = void (*)(ctlFormEnabler &, const ControlItemPtr &, const FieldEvent &);

// A Notify_ operation as a handler: it takes the item, and the event where it reads or writes parameters.
template <auto Notify>
void notify(ctlFormEnabler &enabler, const ControlItemPtr &item, const FieldEvent &event) {
    if constexpr (std::is_invocable_v<decltype(Notify), ctlFormEnabler &, const ControlItemPtr &, const FieldEvent &>) {
        (enabler.*Notify)(item, event);
    } else {
        (enabler.*Notify)(item);
    }
}

void setProviderUpdate(ctlFormEnabler &enabler, const ControlItemPtr & /*item*/, const FieldEvent &event) {
    const auto [newValue] = event.unpack<bool>();
    enabler.Notify_SetProviderUpdateUIOnFieldChange(newValue);
}

void validateForm(ctlFormEnabler &enabler, const ControlItemPtr & /*item*/, const FieldEvent &event) {
    const auto [result] = event.unpack<bool &>();
    result = enabler.Notify_ValidateForm();
}

struct Route {
    QStringView name;
    Handler handler;
};

// Event names are compared case-sensitively, in this order.
constexpr Route kRoutes[] = {
    {u"Escape", &notify<&ctlFormEnabler::Notify_Escape>},
    {u"Click", &notify<&ctlFormEnabler::Notify_Click>},
    {u"Change", &notify<&ctlFormEnabler::Notify_Change>},
    {u"ChangedPosition", &notify<&ctlFormEnabler::Notify_ChangedPosition>},
    {u"ChangePositionStorage", &notify<&ctlFormEnabler::Notify_ChangedPositionStorage>},
    {u"EnterFocus", &notify<&ctlFormEnabler::Notify_GotFocus>},
    {u"ExitFocus", &notify<&ctlFormEnabler::Notify_ExitFocus>},
    {u"GetFieldsInFrame", &notify<&ctlFormEnabler::Notify_GetFieldsInFrame>},
    {u"ImportRecordByDrop", &notify<&ctlFormEnabler::Notify_ImportRecordByDrop>},
    {u"ImportRecordByPaste", &notify<&ctlFormEnabler::Notify_ImportRecordByPaste>},
    {u"AddRecord", &notify<&ctlFormEnabler::Notify_AddRecord>},
    {u"InsertRecord", &notify<&ctlFormEnabler::Notify_InsertRecord>},
    {u"DeleteRecord", &notify<&ctlFormEnabler::Notify_DeleteRecord>},
    {u"RepeatRecord", &notify<&ctlFormEnabler::Notify_RepeatRecord>},
    {u"AddRecordNavigator", &notify<&ctlFormEnabler::Notify_AddRecordNavigator>},
    {u"DeleteRecordNavigator", &notify<&ctlFormEnabler::Notify_DeleteRecordNavigator>},
    {u"RepeatRecordNavigator", &notify<&ctlFormEnabler::Notify_RepeatRecordNavigator>},
    {u"InsertRecordNavigator", &notify<&ctlFormEnabler::Notify_InsertRecordNavigator>},
    {u"GetComboItems", &notify<&ctlFormEnabler::Notify_GetComboItems>},
    {u"GetIDItems", &notify<&ctlFormEnabler::Notify_GetIDItems>},
    {u"GetValidationString", &notify<&ctlFormEnabler::Notify_GetValidationString>},
    {u"ManualValidate", &notify<&ctlFormEnabler::Notify_ManualValidate>},
    {u"GetLabel", &notify<&ctlFormEnabler::Notify_GetLabel>},
    {u"SortColumnByUIID", &notify<&ctlFormEnabler::Notify_SortColumnByUIID>},
    {u"Initialise", &notify<&ctlFormEnabler::Notify_Initialise>},
    {u"RowSelectionChanged", &notify<&ctlFormEnabler::Notify_RowSelectionChanged>},
    {u"TabToNextField", &notify<&ctlFormEnabler::Notify_TabToNextField>},
    {u"SetProviderUpdateUIOnFieldChange", &setProviderUpdate},
    {u"ValidateForm", &validateForm},
};

// The events of a grid whose command tells an error 91 itself.
constexpr QStringView kRecordOperations[] = {u"AddRecord", u"InsertRecord", u"RepeatRecord", u"DeleteRecord"};
} // namespace

clsControlItem::clsControlItem(const FieldServices &services) : mServices(services), mErrors(services.errors) {}

clsControlItem::~clsControlItem() { Class_Terminate(); }

void clsControlItem::Init(HostControl &Control, const std::shared_ptr<ctlFormEnabler> &Enabler) {
    mField = Control.object();
    mControl = &Control;
    mEnabler = Enabler;
    Control.SetListener(this);
}

void clsControlItem::Class_Terminate() {
    if (mControl == nullptr)
        return;
    mControl->SetListener(nullptr);
    mControl = nullptr;
    mField = nullptr;
    mEnabler.reset();
}

void clsControlItem::raiseMissing() {
    throw RunTimeError(ErrorNumber::kMissingObject, QStringLiteral("clsControlItem"),
                       QStringLiteral("Object variable not set"));
}

Ifield &clsControlItem::Field() const {
    if (mField == nullptr)
        raiseMissing();
    return *mField;
}

HostControl &clsControlItem::Control() const {
    if (mControl == nullptr)
        raiseMissing();
    return *mControl;
}

qint32 clsControlItem::TabIndex() const { return Control().TabIndex(); }

void clsControlItem::SetFocus() { Control().SetFocus(); }

void clsControlItem::FieldTypeName(const QString &NewFieldTypeName) {
    mFieldTypeName = NewFieldTypeName;
    mType = fieldTypeOf(NewFieldTypeName);
}

void clsControlItem::frmField_GotFocus() {
    const ControlItemPtr self = shared_from_this();
    gotFocus();
}

void clsControlItem::frmField_LostFocus() {
    const ControlItemPtr self = shared_from_this();
    lostFocus();
}

void clsControlItem::frmField_Validate(bool &Cancel) {
    const ControlItemPtr self = shared_from_this();
    validate(Cancel);
}

void clsControlItem::frmField_ObjectEvent(const FieldEvent &Event) {
    const ControlItemPtr self = shared_from_this();
    route(Event);
}

void clsControlItem::gotFocus() try {
    if (const auto enabler = mEnabler.lock())
        enabler->Notify_GotFocus(shared_from_this());
}
ERROR_TAIL_AS("frmField_GotFocus")

void clsControlItem::lostFocus() try {
    if (const auto enabler = mEnabler.lock())
        enabler->Notify_LostFocus(shared_from_this());
}
ERROR_TAIL_AS("frmField_LostFocus")

void clsControlItem::validate(bool &cancel) try {
    // These two validate by "ManualValidate" and never hold the focus here.
    if (hasType({FieldType::Text, FieldType::Combo})) {
        cancel = false;
        return;
    }
    const auto enabler = mEnabler.lock();
    if (enabler && Field().Ifield_GetEnabled())
        enabler->Notify_Validate(shared_from_this(), cancel);
}
ERROR_TAIL_AS("frmField_Validate")

void clsControlItem::route(const FieldEvent &event) try {
    const auto *const found = std::ranges::find(kRoutes, QStringView(event.name()), &Route::name);
    if (found == std::end(kRoutes)) {
        mServices.boxes.MsgBox(
            QStringLiteral("Event '%1' raised in the UI but not processed in clsControlItem").arg(event.name()),
            MessageStyle::kOkOnly, QStringLiteral("Error"));
        return;
    }
    if (const auto enabler = mEnabler.lock())
        found->handler(*enabler, shared_from_this(), event);
} catch (...) {
    if (std::ranges::find(kRecordOperations, QStringView(event.name())) != std::end(kRecordOperations))
        passMissingObject(mErrors, "frmField_ObjectEvent");
    else
        mErrors.Tail("frmField_ObjectEvent");
}
