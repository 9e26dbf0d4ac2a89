#pragma once

#include <QHash>
#include <QtGlobal>

#include <optional>
#include <span>

// Which record of a table has an identity, kept from one question to the next. Its owner tells it of every change;
// what it cannot follow makes it read the table again at the next question.
class IdentityIndex {
  public:
    // The first record with the identity; nullopt when there is none. identities: the table's, in record order.
    [[nodiscard]] std::optional<qint32> find(qint32 identity, std::span<const qint32> identities);
    // A record was added behind the last one.
    void appended(qint32 identity, qint32 record);
    void changed(qint32 before, qint32 after, qint32 record);
    // Records have got other numbers.
    void forget() { mIsRead = false; }
    // It is no part of a table's values.
    bool operator==(const IdentityIndex & /*other*/) const { return true; }

  private:
    QHash<qint32, qint32> mRecords; // by identity
    bool mIsRead = false;
    bool mIsUnique = true; // no two records have one identity
};
