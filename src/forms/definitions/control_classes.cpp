#include "control_classes.h"

#include <algorithm>
#include <array>

namespace {
using enum PropertyType;

PropertyRule text(const char16_t *key, const char16_t *value = u"") {
    return {QString::fromUtf16(key), Text, QString::fromUtf16(value)};
}
PropertyRule whole(const char16_t *key, int value = 0) { return {QString::fromUtf16(key), Whole, value}; }
PropertyRule factor(const char16_t *key, double value) { return {QString::fromUtf16(key), Factor, value}; }
PropertyRule flag(const char16_t *key, bool value) { return {QString::fromUtf16(key), Flag, value}; }

const std::array kTextField{text(u"Caption", u"TextField"), text(u"Text", u"Text1"),   text(u"Text2", u"Text2"),
                            text(u"ID", u"Undefined"),      whole(u"NavigatorStream"), factor(u"LabelWidthFactor", 0.6),
                            flag(u"DynamicHeight", false),  flag(u"ReadOnly", false),  flag(u"Enabled", true)};
const std::array kComboField{text(u"Caption", u"Field"),       text(u"ID", u"Undefined"), text(u"List0"),
                             factor(u"LabelWidthFactor", 0.6), flag(u"Enabled", true),    text(u"ComboIndex"),
                             whole(u"NavigatorStream")};
const std::array kCheckboxField{whole(u"Value"),           text(u"Caption", u"Field"),
                                text(u"ID", u"Undefined"), factor(u"LabelWidthFactor", 0.6),
                                flag(u"Enabled", true),    whole(u"NavigatorStream")};
const std::array kIdTrackerField{
    text(u"Caption", u"Field"),       text(u"ID", u"Undefined"), text(u"List0"),
    factor(u"LabelWidthFactor", 0.6), flag(u"Enabled", true),    whole(u"NavigatorStream")};
const std::array kSliderField{text(u"Caption", u"Field"),       text(u"ID", u"Undefined"), whole(u"NavigatorStream"),
                              factor(u"LabelWidthFactor", 0.2), whole(u"Value"),           whole(u"RecordNumber"),
                              factor(u"SafetyMargin", 1.0),     flag(u"Visible", true),    flag(u"Enabled", false)};
const std::array kFrame{flag(u"Enabled", true),          text(u"Font"),
                        text(u"Caption", u"Field"),      whole(u"WhatsThisHelpID"),
                        text(u"ID", u"Undefined"),       flag(u"HideThisFrame", false),
                        factor(u"LabelWidthFactor", 0.6)};
const std::array kPlainFrame{text(u"Caption")};
const std::array kGridField{flag(u"ButtonAdd", true),
                            flag(u"ButtonInsert", true),
                            flag(u"ButtonRepeat", true),
                            flag(u"ButtonDelete", true),
                            flag(u"ButtonImport", true),
                            flag(u"Dynamic", false),
                            text(u"Fields"),
                            text(u"ID", u"Undefined"),
                            flag(u"Enabled", true),
                            flag(u"ReadOnly", false),
                            flag(u"RequiresSortBeforeAdd", false),
                            flag(u"Sortable", true)};
// The defaults of the record buttons are those of the slider styles 0 and 1; ControlDefinition::property() knows
// style 2.
const std::array kPageNavigator{whole(u"NavigatorStream"),    text(u"GridID"),
                                text(u"GuideUIID"),           text(u"PositionStorageUIID"),
                                whole(u"GotoNumber", 1),      whole(u"SliderStyle"),
                                flag(u"ButtonAdd", false),    flag(u"ButtonInsert", false),
                                flag(u"ButtonRepeat", false), flag(u"ButtonDelete", false),
                                text(u"GridControl"),         text(u"SubNavigator"),
                                flag(u"Enabled", true)};
const std::array kSubFormCallUp{text(u"SubFormControlName"), text(u"SubFormDescription"), whole(u"SubFormRecordNr"),
                                text(u"Caption", u"Details")};
const std::array kTrigger{text(u"Caption", u"Execute"), text(u"ID", u"Undefined")};
const std::array kEnabler{text(u"Caption", u"Frame1"), whole(u"HelpID")};

const std::array kClasses{
    ControlClass{QStringLiteral("fldTextField"), false, kTextField},
    ControlClass{QStringLiteral("fldComboField"), false, kComboField},
    ControlClass{QStringLiteral("fldCheckboxField"), false, kCheckboxField},
    ControlClass{QStringLiteral("fldIdTrackerField"), false, kIdTrackerField},
    ControlClass{QStringLiteral("fldSliderField"), false, kSliderField},
    ControlClass{QStringLiteral("fldFrame"), true, kFrame},
    ControlClass{QStringLiteral("Frame"), true, kPlainFrame},
    ControlClass{QStringLiteral("fldGridField"), false, kGridField},
    ControlClass{QStringLiteral("fldPageNavigator"), false, kPageNavigator},
    ControlClass{QStringLiteral("fldSubFormCallUp"), false, kSubFormCallUp},
    ControlClass{QStringLiteral("fldTrigger"), false, kTrigger},
    ControlClass{QStringLiteral("SSTab"), true, {}},
    ControlClass{QStringLiteral("ctlFormEnabler"), false, kEnabler},
};
constexpr std::size_t kFieldClasses = 5; // the first of kClasses
} // namespace

const PropertyRule *ControlClass::property(const QString &key) const {
    const auto rule = std::ranges::find(properties, key, &PropertyRule::key);
    return rule == properties.end() ? nullptr : &*rule;
}

namespace ControlClasses {
const ControlClass *find(const QString &name) {
    const auto found = std::ranges::find(kClasses, name, &ControlClass::name);
    return found == kClasses.end() ? nullptr : &*found;
}

bool isField(const QString &name) {
    const ControlClass *found = find(name);
    return found != nullptr && found < kClasses.data() + kFieldClasses;
}

bool isFrame(const QString &name) { return name == u"fldFrame" || name == u"Frame"; }
} // namespace ControlClasses
