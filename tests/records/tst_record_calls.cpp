#include "call_log.h"
#include "fld_page_navigator.h"
#include "fld_text_field.h"
#include "grid_bench.h"
#include "recording_transformer.h"
#include "rows.h"
#include "tdb_grid.h"
#include "window_input.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace {
using namespace Qt::StringLiterals;

const QStringList kRows{u"A|0"_s, u"B|0"_s, u"C|1"_s};

// A grid, the navigator bound to it and a text field of its stream, before the recording double, with three records.
class Recorded {
  public:
    Recorded() {
        component.when(u"GetNumberOfRecords"_s).answers(3);
        component.when(u"GetGridData"_s).answers(kRows);
        component.when(u"GetComboItems"_s).answers(QStringList{u"Off"_s, u"On"_s});
        component.when(u"GetLabel"_s).answers(u"Label"_s);
        for (const qint32 record : {1, 2, 3}) {
            component.when(u"GetValue"_s, u"Name"_s, record).answers(QString(QChar(u'A' + record - 1)));
            component.when(u"GetValue"_s, u"Kind"_s, record).answers(0);
        }
        component.when(u"GetValue"_s, u"Stored"_s).answers(2);
        bench.start(grid);
        // From here on a single row is fetched.
        component.when(u"GetGridData"_s).answers(QStringList(u"D|0"_s));
        component.when(u"GetValue"_s, u"Name"_s, 4).answers(u"D"_s);
        component.when(u"AddRecord"_s).answers(4);
        (void)log.take();
    }

    CallLog log;
    RecordingTransformer component{log};
    GridBench bench{&component};
    fldGridField &grid = bench.addGrid(u"|Name|1500|Text|0||Kind|1500|Combo|0|"_s);
    fldPageNavigator &navigator = bench.add<fldPageNavigator>(u"navigator"_s, {{100}, {6000}, {9000}, {520}},
                                                              {{u"NavigatorStream"_s, 1},
                                                               {u"GridID"_s, u"BenchGrid"_s},
                                                               {u"GridControl"_s, u"grid0"_s},
                                                               {u"GuideUIID"_s, u"Name"_s},
                                                               {u"PositionStorageUIID"_s, u"Stored"_s},
                                                               {u"SliderStyle"_s, 2}});
    fldTextField &field = bench.add<fldTextField>(u"field"_s, {{100}, {5200}, {3000}, {400}},
                                                  {{u"ID"_s, u"Other"_s}, {u"NavigatorStream"_s, 1}});

    TDBGrid &table() { return GridBench::table(grid); }
    // What decides since the last time: without the questions of display, help and focus.
    QStringList decisions() {
        static const QStringList kDecisions{u"AddRecord"_s,           u"BeginBatchUpdate"_s,  u"DeleteRecord"_s,
                                            u"EndBatchUpdate"_s,      u"GetFieldEnabled"_s,   u"GetGridData"_s,
                                            u"GetRecordDeleted"_s,    u"GetValue(Stored"_s,   u"GetValue(Other"_s,
                                            u"ImportRecordByPaste"_s, u"InsertRecord"_s,      u"RepeatRecord"_s,
                                            u"SetDataChanged"_s,      u"SetProviderUpdate"_s, u"SetValue"_s,
                                            u"SortColumn"_s,          u"ValidateForm"_s};
        QStringList lines = log.take();
        lines.removeIf([](const QString &line) {
            return std::ranges::none_of(kDecisions, [&](const QString &start) { return line.startsWith(start); });
        });
        return lines;
    }
    void press(const char *button) {
        WindowInput::click(*navigator.findChild<QPushButton *>(QString::fromLatin1(button)));
    }
};

using Action = void (*)(Recorded &);

// The number of records that the double tells stays 3, so a new row leads to the last of these. A move from the stored
// record to another one, asked by row, navigator or command.
QStringList move(int position) {
    return {u"GetValue(Stored, 1)"_s, u"ValidateForm(usrctlTest, Test, false)"_s,
            u"SetValue(Stored, %1, 1, true)"_s.arg(position), u"GetValue(Other, %1)"_s.arg(position),
            u"GetFieldEnabled(Other, %1)"_s.arg(position)};
}
} // namespace

// What the component is asked, in order, by the record operations and by a move of a real grid and its navigator.
class tst_record_calls final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void operationsAskInOrder() {
        const QString valid = u"ValidateForm(usrctlTest, Test, false)"_s;
        const QString stored = u"GetValue(Stored, 1)"_s;
        const QString begin = u"BeginBatchUpdate()"_s;
        const QString end = u"EndBatchUpdate()"_s;

        for (const auto &[action, lines] : Rows<Action, QStringList>{
                 {"navigator", [](Recorded &form) { form.press("cmdForward"); }, move(3)},
                 {"row",
                  [](Recorded &form) {
                      form.table().MoveTo({2, 0});
                  },
                  move(3)},
                 {"add", [](Recorded &form) { form.press("cmdAdd"); },
                  QStringList{valid, u"AddRecord(Name, BenchGrid, 0)"_s, u"GetGridData(Name|Kind, true, 4)"_s} +
                      move(3) + QStringList(stored) + move(3)},
                 {"insert",
                  [](Recorded &form) { form.press("cmdInsert"); },
                  {valid, u"InsertRecord(Name, 2, BenchGrid)"_s, u"GetGridData(Name|Kind, true, 2)"_s, stored}},
                 {"repeat", [](Recorded &form) { form.press("cmdRepeat"); },
                  QStringList{valid, u"RepeatRecord(Name, 2, BenchGrid)"_s, u"GetGridData(Name|Kind, true, 3)"_s,
                              stored} +
                      move(3)},
                 {"delete",
                  [](Recorded &form) { form.press("cmdDelete"); },
                  {begin, u"DeleteRecord(Name, 2)"_s, u"GetRecordDeletedRefreshNeeded()"_s, stored, end}},
                 {"sort",
                  [](Recorded &form) { Q_EMIT form.table().horizontalHeader()->sectionClicked(0); },
                  {u"SortColumn(Name, true)"_s, u"GetGridData(Name|Kind, true, 0)"_s, stored, valid,
                   u"SetValue(Stored, 1, 1, true)"_s, u"GetValue(Other, 1)"_s, u"GetFieldEnabled(Other, 1)"_s,
                   u"SetDataChanged()"_s}},
                 {"paste",
                  [](Recorded &form) {
                      form.bench.services.clipboard.SetText(u"1\t2\r\n"_s);
                      form.grid.Ifield_Paste();
                  },
                  QStringList{begin, u"SetProviderUpdateUIOnFieldChange(false)"_s,
                              u"ImportRecordByPaste(BenchGrid, Name|Kind, true, , )"_s,
                              u"GetGridData(Name|Kind, true, 0)"_s} +
                      move(1) + QStringList{stored, u"SetProviderUpdateUIOnFieldChange(true)"_s, end}},
             }) {
            Recorded form;
            action(form);
            QCOMPARE(form.decisions(), lines);
        }
    }

    // The component answers the new position with a refill and the position itself, as a real one does.
    void aMoveThatReEntersAsksOnce() {
        Recorded form;
        form.component.when(u"GetGridData"_s).answers(kRows);
        form.component.when(u"SetValue"_s, u"Stored"_s).runs([&] {
            form.bench.events.enabler->Ienabler_RefreshGridByUIID(u"Name"_s);
            form.bench.events.enabler->Ienabler_UpdateUIFieldByUIID(u"Stored"_s, 1, 3);
        });
        form.press("cmdForward");
        QStringList lines = move(3);
        lines.insert(3, u"GetGridData(Name|Kind, true, 0)"_s);
        QCOMPARE(form.decisions(), lines);
        QCOMPARE(form.navigator.Inavigator_Position(), 3);
        QCOMPARE(form.grid.CurrentRow(), 2);
    }

    void aCommandInsideACommandIsNotServed() {
        Recorded form;
        form.component.when(u"AddRecord"_s).runs([&] {
            form.press("cmdInsert");
            form.grid.Add();
            form.grid.Delete();
        });
        form.press("cmdAdd");
        const QStringList lines = form.decisions();
        QCOMPARE(lines.filter(u"AddRecord"_s).size(), 1);
        QCOMPARE(lines.filter(u"InsertRecord"_s) + lines.filter(u"DeleteRecord("_s), QStringList());
        QCOMPARE(form.table().ApproxCount(), 4);
    }
};

QTEST_MAIN(tst_record_calls)
#include "tst_record_calls.moc"
