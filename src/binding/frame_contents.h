#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

#include <QStringList>

// What stands inside a frame of the form, nested frames included.
class FrameContents : private EnablerPart {
  public:
    FrameContents(FormItems &items, const FieldServices &services);

    // Sliders, call-ups, triggers and labels do not count: a frame with nothing else is empty.
    [[nodiscard]] bool FrameHasVisibleFields(const HostControl &Frame);
    // Adds the drag payload "UIID|type|value" of each known, enabled and visible field.
    void GetFieldsInFrame(const HostControl &Frame, QStringList &colUIID);
    void Notify_GetFieldsInFrame(const ControlItemPtr &item, const FieldEvent &event);

  private:
    [[nodiscard]] HostControls controlsIn(const HostControl &frame) const;
};
