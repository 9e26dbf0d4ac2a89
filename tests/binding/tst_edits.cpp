#include "bound_form.h"

#include "rows.h"
#include "value_text.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Edits : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void typingMarksAndLeavingWritesOnce() {
        TextForm form;
        for (const QString &typed : {u"a"_s, u"ab"_s, u"abc"_s}) {
            form.text.value = typed;
            form.text.raise(FieldEvent(u"Change"_s));
        }
        QCOMPARE(form.log.take(), QStringList(3, u"SetDataChanged()"_s));
        bool cancel = false;
        form.text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
        QCOMPARE(form.log.take(), QStringList({u"GetValue(Name, 0)"_s, u"SetValue(Name, abc, 0, true)"_s}));
        QVERIFY(!cancel);
    }

    void leavingComparesBeforeItWrites() {
        for (const auto &[stored, shown, written] : Rows<QVariant, QVariant, bool>{
                 {"same", u"abc"_s, u"abc"_s, false},
                 {"blanks at the ends", u"abc"_s, u"  abc "_s, false},
                 {"a tab counts", u"abc"_s, u"abc\t"_s, true},
                 {"other case", u"abc"_s, u"Abc"_s, true},
                 {"number and text", 3.0, u"3"_s, false},
                 {"leading zero", 3, u"03"_s, true},
                 {"cleared", u"abc"_s, QString(), true},
                 {"shown in another language", u"Off"_s, u"Aus"_s, false},
                 {"undefined is never written", u"abc"_s, u"Undefined"_s, false},
             }) {
            BoundForm form;
            form.services.translate({u"Off|Aus"_s});
            auto &text = form.addText(u"txtName"_s);
            form.component.when(u"GetValue"_s).answers(stored);
            form.bind();
            text.value = shown;
            bool cancel = false;
            text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
            QCOMPARE(!form.log.linesOf(u"SetValue"_s).isEmpty(), written);
        }
    }

    void refusedTextStaysAndHoldsTheFocus() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        form.component.when(u"GetValue"_s).answers(u"old"_s);
        form.component.when(u"SetValue"_s).refuses();
        form.bind();
        text.value = u"bad"_s;
        bool cancel = false;
        text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
        QVERIFY(cancel);
        QCOMPARE(text.value, QVariant(u"bad"_s));
        QVERIFY(!form.enabler->Ienabler_OKToLeaveForm());

        text.raise(FieldEvent(u"Escape"_s));
        QCOMPARE(text.value, QVariant(u"old"_s));
        QVERIFY(!form.enabler->Ienabler_OKToLeaveForm()); // only a validation answers that

        cancel = false;
        text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
        QVERIFY(form.enabler->Ienabler_OKToLeaveForm());
    }

    void refusedChoiceSpringsBack() {
        for (const auto &[typeName, stored, shown] : Rows<QString, QVariant, QVariant>{
                 {"combo", u"fldComboField"_s, 4, 4},
                 {"combo, undefined", u"fldComboField"_s, u"Undefined"_s, 0},
                 {"combo keeps a text", u"fldComboField"_s, u"x"_s, u"x"_s},
                 {"checkbox, text", u"fldCheckboxField"_s, u"x"_s, 0},
                 {"option, undefined", u"fldOptionButtonField"_s, u"Undefined"_s, 0},
                 {"slider, undefined", u"fldSliderField"_s, u"Undefined"_s, 0},
                 {"ID tracker, undefined", u"fldIdTrackerField"_s, u"Undefined"_s, u"None"_s},
             }) {
            BoundForm form;
            auto &field = form.add<FakeField>(u"fldTone"_s, typeName);
            field.value = 9;
            form.component.when(u"SetValue"_s).refuses();
            form.component.when(u"GetValue"_s).answers(stored);
            form.bind();
            field.raise(FieldEvent(u"Change"_s));
            QCOMPARE(form.log.take(), QStringList({u"SetValue(Tone, 9, 0, true)"_s, u"GetValue(Tone, 0)"_s,
                                                   u"fldTone.SetValue("_s + ValueText::of(shown) + u", false)"_s}));
            QCOMPARE(field.value, shown);
        }
    }

    void changesThatAreNoEdits() {
        for (const auto &[typeName, event, enabled, filling] : Rows<QString, QString, bool, bool>{
                 {"disabled checkbox clicked", u"fldCheckboxField"_s, u"Click"_s, false, false},
                 {"disabled text typed", u"fldTextField"_s, u"Change"_s, false, false},
                 {"text filled by code", u"fldTextField"_s, u"Change"_s, true, true},
                 {"combo filled by code", u"fldComboField"_s, u"Click"_s, true, true},
                 {"ID tracker asks while filled", u"fldIdTrackerField"_s, u"Initialise"_s, true, true},
                 {"frame", u"fldFrame"_s, u"Change"_s, true, false},
             }) {
            BoundForm form;
            auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
            field.fieldEnabled = enabled;
            form.bind();
            form.services.process.gblnInitialisingFields = filling;
            field.raise(FieldEvent(event));
            QCOMPARE(form.log.take(), QStringList());
        }
    }

    void gridCellCommitsByItsType() {
        const QString read = u"GetValue(List, 2)"_s;
        const QString marked = u"SetDataChanged()"_s;
        const auto written = [](const QString &value) { return u"SetValue(List, "_s + value + u", 2, true)"_s; };

        for (const auto &[cellType, recordNr, stored, cell, lastLine] :
             Rows<QString, qint32, QVariant, QVariant, QString>{
                 {"no record", u"fldComboField"_s, 0, 1, 2, {}},
                 {"text, same but for blanks", u"fldTextField"_s, 2, u"a"_s, u" a"_s, read},
                 {"text, other", u"fldTextField"_s, 2, u"a"_s, u"b"_s, marked},
                 {"ID, same", u"fldIdTrackerField"_s, 2, 7, u"7"_s, read},
                 {"ID, other", u"fldIdTrackerField"_s, 2, 7, u"8"_s, written(u"8"_s)},
                 {"combo, same number", u"fldComboField"_s, 2, 3, u"3.0"_s, read},
                 {"combo, text counts as 0", u"fldComboField"_s, 2, 0, u"x"_s, read},
                 {"combo, stored undefined", u"fldComboField"_s, 2, u"Undefined"_s, 0, written(u"0"_s)},
                 {"check, not compared", u"fldCheckboxField"_s, 2, 1, 1, written(u"1"_s)},
             }) {
            BoundForm form;
            auto &grid = form.add<FakeGrid>(u"grdList"_s, u"List"_s);
            grid.cellType = cellType;
            grid.recordNr = recordNr;
            grid.value = cell;
            form.component.when(u"GetValue"_s).answers(stored);
            form.bind();
            grid.raise(FieldEvent(u"Change"_s, in(recordNr)));
            QCOMPARE(form.log.lines().value(form.log.lines().size() - 1), lastLine);
        }
    }

    void escape() {
        const QStringList original{u"SetValue(Tone, entry, 0, true)"_s, u"fldTone.SetValue(entry, false)"_s};

        for (const auto &[typeName, lines] : Rows<QString, QStringList>{
                 {"text shows the component's value", u"fldTextField"_s,
                  QStringList({u"GetValue(Tone, 0)"_s, u"fldTone.SetValue(entry, false)"_s})},
                 {"combo writes the entry value back", u"fldComboField"_s, original},
                 {"ID tracker", u"fldIdTrackerField"_s, original},
                 {"checkbox", u"fldCheckboxField"_s, QStringList({original.first(), u"fldTone.SetValue(0, false)"_s})},
                 {"slider", u"fldSliderField"_s, {}},
                 {"navigator", u"fldPageNavigator"_s, {}},
             }) {
            BoundForm form;
            auto &entered = form.addCheckbox(u"chkTone"_s); // gives the value on entry
            auto &field = form.add<FakeField>(u"fldTone"_s, typeName);
            form.component.when(u"GetValue"_s).answers(u"entry"_s);
            form.bind();
            form.enabler->Notify_GotFocus(form.itemOf(entered));
            (void)form.log.take();
            form.enabler->Notify_Escape(form.itemOf(field));
            QCOMPARE(form.log.take(), lines);
        }
    }

    void forcedSaveTakesTheActiveEditor() {
        BoundForm form;
        auto &combo = form.add<FakeCombo>(u"cboTone"_s);
        auto &text = form.addText(u"txtName"_s);
        form.component.when(u"GetValue"_s, u"Name"_s).answers(u"old"_s);
        form.bind();
        combo.gotFocus();
        (void)form.log.take();
        form.active = &text;
        text.value = u"new"_s;
        form.enabler->Ienabler_ForceSaveToCurrentField();
        QCOMPARE(form.log.take(),
                 QStringList({u"SetDataChanged()"_s, u"GetValue(Name, 0)"_s, u"SetValue(Name, new, 0, true)"_s}));
        combo.raise(FieldEvent(u"Escape"_s));
        QCOMPARE(form.log.take(), QStringList());
    }

    void forcedSaveForgetsTheEntryValueWithoutAField() {
        ComboForm form;
        form.combo.gotFocus();
        (void)form.log.take();
        form.enabler->Ienabler_ForceSaveToCurrentField();
        form.combo.raise(FieldEvent(u"Escape"_s));
        QCOMPARE(form.log.take(), QStringList());
    }

    void enteringAnIdTrackerRefillsItUnmarked() {
        BoundForm form;
        auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
        form.bind();
        form.component.when(u"GetUIWidth"_s).runs([&tracker] { tracker.raise(FieldEvent(u"Click"_s)); });
        tracker.gotFocus();
        QVERIFY(form.log.linesOf(u"SetValue"_s).isEmpty());
        QCOMPARE(form.log.lines().first(), u"GetValue(Scan, 0)"_s);
        QCOMPARE(form.log.lines().at(1), u"GetLabel(Scan)"_s);
        QCOMPARE(form.log.lines().constLast(), u"FieldGotFocus(Scan)"_s);
        QVERIFY(!form.services.process.gblnInitialisingFields);
    }

    void anInnerFillDoesNotEndAnOuterOne() {
        BoundForm form;
        auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
        form.bind();
        form.services.process.gblnInitialisingFields = true;
        tracker.gotFocus();
        QVERIFY(form.services.process.gblnInitialisingFields);
    }

    void updateFromInsideSetValueDoesNotEcho() {
        BoundForm form;
        auto &combo = form.add<FakeCombo>(u"cboTone"_s);
        auto &other = form.addText(u"txtName"_s);
        form.bind();
        combo.value = 5;
        form.component.when(u"SetValue"_s).runs([&form] {
            form.enabler->Ienabler_UpdateUIFieldByUIID(u"Tone"_s, 0, 6);
            form.enabler->Ienabler_UpdateUIFieldByUIID(u"Name"_s, 0, u"six"_s);
            form.enabler->Ienabler_RefreshGridByUIID(u"Name"_s);
            form.enabler->Ienabler_SetEnableDisableByUIID(u"Name"_s, false);
        });
        combo.raise(FieldEvent(u"Click"_s));
        QCOMPARE(form.log.take(), QStringList({u"SetValue(Tone, 5, 0, true)"_s, u"cboTone.SetValue(6, false)"_s,
                                               u"txtName.SetValue(six, false)"_s, u"txtName.SetDisabled()"_s}));
        QCOMPARE(combo.value, QVariant(6));
        QVERIFY(!other.fieldEnabled);
    }
};

QTEST_GUILESS_MAIN(tst_Edits)
#include "tst_edits.moc"
