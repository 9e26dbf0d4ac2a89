#include "fake_grid_surface.h"
#include "fake_navigator.h"
#include "grid_clipboard.h"
#include "grid_fill.h"
#include "message_style.h"
#include "navigator_buttons.h"

#include <QTest>

namespace {
const QStringList kRows = lines({"10|a|Fast|North", "20|b|Slow|South", "30|c|Fast|North"});
const char *const kOverwrite = "Do you want to overwrite the selected records?";

// A navigator with record buttons.
class ButtonNavigator final : public FakeField, public Inavigator, public NavigatorButtons {
  public:
    ButtonNavigator(CallLog &log, QString grid, bool add)
        : FakeField(log, QStringLiteral("navFreq"), QStringLiteral("fldPageNavigator")), mGrid(std::move(grid)),
          mAdd(add) {}
    qint32 Inavigator_NumberRecords() const override { return 0; }
    QString Inavigator_GridID() const override { return mGrid; }
    QString Inavigator_GuideUIID() const override { return {}; }
    QVariant Inavigator_GuideValue() const override { return {}; }
    void Inavigator_NumberRecords(qint32 /*NewNumber*/) override {}
    qint32 Inavigator_NavigatorStream() const override { return 0; }
    qint32 Inavigator_Position() const override { return 0; }
    void Inavigator_Position(qint32 /*NewPosition*/) override {}
    QString Inavigator_SubNavigator() const override { return {}; }
    void Inavigator_ForcePositionChange(qint32 /*lngPosition*/) override {}
    QString Inavigator_StoragePositionUIID() const override { return {}; }
    QString Inavigator_GridControl() const override { return {}; }
    bool ButtonAdd() const override { return mAdd; }

  private:
    QString mGrid;
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
        grid.on[QStringLiteral("GetComboItems")] = [items](const FieldEvent &event) {
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
    void operationsFollowClipboardAndCell_data();
    void operationsFollowClipboardAndCell();
    void recordsAreOfferedWhereTheyCanBeAdded();
    void copyTakesRowsThenSelectionThenCell();
    void cutTakesOnlyTheEditorsSelection();
    void pasteReplacesACellOrASelection();
    void pasteIntoALockedOrDisabledCellDoesNothing();
    void aListCellTakesOnlyItsItems();
    void aTranslatedNameReachesTheSource();
    void recordsGoToTheComponent_data();
    void recordsGoToTheComponent();
    void selectedRowsAreOverwrittenOnRequest_data();
    void selectedRowsAreOverwrittenOnRequest();
    void aFormClosedByAPasteLeavesTheEchoOn();
    void fillDownWritesThroughTheComponent();
    void fillDownStopsAtTheFirstRefusal();
    void fillDownNeedsABlockAndAWritableColumn();
};

void tst_grid_clipboard::operationsFollowClipboardAndCell_data() {
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<qint32>("column");
    QTest::addColumn<QString>("state"); // words: norow, locked, disabled, edit, select
    QTest::addColumn<qint32>("operations");
    const auto add = [](const char *name, const char *text, qint32 column, const char *state, qint32 operations) {
        QTest::newRow(name) << QString::fromLatin1(text) << column << QString::fromLatin1(state) << operations;
    };
    add("nothing to paste", "", 1, "", 2);
    add("a value", "x", 1, "", 6);
    add("a value, no row", "x", 1, "norow", 0);
    add("a value into a locked column", "x", 1, "locked", 2);
    add("a value into a disabled column", "x", 1, "disabled", 2);
    add("records by CR LF", "a\tb\r\n", 1, "locked", 6);
    add("records by LF", "a\nb", 1, "locked", 6);
    add("records without a row", "a\nb", 1, "norow", 4);
    add("editing, nothing selected", "", 1, "edit", 0);
    add("editing, selected", "", 1, "edit select", 3);
    add("a list cell being edited", "", 2, "edit select", 2);
}

void tst_grid_clipboard::operationsFollowClipboardAndCell() {
    QFETCH(const QString, clipboard);
    QFETCH(const qint32, column);
    QFETCH(const QString, state);
    Bench bench;
    bench.put(qUtf8Printable(clipboard));
    bench.grid.column = column;
    bench.grid.columns[std::size_t(column)].locked = state.contains(QStringLiteral("locked"));
    bench.grid.columns[std::size_t(column)].enabled = !state.contains(QStringLiteral("disabled"));
    if (state.contains(QStringLiteral("norow")))
        bench.grid.bookmark.reset();
    if (state.contains(QStringLiteral("edit")))
        bench.edit("abc", 0, state.contains(QStringLiteral("select")) ? 2 : 0);
    QTEST(bench.clipboard.Ifield_GetEditOperations(), "operations");
}

void tst_grid_clipboard::recordsAreOfferedWhereTheyCanBeAdded() {
    Bench bench;
    bench.put("a\tb\r\n");
    bench.grid.design.ButtonAdd = false;
    QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 0);
    ButtonNavigator other(bench.grid.log, QStringLiteral("OtherID"), true);
    ButtonNavigator own(bench.grid.log, QStringLiteral("FreqID"), true);
    ButtonNavigator mute(bench.grid.log, QStringLiteral("FreqID"), false);
    FakeNavigator plain(bench.grid.log, QStringLiteral("navPlain"));
    bench.grid.controls = {&other, &mute, &plain};
    QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 0);
    bench.grid.controls = {&other, &mute, &plain, &own};
    QCOMPARE(bench.clipboard.Ifield_GetEditOperations() & 4, 4);
}

void tst_grid_clipboard::copyTakesRowsThenSelectionThenCell() {
    Bench bench;
    bench.grid.column = 1;
    bench.edit("abc", 1, 1);
    bench.grid.selected = {0, 2};
    bench.clipboard.mnuCopy_Click();
    QCOMPARE(bench.taken(), QStringLiteral("No.\tName\tKind\tNetwork\r\n10\ta\tFast\tNorth\r\n30\tc\tFast\tNorth\r\n"));
    bench.grid.selected.clear();
    bench.clipboard.mnuCopy_Click();
    QCOMPARE(bench.taken(), QStringLiteral("b"));
    bench.grid.editing = false;
    bench.grid.columns[1].locked = true;
    bench.clipboard.mnuCopy_Click();
    QCOMPARE(bench.taken(), QStringLiteral("a"));
    bench.grid.bookmark.reset();
    bench.clipboard.mnuCopy_Click();
    QVERIFY(!bench.grid.services.clipboard.HasText());
}

void tst_grid_clipboard::cutTakesOnlyTheEditorsSelection() {
    Bench bench;
    bench.put("before");
    bench.grid.selected = {0};
    bench.clipboard.mnuCut_Click();
    QCOMPARE(bench.taken(), QStringLiteral("before"));
    bench.grid.column = 1;
    bench.edit("abcd", 1, 2);
    bench.clipboard.mnuCut_Click();
    QCOMPARE(bench.taken(), QStringLiteral("bc"));
    QCOMPARE(bench.grid.edited, QStringLiteral("ad"));
}

void tst_grid_clipboard::pasteReplacesACellOrASelection() {
    Bench bench;
    bench.put("new");
    bench.grid.column = 1;
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.grid.log.take(), lines({"BeginBatchUpdate()", "grdFreq.SetValue(new, false)", "EndBatchUpdate()"}));
    bench.edit("abcd", 1, 2);
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("grdFreq.SetValue")).last(),
             QStringLiteral("grdFreq.SetValue(anewd, false)"));
}

void tst_grid_clipboard::pasteIntoALockedOrDisabledCellDoesNothing() {
    for (const bool locked : {true, false}) {
        Bench bench;
        bench.put("new");
        bench.grid.column = 1;
        bench.grid.columns[1].locked = locked;
        bench.grid.columns[1].enabled = locked;
        bench.clipboard.mnuPaste_Click();
        QCOMPARE(bench.grid.log.take(), lines({"BeginBatchUpdate()", "EndBatchUpdate()"}));
        QVERIFY(!bench.grid.editing);
    }
}

void tst_grid_clipboard::aListCellTakesOnlyItsItems() {
    Bench bench;
    bench.grid.column = 2;
    bench.offersItems(lines({"Fast", "Slow"}));
    bench.put("slow");
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.cell(), QStringLiteral("Fast"));
    QCOMPARE(bench.grid.log.take(), lines({"BeginBatchUpdate()", "raise GetComboItems(Kind, 1)", "EndBatchUpdate()"}));
    bench.put("Slow");
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.cell(), QStringLiteral("Slow"));
    QCOMPARE(bench.grid.log.take().mid(1, 3),
             lines({"raise GetComboItems(Kind, 1)", "PickDropdownRow(Slow)", "DropDownClose()"}));
}

void tst_grid_clipboard::aTranslatedNameReachesTheSource() {
    Bench bench;
    bench.grid.translated = true;
    bench.grid.column = 3;
    bench.grid.names = {{QStringLiteral("Sud"), QStringLiteral("South")}};
    bench.offersItems(lines({"Nord", "Sud", "Est"}));
    bench.put("Sud");
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.cell(), QStringLiteral("Sud"));
    QCOMPARE(bench.grid.source.Value(0, 3).toString(), QStringLiteral("South"));
    bench.put("Est"); // its source is not known
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.grid.source.Value(0, 3).toString(), QStringLiteral("South"));
}

void tst_grid_clipboard::recordsGoToTheComponent_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("navigator");
    QTest::addColumn<QString>("records");
    QTest::newRow("a column") << QStringLiteral("1\r\n2\r\n") << false << "2";
    QTest::newRow("LF alone") << QStringLiteral("1\n2") << false << "2";
    QTest::newRow("a tab is enough") << QStringLiteral("1\t2") << false << "2";
    QTest::newRow("a column, the component knows the record") << QStringLiteral("1\r\n2\r\n") << true << "";
    QTest::newRow("whole rows") << QStringLiteral("1\ta\tFast\tNorth\r\n") << false << "";
    QTest::newRow("cells under heads") << QStringLiteral("No.\tName\r\n1\ta\r\n") << false << "";
}

void tst_grid_clipboard::recordsGoToTheComponent() {
    QFETCH(const QString, text);
    QFETCH(const QString, records);
    QFETCH(const bool, navigator);
    Bench bench;
    ButtonNavigator bound(bench.grid.log, QStringLiteral("FreqID"), true);
    if (navigator)
        bench.grid.controls = {&bound};
    bench.grid.bookmark = 1;
    bench.put(qUtf8Printable(text));
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(
        bench.grid.log.take(),
        lines({"BeginBatchUpdate()", "raise SetProviderUpdateUIOnFieldChange(false)"}) +
            QStringList(QStringLiteral("raise ImportRecordByPaste(Nr|Name|Kind|Net, %1)").arg(records)) +
            lines({"Bookmark(1)", "SetFocus()", "raise SetProviderUpdateUIOnFieldChange(true)", "EndBatchUpdate()"}));
    QCOMPARE(bench.taken(), text);
}

void tst_grid_clipboard::selectedRowsAreOverwrittenOnRequest_data() {
    QTest::addColumn<qint32>("answer");
    QTest::addColumn<QString>("records");
    QTest::newRow("yes") << MessageAnswer::kYes << QStringLiteral("1|3");
    QTest::newRow("no") << MessageAnswer::kNo << QString();
}

void tst_grid_clipboard::selectedRowsAreOverwrittenOnRequest() {
    QFETCH(const qint32, answer);
    QFETCH(const QString, records);
    Bench bench;
    bench.put("1\t2\r\n");
    bench.grid.selected = {0, 2};
    bench.grid.services.boxes.expect(QString::fromLatin1(kOverwrite), answer);
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.grid.services.boxes.shown(),
             QStringList(QStringLiteral("Import Records: %1 [52]").arg(QString::fromLatin1(kOverwrite))));
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("raise ImportRecordByPaste")),
             QStringList(QStringLiteral("raise ImportRecordByPaste(Nr|Name|Kind|Net, %1)").arg(records)));
}

void tst_grid_clipboard::aFormClosedByAPasteLeavesTheEchoOn() {
    Bench bench;
    bench.put("1\t2\r\n");
    bench.grid.on[QStringLiteral("ImportRecordByPaste")] = [&](const FieldEvent &) { bench.grid.terminated = true; };
    bench.clipboard.mnuPaste_Click();
    QCOMPARE(bench.grid.log.take().mid(3), lines({"SetProviderUpdateUIOnFieldChange(true)", "EndBatchUpdate()"}));
}

void tst_grid_clipboard::fillDownWritesThroughTheComponent() {
    Bench bench;
    bench.grid.column = 1;
    bench.grid.selected = {0, 1, 2};
    bench.grid.component.when(QStringLiteral("GetValue"), QStringLiteral("Name"), 1).answers(QStringLiteral("a"));
    bench.grid.component.when(QStringLiteral("GetGridData")).answers(kRows);
    bench.fill.FillDown();
    QCOMPARE(bench.grid.log.take(),
             lines({"Validate()", "BeginBatchUpdate()", "SetProviderUpdateUIOnFieldChange(false)", "GetValue(Name, 1)",
                    "SetValue(Name, a, 2, true)", "SetValue(Name, a, 3, true)",
                    "SetProviderUpdateUIOnFieldChange(true)", "GetGridData(Nr|Name|Kind|Net, true, 0)",
                    "grdFreq.Rebind(true)", "EndBatchUpdate()", "Select(0)", "Select(1)", "Select(2)"}));
}

void tst_grid_clipboard::fillDownStopsAtTheFirstRefusal() {
    Bench bench;
    bench.grid.selected = {0, 1, 2};
    bench.grid.component.when(QStringLiteral("SetValue")).refuses();
    bench.fill.FillDown();
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("SetValue")).size(), 1);
    QCOMPARE(bench.grid.log.linesOf(QStringLiteral("EndBatchUpdate")).size(), 1);
}

void tst_grid_clipboard::fillDownNeedsABlockAndAWritableColumn() {
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

QTEST_MAIN(tst_grid_clipboard)
#include "tst_grid_clipboard.moc"
