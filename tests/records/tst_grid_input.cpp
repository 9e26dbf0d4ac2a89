#include "cell_drag_data.h"
#include "fake_grid_surface.h"
#include "grid_operations.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

namespace {
const QStringList kRows = lines({"10|a|Fast|North", "20|b|Slow|South", "30|c|Fast|North"});
const QPoint kSecondName(15, 15); // row 1, column 1
const QPoint kOutside(15, 150);

struct Bench {
    FakeGridSurface grid;
    GridOperations operations{grid, grid.services.fieldServices()};

    Bench() { grid.setRows(kRows); }
    void place(qint32 row, qint32 column) {
        grid.bookmark = row;
        grid.column = column;
    }
    bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {}) {
        return operations.keys.TDBGrid1_KeyDown(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
    }
};

// Whether the surface takes the drag over that point; it drops what is taken.
bool dragTo(QWidget &surface, const QMimeData &data, const QPoint &point) {
    QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&surface, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&surface, &drop);
    return drop.isAccepted();
}
} // namespace

class tst_grid_input : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void tabGoesFromCellToCell_data();
    void tabGoesFromCellToCell();
    void tabLeadsToTheNeighbourByTabIndex();
    void aRefusedCellHoldsTab();
    void tabNeverStaysCaught();
    void tabStopsThatTakeNoFocusArePassedOver();
    void entryByTabPlacesTheCursor_data();
    void entryByTabPlacesTheCursor();
    void keysAreSwallowed_data();
    void keysAreSwallowed();
    void buttonsRunUnlessTheCellIsRefused();
    void buttonsStandFromTheRight();
    void menuOffersWhatApplies();
    void aCellMayBeDragged_data();
    void aCellMayBeDragged();
    void aDroppedCellIsAnEdit();
    void aRefusedDropIsPutBack();
    void aCellStaysInItsWindow();
    void recordsAreDroppedAsText_data();
    void recordsAreDroppedAsText();
};

void tst_grid_input::tabGoesFromCellToCell_data() {
    QTest::addColumn<bool>("dynamic");
    QTest::addColumn<QPoint>("from"); // column, row
    QTest::addColumn<bool>("back");
    QTest::addColumn<QString>("to"); // empty: leads out
    QTest::newRow("next cell") << true << QPoint(0, 0) << false << "MoveTo(0, 1)";
    QTest::newRow("next row") << true << QPoint(3, 0) << false << "MoveTo(1, 0)";
    QTest::newRow("last cell") << true << QPoint(3, 2) << false << "";
    QTest::newRow("cell before") << true << QPoint(1, 1) << true << "MoveTo(1, 0)";
    QTest::newRow("row before") << true << QPoint(0, 1) << true << "MoveTo(0, 3)";
    QTest::newRow("first cell") << true << QPoint(0, 0) << true << "";
    QTest::newRow("no field names: next row") << false << QPoint(3, 0) << false << "MoveTo(1, 1)";
    QTest::newRow("no field names: row before") << false << QPoint(1, 1) << true << "MoveTo(0, 3)";
    QTest::newRow("no field names: first cell") << false << QPoint(1, 0) << true << "";
}

void tst_grid_input::tabGoesFromCellToCell() {
    QFETCH(const bool, dynamic);
    QFETCH(const QPoint, from);
    QFETCH(const bool, back);
    QFETCH(const QString, to);
    Bench bench;
    bench.grid.design.Dynamic = dynamic;
    bench.place(from.y(), from.x());
    const QKeyEvent key(QEvent::KeyPress, back ? Qt::Key_Backtab : Qt::Key_Tab,
                        back ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(bench.operations.keys.TabLeaves(key), to.isEmpty());
    QVERIFY(bench.operations.keys.TDBGrid1_KeyDown(key));
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("MoveTo")).join(QString()), to);
    QCOMPARE(bench.grid.log.lines().first(), QStringLiteral("DropDownClose()"));
}

void tst_grid_input::tabLeadsToTheNeighbourByTabIndex() {
    Bench bench;
    FakeField before(bench.grid.log, QStringLiteral("txtBefore"), QStringLiteral("fldTextField"));
    FakeField far(bench.grid.log, QStringLiteral("txtFar"), QStringLiteral("fldTextField"));
    FakeField after(bench.grid.log, QStringLiteral("txtAfter"), QStringLiteral("fldTextField"));
    before.tabIndex = 1;
    bench.grid.field.tabIndex = 4;
    after.tabIndex = 6;
    far.tabIndex = 9;
    bench.grid.controls = {&far, &bench.grid.field, &after, &before};
    bench.place(2, 3);
    bench.press(Qt::Key_Tab);
    QCOMPARE(bench.grid.log.take(), lines({"DropDownClose()", "Validate()", "txtAfter.SetFocus()"}));
    bench.place(0, 0);
    bench.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(bench.grid.log.take(), lines({"DropDownClose()", "Validate()", "txtBefore.SetFocus()"}));
}

void tst_grid_input::aRefusedCellHoldsTab() {
    Bench bench;
    bench.grid.refuses = true;
    bench.place(2, 3);
    QVERIFY(bench.press(Qt::Key_Tab));
    QCOMPARE(bench.grid.log.take(), lines({"DropDownClose()", "Validate()"}));
}

void tst_grid_input::tabNeverStaysCaught() {
    Bench bench;
    bench.grid.cells.setFocusPolicy(Qt::StrongFocus);
    bench.grid.window.show();
    bench.grid.cells.setFocus();
    bench.place(2, 3);
    bench.press(Qt::Key_Tab);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise TabToNextField")).size(), 1);
    QCOMPARE(bench.grid.window.focusWidget()->objectName(), QStringLiteral("cmdAdd"));
    bench.grid.cells.setFocus();
    bench.place(0, 0);
    bench.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(bench.grid.window.focusWidget()->objectName(), QStringLiteral("cmdDelete"));
}

void tst_grid_input::tabStopsThatTakeNoFocusArePassedOver() {
    CallLog log;
    FakeControl disabled(log, QStringLiteral("a"), QStringLiteral("Frame"));
    FakeControl hidden(log, QStringLiteral("b"), QStringLiteral("Frame"));
    FakeControl noStop(log, QStringLiteral("c"), QStringLiteral("Frame"));
    FakeControl good(log, QStringLiteral("d"), QStringLiteral("Frame"));
    disabled.hostEnabled = false;
    hidden.hostVisible = false;
    noStop.tabStop = false;
    qint32 index = 0;
    for (FakeControl *control : {&disabled, &hidden, &noStop, &good})
        control->tabIndex = ++index;
    const HostControls controls{&disabled, &hidden, &noStop, &good};
    QCOMPARE(NextTabStop(controls, 0, TabDirection::kForward), &good);
    QCOMPARE(NextTabStop(controls, 4, TabDirection::kForward), nullptr);
    QCOMPARE(NextTabStop(controls, 4, TabDirection::kBackward), nullptr);
    QCOMPARE(NextTabStop(controls, 5, TabDirection::kBackward), &good);
}

void tst_grid_input::entryByTabPlacesTheCursor_data() {
    QTest::addColumn<int>("reason");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("moves");
    QTest::newRow("Tab") << int(Qt::TabFocusReason) << kRows << lines({"MoveTo(0, 0)"});
    QTest::newRow("Shift+Tab") << int(Qt::BacktabFocusReason) << kRows
                               << lines({"MoveTo(2, 3)", "RebindIDTrackerDropdown()"});
    QTest::newRow("a click") << int(Qt::MouseFocusReason) << kRows << QStringList();
    QTest::newRow("empty") << int(Qt::TabFocusReason) << QStringList() << QStringList();
}

void tst_grid_input::entryByTabPlacesTheCursor() {
    QFETCH(const int, reason);
    QFETCH(const QStringList, rows);
    Bench bench;
    bench.grid.setRows(rows);
    bench.grid.column = 1;
    bench.operations.keys.TDBGrid1_GotFocus(Qt::FocusReason(reason));
    QTEST(bench.grid.log.take(), "moves");
}

void tst_grid_input::keysAreSwallowed_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("state"); // words: locked, fixed, norow, opening, edit
    QTest::addColumn<bool>("swallowed");
    QTest::addColumn<QString>("done");
    const auto add = [](const char *name, int key, int modifiers, const char *text, const char *state, bool swallowed,
                        const char *done = "") {
        QTest::newRow(name) << key << modifiers << QString::fromLatin1(text) << QString::fromLatin1(state) << swallowed
                            << QString::fromLatin1(done);
    };
    add("a letter", Qt::Key_A, 0, "a", "", false);
    add("a letter, locked", Qt::Key_A, 0, "a", "locked", true);
    add("a letter in the field names", Qt::Key_A, 0, "a", "fixed", true);
    add("a letter, no row", Qt::Key_A, 0, "a", "locked norow", false);
    add("a move, locked", Qt::Key_Down, 0, "", "locked", false);
    add("Enter, locked", Qt::Key_Return, 0, "\r", "locked", false);
    add("Delete, locked", Qt::Key_Delete, 0, "", "locked", true);
    add("Ctrl+C", Qt::Key_C, Qt::ControlModifier, "\3", "locked", true);
    add("Ctrl+C, editing", Qt::Key_C, Qt::ControlModifier, "\3", "edit", false);
    add("Ctrl+V", Qt::Key_V, Qt::ControlModifier, "\26", "", true,
        "BeginBatchUpdate()grdFreq.SetValue(x, false)EndBatchUpdate()");
    add("Ctrl+V, locked", Qt::Key_V, Qt::ControlModifier, "\26", "locked", true);
    add("Esc", Qt::Key_Escape, 0, "\33", "", true, "raise Escape()");
    add("Esc, locked", Qt::Key_Escape, 0, "\33", "locked", true);
    add("Esc, no row", Qt::Key_Escape, 0, "\33", "norow", false);
    add("Ctrl+Home", Qt::Key_Home, Qt::ControlModifier, "", "", true, "MoveFirst()");
    add("Ctrl+End", Qt::Key_End, Qt::ControlModifier, "", "", true, "MoveLast()");
    add("Home", Qt::Key_Home, 0, "", "", false);
    add("Shift+F1", Qt::Key_F1, Qt::ShiftModifier, "", "", true, "ShowCellHelp()");
    add("anything while a form opens", Qt::Key_Tab, 0, "\t", "opening", true);
}

void tst_grid_input::keysAreSwallowed() {
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, text);
    QFETCH(const QString, state);
    QFETCH(const QString, done);
    Bench bench;
    bench.grid.columns[0].locked = state.contains(QStringLiteral("locked"));
    bench.grid.design.Dynamic = !state.contains(QStringLiteral("fixed"));
    bench.grid.services.shell.changingForms = state.contains(QStringLiteral("opening"));
    bench.grid.editing = state.contains(QStringLiteral("edit"));
    bench.grid.services.clipboard.SetText(QStringLiteral("x"));
    if (state.contains(QStringLiteral("norow")))
        bench.grid.bookmark.reset();
    QTEST(bench.press(key, Qt::KeyboardModifiers(modifiers), text), "swallowed");
    QCOMPARE(bench.grid.log.take().join(QString()), done);
}

void tst_grid_input::buttonsRunUnlessTheCellIsRefused() {
    Bench bench;
    auto *add = bench.grid.window.findChild<QPushButton *>(QStringLiteral("cmdAdd"));
    bench.grid.refuses = true;
    add->click();
    QCOMPARE(bench.grid.log.take(), lines({"Validate()", "SetFocus()"}));
    bench.grid.refuses = false;
    add->click();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise AddRecord")).size(), 1);
    bench.operations.buttons.AcceleratorsEnabled(false);
    QCOMPARE(add->text(), QStringLiteral("Add"));
    bench.operations.buttons.AcceleratorsEnabled(true);
    QCOMPARE(add->text(), QStringLiteral("&Add"));
}

void tst_grid_input::buttonsStandFromTheRight() {
    FakeGridSurface grid;
    grid.design.ButtonRepeat = false;
    GridOperations operations(grid, grid.services.fieldServices());
    const TwipRect table = operations.buttons.place({Twips{9000}, Twips{3000}});
    QCOMPARE(table.height.count, 3000 - 315 - 150);
    const TwipScale scale = TwipScale::of(grid.window);
    const auto left = [&](const char *name) {
        return grid.window.findChild<QPushButton *>(QString::fromLatin1(name))->x();
    };
    QCOMPARE(left("cmdDelete"), scale.toPixels(Twips{7800}).count);
    QCOMPARE(left("cmdInsert"), scale.toPixels(Twips{6500}).count);
    QCOMPARE(left("cmdAdd"), scale.toPixels(Twips{5200}).count);
    QVERIFY(grid.window.findChild<QPushButton *>(QStringLiteral("cmdRepeat")) == nullptr);

    FakeGridSurface bare;
    bare.design = {};
    bare.design.ButtonAdd = bare.design.ButtonInsert = bare.design.ButtonRepeat = bare.design.ButtonDelete = false;
    GridOperations none(bare, bare.services.fieldServices());
    QCOMPARE(none.buttons.place({Twips{9000}, Twips{3000}}).height.count, 3000);
}

void tst_grid_input::menuOffersWhatApplies() {
    Bench bench;
    const auto enabled = [&](const char *name) {
        return bench.operations.menu.menu().findChild<QAction *>(QString::fromLatin1(name))->isEnabled();
    };
    bench.grid.component.when(QStringLiteral("GetFormIsDirty")).answers(true);
    bench.operations.menu.TDBGrid1_MouseDown();
    QVERIFY(!enabled("mnuPaste"));
    bench.grid.services.clipboard.SetText(QStringLiteral("x"));
    bench.operations.menu.mnuPopup_Click();
    QVERIFY(enabled("mnuPaste") && enabled("mnuCopy") && !enabled("mnuCut"));
}

void tst_grid_input::aCellMayBeDragged_data() {
    QTest::addColumn<QString>("state"); // words: readonly, off, disabled, refused
    QTest::addColumn<bool>("dragged");
    QTest::newRow("plain") << "" << true;
    QTest::newRow("a locked cell gives its value") << "locked" << true;
    QTest::newRow("read-only grid") << "readonly" << false;
    QTest::newRow("disabled grid") << "off" << false;
    QTest::newRow("disabled column") << "disabled" << false;
    QTest::newRow("present cell refused") << "refused" << false;
}

void tst_grid_input::aCellMayBeDragged() {
    QFETCH(const QString, state);
    Bench bench;
    bench.grid.design.ReadOnly = state == QStringLiteral("readonly");
    bench.grid.field.fieldEnabled = state != QStringLiteral("off");
    bench.grid.columns[1].enabled = state != QStringLiteral("disabled");
    bench.grid.columns[1].locked = state == QStringLiteral("locked");
    bench.grid.refuses = state == QStringLiteral("refused");
    QTEST(bench.operations.cellDrag.TDBGrid1_DragCell({1, 1}), "dragged");
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("MoveTo")).size(), bench.grid.column == 1 ? 1 : 0);
    QVERIFY(!bench.operations.cellDrag.TDBGrid1_DragCell({1, -1}));
}

void tst_grid_input::aDroppedCellIsAnEdit() {
    Bench bench;
    const auto data = CellDragData::make(bench.grid.cells, QStringLiteral("z"));
    QVERIFY(dragTo(bench.grid.cells, *data, kSecondName));
    QCOMPARE(bench.grid.log.take(),
             lines({"MoveTo(1, 1)", "grdFreq.SetValue(z, false)", "Validate()", "RowColChange(0)", "raise Change(2)"}));
    bench.grid.columns[1].locked = true;
    QVERIFY(!dragTo(bench.grid.cells, *data, kSecondName));
    QVERIFY(!dragTo(bench.grid.cells, *data, kOutside));
    QCOMPARE(bench.grid.log.take(), QStringList());
}

void tst_grid_input::aRefusedDropIsPutBack() {
    Bench bench;
    bench.grid.translated = true;
    bench.place(1, 2);
    bench.grid.on[QStringLiteral("GetComboItems")] = [&](const FieldEvent &event) {
        auto &items = event.parameter<XArrayDB &>(2);
        items.ReDim(0, 0);
        items.SetValue(0, 0, QStringLiteral("Fast"));
        bench.grid.refuses = true; // the component will not have it
    };
    bench.operations.cellDrag.TDBGrid1_DragDrop(QStringLiteral("Fast"), {25, 15});
    QCOMPARE(FakeGridSurface::rowsOf(bench.grid.display), kRows);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise Change")), QStringList());
}

void tst_grid_input::aCellStaysInItsWindow() {
    Bench bench;
    const QWidget elsewhere;
    const auto data = CellDragData::make(elsewhere, QStringLiteral("z"));
    QVERIFY(!dragTo(bench.grid.cells, *data, kSecondName));
    QVERIFY(!data->hasText());
}

void tst_grid_input::recordsAreDroppedAsText_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("buttonAdd");
    QTest::addColumn<bool>("taken");
    QTest::newRow("records") << QStringLiteral("a\tb\r\nc\td\r\n") << true << true;
    QTest::newRow("LF alone") << QStringLiteral("a\tb\nc\td") << true << true;
    QTest::newRow("one line") << QStringLiteral("a\tb") << true << false;
    QTest::newRow("no records can be added") << QStringLiteral("a\r\n") << false << false;
    QTest::newRow("a field") << QStringLiteral("TxFreq|fldTextField|1") << true << false;
}

void tst_grid_input::recordsAreDroppedAsText() {
    QFETCH(const QString, text);
    QFETCH(const bool, buttonAdd);
    QFETCH(const bool, taken);
    Bench bench;
    bench.grid.design.ButtonAdd = buttonAdd;
    QMimeData data;
    data.setText(text);
    const QMimeData *heard = nullptr;
    bench.grid.on[QStringLiteral("ImportRecordByDrop")] = [&](const FieldEvent &event) {
        heard = event.parameter<const QMimeData *>(2);
    };
    for (QWidget *surface : {&bench.grid.cells, &bench.grid.heads}) {
        QCOMPARE(dragTo(*surface, data, kOutside), taken);
        QCOMPARE(heard, taken ? &data : nullptr);
    }
    QCOMPARE(bench.grid.log.take(),
             taken ? lines({"raise ImportRecordByDrop(Nr|Name|Kind|Net)", "raise ImportRecordByDrop(Nr|Name|Kind|Net)"})
                   : QStringList());
}

QTEST_MAIN(tst_grid_input)
#include "tst_grid_input.moc"
