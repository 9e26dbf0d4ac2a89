#include "drag_payload.h"

#include <QStringList>

QString DragPayload::toText() const { return uiid + u'|' + typeName + u'|' + value; }

std::optional<DragPayload> DragPayload::fromText(const QString &text) {
    const QStringList parts = text.split(u'|');
    if (parts.size() != 3)
        return std::nullopt;
    return DragPayload{parts.at(0), parts.at(1), parts.at(2)};
}
