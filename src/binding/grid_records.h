#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

#include <functional>

class FieldInitialisation;
class Igrid;
class NavigatorRecords;
class XArrayDB;

// The record commands of a grid. Each ends with the navigators that are bound to the grid getting the new count.
class GridRecords : private EnablerPart {
  public:
    GridRecords(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                NavigatorRecords &navigators);

    // The bound navigators go to the new record.
    void Notify_AddRecord(const ControlItemPtr &item);
    void Notify_InsertRecord(const ControlItemPtr &item);
    void Notify_RepeatRecord(const ControlItemPtr &item);
    // The event's DeletedOK is true where the rows on show are right: the component renews them itself, or they have
    // been filled anew.
    void Notify_DeleteRecord(const ControlItemPtr &item, const FieldEvent &event);
    // Nothing without text on the clipboard.
    void Notify_ImportRecordByPaste(const ControlItemPtr &item, const FieldEvent &event);
    void Notify_ImportRecordByDrop(const ControlItemPtr &item, const FieldEvent &event);
    void Notify_SortColumnByUIID(const ControlItemPtr &item, const FieldEvent &event);

  private:
    // Reads the one row of a record and gives it to the grid, where the component has it.
    void fetchRow(const ControlItemPtr &item, qint32 record,
                  const std::function<void(Igrid &, const XArrayDB &)> &place);
    void refill(const ControlItemPtr &item);
    void refreshNavigators(const ControlItemPtr &item);

    FieldInitialisation &mFields;
    NavigatorRecords &mNavigators;
};
