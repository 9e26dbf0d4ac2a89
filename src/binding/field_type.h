#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

// The control types that the binding layer tells apart; Other is every control that it leaves alone.
enum class FieldType {
    Text,
    Combo,
    Checkbox,
    OptionButton,
    IdTracker,
    Slider,
    Grid,
    PageNavigator,
    Frame,      // fldFrame
    PlainFrame, // Frame
    Tab,        // SSTab
    Other
};

// The type of a control's type name ("fldTextField" ...), compared case-sensitively.
[[nodiscard]] FieldType fieldTypeOf(QStringView typeName);
[[nodiscard]] bool isOneOf(FieldType type, std::initializer_list<FieldType> types);
