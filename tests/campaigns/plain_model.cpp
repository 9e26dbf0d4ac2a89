#include "plain_model.h"

#include "field_reader.h"
#include "value_codec.h"
#include "value_text.h"

namespace {
std::size_t rowOf(RecordAddress record) { return record.number < 1 ? 0 : std::size_t(record.number - 1); }
} // namespace

bool PlainModel::isSame(const QString &left, const QString &right) {
    const std::optional<double> number = ValueText::number(left);
    return left == right || (number && number == ValueText::number(right));
}

PlainModel::PlainModel(ComponentState &state) : mState(state) {
    look();
    commit();
}

void PlainModel::look() {
    mTiers.assign(mState.dictionary.tiers().size(), {});
    for (std::size_t tier = 0; tier < mTiers.size(); ++tier) {
        for (const RecordStructure &structure : mState.dictionary.structures())
            lookAt(mTiers[tier], mState.document.data.tier(TierIndex(qint32(tier))), structure.index);
    }
}

void PlainModel::commit() { mCommitted = mTiers; }

void PlainModel::revert(TierIndex tier) { mTiers[tier.slot()] = mCommitted[tier.slot()]; }

QString PlainModel::read(const TierData &data, const FieldDefinition &field, RecordAddress record) {
    const FieldReader reader(data);
    return field.kind == FieldKind::Reference
               ? reader.shown(field.index, record)
               : ValueText::of(ValueCodec::boundary(field, data.value(field.index, record)));
}

PlainModel::Row PlainModel::readRow(const TierData &data, StructureIndex structure, RecordAddress record) const {
    Row row;
    for (const FieldIndex field : mState.dictionary.structure(structure).stored)
        row[field] = read(data, mState.dictionary.field(field), record);
    return row;
}

void PlainModel::lookAt(Tables &tables, const TierData &data, StructureIndex structure) const {
    std::erase_if(tables, [structure](const auto &entry) { return entry.first.first == structure; });
    for (const RecordAddress record : data.records(structure))
        tables[{structure, record.parent}].push_back(readRow(data, structure, record));
}

std::vector<PlainModel::Row> &PlainModel::table(StructureIndex structure, RecordAddress record) {
    return mTiers[mState.tier().slot()][{structure, record.parent}];
}

void PlainModel::note(const FieldDefinition &field, RecordAddress record, const QString &value) {
    std::vector<Row> &rows = table(field.structure, record);
    if (field.isStored() && rowOf(record) < rows.size())
        rows[rowOf(record)][field.index] = value;
}

void PlainModel::insert(StructureIndex structure, RecordAddress record) {
    std::vector<Row> &rows = table(structure, record);
    const std::size_t place = std::min(rowOf(record), rows.size());
    rows.insert(rows.begin() + std::ptrdiff_t(place), readRow(mState.current(), structure, record));
    lookAtRelated(structure);
}

void PlainModel::erase(StructureIndex structure, RecordAddress record) {
    std::vector<Row> &rows = table(structure, record);
    if (rowOf(record) < rows.size())
        rows.erase(rows.begin() + std::ptrdiff_t(rowOf(record)));
    lookAtRelated(structure);
}

// Children come and go with their parents; references lose their targets, or their record.
void PlainModel::lookAtRelated(StructureIndex structure) {
    Tables &tables = mTiers[mState.tier().slot()];
    for (const StructureIndex child : mState.dictionary.structure(structure).children)
        lookAt(tables, mState.current(), child);
    for (const FieldIndex reference : mState.dictionary.dependencies().references(structure)) {
        const FieldDefinition &field = mState.dictionary.field(reference);
        if (field.to.whenGone == TargetGone::DeleteRecord) {
            lookAt(tables, mState.current(), field.structure);
            continue;
        }
        for (const RecordAddress record : mState.current().records(field.structure))
            note(field, record, read(mState.current(), field, record));
    }
}

QString PlainModel::value(const FieldDefinition &field, RecordAddress record) const {
    const Tables &tables = mTiers[mState.tier().slot()];
    const auto rows = tables.find({field.structure, record.parent});
    return rows == tables.end() || rowOf(record) >= rows->second.size() ? ValueText::undefined()
                                                                        : rows->second[rowOf(record)].at(field.index);
}

QStringList PlainModel::differences() const {
    QStringList result;
    for (std::size_t tier = 0; tier < mTiers.size(); ++tier) {
        Tables present;
        for (const RecordStructure &structure : mState.dictionary.structures())
            lookAt(present, mState.document.data.tier(TierIndex(qint32(tier))), structure.index);
        for (const auto &[place, rows] : mTiers[tier])
            present[place]; // also those that the component has no longer
        for (const auto &[place, rows] : present)
            compare(tier, place, rows, result);
    }
    return result;
}

void PlainModel::compare(std::size_t tier, const Place &place, const std::vector<Row> &present,
                         QStringList &result) const {
    const auto found = mTiers[tier].find(place);
    const std::vector<Row> kept = found == mTiers[tier].end() ? std::vector<Row>() : found->second;
    const QString where = QStringLiteral("tier %1, %2 below %3")
                              .arg(tier)
                              .arg(mState.dictionary.structure(place.first).name)
                              .arg(place.second);
    if (kept.size() != present.size()) {
        result << where + QStringLiteral(": %1 records, not %2").arg(kept.size()).arg(present.size());
        return;
    }
    for (std::size_t row = 0; row < kept.size(); ++row) {
        for (const auto &[field, value] : present[row]) {
            if (!isSame(kept[row].at(field), value))
                result << where + QStringLiteral(": %1(%2) is %3, not %4")
                                      .arg(mState.dictionary.field(field).id)
                                      .arg(row + 1)
                                      .arg(value, kept[row].at(field));
        }
    }
}
