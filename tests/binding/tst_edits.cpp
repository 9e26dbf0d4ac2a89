#include "bound_form.h"

#include "value_text.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Edits : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void typingMarksAndLeavingWritesOnce();
    void leavingComparesBeforeItWrites_data();
    void leavingComparesBeforeItWrites();
    void refusedTextStaysAndHoldsTheFocus();
    void refusedChoiceSpringsBack_data();
    void refusedChoiceSpringsBack();
    void changesThatAreNoEdits_data();
    void changesThatAreNoEdits();
    void gridCellCommitsByItsType_data();
    void gridCellCommitsByItsType();
    void escape_data();
    void escape();
    void escapeWithoutAValueOnEntryDoesNothing();
    void forcedSaveTakesTheActiveEditor();
    void forcedSaveForgetsTheEntryValueWithoutAField();
    void enteringAnIdTrackerRefillsItUnmarked();
    void anInnerFillDoesNotEndAnOuterOne();
    void updateFromInsideSetValueDoesNotEcho();
    void formClosedInsideSetValue_data();
    void formClosedInsideSetValue();
    void formClosedInsideSetValueAndThenAnError();
};

void tst_Edits::typingMarksAndLeavingWritesOnce() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    for (const QString &typed : {u"a"_s, u"ab"_s, u"abc"_s}) {
        text.value = typed;
        text.raise(FieldEvent(u"Change"_s));
    }
    QCOMPARE(form.log.take(), QStringList(3, u"SetDataChanged()"_s));
    bool cancel = false;
    text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
    QCOMPARE(form.log.take(), QStringList({u"GetValue(Name, 0)"_s, u"SetValue(Name, abc, 0, true)"_s}));
    QVERIFY(!cancel);
}

void tst_Edits::leavingComparesBeforeItWrites_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("shown");
    QTest::addColumn<bool>("written");
    QTest::newRow("same") << QVariant(u"abc"_s) << QVariant(u"abc"_s) << false;
    QTest::newRow("blanks at the ends") << QVariant(u"abc"_s) << QVariant(u"  abc "_s) << false;
    QTest::newRow("a tab counts") << QVariant(u"abc"_s) << QVariant(u"abc\t"_s) << true;
    QTest::newRow("other case") << QVariant(u"abc"_s) << QVariant(u"Abc"_s) << true;
    QTest::newRow("number and text") << QVariant(3.0) << QVariant(u"3"_s) << false;
    QTest::newRow("leading zero") << QVariant(3) << QVariant(u"03"_s) << true;
    QTest::newRow("cleared") << QVariant(u"abc"_s) << QVariant(QString()) << true;
    QTest::newRow("shown in another language") << QVariant(u"Off"_s) << QVariant(u"Aus"_s) << false;
    QTest::newRow("undefined is never written") << QVariant(u"abc"_s) << QVariant(u"Undefined"_s) << false;
}

void tst_Edits::leavingComparesBeforeItWrites() {
    QFETCH(QVariant, stored);
    QFETCH(QVariant, shown);
    BoundForm form;
    form.services.translate({u"Off|Aus"_s});
    auto &text = form.addText(u"txtName"_s);
    form.component.when(u"GetValue"_s).answers(stored);
    form.bind();
    text.value = shown;
    bool cancel = false;
    text.raise(FieldEvent(u"ManualValidate"_s, out(cancel)));
    QTEST(!form.log.linesOf(u"SetValue"_s).isEmpty(), "written");
}

void tst_Edits::refusedTextStaysAndHoldsTheFocus() {
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

void tst_Edits::refusedChoiceSpringsBack_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("shown");
    QTest::newRow("combo") << u"fldComboField"_s << QVariant(4) << QVariant(4);
    QTest::newRow("combo, undefined") << u"fldComboField"_s << QVariant(u"Undefined"_s) << QVariant(0);
    QTest::newRow("combo keeps a text") << u"fldComboField"_s << QVariant(u"x"_s) << QVariant(u"x"_s);
    QTest::newRow("checkbox, text") << u"fldCheckboxField"_s << QVariant(u"x"_s) << QVariant(0);
    QTest::newRow("option, undefined") << u"fldOptionButtonField"_s << QVariant(u"Undefined"_s) << QVariant(0);
    QTest::newRow("slider, undefined") << u"fldSliderField"_s << QVariant(u"Undefined"_s) << QVariant(0);
    QTest::newRow("ID tracker, undefined") << u"fldIdTrackerField"_s << QVariant(u"Undefined"_s) << QVariant(u"None"_s);
}

void tst_Edits::refusedChoiceSpringsBack() {
    QFETCH(QString, typeName);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, shown);
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

void tst_Edits::changesThatAreNoEdits_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("filling");
    QTest::newRow("disabled checkbox clicked") << u"fldCheckboxField"_s << u"Click"_s << false << false;
    QTest::newRow("disabled text typed") << u"fldTextField"_s << u"Change"_s << false << false;
    QTest::newRow("text filled by code") << u"fldTextField"_s << u"Change"_s << true << true;
    QTest::newRow("combo filled by code") << u"fldComboField"_s << u"Click"_s << true << true;
    QTest::newRow("ID tracker asks while filled") << u"fldIdTrackerField"_s << u"Initialise"_s << true << true;
    QTest::newRow("frame") << u"fldFrame"_s << u"Change"_s << true << false;
}

void tst_Edits::changesThatAreNoEdits() {
    QFETCH(QString, typeName);
    QFETCH(QString, event);
    QFETCH(bool, enabled);
    QFETCH(bool, filling);
    BoundForm form;
    auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
    field.fieldEnabled = enabled;
    form.bind();
    form.services.process.gblnInitialisingFields = filling;
    field.raise(FieldEvent(event));
    QCOMPARE(form.log.take(), QStringList());
}

void tst_Edits::gridCellCommitsByItsType_data() {
    QTest::addColumn<QString>("cellType");
    QTest::addColumn<qint32>("recordNr");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("cell");
    QTest::addColumn<QString>("lastLine");
    const QString read = u"GetValue(List, 2)"_s;
    const QString marked = u"SetDataChanged()"_s;
    const auto written = [](const QString &value) { return u"SetValue(List, "_s + value + u", 2, true)"_s; };
    QTest::newRow("no record") << u"fldComboField"_s << 0 << QVariant(1) << QVariant(2) << QString();
    QTest::newRow("text, same but for blanks")
        << u"fldTextField"_s << 2 << QVariant(u"a"_s) << QVariant(u" a"_s) << read;
    QTest::newRow("text, other") << u"fldTextField"_s << 2 << QVariant(u"a"_s) << QVariant(u"b"_s) << marked;
    QTest::newRow("ID, same") << u"fldIdTrackerField"_s << 2 << QVariant(7) << QVariant(u"7"_s) << read;
    QTest::newRow("ID, other") << u"fldIdTrackerField"_s << 2 << QVariant(7) << QVariant(u"8"_s) << written(u"8"_s);
    QTest::newRow("combo, same number") << u"fldComboField"_s << 2 << QVariant(3) << QVariant(u"3.0"_s) << read;
    QTest::newRow("combo, text counts as 0") << u"fldComboField"_s << 2 << QVariant(0) << QVariant(u"x"_s) << read;
    QTest::newRow("combo, stored undefined")
        << u"fldComboField"_s << 2 << QVariant(u"Undefined"_s) << QVariant(0) << written(u"0"_s);
    QTest::newRow("check, not compared") << u"fldCheckboxField"_s << 2 << QVariant(1) << QVariant(1) << written(u"1"_s);
}

void tst_Edits::gridCellCommitsByItsType() {
    QFETCH(QString, cellType);
    QFETCH(qint32, recordNr);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, cell);
    BoundForm form;
    auto &grid = form.add<FakeGrid>(u"grdList"_s, u"List"_s);
    grid.cellType = cellType;
    grid.recordNr = recordNr;
    grid.value = cell;
    form.component.when(u"GetValue"_s).answers(stored);
    form.bind();
    grid.raise(FieldEvent(u"Change"_s, in(recordNr)));
    QTEST(form.log.lines().value(form.log.lines().size() - 1), "lastLine");
}

void tst_Edits::escape_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("text shows the component's value")
        << u"fldTextField"_s << QStringList({u"GetValue(Tone, 0)"_s, u"fldTone.SetValue(entry, false)"_s});
    const QStringList original{u"SetValue(Tone, entry, 0, true)"_s, u"fldTone.SetValue(entry, false)"_s};
    QTest::newRow("combo writes the entry value back") << u"fldComboField"_s << original;
    QTest::newRow("ID tracker") << u"fldIdTrackerField"_s << original;
    QTest::newRow("checkbox") << u"fldCheckboxField"_s
                              << QStringList({original.first(), u"fldTone.SetValue(0, false)"_s});
    QTest::newRow("slider") << u"fldSliderField"_s << QStringList();
    QTest::newRow("navigator") << u"fldPageNavigator"_s << QStringList();
}

void tst_Edits::escape() {
    QFETCH(QString, typeName);
    BoundForm form;
    auto &entered = form.addCheckbox(u"chkTone"_s); // gives the value on entry
    auto &field = form.add<FakeField>(u"fldTone"_s, typeName);
    form.component.when(u"GetValue"_s).answers(u"entry"_s);
    form.bind();
    form.enabler->Notify_GotFocus(form.itemOf(entered));
    (void)form.log.take();
    form.enabler->Notify_Escape(form.itemOf(field));
    QTEST(form.log.take(), "lines");
}

void tst_Edits::escapeWithoutAValueOnEntryDoesNothing() {
    BoundForm form;
    auto &combo = form.add<FakeCombo>(u"cboTone"_s);
    form.bind();
    combo.raise(FieldEvent(u"Escape"_s));
    QCOMPARE(form.log.take(), QStringList());
}

void tst_Edits::forcedSaveTakesTheActiveEditor() {
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

void tst_Edits::forcedSaveForgetsTheEntryValueWithoutAField() {
    BoundForm form;
    auto &combo = form.add<FakeCombo>(u"cboTone"_s);
    form.bind();
    combo.gotFocus();
    (void)form.log.take();
    form.enabler->Ienabler_ForceSaveToCurrentField();
    combo.raise(FieldEvent(u"Escape"_s));
    QCOMPARE(form.log.take(), QStringList());
}

void tst_Edits::enteringAnIdTrackerRefillsItUnmarked() {
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

void tst_Edits::anInnerFillDoesNotEndAnOuterOne() {
    BoundForm form;
    auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
    form.bind();
    form.services.process.gblnInitialisingFields = true;
    tracker.gotFocus();
    QVERIFY(form.services.process.gblnInitialisingFields);
}

void tst_Edits::updateFromInsideSetValueDoesNotEcho() {
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

void tst_Edits::formClosedInsideSetValue_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted choice") << u"fldComboField"_s << u"Click"_s << true;
    QTest::newRow("refused choice") << u"fldComboField"_s << u"Click"_s << false;
    QTest::newRow("accepted text") << u"fldTextField"_s << u"ManualValidate"_s << true;
    QTest::newRow("refused text") << u"fldTextField"_s << u"ManualValidate"_s << false;
    QTest::newRow("escape") << u"fldCheckboxField"_s << u"Escape"_s << true;
}

// The field is not touched any more, nothing holds the focus, and no error arises.
void tst_Edits::formClosedInsideSetValue() {
    QFETCH(QString, typeName);
    QFETCH(QString, event);
    QFETCH(bool, accepted);
    BoundForm form;
    auto &field = form.add<FakeField>(u"fldTone"_s, typeName);
    field.value = 1;
    form.bind();
    if (event == u"Escape")
        field.gotFocus();
    form.component.when(u"SetValue"_s).answers(accepted).runs([&form] {
        (void)form.log.take();
        form.close();
    });
    bool cancel = false;
    if (event == u"ManualValidate")
        field.raise(FieldEvent(event, out(cancel)));
    else
        field.raise(FieldEvent(event));
    QVERIFY(!cancel);
    QCOMPARE(form.log.take(), QStringList());
    QVERIFY(form.enabler == nullptr);
}

// A development run raises the error through every tail, when item and enabler are held by nobody but the stack.
void tst_Edits::formClosedInsideSetValueAndThenAnError() {
    BoundForm form;
    ErrorReport tracing(true);
    form.enabler = std::make_shared<ctlFormEnabler>(form.controls,
                                                    FieldServices{.process = form.services.process,
                                                                  .translation = form.services.translation,
                                                                  .errors = tracing,
                                                                  .boxes = form.services.boxes,
                                                                  .clipboard = form.services.clipboard,
                                                                  .shell = form.services.shell},
                                                    nullptr);
    auto &field = form.addCheckbox(u"chkTone"_s);
    form.bind();
    form.component.when(u"SetValue"_s).raises({ErrorNumber::kBadArgument, QString(), u"broken"_s}).runs([&form] {
        form.close();
    });
    QString trace;
    try {
        field.raise(FieldEvent(u"Click"_s));
    } catch (const RunTimeError &error) {
        trace = error.Description;
    }
    const QString title = u"KX4600 Programming Application: "_s;
    QCOMPARE(trace, title + u"frmField_ObjectEvent\r\n"_s + title + u"Notify_Click\r\n"_s + title +
                        u"Notify_Change\r\nbroken"_s);
}

QTEST_GUILESS_MAIN(tst_Edits)
#include "tst_edits.moc"
