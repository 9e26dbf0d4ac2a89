#pragma once

#include "twips.h"

class HostEvents;
class Ifield;

// What a control's host needs of it beside its being a widget. Controls that do not fill this (the tab control, plain
// frames) are treated as plain widgets.
class HostedControl {
  public:
    virtual ~HostedControl() = default;

    // Null where the control is no field.
    [[nodiscard]] virtual Ifield *AsField() = 0;
    // Who hears the control's events; null for none. Not owned.
    virtual void SetHostEvents(HostEvents *listener) = 0;
    // Lays the control out and returns the size that it took: some kinds decide their own height, and a caption that
    // needs two lines makes a field higher. The widget's own size follows.
    virtual TwipSize SetControlSize(const TwipSize &size) = 0;
    // The logical state, whatever the inner parts show.
    [[nodiscard]] virtual bool ControlEnabled() const = 0;
    // True: the inner parts are reached by Tab. False: by a click only.
    [[nodiscard]] virtual bool TabStop() const = 0;
    virtual void SetTabStop(bool tabStop) = 0;
    virtual void FocusControl() = 0;
};
