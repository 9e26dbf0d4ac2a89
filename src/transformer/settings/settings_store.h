#pragma once

#include "settings_text.h"

#include <QString>
#include <QVariant>

// The settings of one user: texts by key, in one file that all running windows share. Keys are compared without regard
// to case.
class SettingsStore {
  public:
    // An empty name: kept in memory only, nothing is read or written.
    explicit SettingsStore(QString fileName);

    // "KX4600/settings.ini" in the user's configuration folder.
    [[nodiscard]] static QString defaultFileName();

    // The stored text, or fallback itself where nothing is stored.
    [[nodiscard]] QVariant value(const QString &key, const QVariant &fallback) const;
    // Written at once. Another window's changes since the last read are kept. An empty key is passed over. False: the
    // file could not be written; the value still holds for this run.
    bool setValue(const QString &key, const QVariant &value);

    // Where a damaged file was put aside; empty if the file was sound.
    [[nodiscard]] const QString &damagedFileName() const { return mDamagedFileName; }

  private:
    void load();
    void putAside();
    [[nodiscard]] bool write() const;

    QString mFileName;
    QString mDamagedFileName;
    // A damaged file that could not be put aside is left alone: nothing is written over it.
    bool mReadOnly = false;
    SettingsText::Entries mEntries;
};
