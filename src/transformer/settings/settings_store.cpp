#include "settings_store.h"

#include "product_identity.h"
#include "value_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace {
constexpr int kLockWaitMs = 500;
} // namespace

SettingsStore::SettingsStore(QString fileName) : mFileName(std::move(fileName)) {
    if (!mFileName.isEmpty())
        load();
}

QString SettingsStore::defaultFileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + ProductIdentity::tag() +
           QStringLiteral("/settings.ini");
}

QVariant SettingsStore::value(const QString &key, const QVariant &fallback) const {
    const qsizetype index = SettingsText::indexOf(mEntries, key);
    return index < 0 ? fallback : QVariant(mEntries[index].second);
}

bool SettingsStore::setValue(const QString &key, const QVariant &value) {
    const QString plainKey = QString(key).remove(u'=').simplified();
    if (plainKey.isEmpty())
        return false;
    const bool shared = !mFileName.isEmpty() && !mReadOnly;
    if (shared)
        QDir().mkpath(QFileInfo(mFileName).path());
    QLockFile lock(mFileName + QStringLiteral(".lock"));
    if (shared && lock.tryLock(kLockWaitMs))
        load();
    const qsizetype index = SettingsText::indexOf(mEntries, plainKey);
    if (index < 0)
        mEntries.append({plainKey, ValueText::of(value)});
    else
        mEntries[index].second = ValueText::of(value);
    return shared ? write() : mFileName.isEmpty();
}

void SettingsStore::load() {
    QFile file(mFileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const std::optional<SettingsText::Entries> entries = SettingsText::read(file.readAll());
    file.close();
    if (entries)
        mEntries = *entries;
    else
        putAside();
}

void SettingsStore::putAside() {
    const QFileInfo info(mFileName);
    const QString base = info.path() + u'/' + info.completeBaseName() + QStringLiteral("-damaged");
    QString name = base + QStringLiteral(".ini");
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = base + QStringLiteral("-%1.ini").arg(i);
    mReadOnly = !QFile::rename(mFileName, name);
    mDamagedFileName = mReadOnly ? mFileName : name;
}

bool SettingsStore::write() const {
    QSaveFile file(mFileName);
    const QByteArray text = SettingsText::write(mEntries);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush() && file.commit();
}
