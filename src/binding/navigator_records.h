#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

class FieldInitialisation;

// The record commands of a navigator that has no grid to do them.
class NavigatorRecords : private EnablerPart {
  public:
    NavigatorRecords(FormItems &items, const FieldServices &services, FieldInitialisation &fields);

    void Notify_AddRecordNavigator(const ControlItemPtr &item, const FieldEvent &event);
    void Notify_InsertRecordNavigator(const ControlItemPtr &item, const FieldEvent &event);
    void Notify_RepeatRecordNavigator(const ControlItemPtr &item, const FieldEvent &event);
    // The event's Result is true whatever happens.
    void Notify_DeleteRecordNavigator(const ControlItemPtr &item, const FieldEvent &event);

    // Asks the component for the number of records.
    void refreshCount(const ControlItemPtr &navigator);
    // After a delete: shows what now stands at the old position, or at the end; with no record left all fields of the
    // navigator's stream are disabled, navigators excepted.
    void moveAfterDelete(const ControlItemPtr &navigator, qint32 oldPosition);

  private:
    void disableStream(qint32 stream);

    FieldInitialisation &mFields;
};
