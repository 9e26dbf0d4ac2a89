#include "cell_drag_data.h"
#include "channel_bench.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

namespace {
const QStringList kFrench{QStringLiteral("High|Haute"), QStringLiteral("Low|Basse"), QStringLiteral("None|Aucun"),
                          QStringLiteral("Network setting|Selon le réseau")};
} // namespace

// The record operations of a real grid, with the data checked through the component.
class tst_grid_records : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void recordsAreMadeWhereTheyBelong_data();
    void recordsAreMadeWhereTheyBelong();
    void deleteTakesTheSelectedRows_data();
    void deleteTakesTheSelectedRows();
    void typedTextNeverReachesAnotherRecord_data();
    void typedTextNeverReachesAnotherRecord();
    void anInvalidCellHoldsTheCommandsBack();
    void fillDownCopiesTheFirstValue();
    void pasteReplacesACell();
    void aCellIsDraggedOntoAnother();
    void tabRunsThroughTheCells();
};

void tst_grid_records::recordsAreMadeWhereTheyBelong_data() {
    QTest::addColumn<QStringList>("dictionary");
    QTest::newRow("English") << QStringList();
    QTest::newRow("French") << kFrench;
}

void tst_grid_records::recordsAreMadeWhereTheyBelong() {
    QFETCH(const QStringList, dictionary);
    ChannelBench bench(3, dictionary);
    bench.table().SetBookmark(1);
    bench.press("cmdInsert");
    QCOMPARE(bench.component.GetNumberOfRecords(kRxFreq), 4);
    QCOMPARE(bench.frequencies().at(0), megahertz(1));
    QCOMPARE(bench.frequencies().mid(2), channels({2, 3}));
    QCOMPARE(bench.table().SelBookmarks(), std::vector<qint32>{1});
    QVERIFY(bench.showsItsData());

    bench.table().SetBookmark(3);
    bench.press("cmdRepeat");
    QCOMPARE(bench.frequencies().mid(2), channels({2, 3, 3}));
    QCOMPARE(bench.grid.CurrentRow(), 4);
    QVERIFY(bench.showsItsData());

    bench.table().SetBookmark(0);
    bench.press("cmdAdd");
    QCOMPARE(bench.component.GetNumberOfRecords(kRxFreq), 6);
    QCOMPARE(bench.grid.CurrentRow(), 5);
    QCOMPARE(bench.table().SelBookmarks(), std::vector<qint32>{5});
    QVERIFY(bench.showsItsData());
    QVERIFY(bench.table().hasFocus());
}

void tst_grid_records::deleteTakesTheSelectedRows_data() {
    QTest::addColumn<QStringList>("dictionary");
    QTest::addColumn<QPoint>("block");
    QTest::addColumn<QList<int>>("left");
    QTest::addColumn<qint32>("cursor");
    QTest::newRow("one in the middle") << QStringList() << QPoint(2, 2) << QList<int>{1, 2, 4, 5} << 2;
    QTest::newRow("the last one") << QStringList() << QPoint(4, 4) << QList<int>{1, 2, 3, 4} << 3;
    QTest::newRow("three in the middle") << QStringList() << QPoint(1, 3) << QList<int>{1, 5} << 1;
    QTest::newRow("three at the end") << kFrench << QPoint(2, 4) << QList<int>{1, 2} << 1;
    QTest::newRow("two at the start") << kFrench << QPoint(0, 1) << QList<int>{3, 4, 5} << 0;
}

void tst_grid_records::deleteTakesTheSelectedRows() {
    QFETCH(const QStringList, dictionary);
    QFETCH(const QPoint, block);
    QFETCH(const QList<int>, left);
    ChannelBench bench(5, dictionary);
    bench.select(block.x(), block.y());
    bench.press("cmdDelete");
    QCOMPARE(bench.frequencies(), channels(left));
    QVERIFY(bench.showsItsData());
    QTEST(bench.grid.CurrentRow(), "cursor");
}

void tst_grid_records::typedTextNeverReachesAnotherRecord_data() {
    QTest::addColumn<int>("command");
    QTest::addColumn<qint32>("own"); // where the record that was being edited then is
    QTest::newRow("delete") << 0 << 0;
    QTest::newRow("insert") << 1 << 3;
    QTest::newRow("repeat") << 2 << 2;
    QTest::newRow("add") << 3 << 2;
}

// Commands that come while a cell is being edited, without the focus leaving it.
void tst_grid_records::typedTextNeverReachesAnotherRecord() {
    QFETCH(const int, command);
    QFETCH(const qint32, own);
    using Command = void (fldGridField::*)();
    constexpr Command kCommands[] = {&fldGridField::Delete, &fldGridField::Insert, &fldGridField::Repeat,
                                     &fldGridField::Add};
    ChannelBench bench(3);
    bench.table().MoveTo({1, kRx});
    WindowInput::type(QStringLiteral("155"));
    (bench.grid.*kCommands[command])();
    QCoreApplication::processEvents();
    bench.table().MoveTo({0, 0});
    for (qint32 record = 1; record <= bench.component.GetNumberOfRecords(kRxFreq); ++record)
        QVERIFY(record == own || bench.stored(kRxFreq, record) != QStringLiteral("155.000000"));
    QVERIFY(bench.showsItsData());
}

void tst_grid_records::anInvalidCellHoldsTheCommandsBack() {
    ChannelBench bench(3);
    for (const char *button : {"cmdAdd", "cmdInsert", "cmdRepeat", "cmdDelete"}) {
        bench.table().MoveTo({1, kRx});
        WindowInput::type(QStringLiteral("999"));
        bench.press(button);
        QVERIFY2(!bench.events.messages.isEmpty(), button);
        QCOMPARE(bench.frequencies(), channels({1, 2, 3}));
        WindowInput::key(Qt::Key_Escape);
        bench.events.clear();
    }
    QVERIFY(bench.showsItsData());
}

void tst_grid_records::fillDownCopiesTheFirstValue() {
    ChannelBench bench(5, kFrench);
    bench.table().MoveTo({1, kRx});
    bench.select(1, 3);
    WindowInput::key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(bench.frequencies(), channels({1, 2, 2, 2, 5}));
    QCOMPARE(bench.table().SelBookmarks(), (std::vector<qint32>{1, 2, 3}));
    QVERIFY(bench.showsItsData());
}

void tst_grid_records::pasteReplacesACell() {
    ChannelBench bench(3, kFrench);
    const QString before = bench.stored(QStringLiteral("TxPower_q7r"), 2);
    bench.services.clipboard.SetText(QStringLiteral("Basse"));
    bench.table().MoveTo({1, kPower});
    bench.grid.Ifield_Paste();
    QCOMPARE(GridBench::shown(bench.grid, 1, kPower), QStringLiteral("Basse"));
    bench.services.clipboard.SetText(QStringLiteral("150.5"));
    bench.table().MoveTo({1, kRx});
    bench.grid.Ifield_Paste();
    bench.services.clipboard.SetText(QStringLiteral("no such power"));
    bench.table().MoveTo({2, kPower});
    bench.grid.Ifield_Paste();
    bench.table().MoveTo({0, 0});
    QVERIFY(bench.stored(QStringLiteral("TxPower_q7r"), 2) != before);
    QCOMPARE(bench.stored(QStringLiteral("TxPower_q7r"), 3), before);
    QCOMPARE(bench.stored(kRxFreq, 2), QStringLiteral("150.500000"));
    QVERIFY(bench.showsItsData());
}

void tst_grid_records::aCellIsDraggedOntoAnother() {
    ChannelBench bench(3);
    QWidget &cells = bench.table().CellsSurface();
    const auto dropOn = [&](const GridCell &cell, const QString &value) {
        const auto data = CellDragData::make(cells, value);
        const QPoint point = bench.table().visualRect(bench.table().model()->index(cell.row, cell.column)).center();
        QDragEnterEvent enter(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&cells, &enter);
        QDropEvent drop(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&cells, &drop);
    };
    dropOn({2, kRx}, megahertz(1));
    QCOMPARE(bench.frequencies(), channels({1, 2, 1}));
    dropOn({1, kRx}, QStringLiteral("999"));
    QCOMPARE(bench.frequencies(), channels({1, 2, 1}));
    QCOMPARE(GridBench::shown(bench.grid, 1, kRx), megahertz(2));
    dropOn({0, kPower}, QStringLiteral("Low"));
    QVERIFY(bench.stored(QStringLiteral("TxPower_q7r"), 1) != bench.stored(QStringLiteral("TxPower_q7r"), 2));
    QVERIFY(bench.showsItsData());
}

void tst_grid_records::tabRunsThroughTheCells() {
    ChannelBench bench(2);
    bench.table().MoveTo({0, 7});
    WindowInput::key(Qt::Key_Tab);
    WindowInput::key(Qt::Key_Tab);
    QCOMPARE(bench.table().currentCell(), (GridCell{1, 0}));
    WindowInput::key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(bench.table().currentCell(), (GridCell{0, 8}));
    bench.table().MoveTo({1, 8});
    TDBGrid &below = GridBench::table(bench.other);
    below.MoveTo({1, 3});
    WindowInput::key(Qt::Key_Tab);
    QVERIFY(below.hasFocus());
    QCOMPARE(below.currentCell(), (GridCell{0, 0}));
    WindowInput::key(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(bench.table().hasFocus());
    QCOMPARE(bench.table().currentCell(), (GridCell{1, 8}));
}

QTEST_MAIN(tst_grid_records)
#include "tst_grid_records.moc"
