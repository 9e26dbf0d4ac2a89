#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

// One JSON object of the dictionary, read with checks. Every complaint names the file, the owner (a field's id, a
// structure's name) and the key, and is raised as a RunTimeError.
class JsonReader {
  public:
    JsonReader(QString file, QString owner, QJsonObject object);

    // Refuses keys that are not among the known ones.
    void allow(std::span<const QLatin1StringView> known) const;
    [[noreturn]] void refuse(QLatin1StringView key, const QString &what) const;

    [[nodiscard]] bool has(QLatin1StringView key) const { return mObject.contains(key); }
    [[nodiscard]] QJsonValue value(QLatin1StringView key) const { return mObject.value(key); }
    [[nodiscard]] QStringList keys() const { return mObject.keys(); }
    [[nodiscard]] QJsonValue value(const QString &key) const { return mObject.value(key); }
    // Missing is refused; the wrong type always is.
    [[nodiscard]] QString text(QLatin1StringView key) const;
    [[nodiscard]] qint32 integer(QLatin1StringView key) const;
    [[nodiscard]] QJsonArray array(QLatin1StringView key) const;
    // Missing gives the fallback.
    [[nodiscard]] QString textOr(QLatin1StringView key, const QString &fallback) const;
    [[nodiscard]] qint32 integerOr(QLatin1StringView key, qint32 fallback) const;
    [[nodiscard]] bool flag(QLatin1StringView key) const; // false
    [[nodiscard]] QJsonArray arrayOrEmpty(QLatin1StringView key) const;
    [[nodiscard]] QStringList texts(QLatin1StringView key) const; // a text counts as an array of one; empty
    [[nodiscard]] JsonReader object(QLatin1StringView key) const;
    // The objects of an array, read on behalf of the same owner.
    [[nodiscard]] JsonReader nested(QLatin1StringView key, const QJsonValue &value) const;

    // A number in shown units as a whole number of 10^-decimals units.
    [[nodiscard]] qint32 scaled(QLatin1StringView key, const QJsonValue &value, qint32 decimals) const;

    [[nodiscard]] const QString &file() const { return mFile; }
    void setOwner(const QString &owner) { mOwner = owner; }

  private:
    [[nodiscard]] QJsonValue required(QLatin1StringView key) const;

    QString mFile;
    QString mOwner;
    QJsonObject mObject;
};
