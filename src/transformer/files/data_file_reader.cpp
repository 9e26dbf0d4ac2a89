#include "data_file_reader.h"

#include "file_kind.h"
#include "file_problem.h"
#include "json_text.h"
#include "sealed_text.h"
#include "tier_json_reader.h"
#include "translation.h"

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
constexpr QByteArrayView kTiersKey = "tiers";
const QStringList kOtherTopKeys = {QStringLiteral("format"), QStringLiteral("header"), QStringLiteral("sha256")};

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
    if (const std::optional<qsizetype> fault = JsonText::fault(text))
        damaged(Translation::Piece(QStringLiteral("its text is broken at byte %0:S"), {QString::number(*fault)}));
    if (!text.isValidUtf8())
        damaged(QStringLiteral("its text is not UTF-8"));
    DataDocument document(mDictionary);
    document.unknown.header = without(headerJson, kHeaderKeys);
    QByteArrayView tiers;
    JsonParts parts(text);
    while (const std::optional<JsonParts::Part> part = parts.next()) {
        if (part->key == kTiersKey)
            tiers = part->value;
        else if (!kOtherTopKeys.contains(part->name()))
            document.unknown.top.insert(part->name(), JsonText::tree(part->value));
    }
    const std::optional<TierIndex> current = mDictionary.tierByKey(currentTier);
    if (!current || !readTiers(tiers, document).contains(*current))
        damaged(QStringLiteral("the values of its radio model are missing"));
    document.data.setCurrentTier(*current);
    return document;
}

std::set<TierIndex> DataFileReader::readTiers(QByteArrayView tiers, DataDocument &document) const {
    std::set<TierIndex> read;
    JsonParts parts(tiers);
    while (const std::optional<JsonParts::Part> part = parts.next()) {
        const std::optional<TierIndex> tier = mDictionary.tierByKey(part->name());
        if (!tier) {
            document.unknown.tiers.insert(part->name(), JsonText::tree(part->value));
            continue;
        }
        checkVersion(TierJsonReader::databaseVersion(part->value));
        try {
            TierJsonReader(mDictionary, *tier).read(part->value, document);
        } catch (const RunTimeError &fault) {
            damaged(fault.Description);
        }
        read.insert(*tier);
    }
    return read;
}

void DataFileReader::damaged(const QString &reason) const {
    throw FileProblem(QStringLiteral("The file %0:S is damaged and was not opened: %1:S."), {mPath, reason});
}
