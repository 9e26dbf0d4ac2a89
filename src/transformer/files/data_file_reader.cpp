#include "data_file_reader.h"

#include "file_kind.h"
#include "file_problem.h"
#include "sealed_text.h"
#include "tier_json_reader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVersionNumber>

#include <utility>

namespace {
constexpr QByteArrayView kHeaderStart = "\"header\": ";
const QStringList kHeaderKeys = {QStringLiteral("formatVersion"),      QStringLiteral("tier"),
                                 QStringLiteral("radioModel"),         QStringLiteral("databaseVersion"),
                                 QStringLiteral("applicationVersion"), QStringLiteral("date"),
                                 QStringLiteral("networks"),           QStringLiteral("comment")};
const QStringList kTopKeys = {QStringLiteral("format"), QStringLiteral("header"), QStringLiteral("tiers"),
                              QStringLiteral("sha256")};

QJsonObject without(QJsonObject object, const QStringList &keys) {
    for (const QString &key : keys)
        object.remove(key);
    return object;
}
} // namespace

DataFileReader::DataFileReader(const Dictionary &dictionary, QString path)
    : mDictionary(dictionary), mPath(std::move(path)) {}

DataFileHeader DataFileReader::readHeader(const QByteArray &text) const { return checkedHeader(headerObject(text)); }

QJsonObject DataFileReader::headerObject(const QByteArray &text) const {
    FileKinds::requireData(mPath, text);
    const qsizetype start = FileKinds::kDataStart.size();
    const qsizetype end = text.indexOf('\n', start);
    const QByteArray line = text.mid(start, end < 0 ? 0 : end - start);
    if (!line.startsWith(kHeaderStart) || !line.endsWith(','))
        damaged(QStringLiteral("its header is missing"));
    const QJsonDocument document = QJsonDocument::fromJson(line.sliced(kHeaderStart.size()).chopped(1));
    if (!document.isObject())
        damaged(QStringLiteral("its header cannot be understood"));
    return document.object();
}

DataFileHeader DataFileReader::checkedHeader(const QJsonObject &object) const {
    const auto text = [&object](const char *key) { return object.value(QLatin1StringView(key)).toString(); };
    DataFileHeader header{.formatVersion = object.value(QStringLiteral("formatVersion")).toInt(),
                          .tier = text("tier"),
                          .radioModel = text("radioModel"),
                          .databaseVersion = text("databaseVersion"),
                          .applicationVersion = text("applicationVersion"),
                          .date = text("date"),
                          .networks = object.value(QStringLiteral("networks")).toInt(),
                          .comment = text("comment")};
    if (header.formatVersion < 1)
        damaged(QStringLiteral("its header names no format version"));
    if (header.formatVersion > DataDocuments::kFormatVersion)
        throw FileProblem(
            QStringLiteral("The file %0:S has the format version %1:S. This program reads versions up to "
                           "%2:S; open it with a newer one."),
            {mPath, QString::number(header.formatVersion), QString::number(DataDocuments::kFormatVersion)});
    checkVersion(header.databaseVersion);
    return header;
}

void DataFileReader::checkVersion(const QString &databaseVersion) const {
    if (mDictionary.versionLevelByName(databaseVersion))
        return;
    const QString newest = mDictionary.versions().back().name;
    if (QVersionNumber::fromString(databaseVersion) > QVersionNumber::fromString(newest))
        throw FileProblem(QStringLiteral("The file %0:S has the database version %1:S. This program knows versions up "
                                         "to %2:S; open it with a newer one."),
                          {mPath, databaseVersion, newest});
    damaged(QStringLiteral("its database version is unknown"));
}

DataDocument DataFileReader::read(const QByteArray &text) const {
    const QJsonObject headerJson = headerObject(text);
    const DataFileHeader header = checkedHeader(headerJson);
    if (!SealedText::isIntact(text))
        damaged(QStringLiteral("its content does not fit its checksum"));
    return parse(text, headerJson, header.tier);
}

DataDocument DataFileReader::readJustSealed(const QByteArray &text) const {
    const QJsonObject headerJson = headerObject(text);
    return parse(text, headerJson, checkedHeader(headerJson).tier);
}

DataDocument DataFileReader::parse(const QByteArray &text, const QJsonObject &headerJson,
                                   const QString &currentTier) const {
    QJsonParseError error{};
    const QJsonObject top = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        damaged(QStringLiteral("its text is broken at byte %1").arg(error.offset));
    const std::optional<TierIndex> current = mDictionary.tierByKey(currentTier);
    const QJsonObject tiers = top.value(QStringLiteral("tiers")).toObject();
    if (!current || !tiers.contains(currentTier))
        damaged(QStringLiteral("the values of its radio model are missing"));

    DataDocument document(mDictionary);
    document.data.setCurrentTier(*current);
    document.unknown.header = without(headerJson, kHeaderKeys);
    document.unknown.top = without(top, kTopKeys);
    for (auto entry = tiers.constBegin(); entry != tiers.constEnd(); ++entry) {
        const std::optional<TierIndex> tier = mDictionary.tierByKey(entry.key());
        if (!tier) {
            document.unknown.tiers.insert(entry.key(), entry.value());
            continue;
        }
        const QJsonObject object = entry.value().toObject();
        checkVersion(object.value(QStringLiteral("databaseVersion")).toString());
        try {
            TierJsonReader(mDictionary, *tier).read(object, document);
        } catch (const RunTimeError &fault) {
            damaged(fault.Description);
        }
    }
    return document;
}

void DataFileReader::damaged(const QString &reason) const {
    throw FileProblem(QStringLiteral("The file %0:S is damaged and was not opened: %1:S."), {mPath, reason});
}
