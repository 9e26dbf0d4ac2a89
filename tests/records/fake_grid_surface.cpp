#include "fake_grid_surface.h"

#include "value_text.h"

using namespace Qt::StringLiterals;

namespace {
// The parameters that are worth a line, by event.
QVariantList parametersOf(const FieldEvent &event) {
    const QString &name = event.name();
    if (name == u"SetProviderUpdateUIOnFieldChange"_s)
        return {event.parameter<bool>(0)};
    if (name == u"RowSelectionChanged"_s || name == u"Change"_s)
        return {event.parameter<qint32>(0)};
    if (name == u"SortColumnByUIID"_s)
        return {event.parameter<QString>(0)};
    if (name == u"ImportRecordByPaste"_s)
        return {event.parameter<QString>(0), event.parameter<QString>(1)};
    if (name == u"ImportRecordByDrop"_s)
        return {event.parameter<QString>(1)};
    if (name == u"GetComboItems"_s)
        return {event.parameter<QString>(0), event.parameter<qint32>(1)};
    return {};
}

void writeRow(XArrayDB &array, qint32 row, const QString &cells) {
    const QStringList texts = cells.split(u'|');
    for (qint32 column = 0; column < texts.size(); ++column)
        array.SetValue(row, column, texts.at(column));
}

XArrayDB arrayOf(const QStringList &rows) {
    XArrayDB array;
    array.ReDim(qint32(rows.size()) - 1, 3);
    for (qint32 row = 0; row < rows.size(); ++row)
        writeRow(array, row, rows.at(row));
    return array;
}
} // namespace

QStringList lines(std::initializer_list<const char *> texts) {
    QStringList result;
    for (const char *text : texts)
        result << QString::fromLatin1(text);
    return result;
}

FakeGridSurface::FakeGridSurface()
    : columns{{u"Nr"_s, u"No."_s, ColumnType::kText},
              {u"Name"_s, u"Name"_s, ColumnType::kText},
              {u"Kind"_s, u"Kind"_s, ColumnType::kCombo},
              {u"Net"_s, u"Network"_s, ColumnType::kIdTracker}} {
    design.ID = u"FreqID"_s;
    design.Dynamic = true;
    window.resize(400, 200);
    table.setGeometry(0, 0, 400, 200);
    cells.setGeometry(0, 0, 200, 200);
    heads.setGeometry(200, 0, 200, 200);
}

void FakeGridSurface::setRows(const QStringList &rows) {
    display = arrayOf(rows);
    source = display;
    bookmark = rows.isEmpty() ? std::nullopt : std::optional(0);
    field.recordNr = 1;
}

QStringList FakeGridSurface::rowsOf(const XArrayDB &array) {
    QStringList rows;
    for (qint32 row = 0; row <= array.UpperBound(1); ++row) {
        QStringList texts;
        for (qint32 at = 0; at <= array.UpperBound(2); ++at)
            texts << ValueText::of(array.Value(row, at));
        rows << texts.join(u'|');
    }
    return rows;
}

void FakeGridSurface::insertRow(qint32 row, const QString &cellTexts) {
    if (translated)
        source.InsertRow(row);
    writeRow(display, row, cellTexts);
    inserted = true;
}

void FakeGridSurface::appendRow(const QString &cellTexts) {
    display.ReDim(display.UpperBound(1) + 1, 3);
    writeRow(display, display.UpperBound(1), cellTexts);
    bookmark = display.UpperBound(1);
}

std::optional<QString> FakeGridSurface::SourceOfName(const QString &name) const {
    const auto found = names.find(name);
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

void FakeGridSurface::Raise(const FieldEvent &event) {
    if (terminated)
        return;
    log.add(u"raise "_s + event.name(), parametersOf(event));
    if (const auto handler = on.find(event.name()); handler != on.end())
        handler->second(event);
}

void FakeGridSurface::Validate(bool &cancel) {
    log.add(u"Validate"_s);
    cancel = refuses;
}

void FakeGridSurface::PickDropdownRow(const XArrayDB &items, qint32 row) {
    log.add(u"PickDropdownRow"_s, {items.Value(row, 0)});
}

void FakeGridSurface::SetBookmark(qint32 row) {
    log.add(u"Bookmark"_s, {row});
    if (row > display.UpperBound(1))
        return;
    bookmark = row;
    field.recordNr = row + 1;
}

bool FakeGridSurface::MoveTo(const GridCell &cell) {
    log.add(u"MoveTo"_s, {cell.row, cell.column});
    if (refuses)
        return false;
    bookmark = cell.row;
    column = cell.column;
    field.recordNr = cell.row + 1;
    return true;
}

void FakeGridSurface::AddSelBookmark(qint32 row) {
    log.add(u"Select"_s, {row});
    selected.push_back(row);
}

void FakeGridSurface::RemoveSelBookmarks() {
    log.add(u"Unselect"_s);
    selected.clear();
}

void FakeGridSurface::StartEdit() {
    editing = true;
    edited = ValueText::of(display.Value(*bookmark, column));
}

QString FakeGridSurface::Text() const {
    return editing || !bookmark ? edited : ValueText::of(display.Value(*bookmark, column));
}

std::optional<qint32> FakeGridSurface::RowContaining(int y) const {
    return y >= 0 && y / 10 <= display.UpperBound(1) ? std::optional(y / 10) : std::nullopt;
}

std::optional<qint32> FakeGridSurface::ColContaining(int x) const {
    return x >= 0 && x / 10 < ColumnCount() ? std::optional(x / 10) : std::nullopt;
}
