#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

#include <QString>
#include <QVariant>

class FieldInitialisation;

// Shows what the component changes, often from inside a call of the enabler. Nothing here counts as an edit.
class ComponentUpdates : private EnablerPart {
  public:
    ComponentUpdates(FormItems &items, const FieldServices &services, FieldInitialisation &fields);

    // Every field of this UIID and record shows Value; grids take it for their column, navigators as their position.
    void Ienabler_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value);
    void Ienabler_RefreshGridByUIID(const QString &UIID);
    // The first field of this UIID, and each grid with such a column. An invisible field stays so.
    void Ienabler_SetEnableDisableByUIID(const QString &UIID, bool Enabled);
    void Ienabler_UIIDNotFound(const QString &UIID);

  private:
    struct Update;
    static void updateGrid(const ControlItemPtr &item, const Update &update);
    static void updateNavigator(const ControlItemPtr &item, const Update &update);
    static void updateField(const ControlItemPtr &item, const Update &update);

    FieldInitialisation &mFields;
};
