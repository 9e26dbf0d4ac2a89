#include "busy_flags.h"
#include "fake_grid_surface.h"
#include "grid_commands.h"
#include "grid_deletion.h"
#include "grid_sorting.h"
#include "message_style.h"
#include "rows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QStringList kRows{u"10|a|x|n"_s, u"20|b|x|n"_s, u"30|c|x|n"_s};
const QStringList kOpening{u"Hourglass()"_s, u"Buttons(false)"_s};
const QStringList kClosing{u"Buttons(true)"_s, u"Pointer()"_s};

const QString kSortPrompt =
    u"The data must be sorted by the first column before you can %1 a record.  Do you want to sort the data now?"_s;

RunTimeError missingObject() { return {ErrorNumber::kMissingObject, {}, u"Object variable not set"_s}; }

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
        grid.on[u"DeleteRecord"_s] = [this](const FieldEvent &event) {
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
    const char *verb, *sortTitle, *invalidUIID;
};
const Maker kMakers[] = {
    {"AddRecord", &GridCommands::cmdAdd_Click, 1, "add", "Error Adding Record",
     "The add request failed due to an invalid UIID."},
    {"InsertRecord", &GridCommands::cmdInsert_Click, 8, "insert", "Error Inserting Record",
     "The insert request failed due to an invalid UIID"},
    {"RepeatRecord", &GridCommands::cmdRepeat_Click, 4, "repeat", "Error Repeating Record",
     "The repeat request failed due to an invalid UIID"},
};
} // namespace

class tst_grid_commands : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void addShowsTheNewRowAloneAtTheBottom() {
        Bench bench;
        bench.grid.selected = {0};
        bench.onEvent("AddRecord", [&] { bench.grid.appendRow(u"40|d|x|n"_s); });
        bench.commands.cmdAdd_Click();
        QCOMPARE(bench.grid.log.take(), kOpening +
                                            lines({"raise AddRecord()", "Bookmark(3)", "raise RowSelectionChanged(3)",
                                                   "SetFocus()", "Row(4)", "Unselect()", "Select(3)"}) +
                                            kClosing);
        QCOMPARE(bench.grid.selected, std::vector<qint32>{3});
    }

    void addWorksOnAnEmptyGrid() {
        Bench bench{QStringList()};
        bench.onEvent("AddRecord", [&] { bench.grid.appendRow(u"40|d|x|n"_s); });
        bench.commands.cmdAdd_Click();
        QCOMPARE(bench.rows(), lines({"40|d|x|n"}));
        QCOMPARE(bench.grid.selected, std::vector<qint32>{0});

        Bench refused{QStringList()};
        refused.commands.cmdAdd_Click();
        QCOMPARE(refused.grid.log.take(),
                 kOpening + lines({"raise AddRecord()", "SetFocus()", "Unselect()"}) + kClosing);
    }

    void insertAndRepeatPlaceTheirRow() {
        for (const auto &[maker, at, position] : Rows<const Maker *, qint32, qint32>{
                 {"insert before the first", &kMakers[1], 0, 0},
                 {"insert before the last", &kMakers[1], 2, 2},
                 {"repeat in the middle", &kMakers[2], 0, 1},
                 {"repeat of the last one appends", &kMakers[2], 2, 3},
             }) {
            Bench bench;
            bench.current(at);
            bench.onEvent(maker->event, [&bench, &flag = maker->flag, row = at, place = position] {
                QCOMPARE(bench.busy.bits(), flag);
                QCOMPARE(bench.grid.field.recordNr, row + 1); // the cursor still stands on the source record
                bench.grid.insertRow(place, u"15|new|x|n"_s);
            });
            (bench.commands.*maker->run)();
            QStringList rows = kRows;
            rows.insert(position, u"15|new|x|n"_s);
            QCOMPARE(bench.rows(), rows);
            const QStringList made{u"raise %1()"_s.arg(QLatin1String(maker->event)), u"Bookmark(%1)"_s.arg(position)};
            QCOMPARE(bench.grid.log.take(), (maker == &kMakers[2] ? lines({"Update()"}) : QStringList()) + kOpening +
                                                lines({"Update()", "ReBind()"}) + made +
                                                lines({"SetFocus()", "ReBind()"}) +
                                                QStringList(u"Select(%1)"_s.arg(position)) + kClosing);
            QVERIFY(bench.busy.idle());
        }
    }

    void aRefusedRowVanishes() {
        for (const Maker *maker : {&kMakers[1], &kMakers[2]}) {
            Bench bench;
            bench.current(1);
            bench.grid.inserted = true; // of a command before
            (bench.commands.*maker->run)();
            QCOMPARE(bench.rows(), kRows);
            QCOMPARE(bench.grid.log.linesOf(u"Bookmark"_s), QStringList());
            QVERIFY(bench.busy.idle());
        }
        Bench refilled; // while the component is asked
        refilled.onEvent("InsertRecord", [&] { refilled.grid.setRows(kRows); });
        refilled.commands.cmdInsert_Click();
        QCOMPARE(refilled.rows(), kRows);
    }

    void insertOnAnEmptyGridDoesNothing() {
        Bench bench{QStringList()};
        bench.commands.cmdInsert_Click();
        bench.commands.cmdRepeat_Click();
        QCOMPARE(bench.grid.log.take(), kOpening + kClosing + lines({"Update()"}) + kOpening + kClosing);
    }

    void anUnsortedGridAsksFirst() {
        for (const Maker &command : kMakers) {
            for (const qint32 answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
                Bench bench({u"20|b|x|n"_s, u"10|a|x|n"_s});
                bench.grid.design.RequiresSortBeforeAdd = true;
                const QString prompt = kSortPrompt.arg(QLatin1String(command.verb));
                bench.grid.services.boxes.expect(prompt, answer);
                (bench.commands.*command.run)();
                QCOMPARE(bench.grid.services.boxes.shown().value(0),
                         u"%1: %2 [52]"_s.arg(QLatin1String(command.sortTitle), prompt));
                QCOMPARE(bench.grid.log.linesOf(u"raise SortColumnByUIID"_s),
                         answer == MessageAnswer::kYes ? lines({"raise SortColumnByUIID(Nr)"}) : QStringList());
                QCOMPARE(bench.grid.log.linesOf(u"raise "_s + QLatin1String(command.event)), QStringList());
                QCOMPARE(bench.grid.log.lines().last(), kClosing.last());
                QVERIFY(bench.busy.idle());
            }
        }
    }

    void sortednessIsNumeric() {
        for (const auto &[keys, sorted] : Rows<QStringList, bool>{
                 {"none", {}, true},
                 {"one, no number", lines({"x"}), true},
                 {"9 before 10", lines({"9", "10"}), true},
                 {"equal neighbours", lines({"5", "5", "6"}), true},
                 {"falls at the end", lines({"1", "2", "1"}), false},
                 {"no number counts as 0", lines({"1", "Undefined"}), false},
             }) {
            QStringList rows;
            for (const QString &key : keys)
                rows << key + u"|a|b|c"_s;
            const Bench bench(rows);
            QCOMPARE(bench.sorting.FirstColumnIsSorted(), sorted);
        }
    }

    void aMissingObjectEndsTheCommandAlone() {
        for (const Maker &command : kMakers) {
            Bench bench;
            bench.onEvent(command.event, [] { throw missingObject(); });
            bench.grid.services.boxes.expect(QLatin1String(command.invalidUIID), MessageAnswer::kOk);
            (bench.commands.*command.run)();
            QCOMPARE(bench.grid.services.boxes.shown().value(0),
                     u"Error: %1 [48]"_s.arg(QLatin1String(command.invalidUIID)));
            QCOMPARE(bench.rows(), kRows);
            QVERIFY(bench.busy.idle());
            QCOMPARE(bench.grid.log.lines().last(), kClosing.last());
        }
    }

    void anyOtherErrorIsReported() {
        Bench bench;
        bench.onEvent("RepeatRecord", [] { throw RunTimeError(13, {}, u"Type mismatch"_s); });
        bench.grid.services.errorSink.expectReport();
        bench.commands.cmdRepeat_Click();
        QCOMPARE(bench.grid.services.errorSink.reports().size(), 1);
        QVERIFY(bench.grid.services.errorSink.reports().first().contains(u"cmdRepeat_Click"_s));
        QCOMPARE(bench.busy.bits(), BusyFlags::kRepeat);
    }

    void aFormClosedInsideADeleteLeavesTheEchoOn() {
        Bench bench;
        bench.grid.selected = {0, 1};
        bench.onEvent("DeleteRecord", [&] { bench.grid.terminated = true; });
        bench.deletion.cmdDelete_Click();
        const QStringList log = bench.grid.log.take();
        QCOMPARE(log.filter(u"DeleteRecord"_s).size(), 1);
        QVERIFY(log.contains(u"SetProviderUpdateUIOnFieldChange(true)"_s));
        QCOMPARE(log.last(), u"EndBatchUpdate()"_s);
    }

    void headClickSortsUnlessRefused() {
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

    void leavingSortsWithoutAsking() {
        Bench bench({u"20|b|x|n"_s, u"10|a|x|n"_s});
        bench.sorting.UserControl_ExitFocus();
        QCOMPARE(bench.grid.log.take(), QStringList());
        bench.grid.design.RequiresSortBeforeAdd = true;
        bench.sorting.UserControl_ExitFocus();
        QCOMPARE(bench.grid.log.linesOf(u"raise SortColumnByUIID"_s).size(), 1);
    }

    void deletePlacesTheCursor() {
        // cursor: -1 where it is not placed
        for (const auto &[rows, at, accepted, cursor] : Rows<QStringList, qint32, bool, qint32>{
                 {"in the middle", kRows, 1, true, 1},
                 {"the last of several", kRows, 2, true, 1},
                 {"the only one", lines({"10|a|x|n"}), 0, true, -1},
                 {"of none", {}, 0, true, -1},
                 {"refused", kRows, 1, false, 1},
             }) {
            Bench bench(rows);
            if (!rows.isEmpty())
                bench.current(at);
            if (accepted)
                bench.deletes();
            bench.deletion.cmdDelete_Click();
            const bool asks = !rows.isEmpty();
            const QStringList placed =
                cursor < 0 ? QStringList() : QStringList(u"Bookmark(%1)"_s.arg(cursor)) + lines({"SetFocus()"});
            QCOMPARE(bench.grid.log.take(), lines({"BeginBatchUpdate()", "Buttons(false)"}) +
                                                (asks ? lines({"Update()", "raise DeleteRecord()"}) : QStringList()) +
                                                placed + lines({"Buttons(true)", "EndBatchUpdate()"}));
            QVERIFY(bench.busy.idle());
        }
    }

    void multipleDeleteIsOneBatch() {
        QStringList rows = kRows;
        rows << u"40|d|x|n"_s;
        Bench bench(rows);
        bench.current(1);
        bench.grid.selected = {1, 2, 3};
        bench.deletes();
        bench.grid.component.when(u"GetGridData"_s).answers(lines({"10|a|x|n"}));
        bench.deletion.cmdDelete_Click();
        QCOMPARE(bench.rows(), lines({"10|a|x|n"}));
        QCOMPARE(bench.grid.log.take(),
                 lines({"BeginBatchUpdate()", "Buttons(false)", "Update()", "SetProviderUpdateUIOnFieldChange(false)",
                        "raise DeleteRecord()", "raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                        "raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                        "GetGridData(Nr|Name|Kind|Net, true, 0)", "grdFreq.Rebind(true)", "Bookmark(0)", "SetFocus()",
                        "Buttons(true)", "EndBatchUpdate()"}));
    }

    void aDeleteInsideADeleteClosesItsBatch() {
        Bench bench;
        bench.onEvent("DeleteRecord", [&] { bench.deletion.cmdDelete_Click(); });
        bench.deletion.cmdDelete_Click();
        QCOMPARE(bench.grid.log.linesOf(u"raise DeleteRecord"_s).size(), 1);
        QCOMPARE(bench.grid.log.linesOf(u"BeginBatchUpdate"_s).size(), 2);
        QCOMPARE(bench.grid.log.linesOf(u"EndBatchUpdate"_s).size(), 2);
    }

    void aFailedDeleteClosesItsBatch() {
        Bench bench;
        bench.grid.selected = {0, 1};
        bench.onEvent("DeleteRecord", [] { throw missingObject(); });
        bench.grid.services.boxes.expect(u"The delete request failed due to an invalid UIID"_s, MessageAnswer::kOk);
        bench.deletion.cmdDelete_Click();
        QCOMPARE(bench.grid.log.take().mid(4), lines({"raise DeleteRecord()", "SetProviderUpdateUIOnFieldChange(true)",
                                                      "Buttons(true)", "EndBatchUpdate()"}));
        QVERIFY(bench.busy.idle());
    }
};

QTEST_MAIN(tst_grid_commands)
#include "tst_grid_commands.moc"
