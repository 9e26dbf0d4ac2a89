#include "fake_grid_surface.h"
#include "fake_navigator.h"
#include "grid_clipboard.h"
#include "grid_fill.h"
#include "message_style.h"
#include "navigator_buttons.h"
#include "rows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QStringList kRows = lines({"10|a|Fast|North", "20|b|Slow|South", "30|c|Fast|North"});
const char *const kOverwrite = "Do you want to overwrite the selected records?";

// A navigator with record buttons.
class ButtonNavigator final : public FakeNavigator, public NavigatorButtons {
  public:
    ButtonNavigator(CallLog &newLog, const QString &grid, bool add) : FakeNavigator(newLog, u"navFreq"_s), mAdd(add) {
        gridId = grid;
    }
    bool ButtonAdd() const override { return mAdd; }

  private:
    bool mAdd;
};

struct Bench {
    FakeGridSurface grid;
    GridClipboard clipboard{grid, grid.services.fieldServices()};
    GridFill fill{grid, grid.services.fieldServices()};

    Bench() { grid.setRows(kRows); }
    void put(const char *text) { grid.services.clipboard.SetText(QString::fromLatin1(text)); }
    [[nodiscard]] QString taken() const { return grid.services.clipboard.Text(); }
    void edit(const char *text, qint32 start, qint32 length) {
        grid.editing = true;
        grid.edited = QString::fromLatin1(text);
        grid.selStart = start;
        grid.selLength = length;
    }
    void offersItems(const QStringList &items) {
        grid.on[u"GetComboItems"_s] = [items](const FieldEvent &event) {
            auto &array = event.parameter<XArrayDB &>(2);
            array.ReDim(qint32(items.size()) - 1, 0);
            for (qint32 row = 0; row < items.size(); ++row)
                array.SetValue(row, 0, items.at(row));
        };
    }
    [[nodiscard]] QString cell() const {
        return FakeGridSurface::rowsOf(grid.display).at(*grid.bookmark).split(u'|').at(grid.column);
    }
};
} // namespace

class tst_grid_clipboard : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void operationsFollowClipboardAndCell() {
        // state: words of norow, locked, disabled, edit, select
        for (const auto &[clipboard, column, state, operations] : Rows<QString, qint32, QString, qint32>{
                 {"nothing to paste", u""_s, 1, u""_s, 2},
                 {"a value", u"x"_s, 1, u""_s, 6},
                 {"a value, no row", u"x"_s, 1, u"norow"_s, 0},
                 {"a value into a locked column", u"x"_s, 1, u"locked"_s, 2},
                 {"a value into a disabled column", u"x"_s, 1, u"disabled"_s, 2},
                 {"records by CR LF", u"a\tb\r\n"_s, 1, u"locked"_s, 6},
                 {"records by LF", u"a\nb"_s, 1, u"locked"_s, 6},
                 {"records without a row", u"a\nb"_s, 1, u"norow"_s, 4},
                 {"editing, nothing selected", u""_s, 1, u"edit"_s, 0},
                 {"editing, selected", u""_s, 1, u"edit select"_s, 3},
                 {"a list cell being edited", u""_s, 2, u"edit select"_s, 2},
             }) {
            Bench bench;
            bench.put(qUtf8Printable(clipboard));
            bench.grid.column = column;
            bench.grid.columns[std::size_t(column)].locked = state.contains(u"locked"_s);
            bench.grid.columns[std::size_t(column)].enabled = !state.contains(u"disabled"_s);
            if (state.contains(u"norow"_s))
                bench.grid.bookmark.reset();
            if (state.contains(u"edit"_s))
                bench.edit("abc", 0, state.contains(u"select"_s) ? 2 : 0);
            QCOMPARE(bench.clipboard.Ifield_GetEditOperations(), operations);
        }
    }

    void recordsAreOfferedWhereTheyCanBeAdded() {
        Bench bench;
        bench.put("a\tb\r\n");
        bench.grid.design.ButtonAdd = false;
        QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 0);
        ButtonNavigator other(bench.grid.log, u"OtherID"_s, true);
        ButtonNavigator own(bench.grid.log, u"FreqID"_s, true);
        ButtonNavigator mute(bench.grid.log, u"FreqID"_s, false);
        FakeNavigator plain(bench.grid.log, u"navPlain"_s);
        bench.grid.controls = {&other, &mute, &plain};
        QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 0);
        bench.grid.controls = {&other, &mute, &plain, &own};
        QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 4);
    }

    void copyTakesRowsThenSelectionThenCell() {
        Bench bench;
        bench.grid.column = 1;
        bench.edit("abc", 1, 1);
        bench.grid.selected = {0, 2};
        bench.clipboard.mnuCopy_Click();
        QCOMPARE(bench.taken(), u"No.\tName\tKind\tNetwork\r\n10\ta\tFast\tNorth\r\n30\tc\tFast\tNorth\r\n"_s);
        bench.grid.selected.clear();
        bench.clipboard.mnuCopy_Click();
        QCOMPARE(bench.taken(), u"b"_s);
        bench.grid.editing = false;
        bench.grid.columns[1].locked = true;
        bench.clipboard.mnuCopy_Click();
        QCOMPARE(bench.taken(), u"a"_s);
        bench.grid.bookmark.reset();
        bench.clipboard.mnuCopy_Click();
        QVERIFY(!bench.grid.services.clipboard.HasText());
    }

    void cutTakesOnlyTheEditorsSelection() {
        Bench bench;
        bench.put("before");
        bench.grid.selected = {0};
        bench.clipboard.mnuCut_Click();
        QCOMPARE(bench.taken(), u"before"_s);
        bench.grid.column = 1;
        bench.edit("abcd", 1, 2);
        bench.clipboard.mnuCut_Click();
        QCOMPARE(bench.taken(), u"bc"_s);
        QCOMPARE(bench.grid.edited, u"ad"_s);
    }

    void pasteReplacesACellOrASelection() {
        for (const auto &[locked, disabled, editing, written] : Rows<bool, bool, bool, QString>{
                 {"a cell", false, false, false, u"new"_s},
                 {"a selection", false, false, true, u"anewd"_s},
                 {"a locked cell", true, false, false, {}},
                 {"a disabled cell", false, true, false, {}},
             }) {
            Bench bench;
            bench.put("new");
            bench.grid.column = 1;
            bench.grid.columns[1].locked = locked;
            bench.grid.columns[1].enabled = !disabled;
            if (editing)
                bench.edit("abcd", 1, 2);
            bench.clipboard.mnuPaste_Click();
            QStringList log = lines({"BeginBatchUpdate()", "EndBatchUpdate()"});
            if (!written.isEmpty())
                log.insert(1, u"grdFreq.SetValue(%1, false)"_s.arg(written));
            QCOMPARE(bench.grid.log.take(), log);
        }
    }

    void aListCellTakesOnlyItsItems() {
        Bench bench;
        bench.grid.column = 2;
        bench.offersItems(lines({"Fast", "Slow"}));
        bench.put("slow");
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.cell(), u"Fast"_s);
        QCOMPARE(bench.grid.log.take(),
                 lines({"BeginBatchUpdate()", "raise GetComboItems(Kind, 1)", "EndBatchUpdate()"}));
        bench.put("Slow");
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.cell(), u"Slow"_s);
        QCOMPARE(bench.grid.log.take().mid(1, 3),
                 lines({"raise GetComboItems(Kind, 1)", "PickDropdownRow(Slow)", "DropDownClose()"}));
    }

    void aTranslatedNameReachesTheSource() {
        Bench bench;
        bench.grid.translated = true;
        bench.grid.column = 3;
        bench.grid.names = {{u"Sud"_s, u"South"_s}};
        bench.offersItems(lines({"Nord", "Sud", "Est"}));
        bench.put("Sud");
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.cell(), u"Sud"_s);
        QCOMPARE(bench.grid.source.Value(0, 3).toString(), u"South"_s);
        bench.put("Est"); // its source is not known
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.grid.source.Value(0, 3).toString(), u"South"_s);
    }

    void recordsGoToTheComponent() {
        for (const auto &[text, navigator, records] : Rows<QString, bool, QString>{
                 {"a column", u"1\r\n2\r\n"_s, false, u"2"_s},
                 {"LF alone", u"1\n2"_s, false, u"2"_s},
                 {"a tab is enough", u"1\t2"_s, false, u"2"_s},
                 {"a column, the component knows the record", u"1\r\n2\r\n"_s, true, u""_s},
                 {"whole rows", u"1\ta\tFast\tNorth\r\n"_s, false, u""_s},
                 {"cells under heads", u"No.\tName\r\n1\ta\r\n"_s, false, u""_s},
             }) {
            Bench bench;
            ButtonNavigator bound(bench.grid.log, u"FreqID"_s, true);
            if (navigator)
                bench.grid.controls = {&bound};
            bench.grid.bookmark = 1;
            bench.put(qUtf8Printable(text));
            bench.clipboard.mnuPaste_Click();
            QCOMPARE(bench.grid.log.take(),
                     lines({"BeginBatchUpdate()", "raise SetProviderUpdateUIOnFieldChange(false)"}) +
                         QStringList(u"raise ImportRecordByPaste(Nr|Name|Kind|Net, %1)"_s.arg(records)) +
                         lines({"Bookmark(1)", "SetFocus()", "raise SetProviderUpdateUIOnFieldChange(true)",
                                "EndBatchUpdate()"}));
            QCOMPARE(bench.taken(), text);
        }
    }

    void selectedRowsAreOverwrittenOnRequest() {
        for (const auto &[answer, records] : Rows<qint32, QString>{
                 {"yes", MessageAnswer::kYes, u"1|3"_s},
                 {"no", MessageAnswer::kNo, {}},
             }) {
            Bench bench;
            bench.put("1\t2\r\n");
            bench.grid.selected = {0, 2};
            bench.grid.services.boxes.expect(QString::fromLatin1(kOverwrite), answer);
            bench.clipboard.mnuPaste_Click();
            QCOMPARE(bench.grid.services.boxes.shown(),
                     QStringList(u"Import Records: %1 [52]"_s.arg(QString::fromLatin1(kOverwrite))));
            QCOMPARE(bench.grid.log.linesOf(u"raise ImportRecordByPaste"_s),
                     QStringList(u"raise ImportRecordByPaste(Nr|Name|Kind|Net, %1)"_s.arg(records)));
        }
    }

    void aFormClosedByAPasteLeavesTheEchoOn() {
        Bench bench;
        bench.put("1\t2\r\n");
        bench.grid.on[u"ImportRecordByPaste"_s] = [&](const FieldEvent &) { bench.grid.terminated = true; };
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.grid.log.take().mid(3), lines({"SetProviderUpdateUIOnFieldChange(true)", "EndBatchUpdate()"}));
    }

    void fillDownWritesThroughTheComponent() {
        Bench bench;
        bench.grid.column = 1;
        bench.grid.selected = {0, 1, 2};
        bench.grid.component.when(u"GetValue"_s, u"Name"_s, 1).answers(u"a"_s);
        bench.grid.component.when(u"GetGridData"_s).answers(kRows);
        bench.fill.FillDown();
        QCOMPARE(bench.grid.log.take(),
                 lines({"Validate()", "BeginBatchUpdate()", "SetProviderUpdateUIOnFieldChange(false)",
                        "GetValue(Name, 1)", "SetValue(Name, a, 2, true)", "SetValue(Name, a, 3, true)",
                        "SetProviderUpdateUIOnFieldChange(true)", "GetGridData(Nr|Name|Kind|Net, true, 0)",
                        "grdFreq.Rebind(true)", "EndBatchUpdate()", "Select(0)", "Select(1)", "Select(2)"}));
    }

    void fillDownStopsAtTheFirstRefusal() {
        Bench bench;
        bench.grid.selected = {0, 1, 2};
        bench.grid.component.when(u"SetValue"_s).refuses();
        bench.fill.FillDown();
        QCOMPARE(bench.grid.log.linesOf(u"SetValue"_s).size(), 1);
        QCOMPARE(bench.grid.log.linesOf(u"EndBatchUpdate"_s).size(), 1);
    }

    void fillDownNeedsABlockAndAWritableColumn() {
        Bench bench;
        bench.grid.selected = {1};
        bench.fill.FillDown();
        bench.grid.selected = {0, 1};
        bench.grid.columns[0].locked = true;
        bench.fill.FillDown();
        QCOMPARE(bench.grid.log.take(), QStringList());
        bench.grid.columns[0].locked = false;
        bench.grid.refuses = true;
        bench.fill.FillDown();
        QCOMPARE(bench.grid.log.take(), lines({"Validate()"}));
    }
};

QTEST_MAIN(tst_grid_clipboard)
#include "tst_grid_clipboard.moc"
