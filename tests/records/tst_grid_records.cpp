#include "cell_drag_data.h"
#include "channel_bench.h"
#include "message_style.h"
#include "rows.h"

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {
const auto kPowerField = u"TxPower_q7r"_s;
const auto kOverwrite = u"Do you want to overwrite the selected records?"_s;

// Drops data on a cell, or on the middle of the cells.
void dropOn(TDBGrid &table, const QMimeData &data, Qt::DropAction action, std::optional<GridCell> cell = std::nullopt) {
    QWidget &cells = table.CellsSurface();
    const QPoint point =
        cell ? table.visualRect(table.model()->index(cell->row, cell->column)).center() : cells.rect().center();
    QDragEnterEvent enter(point, action, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&cells, &enter);
    QDropEvent drop(point, action, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&cells, &drop);
}

QStringList without(QStringList list, qsizetype index) {
    list.removeAt(index);
    return list;
}
} // namespace

// The record operations and imports of a real grid, in each language, with the data of all records checked through the
// component.
class tst_grid_records : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase_data() {
        QTest::addColumn<qint32>("language");
        QTest::newRow("English") << 1;
        QTest::newRow("French") << 2;
    }

    void recordsAreMadeWhereTheyBelong() {
        const auto form = bench(3);
        const QStringList before = form->records();
        form->table().SetBookmark(1);
        form->press("cmdInsert");
        QCOMPARE(without(form->records(), 1), before);
        QCOMPARE(form->table().SelBookmarks(), std::vector<qint32>{1});
        QVERIFY(form->showsItsData());

        form->table().SetBookmark(3);
        form->press("cmdRepeat");
        QCOMPARE(form->records().mid(2), before.mid(1) + before.mid(2));
        QCOMPARE(form->grid.CurrentRow(), 4);
        QVERIFY(form->showsItsData());

        const QStringList repeated = form->records();
        form->table().SetBookmark(0);
        form->press("cmdAdd");
        QCOMPARE(without(form->records(), 5), repeated);
        QCOMPARE(form->grid.CurrentRow(), 5);
        QCOMPARE(form->table().SelBookmarks(), std::vector<qint32>{5});
        QVERIFY(form->showsItsData());
        QVERIFY(form->table().hasFocus());
    }

    void deleteTakesTheSelectedRows() {
        for (const auto &[block, cursor] : Rows<QPoint, qint32>{
                 {"one in the middle", {2, 2}, 2},
                 {"the last one", {4, 4}, 3},
                 {"three in the middle", {1, 3}, 1},
                 {"three at the end", {2, 4}, 1},
                 {"two at the start", {0, 1}, 0},
             }) {
            const auto form = bench(5);
            QStringList left = form->records();
            left.remove(block.x(), block.y() - block.x() + 1);
            form->select(block.x(), block.y());
            form->press("cmdDelete");
            QCOMPARE(form->records(), left);
            QVERIFY(form->showsItsData());
            QCOMPARE(form->grid.CurrentRow(), cursor);
        }
    }

    void sortingKeepsEachRecordWhole() {
        const auto form = bench(4);
        form->write(kRxFreq, u"139"_s, 3);
        form->events.enabler->Ienabler_RefreshGridByUIID(kRxFreq);
        const QStringList before = form->records();
        const QHeaderView &heads = *form->table().horizontalHeader();
        WindowInput::clickAt(*heads.viewport(), QPoint(heads.sectionViewportPosition(kRx) + 10, heads.height() / 2));
        QCOMPARE(form->records(), QStringList({before[2], before[0], before[1], before[3]}));
        QVERIFY(form->showsItsData());
    }

    // Commands that come while a cell is being edited, without the focus leaving it.
    void typedTextNeverReachesAnotherRecord() {
        // own: where the record that was being edited then is
        for (const auto &[command, own] : Rows<int, qint32>{
                 {"delete", 0, 0},
                 {"insert", 1, 3},
                 {"repeat", 2, 2},
                 {"add", 3, 2},
                 {"paste of records", 4, 2},
             }) {
            using Command = void (fldGridField::*)();
            constexpr Command kCommands[] = {&fldGridField::Delete, &fldGridField::Insert, &fldGridField::Repeat,
                                             &fldGridField::Add, &fldGridField::Ifield_Paste};
            const auto form = bench(3);
            form->select(0, 0);
            form->grid.Ifield_Copy();
            form->table().MoveTo({1, kRx});
            WindowInput::type(u"155"_s);
            (form->grid.*kCommands[command])();
            QCoreApplication::processEvents();
            form->table().MoveTo({0, 0});
            for (qint32 record = 1; record <= form->component.GetNumberOfRecords(kRxFreq); ++record)
                QVERIFY(record == own || form->stored(kRxFreq, record) != u"155.000000"_s);
            QVERIFY(form->showsItsData());
        }
    }

    void anInvalidCellHoldsTheCommandsBack() {
        const auto form = bench(3);
        const QStringList before = form->records();
        for (const char *button : {"cmdAdd", "cmdInsert", "cmdRepeat", "cmdDelete"}) {
            form->table().MoveTo({1, kRx});
            WindowInput::type(u"999"_s);
            form->press(button);
            QVERIFY2(!form->events.messages.isEmpty(), button);
            QCOMPARE(form->records(), before);
            WindowInput::key(Qt::Key_Escape);
            form->events.clear();
        }
        QVERIFY(form->showsItsData());
    }

    void fillDownCopiesTheFirstValue() {
        const auto form = bench(5);
        const QStringList powers = form->values(kPowerField);
        form->table().MoveTo({1, kRx});
        form->select(1, 3);
        WindowInput::key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(form->frequencies(), channels({1, 2, 2, 2, 5}));
        QCOMPARE(form->values(kPowerField), powers);
        QCOMPARE(form->table().SelBookmarks(), (std::vector<qint32>{1, 2, 3}));
        QVERIFY(form->showsItsData());
    }

    void pasteReplacesACell() {
        const auto form = bench(3);
        const QStringList before = form->values(kPowerField);
        const QString other = GridBench::shown(form->grid, 0, kPower); // in the language of the grid
        const auto paste = [&](const GridCell &cell, const QString &text) {
            form->services.clipboard.SetText(text);
            form->table().MoveTo(cell);
            form->grid.Ifield_Paste();
        };
        paste({1, kPower}, other);
        QCOMPARE(GridBench::shown(form->grid, 1, kPower), other);
        paste({1, kRx}, u"150.5"_s);
        paste({2, kPower}, u"no such power"_s);
        form->table().MoveTo({0, 0});
        QCOMPARE(form->values(kPowerField), QStringList({before[0], before[0], before[2]}));
        QVERIFY(before[0] != before[1]);
        QCOMPARE(form->frequencies(), QStringList({megahertz(1), u"150.500000"_s, megahertz(3)}));
        QVERIFY(form->showsItsData());
    }

    void aCellIsDraggedOntoAnother() {
        const auto form = bench(3);
        const auto drop = [&](const GridCell &cell, const QString &value) {
            dropOn(form->table(), *CellDragData::make(form->table().CellsSurface(), value), Qt::CopyAction, cell);
        };
        drop({2, kRx}, megahertz(1));
        QCOMPARE(form->frequencies(), channels({1, 2, 1}));
        drop({1, kRx}, u"999"_s);
        QCOMPARE(form->frequencies(), channels({1, 2, 1}));
        const QString power = GridBench::shown(form->grid, 1, kPower);
        drop({0, kPower}, power);
        QCOMPARE(form->stored(kPowerField, 1), form->stored(kPowerField, 2));
        QVERIFY(form->showsItsData());
    }

    void copiedRowsPasteAsNewRecords() {
        const auto form = bench(3);
        const QStringList before = form->records();
        form->select(0, 1);
        form->grid.Ifield_Copy();
        form->table().MoveTo({2, 0});
        form->grid.Ifield_Paste();
        QCOMPARE(form->records(), before + before.mid(0, 2));
        QVERIFY(form->showsItsData());
        QCOMPARE(form->grid.CurrentRow(), 1);
        // Identities are unique: the new records have got free ones, and that is told.
        QCOMPARE(form->events.messages.size(), 1);
        // The other grid of these records knows them too.
        QCOMPARE(GridBench::table(form->other).ApproxCount(), 5);
    }

    void copiedRowsOverwriteTheSelectedOnes() {
        const auto form = bench(5);
        const QStringList before = form->records();
        form->select(0, 1);
        form->grid.Ifield_Copy();
        form->select(3, 4);
        form->services.boxes.expect(kOverwrite, MessageAnswer::kYes);
        form->grid.Ifield_Paste();
        QCOMPARE(form->records(), before.mid(0, 3) + before.mid(0, 2));
        QVERIFY(form->showsItsData());
    }

    void aColumnFillsDownwards() {
        for (const auto &[row, filled] : Rows<qint32, QList<int>>{
                 {"from the first row", 0, {8, 9, 10, 4, 5}},
                 {"from the current row", 1, {1, 8, 9, 10, 5}},
             }) {
            const auto form = bench(5);
            const QStringList powers = form->values(kPowerField);
            form->table().MoveTo({row, kRx});
            form->services.clipboard.SetText(u"148\n149\n150\n"_s);
            form->grid.Ifield_Paste();
            QCOMPARE(form->frequencies(), channels(filled));
            QCOMPARE(form->values(kPowerField), powers);
            QVERIFY(form->showsItsData());
        }
    }

    void refusedCellsAreToldAndTheRestIsTaken() {
        const auto form = bench(3);
        form->table().MoveTo({0, kRx});
        form->services.clipboard.SetText(u"148\r\n999\r\n150\r\n"_s);
        form->grid.Ifield_Paste();
        QCOMPARE(form->frequencies(), channels({8, 2, 10}));
        QVERIFY(!form->events.messages.isEmpty());
        QVERIFY(form->showsItsData());
    }

    void rowsAreDroppedOnAnotherGrid() {
        const auto form = bench(3);
        const QStringList before = form->records();
        form->select(1, 2);
        form->grid.Ifield_Copy(); // a drag of rows carries the same text
        QMimeData data;
        data.setText(form->services.clipboard.Text());
        dropOn(GridBench::table(form->other), data, Qt::MoveAction);
        QCOMPARE(form->records(), before + before.mid(1));
        QCOMPARE(GridBench::table(form->other).ApproxCount(), 5);
        QVERIFY(form->showsItsData());
    }

  private:
    static std::unique_ptr<ChannelBench> bench(int channels) {
        QFETCH_GLOBAL(qint32, language);
        return std::make_unique<ChannelBench>(channels, language);
    }
};

QTEST_MAIN(tst_grid_records)
#include "tst_grid_records.moc"
