#include "entered_fields.h"

#include <algorithm>

QWidget *EnteredFields::windowOf(QWidget *widget) {
    QWidget *window = widget->window();
    while ((window->windowFlags() & Qt::WindowType_Mask) == Qt::Popup && window->parentWidget() != nullptr)
        window = window->parentWidget()->window();
    return window;
}

QWidget *EnteredFields::in(const QWidget *window) const {
    const auto found =
        std::find_if(mEntries.begin(), mEntries.end(), [window](const Entry &entry) { return entry.window == window; });
    return found == mEntries.end() ? nullptr : found->field.data();
}

void EnteredFields::set(QWidget *window, QWidget *field) {
    std::erase_if(mEntries, [window](const Entry &entry) { return entry.window.isNull() || entry.window == window; });
    if (field != nullptr)
        mEntries.push_back({window, field});
}
