#include "table_import.h"

#include "item_lists.h"
#include "value_codec.h"

#include <algorithm>

namespace {
const FieldDefinition *fieldOf(const Dictionary &dictionary, const RecordStructure &structure, const QString &head) {
    const FieldDefinition *byLabel = nullptr;
    for (const FieldIndex index : structure.fields) {
        const FieldDefinition &field = dictionary.field(index);
        if (field.id == head)
            return &field;
        if (field.label == head && byLabel == nullptr)
            byLabel = &field;
    }
    return byLabel;
}
} // namespace

ImportColumns ImportColumns::of(const Dictionary &dictionary, const RecordStructure &structure,
                                const QStringList &heads) {
    ImportColumns columns{.hasParent = structure.isScoped(), .fields = {}};
    const qsizetype first = columns.hasParent ? 1 : 0;
    if (columns.hasParent && fieldOf(dictionary, structure, heads.first().trimmed()) != nullptr)
        throw UsageError(QStringLiteral("the first column of %1 is the number of its %2")
                             .arg(structure.guide, dictionary.structure(structure.parent).label));
    for (const QString &head : heads.sliced(first)) {
        const FieldDefinition *field = fieldOf(dictionary, structure, head.trimmed());
        if (field == nullptr)
            throw UsageError(QStringLiteral("unknown column %1").arg(head));
        if (std::ranges::find(columns.fields, field) != columns.fields.end())
            throw UsageError(QStringLiteral("column %1 stands twice").arg(head));
        columns.fields.push_back(field);
    }
    return columns;
}

TableImport::TableImport(ToolSession &session, const RecordStructure &structure, ImportColumns columns,
                         const std::vector<QStringList> &rows)
    : mSession(session), mStructure(structure), mColumns(std::move(columns)), mTable(rows), mSetter(session) {}

std::vector<RefusedCell> TableImport::run(const std::set<qint32> &leftOut) {
    const TierData &data = mSession.state().current();
    const qint32 parents = mColumns.hasParent ? data.totalRecordCount(mStructure.parent) : 0;
    mRefused.clear();
    mRows.clear();
    mFound.clear();
    mCounted.assign(std::size_t(parents) + 1, 0);
    for (qint32 parent = 0; parent <= parents; ++parent)
        mFound.push_back(data.recordCount(mStructure.index, parent));
    for (qint32 number = 1; number < qint32(mTable.size()); ++number)
        place(number, mTable[std::size_t(number)], leftOut);
    settle();
    std::ranges::stable_sort(mRefused, {}, &RefusedCell::row);
    return mRefused;
}

// Rows that are left out still count, so that the others keep their records.
void TableImport::place(qint32 number, const QStringList &cells, const std::set<qint32> &leftOut) {
    const qint32 parent = parentOf(cells);
    const bool isLeftOut = leftOut.contains(number);
    if (parent < 0 && !isLeftOut)
        refuseRow(number, QStringLiteral("there is no %1 %2")
                              .arg(mSession.dictionary().structure(mStructure.parent).label, cells.first()));
    if (parent < 0)
        return;
    const qint32 place = ++mCounted[std::size_t(parent)];
    if (isLeftOut)
        return;
    const qsizetype width = qsizetype(mColumns.fields.size()) + (mColumns.hasParent ? 1 : 0);
    if (cells.size() != width) {
        refuseRow(number, QStringLiteral("%1 cells instead of %2").arg(cells.size()).arg(width));
        return;
    }
    const MessageDiversion messages(mSession.events());
    const qint32 record = place <= mFound[std::size_t(parent)] ? place : addRecord(parent);
    if (record > 0)
        mRows.push_back({number, {parent, record}, cells.sliced(mColumns.hasParent ? 1 : 0)});
    else
        refuseRow(number, messages.text());
}

// 0 where the structure has no parents, -1 for one that does not exist.
qint32 TableImport::parentOf(const QStringList &cells) const {
    if (!mColumns.hasParent)
        return 0;
    const qint32 parent = cells.first().trimmed().toInt();
    return parent >= 1 && parent < qint32(mCounted.size()) ? parent : -1;
}

// The new record's number; 0 when it was refused.
qint32 TableImport::addRecord(qint32 parent) {
    mSession.selectParent(mStructure.index, {parent, 1});
    qint32 added = 0;
    bool ok = false;
    mSession.transformer().AddRecord(mStructure.guide, QString(), added, ok);
    return ok ? added : 0;
}

// Values depend on each other (limits by band, defaults that follow a choice, references to further rows), so the
// cells are set again until nothing moves.
void TableImport::settle() {
    constexpr int kPasses = 8;
    const std::vector<RefusedCell> rowsRefused = mRefused;
    bool moves = true;
    for (int pass = 0; moves && pass < kPasses; ++pass) {
        mRefused = rowsRefused;
        moves = setAll() || freeIdentities();
    }
}

bool TableImport::setAll() {
    bool moves = false;
    for (const Row &row : mRows) {
        for (std::size_t column = 0; column < mColumns.fields.size(); ++column) {
            const FieldDefinition &field = *mColumns.fields[column];
            const auto outcome = mSetter.set(field, row.record, row.cells[qsizetype(column)], ValueForm::Shown);
            moves = moves || outcome.changed;
            if (!outcome.refusal.isEmpty())
                mRefused.push_back({row.number, field.id, outcome.refusal});
        }
    }
    return moves;
}

// Numbers that change places block each other: a record of the table that holds a wanted number and is to get another
// one takes a free number meanwhile.
bool TableImport::freeIdentities() {
    const auto column = std::ranges::find(mColumns.fields, mStructure.identity,
                                          [](const FieldDefinition *field) { return field->index; });
    if (column == mColumns.fields.end())
        return false;
    const qsizetype place = column - mColumns.fields.begin();
    const TierData &data = mSession.state().current();
    const auto holds = [&](const Row &row) {
        return QString::number(data.identityOf(mStructure.index, row.record)) == row.cells[place].trimmed();
    };
    for (const Row &wanting : mRows) {
        const auto holder =
            data.recordByIdentity(mStructure.index, wanting.cells[place].trimmed().toInt(), wanting.record.parent);
        const auto row = std::ranges::find_if(mRows, [&](const Row &other) { return other.record == holder; });
        if (row == mRows.end() || holds(wanting) || holds(*row))
            continue;
        const std::vector<FieldItem> offered = ItemLists(data).items(mStructure.identity, row->record);
        return mSetter.set(**column, row->record, offered.back().text, ValueForm::Shown).changed;
    }
    return false;
}
