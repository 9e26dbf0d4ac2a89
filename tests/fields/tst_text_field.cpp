#include "cls_format_edit.h"
#include "field_bench.h"
#include "field_label.h"
#include "fld_text_field.h"
#include "rows.h"
#include "run_time_error.h"
#include "window_input.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
using Values = QVariantMap;
const QString kName = u"RadioName"_s;
struct TextBench : FieldBench {
    fldTextField &field = add<fldTextField>(kName);
};

QLineEdit &text1(const fldTextField &field) { return FieldBench::part<QLineEdit>(field, "Text1"); }
QPlainTextEdit &text2(const fldTextField &field) { return FieldBench::part<QPlainTextEdit>(field, "Text2"); }
FieldLabel &label1(const fldTextField &field) { return FieldBench::part<FieldLabel>(field, "Label1"); }
} // namespace

class tst_text_field final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void eachStateShowsAndEnablesItsParts() {
        using State = void (fldTextField::*)();
        const State enable = &fldTextField::Ifield_SetEnabled;
        const State disable = &fldTextField::Ifield_SetDisabled;
        const State hide = &fldTextField::Ifield_SetInvisible;
        // expected: shown and enabled parts, in capitals where enabled; tab stop; flags
        for (const auto &[state, readOnly, dynamicHeight, expected] : Rows<State, bool, bool, QString>{
                 {"enabled", enable, false, false, u"LABEL LINE tab logical visible"_s},
                 {"enabled, read-only", enable, true, false, u"LABEL line logical visible"_s},
                 {"enabled, several lines", enable, false, true, u"LABEL LINES tab logical visible"_s},
                 {"enabled, read-only, several lines", enable, true, true, u"LABEL LINES logical visible"_s},
                 {"disabled", disable, false, false, u"label line visible"_s},
                 {"disabled, read-only", disable, true, false, u"label line visible"_s},
                 {"only the single line is disabled", disable, false, true, u"label LINES visible"_s},
                 {"disabled, read-only, several lines", disable, true, true, u"label lines visible"_s},
                 {"invisible", hide, false, false, u"logical"_s},
                 {"invisible, several lines", hide, false, true, u"logical"_s},
             }) {
            FieldBench bench;
            auto &field =
                bench.add<fldTextField>(kName, Values{{u"ReadOnly"_s, readOnly}, {u"DynamicHeight"_s, dynamicHeight}});
            bench.show();
            (field.*state)();
            QStringList seen;
            const auto add = [&seen](const QWidget &part, const QString &name) {
                if (part.isVisible())
                    seen << (part.isEnabled() ? name.toUpper() : name);
            };
            add(label1(field), u"label"_s);
            add(text1(field), u"line"_s);
            add(text2(field), u"lines"_s);
            for (const auto &[holds, name] : {std::pair(field.TabStop(), u"tab"_s),
                                              {field.ControlEnabled(), u"logical"_s},
                                              {field.Ifield_GetVisible(), u"visible"_s}}) {
                if (holds)
                    seen << name;
            }
            QCOMPARE(seen.join(u' '), expected);
        }
    }

    void recordAndMaskComeFromTheComponent() {
        for (const auto &[records, mask, recordNr, shown] : Rows<int, QString, int, QString>{
                 {"outside any structure, no mask", 0, {}, 0, u"aZ1"_s},
                 {"in a structure", 32, u"Z1"_s, 1, u"Z1"_s},
                 {"an undefined mask is none", 1, u"Undefined"_s, 1, u"aZ1"_s},
             }) {
            FieldBench bench;
            bench.component.when(u"GetNumberOfRecords"_s, kName).answers(records);
            bench.component.when(u"GetValidationString"_s, kName).answers(mask);
            auto &field = bench.add<fldTextField>(kName);
            field.Ifield_SetValue(QString(), false);
            bench.showWithFocus(field);
            WindowInput::type(u"aZ1"_s);
            QCOMPARE(int(field.Ifield_GetRecordNr()), recordNr);
            QCOMPARE(field.Text(), shown);
        }
    }

    void undefinedIsNeverShown() {
        TextBench bench;
        const std::pair<QVariant, QString> rows[] = {
            {u"Undefined"_s, {}}, {u"undefined"_s, u"undefined"_s}, {{}, {}}, {12.5, u"12.5"_s}};
        for (const auto &[value, shown] : rows) {
            QVERIFY(bench.field.Ifield_SetValue(value, false));
            QCOMPARE(bench.field.Text(), shown);
        }
    }

    void keysGoThroughTheMask() {
        FieldBench bench;
        bench.component.when(u"GetValidationString"_s, kName).answers(u"ABC"_s);
        auto &field = bench.add<fldTextField>(kName);
        field.Ifield_SetValue(QString(), false);
        bench.showWithFocus(field);
        WindowInput::type(u"aXb c"_s);
        QCOMPARE(field.Text(), u"ABC"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"cz"_s);
        QApplication::sendEvent(&text1(field), &commit);
        QCOMPARE(field.Text(), u"ABCC"_s);
        bench.services.clipboard.SetText(u"xyz"_s);
        field.Ifield_Paste(); // what is pasted does not go through the mask
        QCOMPARE(field.Text(), u"ABCCxyz"_s);
    }

    void deleteKeyIsNotSwallowedByTheMask() {
        FieldBench bench;
        bench.component.when(u"GetValidationString"_s, kName).answers(u"ABC"_s);
        auto &field = bench.add<fldTextField>(kName);
        field.Ifield_SetValue(u"AB"_s, false);
        bench.showWithFocus(field);
        WindowInput::key(Qt::Key_Home);
        QTest::sendKeyEvent(QTest::Click, &text1(field), Qt::Key_Delete, u"\x7f"_s, Qt::NoModifier);
        QCOMPARE(field.Text(), u"B"_s);
    }

    void escapeShowsRecord1ThenTellsTheEnabler() {
        FieldBench bench;
        bench.component.when(u"GetValue"_s, kName, 1).answers(u"of record 1"_s);
        auto &field = bench.add<fldTextField>(kName, Values{{u"NavigatorStream"_s, 1}});
        field.Ifield_SetRecordNumber(5);
        bench.showWithFocus(field);
        QString shownAtEscape;
        bench.listener(kName).on = [&](const QString &event) {
            if (event == u"Escape"_s)
                shownAtEscape = field.Text();
        };
        WindowInput::key(Qt::Key_Escape);
        QCOMPARE(shownAtEscape, u"of record 1"_s);
        QCOMPARE(bench.takeHeard(), (QStringList{u"RadioName.Change"_s, u"RadioName.Escape"_s}));
    }

    void enterValidatesAndStaysInTheField() {
        TextBench bench;
        bench.add<fldTextField>(u"Next"_s);
        bench.showWithFocus(bench.field);
        bench.listener(kName).refuseManualValidate = true;
        WindowInput::key(Qt::Key_Return);
        WindowInput::key(Qt::Key_Enter);
        QCOMPARE(bench.takeHeard(), QStringList(2, u"RadioName.ManualValidate"_s));
        QVERIFY(text1(bench.field).hasFocus());
    }

    void shiftF1AsksForHelpOnce() {
        TextBench bench;
        bench.field.Ifield_SetHelpID(4711);
        bench.showWithFocus(bench.field);
        WindowInput::key(Qt::Key_F1, Qt::ShiftModifier);
        WindowInput::key(Qt::Key_F1);
        QCOMPARE(bench.services.shell.told.filter(u"4711"_s).size(), 1);
    }

    void severalLinesAreADisplay() {
        FieldBench bench;
        auto &field = bench.add<fldTextField>(kName, Values{{u"DynamicHeight"_s, true}});
        field.Ifield_SetValue(u"as it is"_s, false);
        bench.showWithFocus(field);
        WindowInput::type(u"x"_s);
        WindowInput::key(Qt::Key_Return);
        WindowInput::key(Qt::Key_Delete);
        QCOMPARE(field.Text(), u"as it is"_s);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void widthLimitsTheUserAlone() {
        for (const auto &[width, byCode, typed, pasted, shown] : Rows<int, QString, QString, QString, QString>{
                 {"typed up to the limit", 3, u""_s, u"12345"_s, u""_s, u"123"_s},
                 {"pasted beyond the limit loses its end", 5, u"ab"_s, u""_s, u"12345"_s, u"ab123"_s},
                 {"no limit", 0, u""_s, u"123456"_s, u"78"_s, u"12345678"_s},
                 {"less than none is no limit", -1, u""_s, u"12"_s, u""_s, u"12"_s},
                 {"text by code is never cut, and does not grow", 3, u"12345"_s, u"6"_s, u"7"_s, u"12345"_s},
             }) {
            FieldBench bench;
            auto &field = bench.add<fldTextField>(kName);
            field.Ifield_SetUIWidth(width);
            field.Ifield_SetValue(byCode, false);
            bench.showWithFocus(field);
            WindowInput::key(Qt::Key_End);
            WindowInput::type(typed);
            bench.services.clipboard.SetText(pasted);
            field.Ifield_Paste();
            QCOMPARE(field.Text(), shown);
        }
    }

    void editCommands() {
        TextBench bench;
        bench.field.Ifield_SetValue(u"abcdef"_s, false);
        QCOMPARE(bench.field.Ifield_GetEditOperations(), 4);
        text1(bench.field).setSelection(1, 2);
        QCOMPARE(bench.field.Ifield_GetEditOperations(), 7);
        bench.field.Ifield_Cut();
        QCOMPARE(bench.field.Text(), u"adef"_s);
        QCOMPARE(bench.services.clipboard.Text(), u"bc"_s);
        bench.field.Ifield_Delete(); // nothing is selected
        QCOMPARE(bench.field.Text(), u"adef"_s);
        bench.field.Ifield_SelectAll();
        bench.field.Ifield_Paste();
        QCOMPARE(bench.field.Text(), u"bc"_s);
    }

    void unknownUiidEmptiesAndDisables() {
        TextBench bench;
        bench.field.Ifield_SetEnabled();
        bench.field.Ifield_SetValue(u"old"_s, false);
        bench.takeHeard();
        bench.field.Ifield_UIIDNotFound();
        QCOMPARE(bench.field.Text(), QString());
        QVERIFY(!bench.field.Ifield_GetEnabled());
        QVERIFY(bench.field.Ifield_GetUIIDNotFound());
        QVERIFY(!bench.takeHeard().contains(u"RadioName.ManualValidate"_s));
        bench.field.Ifield_SetEnabled();
        QVERIFY(!bench.field.Ifield_GetUIIDNotFound());
    }

    void everyChangeOfTheTextIsTold() {
        TextBench bench;
        bench.field.Ifield_SetValue(u"a"_s, false);
        bench.field.Ifield_SetValue(u"a"_s, false); // no change
        QCOMPARE(bench.takeHeard(), QStringList(u"RadioName.Change"_s));
        bench.listener(kName).refuseManualValidate = true;
        QVERIFY(!bench.field.Ifield_SetValue(u"b"_s, true));
        QCOMPARE(bench.takeHeard(), (QStringList{u"RadioName.Change"_s, u"RadioName.ManualValidate"_s}));
    }

    void terminatedFieldIsSilent() {
        TextBench bench;
        bench.field.Ifield_Terminate();
        bench.field.Ifield_SetValue(u"x"_s, true);
        QVERIFY(bench.field.MayLeave());
        bench.field.FocusHasLeft();
        QCOMPARE(bench.takeHeard(), QStringList());
    }
};

QTEST_MAIN(tst_text_field)
#include "tst_text_field.moc"
