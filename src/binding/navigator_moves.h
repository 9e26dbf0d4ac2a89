#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

#include <QString>

class FieldInitialisation;
class FormValidation;

// The current record of a form: guards on leaving it, and every field of the stream following to the new one.
class NavigatorMoves : private EnablerPart {
  public:
    NavigatorMoves(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                   FormValidation &validation);

    // Binds the fields of the navigator's stream to its position and shows their values of that record.
    void Notify_ChangedPosition(const ControlItemPtr &item);
    // Stores the new position where the form is valid and the component takes it; else the grid goes back to the
    // stored record and the event's Result is false. A stored 0 means that there is no record to be left.
    void Notify_ChangedPositionStorage(const ControlItemPtr &item, const FieldEvent &event);
    // The navigators of a grid follow its row.
    void Notify_RowSelectionChanged(const ControlItemPtr &item, const FieldEvent &event);

  private:
    struct Move;
    void follow(const ControlItemPtr &item, const Move &move);
    void showRecord(const ControlItemPtr &item, qint32 position);
    void refreshEnabled(const ControlItemPtr &item, qint32 position);
    void followNavigator(const ControlItemPtr &item, const Move &move);
    [[nodiscard]] bool mayLeaveRecord(const QString &storageUIID, qint32 position);
    void moveGridBack(const ControlItemPtr &navigator, const QString &storageUIID);

    FieldInitialisation &mFields;
    FormValidation &mValidation;
};
