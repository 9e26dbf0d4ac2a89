#include "form_items.h"

#include "common_error_handler.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
const HostControls kNoControls;
}

Ifield *fieldOf(const HostControl *control) {
    try {
        return control == nullptr ? nullptr : control->object();
    } catch (const std::exception &) {
        return nullptr; // a control without an object
    }
}

FormItems::FormItems(const HostControls &controls, const FieldServices &services,
                     std::function<HostControl *()> activeControl)
    : mControls(&controls), mServices(services), mErrors(services.errors), mActiveControl(std::move(activeControl)) {}

void FormItems::AccessControls(const std::shared_ptr<ctlFormEnabler> &enabler) try {
    for (const ControlItemPtr &item : std::exchange(mcolControlItems, {}))
        item->Class_Terminate();
    for (HostControl *control : controls()) {
        Ifield *const field = fieldOf(control);
        if (field == nullptr)
            continue;
        const auto item = std::make_shared<clsControlItem>(mServices);
        mcolControlItems.push_back(item);
        item->Init(*control, enabler);
        item->FieldTypeName(control->TypeName());
        field->Ifield_WrapperCtrlItem(item);
    }
}
ERROR_TAIL()

void FormItems::UserControl_Terminate() try {
    mControls = nullptr;
    mActiveControl = nullptr;
    for (const ControlItemPtr &item : std::exchange(mcolControlItems, {}))
        item->Class_Terminate();
}
ERROR_TAIL()

ControlItemPtr FormItems::Ienabler_GetActiveControl() try {
    const Ifield *const field = fieldOf(mActiveControl ? mActiveControl() : nullptr);
    return field == nullptr ? nullptr : field->Ifield_WrapperCtrlItem();
}
ERROR_TAIL(nullptr)

const HostControls &FormItems::controls() const { return mControls == nullptr ? kNoControls : *mControls; }

std::vector<ControlItemPtr> FormItems::ofType(FieldType type) const {
    std::vector<ControlItemPtr> result;
    std::ranges::copy_if(mcolControlItems, std::back_inserter(result),
                         [type](const ControlItemPtr &item) { return item->Type() == type; });
    return result;
}

Igrid *FormItems::gridOf(const clsControlItem &navigator) const {
    const QString name = navigator.as<Inavigator>().Inavigator_GridControl();
    if (name.isEmpty())
        return nullptr;
    const auto named = [&name](const ControlItemPtr &item) { return item->Control().Name() == name; };
    const auto found = std::ranges::find_if(mcolControlItems, named);
    return found == mcolControlItems.end() ? nullptr : dynamic_cast<Igrid *>(&(*found)->Field());
}

std::vector<ControlItemPtr> FormItems::navigatorsOf(const Igrid &grid) const {
    std::vector<ControlItemPtr> result;
    for (const ControlItemPtr &item : ofType(FieldType::PageNavigator)) {
        const Igrid *const bound = gridOf(*item);
        if (bound != nullptr && bound->Igrid_GetGridID() == grid.Igrid_GetGridID())
            result.push_back(item);
    }
    return result;
}
