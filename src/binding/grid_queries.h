#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

class XArrayDB;

// What a grid asks of the component through its events. Lists and labels come back translated.
class GridQueries : private EnablerPart {
  public:
    GridQueries(FormItems &items, const FieldServices &services);

    void Notify_GetComboItems(const FieldEvent &event);
    void Notify_GetIDItems(const FieldEvent &event);
    void Notify_GetValidationString(const ControlItemPtr &item, const FieldEvent &event);
    void Notify_GetLabel(const FieldEvent &event);
    void Notify_SetProviderUpdateUIOnFieldChange(bool blnNewVal);

  private:
    void translateTexts(XArrayDB &list) const;
};
