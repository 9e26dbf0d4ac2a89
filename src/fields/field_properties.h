#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

// The stored properties of one control of a form definition, by their persisted names. A value equal to its class
// default is left out. File and control stand in every complaint.
struct FieldProperties {
    QString file;
    QString control;
    QVariantMap values;
};

// Takes a control's properties one by one. What is left over at the end, or has a wrong type, is refused.
class PropertyReader {
  public:
    explicit PropertyReader(const FieldProperties &properties) : mProperties(properties), mLeft(properties.values) {}

    // Each raises error 13, naming file, control and key, when the stored value has another type.
    [[nodiscard]] QString text(const QString &key, const QString &defaultValue);
    [[nodiscard]] bool flag(const QString &key, bool defaultValue);
    [[nodiscard]] double real(const QString &key, double defaultValue);
    // A whole number, or its decimal text.
    [[nodiscard]] qint32 integer(const QString &key, qint32 defaultValue);

    // Raises error 5, naming file, control and key, if a key was not asked for.
    void refuseUnknown() const;

  private:
    [[nodiscard]] std::optional<QVariant> take(const QString &key);
    [[noreturn]] void raise(qint32 number, const QString &key, const QString &complaint) const;

    const FieldProperties &mProperties;
    QVariantMap mLeft;
};
