#include "default_image.h"

#include "image_cell.h"
#include "run_time_error.h"

#include <algorithm>

namespace {
const QString kBandField = QStringLiteral("Band_q7r");
const QString kTierField = QStringLiteral("Tier_q7r");
} // namespace

DefaultImage::DefaultImage(const Dictionary &dictionary, TierIndex tier, qint32 band, qint32 level)
    : mDictionary(dictionary), mTier(tier), mBand(band), mLevel(level) {}

QByteArray DefaultImage::build() {
    mImage = QByteArray(mDictionary.layout().imageSize(mTier), '\0');
    for (const RecordStructure &structure : mDictionary.structures())
        if (structure.in(mTier).most > 0)
            putStructure(structure);
    return mImage;
}

qint32 DefaultImage::freshCount(const RecordStructure &structure) const {
    const qint32 fresh = structure.isRadio() ? 1 : structure.in(mTier).fresh;
    return structure.isFlat() ? structure.perParent * freshCount(mDictionary.structure(structure.parent)) : fresh;
}

void DefaultImage::putStructure(const RecordStructure &structure) {
    if (!structure.isScoped()) {
        putTable(structure, 0, freshCount(structure));
        return;
    }
    const qint32 parents = freshCount(mDictionary.structure(structure.parent));
    for (qint32 parent = 1; parent <= parents; ++parent)
        putTable(structure, parent, freshCount(structure));
}

void DefaultImage::putTable(const RecordStructure &structure, qint32 parent, qint32 count) {
    const MemoryLayout &layout = mDictionary.layout();
    const qint32 countAt = layout.countOffset(mTier, structure.index, parent);
    if (!ImageCell::putNumber(mImage, countAt, MemoryLayout::kCountBytes, count))
        throw RunTimeError(ErrorNumber::kBadArgument, structure.name, QStringLiteral("too many records"));
    for (qint32 number = 1; number <= count; ++number) {
        const RecordAddress record{parent, structure.isRadio() ? 0 : number};
        const qint32 recordAt = layout.recordOffset(mTier, structure.index, record);
        for (const FieldIndex index : structure.stored)
            putField(mDictionary.field(index), recordAt, number);
    }
}

void DefaultImage::putField(const FieldDefinition &field, qsizetype recordAt, qint32 number) {
    if (!field.at || field.levelIn(mTier) > mLevel)
        return;
    const qsizetype at = recordAt + field.at->byte;
    bool fits = true;
    if (field.isTextual())
        fits = ImageCell::putText(mImage, at, field.at->bytes, field.defaultText);
    else if (field.at->bit >= 0)
        ImageCell::putBit(mImage, at, field.at->bit, defaultOf(field, number) != 0);
    else
        fits = ImageCell::putNumber(mImage, at, field.at->bytes, defaultOf(field, number));
    if (!fits)
        throw RunTimeError(ErrorNumber::kBadArgument, field.id, QStringLiteral("the default does not fit its place"));
}

qint32 DefaultImage::defaultOf(const FieldDefinition &field, qint32 number) const {
    if (field.id == kBandField)
        return mBand;
    if (field.id == kTierField)
        return mTier.place();
    if (field.defaultNextFree)
        return field.limits.minimum + number - 1;
    if (!field.defaultBy.field.isValid())
        return field.defaultNumber;
    const std::vector<qint32> &values = field.defaultBy.values;
    const FieldDefinition &decider = mDictionary.field(field.defaultBy.field);
    const qint32 place = defaultOf(decider, number);
    return values[std::size_t(std::clamp<qint64>(place, 0, qint64(values.size()) - 1))];
}
