#include "navigator_watch.h"

#include "cls_control_item.h"
#include "inavigator.h"

#include <utility>

NavigatorWatch::NavigatorWatch(HostControl &navigator, std::function<void()> moved)
    : mNavigator(navigator), mItem(navigator.object()->Ifield_WrapperCtrlItem()), mMoved(std::move(moved)) {
    mNavigator.SetListener(this);
}

NavigatorWatch::~NavigatorWatch() {
    const auto item = mItem.lock();
    mNavigator.SetListener(item == nullptr || item->Terminated() ? nullptr : item.get());
}

bool NavigatorWatch::isNavigator(const HostControl &control) {
    return dynamic_cast<Inavigator *>(control.object()) != nullptr;
}

void NavigatorWatch::frmField_GotFocus() {
    if (const auto item = mItem.lock())
        item->frmField_GotFocus();
}

void NavigatorWatch::frmField_LostFocus() {
    if (const auto item = mItem.lock())
        item->frmField_LostFocus();
}

void NavigatorWatch::frmField_Validate(bool &Cancel) {
    if (const auto item = mItem.lock())
        item->frmField_Validate(Cancel);
}

void NavigatorWatch::frmField_ObjectEvent(const FieldEvent &Event) {
    const auto item = mItem.lock();
    if (item == nullptr)
        return;
    item->frmField_ObjectEvent(Event);
    if (Event.name() == u"ChangedPosition" && !item->Terminated())
        mMoved();
}
