#include "field_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {
struct Row {
    const char *className;
    QAccessible::Role role;
};
constexpr std::array kRoles{Row{"fldFrame", QAccessible::Grouping}, Row{"FrameBorder", QAccessible::Border},
                            Row{"QTabWidget", QAccessible::Pane}};

QAccessibleInterface *makeInterface(const QString &className, QObject *object) {
    const auto *const row = std::find_if(kRoles.begin(), kRoles.end(), [&className](const Row &known) {
        return className == QLatin1String(known.className);
    });
    if (row == kRoles.end() || object == nullptr || !object->isWidgetType())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), row->role);
}
} // namespace

void FieldAccessibility::install() { QAccessible::installFactory(&makeInterface); }
