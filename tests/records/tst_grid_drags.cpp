#include "channel_bench.h"

#include <QApplication>
#include <QHeaderView>
#include <QProcess>
#include <QTest>

#include <unistd.h>

namespace {
constexpr int kPatience = 15000;

// A pointer moved by another program, as a hand moves it: pressed, dragged in small steps, released.
void drag(const QPoint &from, const QPoint &to) {
    constexpr int kSteps = 8;
    QStringList words{QStringLiteral("mousemove"), QString::number(from.x()), QString::number(from.y()),
                      QStringLiteral("sleep"),     QStringLiteral("0.1"),     QStringLiteral("mousedown"),
                      QStringLiteral("1")};
    for (int step = 1; step <= kSteps; ++step) {
        const QPoint at = from + (to - from) * step / kSteps;
        words << QStringLiteral("mousemove") << QString::number(at.x()) << QString::number(at.y())
              << QStringLiteral("sleep") << QStringLiteral("0.05");
    }
    words << QStringLiteral("sleep") << QStringLiteral("0.3") << QStringLiteral("mouseup") << QStringLiteral("1");
    QVERIFY(QProcess::startDetached(QStringLiteral("xdotool"), words));
}

QPoint cellAt(const TDBGrid &table, qint32 row, qint32 column) {
    return table.viewport()->mapToGlobal(table.visualRect(table.model()->index(row, column)).center());
}

QPoint headAt(const TDBGrid &table, qint32 row) {
    const QHeaderView &heads = *table.verticalHeader();
    return heads.viewport()->mapToGlobal(QPoint(heads.width() / 2, heads.sectionViewportPosition(row) + 6));
}
} // namespace

// Drags by a pointer on an X server of its own: elsewhere a drag ends at once.
class tst_grid_drags final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aBlockOfRowsIsDraggedToAnotherGrid();
    void aCellIsDraggedOntoAnother();
    void draggingOverHeadsSelectsABlock();
};

void tst_grid_drags::aBlockOfRowsIsDraggedToAnotherGrid() {
    ChannelBench form(4);
    const QStringList before = form.records();
    form.select(1, 2);
    drag(headAt(form.table(), 2), cellAt(GridBench::table(form.other), 0, kRx));
    QTRY_COMPARE_WITH_TIMEOUT(form.records(), before + before.mid(1, 2), kPatience);
    QCOMPARE(GridBench::table(form.other).ApproxCount(), 6);
    QVERIFY(form.showsItsData());
}

void tst_grid_drags::aCellIsDraggedOntoAnother() {
    ChannelBench form(4);
    drag(cellAt(form.table(), 0, kRx), cellAt(form.table(), 2, kRx));
    QTRY_COMPARE_WITH_TIMEOUT(form.frequencies(), channels({1, 2, 1, 4}), kPatience);
    QCOMPARE(form.table().currentCell(), (GridCell{2, kRx}));
}

void tst_grid_drags::draggingOverHeadsSelectsABlock() {
    ChannelBench form(4);
    drag(headAt(form.table(), 1), headAt(form.table(), 3));
    QTRY_COMPARE_WITH_TIMEOUT(form.table().SelBookmarks(), (std::vector<qint32>{1, 2, 3}), kPatience);
}

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("KX_OWN_SERVER")) {
        qputenv("KX_OWN_SERVER", "1");
        qputenv("QT_QPA_PLATFORM", "xcb");
        execlp("xvfb-run", "xvfb-run", "-a", "sh", "-c", "openbox & sleep 1; exec \"$0\"", argv[0], nullptr);
        return 1; // there is no xvfb
    }
    const QApplication application(argc, argv);
    tst_grid_drags test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_grid_drags.moc"
