#include "busy_flags.h"
#include "fake_grid_surface.h"
#include "grid_commands.h"
#include "grid_deletion.h"
#include "grid_sorting.h"
#include "message_style.h"

#include <QTest>

namespace {
const QStringList kRows{QStringLiteral("10|a|x|n"), QStringLiteral("20|b|x|n"), QStringLiteral("30|c|x|n")};
const QStringList kOpening{QStringLiteral("Hourglass()"), QStringLiteral("Buttons(false)")};
const QStringList kClosing{QStringLiteral("Buttons(true)"), QStringLiteral("Pointer()")};

const char *const kSortToAdd =
    "The data must be sorted by the first column before you can add a record.  Do you want to sort the data now?";
const char *const kSortToInsert =
    "The data must be sorted by the first column before you can insert a record.  Do you want to sort the data now?";
const char *const kSortToRepeat =
    "The data must be sorted by the first column before you can repeat a record.  Do you want to sort the data now?";

RunTimeError missingObject() { return {ErrorNumber::kMissingObject, {}, QStringLiteral("Object variable not set")}; }

struct Bench {
    FakeGridSurface grid;
    BusyFlags busy;
    GridSorting sorting{grid, grid.services.fieldServices()};
    GridCommands commands{grid, grid.services.fieldServices(), sorting, busy};
    GridDeletion deletion{grid, grid.services.fieldServices(), busy};

    explicit Bench(const QStringList &rows = kRows) { grid.setRows(rows); }

    void current(qint32 row) {
        grid.bookmark = row;
        grid.field.recordNr = row + 1;
    }
    void onEvent(const char *name, const std::function<void()> &handler) {
        grid.on[QString::fromLatin1(name)] = [handler](const FieldEvent &) { handler(); };
    }
    // The component deletes the current record and the enabler refills.
    void deletes() {
        grid.on[QStringLiteral("DeleteRecord")] = [this](const FieldEvent &event) {
            grid.display.DeleteRow(*grid.bookmark);
            event.parameter<bool &>(0) = true;
        };
    }
    [[nodiscard]] QStringList rows() const { return FakeGridSurface::rowsOf(grid.display); }
};

struct Maker {
    const char *event;
    void (GridCommands::*run)();
    qint16 flag;
    const char *sortPrompt;
    const char *sortTitle;
    const char *invalidUIID;
};
const Maker kMakers[] = {
    {"AddRecord", &GridCommands::cmdAdd_Click, 1, kSortToAdd, "Error Adding Record",
     "The add request failed due to an invalid UIID."},
    {"InsertRecord", &GridCommands::cmdInsert_Click, 8, kSortToInsert, "Error Inserting Record",
     "The insert request failed due to an invalid UIID"},
    {"RepeatRecord", &GridCommands::cmdRepeat_Click, 4, kSortToRepeat, "Error Repeating Record",
     "The repeat request failed due to an invalid UIID"},
};
} // namespace

class tst_grid_commands : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void addShowsTheNewRowAloneAtTheBottom();
    void addWorksOnAnEmptyGrid();
    void insertAndRepeatPlaceTheirRow_data();
    void insertAndRepeatPlaceTheirRow();
    void aRefusedRowVanishes();
    void aRefillDuringARefusalLosesNoRow();
    void insertOnAnEmptyGridDoesNothing();
    void repeatKeepsASpareSourceRow();
    void aCommandInsideACommandIsIgnored();
    void anUnsortedGridAsksFirst_data();
    void anUnsortedGridAsksFirst();
    void sortednessIsNumeric_data();
    void sortednessIsNumeric();
    void aMissingObjectEndsTheCommandAlone_data();
    void aMissingObjectEndsTheCommandAlone();
    void anyOtherErrorIsReported();
    void aFormClosedInsideIsNotTouched();
    void headClickSortsUnlessRefused();
    void leavingSortsWithoutAsking();
    void deletePlacesTheCursor_data();
    void deletePlacesTheCursor();
    void multipleDeleteIsOneBatch();
    void aDeleteInsideADeleteClosesItsBatch();
    void aFailedDeleteClosesItsBatch();
};

void tst_grid_commands::addShowsTheNewRowAloneAtTheBottom() {
    Bench bench;
    bench.grid.selected = {0};
    bench.onEvent("AddRecord", [&] { bench.grid.appendRow(QStringLiteral("40|d|x|n")); });
    bench.commands.cmdAdd_Click();
    QCOMPARE(bench.grid.log.take(), kOpening +
                                        lines({"raise AddRecord()", "Bookmark(3)", "raise RowSelectionChanged(3)",
                                               "SetFocus()", "Row(4)", "Unselect()", "Select(3)"}) +
                                        kClosing);
    QCOMPARE(bench.grid.selected, std::vector<qint32>{3});
}

void tst_grid_commands::addWorksOnAnEmptyGrid() {
    Bench bench{QStringList()};
    bench.onEvent("AddRecord", [&] { bench.grid.appendRow(QStringLiteral("40|d|x|n")); });
    bench.commands.cmdAdd_Click();
    QCOMPARE(bench.rows(), lines({"40|d|x|n"}));
    QCOMPARE(bench.grid.selected, std::vector<qint32>{0});

    Bench refused{QStringList()};
    refused.commands.cmdAdd_Click();
    QCOMPARE(refused.grid.log.take(), kOpening + lines({"raise AddRecord()", "SetFocus()", "Unselect()"}) + kClosing);
}

void tst_grid_commands::insertAndRepeatPlaceTheirRow_data() {
    QTest::addColumn<bool>("repeat");
    QTest::addColumn<qint32>("at");
    QTest::addColumn<qint32>("position");
    QTest::newRow("insert before the first") << false << 0 << 0;
    QTest::newRow("insert before the last") << false << 2 << 2;
    QTest::newRow("repeat in the middle") << true << 0 << 1;
    QTest::newRow("repeat of the last one appends") << true << 2 << 3;
}

void tst_grid_commands::insertAndRepeatPlaceTheirRow() {
    QFETCH(const bool, repeat);
    QFETCH(const qint32, at);
    QFETCH(const qint32, position);
    Bench bench;
    bench.current(at);
    const Maker &maker = kMakers[repeat ? 2 : 1];
    bench.onEvent(maker.event, [&] {
        QCOMPARE(bench.busy.bits(), maker.flag);
        QCOMPARE(bench.grid.field.recordNr, at + 1); // the cursor still stands on the source record
        bench.grid.insertRow(position, QStringLiteral("15|new|x|n"));
    });
    (bench.commands.*maker.run)();
    QStringList rows = kRows;
    rows.insert(position, QStringLiteral("15|new|x|n"));
    QCOMPARE(bench.rows(), rows);
    const QString event = QStringLiteral("raise %1()").arg(QString::fromLatin1(maker.event));
    const QString cursor = QStringLiteral("Bookmark(%1)").arg(position);
    const QString selection = QStringLiteral("Select(%1)").arg(position);
    QCOMPARE(bench.grid.log.take(), (repeat ? lines({"Update()"}) : QStringList()) + kOpening +
                                        lines({"Update()", "ReBind()"}) + QStringList({event, cursor}) +
                                        lines({"SetFocus()", "ReBind()"}) + QStringList(selection) + kClosing);
    QVERIFY(bench.busy.idle());
}

void tst_grid_commands::aRefusedRowVanishes() {
    for (const Maker &maker : {kMakers[1], kMakers[2]}) {
        Bench bench;
        bench.current(1);
        bench.grid.inserted = true; // of a command before
        (bench.commands.*maker.run)();
        QCOMPARE(bench.rows(), kRows);
        QCOMPARE(bench.grid.log.linesOf(QStringLiteral("Bookmark")), QStringList());
        QVERIFY(bench.busy.idle());
    }
}

void tst_grid_commands::aRefillDuringARefusalLosesNoRow() {
    Bench bench;
    bench.onEvent("InsertRecord", [&] { bench.grid.setRows(kRows); });
    bench.commands.cmdInsert_Click();
    QCOMPARE(bench.rows(), kRows);
}

void tst_grid_commands::insertOnAnEmptyGridDoesNothing() {
    Bench bench{QStringList()};
    bench.commands.cmdInsert_Click();
    bench.commands.cmdRepeat_Click();
    QCOMPARE(bench.grid.log.take(), kOpening + kClosing + lines({"Update()"}) + kOpening + kClosing);
}

void tst_grid_commands::repeatKeepsASpareSourceRow() {
    Bench bench;
    bench.grid.translated = true;
    bench.current(2);
    bench.onEvent("RepeatRecord", [&] { bench.grid.insertRow(3, QStringLiteral("31|c|x|n")); });
    bench.commands.cmdRepeat_Click();
    QCOMPARE(bench.grid.display.UpperBound(1), 3);
    QCOMPARE(bench.grid.source.UpperBound(1), 4);

    Bench refused;
    refused.grid.translated = true;
    refused.commands.cmdRepeat_Click();
    QCOMPARE(refused.grid.display.UpperBound(1), 2);
    QCOMPARE(refused.grid.source.UpperBound(1), 3);
}

void tst_grid_commands::aCommandInsideACommandIsIgnored() {
    Bench bench;
    bench.onEvent("AddRecord", [&] {
        bench.commands.cmdAdd_Click();
        bench.commands.cmdInsert_Click();
        bench.commands.cmdRepeat_Click();
        bench.deletion.cmdDelete_Click();
        QCOMPARE(bench.busy.bits(), BusyFlags::kAdd);
    });
    bench.commands.cmdAdd_Click();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise AddRecord")).size(), 1);
    for (const char *event : {"raise InsertRecord", "raise RepeatRecord", "raise DeleteRecord"})
        QCOMPARE(bench.grid.log.linesOf(QString::fromLatin1(event)), QStringList());
    QCOMPARE(bench.rows(), kRows);
    QVERIFY(bench.busy.idle());
}

void tst_grid_commands::anUnsortedGridAsksFirst_data() {
    QTest::addColumn<int>("maker");
    QTest::addColumn<qint32>("answer");
    for (int maker = 0; maker < 3; ++maker) {
        QTest::addRow("%s, yes", kMakers[maker].event) << maker << MessageAnswer::kYes;
        QTest::addRow("%s, no", kMakers[maker].event) << maker << MessageAnswer::kNo;
    }
}

void tst_grid_commands::anUnsortedGridAsksFirst() {
    QFETCH(const int, maker);
    QFETCH(const qint32, answer);
    Bench bench({QStringLiteral("20|b|x|n"), QStringLiteral("10|a|x|n")});
    bench.grid.design.RequiresSortBeforeAdd = true;
    const Maker &command = kMakers[maker];
    bench.grid.services.boxes.expect(QString::fromLatin1(command.sortPrompt), answer);
    (bench.commands.*command.run)();
    QCOMPARE(bench.grid.services.boxes.shown().value(0),
             QStringLiteral("%1: %2 [52]")
                 .arg(QString::fromLatin1(command.sortTitle), QString::fromLatin1(command.sortPrompt)));
    const QStringList sorted = answer == MessageAnswer::kYes ? lines({"raise SortColumnByUIID(Nr)"}) : QStringList();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise SortColumnByUIID")), sorted);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise ") + QString::fromLatin1(command.event)), QStringList());
    QCOMPARE(bench.grid.log.lines().last(), kClosing.last());
    QVERIFY(bench.busy.idle());
}

void tst_grid_commands::sortednessIsNumeric_data() {
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<bool>("sorted");
    QTest::newRow("none") << QStringList() << true;
    QTest::newRow("one, no number") << lines({"x"}) << true;
    QTest::newRow("9 before 10") << lines({"9", "10"}) << true;
    QTest::newRow("equal neighbours") << lines({"5", "5", "6"}) << true;
    QTest::newRow("falls at the end") << lines({"1", "2", "1"}) << false;
    QTest::newRow("no number counts as 0") << lines({"1", "Undefined"}) << false;
}

void tst_grid_commands::sortednessIsNumeric() {
    QFETCH(const QStringList, keys);
    QStringList rows;
    for (const QString &key : keys)
        rows << key + QStringLiteral("|a|b|c");
    const Bench bench(rows);
    QTEST(bench.sorting.FirstColumnIsSorted(), "sorted");
}

void tst_grid_commands::aMissingObjectEndsTheCommandAlone_data() {
    QTest::addColumn<int>("maker");
    for (int maker = 0; maker < 3; ++maker)
        QTest::newRow(kMakers[maker].event) << maker;
}

void tst_grid_commands::aMissingObjectEndsTheCommandAlone() {
    QFETCH(const int, maker);
    const Maker &command = kMakers[maker];
    Bench bench;
    bench.onEvent(command.event, [] { throw missingObject(); });
    bench.grid.services.boxes.expect(QString::fromLatin1(command.invalidUIID), MessageAnswer::kOk);
    (bench.commands.*command.run)();
    QCOMPARE(bench.grid.services.boxes.shown().value(0),
             QStringLiteral("Error: %1 [48]").arg(QString::fromLatin1(command.invalidUIID)));
    QCOMPARE(bench.rows(), kRows);
    QVERIFY(bench.busy.idle());
    QCOMPARE(bench.grid.log.lines().last(), kClosing.last());
}

void tst_grid_commands::anyOtherErrorIsReported() {
    Bench bench;
    bench.onEvent("RepeatRecord", [] { throw RunTimeError(13, {}, QStringLiteral("Type mismatch")); });
    bench.grid.services.errorSink.expectReport();
    bench.commands.cmdRepeat_Click();
    QCOMPARE(bench.grid.services.errorSink.reports().size(), 1);
    QVERIFY(bench.grid.services.errorSink.reports().first().contains(QStringLiteral("cmdRepeat_Click")));
    QCOMPARE(bench.busy.bits(), BusyFlags::kRepeat);
}

void tst_grid_commands::aFormClosedInsideIsNotTouched() {
    for (const Maker &maker : kMakers) {
        Bench bench;
        bench.onEvent(maker.event, [&] { bench.grid.terminated = true; });
        (bench.commands.*maker.run)();
        for (const char *step : {"Bookmark", "SetFocus", "Select", "Row"})
            QCOMPARE(bench.grid.log.linesOf(QString::fromLatin1(step)), QStringList());
    }
    Bench bench;
    bench.grid.selected = {0, 1};
    bench.onEvent("DeleteRecord", [&] { bench.grid.terminated = true; });
    bench.deletion.cmdDelete_Click();
    const QStringList log = bench.grid.log.take();
    QCOMPARE(log.filter(QStringLiteral("DeleteRecord")).size(), 1);
    QVERIFY(log.contains(QStringLiteral("SetProviderUpdateUIOnFieldChange(true)")));
    QCOMPARE(log.last(), QStringLiteral("EndBatchUpdate()"));
}

void tst_grid_commands::headClickSortsUnlessRefused() {
    Bench bench;
    bench.sorting.TDBGrid1_HeadClick(1);
    QCOMPARE(bench.grid.log.take(), lines({"Validate()", "raise SortColumnByUIID(Name)", "SetFocus()"}));
    bench.grid.refuses = true;
    bench.sorting.TDBGrid1_HeadClick(1);
    QCOMPARE(bench.grid.log.take(), lines({"Validate()"}));
    bench.grid.design.Sortable = false;
    bench.sorting.TDBGrid1_HeadClick(1);
    QCOMPARE(bench.grid.log.take(), QStringList());
}

void tst_grid_commands::leavingSortsWithoutAsking() {
    Bench bench({QStringLiteral("20|b|x|n"), QStringLiteral("10|a|x|n")});
    bench.sorting.UserControl_ExitFocus();
    QCOMPARE(bench.grid.log.take(), QStringList());
    bench.grid.design.RequiresSortBeforeAdd = true;
    bench.sorting.UserControl_ExitFocus();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise SortColumnByUIID")).size(), 1);
}

void tst_grid_commands::deletePlacesTheCursor_data() {
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<qint32>("at");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<qint32>("cursor"); // -1: not placed
    QTest::newRow("in the middle") << kRows << 1 << true << 1;
    QTest::newRow("the last of several") << kRows << 2 << true << 1;
    QTest::newRow("the only one") << lines({"10|a|x|n"}) << 0 << true << -1;
    QTest::newRow("of none") << QStringList() << 0 << true << -1;
    QTest::newRow("refused") << kRows << 1 << false << 1;
}

void tst_grid_commands::deletePlacesTheCursor() {
    QFETCH(const QStringList, rows);
    QFETCH(const qint32, at);
    QFETCH(const bool, accepted);
    QFETCH(const qint32, cursor);
    Bench bench(rows);
    if (!rows.isEmpty())
        bench.current(at);
    if (accepted)
        bench.deletes();
    bench.deletion.cmdDelete_Click();
    const bool asks = !rows.isEmpty();
    const QStringList placed =
        cursor < 0 ? QStringList() : QStringList(QStringLiteral("Bookmark(%1)").arg(cursor)) + lines({"SetFocus()"});
    QCOMPARE(bench.grid.log.take(), lines({"BeginBatchUpdate()", "Buttons(false)"}) +
                                        (asks ? lines({"Update()", "raise DeleteRecord()"}) : QStringList()) + placed +
                                        lines({"Buttons(true)", "EndBatchUpdate()"}));
    QVERIFY(bench.busy.idle());
}

void tst_grid_commands::multipleDeleteIsOneBatch() {
    QStringList rows = kRows;
    rows << QStringLiteral("40|d|x|n");
    Bench bench(rows);
    bench.current(1);
    bench.grid.selected = {1, 2, 3};
    bench.deletes();
    bench.grid.component.when(QStringLiteral("GetGridData")).answers(lines({"10|a|x|n"}));
    bench.deletion.cmdDelete_Click();
    QCOMPARE(bench.rows(), lines({"10|a|x|n"}));
    QCOMPARE(bench.grid.log.take(),
             lines({"BeginBatchUpdate()", "Buttons(false)", "Update()", "SetProviderUpdateUIOnFieldChange(false)",
                    "raise DeleteRecord()", "raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                    "raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                    "GetGridData(Nr|Name|Kind|Net, true, 0)", "grdFreq.Rebind(true)", "Bookmark(0)", "SetFocus()",
                    "Buttons(true)", "EndBatchUpdate()"}));
}

void tst_grid_commands::aDeleteInsideADeleteClosesItsBatch() {
    Bench bench;
    bench.onEvent("DeleteRecord", [&] { bench.deletion.cmdDelete_Click(); });
    bench.deletion.cmdDelete_Click();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise DeleteRecord")).size(), 1);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("BeginBatchUpdate")).size(), 2);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("EndBatchUpdate")).size(), 2);
}

void tst_grid_commands::aFailedDeleteClosesItsBatch() {
    Bench bench;
    bench.grid.selected = {0, 1};
    bench.onEvent("DeleteRecord", [] { throw missingObject(); });
    bench.grid.services.boxes.expect(QStringLiteral("The delete request failed due to an invalid UIID"),
                                     MessageAnswer::kOk);
    bench.deletion.cmdDelete_Click();
    QCOMPARE(bench.grid.log.take().mid(4), lines({"raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                                                  "Buttons(true)", "EndBatchUpdate()"}));
    QVERIFY(bench.busy.idle());
}

QTEST_MAIN(tst_grid_commands)
#include "tst_grid_commands.moc"
