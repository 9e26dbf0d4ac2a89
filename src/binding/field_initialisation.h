#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

#include <QVariant>

class XArrayDB;

// Fills one field from the component: label, list, value, enabled state, width and help number, each read fresh.
class FieldInitialisation : private EnablerPart {
  public:
    FieldInitialisation(FormItems &items, const FieldServices &services);

    // The steps of the field's type, in their order; nothing for a type that has none.
    void InitialiseField(const ControlItemPtr &item);
    // The component's label, or the caption of the design where that is empty; translated.
    QVariant SetFieldLabel(const ControlItemPtr &item);
    // The same for a navigator: label, "|", record name.
    QVariant SetNavFieldLabel(const ControlItemPtr &item);
    // The one place that decides a field's visibility by version: a field above the data's level is hidden, or greyed
    // where the component says so; any other is enabled as the component answers.
    void SetEnabledProperty(const ControlItemPtr &item);
    // Fills the whole grid anew.
    void PopulateGrid(const ControlItemPtr &item);

  private:
    using Step = void (FieldInitialisation::*)(const ControlItemPtr &);
    struct TypeSteps;
    static const TypeSteps kTypeSteps[];

    void label(const ControlItemPtr &item);
    void textValue(const ControlItemPtr &item);
    void checkValue(const ControlItemPtr &item);
    void comboItems(const ControlItemPtr &item);
    void comboIndex(const ControlItemPtr &item);
    void numericValue(const ControlItemPtr &item);
    void idValue(const ControlItemPtr &item);
    void sliderMin(const ControlItemPtr &item);
    void sliderMax(const ControlItemPtr &item);
    void sliderStep(const ControlItemPtr &item);
    void sliderEnabled(const ControlItemPtr &item);
    void width(const ControlItemPtr &item);
    void help(const ControlItemPtr &item);
    void gridContent(const ControlItemPtr &item);
    void navigator(const ControlItemPtr &item);

    void disable(const ControlItemPtr &item);
    void enableUnlessUndefined(const ControlItemPtr &item, const QVariant &value);
    void fillIdItems(clsControlItem &item, const XArrayDB &list) const;
    void addMissingId(clsControlItem &item, const XArrayDB &list, const QVariant &value) const;
};
