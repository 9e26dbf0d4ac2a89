#include "field_bench.h"
#include "fld_grid_field.h"
#include "scripted_grid_host.h"
#include "tdb_drop_down.h"
#include "tdb_grid.h"

#include <QHeaderView>
#include <QTest>

#include <functional>

namespace {
const QString kName = QStringLiteral("Grid");
// 0 an ID tracker, 1 a frequency, 2 a combo.
const QString kFields =
    QStringLiteral("|Net|800   |ID Tracker|0| 000.000000|Freq|1250  |Text|0||Power|950   |Combo|0|");

class Bench {
  public:
    explicit Bench(const QString &fields = kFields) : grid(addGrid(fields)) {
        bench.host(kName).SetListener(&host);
        host.lists = {
            {QStringLiteral("Net"), {QStringLiteral("North"), QStringLiteral("South")}},
            {QStringLiteral("Power"), {QStringLiteral("Off"), QStringLiteral("Low"), QStringLiteral("High")}}};
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
        return bench.add<fldGridField>(
            kName, QVariantMap{{QStringLiteral("Fields"), fields}, {QStringLiteral("Dynamic"), true}});
    }
};

QString cell(const Bench &bench, qint32 row, qint32 column) { return bench.grid.CellValue(row, column); }
} // namespace

class tst_grid_display final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void comboCellsShowTheirItem_data();
    void comboCellsShowTheirItem();
    void listsAreAskedOnceUnlessTheyDifferByRecord_data();
    void listsAreAskedOnceUnlessTheyDifferByRecord();
    void aColumnWithoutALabelIsLeftOff();
    void lastColumnTakesWhatIsLeft();
    void currentCellGivesTypeValueAndRecord();
    void emptyGridAnswersForItsFirstColumn();
    void valuesFromTheComponentReachTheirCell();
    void anIllegalIdStaysInItsList();
    void listShowsTenRowsAtMost_data();
    void listShowsTenRowsAtMost();
    void anotherLanguageIsShownAndNeverGiven();
    void everyLeavingIsJudged();
    void anUntouchedOddValueIsNotWritten();
    void givenValuesAreNotFormatted();
    void rowsOfFormCode();
    void lockedAndDisabledColumnsTakeNoEdit();
    void heads();
    void aFormClosedInsideAnEventIsLeftAlone_data();
    void aFormClosedInsideAnEventIsLeftAlone();
};

void tst_grid_display::comboCellsShowTheirItem_data() {
    QTest::addColumn<QString>("map");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("value");
    QTest::newRow("index") << ""
                           << "1"
                           << "Low"
                           << "1";
    QTest::newRow("value of the map") << "5|10|20"
                                      << "10"
                                      << "Low"
                                      << "10";
    QTest::newRow("number in another form") << "5|10|20"
                                            << "20.0"
                                            << "High"
                                            << "20";
    QTest::newRow("not in the map, an index") << "5|10|20"
                                              << "2"
                                              << "High"
                                              << "20";
    QTest::newRow("neither") << "5|10|20"
                             << "7"
                             << "Undefined"
                             << "";
    QTest::newRow("beyond the list") << ""
                                     << "3"
                                     << "Undefined"
                                     << "";
    QTest::newRow("Undefined") << ""
                               << "Undefined"
                               << "Off"
                               << "0";
    QTest::newRow("text") << ""
                          << "abc"
                          << "Off"
                          << "0";
}

void tst_grid_display::comboCellsShowTheirItem() {
    QFETCH(QString, map);
    QFETCH(QString, stored);
    Bench bench;
    bench.bench.component.when(QStringLiteral("GetIsComboIndex"), QStringLiteral("Power")).answers(map);
    bench.fill({QStringLiteral("North|1.5|") + stored});
    bench.goTo(0, 2);
    QTEST(cell(bench, 0, 2), "shown");
    QTEST(bench.grid.Ifield_GetValue().toString(), "value");
}

void tst_grid_display::listsAreAskedOnceUnlessTheyDifferByRecord_data() {
    QTest::addColumn<int>("scope");
    QTest::addColumn<QStringList>("asked");
    const QString first = QStringLiteral("GetComboItems Power 1");
    QTest::newRow("one for all") << 0 << QStringList{first};
    QTest::newRow("by record") << 2
                               << QStringList{first, QStringLiteral("GetComboItems Power 2"),
                                              QStringLiteral("GetComboItems Power 3")};
}

void tst_grid_display::listsAreAskedOnceUnlessTheyDifferByRecord() {
    QFETCH(int, scope);
    Bench bench;
    bench.fill({QStringLiteral("North|1|0"), QStringLiteral("North|1|0"), QStringLiteral("North|1|0")});
    bench.host.scope = scope;
    bench.grid.Igrid_Rebind(true);
    QTEST(bench.host.heardOf(QStringLiteral("GetComboItems")), "asked");
}

void tst_grid_display::aColumnWithoutALabelIsLeftOff() {
    Bench bench;
    bench.host.labels.insert(QStringLiteral("Power"), QString());
    bench.fill({QStringLiteral("North|1|0")});
    QCOMPARE(bench.table().model()->columnCount(), 2);
    QCOMPARE(bench.grid.Igrid_GetUIIDList(), QStringLiteral("Net|Freq|Power"));
    bench.goTo(0, 2); // there is none
    QCOMPARE(bench.grid.CurrentColumn(), 0);
}

void tst_grid_display::lastColumnTakesWhatIsLeft() {
    const auto widthOfTheLast = [](const QString &first) {
        Bench bench(QStringLiteral("|Net|%1|Text|0||Freq|0     |Text|0|").arg(first));
        bench.bench.host(kName).SetGeometry({{0}, {0}, {6000}, {3000}});
        bench.bench.show();
        bench.fill({QStringLiteral("North|1")});
        return bench.table().columnWidth(1);
    };
    // 6,000 twips are 400 pixels; the frame, the row heads and the scroll bar take some of them.
    const int left = widthOfTheLast(QStringLiteral("1500"));
    QVERIFY2(left > 240 && left < 300, qPrintable(QString::number(left)));
    QVERIFY(widthOfTheLast(QStringLiteral("7000")) < 80);
}

void tst_grid_display::currentCellGivesTypeValueAndRecord() {
    Bench bench;
    bench.fill({QStringLiteral("North|1.5|0"), QStringLiteral("South|2.5|2")});
    struct Expected {
        const char *uiid;
        const char *type;
        const char *value;
    };
    constexpr Expected kRow2[] = {
        {"Net", "fldIdTrackerField", "South"}, {"Freq", "fldTextField", "2.5"}, {"Power", "fldComboField", "2"}};
    for (qint32 column = 0; column < 3; ++column) {
        bench.goTo(1, column);
        QCOMPARE(bench.grid.Ifield_GetUIID(), QLatin1String(kRow2[column].uiid));
        QCOMPARE(bench.grid.Ifield_GetTypeName(), QLatin1String(kRow2[column].type));
        QCOMPARE(bench.grid.Ifield_GetValue().toString(), QLatin1String(kRow2[column].value));
        QCOMPARE(bench.grid.Ifield_GetRecordNr(), 2);
    }
}

void tst_grid_display::emptyGridAnswersForItsFirstColumn() {
    Bench bench;
    bench.fill({});
    QCOMPARE(bench.grid.Ifield_GetValue().toString(), QStringLiteral("Undefined"));
    QCOMPARE(bench.grid.Ifield_GetUIID(), QStringLiteral("Net"));
    QCOMPARE(bench.grid.Ifield_GetRecordNr(), 1);
    QCOMPARE(bench.grid.CurrentRow(), -1);
    XArrayDB row;
    row.ReDim(0, 2);
    row.SetValue(0, 0, QStringLiteral("South"));
    row.SetValue(0, 2, 1);
    bench.grid.Igrid_AppendRow(row);
    QCOMPARE(bench.grid.CurrentRow(), 0);
    QCOMPARE(cell(bench, 0, 0), QStringLiteral("South"));
    QCOMPARE(cell(bench, 0, 2), QStringLiteral("Low"));
}

void tst_grid_display::valuesFromTheComponentReachTheirCell() {
    Bench bench;
    bench.bench.component.when(QStringLiteral("GetGridCellRaw"), QStringLiteral("Power"))
        .answers(QStringLiteral("Off|Low|High"));
    bench.fill({QStringLiteral("North|1|0"), QStringLiteral("North|1|0")});
    bench.grid.Igrid_SetValue(QStringLiteral("Freq"), 2, QStringLiteral("3.5"));
    bench.grid.Igrid_SetValue(QStringLiteral("Power"), 2, 2);
    QCOMPARE(cell(bench, 1, 1), QStringLiteral("3.5"));
    QCOMPARE(cell(bench, 1, 2), QStringLiteral("High"));
    QCOMPARE(bench.grid.CurrentRow(), 1);
    for (const qint32 record : {0, 3}) // neither is there
        bench.grid.Igrid_SetValue(QStringLiteral("Freq"), record, 9);
    bench.grid.Igrid_SetValue(QStringLiteral("Other"), 1, 9);
    QCOMPARE(cell(bench, 0, 1), QStringLiteral("1"));
    QCOMPARE(bench.grid.CurrentRow(), 1);
}

void tst_grid_display::anIllegalIdStaysInItsList() {
    Bench bench;
    bench.fill({QStringLiteral("West|1|0"), QStringLiteral("South|1|0")});
    bench.goTo(1, 0);
    const TDBDropDown &list = bench.table().dropDown();
    QCOMPARE(list.items(), (QStringList{QStringLiteral("North"), QStringLiteral("South")}));
    QCOMPARE(list.bookmark(), 1);
    bench.goTo(0, 0);
    QCOMPARE(list.items(), (QStringList{QStringLiteral("West"), QStringLiteral("North"), QStringLiteral("South")}));
    QCOMPARE(list.bookmark(), 0);
}

void tst_grid_display::listShowsTenRowsAtMost_data() {
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("one") << 1 << 1 << false;
    QTest::newRow("ten") << 10 << 10 << false;
    QTest::newRow("eleven") << 11 << 10 << true;
}

void tst_grid_display::listShowsTenRowsAtMost() {
    QFETCH(int, items);
    QWidget window;
    TDBDropDown list(&window);
    list.setItems(QStringList(items, QStringLiteral("x")));
    list.SetDropdownSize(120, 20);
    QCOMPARE(list.width(), 120);
    QFETCH(int, rows);
    QCOMPARE(list.height() - 2 * list.frameWidth(), rows * 20);
    const auto *view = list.findChild<QAbstractScrollArea *>();
    QTEST(view->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn, "scrolls");
}

void tst_grid_display::anotherLanguageIsShownAndNeverGiven() {
    Bench bench;
    bench.bench.services.translate({QStringLiteral("South|Sud"), QStringLiteral("North|Nord")});
    bench.fill({QStringLiteral("South|Undefined|1")});
    bench.goTo(0, 0);
    QCOMPARE(cell(bench, 0, 0), QStringLiteral("Sud"));
    QCOMPARE(bench.grid.Ifield_GetValue().toString(), QStringLiteral("South"));
    QCOMPARE(bench.table().dropDown().items(), (QStringList{QStringLiteral("Nord"), QStringLiteral("Sud")}));
    QCOMPARE(cell(bench, 0, 1), QStringLiteral("Undefined"));
    bench.grid.Ifield_SetValue(QStringLiteral("North"), false);
    QCOMPARE(cell(bench, 0, 0), QStringLiteral("Nord"));
    QCOMPARE(bench.grid.Ifield_GetValue().toString(), QStringLiteral("North"));
    // A choice in the list is kept untranslated.
    bench.table().openDropDown();
    bench.table().dropDown().setBookmark(1);
    QTest::keyClick(bench.table().dropDown().focusProxy(), Qt::Key_Return);
    QCOMPARE(cell(bench, 0, 0), QStringLiteral("Sud"));
    QCOMPARE(bench.grid.Ifield_GetValue().toString(), QStringLiteral("South"));
}

void tst_grid_display::everyLeavingIsJudged() {
    Bench bench;
    bench.fill({QStringLiteral("North|1|0"), QStringLiteral("South|2|0")});
    bench.goTo(0, 1);
    bench.host.heard.clear();
    bench.host.refuses = true;
    bench.goTo(1, 1);
    QCOMPARE(bench.grid.CurrentRow(), 0);
    QCOMPARE(bench.host.heard, (QStringList{QStringLiteral("Change"), QStringLiteral("ManualValidate")}));
    QVERIFY(!bench.grid.MayLeave());
    bench.grid.Igrid_SetSelectedRow(1); // by code, just the same
    QCOMPARE(bench.grid.CurrentRow(), 0);
    bench.host.refuses = false;
    bench.host.heard.clear();
    bench.goTo(1, 1);
    QCOMPARE(bench.host.heard,
             (QStringList{QStringLiteral("Change"), QStringLiteral("ManualValidate"),
                          QStringLiteral("GetValidationString"), QStringLiteral("RowSelectionChanged")}));
}

void tst_grid_display::anUntouchedOddValueIsNotWritten() {
    Bench bench;
    bench.fill({QStringLiteral("North|1|9")}); // a position that the list does not have
    bench.goTo(0, 2);
    bench.host.heard.clear();
    bench.goTo(0, 1);
    QCOMPARE(bench.grid.CurrentColumn(), 1);
    QVERIFY(!bench.host.heard.contains(QStringLiteral("Change")));
}

void tst_grid_display::givenValuesAreNotFormatted() {
    Bench bench;
    bench.fill({QStringLiteral("North|68.5|0")});
    bench.goTo(0, 1);
    bench.goTo(0, 0);
    QCOMPARE(cell(bench, 0, 1), QStringLiteral("68.5"));
    bench.goTo(0, 1);
    bench.grid.Ifield_SetValue(QStringLiteral("70.25"), false); // as by a paste
    bench.goTo(0, 0);
    QCOMPARE(cell(bench, 0, 1), QStringLiteral("070.250000"));
}

void tst_grid_display::rowsOfFormCode() {
    Bench bench;
    bench.fill({QStringLiteral("North|1|0"), QStringLiteral("South|2|0")});
    QCOMPARE(bench.grid.IGrid_AppendBlankRow(), 2);
    QCOMPARE(bench.grid.CurrentRow(), 2);
    XArrayDB row;
    row.ReDim(0, 2);
    row.SetValue(0, 0, QStringLiteral("West"));
    row.SetValue(0, 2, 2);
    bench.grid.IGrid_ModifyRow(1, row);
    QCOMPARE(cell(bench, 1, 0), QStringLiteral("West"));
    QCOMPARE(cell(bench, 1, 2), QStringLiteral("High"));
    bench.grid.IGrid_RemoveRow(0);
    QCOMPARE(bench.grid.Igrid_GetArray().UpperBound(1), 1);
    QCOMPARE(cell(bench, 0, 0), QStringLiteral("West"));
}

void tst_grid_display::lockedAndDisabledColumnsTakeNoEdit() {
    Bench bench(QStringLiteral("|Net|800|Text|-1||Freq|1250|Text|0||Power|950|Combo|0|"));
    bench.fill({QStringLiteral("North|1|0")});
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
    bench.grid.Igrid_SetColumnDisabled(QStringLiteral("Freq"));
    bench.grid.Igrid_SetColumnDisabled(QStringLiteral("Unknown"));
    QVERIFY(!canEdit(1));
    QVERIFY(canEdit(2));
    bench.grid.Ifield_SetDisabled();
    QVERIFY(!canEdit(2));
    table.openDropDown();
    QVERIFY(!table.dropDown().isVisible());
    bench.grid.Ifield_SetEnabled();
    QVERIFY(canEdit(1) && canEdit(2) && !canEdit(0));
}

void tst_grid_display::heads() {
    Bench bench;
    bench.bench.component.when(QStringLiteral("GetUIWidth"), QStringLiteral("Net")).answers(8);
    bench.fill({});
    QCOMPARE(bench.grid.Igrid_GetHeader().join(u'|'), QStringLiteral("      Net| Freq| Power"));
    QCOMPARE(bench.table().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Freq"));
}

void tst_grid_display::aFormClosedInsideAnEventIsLeftAlone_data() {
    QTest::addColumn<QString>("event");
    for (const char *event :
         {"GetComboItems", "GetIDItems", "GetValidationString", "ManualValidate", "Change", "RowSelectionChanged",
          "AddRecord", "InsertRecord", "RepeatRecord", "DeleteRecord", "SortColumnByUIID", "Escape"})
        QTest::newRow(event) << QString::fromLatin1(event);
}

// Whatever the user does at that moment: nothing more is raised.
void tst_grid_display::aFormClosedInsideAnEventIsLeftAlone() {
    QFETCH(QString, event);
    Bench bench;
    bench.fill({QStringLiteral("North|1|0"), QStringLiteral("South|2|0")});
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

QTEST_MAIN(tst_grid_display)
#include "tst_grid_display.moc"
