#include "cls_format_edit.h"
#include "field_bench.h"
#include "field_label.h"
#include "fld_text_field.h"
#include "run_time_error.h"
#include "window_input.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace {
using Values = QVariantMap;
const QString kName = QStringLiteral("RadioName");
QLineEdit &text1(const fldTextField &field) { return FieldBench::part<QLineEdit>(field, "Text1"); }
QPlainTextEdit &text2(const fldTextField &field) { return FieldBench::part<QPlainTextEdit>(field, "Text2"); }
FieldLabel &label1(const fldTextField &field) { return FieldBench::part<FieldLabel>(field, "Label1"); }
} // namespace

class tst_text_field final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void eachStateShowsAndEnablesItsParts_data();
    void eachStateShowsAndEnablesItsParts();
    void freshBoxIsEnabledUnlessReadOnly();
    void recordAndMaskComeFromTheComponent_data();
    void recordAndMaskComeFromTheComponent();
    void undefinedIsNeverShown();
    void keysGoThroughTheMask();
    void deleteKeyIsNotSwallowedByTheMask();
    void escapeShowsRecord1ThenTellsTheEnabler();
    void enterValidatesAndStaysInTheField();
    void shiftF1AsksForHelpOnce();
    void severalLinesAreADisplay();
    void widthLimitsTheUserAlone_data();
    void widthLimitsTheUserAlone();
    void editCommands();
    void copyOfSeveralLinesTakesTheHiddenBox();
    void unknownUiidEmptiesAndDisables();
    void everyChangeOfTheTextIsTold();
    void terminatedFieldIsSilent();
    void nameOfTwoLinesMakesTheHostHigher();
};

void tst_text_field::eachStateShowsAndEnablesItsParts_data() {
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("dynamicHeight");
    QTest::addColumn<QString>("expected"); // shown and enabled parts, in capitals where enabled; tab stop; flags
    const auto row = [](const char *state, bool readOnly, bool dynamic, const char *expected) {
        QTest::addRow("%s%s%s", state, readOnly ? ", read-only" : "", dynamic ? ", several lines" : "")
            << QString::fromLatin1(state) << readOnly << dynamic << QString::fromLatin1(expected);
    };
    row("enabled", false, false, "LABEL LINE tab logical visible");
    row("enabled", true, false, "LABEL line logical visible");
    row("enabled", false, true, "LABEL LINES tab logical visible");
    row("enabled", true, true, "LABEL LINES logical visible");
    row("disabled", false, false, "label line visible");
    row("disabled", true, false, "label line visible");
    row("disabled", false, true, "label LINES visible"); // only the single line is disabled
    row("disabled", true, true, "label lines visible");
    row("invisible", false, false, "logical");
    row("invisible", false, true, "logical");
}

void tst_text_field::eachStateShowsAndEnablesItsParts() {
    QFETCH(QString, state);
    QFETCH(bool, readOnly);
    QFETCH(bool, dynamicHeight);
    FieldBench bench;
    auto &field = bench.add<fldTextField>(
        kName, Values{{QStringLiteral("ReadOnly"), readOnly}, {QStringLiteral("DynamicHeight"), dynamicHeight}});
    bench.show();
    if (state == QStringLiteral("enabled"))
        field.Ifield_SetEnabled();
    else if (state == QStringLiteral("disabled"))
        field.Ifield_SetDisabled();
    else
        field.Ifield_SetInvisible();
    QStringList seen;
    const auto add = [&seen](const QWidget &part, const QString &name) {
        if (part.isVisible())
            seen << (part.isEnabled() ? name.toUpper() : name);
    };
    add(label1(field), QStringLiteral("label"));
    add(text1(field), QStringLiteral("line"));
    add(text2(field), QStringLiteral("lines"));
    if (field.TabStop())
        seen << QStringLiteral("tab");
    if (field.ControlEnabled())
        seen << QStringLiteral("logical");
    if (field.Ifield_GetVisible())
        seen << QStringLiteral("visible");
    QTEST(seen.join(u' '), "expected");
}

void tst_text_field::freshBoxIsEnabledUnlessReadOnly() {
    FieldBench bench;
    auto &disabled = bench.add<fldTextField>(QStringLiteral("a"), Values{{QStringLiteral("Enabled"), false}});
    QVERIFY(disabled.Ifield_GetEnabled());
    QVERIFY(!disabled.ControlEnabled());
    auto &readOnly = bench.add<fldTextField>(QStringLiteral("b"), Values{{QStringLiteral("ReadOnly"), true}});
    QVERIFY(!readOnly.Ifield_GetEnabled());
    QVERIFY(readOnly.ControlEnabled());
}

void tst_text_field::recordAndMaskComeFromTheComponent_data() {
    QTest::addColumn<int>("records");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<int>("recordNr");
    QTest::addColumn<QString>("shown");
    QTest::newRow("outside any structure, no mask") << 0 << QString() << 0 << QStringLiteral("aZ1");
    QTest::newRow("in a structure") << 32 << QStringLiteral("Z1") << 1 << QStringLiteral("Z1");
    QTest::newRow("an undefined mask is none") << 1 << QStringLiteral("Undefined") << 1 << QStringLiteral("aZ1");
}

void tst_text_field::recordAndMaskComeFromTheComponent() {
    QFETCH(int, records);
    QFETCH(QString, mask);
    FieldBench bench;
    bench.component.when(QStringLiteral("GetNumberOfRecords"), kName).answers(records);
    bench.component.when(QStringLiteral("GetValidationString"), kName).answers(mask);
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QString(), false);
    bench.show();
    field.Ifield_SetFocus();
    WindowInput::type(QStringLiteral("aZ1"));
    QTEST(int(field.Ifield_GetRecordNr()), "recordNr");
    QTEST(field.Text(), "shown");
}

void tst_text_field::undefinedIsNeverShown() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    const std::pair<QVariant, QString> rows[] = {{QStringLiteral("Undefined"), {}},
                                                 {QStringLiteral("undefined"), QStringLiteral("undefined")},
                                                 {{}, {}},
                                                 {12.5, QStringLiteral("12.5")}};
    for (const auto &[value, shown] : rows) {
        QVERIFY(field.Ifield_SetValue(value, false));
        QCOMPARE(field.Text(), shown);
    }
}

void tst_text_field::keysGoThroughTheMask() {
    FieldBench bench;
    bench.component.when(QStringLiteral("GetValidationString"), kName).answers(QStringLiteral("ABC"));
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QString(), false);
    bench.show();
    field.Ifield_SetFocus();
    WindowInput::type(QStringLiteral("aXb c"));
    QCOMPARE(field.Text(), QStringLiteral("ABC"));
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("cz"));
    QApplication::sendEvent(&text1(field), &commit);
    QCOMPARE(field.Text(), QStringLiteral("ABCC"));
    bench.services.clipboard.SetText(QStringLiteral("xyz"));
    field.Ifield_Paste(); // what is pasted does not go through the mask
    QCOMPARE(field.Text(), QStringLiteral("ABCCxyz"));
}

void tst_text_field::deleteKeyIsNotSwallowedByTheMask() {
    FieldBench bench;
    bench.component.when(QStringLiteral("GetValidationString"), kName).answers(QStringLiteral("ABC"));
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QStringLiteral("AB"), false);
    bench.show();
    field.Ifield_SetFocus();
    WindowInput::key(Qt::Key_Home);
    QTest::sendKeyEvent(QTest::Click, &text1(field), Qt::Key_Delete, QStringLiteral("\x7f"), Qt::NoModifier);
    QCOMPARE(field.Text(), QStringLiteral("B"));
}

void tst_text_field::escapeShowsRecord1ThenTellsTheEnabler() {
    FieldBench bench;
    bench.component.when(QStringLiteral("GetValue"), kName, 1).answers(QStringLiteral("of record 1"));
    auto &field = bench.add<fldTextField>(kName, Values{{QStringLiteral("NavigatorStream"), 1}});
    field.Ifield_SetRecordNumber(5);
    bench.show();
    field.Ifield_SetFocus();
    bench.takeHeard();
    QString shownAtEscape;
    bench.listener(kName).on = [&](const QString &event) {
        if (event == QStringLiteral("Escape"))
            shownAtEscape = field.Text();
    };
    WindowInput::key(Qt::Key_Escape);
    QCOMPARE(shownAtEscape, QStringLiteral("of record 1"));
    QCOMPARE(bench.takeHeard(), (QStringList{QStringLiteral("RadioName.Change"), QStringLiteral("RadioName.Escape")}));
}

void tst_text_field::enterValidatesAndStaysInTheField() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    bench.add<fldTextField>(QStringLiteral("Next"));
    bench.show();
    field.Ifield_SetFocus();
    bench.takeHeard();
    bench.listener(kName).refuseManualValidate = true;
    WindowInput::key(Qt::Key_Return);
    WindowInput::key(Qt::Key_Enter);
    QCOMPARE(bench.takeHeard(), QStringList(2, QStringLiteral("RadioName.ManualValidate")));
    QVERIFY(text1(field).hasFocus());
}

void tst_text_field::shiftF1AsksForHelpOnce() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetHelpID(4711);
    bench.show();
    field.Ifield_SetFocus();
    WindowInput::key(Qt::Key_F1, Qt::ShiftModifier);
    WindowInput::key(Qt::Key_F1);
    QCOMPARE(bench.services.shell.told.filter(QStringLiteral("4711")).size(), 1);
}

void tst_text_field::severalLinesAreADisplay() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName, Values{{QStringLiteral("DynamicHeight"), true}});
    field.Ifield_SetValue(QStringLiteral("as it is"), false);
    bench.show();
    field.Ifield_SetFocus();
    bench.takeHeard();
    WindowInput::type(QStringLiteral("x"));
    WindowInput::key(Qt::Key_Return);
    WindowInput::key(Qt::Key_Delete);
    QCOMPARE(field.Text(), QStringLiteral("as it is"));
    QCOMPARE(bench.takeHeard(), QStringList());
}

void tst_text_field::widthLimitsTheUserAlone_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("byCode");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, int width, const char *code, const char *typed, const char *pasted,
                        const char *shown) {
        QTest::newRow(name) << width << QString::fromLatin1(code) << QString::fromLatin1(typed)
                            << QString::fromLatin1(pasted) << QString::fromLatin1(shown);
    };
    row("typed up to the limit", 3, "", "12345", "", "123");
    row("pasted beyond the limit loses its end", 5, "ab", "", "12345", "ab123");
    row("no limit", 0, "", "123456", "78", "12345678");
    row("less than none is no limit", -1, "", "12", "", "12");
    row("text by code is never cut, and does not grow", 3, "12345", "6", "7", "12345");
}

void tst_text_field::widthLimitsTheUserAlone() {
    QFETCH(int, width);
    QFETCH(QString, byCode);
    QFETCH(QString, typed);
    QFETCH(QString, pasted);
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetUIWidth(width);
    field.Ifield_SetValue(byCode, false);
    bench.show();
    field.Ifield_SetFocus();
    WindowInput::key(Qt::Key_End);
    WindowInput::type(typed);
    bench.services.clipboard.SetText(pasted);
    field.Ifield_Paste();
    QTEST(field.Text(), "shown");
}

void tst_text_field::editCommands() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QStringLiteral("abcdef"), false);
    QCOMPARE(field.Ifield_GetEditOperations(), 4);
    text1(field).setSelection(1, 2);
    QCOMPARE(field.Ifield_GetEditOperations(), 7);
    field.Ifield_Cut();
    QCOMPARE(field.Text(), QStringLiteral("adef"));
    QCOMPARE(bench.services.clipboard.Text(), QStringLiteral("bc"));
    field.Ifield_Delete(); // nothing is selected
    QCOMPARE(field.Text(), QStringLiteral("adef"));
    field.Ifield_SelectAll();
    field.Ifield_Paste();
    QCOMPARE(field.Text(), QStringLiteral("bc"));
}

void tst_text_field::copyOfSeveralLinesTakesTheHiddenBox() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(
        kName, Values{{QStringLiteral("DynamicHeight"), true}, {QStringLiteral("Text"), QStringLiteral("hidden")}});
    field.Ifield_SetValue(QStringLiteral("shown"), false);
    field.Ifield_SelectAll();
    text1(field).selectAll();
    field.Ifield_Copy();
    QCOMPARE(bench.services.clipboard.Text(), QStringLiteral("hidden"));
}

void tst_text_field::unknownUiidEmptiesAndDisables() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetEnabled();
    field.Ifield_SetValue(QStringLiteral("old"), false);
    bench.takeHeard();
    field.Ifield_UIIDNotFound();
    QCOMPARE(field.Text(), QString());
    QVERIFY(!field.Ifield_GetEnabled());
    QVERIFY(field.Ifield_GetUIIDNotFound());
    QVERIFY(!bench.takeHeard().contains(QStringLiteral("RadioName.ManualValidate")));
    field.Ifield_SetEnabled();
    QVERIFY(!field.Ifield_GetUIIDNotFound());
}

void tst_text_field::everyChangeOfTheTextIsTold() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QStringLiteral("a"), false);
    field.Ifield_SetValue(QStringLiteral("a"), false); // no change
    QCOMPARE(bench.takeHeard(), QStringList(QStringLiteral("RadioName.Change")));
    bench.listener(kName).refuseManualValidate = true;
    QVERIFY(!field.Ifield_SetValue(QStringLiteral("b"), true));
    QCOMPARE(bench.takeHeard(),
             (QStringList{QStringLiteral("RadioName.Change"), QStringLiteral("RadioName.ManualValidate")}));
}

void tst_text_field::terminatedFieldIsSilent() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_Terminate();
    field.Ifield_SetValue(QStringLiteral("x"), true);
    QVERIFY(field.MayLeave());
    field.FocusHasLeft();
    QCOMPARE(bench.takeHeard(), QStringList());
}

void tst_text_field::nameOfTwoLinesMakesTheHostHigher() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName, Values{{QStringLiteral("LabelWidthFactor"), 0.3}});
    field.Ifield_SetName(QStringLiteral("Short"));
    bench.host(kName).SetGeometry({{0}, {0}, {6000}, {400}});
    QCOMPARE(bench.host(kName).Geometry().height.count, 400);
    field.Ifield_SetName(QStringLiteral("A caption that is much too long for one line, or for two, or even three"));
    bench.host(kName).SetGeometry({{0}, {0}, {6000}, {400}});
    QVERIFY(bench.host(kName).Geometry().height.count > 400);
    QVERIFY(field.height() >= label1(field).geometry().bottom());
}

QTEST_MAIN(tst_text_field)
#include "tst_text_field.moc"
