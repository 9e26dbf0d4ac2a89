#include "restore_points.h"

#include "whole_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

RestorePoints::RestorePoints(QString folder) : mFolder(std::move(folder)) {}

QString RestorePoints::store(const QString &serialNumber, const QByteArray &dataFile) const {
    const QString folder = mFolder + u'/' + serialNumber;
    QDir().mkpath(folder);
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'"));
    QString path = folder + u'/' + stamp + QStringLiteral(".k4p");
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = folder + u'/' + stamp + u'-' + QString::number(i) + QStringLiteral(".k4p");
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
