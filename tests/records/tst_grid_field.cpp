#include "grid_bench.h"
#include "tdb_grid.h"
#include "window_input.h"

#include <QApplication>
#include <QTest>

class tst_grid_field final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void smoke();
};

void tst_grid_field::smoke() {
    GridBench bench;
    fldGridField &grid = bench.addGrid(channelColumns());
    bench.start(grid);
    TDBGrid &table = GridBench::table(grid);
    qDebug() << table.ApproxCount() << table.model()->columnCount();
    for (int c = 0; c < table.model()->columnCount(); ++c)
        qDebug() << table.model()->headerData(c, Qt::Horizontal).toString() << GridBench::shown(grid, 0, c)
                 << table.columnWidth(c);
    grid.Add();
    QTest::qWait(10);
    grid.Add();
    QTest::qWait(10);
    qDebug() << table.ApproxCount() << grid.CurrentRow();
    WindowInput::key(Qt::Key_Home);
    WindowInput::key(Qt::Key_Right);
    WindowInput::type(QStringLiteral("145.5"));
    WindowInput::key(Qt::Key_Tab);
    qDebug() << bench.events.log << GridBench::shown(grid, grid.CurrentRow(), 1)
             << bench.stored(QStringLiteral("RxFreq_q7r"), grid.CurrentRow() + 1) << grid.CurrentColumn();
    bench.window.grab().save(QStringLiteral("/tmp/w-grid-shot.png"));
}

QTEST_MAIN(tst_grid_field)
#include "tst_grid_field.moc"
