#pragma once

#include "fake_grid.h"
#include "grid_surface.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QWidget>

#include <functional>
#include <initializer_list>
#include <map>

// Plain texts as a list.
[[nodiscard]] QStringList lines(std::initializer_list<const char *> texts);

// A grid without table and form: its cursor, selection and editor are members, and every step that changes something is
// a line of the log, also those of the component. Events are answered by the test: a handler a name.
class FakeGridSurface final : public GridSurface, public GridTable {
  public:
    FakeGridSurface();

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    FakeGrid field{log, QStringLiteral("grdFreq"), QStringLiteral("Nr|Name|Kind|Net")};
    QWidget window; // cells at the left, heads at the right; a cell is 10 by 10 pixels
    QWidget table{&window};
    QWidget cells{&table};
    QWidget heads{&table};

    GridDesign design;
    // Nr (text), Name (text), Kind (combo), Net (ID tracker)
    std::vector<GridColumnFacts> columns;
    XArrayDB display;
    XArrayDB source;
    bool translated = false;
    std::map<QString, QString> names; // of ID items: translated, source
    HostControls controls;
    bool terminated = false;
    bool refuses = false; // Validate cancels
    std::optional<qint32> bookmark;
    qint32 column = 0;
    std::vector<qint32> selected;
    bool editing = false;
    QString edited; // the editor's text
    qint32 selStart = 0;
    qint32 selLength = 0;
    bool inserted = false;
    std::map<QString, std::function<void(const FieldEvent &)>> on;

    // A row a text, its cells joined by "|"; both arrays. The first row becomes current.
    void setRows(const QStringList &rows);
    [[nodiscard]] static QStringList rowsOf(const XArrayDB &array);
    // As the front does it: fills the row that the command has made.
    void insertRow(qint32 row, const QString &cells);
    void appendRow(const QString &cells);

    [[nodiscard]] GridTable &Table() override { return *this; }
    [[nodiscard]] const GridDesign &Design() const override { return design; }
    [[nodiscard]] Ifield &Field() override { return field; }
    [[nodiscard]] Igrid &Grid() override { return field; }
    [[nodiscard]] QWidget *Control() override { return &window; }
    [[nodiscard]] Transformer &Component() override { return component; }
    [[nodiscard]] const HostControls *FormControls() const override { return &controls; }
    [[nodiscard]] qint32 ColumnCount() const override { return qint32(columns.size()); }
    [[nodiscard]] GridColumnFacts ColumnAt(qint32 at) const override { return columns.at(std::size_t(at)); }
    [[nodiscard]] XArrayDB &DisplayArray() override { return display; }
    [[nodiscard]] const XArrayDB &DisplayArray() const override { return display; }
    [[nodiscard]] XArrayDB &SourceArray() override { return source; }
    [[nodiscard]] bool Translated() const override { return translated; }
    [[nodiscard]] std::optional<QString> SourceOfName(const QString &name) const override;
    [[nodiscard]] bool RowInserted() const override { return inserted; }
    void ClearRowInserted() override { inserted = false; }
    void Raise(const FieldEvent &event) override;
    [[nodiscard]] bool Terminated() const override { return terminated; }
    void Validate(bool &cancel) override;
    void RowColChange(qint32 lastColumn) override { log.add(QStringLiteral("RowColChange"), {lastColumn}); }
    void PickDropdownRow(const XArrayDB &items, qint32 row) override;
    void DropDownClose() override { log.add(QStringLiteral("DropDownClose")); }
    void RebindIDTrackerDropdown() override { log.add(QStringLiteral("RebindIDTrackerDropdown")); }
    void ShowCellHelp() override { log.add(QStringLiteral("ShowCellHelp")); }
    void ShowHourglass() override { log.add(QStringLiteral("Hourglass")); }
    void ShowPointer() override { log.add(QStringLiteral("Pointer")); }
    void SetButtonEnabledState(bool enabled) override { log.add(QStringLiteral("Buttons"), {enabled}); }

    [[nodiscard]] std::optional<qint32> Bookmark() const override { return bookmark; }
    void SetBookmark(qint32 row) override;
    [[nodiscard]] qint32 Col() const override { return column; }
    void SetCol(qint32 newColumn) override { column = newColumn; }
    void SetRow(qint32 place) override { log.add(QStringLiteral("Row"), {place}); }
    bool MoveTo(const GridCell &cell) override;
    [[nodiscard]] QRect CellRect() const override { return {10 * column, 10 * bookmark.value_or(0), 10, 10}; }
    [[nodiscard]] qint32 VisibleRows() const override { return 5; }
    [[nodiscard]] qint32 ApproxCount() const override { return display.UpperBound(1) + 1; }
    void MoveFirst() override { log.add(QStringLiteral("MoveFirst")); }
    void MoveLast() override { log.add(QStringLiteral("MoveLast")); }
    [[nodiscard]] std::vector<qint32> SelBookmarks() const override { return selected; }
    void AddSelBookmark(qint32 row) override;
    void RemoveSelBookmarks() override;
    void SetSelStartCol(qint32 at) override { log.add(QStringLiteral("SelStartCol"), {at}); }
    void SetSelEndCol(qint32 at) override { log.add(QStringLiteral("SelEndCol"), {at}); }
    [[nodiscard]] bool EditActive() const override { return editing; }
    void StartEdit() override;
    [[nodiscard]] QString Text() const override;
    void SetText(const QString &text) override { log.add(QStringLiteral("Text"), {text}); }
    [[nodiscard]] QString SelText() const override { return editing ? edited.mid(selStart, selLength) : QString(); }
    void SetSelText(const QString &text) override { edited.replace(selStart, selLength, text); }
    void SetSelStart(qint32 position) override { selStart = position; }
    void SetSelLength(qint32 length) override { selLength = length; }
    void Update() override { log.add(QStringLiteral("Update")); }
    void ReBind() override { log.add(QStringLiteral("ReBind")); }
    void Refresh() override {}
    void SetFocus() override { log.add(QStringLiteral("SetFocus")); }
    [[nodiscard]] bool Visible() const override { return true; }
    [[nodiscard]] std::optional<qint32> RowContaining(int y) const override;
    [[nodiscard]] std::optional<qint32> ColContaining(int x) const override;
    [[nodiscard]] QWidget &CellsSurface() override { return cells; }
    [[nodiscard]] QWidget &HeadsSurface() override { return heads; }
};
