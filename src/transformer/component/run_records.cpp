#include "run_records.h"

#include "file_problem.h"
#include "whole_file.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {
const QString kPrefix = QStringLiteral("run-");
const QString kSuffix = QStringLiteral(".json");
const QString kOld = QStringLiteral("oldContent");
const QString kNew = QStringLiteral("newContent");
} // namespace

RunRecords::RunRecords(QString folder) : mFolder(std::move(folder)) {}

QString RunRecords::path(const QString &serialNumber) const {
    return mFolder + u'/' + kPrefix + serialNumber + kSuffix;
}

void RunRecords::store(const RunRecord &record) const {
    QDir().mkpath(mFolder);
    const QJsonObject object{{kOld, qint64(record.oldContent)}, {kNew, qint64(record.newContent)}};
    WholeFile::replace(path(record.serialNumber), QJsonDocument(object).toJson());
}

std::optional<RunRecord> RunRecords::of(const QString &serialNumber) const {
    if (!QFile::exists(path(serialNumber)))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(WholeFile::read(path(serialNumber))).object();
    return RunRecord{.serialNumber = serialNumber,
                     .oldContent = quint32(object.value(kOld).toInteger()),
                     .newContent = quint32(object.value(kNew).toInteger())};
}

QStringList RunRecords::serialNumbers() const {
    QStringList numbers;
    for (const QString &name : QDir(mFolder).entryList({kPrefix + u'*' + kSuffix}, QDir::Files, QDir::Name))
        numbers.append(name.sliced(kPrefix.size()).chopped(kSuffix.size()));
    return numbers;
}

void RunRecords::remove(const QString &serialNumber) const { QFile::remove(path(serialNumber)); }
