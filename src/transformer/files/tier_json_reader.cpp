#include "tier_json_reader.h"

#include "field_defaults.h"
#include "json_text.h"
#include "record_json.h"
#include "run_time_error.h"
#include "translation.h"
#include "value_codec.h"

#include <QSet>

#include <algorithm>

namespace {
constexpr QByteArrayView kVersionKey = "databaseVersion";

[[noreturn]] void wrong(const QString &reason, const QStringList &parameters = {}) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("TierJsonReader"),
                       Translation::Piece(reason, parameters));
}

[[noreturn]] void wrongValue(const RecordStructure &structure, RecordAddress record, const QString &uiid) {
    wrong(QStringLiteral("record %0:S of %1:S has a bad value of %2:S"),
          {QString::number(record.number), structure.name, uiid});
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

std::vector<QByteArrayView> elementsOf(QByteArrayView array) {
    std::vector<QByteArrayView> elements;
    JsonParts parts(array);
    while (const std::optional<JsonParts::Part> part = parts.next())
        elements.push_back(part->value);
    return elements;
}

std::vector<QByteArrayView> recordsOf(const std::map<QString, QByteArrayView> &tables, const QString &name) {
    const auto found = tables.find(name);
    if (found == tables.end() || !JsonText::isArray(found->second))
        wrong(QStringLiteral("the records of %0:S are missing"), {name});
    return elementsOf(found->second);
}
} // namespace

TierJsonReader::TierJsonReader(const Dictionary &dictionary, TierIndex tier) : mDictionary(dictionary), mTier(tier) {}

QString TierJsonReader::databaseVersion(QByteArrayView json) {
    JsonParts parts(json);
    while (const std::optional<JsonParts::Part> part = parts.next()) {
        if (part->key == kVersionKey)
            return JsonText::string(part->value).value_or(QString());
    }
    return {};
}

void TierJsonReader::read(QByteArrayView json, DataDocument &document) const {
    TierData data(mDictionary, mTier);
    data.setVersionLevel(mDictionary.versionLevelByName(databaseVersion(json)).value_or(mDictionary.newestLevel()));
    QJsonObject rest;
    Tables tables;
    JsonParts parts(json);
    while (const std::optional<JsonParts::Part> part = parts.next()) {
        const QString name = part->name();
        if (mDictionary.structureByName(name))
            tables[name] = part->value;
        else if (part->key != kVersionKey)
            rest.insert(name, JsonText::tree(part->value));
    }
    for (const RecordStructure &structure : mDictionary.structures()) {
        if (structure.isRadio())
            readRadio(tables, data, document.unknown);
        else if (!structure.parent.isValid() && structure.in(mTier).most > 0)
            readTable(structure, tables, data, document.unknown);
    }
    checkValues(data);
    document.unknown.setTier(mTier, rest);
    document.data.replace(std::move(data));
}

void TierJsonReader::readRadio(const Tables &tables, TierData &data, UnknownFields &unknown) const {
    const RecordStructure &radio = mDictionary.structure(mDictionary.radio());
    const Values records = recordsOf(tables, radio.name);
    if (records.size() != 1)
        wrong(QStringLiteral("the radio's own values are missing"));
    RecordRow present;
    for (const FieldIndex field : radio.stored)
        present.push_back(data.value(field, {}));
    const RecordRow row = readRow(radio, records.front(), {}, present, unknown);
    for (std::size_t i = 0; i < row.size(); ++i)
        data.setValue(radio.stored[i], {}, row[i]);
}

void TierJsonReader::readTable(const RecordStructure &structure, const Tables &tables, TierData &data,
                               UnknownFields &unknown) const {
    const Values records = recordsOf(tables, structure.name);
    checkCount(structure, records.size());
    const RecordImage fresh = FieldDefaults(data).newRecord(structure.index, 0);
    while (data.recordCount(structure.index) > 0)
        data.removeRecord(structure.index, {0, data.recordCount(structure.index)});
    std::vector<std::vector<Values>> children;
    for (const StructureIndex child : structure.children)
        children.push_back(childRows(mDictionary.structure(child), tables, records.size()));
    for (qint32 number = 1; number <= qint32(records.size()); ++number) {
        RecordImage image = fresh;
        image.row = readRow(structure, records[std::size_t(number - 1)], {0, number}, fresh.row, unknown);
        for (std::size_t i = 0; i < structure.children.size(); ++i) {
            const RecordStructure &child = mDictionary.structure(structure.children[i]);
            const RecordRow freshRow = FieldDefaults(data).newRecord(child.index, number).row;
            RecordAddress address{child.isFlat() ? 0 : number, child.isFlat() ? (number - 1) * child.perParent : 0};
            image.children[i].clear();
            for (const QByteArrayView row : children[i][std::size_t(number - 1)]) {
                ++address.number;
                image.children[i].push_back(readRow(child, row, address, freshRow, unknown));
            }
        }
        data.insertRecord(structure.index, {0, number}, image);
    }
}

std::vector<TierJsonReader::Values> TierJsonReader::childRows(const RecordStructure &child, const Tables &tables,
                                                              std::size_t parents) const {
    const Values all = recordsOf(tables, child.name);
    const auto each = std::ptrdiff_t(child.isFlat() ? child.perParent : 1);
    if (all.size() != parents * std::size_t(each))
        wrong(QStringLiteral("the number of records of %0:S does not fit"), {child.name});
    std::vector<Values> rows;
    for (auto first = all.begin(); first != all.end(); first += each) {
        rows.push_back(child.isFlat() ? Values(first, first + each) : elementsOf(*first));
        if (!child.isFlat())
            checkCount(child, rows.back().size());
    }
    return rows;
}

RecordRow TierJsonReader::readRow(const RecordStructure &structure, QByteArrayView json, RecordAddress record,
                                  const RecordRow &fallback, UnknownFields &unknown) const {
    if (!JsonText::isObject(json))
        wrong(QStringLiteral("record %0:S of %1:S is missing"), {QString::number(record.number), structure.name});
    try {
        const RecordJson::ParsedRow parsed = RecordJson::parse(mDictionary, structure, json, fallback);
        unknown.setRecord(mTier, structure.index, record, parsed.unknown);
        return parsed.row;
    } catch (const RunTimeError &fault) {
        wrongValue(structure, record, fault.Description);
    }
}

void TierJsonReader::checkCount(const RecordStructure &structure, std::size_t count) const {
    const RecordCapacity &capacity = structure.in(mTier);
    const qint32 least = structure.fixed ? capacity.fresh : capacity.least;
    const qint32 most = structure.fixed ? capacity.fresh : capacity.most;
    if (qint64(count) < least || qint64(count) > most)
        wrong(QStringLiteral("it has %0:S records of %1:S, and %2:S to %3:S are allowed"),
              {QString::number(count), structure.name, QString::number(least), QString::number(most)});
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
                wrongValue(structure, *bad, field.id);
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
            wrong(QStringLiteral("two records of %0:S have the number %1:S"),
                  {structure.name, QString::number(identity.second)});
        seen.insert(identity);
    }
}
