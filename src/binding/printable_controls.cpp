#include "printable_controls.h"

#include "form_items.h"
#include "ifield.h"
#include "igrid.h"

#include <algorithm>

namespace {
bool isContainer(FieldType type) { return isOneOf(type, {FieldType::Frame, FieldType::PlainFrame, FieldType::Tab}); }

bool isPrintedField(FieldType type) {
    return isOneOf(type, {FieldType::Text, FieldType::Combo, FieldType::Checkbox, FieldType::OptionButton,
                          FieldType::IdTracker, FieldType::Slider, FieldType::Grid});
}
} // namespace

HostControls PrintableControls::GetPrintableControls(const HostControl *container) const {
    HostControls printable;
    for (HostControl *control : mControls) {
        if (control != nullptr && control->Container() == container && isPrintable(*control))
            printable.push_back(control);
    }
    std::ranges::stable_sort(printable, {}, [](const HostControl *control) { return control->TabIndex(); });
    return printable;
}

bool PrintableControls::isPrintable(const HostControl &control) const {
    const FieldType type = fieldTypeOf(control.TypeName());
    if (isContainer(type))
        return !GetPrintableControls(&control).empty();
    const Ifield *const field = fieldOf(&control);
    if (!isPrintedField(type) || field == nullptr)
        return false;
    return field->Ifield_GetVisible() && !field->Ifield_GetUIIDNotFound() && isInScope(control, type);
}

bool PrintableControls::isInScope(const HostControl &control, FieldType type) const {
    if (mScope.part == ReportScope::Part::Everything)
        return true;
    if (type == FieldType::Grid)
        return isGridInScope(control);
    const qint32 stream = fieldOf(&control)->Ifield_GetNavigatorStream();
    return mScope.part == ReportScope::Part::OutsideNavigator ? stream == 0 : stream == mScope.stream;
}

// A grid that shows the navigator's own records is left out on both walks: each record is printed by itself.
bool PrintableControls::isGridInScope(const HostControl &control) const {
    const auto *const grid = dynamic_cast<const Igrid *>(fieldOf(&control));
    if (grid == nullptr)
        return false;
    if (mScope.part == ReportScope::Part::OutsideNavigator && control.Name() == mScope.gridControl)
        return false;
    return !grid->Igrid_GetUIIDList().split(u'|').contains(mScope.guideUIID);
}
