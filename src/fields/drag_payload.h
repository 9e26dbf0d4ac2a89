#pragma once

#include <QString>

#include <optional>

// What one field hands to a drag, as text: "<UIID>|<type name>|<value>".
struct DragPayload {
    QString uiid;
    QString typeName;
    QString value;

    [[nodiscard]] QString toText() const;
    // Nothing unless text has exactly three parts; a value with a bar in it makes four.
    [[nodiscard]] static std::optional<DragPayload> fromText(const QString &text);
};
