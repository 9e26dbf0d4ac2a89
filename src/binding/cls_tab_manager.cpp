#include "cls_tab_manager.h"

#include "common_error_handler.h"

#include <algorithm>
#include <iterator>

namespace {
// The control's place in an array of count controls; -1 where it has none or cannot be read.
qint32 placeOf(const HostControl *control, qint32 count) {
    try {
        const qint32 index = control == nullptr ? -1 : control->TabIndex();
        return index < count ? std::max(index, -1) : -1;
    } catch (const std::exception &) {
        return -1;
    }
}

bool isFocusable(const HostControl *control) {
    try {
        return control->Enabled() && control->Visible() && control->TabStop();
    } catch (const std::exception &) {
        return false;
    }
}
} // namespace

clsTabManager::clsTabManager(ErrorReport &errors) : mErrors(errors) {}

bool clsTabManager::ClassConstruct(const HostControls *CtlCollection) try {
    if (CtlCollection == nullptr)
        return false;
    ClassDeconstruct();
    const auto count = qint32(CtlCollection->size());
    std::vector<HostControl *> places(CtlCollection->size(), nullptr);
    for (HostControl *control : *CtlCollection) {
        if (const qint32 place = placeOf(control, count); place >= 0)
            places[std::size_t(place)] = control;
    }
    std::ranges::copy_if(places, std::back_inserter(mControls), [](const HostControl *control) { return control; });
    mConstructed = true;
    return true;
}
ERROR_TAIL(false)

void clsTabManager::ClassDeconstruct() {
    mControls.clear();
    mConstructed = false;
}

bool clsTabManager::ProcessEnterFocus() { return false; }

bool clsTabManager::ProcessExitFocus() { return true; }

HostControl *clsTabManager::GetLastFocusableTabStop() const {
    const auto found = std::find_if(mControls.rbegin(), mControls.rend(), &isFocusable);
    return found == mControls.rend() ? nullptr : *found;
}
