#include "field_bench.h"
#include "fld_grid_field.h"
#include "rows.h"
#include "scripted_grid_host.h"
#include "tdb_drop_down.h"
#include "tdb_grid.h"

#include <QHeaderView>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
const QString kName = u"Grid"_s;
// 0 an ID tracker, 1 a frequency, 2 a combo.
const QString kFields = u"|Net|800   |ID Tracker|0| 000.000000|Freq|1250  |Text|0||Power|950   |Combo|0|"_s;

class Bench {
  public:
    explicit Bench(const QString &fields = kFields) : grid(addGrid(fields)) {
        bench.host(kName).SetListener(&host);
        host.lists = {{u"Net"_s, {u"North"_s, u"South"_s}}, {u"Power"_s, {u"Off"_s, u"Low"_s, u"High"_s}}};
    }
    FieldBench bench;
    ScriptedGridHost host;
    fldGridField &grid;

    [[nodiscard]] TDBGrid &table() const { return *grid.findChild<TDBGrid *>(); }
    // As the enabler fills it; the cells of a row stand in an entry, joined by bars.
    void fill(const QStringList &rows) {
        grid.Igrid_SetColumns();
        XArrayDB &array = grid.Igrid_GetArray();
        array.Clear();
        array.ReDim(qint32(rows.size()) - 1, 2);
        for (qint32 row = 0; row < qint32(rows.size()); ++row) {
            for (qint32 column = 0; column <= 2; ++column)
                array.SetValue(row, column, rows[row].section(u'|', column, column));
        }
        grid.Igrid_Rebind(true);
        host.heard.clear();
    }
    void goTo(qint32 row, qint32 column) { table().MoveTo({row, column}); }

  private:
    fldGridField &addGrid(const QString &fields) {
        return bench.add<fldGridField>(kName, QVariantMap{{u"Fields"_s, fields}, {u"Dynamic"_s, true}});
    }
};

QString cell(const Bench &bench, qint32 row, qint32 column) { return bench.grid.CellValue(row, column); }
} // namespace

class tst_grid_display final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void comboCellsShowTheirItem() {
        for (const auto &[map, stored, shown, value] : Rows<QString, QString, QString, QString>{
                 {"index", u""_s, u"1"_s, u"Low"_s, u"1"_s},
                 {"value of the map", u"5|10|20"_s, u"10"_s, u"Low"_s, u"10"_s},
                 {"number in another form", u"5|10|20"_s, u"20.0"_s, u"High"_s, u"20"_s},
                 {"not in the map, an index", u"5|10|20"_s, u"2"_s, u"High"_s, u"20"_s},
                 {"neither", u"5|10|20"_s, u"7"_s, u"Undefined"_s, u""_s},
                 {"beyond the list", u""_s, u"3"_s, u"Undefined"_s, u""_s},
                 {"Undefined", u""_s, u"Undefined"_s, u"Off"_s, u"0"_s},
                 {"text", u""_s, u"abc"_s, u"Off"_s, u"0"_s},
             }) {
            Bench bench;
            bench.bench.component.when(u"GetIsComboIndex"_s, u"Power"_s).answers(map);
            bench.fill({u"North|1.5|"_s + stored});
            bench.goTo(0, 2);
            QCOMPARE(cell(bench, 0, 2), shown);
            QCOMPARE(bench.grid.Ifield_GetValue().toString(), value);
        }
    }

    void listsAreAskedOnceUnlessTheyDifferByRecord() {
        const QString first = u"GetComboItems Power 1"_s;

        for (const auto &[scope, asked] : Rows<int, QStringList>{
                 {"one for all", 0, {first}},
                 {"by record", 2, {first, u"GetComboItems Power 2"_s, u"GetComboItems Power 3"_s}},
             }) {
            Bench bench;
            bench.fill({u"North|1|0"_s, u"North|1|0"_s, u"North|1|0"_s});
            bench.host.scope = scope;
            bench.grid.Igrid_Rebind(true);
            QCOMPARE(bench.host.heardOf(u"GetComboItems"_s), asked);
        }
    }

    void aColumnWithoutALabelIsLeftOff() {
        Bench bench;
        bench.host.labels.insert(u"Power"_s, QString());
        bench.fill({u"North|1|0"_s});
        QCOMPARE(bench.table().model()->columnCount(), 2);
        QCOMPARE(bench.grid.Igrid_GetUIIDList(), u"Net|Freq|Power"_s);
        bench.goTo(0, 2); // there is none
        QCOMPARE(bench.grid.CurrentColumn(), 0);
    }

    void currentCellGivesTypeValueAndRecord() {
        Bench bench;
        bench.fill({u"North|1.5|0"_s, u"South|2.5|2"_s});
        for (qint32 column = 0; column < 3; ++column) {
            bench.goTo(1, column);
            QCOMPARE(QStringList({bench.grid.Ifield_GetUIID(), bench.grid.Ifield_GetTypeName(),
                                  bench.grid.Ifield_GetValue().toString()})
                         .join(u' '),
                     QStringList({u"Net fldIdTrackerField South"_s, u"Freq fldTextField 2.5"_s,
                                  u"Power fldComboField 2"_s})[column]);
            QCOMPARE(bench.grid.Ifield_GetRecordNr(), 2);
        }
    }

    void emptyGridAnswersForItsFirstColumn() {
        Bench bench;
        bench.fill({});
        QCOMPARE(bench.grid.Ifield_GetValue().toString(), u"Undefined"_s);
        QCOMPARE(bench.grid.Ifield_GetUIID(), u"Net"_s);
        QCOMPARE(bench.grid.Ifield_GetRecordNr(), 1);
        QCOMPARE(bench.grid.CurrentRow(), -1);
        XArrayDB row;
        row.ReDim(0, 2);
        row.SetValue(0, 0, u"South"_s);
        row.SetValue(0, 2, 1);
        bench.grid.Igrid_AppendRow(row);
        QCOMPARE(bench.grid.CurrentRow(), 0);
        QCOMPARE(cell(bench, 0, 0), u"South"_s);
        QCOMPARE(cell(bench, 0, 2), u"Low"_s);
    }

    void valuesFromTheComponentReachTheirCell() {
        Bench bench;
        bench.bench.component.when(u"GetGridCellRaw"_s, u"Power"_s).answers(u"Off|Low|High"_s);
        bench.fill({u"North|1|0"_s, u"North|1|0"_s});
        bench.grid.Igrid_SetValue(u"Freq"_s, 2, u"3.5"_s);
        bench.grid.Igrid_SetValue(u"Power"_s, 2, 2);
        QCOMPARE(cell(bench, 1, 1), u"3.5"_s);
        QCOMPARE(cell(bench, 1, 2), u"High"_s);
        QCOMPARE(bench.grid.CurrentRow(), 1);
        for (const qint32 record : {0, 3}) // neither is there
            bench.grid.Igrid_SetValue(u"Freq"_s, record, 9);
        bench.grid.Igrid_SetValue(u"Other"_s, 1, 9);
        QCOMPARE(cell(bench, 0, 1), u"1"_s);
        QCOMPARE(bench.grid.CurrentRow(), 1);
    }

    void anIllegalIdStaysInItsList() {
        Bench bench;
        bench.fill({u"West|1|0"_s, u"South|1|0"_s});
        const TDBDropDown &list = bench.table().dropDown();
        bench.goTo(1, 0);
        QCOMPARE(list.items().join(u' '), u"North South"_s);
        bench.goTo(0, 0);
        QCOMPARE(list.items().join(u' '), u"West North South"_s);
        QCOMPARE(list.bookmark(), 0);
    }

    void listShowsTenRowsAtMost() {
        for (const int items : {1, 10, 11}) {
            QWidget window;
            TDBDropDown list(&window);
            list.setItems(QStringList(items, u"x"_s));
            list.SetDropdownSize(120, 20);
            QCOMPARE(list.width(), 120);
            QCOMPARE(list.height() - 2 * list.frameWidth(), std::min(items, 10) * 20);
            const auto *view = list.findChild<QAbstractScrollArea *>();
            QCOMPARE(view->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn, items > 10);
        }
    }

    void anotherLanguageIsShownAndNeverGiven() {
        Bench bench;
        bench.bench.services.translate({u"South|Sud"_s, u"North|Nord"_s});
        bench.fill({u"South|Undefined|1"_s});
        bench.goTo(0, 0);
        QCOMPARE(cell(bench, 0, 0), u"Sud"_s);
        QCOMPARE(bench.grid.Ifield_GetValue().toString(), u"South"_s);
        QCOMPARE(bench.table().dropDown().items(), (QStringList{u"Nord"_s, u"Sud"_s}));
        QCOMPARE(cell(bench, 0, 1), u"Undefined"_s);
        bench.grid.Ifield_SetValue(u"North"_s, false);
        QCOMPARE(cell(bench, 0, 0), u"Nord"_s);
        QCOMPARE(bench.grid.Ifield_GetValue().toString(), u"North"_s);
        // A choice in the list is kept untranslated.
        bench.table().openDropDown();
        bench.table().dropDown().setBookmark(1);
        QTest::keyClick(bench.table().dropDown().focusProxy(), Qt::Key_Return);
        QCOMPARE(cell(bench, 0, 0), u"Sud"_s);
        QCOMPARE(bench.grid.Ifield_GetValue().toString(), u"South"_s);
    }

    void everyLeavingIsJudged() {
        Bench bench;
        bench.fill({u"North|1|0"_s, u"South|2|0"_s});
        bench.goTo(0, 1);
        bench.host.heard.clear();
        bench.host.refuses = true;
        bench.goTo(1, 1);
        QCOMPARE(bench.grid.CurrentRow(), 0);
        QCOMPARE(bench.host.heard, (QStringList{u"Change"_s, u"ManualValidate"_s}));
        QVERIFY(!bench.grid.MayLeave());
        bench.grid.Igrid_SetSelectedRow(1); // by code, just the same
        QCOMPARE(bench.grid.CurrentRow(), 0);
        bench.host.refuses = false;
        bench.host.heard.clear();
        bench.goTo(1, 1);
        QCOMPARE(bench.host.heard,
                 (QStringList{u"Change"_s, u"ManualValidate"_s, u"GetValidationString"_s, u"RowSelectionChanged"_s}));
    }

    void anUntouchedOddValueIsNotWritten() {
        Bench bench;
        bench.fill({u"North|1|9"_s}); // a position that the list does not have
        bench.goTo(0, 2);
        bench.host.heard.clear();
        bench.goTo(0, 1);
        QCOMPARE(bench.grid.CurrentColumn(), 1);
        QVERIFY(!bench.host.heard.contains(u"Change"_s));
    }

    void givenValuesAreNotFormatted() {
        Bench bench;
        bench.fill({u"North|68.5|0"_s});
        bench.goTo(0, 1);
        bench.goTo(0, 0);
        QCOMPARE(cell(bench, 0, 1), u"68.5"_s);
        bench.goTo(0, 1);
        bench.grid.Ifield_SetValue(u"70.25"_s, false); // as by a paste
        bench.goTo(0, 0);
        QCOMPARE(cell(bench, 0, 1), u"070.250000"_s);
    }

    void rowsOfFormCode() {
        Bench bench;
        bench.fill({u"North|1|0"_s, u"South|2|0"_s});
        QCOMPARE(bench.grid.IGrid_AppendBlankRow(), 2);
        QCOMPARE(bench.grid.CurrentRow(), 2);
        XArrayDB row;
        row.ReDim(0, 2);
        row.SetValue(0, 0, u"West"_s);
        row.SetValue(0, 2, 2);
        bench.grid.IGrid_ModifyRow(1, row);
        QCOMPARE(cell(bench, 1, 0), u"West"_s);
        QCOMPARE(cell(bench, 1, 2), u"High"_s);
        bench.grid.IGrid_RemoveRow(0);
        QCOMPARE(bench.grid.Igrid_GetArray().UpperBound(1), 1);
        QCOMPARE(cell(bench, 0, 0), u"West"_s);
    }

    void lockedAndDisabledColumnsTakeNoEdit() {
        Bench bench(u"|Net|800|Text|-1||Freq|1250|Text|0||Power|950|Combo|0|"_s);
        bench.fill({u"North|1|0"_s});
        bench.bench.show();
        TDBGrid &table = bench.table();
        const auto canEdit = [&](qint32 column) {
            bench.goTo(0, column);
            table.StartEdit();
            const bool edits = table.EditActive();
            table.finishEdit();
            return edits;
        };
        QVERIFY(!canEdit(0));
        QVERIFY(canEdit(1));
        bench.grid.Igrid_SetColumnDisabled(u"Freq"_s);
        bench.grid.Igrid_SetColumnDisabled(u"Unknown"_s);
        QVERIFY(!canEdit(1));
        QVERIFY(canEdit(2));
        bench.grid.Ifield_SetDisabled();
        QVERIFY(!canEdit(2));
        table.openDropDown();
        QVERIFY(!table.dropDown().isVisible());
        bench.grid.Ifield_SetEnabled();
        QVERIFY(canEdit(1) && canEdit(2) && !canEdit(0));
    }

    void heads() {
        Bench bench;
        bench.bench.component.when(u"GetUIWidth"_s, u"Net"_s).answers(8);
        bench.fill({});
        QCOMPARE(bench.grid.Igrid_GetHeader().join(u'|'), u"      Net| Freq| Power"_s);
        QCOMPARE(bench.table().model()->headerData(1, Qt::Horizontal).toString(), u"Freq"_s);
    }

    // Whatever the user does at that moment: nothing more is raised.
    void aFormClosedInsideAnEventIsLeftAlone() {
        for (const QString &event : {u"GetComboItems"_s, u"GetIDItems"_s, u"GetValidationString"_s, u"ManualValidate"_s,
                                     u"Change"_s, u"RowSelectionChanged"_s, u"AddRecord"_s, u"InsertRecord"_s,
                                     u"RepeatRecord"_s, u"DeleteRecord"_s, u"SortColumnByUIID"_s, u"Escape"_s}) {
            Bench bench;
            bench.fill({u"North|1|0"_s, u"South|2|0"_s});
            bench.bench.show();
            bench.host.on = [&](const QString &name) {
                if (name == event)
                    bench.grid.Ifield_Terminate();
            };
            const std::function<void()> actions[] = {
                [&] { bench.goTo(1, 2); },
                [&] { bench.goTo(0, 0); },
                [&] { bench.grid.Add(); },
                [&] { bench.grid.Insert(); },
                [&] { bench.grid.Repeat(); },
                [&] { bench.grid.Delete(); },
                [&] { Q_EMIT bench.table().horizontalHeader()->sectionClicked(1); },
                [&] { QTest::keyClick(&bench.table(), Qt::Key_Escape); },
                [&] { bench.grid.Igrid_Rebind(true); },
                [&] { (void)bench.grid.MayLeave(); },
            };
            for (const auto &action : actions)
                action();
            QCOMPARE(bench.host.heard.isEmpty() ? event : bench.host.heard.last().section(u' ', 0, 0), event);
        }
    }
};

QTEST_MAIN(tst_grid_display)
#include "tst_grid_display.moc"
