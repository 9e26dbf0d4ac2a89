#include "mod_ss_tab_fix.h"

#include "field_type.h"

#include <exception>

namespace {
constexpr qint32 kParkedLeft = -10000; // twips; controls of pages that are not shown stand further left

bool isOnShownPage(const HostControl &tab, const HostControl &control) {
    if (&control == &tab)
        return true;
    for (const HostControl *top = &control; top != nullptr; top = top->Container()) {
        if (top->Container() == &tab)
            return top->Left() > kParkedLeft;
    }
    return false;
}

bool hasTabStop(const HostControl &tab, const HostControl &control) {
    if (!isOnShownPage(tab, control))
        return false;
    return !isOneOf(fieldTypeOf(control.TypeName()), {FieldType::Frame, FieldType::PlainFrame}) && control.Enabled();
}
} // namespace

void SetPageTabStops(HostControl &tab, const HostControls &controls) {
    for (HostControl *control : controls) {
        try {
            if (control != nullptr)
                control->SetTabStop(hasTabStop(tab, *control));
        } catch (const std::exception &) {
            continue; // many controls have no tab stop
        }
    }
}
