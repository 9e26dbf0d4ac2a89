#include "image_decoder.h"

#include "field_cell.h"
#include "field_defaults.h"
#include "image_cell.h"
#include "value_codec.h"

#include <QSet>

#include <algorithm>

namespace {
RecordAddress addressOf(const RecordStructure &structure, qint32 parent, qint32 number) {
    return {parent, structure.isRadio() ? 0 : number};
}

// The limits in the radio's band.
NumberLimits limitsOf(const TierData &data, const FieldDefinition &field) {
    NumberLimits limits = field.limits;
    if (!field.limitsBy || data.dictionary().field(field.limitsBy->field).structure != data.dictionary().radio())
        return limits;
    const auto &rows = field.limitsBy->limits;
    const qint32 decider = data.value(field.limitsBy->field, {}).number();
    const auto &row = rows[std::size_t(std::clamp<qint64>(decider, 0, qint64(rows.size()) - 1))];
    limits.minimum = row.first;
    limits.maximum = row.second;
    return limits;
}
} // namespace

ImageDecoder::ImageDecoder(const Dictionary &dictionary) : mDictionary(dictionary) {}

std::optional<TierData> ImageDecoder::decode(const RadioIdentity &radio, const QByteArray &image) {
    mProblem.clear();
    if (radio.tier >= mDictionary.tiers().size()) {
        mProblem = QStringLiteral("unknown tier %1").arg(radio.tier);
        return std::nullopt;
    }
    TierData data(mDictionary, TierIndex(radio.tier));
    if (image.size() != mDictionary.layout().imageSize(data.tier())) {
        mProblem = QStringLiteral("%1 bytes are not a whole image").arg(image.size());
        return std::nullopt;
    }
    mImage = image;
    mLevel = radio.databaseLevel;
    data.setVersionLevel(mLevel);
    takeFacts(data, radio);
    if (!decodeAll(data) || !checkLinks(data))
        return std::nullopt;
    return data;
}

void ImageDecoder::takeFacts(TierData &data, const RadioIdentity &radio) const {
    const FieldIndex band = mDictionary.indexOf(QStringLiteral("Band_q7r"));
    const FieldIndex serial = mDictionary.indexOf(QStringLiteral("SerialNumber"));
    if (band.isValid())
        data.setValue(band, {}, StoredValue(qint32(radio.band)));
    if (serial.isValid())
        data.setValue(serial, {}, StoredValue(radio.serialText()));
}

bool ImageDecoder::decodeAll(TierData &data) {
    for (const RecordStructure &structure : mDictionary.structures()) {
        if (structure.parent.isValid() || structure.in(data.tier()).most == 0)
            continue; // children come with their parents
        if (!(structure.isRadio() ? decodeRadio(data) : decodeTopStructure(data, structure)))
            return false;
    }
    return true;
}

bool ImageDecoder::decodeRadio(TierData &data) {
    const RecordStructure &radio = mDictionary.structure(mDictionary.radio());
    for (const FieldIndex index : radio.stored) {
        const FieldDefinition &field = mDictionary.field(index);
        if (!FieldCell::isPresent(field, data.tier(), mLevel))
            continue;
        const std::optional<StoredValue> value = decodeField(data, field, {});
        if (!value)
            return false;
        data.setValue(index, {}, *value);
    }
    return true;
}

bool ImageDecoder::decodeTopStructure(TierData &data, const RecordStructure &structure) {
    const std::optional<qint32> count = countOf(data, {structure, 0});
    if (!count)
        return false;
    while (data.recordCount(structure.index) > 0)
        data.removeRecord(structure.index, {0, data.recordCount(structure.index)});
    for (qint32 number = 1; number <= *count; ++number) {
        const std::optional<RecordRow> row = decodeRow(data, {structure, 0}, number);
        RecordImage record;
        if (!row || !decodeChildren(data, structure, number, record))
            return false;
        record.row = *row;
        data.insertRecord(structure.index, {0, number}, record);
    }
    return true;
}

bool ImageDecoder::decodeChildren(const TierData &data, const RecordStructure &structure, qint32 number,
                                  RecordImage &record) {
    for (const StructureIndex index : structure.children) {
        const RecordStructure &child = mDictionary.structure(index);
        const Table table{child, child.isFlat() ? 0 : number};
        qint32 from = 1;
        std::optional<qint32> count = child.perParent;
        if (child.isFlat())
            from = (number - 1) * child.perParent + 1;
        else
            count = countOf(data, table);
        std::vector<RecordRow> rows;
        if (!count || !decodeRows(data, table, from, *count, rows))
            return false;
        record.children.push_back(std::move(rows));
    }
    return true;
}

bool ImageDecoder::decodeRows(const TierData &data, Table table, qint32 from, qint32 count,
                              std::vector<RecordRow> &rows) {
    for (qint32 number = from; number < from + count; ++number) {
        const std::optional<RecordRow> row = decodeRow(data, table, number);
        if (!row)
            return false;
        rows.push_back(*row);
    }
    return true;
}

std::optional<RecordRow> ImageDecoder::decodeRow(const TierData &data, Table table, qint32 number) {
    RecordRow row;
    for (const FieldIndex index : table.structure.stored) {
        const FieldDefinition &field = mDictionary.field(index);
        if (!FieldCell::isPresent(field, data.tier(), mLevel)) {
            row.push_back(FieldDefaults(data).defaultOf(index));
            continue;
        }
        const auto value = decodeField(data, field, addressOf(table.structure, table.parent, number));
        if (!value)
            return std::nullopt;
        row.push_back(*value);
    }
    return row;
}

std::optional<StoredValue> ImageDecoder::decodeField(const TierData &data, const FieldDefinition &field,
                                                     RecordAddress record) {
    const qint32 recordAt = mDictionary.layout().recordOffset(data.tier(), field.structure, record);
    std::optional<StoredValue> value = FieldCell::get(mImage, recordAt, field);
    const bool valid =
        value && std::holds_alternative<StoredValue>(ValueCodec::checkStored(field, *value, limitsOf(data, field)));
    if (valid)
        return value;
    refuse(field.id, record.number, QStringLiteral("not a value of this field"));
    return std::nullopt;
}

// The count of a flat table must be what its parent's count makes of it.
std::optional<qint32> ImageDecoder::countOf(const TierData &data, Table table) {
    const MemoryLayout &layout = mDictionary.layout();
    const auto stored = [&](const Table &which) {
        const qint32 at = layout.countOffset(data.tier(), which.structure.index, which.parent);
        return qint32(ImageCell::unsignedNumber(mImage, at, MemoryLayout::kCountBytes));
    };
    const qint32 count = stored(table);
    const RecordCapacity &capacity = table.structure.in(data.tier());
    if (count < capacity.least || count > capacity.most) {
        refuse(table.structure.name, table.parent, QStringLiteral("%1 records").arg(count));
        return std::nullopt;
    }
    for (const StructureIndex index : table.structure.children) {
        const RecordStructure &child = mDictionary.structure(index);
        if (!child.isFlat() || stored({child, 0}) == count * child.perParent)
            continue;
        refuse(child.name, 0, QStringLiteral("%1 records").arg(stored({child, 0})));
        return std::nullopt;
    }
    return count;
}

bool ImageDecoder::checkLinks(const TierData &data) {
    for (const RecordStructure &structure : mDictionary.structures()) {
        if (!checkIdentities(data, structure))
            return false;
        for (const FieldIndex index : structure.stored) {
            const FieldDefinition &field = mDictionary.field(index);
            if (field.kind != FieldKind::Reference || !FieldCell::isPresent(field, data.tier(), mLevel))
                continue;
            for (const RecordAddress &record : data.records(structure.index))
                if (!checkReference(data, field, record))
                    return false;
        }
    }
    return true;
}

bool ImageDecoder::checkIdentities(const TierData &data, const RecordStructure &structure) {
    if (!structure.identity.isValid())
        return true;
    QSet<std::pair<qint32, qint32>> seen;
    for (const RecordAddress &record : data.records(structure.index)) {
        const std::pair<qint32, qint32> key{record.parent, data.identityOf(structure.index, record)};
        if (seen.contains(key))
            return refuse(structure.name, record.number, QStringLiteral("its number stands twice"));
        seen.insert(key);
    }
    return true;
}

bool ImageDecoder::checkReference(const TierData &data, const FieldDefinition &field, RecordAddress record) {
    const qint32 stored = data.number(field, record);
    if (stored == 0 && field.to.hasNone)
        return true;
    const qint32 place = field.to.isMixed() ? stored / ReferenceTargets::kPlaceFactor : 0;
    const qint32 identity = field.to.isMixed() ? stored % ReferenceTargets::kPlaceFactor : stored;
    if (place < 0 || place >= qint32(field.to.structures.size()))
        return refuse(field.id, record.number, QStringLiteral("unknown kind of record"));
    const RecordStructure &target = mDictionary.structure(field.to.structures[std::size_t(place)]);
    // Which of the tables of a child structure is meant follows from other values, which may change it at any time.
    const bool exists = target.isScoped() ? identity >= 1 && identity <= target.in(data.tier()).most
                                          : data.recordByIdentity(target.index, identity).has_value();
    if (exists)
        return true;
    return refuse(field.id, record.number, QStringLiteral("%1 %2 does not exist").arg(target.name).arg(identity));
}

bool ImageDecoder::refuse(const QString &where, qint32 record, const QString &why) {
    mProblem = record == 0 ? QStringLiteral("%1: %2").arg(where, why)
                           : QStringLiteral("%1, record %2: %3").arg(where).arg(record).arg(why);
    return false;
}
