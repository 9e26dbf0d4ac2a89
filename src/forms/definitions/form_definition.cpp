#include "form_definition.h"

#include "control_classes.h"
#include "run_time_error.h"

namespace {
constexpr auto kNavigator = u"fldPageNavigator";

class TabOrder {
  public:
    void add(const ControlDefinition &control, const ControlDefinition *parent, int page) {
        mResult.push_back({&control, parent, page, int(mResult.size())});
        addAll(control.controls, &control, page);
    }
    void addAll(const std::vector<ControlDefinition> &controls, const ControlDefinition *parent, int page) {
        for (const ControlDefinition &control : controls)
            add(control, parent, page);
    }
    [[nodiscard]] std::vector<PlacedControl> take() { return std::move(mResult); }

  private:
    std::vector<PlacedControl> mResult;
};

// The record buttons of a navigator show by default only with slider style 2.
bool shownByStyle(const ControlDefinition &navigator, const QString &key) {
    return navigator.typeName == kNavigator && key.startsWith(u"Button") &&
           navigator.properties.value(QStringLiteral("SliderStyle")).toInt() == 2;
}
} // namespace

QVariant ControlDefinition::property(const QString &key) const {
    if (const auto stored = properties.constFind(key); stored != properties.constEnd())
        return *stored;
    const ControlClass *found = ControlClasses::find(typeName);
    const PropertyRule *rule = found == nullptr ? nullptr : found->property(key);
    if (rule == nullptr)
        throw RunTimeError(ErrorNumber::kCollectionKey, QStringLiteral("ControlDefinition"),
                           QStringLiteral("%1: a %2 has no property %3").arg(name, typeName, key));
    return shownByStyle(*this, key) ? QVariant(true) : rule->defaultValue;
}

QString ControlDefinition::caption() const {
    const ControlClass *found = ControlClasses::find(typeName);
    const QString key = QStringLiteral("Caption");
    return found != nullptr && found->property(key) != nullptr ? property(key).toString() : QString();
}

double ControlDefinition::labelWidthFactor() const {
    constexpr double kUsual = 0.6;
    const ControlClass *found = ControlClasses::find(typeName);
    const QString key = QStringLiteral("LabelWidthFactor");
    return found != nullptr && found->property(key) != nullptr ? property(key).toDouble() : kUsual;
}

QString ControlDefinition::id() const {
    const ControlClass *found = ControlClasses::find(typeName);
    const QString key = QStringLiteral("ID");
    return found != nullptr && found->property(key) != nullptr ? property(key).toString() : QString();
}

qint32 FormDefinition::helpId() const { return enabler.property(QStringLiteral("HelpID")).toInt(); }

std::vector<PlacedControl> FormDefinition::placedControls() const {
    TabOrder order;
    if (!pages.empty())
        order.add(tabControl, nullptr, -1);
    for (int page = 0; page < int(pages.size()); ++page)
        order.addAll(pages[size_t(page)].controls, &tabControl, page);
    for (const bool navigators : {false, true}) {
        for (const ControlDefinition &control : controls) {
            if ((control.typeName == kNavigator) == navigators)
                order.add(control, nullptr, -1);
        }
    }
    return order.take();
}
