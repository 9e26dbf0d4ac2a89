#include "restore_points.h"

#include "whole_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {
const QString kStamp = QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'");
} // namespace

RestorePoints::RestorePoints(QString folder) : mFolder(std::move(folder)) {}

QString RestorePoints::store(const QString &serialNumber, const QByteArray &dataFile) const {
    const QString folder = mFolder + u'/' + serialNumber;
    QDir().mkpath(folder);
    // Always behind the newest one, also within one millisecond and after the clock was set back: names are the order.
    QDateTime time = QDateTime::currentDateTimeUtc();
    const QStringList kept = of(serialNumber);
    if (!kept.isEmpty()) {
        QDateTime newest = QDateTime::fromString(QFileInfo(kept.first()).completeBaseName(), kStamp);
        newest.setTimeSpec(Qt::UTC);
        if (newest.isValid() && newest >= time)
            time = newest.addMSecs(1);
    }
    QString path = folder + u'/' + time.toString(kStamp) + QStringLiteral(".k4p");
    WholeFile::replace(path, dataFile);
    for (const QString &old : of(serialNumber).mid(kKept))
        QFile::remove(old);
    return path;
}

QStringList RestorePoints::serialNumbers() const {
    return QDir(mFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QStringList RestorePoints::of(const QString &serialNumber) const {
    QStringList paths;
    for (const QString &name : QDir(mFolder + u'/' + serialNumber)
                                   .entryList({QStringLiteral("*.k4p")}, QDir::Files, QDir::Name | QDir::Reversed))
        paths.append(mFolder + u'/' + serialNumber + u'/' + name);
    return paths;
}
