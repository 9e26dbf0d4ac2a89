#pragma once

#include "host_control.h"

#include <functional>
#include <memory>

class clsControlItem;

// Stands between a navigator and its item, and tells of each new position after the fields have taken it. Passes every
// event on. Ends when it is destroyed, while the navigator's host is still there.
class NavigatorWatch final : public HostEvents {
  public:
    // navigator is a field that already has its item. moved is not called for a form that was closed by the move.
    NavigatorWatch(HostControl &navigator, std::function<void()> moved);
    ~NavigatorWatch() override;
    Q_DISABLE_COPY_MOVE(NavigatorWatch)

    // Whether that control is a navigator.
    [[nodiscard]] static bool isNavigator(const HostControl &control);

    void frmField_GotFocus() override;
    void frmField_LostFocus() override;
    void frmField_Validate(bool &Cancel) override;
    void frmField_ObjectEvent(const FieldEvent &Event) override;

  private:
    HostControl &mNavigator;
    std::weak_ptr<clsControlItem> mItem;
    std::function<void()> mMoved;
};
