#include "frame_contents.h"

#include "common_error_handler.h"
#include "form_items.h"
#include "ifield.h"
#include "value_text.h"

#include <algorithm>
#include <iterator>

namespace {
bool isFrame(FieldType type) { return isOneOf(type, {FieldType::Frame, FieldType::PlainFrame}); }

bool countsAsContent(FieldType type) {
    return isOneOf(type, {FieldType::Text, FieldType::IdTracker, FieldType::Combo, FieldType::Grid, FieldType::Checkbox,
                          FieldType::PageNavigator, FieldType::OptionButton});
}

bool canBeDragged(FieldType type) {
    return isOneOf(type, {FieldType::Text, FieldType::IdTracker, FieldType::Combo, FieldType::Grid, FieldType::Checkbox,
                          FieldType::Slider, FieldType::OptionButton});
}
} // namespace

FrameContents::FrameContents(FormItems &items, const FieldServices &services) : EnablerPart(items, services) {}

HostControls FrameContents::controlsIn(const HostControl &frame) const {
    HostControls result;
    std::ranges::copy_if(mItems.controls(), std::back_inserter(result), [&frame](const HostControl *control) {
        return control != nullptr && control->Container() == &frame;
    });
    return result;
}

bool FrameContents::FrameHasVisibleFields(const HostControl &Frame) try {
    for (const HostControl *control : controlsIn(Frame)) {
        const FieldType type = fieldTypeOf(control->TypeName());
        const Ifield *const field = fieldOf(control);
        if (isFrame(type) && FrameHasVisibleFields(*control))
            return true;
        if (countsAsContent(type) && field != nullptr && field->Ifield_GetVisible())
            return true;
    }
    return false;
}
ERROR_TAIL(false)

void FrameContents::GetFieldsInFrame(const HostControl &Frame, QStringList &colUIID) try {
    for (const HostControl *control : controlsIn(Frame)) {
        const FieldType type = fieldTypeOf(control->TypeName());
        if (isFrame(type))
            GetFieldsInFrame(*control, colUIID);
        Ifield *const field = fieldOf(control);
        if (!canBeDragged(type) || field == nullptr || field->Ifield_GetUIIDNotFound())
            continue;
        if (field->Ifield_GetEnabled() && field->Ifield_GetVisible())
            colUIID << field->Ifield_GetUIID() + u'|' + control->TypeName() + u'|' +
                           ValueText::of(field->Ifield_GetValue());
    }
}
ERROR_TAIL()

void FrameContents::Notify_GetFieldsInFrame(const ControlItemPtr &item, const FieldEvent &event) try {
    GetFieldsInFrame(item->Control(), event.parameter<QStringList &>(1));
}
ERROR_TAIL()
