#include "image_encoder.h"

#include "field_cell.h"
#include "image_cell.h"
#include "run_time_error.h"

namespace {
[[noreturn]] void refuse(const QString &source, const QString &why) {
    throw RunTimeError(ErrorNumber::kBadArgument, source, source + QStringLiteral(": ") + why);
}

RecordAddress addressOf(const RecordStructure &structure, qint32 parent, qint32 number) {
    return {parent, structure.isRadio() ? 0 : number};
}
} // namespace

ImageEncoder::ImageEncoder(const TierData &data, qint32 level)
    : mData(data), mDictionary(data.dictionary()), mLevel(level) {}

QByteArray ImageEncoder::encode(const QByteArray &present) {
    const qint32 size = mDictionary.layout().imageSize(mData.tier());
    mImage = QByteArray(size, '\0');
    if (!present.isEmpty()) {
        if (present.size() != size)
            refuse(QStringLiteral("image"), QStringLiteral("the radio's memory has another size"));
        const QByteArray used = usedBits();
        for (qsizetype at = 0; at < size; ++at)
            mImage[at] = char(quint8(present[at]) & quint8(~quint8(used[at])));
    }
    for (const RecordStructure &structure : mDictionary.structures()) {
        const qint32 parents = structure.isScoped() ? mData.recordCount(structure.parent) : 0;
        for (qint32 parent = structure.isScoped() ? 1 : 0; parent <= parents; ++parent)
            putTable(structure, parent);
    }
    return mImage;
}

void ImageEncoder::putTable(const RecordStructure &structure, qint32 parent) {
    const qint32 count = mData.recordCount(structure.index, parent);
    if (count > structure.in(mData.tier()).most)
        refuse(structure.name, QStringLiteral("%1 records are too many").arg(count));
    const qint32 countAt = mDictionary.layout().countOffset(mData.tier(), structure.index, parent);
    if (!ImageCell::putNumber(mImage, countAt, MemoryLayout::kCountBytes, count))
        refuse(structure.name, QStringLiteral("%1 records are too many").arg(count));
    for (qint32 number = 1; number <= count; ++number)
        putRecord(structure, addressOf(structure, parent, number));
}

void ImageEncoder::putRecord(const RecordStructure &structure, RecordAddress record) {
    const qint32 recordAt = mDictionary.layout().recordOffset(mData.tier(), structure.index, record);
    for (const FieldIndex index : structure.stored) {
        const FieldDefinition &field = mDictionary.field(index);
        if (!FieldCell::isPresent(field, mData.tier(), mLevel))
            continue;
        const StoredValue value = mData.value(index, record);
        if (!FieldCell::put(mImage, recordAt, field, value))
            refuse(field.id,
                   QStringLiteral("the value of record %1 does not fit the radio's memory").arg(record.number));
    }
}

qint32 ImageEncoder::parentCapacity(const RecordStructure &structure) const {
    return mDictionary.structure(structure.parent).in(mData.tier()).most;
}

QByteArray ImageEncoder::usedBits() const {
    QByteArray mask(mDictionary.layout().imageSize(mData.tier()), '\0');
    for (const RecordStructure &structure : mDictionary.structures()) {
        const qint32 parents = structure.isScoped() ? parentCapacity(structure) : 0;
        for (qint32 parent = structure.isScoped() ? 1 : 0; parent <= parents; ++parent)
            markTable(mask, structure, parent);
    }
    return mask;
}

void ImageEncoder::markTable(QByteArray &mask, const RecordStructure &structure, qint32 parent) const {
    const MemoryLayout &layout = mDictionary.layout();
    const qint32 countAt = layout.countOffset(mData.tier(), structure.index, parent);
    mask.replace(countAt, MemoryLayout::kCountBytes, QByteArray(MemoryLayout::kCountBytes, '\xFF'));
    for (qint32 number = 1; number <= structure.in(mData.tier()).most; ++number) {
        const qint32 recordAt =
            layout.recordOffset(mData.tier(), structure.index, addressOf(structure, parent, number));
        for (const FieldIndex index : structure.stored)
            if (FieldCell::isPresent(mDictionary.field(index), mData.tier(), mLevel))
                FieldCell::mark(mask, recordAt, mDictionary.field(index));
    }
}
