#include "tier_json_reader.h"

#include "field_defaults.h"
#include "record_json.h"
#include "run_time_error.h"
#include "value_codec.h"

#include <QSet>

#include <algorithm>

namespace {
[[noreturn]] void wrong(const QString &reason) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("TierJsonReader"), reason);
}

// The widest limits that the field can ever have: data whose band was changed last may hold values outside the present
// ones, and must come back all the same.
NumberLimits widestLimits(const FieldDefinition &field) {
    NumberLimits limits = field.limits;
    if (!field.limitsBy || field.limitsBy->limits.empty())
        return limits;
    for (const auto &[minimum, maximum] : field.limitsBy->limits) {
        limits.minimum = std::min(limits.minimum, minimum);
        limits.maximum = std::max(limits.maximum, maximum);
    }
    return limits;
}

QJsonArray arrayOf(const QJsonObject &json, const QString &name) {
    const QJsonValue value = json.value(name);
    if (!value.isArray())
        wrong(QStringLiteral("the records of %1 are missing").arg(name));
    return value.toArray();
}
} // namespace

TierJsonReader::TierJsonReader(const Dictionary &dictionary, TierIndex tier) : mDictionary(dictionary), mTier(tier) {}

void TierJsonReader::read(const QJsonObject &json, DataDocument &document) const {
    TierData data(mDictionary, mTier);
    const QString version = json.value(QStringLiteral("databaseVersion")).toString();
    data.setVersionLevel(mDictionary.versionLevelByName(version).value_or(mDictionary.newestLevel()));
    QJsonObject rest = json;
    rest.remove(QStringLiteral("databaseVersion"));
    for (const RecordStructure &structure : mDictionary.structures()) {
        if (structure.isRadio())
            readRadio(json, data, document.unknown);
        else if (!structure.parent.isValid() && structure.in(mTier).most > 0)
            readTable(structure, json, data, document.unknown);
        rest.remove(structure.name);
    }
    checkValues(data);
    document.unknown.setTier(mTier, rest);
    document.data.replace(std::move(data));
}

void TierJsonReader::readRadio(const QJsonObject &json, TierData &data, UnknownFields &unknown) const {
    const RecordStructure &radio = mDictionary.structure(mDictionary.radio());
    const QJsonArray records = arrayOf(json, radio.name);
    if (records.size() != 1)
        wrong(QStringLiteral("the radio's own values are missing"));
    RecordRow present;
    for (const FieldIndex field : radio.stored)
        present.push_back(data.value(field, {}));
    const RecordRow row = readRow(radio, records.first(), {}, present, unknown);
    for (std::size_t i = 0; i < row.size(); ++i)
        data.setValue(radio.stored[i], {}, row[i]);
}

void TierJsonReader::readTable(const RecordStructure &structure, const QJsonObject &json, TierData &data,
                               UnknownFields &unknown) const {
    const QJsonArray records = arrayOf(json, structure.name);
    checkCount(structure, records.size());
    const RecordImage fresh = FieldDefaults(data).newRecord(structure.index, 0);
    while (data.recordCount(structure.index) > 0)
        data.removeRecord(structure.index, {0, data.recordCount(structure.index)});
    for (qint32 number = 1; number <= qint32(records.size()); ++number) {
        RecordImage image = fresh;
        image.row = readRow(structure, records[number - 1], {0, number}, fresh.row, unknown);
        for (std::size_t i = 0; i < structure.children.size(); ++i) {
            const RecordStructure &child = mDictionary.structure(structure.children[i]);
            const QJsonArray rows = childRows(child, json, number, qint32(records.size()));
            const RecordRow freshRow = FieldDefaults(data).newRecord(child.index, number).row;
            image.children[i].clear();
            for (qint32 row = 1; row <= qint32(rows.size()); ++row) {
                const RecordAddress address = child.isFlat() ? RecordAddress{0, (number - 1) * child.perParent + row}
                                                             : RecordAddress{number, row};
                image.children[i].push_back(readRow(child, rows[row - 1], address, freshRow, unknown));
            }
        }
        data.insertRecord(structure.index, {0, number}, image);
    }
}

QJsonArray TierJsonReader::childRows(const RecordStructure &child, const QJsonObject &json, qint32 parent,
                                     qint32 parents) const {
    const QJsonArray all = arrayOf(json, child.name);
    if (all.size() != qsizetype(parents) * (child.isFlat() ? child.perParent : 1))
        wrong(QStringLiteral("the number of records of %1 does not fit").arg(child.name));
    if (!child.isFlat()) {
        QJsonArray rows = all[parent - 1].toArray();
        checkCount(child, rows.size());
        return rows;
    }
    QJsonArray rows;
    for (qint32 i = 0; i < child.perParent; ++i)
        rows.append(all[(parent - 1) * child.perParent + i]);
    return rows;
}

RecordRow TierJsonReader::readRow(const RecordStructure &structure, const QJsonValue &json, RecordAddress record,
                                  const RecordRow &fallback, UnknownFields &unknown) const {
    if (!json.isObject())
        wrong(QStringLiteral("record %1 of %2 is missing").arg(record.number).arg(structure.name));
    const QJsonObject object = json.toObject();
    try {
        const RecordJson::ParsedRow parsed = RecordJson::parse(mDictionary, structure, object, fallback);
        if (parsed.known < object.size())
            unknown.setRecord(mTier, structure.index, record, RecordJson::unknownOf(mDictionary, structure, object));
        return parsed.row;
    } catch (const RunTimeError &fault) {
        wrong(QStringLiteral("record %1 of %2 has a bad value of %3")
                  .arg(record.number)
                  .arg(structure.name, fault.Description));
    }
}

void TierJsonReader::checkCount(const RecordStructure &structure, qsizetype count) const {
    const RecordCapacity &capacity = structure.in(mTier);
    const qint32 least = structure.fixed ? capacity.fresh : capacity.least;
    const qint32 most = structure.fixed ? capacity.fresh : capacity.most;
    if (count < least || count > most)
        wrong(QStringLiteral("it has %1 records of %2, and %3 to %4 are allowed")
                  .arg(count)
                  .arg(structure.name)
                  .arg(least)
                  .arg(most));
}

void TierJsonReader::checkValues(const TierData &data) const {
    for (const RecordStructure &structure : mDictionary.structures()) {
        const std::vector<RecordAddress> records =
            structure.isRadio() ? std::vector<RecordAddress>{{}} : data.records(structure.index);
        for (const FieldIndex index : structure.stored) {
            const FieldDefinition &field = mDictionary.field(index);
            const NumberLimits limits = widestLimits(field);
            const auto isBad = [&](RecordAddress record) {
                return std::holds_alternative<ValueFault>(
                    ValueCodec::checkStored(field, data.value(index, record), limits));
            };
            const auto bad = std::ranges::find_if(records, isBad);
            if (bad != records.end())
                wrong(QStringLiteral("record %1 of %2 has a bad value of %3")
                          .arg(bad->number)
                          .arg(structure.name, field.id));
        }
        checkIdentities(data, structure);
    }
}

void TierJsonReader::checkIdentities(const TierData &data, const RecordStructure &structure) const {
    if (!structure.identity.isValid())
        return;
    QSet<std::pair<qint32, qint32>> seen;
    for (const RecordAddress record : data.records(structure.index)) {
        const std::pair<qint32, qint32> identity(record.parent, data.identityOf(structure.index, record));
        if (seen.contains(identity))
            wrong(QStringLiteral("two records of %1 have the number %2").arg(structure.name).arg(identity.second));
        seen.insert(identity);
    }
}
