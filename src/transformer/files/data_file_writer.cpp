#include "data_file_writer.h"

#include "data_file_reader.h"
#include "field_defaults.h"
#include "file_kind.h"
#include "record_json.h"
#include "run_time_error.h"
#include "sealed_text.h"

#include <QDateTime>
#include <QJsonDocument>

namespace {
// "key": value pairs of an object that we keep unread, each followed by ending.
QByteArray entriesOf(const QJsonObject &object, QByteArrayView ending) {
    QByteArray text;
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
        const QByteArray one = QJsonDocument(QJsonObject{{entry.key(), entry.value()}}).toJson(QJsonDocument::Compact);
        text += one.sliced(1, one.size() - 2);
        text += ending;
    }
    return text;
}

void chopEnd(QByteArray &text, QByteArrayView end) {
    if (text.endsWith(end))
        text.chop(end.size());
}
} // namespace

DataFileWriter::DataFileWriter(const DataDocument &document)
    : mDocument(document), mDictionary(document.data.dictionary()) {
    for (const FieldDefinition &field : mDictionary.fields())
        mKeys.push_back('"' + field.id.toUtf8() + "\": ");
}

DataFileHeader DataFileWriter::header(const QString &applicationVersion, const QString &comment) const {
    const TierData &current = mDocument.data.current();
    const TierDefinition &tier = mDictionary.tier(current.tier());
    const std::optional<StructureIndex> network = mDictionary.structureByName(QStringLiteral("Network"));
    return {.formatVersion = DataDocuments::kFormatVersion,
            .tier = tier.key,
            .radioModel = tier.caption,
            .databaseVersion = mDictionary.versionName(current.versionLevel()),
            .applicationVersion = applicationVersion,
            .date = QDateTime::currentDateTimeUtc().toString(Qt::ISODate),
            .networks = network ? current.recordCount(*network) : 0,
            .comment = comment};
}

QByteArray DataFileWriter::write(const DataFileHeader &header) const {
    QJsonObject object = mDocument.unknown.header;
    object.insert(QStringLiteral("formatVersion"), header.formatVersion);
    object.insert(QStringLiteral("tier"), header.tier);
    object.insert(QStringLiteral("radioModel"), header.radioModel);
    object.insert(QStringLiteral("databaseVersion"), header.databaseVersion);
    object.insert(QStringLiteral("applicationVersion"), header.applicationVersion);
    object.insert(QStringLiteral("date"), header.date);
    object.insert(QStringLiteral("networks"), header.networks);
    object.insert(QStringLiteral("comment"), header.comment);

    QByteArray text = FileKinds::kDataStart.toByteArray();
    text += "\"header\": " + QJsonDocument(object).toJson(QJsonDocument::Compact) + ",\n";
    text += entriesOf(mDocument.unknown.top, ",\n");
    text += "\"tiers\": {\n" + entriesOf(mDocument.unknown.tiers, ",\n");
    for (qint32 place = 0; place < qint32(mDictionary.tiers().size()); ++place) {
        const TierData &tier = mDocument.data.tier(TierIndex(place));
        if (tier.tier() == mDocument.data.currentTier() || FieldDefaults(tier).differs() ||
            tier.versionLevel() != mDictionary.newestLevel())
            appendTier(text, tier);
    }
    chopEnd(text, ",\n");
    text += "\n},\n";
    text = SealedText::seal(text);

    const DataDocument again = DataFileReader(mDictionary, QString()).readJustSealed(text);
    if (!DataDocuments::sameContent(again.data, mDocument.data))
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("DataFileWriter"),
                           QStringLiteral("The written data differs from the data in memory"));
    return text;
}

void DataFileWriter::appendTier(QByteArray &text, const TierData &tier) const {
    text += RecordJson::quoted(mDictionary.tier(tier.tier()).key) + ": {\n";
    text += "\"databaseVersion\": " + RecordJson::quoted(mDictionary.versionName(tier.versionLevel())) + ",\n";
    text += entriesOf(mDocument.unknown.ofTier(tier.tier()), ",\n");
    for (const RecordStructure &structure : mDictionary.structures()) {
        if (structure.isRadio() || structure.in(tier.tier()).most > 0)
            appendStructure(text, tier, structure);
    }
    chopEnd(text, ",\n");
    text += "\n},\n";
}

void DataFileWriter::appendStructure(QByteArray &text, const TierData &tier, const RecordStructure &structure) const {
    text += RecordJson::quoted(structure.name) + ": ";
    if (!structure.isScoped()) {
        appendTable(text, tier, structure, 0);
        text += ",\n";
        return;
    }
    text += '[';
    const qint32 parents = tier.recordCount(structure.parent);
    for (qint32 parent = 1; parent <= parents; ++parent) {
        appendTable(text, tier, structure, parent);
        text += ",\n";
    }
    chopEnd(text, ",\n");
    text += "],\n";
}

void DataFileWriter::appendTable(QByteArray &text, const TierData &tier, const RecordStructure &structure,
                                 qint32 parent) const {
    text += '[';
    const qint32 count = tier.recordCount(structure.index, parent);
    for (qint32 number = 1; number <= count; ++number) {
        text += '\n';
        appendRecord(text, tier, structure, {parent, structure.isRadio() ? 0 : number});
        text += ',';
    }
    chopEnd(text, ",");
    text += ']';
}

void DataFileWriter::appendRecord(QByteArray &text, const TierData &tier, const RecordStructure &structure,
                                  RecordAddress record) const {
    // The radio's own many fields stand a line each.
    const QByteArrayView between = structure.isRadio() ? ",\n" : ", ";
    text += '{';
    for (const FieldIndex index : structure.stored) {
        text += mKeys[index.slot()];
        RecordJson::appendValue(text, mDictionary.field(index), tier, record);
        text += between;
    }
    text += entriesOf(mDocument.unknown.ofRecord(tier.tier(), structure.index, record), between);
    chopEnd(text, between);
    text += '}';
}
