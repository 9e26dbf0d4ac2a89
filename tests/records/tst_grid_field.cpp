#include "cell_editor.h"
#include "fld_text_field.h"
#include "grid_bench.h"
#include "rows.h"
#include "tdb_drop_down.h"
#include "tdb_grid.h"
#include "window_input.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {
using WindowInput::key;
using WindowInput::type;

const QString kRx = u"RxFreq_q7r"_s;
const QString kTx = u"TxFreq_q7r"_s;
const QString kId = u"ChannelID_q7r"_s;
const QString kTone = u"RxSignalling_q7r"_s;
const QString kPower = u"TxPower_q7r"_s;

enum Column { kIdColumn, kRxColumn, kTxColumn, kToneColumn, kTxToneColumn, kPowerColumn, kNetworkColumn };

// The channels grid with this many channels, Rx frequencies from 150 MHz in steps of 12.5 kHz.
class Channels : public GridBench {
  public:
    explicit Channels(qint32 count, const QVariantMap &properties = {})
        : grid(addGrid(channelColumns(), properties)), table(GridBench::table(grid)) {
        component.SetProviderUpdateUIOnFieldChange(false);
        for (qint32 record = 1; record <= count; ++record)
            makeChannel(record);
        component.SetProviderUpdateUIOnFieldChange(true);
        QCoreApplication::processEvents();
    }
    void start() { GridBench::start(grid); }

    fldGridField &grid;
    TDBGrid &table;

    [[nodiscard]] GridCell at() const { return table.currentCell(); }
    void goTo(qint32 row, qint32 column) { table.MoveTo({row, column}); }
    [[nodiscard]] QString shownAt(qint32 row, qint32 column) const { return grid.CellValue(row, column); }

  private:
    void makeChannel(qint32 record) {
        bool ok = false;
        qint32 made = record;
        if (component.GetNumberOfRecords(kId) < record)
            component.AddRecord(kId, QString(), made, ok);
        component.SetValue(kRx, QString::number(150 + 0.0125 * (record - 1), 'f', 6), record, false, ok);
        component.SetValue(kTx, QString::number(151 + 0.0125 * (record - 1), 'f', 6), record, false, ok);
    }
};

} // namespace

class tst_grid_field final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void typingReplacesTheCellAndEnterGoesDown() {
        Channels bench(3);
        bench.start();
        bench.goTo(0, kRxColumn);
        type(u"155.5"_s);
        QVERIFY(bench.table.EditActive());
        QCOMPARE(bench.table.Text(), u"155.5"_s);
        key(Qt::Key_Return);
        QCOMPARE(bench.stored(kRx, 1), u"155.500000"_s);
        QCOMPARE(bench.shownAt(0, kRxColumn), u"155.500000"_s);
        QCOMPARE(bench.at(), (GridCell{1, kRxColumn}));
        QVERIFY(!bench.table.EditActive());
        type(u"156"_s);
        key(Qt::Key_Down);
        QCOMPARE(bench.stored(kRx, 2), u"156.000000"_s);
        type(u"157"_s);
        key(Qt::Key_Return); // on the last row it commits and stays
        QCOMPARE(bench.stored(kRx, 3), u"157.000000"_s);
        QCOMPARE(bench.at(), (GridCell{2, kRxColumn}));
        QVERIFY(!bench.table.EditActive());
    }

    void f2EditsWhatIsThere() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kRxColumn);
        key(Qt::Key_F2);
        QCOMPARE(bench.table.Text(), u"150.000000"_s);
        key(Qt::Key_End);
        key(Qt::Key_Backspace);
        key(Qt::Key_Backspace);
        QCOMPARE(bench.table.Text(), u"150.0000"_s);
        QCOMPARE(bench.stored(kRx, 1), u"150.000000"_s);
        QVERIFY(!bench.events.of(u"FieldHasChanged"_s).isEmpty()); // at the first keystroke
    }

    void keysMoveTheCursor() {
        // From row 2, column 3 of five rows.
        for (const auto &[key, modifiers, row, column] : Rows<int, int, int, int>{
                 {"up", int(Qt::Key_Up), 0, 1, 3},
                 {"down", int(Qt::Key_Down), 0, 3, 3},
                 {"left", int(Qt::Key_Left), 0, 2, 2},
                 {"right", int(Qt::Key_Right), 0, 2, 4},
                 {"home", int(Qt::Key_Home), 0, 2, 0},
                 {"end", int(Qt::Key_End), 0, 2, 8},
                 {"page up", int(Qt::Key_PageUp), 0, 0, 3},
                 {"page down", int(Qt::Key_PageDown), 0, 4, 3},
                 {"Ctrl+Home", int(Qt::Key_Home), int(Qt::ControlModifier), 0, 3},
                 {"Ctrl+End", int(Qt::Key_End), int(Qt::ControlModifier), 4, 3},
                 {"Enter", int(Qt::Key_Return), 0, 3, 3},
                 {"Tab", int(Qt::Key_Tab), 0, 2, 4},
                 {"Shift+Tab", int(Qt::Key_Backtab), int(Qt::ShiftModifier), 2, 2},
             }) {
            Channels bench(5);
            bench.start();
            bench.goTo(2, 3);
            WindowInput::key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
            QCOMPARE(bench.at(), (GridCell{row, column}));
            QVERIFY(bench.table.hasFocus());
            QCOMPARE(bench.events.of(u"MsgBox"_s), QStringList());
        }
    }

    void tabGoesFromCellToCellAndOut() {
        // Without buttons, which Shift+Tab would come to first.
        Channels bench(2, {{u"ButtonAdd"_s, false},
                           {u"ButtonInsert"_s, false},
                           {u"ButtonRepeat"_s, false},
                           {u"ButtonDelete"_s, false}});
        auto &after =
            bench.add<fldTextField>(u"after"_s, {{100}, {5500}, {3000}, {500}}, {{u"ID"_s, u"EconomyTimer"_s}});
        bench.start();
        bench.goTo(0, 8);
        key(Qt::Key_Tab);
        QCOMPARE(bench.at(), (GridCell{1, 0}));
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(bench.at(), (GridCell{0, 8}));
        bench.goTo(1, 8);
        key(Qt::Key_Tab);
        QVERIFY(!bench.table.hasFocus());
        QVERIFY(after.isAncestorOf(QApplication::focusWidget()));
        auto *text = after.findChild<QLineEdit *>(u"Text1"_s);
        QCOMPARE(text->selectedText(), text->text()); // as after any other Tab
        bench.goTo(0, 3);
        key(Qt::Key_Backtab, Qt::ShiftModifier); // comes back to the last cell
        QVERIFY(bench.table.hasFocus());
        QCOMPARE(bench.at(), (GridCell{1, 8}));
    }

    void refusedCellHoldsCursorAndFocus() {
        Channels bench(2);
        auto &after =
            bench.add<fldTextField>(u"after"_s, {{100}, {5500}, {3000}, {500}}, {{u"ID"_s, u"EconomyTimer"_s}});
        bench.start();
        bench.goTo(0, kRxColumn);
        type(u"999"_s);
        const QList<std::pair<Qt::Key, Qt::KeyboardModifiers>> ways{
            {Qt::Key_Return, {}}, {Qt::Key_Down, {}}, {Qt::Key_Tab, {}}, {Qt::Key_Backtab, Qt::ShiftModifier}};
        for (const auto &[way, modifiers] : ways) {
            bench.events.clear();
            key(way, modifiers);
            QCOMPARE(bench.events.messages.size(), 1);
            QCOMPARE(bench.at(), (GridCell{0, kRxColumn}));
            QVERIFY(bench.grid.isAncestorOf(QApplication::focusWidget()));
        }
        bench.events.clear();
        WindowInput::click(after);
        QCOMPARE(bench.events.messages.size(), 1);
        QVERIFY(bench.grid.isAncestorOf(QApplication::focusWidget()));
        const QRect other = bench.table.visualRect(bench.table.model()->index(1, 2));
        WindowInput::clickAt(*bench.table.viewport(), other.center());
        QCOMPARE(bench.at(), (GridCell{0, kRxColumn}));
        QCOMPARE(bench.stored(kRx, 1), u"150.000000"_s);
        type(u"160"_s); // and can be put right at once
        key(Qt::Key_Return);
        QCOMPARE(bench.stored(kRx, 1), u"160.000000"_s);
    }

    void escapeBringsTheStoredValueBack() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kRxColumn);
        for (const bool refusedFirst : {false, true}) {
            type(u"999"_s);
            if (refusedFirst)
                key(Qt::Key_Return);
            key(Qt::Key_Escape);
            QVERIFY(!bench.table.EditActive());
            QCOMPARE(bench.shownAt(0, kRxColumn), u"150.000000"_s);
            QVERIFY(bench.table.hasFocus());
        }
        bench.events.clear();
        bench.goTo(0, kTxColumn);
        QCOMPARE(bench.events.messages, QStringList());
        QCOMPARE(bench.stored(kRx, 1), u"150.000000"_s);
    }

    void lettersChooseInAListCell() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kToneColumn);
        type(u"82"_s);
        const QString tone = bench.table.Text();
        QVERIFY2(tone.startsWith(u"82.5"_s), qPrintable(tone));
        QCOMPARE(bench.stored(kTone, 1), u"None"_s);
        bench.events.enabler->Ienabler_ForceSaveToCurrentField(); // a save does not miss it
        QCOMPARE(bench.stored(kTone, 1), tone);
        type(u"8"_s);
        key(Qt::Key_Tab);
        QCOMPARE(bench.stored(kTone, 1), tone);
        bench.goTo(0, kPowerColumn);
        const QString before = bench.shownAt(0, kPowerColumn);
        type(u"~"_s); // begins no item
        key(Qt::Key_Tab);
        QCOMPARE(bench.shownAt(0, kPowerColumn), before);
        bench.goTo(0, kPowerColumn);
        type(u"l"_s);
        key(Qt::Key_Return);
        QCOMPARE(bench.shownAt(0, kPowerColumn), u"Low"_s);
        bench.goTo(0, kToneColumn);
        type(u"n"_s);
        key(Qt::Key_Escape);
        QCOMPARE(bench.shownAt(0, kToneColumn), tone);
    }

    void choiceInTheListIsWrittenAtOnce() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kPowerColumn);
        const QString before = bench.stored(kPower, 1);
        key(Qt::Key_F4);
        TDBDropDown &list = bench.table.dropDown();
        QVERIFY(list.isVisible());
        QCOMPARE(list.items().value(list.bookmark()), bench.shownAt(0, kPowerColumn));
        key(Qt::Key_Escape);
        QVERIFY(!list.isVisible());
        QCOMPARE(bench.stored(kPower, 1), before);
        key(Qt::Key_Down, Qt::AltModifier);
        const int other = list.bookmark() == 0 ? 1 : 0;
        const QString item = list.items().value(other);
        list.setBookmark(other);
        key(Qt::Key_Return);
        QVERIFY(!list.isVisible());
        QCOMPARE(bench.shownAt(0, kPowerColumn), item);
        QVERIFY(bench.stored(kPower, 1) != before);
        QVERIFY(!bench.table.EditActive());
        QCOMPARE(bench.at(), (GridCell{0, kPowerColumn}));
        // By the mouse: the button of the current cell, then the item.
        const QRect cell = bench.table.CellRect();
        WindowInput::clickAt(*bench.table.viewport(), QPoint(cell.right() - 4, cell.center().y()));
        QVERIFY(list.isVisible());
        auto *view = list.findChild<QListWidget *>();
        const QListWidgetItem *stored = view->item(before.toInt());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(stored).center());
        QCOMPARE(bench.stored(kPower, 1), before);
    }

    void tabInTheListChoosesAndGoesOn() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kToneColumn);
        key(Qt::Key_F4);
        type(u"100"_s);
        key(Qt::Key_Tab);
        QCOMPARE(bench.stored(kTone, 1), u"100.0 Hz"_s);
        QCOMPARE(bench.at(), (GridCell{0, kTxToneColumn}));
    }

    void emptiedListCellIsRestored() {
        Channels bench(1);
        bench.start();
        for (const qint32 column : {qint32(kPowerColumn), qint32(kToneColumn)}) {
            bench.goTo(0, column);
            const QString before = bench.shownAt(0, column);
            key(Qt::Key_Delete);
            QCOMPARE(bench.table.Text(), QString());
            key(Qt::Key_Right);
            bench.goTo(0, kIdColumn);
            QCOMPARE(bench.shownAt(0, column), before);
        }
        QCOMPARE(bench.events.messages, QStringList());
    }

    void keysThatMayNotBeTypedDoNothing() {
        Channels bench(1);
        bench.start();
        bench.goTo(0, kRxColumn);
        type(u"x"_s);
        QVERIFY(!bench.table.EditActive());
        type(u"1x5"_s);
        QCOMPARE(bench.table.Text(), u"15"_s);
    }

    void rowHeadsSelectABlock() {
        Channels bench(6);
        bench.start();
        const QHeaderView &heads = *bench.table.verticalHeader();
        const auto press = [&](int row, Qt::KeyboardModifiers modifiers) {
            const QPoint place(heads.width() / 2, heads.sectionViewportPosition(row) + 4);
            QTest::mouseClick(heads.viewport(), Qt::LeftButton, modifiers, place);
        };
        using Rows = std::vector<qint32>;
        press(3, {});
        QCOMPARE(bench.table.SelBookmarks(), (Rows{3}));
        press(1, Qt::ShiftModifier);
        QCOMPARE(bench.table.SelBookmarks(), (Rows{1, 2, 3}));
        QCOMPARE(bench.at().row, 1);
        press(4, Qt::ControlModifier);
        QCOMPARE(bench.table.SelBookmarks(), (Rows{1, 2, 3, 4}));
        press(2, {}); // at the release: a press on a selected head may begin a drag of the block
        QCOMPARE(bench.table.SelBookmarks(), (Rows{2}));
        key(Qt::Key_Down); // any other move of the cursor ends the selection
        QVERIFY(bench.table.SelBookmarks().empty());
        bench.table.selectAll();
        QCOMPARE(bench.table.SelBookmarks().size(), std::size_t(6));
        bench.events.enabler->Ienabler_RefreshGridByUIID(kId);
        QCOMPARE(bench.table.SelBookmarks().size(), std::size_t(6));
        QCoreApplication::processEvents();
        const QModelIndex selected = bench.table.model()->index(2, 5);
        QVERIFY(bench.table.selectionModel()->isSelected(selected));
    }

    void refusedMoveSelectsNothing() {
        Channels bench(4);
        bench.start();
        bench.goTo(0, kRxColumn);
        type(u"999"_s);
        bench.events.clear();
        bench.table.AddSelBookmark(2);
        QVERIFY(bench.table.SelBookmarks().empty());
        QCOMPARE(bench.at().row, 0);
        QCOMPARE(bench.events.messages.size(), 1);
        bench.events.clear();
        bench.goTo(0, kTxColumn);
        QCOMPARE(bench.events.messages.size(), 1);
    }

    void cutTextsHaveATip() {
        Channels bench(1);
        bench.start();
        const auto tipOf = [&](qint32 column) {
            const QRect cell = bench.table.visualRect(bench.table.model()->index(0, column));
            QHelpEvent event(QEvent::ToolTip, cell.center(), bench.table.viewport()->mapToGlobal(cell.center()));
            QToolTip::hideText();
            QCoreApplication::sendEvent(bench.table.viewport(), &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        bench.table.setColumnWidth(kToneColumn, 200);
        QCOMPARE(tipOf(kToneColumn), QString());
        bench.table.setColumnWidth(kRxColumn, 30);
        QVERIFY(tipOf(kRxColumn).contains(u"150.000000"_s));
    }

    void assistiveToolsReadAndWriteCells() {
        Channels bench(2);
        bench.start();
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&bench.table);
        QCOMPARE(table->role(), QAccessible::Table);
        QVERIFY(table->text(QAccessible::Name).contains(u"Rx Frequency"_s));
        QAccessibleTableInterface *cells = table->tableInterface();
        QCOMPARE(cells->rowCount(), 2);
        QCOMPARE(cells->columnDescription(kRxColumn), u"Rx Frequency"_s);
        QCOMPARE(cells->rowDescription(1), u"2"_s);
        // In front of the cells stand the heads, with the corner first.
        const int across = cells->columnCount() + 1;
        QCOMPARE(table->child(1 + kRxColumn)->role(), QAccessible::ColumnHeader);
        QCOMPARE(table->child(1 + kRxColumn)->text(QAccessible::Name), u"Rx Frequency"_s);
        QCOMPARE(table->child(2 * across)->role(), QAccessible::RowHeader);
        QCOMPARE(table->child(2 * across)->text(QAccessible::Name), u"2"_s);
        bench.table.AddSelBookmark(1);
        QTRY_VERIFY(cells->isRowSelected(1) && !cells->isRowSelected(0));
        QAccessibleInterface *cell = cells->cellAt(1, kRxColumn);
        QCOMPARE(cell->role(), QAccessible::Cell);
        QCOMPARE(cell->text(QAccessible::Name), u"150.012500"_s);
        QCOMPARE(cell->text(QAccessible::Description), u"Rx Frequency 2"_s);
        cell->setText(QAccessible::Value, u"155.25"_s);
        QCOMPARE(bench.stored(kRx, 2), u"155.250000"_s);
        cell->setText(QAccessible::Value, u"999"_s);
        QCOMPARE(bench.events.messages.size(), 1);
        QCOMPARE(bench.shownAt(1, kRxColumn), u"155.250000"_s);
        cells->cellAt(0, kPowerColumn)->setText(QAccessible::Value, u"Low"_s);
        QCOMPARE(bench.shownAt(0, kPowerColumn), u"Low"_s);
        cells->cellAt(0, kPowerColumn)->setText(QAccessible::Value, u"No such item"_s);
        QCOMPARE(bench.shownAt(0, kPowerColumn), u"Low"_s);
        key(Qt::Key_F2);
        key(Qt::Key_Escape);
        bench.goTo(0, kRxColumn);
        key(Qt::Key_F2);
        QCOMPARE(bench.table.editor().box().accessibleName(), u"Rx Frequency"_s);
    }
};

QTEST_MAIN(tst_grid_field)
#include "tst_grid_field.moc"
