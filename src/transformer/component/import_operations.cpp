#include "import_operations.h"

#include "pasted_rows.h"
#include "settings_store.h"
#include "value_text.h"

#include <algorithm>

namespace {
constexpr std::size_t kToldAtMost = 20;
const QString kLineBreak = QStringLiteral("\n");
} // namespace

struct ImportOperations::Grid {
    const RecordStructure *structure = nullptr;
    qint32 parent = 0;
    qint32 count = 0; // of its records
    std::vector<FieldIndex> fields;
    std::vector<PastedRows::Head> heads;
    qsizetype focused = 0; // column
};

bool ImportOperations::import(const QString &uiidList, const QString &text, const QString &selectedRecords) {
    loadLanguage();
    const std::optional<Grid> grid = gridOf(uiidList);
    if (!grid)
        return false;
    const PastedRows pasted = PastedRows::read(text, grid->heads, grid->focused);
    if (pasted.rows.empty()) {
        mState.events.tell(QStringLiteral("There are no rows to take over. Nothing was changed."));
        return false;
    }
    const auto overwritten = targets(*grid, pasted, selectedRecords);
    if (!overwritten)
        return false;
    RecordImport::Rows rows{grid->structure->index, grid->parent, {}, pasted.rows, *overwritten};
    for (const qsizetype column : pasted.columns)
        rows.fields.push_back(column < 0 ? FieldIndex() : grid->fields[std::size_t(column)]);
    const RecordImport::Outcome outcome = RecordImport(mState.current(), mState.accessLevel, mTranslation).run(rows);
    finish(*grid, outcome);
    tellRefused(*grid, pasted, outcome);
    return true;
}

// Read anew each time: the user may have chosen another language since.
void ImportOperations::loadLanguage() {
    const qint32 language = ValueText::toIntegerOr(mSettings.value(QStringLiteral("Language"), 1), 1);
    if (language > 1 && !mTranslation.Dictionary().IsOpen())
        mTranslation.Dictionary().Load(mState.places.translationFile);
    mTranslation.gLanguage = language;
}

std::optional<ImportOperations::Grid> ImportOperations::gridOf(const QString &uiidList) {
    Grid grid;
    const QStringList uiids = uiidList.split(u'|');
    for (const QString &uiid : uiids) {
        const FieldDefinition *field = mState.findField(uiid);
        if (field == nullptr)
            return std::nullopt;
        const RecordStructure &structure = mState.dictionary.structure(field->structure);
        if (structure.isRadio() || (grid.structure != nullptr && grid.structure != &structure))
            return std::nullopt;
        grid.structure = &structure;
        grid.fields.push_back(field->index);
        const QString label = mFields.GetLabel(uiid);
        grid.heads.push_back({label, mTranslation.NLSStr(label)});
    }
    grid.parent = mState.address(grid.structure->index, 1).parent;
    grid.count = mState.current().recordCount(grid.structure->index, grid.parent);
    grid.focused = std::max<qsizetype>(uiids.indexOf(mState.focusedField), 0);
    return grid;
}

std::optional<std::vector<qint32>> ImportOperations::targets(const Grid &grid, const PastedRows &pasted,
                                                             const QString &selectedRecords) {
    std::vector<qint32> records;
    const auto rows = qint32(pasted.rows.size());
    for (const QString &part : selectedRecords.split(u'|', Qt::SkipEmptyParts)) {
        const qint32 record = part.toInt();
        const bool isNew = std::ranges::find(records, record) == records.end();
        if (isNew && record >= 1 && record <= grid.count && qint32(records.size()) < rows)
            records.push_back(record);
    }
    const bool allNamed = records.size() > 1 || (!records.empty() && rows == 1);
    if (allNamed || !pasted.isBlock || grid.count == 0)
        return records;
    const qint32 first =
        records.empty() ? std::max(mState.positions().position(grid.structure->index), 1) : records.front();
    records.clear();
    const qint32 last = std::min(first + rows - 1, grid.count);
    const bool goesOn = mState.events.ask(
        QStringLiteral("The rows fill the columns from %0:S on, in the records %1:S to %2:S. What these hold there is "
                       "replaced.%3:SDo you want to continue?"),
        {grid.heads[std::size_t(grid.focused)].english, QString::number(first), QString::number(last), kLineBreak});
    if (!goesOn)
        return std::nullopt;
    for (qint32 record = first; record <= last; ++record)
        records.push_back(record);
    return records;
}

void ImportOperations::finish(const Grid &grid, const RecordImport::Outcome &outcome) {
    if (outcome.changes.empty())
        return;
    mState.positions().follow(mState.current(), outcome.changes);
    mState.journal.record(mState.tier(), outcome.changes);
    mNotifier.raiseAfterImport(outcome.changes);
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_FieldHasChanged(); });
    mState.events.lastAction(QStringLiteral("Pasted"),
                             QStringLiteral("%1 (%2)").arg(grid.structure->label).arg(outcome.changed + outcome.added));
    mState.tellWriteFailure();
}

void ImportOperations::tellRefused(const Grid &grid, const PastedRows &pasted, const RecordImport::Outcome &outcome) {
    QStringList lines;
    for (const RecordImport::RefusedCell &cell : outcome.refused) {
        if (std::size_t(lines.size()) == kToldAtMost)
            break;
        const qsizetype column = pasted.columns[cell.cell];
        const QString head = column < 0 ? QString() : grid.heads[std::size_t(column)].english;
        const QStringList place = {QString::number(pasted.firstLine + qint32(cell.row)), QString::number(cell.cell + 1),
                                   head};
        const QString text = head.isEmpty() ? QStringLiteral("Row %0:S, column %1:S: ")
                                            : QStringLiteral("Row %0:S, column %1:S (%2:S): ");
        lines.append(Translation::Pieces({Translation::Piece(text, place), cell.why.piece()}, {}));
    }
    if (outcome.refused.size() > kToldAtMost)
        lines.append(
            Translation::Piece(QStringLiteral("(%0:S more)"), {QString::number(outcome.refused.size() - kToldAtMost)}));
    if (outcome.noRoom)
        lines.append(Translation::Pieces(
            {Translation::Piece(QStringLiteral("The last %0:S rows: "), {QString::number(outcome.rowsLeft)}),
             RefusalText::ofRecord(mState.current(), *outcome.noRoom).piece()},
            {}));
    if (!lines.isEmpty())
        mState.events.tell(QStringLiteral("Not everything could be taken over. The cells named here keep what they "
                                          "had.%0:S%1:S"),
                           {kLineBreak, Translation::Pieces(lines, kLineBreak)});
}
