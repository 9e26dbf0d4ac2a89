#pragma once

#include <QString>
#include <QVariant>

#include <span>

// What a control class stores in a form's definition: its keys, their types and their defaults.

enum class PropertyType { Text, Whole, Factor, Flag }; // Factor: a number from 0 to 1

struct PropertyRule {
    QString key;
    PropertyType type;
    QVariant defaultValue;
};

struct ControlClass {
    QString name;
    bool holdsControls; // a frame or a page's tab control
    std::span<const PropertyRule> properties;

    // Null if the class stores no such key. Keys are compared with regard to case.
    [[nodiscard]] const PropertyRule *property(const QString &key) const;
};

namespace ControlClasses {
// Null for an unknown class. The enabler ("ctlFormEnabler") and the tab control ("SSTab") are classes too, but no
// controls that a list of controls may hold.
[[nodiscard]] const ControlClass *find(const QString &name);
// A class whose controls carry a data model value: text, combo, checkbox, ID tracker and slider fields.
[[nodiscard]] bool isField(const QString &name);
// "fldFrame" and "Frame".
[[nodiscard]] bool isFrame(const QString &name);
} // namespace ControlClasses
