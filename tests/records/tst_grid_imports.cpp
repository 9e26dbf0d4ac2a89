#include "channel_bench.h"
#include "message_style.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

namespace {
const auto kOverwrite = QStringLiteral("Do you want to overwrite the selected records?");

void dropOn(TDBGrid &table, const QString &text) {
    QMimeData data;
    data.setText(text);
    QWidget &cells = table.CellsSurface();
    const QPoint point = cells.rect().center();
    QDragEnterEvent enter(point, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&cells, &enter);
    QDropEvent drop(point, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&cells, &drop);
}
} // namespace

// Records that come as text into a real grid, with the data checked through the component.
class tst_grid_imports : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void copiedRowsPasteAsNewRecords();
    void copiedRowsOverwriteTheSelectedOnes();
    void aColumnFillsDownwards();
    void refusedCellsAreToldAndTheRestIsTaken();
    void rowsAreDroppedOnAnotherGrid();
    void typedTextStaysInItsRecord();
};

void tst_grid_imports::copiedRowsPasteAsNewRecords() {
    ChannelBench bench(3);
    bench.select(0, 1);
    bench.grid.Ifield_Copy();
    bench.table().MoveTo({2, 0});
    bench.grid.Ifield_Paste();
    QCOMPARE(bench.frequencies(), channels({1, 2, 3, 1, 2}));
    QVERIFY(bench.showsItsData());
    QCOMPARE(bench.grid.CurrentRow(), 1);
    // Identities are unique: the new records have got free ones, and that is told.
    QCOMPARE(bench.events.messages.size(), 1);
}

void tst_grid_imports::copiedRowsOverwriteTheSelectedOnes() {
    ChannelBench bench(5);
    bench.select(0, 1);
    bench.grid.Ifield_Copy();
    bench.select(3, 4);
    bench.services.boxes.expect(kOverwrite, MessageAnswer::kYes);
    bench.grid.Ifield_Paste();
    QCOMPARE(bench.frequencies(), channels({1, 2, 3, 1, 2}));
    QVERIFY(bench.showsItsData());
}

void tst_grid_imports::aColumnFillsDownwards() {
    ChannelBench bench(5);
    bench.write(QStringLiteral("CurrentChannelNr"), 2, 1); // where the navigator stands
    bench.table().MoveTo({1, kRx});
    bench.services.clipboard.SetText(QStringLiteral("148\n149\n150\n"));
    bench.grid.Ifield_Paste();
    QCOMPARE(bench.frequencies(), channels({1, 8, 9, 10, 5}));
    QVERIFY(bench.showsItsData());
}

void tst_grid_imports::refusedCellsAreToldAndTheRestIsTaken() {
    ChannelBench bench(3);
    bench.table().MoveTo({0, kRx});
    bench.services.clipboard.SetText(QStringLiteral("148\r\n999\r\n150\r\n"));
    bench.grid.Ifield_Paste();
    QCOMPARE(bench.frequencies(), channels({8, 2, 10}));
    QVERIFY(!bench.events.messages.isEmpty());
    QVERIFY(bench.showsItsData());
}

void tst_grid_imports::rowsAreDroppedOnAnotherGrid() {
    ChannelBench bench(3);
    bench.select(1, 2);
    bench.grid.Ifield_Copy(); // a drag of rows carries the same text
    dropOn(GridBench::table(bench.other), bench.services.clipboard.Text());
    QCOMPARE(bench.frequencies(), channels({1, 2, 3, 2, 3}));
    QCOMPARE(GridBench::table(bench.other).ApproxCount(), 5);
}

void tst_grid_imports::typedTextStaysInItsRecord() {
    ChannelBench bench(3);
    bench.select(0, 0);
    bench.grid.Ifield_Copy();
    bench.table().MoveTo({2, kRx});
    WindowInput::type(QStringLiteral("155"));
    bench.grid.Ifield_Paste();
    bench.table().MoveTo({0, 0});
    QCOMPARE(bench.frequencies(), channels({1, 2, 15, 1}));
    QVERIFY(bench.showsItsData());
}

QTEST_MAIN(tst_grid_imports)
#include "tst_grid_imports.moc"
