#include "cell_drag_data.h"
#include "fake_grid_surface.h"
#include "grid_operations.h"
#include "rows.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

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
    void tabGoesFromCellToCell() {
        // from: column and row; to: empty where the key leads out
        for (const auto &[dynamic, from, back, to] : Rows<bool, QPoint, bool, QString>{
                 {"next cell", true, {0, 0}, false, u"MoveTo(0, 1)"_s},
                 {"next row", true, {3, 0}, false, u"MoveTo(1, 0)"_s},
                 {"last cell", true, {3, 2}, false, u""_s},
                 {"cell before", true, {1, 1}, true, u"MoveTo(1, 0)"_s},
                 {"row before", true, {0, 1}, true, u"MoveTo(0, 3)"_s},
                 {"first cell", true, {0, 0}, true, u""_s},
                 {"no field names: next row", false, {3, 0}, false, u"MoveTo(1, 1)"_s},
                 {"no field names: row before", false, {1, 1}, true, u"MoveTo(0, 3)"_s},
                 {"no field names: first cell", false, {1, 0}, true, u""_s},
             }) {
            Bench bench;
            bench.grid.design.Dynamic = dynamic;
            bench.place(from.y(), from.x());
            const QKeyEvent key(QEvent::KeyPress, back ? Qt::Key_Backtab : Qt::Key_Tab,
                                back ? Qt::ShiftModifier : Qt::NoModifier);
            QCOMPARE(bench.operations.keys.TabLeaves(key), to.isEmpty());
            QVERIFY(bench.operations.keys.TDBGrid1_KeyDown(key));
            QCOMPARE(bench.grid.log.linesOf(u"MoveTo"_s).join(QString()), to);
            QCOMPARE(bench.grid.log.lines().first(), u"DropDownClose()"_s);
        }
    }

    void tabNeverStaysCaught() {
        Bench bench;
        bench.grid.cells.setFocusPolicy(Qt::StrongFocus);
        bench.grid.window.show();
        bench.grid.cells.setFocus();
        bench.place(2, 3);
        bench.press(Qt::Key_Tab);
        QCOMPARE(bench.grid.log.linesOf(u"raise TabToNextField"_s).size(), 1);
        QCOMPARE(bench.grid.window.focusWidget()->objectName(), u"cmdAdd"_s);
        bench.grid.cells.setFocus();
        bench.place(0, 0);
        bench.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(bench.grid.window.focusWidget()->objectName(), u"cmdDelete"_s);
    }

    void tabStopsThatTakeNoFocusArePassedOver() {
        CallLog log;
        FakeControl disabled(log, u"a"_s, u"Frame"_s);
        FakeControl hidden(log, u"b"_s, u"Frame"_s);
        FakeControl noStop(log, u"c"_s, u"Frame"_s);
        FakeControl good(log, u"d"_s, u"Frame"_s);
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

    void entryByTabPlacesTheCursor() {
        for (const auto &[reason, rows, moves] : Rows<int, QStringList, QStringList>{
                 {"Tab", int(Qt::TabFocusReason), kRows, lines({"MoveTo(0, 0)"})},
                 {"Shift+Tab", int(Qt::BacktabFocusReason), kRows,
                  lines({"MoveTo(2, 3)", "RebindIDTrackerDropdown()"})},
                 {"a click", int(Qt::MouseFocusReason), kRows, {}},
                 {"empty", int(Qt::TabFocusReason), {}, {}},
             }) {
            Bench bench;
            bench.grid.setRows(rows);
            bench.grid.column = 1;
            bench.operations.keys.TDBGrid1_GotFocus(Qt::FocusReason(reason));
            QCOMPARE(bench.grid.log.take(), moves);
        }
    }

    void keysAreSwallowed() {
        // state: words of locked, fixed, norow, opening, edit
        for (const auto &[key, modifiers, text, state, swallowed, done] :
             Rows<int, int, QString, QString, bool, QString>{
                 {"a letter", Qt::Key_A, 0, u"a"_s, u""_s, false, u""_s},
                 {"a letter, locked", Qt::Key_A, 0, u"a"_s, u"locked"_s, true, u""_s},
                 {"a letter in the field names", Qt::Key_A, 0, u"a"_s, u"fixed"_s, true, u""_s},
                 {"a letter, no row", Qt::Key_A, 0, u"a"_s, u"locked norow"_s, false, u""_s},
                 {"a move, locked", Qt::Key_Down, 0, u""_s, u"locked"_s, false, u""_s},
                 {"Enter, locked", Qt::Key_Return, 0, u"\r"_s, u"locked"_s, false, u""_s},
                 {"Delete, locked", Qt::Key_Delete, 0, u""_s, u"locked"_s, true, u""_s},
                 {"Ctrl+C", Qt::Key_C, Qt::ControlModifier, u"\3"_s, u"locked"_s, true, u""_s},
                 {"Ctrl+C, editing", Qt::Key_C, Qt::ControlModifier, u"\3"_s, u"edit"_s, false, u""_s},
                 {"Ctrl+V", Qt::Key_V, Qt::ControlModifier, u"\26"_s, u""_s, true,
                  u"BeginBatchUpdate()grdFreq.SetValue(x, false)EndBatchUpdate()"_s},
                 {"Ctrl+V, locked", Qt::Key_V, Qt::ControlModifier, u"\26"_s, u"locked"_s, true, u""_s},
                 {"Esc", Qt::Key_Escape, 0, u"\33"_s, u""_s, true, u"raise Escape()"_s},
                 {"Esc, locked", Qt::Key_Escape, 0, u"\33"_s, u"locked"_s, true, u""_s},
                 {"Esc, no row", Qt::Key_Escape, 0, u"\33"_s, u"norow"_s, false, u""_s},
                 {"Ctrl+Home", Qt::Key_Home, Qt::ControlModifier, u""_s, u""_s, true, u"MoveFirst()"_s},
                 {"Ctrl+End", Qt::Key_End, Qt::ControlModifier, u""_s, u""_s, true, u"MoveLast()"_s},
                 {"Home", Qt::Key_Home, 0, u""_s, u""_s, false, u""_s},
                 {"Shift+F1", Qt::Key_F1, Qt::ShiftModifier, u""_s, u""_s, true, u"ShowCellHelp()"_s},
                 {"anything while a form opens", Qt::Key_Tab, 0, u"\t"_s, u"opening"_s, true, u""_s},
             }) {
            Bench bench;
            bench.grid.columns[0].locked = state.contains(u"locked"_s);
            bench.grid.design.Dynamic = !state.contains(u"fixed"_s);
            bench.grid.services.shell.changingForms = state.contains(u"opening"_s);
            bench.grid.editing = state.contains(u"edit"_s);
            bench.grid.services.clipboard.SetText(u"x"_s);
            if (state.contains(u"norow"_s))
                bench.grid.bookmark.reset();
            QCOMPARE(bench.press(key, Qt::KeyboardModifiers(modifiers), text), swallowed);
            QCOMPARE(bench.grid.log.take().join(QString()), done);
        }
    }

    void buttonsRunUnlessTheCellIsRefused() {
        Bench bench;
        auto *add = bench.grid.window.findChild<QPushButton *>(u"cmdAdd"_s);
        bench.grid.refuses = true;
        add->click();
        QCOMPARE(bench.grid.log.take(), lines({"Validate()", "SetFocus()"}));
        for (const bool enabled : {false, true}) {
            bench.operations.buttons.AcceleratorsEnabled(enabled);
            QCOMPARE(add->text(), enabled ? u"&Add"_s : u"Add"_s);
        }
    }

    void buttonsStandFromTheRight() {
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
        QVERIFY(grid.window.findChild<QPushButton *>(u"cmdRepeat"_s) == nullptr);
    }

    void menuOffersWhatApplies() {
        Bench bench;
        const auto enabled = [&](const char *name) {
            return bench.operations.menu.menu().findChild<QAction *>(QString::fromLatin1(name))->isEnabled();
        };
        bench.grid.component.when(u"GetFormIsDirty"_s).answers(true);
        bench.operations.menu.TDBGrid1_MouseDown();
        QVERIFY(!enabled("mnuPaste"));
        bench.grid.services.clipboard.SetText(u"x"_s);
        bench.operations.menu.mnuPopup_Click();
        QVERIFY(enabled("mnuPaste") && enabled("mnuCopy") && !enabled("mnuCut"));
    }

    void aCellMayBeDragged() {
        // state: one of readonly, off, disabled, refused
        for (const auto &[state, dragged] : Rows<QString, bool>{
                 {"plain", u""_s, true},
                 {"a locked cell gives its value", u"locked"_s, true},
                 {"read-only grid", u"readonly"_s, false},
                 {"disabled grid", u"off"_s, false},
                 {"disabled column", u"disabled"_s, false},
                 {"present cell refused", u"refused"_s, false},
             }) {
            Bench bench;
            bench.grid.design.ReadOnly = state == u"readonly"_s;
            bench.grid.field.fieldEnabled = state != u"off"_s;
            bench.grid.columns[1].enabled = state != u"disabled"_s;
            bench.grid.columns[1].locked = state == u"locked"_s;
            bench.grid.refuses = state == u"refused"_s;
            QCOMPARE(bench.operations.cellDrag.TDBGrid1_DragCell({1, 1}), dragged);
            QCOMPARE(bench.grid.log.linesOf(u"MoveTo"_s).size(), bench.grid.column == 1 ? 1 : 0);
            QVERIFY(!bench.operations.cellDrag.TDBGrid1_DragCell({1, -1}));
        }
    }

    void aDroppedCellIsAnEdit() {
        Bench bench;
        const auto data = CellDragData::make(bench.grid.cells, u"z"_s);
        QVERIFY(dragTo(bench.grid.cells, *data, kSecondName));
        QCOMPARE(bench.grid.log.take(), lines({"MoveTo(1, 1)", "grdFreq.SetValue(z, false)", "Validate()",
                                               "RowColChange(0)", "raise Change(2)"}));
        bench.grid.columns[1].locked = true;
        QVERIFY(!dragTo(bench.grid.cells, *data, kSecondName));
        QVERIFY(!dragTo(bench.grid.cells, *data, kOutside));
        QCOMPARE(bench.grid.log.take(), QStringList());
    }

    void aCellStaysInItsWindow() {
        Bench bench;
        const QWidget elsewhere;
        const auto data = CellDragData::make(elsewhere, u"z"_s);
        QVERIFY(!dragTo(bench.grid.cells, *data, kSecondName));
        QVERIFY(!data->hasText());
    }

    void recordsAreDroppedAsText() {
        for (const auto &[text, buttonAdd, taken] : Rows<QString, bool, bool>{
                 {"records", u"a\tb\r\nc\td\r\n"_s, true, true},
                 {"LF alone", u"a\tb\nc\td"_s, true, true},
                 {"one line", u"a\tb"_s, true, false},
                 {"no records can be added", u"a\r\n"_s, false, false},
                 {"a field", u"TxFreq|fldTextField|1"_s, true, false},
             }) {
            Bench bench;
            bench.grid.design.ButtonAdd = buttonAdd;
            QMimeData data;
            data.setText(text);
            const QMimeData *heard = nullptr;
            bench.grid.on[u"ImportRecordByDrop"_s] = [&](const FieldEvent &event) {
                heard = event.parameter<const QMimeData *>(2);
            };
            for (QWidget *surface : {&bench.grid.cells, &bench.grid.heads}) {
                QCOMPARE(dragTo(*surface, data, kOutside), taken);
                QCOMPARE(heard, taken ? &data : nullptr);
            }
            QCOMPARE(bench.grid.log.take(), taken ? lines({"raise ImportRecordByDrop(Nr|Name|Kind|Net)",
                                                           "raise ImportRecordByDrop(Nr|Name|Kind|Net)"})
                                                  : QStringList());
        }
    }
};

QTEST_MAIN(tst_grid_input)
#include "tst_grid_input.moc"
