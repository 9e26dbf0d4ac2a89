#include "cell_editor.h"
#include "fld_text_field.h"
#include "grid_bench.h"
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

namespace {
using WindowInput::key;
using WindowInput::type;

const QString kRx = QStringLiteral("RxFreq_q7r");
const QString kTx = QStringLiteral("TxFreq_q7r");
const QString kId = QStringLiteral("ChannelID_q7r");
const QString kTone = QStringLiteral("RxSignalling_q7r");
const QString kPower = QStringLiteral("TxPower_q7r");

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
    void typingReplacesTheCellAndEnterGoesDown();
    void f2EditsWhatIsThere();
    void keysMoveTheCursor_data();
    void keysMoveTheCursor();
    void tabGoesFromCellToCellAndOut();
    void refusedCellHoldsCursorAndFocus();
    void escapeBringsTheStoredValueBack();
    void lettersChooseInAListCell();
    void choiceInTheListIsWrittenAtOnce();
    void tabInTheListChoosesAndGoesOn();
    void emptiedListCellIsRestored();
    void keysThatMayNotBeTypedDoNothing();
    void rowHeadsSelectABlock();
    void refusedMoveSelectsNothing();
    void cutTextsHaveATip();
    void assistiveToolsReadAndWriteCells();
};

void tst_grid_field::typingReplacesTheCellAndEnterGoesDown() {
    Channels bench(3);
    bench.start();
    bench.goTo(0, kRxColumn);
    type(QStringLiteral("155.5"));
    QVERIFY(bench.table.EditActive());
    QCOMPARE(bench.table.Text(), QStringLiteral("155.5"));
    key(Qt::Key_Return);
    QCOMPARE(bench.stored(kRx, 1), QStringLiteral("155.500000"));
    QCOMPARE(bench.shownAt(0, kRxColumn), QStringLiteral("155.500000"));
    QCOMPARE(bench.at(), (GridCell{1, kRxColumn}));
    QVERIFY(!bench.table.EditActive());
    type(QStringLiteral("156"));
    key(Qt::Key_Down);
    QCOMPARE(bench.stored(kRx, 2), QStringLiteral("156.000000"));
    type(QStringLiteral("157"));
    key(Qt::Key_Return); // on the last row it commits and stays
    QCOMPARE(bench.stored(kRx, 3), QStringLiteral("157.000000"));
    QCOMPARE(bench.at(), (GridCell{2, kRxColumn}));
    QVERIFY(!bench.table.EditActive());
}

void tst_grid_field::f2EditsWhatIsThere() {
    Channels bench(1);
    bench.start();
    bench.goTo(0, kRxColumn);
    key(Qt::Key_F2);
    QCOMPARE(bench.table.Text(), QStringLiteral("150.000000"));
    key(Qt::Key_End);
    key(Qt::Key_Backspace);
    key(Qt::Key_Backspace);
    QCOMPARE(bench.table.Text(), QStringLiteral("150.0000"));
    QCOMPARE(bench.stored(kRx, 1), QStringLiteral("150.000000"));
    QVERIFY(!bench.events.of(QStringLiteral("FieldHasChanged")).isEmpty()); // at the first keystroke
}

void tst_grid_field::keysMoveTheCursor_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    const auto add = [](const char *name, Qt::Key pressed, Qt::KeyboardModifiers modifiers, int row, int column) {
        QTest::newRow(name) << int(pressed) << int(modifiers) << row << column;
    };
    // From row 2, column 3 of five rows.
    add("up", Qt::Key_Up, {}, 1, 3);
    add("down", Qt::Key_Down, {}, 3, 3);
    add("left", Qt::Key_Left, {}, 2, 2);
    add("right", Qt::Key_Right, {}, 2, 4);
    add("home", Qt::Key_Home, {}, 2, 0);
    add("end", Qt::Key_End, {}, 2, 8);
    add("page up", Qt::Key_PageUp, {}, 0, 3);
    add("page down", Qt::Key_PageDown, {}, 4, 3);
    add("Ctrl+Home", Qt::Key_Home, Qt::ControlModifier, 0, 3);
    add("Ctrl+End", Qt::Key_End, Qt::ControlModifier, 4, 3);
    add("Enter", Qt::Key_Return, {}, 3, 3);
    add("Tab", Qt::Key_Tab, {}, 2, 4);
    add("Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, 2, 2);
}

void tst_grid_field::keysMoveTheCursor() {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, row);
    QFETCH(int, column);
    Channels bench(5);
    bench.start();
    bench.goTo(2, 3);
    WindowInput::key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(bench.at(), (GridCell{row, column}));
    QVERIFY(bench.table.hasFocus());
    QCOMPARE(bench.events.of(QStringLiteral("MsgBox")), QStringList());
}

void tst_grid_field::tabGoesFromCellToCellAndOut() {
    // Without buttons, which Shift+Tab would come to first.
    Channels bench(2, {{QStringLiteral("ButtonAdd"), false},
                       {QStringLiteral("ButtonInsert"), false},
                       {QStringLiteral("ButtonRepeat"), false},
                       {QStringLiteral("ButtonDelete"), false}});
    auto &after = bench.add<fldTextField>(QStringLiteral("after"), {{100}, {5500}, {3000}, {500}},
                                          {{QStringLiteral("ID"), QStringLiteral("EconomyTimer")}});
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
    auto *text = after.findChild<QLineEdit *>(QStringLiteral("Text1"));
    QCOMPARE(text->selectedText(), text->text()); // as after any other Tab
    bench.goTo(0, 3);
    key(Qt::Key_Backtab, Qt::ShiftModifier); // comes back to the last cell
    QVERIFY(bench.table.hasFocus());
    QCOMPARE(bench.at(), (GridCell{1, 8}));
}

void tst_grid_field::refusedCellHoldsCursorAndFocus() {
    Channels bench(2);
    auto &after = bench.add<fldTextField>(QStringLiteral("after"), {{100}, {5500}, {3000}, {500}},
                                          {{QStringLiteral("ID"), QStringLiteral("EconomyTimer")}});
    bench.start();
    bench.goTo(0, kRxColumn);
    type(QStringLiteral("999"));
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
    QCOMPARE(bench.stored(kRx, 1), QStringLiteral("150.000000"));
    type(QStringLiteral("160")); // and can be put right at once
    key(Qt::Key_Return);
    QCOMPARE(bench.stored(kRx, 1), QStringLiteral("160.000000"));
}

void tst_grid_field::escapeBringsTheStoredValueBack() {
    Channels bench(1);
    bench.start();
    bench.goTo(0, kRxColumn);
    for (const bool refusedFirst : {false, true}) {
        type(QStringLiteral("999"));
        if (refusedFirst)
            key(Qt::Key_Return);
        key(Qt::Key_Escape);
        QVERIFY(!bench.table.EditActive());
        QCOMPARE(bench.shownAt(0, kRxColumn), QStringLiteral("150.000000"));
        QVERIFY(bench.table.hasFocus());
    }
    bench.events.clear();
    bench.goTo(0, kTxColumn);
    QCOMPARE(bench.events.messages, QStringList());
    QCOMPARE(bench.stored(kRx, 1), QStringLiteral("150.000000"));
}

void tst_grid_field::lettersChooseInAListCell() {
    Channels bench(1);
    bench.start();
    bench.goTo(0, kToneColumn);
    type(QStringLiteral("82"));
    const QString tone = bench.table.Text();
    QVERIFY2(tone.startsWith(QStringLiteral("82.5")), qPrintable(tone));
    QCOMPARE(bench.stored(kTone, 1), QStringLiteral("None"));
    bench.events.enabler->Ienabler_ForceSaveToCurrentField(); // a save does not miss it
    QCOMPARE(bench.stored(kTone, 1), tone);
    type(QStringLiteral("8"));
    key(Qt::Key_Tab);
    QCOMPARE(bench.stored(kTone, 1), tone);
    bench.goTo(0, kPowerColumn);
    const QString before = bench.shownAt(0, kPowerColumn);
    type(QStringLiteral("~")); // begins no item
    key(Qt::Key_Tab);
    QCOMPARE(bench.shownAt(0, kPowerColumn), before);
    bench.goTo(0, kPowerColumn);
    type(QStringLiteral("l"));
    key(Qt::Key_Return);
    QCOMPARE(bench.shownAt(0, kPowerColumn), QStringLiteral("Low"));
    bench.goTo(0, kToneColumn);
    type(QStringLiteral("n"));
    key(Qt::Key_Escape);
    QCOMPARE(bench.shownAt(0, kToneColumn), tone);
}

void tst_grid_field::choiceInTheListIsWrittenAtOnce() {
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

void tst_grid_field::tabInTheListChoosesAndGoesOn() {
    Channels bench(1);
    bench.start();
    bench.goTo(0, kToneColumn);
    key(Qt::Key_F4);
    type(QStringLiteral("100"));
    key(Qt::Key_Tab);
    QCOMPARE(bench.stored(kTone, 1), QStringLiteral("100.0 Hz"));
    QCOMPARE(bench.at(), (GridCell{0, kTxToneColumn}));
}

void tst_grid_field::emptiedListCellIsRestored() {
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

void tst_grid_field::keysThatMayNotBeTypedDoNothing() {
    Channels bench(1);
    bench.start();
    bench.goTo(0, kRxColumn);
    type(QStringLiteral("x"));
    QVERIFY(!bench.table.EditActive());
    type(QStringLiteral("1x5"));
    QCOMPARE(bench.table.Text(), QStringLiteral("15"));
}

void tst_grid_field::rowHeadsSelectABlock() {
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

void tst_grid_field::refusedMoveSelectsNothing() {
    Channels bench(4);
    bench.start();
    bench.goTo(0, kRxColumn);
    type(QStringLiteral("999"));
    bench.events.clear();
    bench.table.AddSelBookmark(2);
    QVERIFY(bench.table.SelBookmarks().empty());
    QCOMPARE(bench.at().row, 0);
    QCOMPARE(bench.events.messages.size(), 1);
    bench.events.clear();
    bench.goTo(0, kTxColumn);
    QCOMPARE(bench.events.messages.size(), 1);
}

void tst_grid_field::cutTextsHaveATip() {
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
    QVERIFY(tipOf(kRxColumn).contains(QStringLiteral("150.000000")));
}

void tst_grid_field::assistiveToolsReadAndWriteCells() {
    Channels bench(2);
    bench.start();
    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&bench.table);
    QCOMPARE(table->role(), QAccessible::Table);
    QVERIFY(table->text(QAccessible::Name).contains(QStringLiteral("Rx Frequency")));
    QAccessibleTableInterface *cells = table->tableInterface();
    QCOMPARE(cells->rowCount(), 2);
    QCOMPARE(cells->columnDescription(kRxColumn), QStringLiteral("Rx Frequency"));
    QCOMPARE(cells->rowDescription(1), QStringLiteral("2"));
    // In front of the cells stand the heads, with the corner first.
    const int across = cells->columnCount() + 1;
    QCOMPARE(table->child(1 + kRxColumn)->role(), QAccessible::ColumnHeader);
    QCOMPARE(table->child(1 + kRxColumn)->text(QAccessible::Name), QStringLiteral("Rx Frequency"));
    QCOMPARE(table->child(2 * across)->role(), QAccessible::RowHeader);
    QCOMPARE(table->child(2 * across)->text(QAccessible::Name), QStringLiteral("2"));
    bench.table.AddSelBookmark(1);
    QTRY_VERIFY(cells->isRowSelected(1) && !cells->isRowSelected(0));
    QAccessibleInterface *cell = cells->cellAt(1, kRxColumn);
    QCOMPARE(cell->role(), QAccessible::Cell);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("150.012500"));
    QCOMPARE(cell->text(QAccessible::Description), QStringLiteral("Rx Frequency 2"));
    cell->setText(QAccessible::Value, QStringLiteral("155.25"));
    QCOMPARE(bench.stored(kRx, 2), QStringLiteral("155.250000"));
    cell->setText(QAccessible::Value, QStringLiteral("999"));
    QCOMPARE(bench.events.messages.size(), 1);
    QCOMPARE(bench.shownAt(1, kRxColumn), QStringLiteral("155.250000"));
    cells->cellAt(0, kPowerColumn)->setText(QAccessible::Value, QStringLiteral("Low"));
    QCOMPARE(bench.shownAt(0, kPowerColumn), QStringLiteral("Low"));
    cells->cellAt(0, kPowerColumn)->setText(QAccessible::Value, QStringLiteral("No such item"));
    QCOMPARE(bench.shownAt(0, kPowerColumn), QStringLiteral("Low"));
    key(Qt::Key_F2);
    key(Qt::Key_Escape);
    bench.goTo(0, kRxColumn);
    key(Qt::Key_F2);
    QCOMPARE(bench.table.editor().box().accessibleName(), QStringLiteral("Rx Frequency"));
}

QTEST_MAIN(tst_grid_field)
#include "tst_grid_field.moc"
