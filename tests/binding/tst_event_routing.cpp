#include "bound_form.h"

#include "message_style.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// The variables of a control that raises an event.
struct Raised {
    bool flag = false;
    QString text;
    QStringList list;
    XArrayDB array;
    qint32 number = 0;
};

FieldEvent eventOf(const QString &name, Raised &raised) {
    if (name == u"ChangedPosition")
        return FieldEvent(name, in(u"Pos"_s), in(qint32(1)), in(qint32(2)));
    if (name == u"ChangePositionStorage")
        return FieldEvent(name, in(u"Pos"_s), in(qint32(2)), out(raised.flag));
    if (name == u"GetFieldsInFrame")
        return FieldEvent(name, in(u"frame"_s), out(raised.list));
    if (name == u"ImportRecordByDrop")
        return FieldEvent(name, in(u"grid"_s), in(u"A|B"_s), in(static_cast<const QMimeData *>(nullptr)));
    if (name == u"ImportRecordByPaste")
        return FieldEvent(name, in(u"A|B"_s), in(u"1|2"_s));
    if (name == u"DeleteRecord" || name == u"ManualValidate" || name == u"ValidateForm")
        return FieldEvent(name, out(raised.flag));
    if (name == u"DeleteRecordNavigator")
        return FieldEvent(name, in(u"navigator"_s), out(raised.flag));
    if (name == u"GetComboItems")
        return FieldEvent(name, in(u"A"_s), in(qint32(3)), out(raised.array), out(raised.number));
    if (name == u"GetIDItems")
        return FieldEvent(name, in(u"A"_s), in(qint32(3)), out(raised.array));
    if (name == u"GetValidationString")
        return FieldEvent(name, out(raised.text));
    if (name == u"GetLabel")
        return FieldEvent(name, in(u"A"_s), out(raised.text));
    if (name == u"SortColumnByUIID")
        return FieldEvent(name, in(u"A"_s));
    if (name == u"RowSelectionChanged")
        return FieldEvent(name, in(qint32(4)));
    if (name == u"SetProviderUpdateUIOnFieldChange")
        return FieldEvent(name, in(true));
    return FieldEvent(name);
}
} // namespace

class tst_EventRouting : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachEventReachesItsOperation_data();
    void eachEventReachesItsOperation();
    void unknownNamesAreShown_data();
    void unknownNamesAreShown();
    void hostValidateAsksOnlyWhereTheFieldDoesNotAskItself_data();
    void hostValidateAsksOnlyWhereTheFieldDoesNotAskItself();
    void hostFocusEventsReachTheComponent();
    void anErrorNamesTheEventsProcedure();
    void aClosedFormHearsNothing();
    void controlsWithoutAnObjectAreSkipped();
    void aSecondAccessEndsTheFirstItems();
};

// The first line that the component or a field gets tells the operation.
void tst_EventRouting::eachEventReachesItsOperation_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("firstLine");
    const auto row = [](const char *name, const QString &control, const QString &line) {
        QTest::newRow(name) << QString::fromLatin1(name) << control << line;
    };
    row("Escape", u"txtName"_s, u"GetValue(Name, 0)"_s);
    row("Click", u"chkBeep"_s, u"SetValue(Beep, 1, 0, true)"_s);
    row("Change", u"txtName"_s, u"SetDataChanged()"_s);
    row("ChangedPosition", u"navGuide"_s, u"GetValue(Name, 2)"_s);
    row("ChangePositionStorage", u"navGuide"_s, u"GetValue(Pos, 1)"_s);
    row("EnterFocus", u"sldVolume"_s, u"FieldEnterFocusValue(Volume, 5, 0)"_s);
    row("ExitFocus", u"sldVolume"_s, u"FieldExitFocusValue(Volume, 5, 0)"_s);
    row("GetFieldsInFrame", u"fraBox"_s, QString());
    row("ImportRecordByDrop", u"grdList"_s, u"ImportRecordByDrop(ListID, A|B, false, false, true)"_s);
    row("ImportRecordByPaste", u"grdList"_s, u"ImportRecordByPaste(ListID, A|B, false, , 1|2)"_s);
    row("AddRecord", u"grdList"_s, u"AddRecord(List, ListID, 0)"_s);
    row("InsertRecord", u"grdList"_s, u"InsertRecord(List, 1, ListID)"_s);
    row("DeleteRecord", u"grdList"_s, u"DeleteRecord(List, 1)"_s);
    row("RepeatRecord", u"grdList"_s, u"RepeatRecord(List, 1, ListID)"_s);
    row("AddRecordNavigator", u"navGuide"_s, u"AddRecord(Guide, NavGrid, 4)"_s);
    row("DeleteRecordNavigator", u"navGuide"_s, u"DeleteRecord(Guide, 2)"_s);
    row("RepeatRecordNavigator", u"navGuide"_s, u"RepeatRecord(Guide, 2, NavGrid)"_s);
    row("InsertRecordNavigator", u"navGuide"_s, u"InsertRecord(Guide, 2, NavGrid)"_s);
    row("GetComboItems", u"grdList"_s, u"GetComboItems(A, 3, 0)"_s);
    row("GetIDItems", u"grdList"_s, u"GetIDItems(A, 3)"_s);
    row("GetValidationString", u"grdList"_s, u"GetValidationString(List)"_s);
    row("ManualValidate", u"txtName"_s, u"GetValue(Name, 0)"_s);
    row("GetLabel", u"grdList"_s, u"GetLabel(A)"_s);
    row("SortColumnByUIID", u"grdList"_s, u"SortColumn(A, true)"_s);
    row("Initialise", u"txtName"_s, u"GetLabel(Name)"_s);
    row("RowSelectionChanged", u"grdList"_s, u"navGuide.Position(5)"_s);
    row("TabToNextField", u"grdList"_s, QString());
    row("SetProviderUpdateUIOnFieldChange", u"grdList"_s, u"SetProviderUpdateUIOnFieldChange(true)"_s);
    row("ValidateForm", u"navGuide"_s, u"ValidateForm(usrctlTest, Test, false)"_s);
}

void tst_EventRouting::eachEventReachesItsOperation() {
    QFETCH(QString, name);
    QFETCH(QString, control);
    QFETCH(QString, firstLine);
    BoundForm form;
    form.addText(u"txtName"_s);
    form.addCheckbox(u"chkBeep"_s).value = 1;
    form.add<FakeSlider>(u"sldVolume"_s).value = 5;
    form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
    form.add<FakeGrid>(u"grdList"_s, u"A|B"_s);
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    navigator.numberRecords = 3;
    navigator.position = 2;
    navigator.gridId = u"NavGrid"_s;
    navigator.gridControl = u"grdList"_s;
    form.services.clipboard.SetText(u"rows"_s);
    form.bind();

    for (HostControl *candidate : form.controls) {
        if (candidate->Name() != control)
            continue;
        auto *const raising = dynamic_cast<FakeControl *>(candidate);
        Raised raised;
        raising->raise(eventOf(name, raised));
    }
    QCOMPARE(form.log.lines().value(0), firstLine);
}

void tst_EventRouting::unknownNamesAreShown_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("other case") << u"escape"_s;
    QTest::newRow("upper case") << u"CLICK"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("prefix of a name") << u"GetCombo"_s;
    QTest::newRow("name and more") << u"Change "_s;
    QTest::newRow("placeholder in the name") << u"%1"_s;
}

void tst_EventRouting::unknownNamesAreShown() {
    QFETCH(QString, name);
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    const QString message = u"Event '"_s + name + u"' raised in the UI but not processed in clsControlItem"_s;
    form.services.boxes.expect(message, MessageAnswer::kOk);
    text.raise(FieldEvent(name));
    QCOMPARE(form.services.boxes.shown(), QStringList(u"Error: "_s + message + u" [0]"_s));
    QCOMPARE(form.log.take(), QStringList());
}

void tst_EventRouting::hostValidateAsksOnlyWhereTheFieldDoesNotAskItself_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("cancelBefore");
    QTest::addColumn<bool>("cancelAfter");
    QTest::addColumn<bool>("written");
    QTest::newRow("text clears Cancel") << u"fldTextField"_s << true << true << false << false;
    QTest::newRow("combo clears Cancel") << u"fldComboField"_s << true << true << false << false;
    QTest::newRow("refused checkbox holds") << u"fldCheckboxField"_s << true << false << true << true;
    QTest::newRow("disabled checkbox leaves Cancel") << u"fldCheckboxField"_s << false << true << true << false;
    QTest::newRow("disabled checkbox lets go") << u"fldCheckboxField"_s << false << false << false << false;
}

void tst_EventRouting::hostValidateAsksOnlyWhereTheFieldDoesNotAskItself() {
    QFETCH(QString, typeName);
    QFETCH(bool, enabled);
    QFETCH(bool, cancelBefore);
    BoundForm form;
    auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
    field.value = 1;
    field.fieldEnabled = enabled;
    form.component.when(u"SetValue"_s).refuses();
    form.bind();
    QTEST(field.validate(cancelBefore), "cancelAfter");
    QTEST(!form.log.linesOf(u"SetValue"_s).isEmpty(), "written");
}

void tst_EventRouting::hostFocusEventsReachTheComponent() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    text.gotFocus();
    text.lostFocus();
    QCOMPARE(form.log.take(), QStringList({u"FieldGotFocus(Name)"_s, u"FieldLostFocus(Name)"_s}));
}

void tst_EventRouting::anErrorNamesTheEventsProcedure() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    form.services.errorSink.expectReport();
    form.component.when(u"SetDataChanged"_s).raises({ErrorNumber::kBadArgument, QString(), u"broken"_s});
    text.raise(FieldEvent(u"Change"_s));
    QCOMPARE(form.services.errorSink.reports(),
             QStringList(u"KX4600 Programming Application: Notify_Change\r\nbroken"_s));
    QVERIFY(form.services.errorSink.MainWindowClosed());
}

void tst_EventRouting::aClosedFormHearsNothing() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    const ControlItemPtr item = form.itemOf(text);
    form.close();
    QVERIFY(!text.hasListener());
    QVERIFY(item->Terminated());
    item->frmField_ObjectEvent(FieldEvent(u"Change"_s));
    QCOMPARE(form.log.take(), QStringList());
    QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)item->Field());
}

void tst_EventRouting::controlsWithoutAnObjectAreSkipped() {
    BoundForm form;
    form.controls.push_back(nullptr);
    form.add<FakeTab>(u"SSTab1"_s, QStringList(u"Page"_s));
    form.addText(u"txtBroken"_s).failsToRead = true;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    QVERIFY(form.itemOf(text) != nullptr);
    form.enabler->Ienabler_InitialiseFields(-1);
    QCOMPARE(form.log.linesOf(u"GetLabel"_s), QStringList(u"GetLabel(Name)"_s));
}

void tst_EventRouting::aSecondAccessEndsTheFirstItems() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    const ControlItemPtr first = form.itemOf(text);
    form.enabler->AccessControls();
    QVERIFY(first->Terminated());
    QVERIFY(form.itemOf(text) != first);
    text.raise(FieldEvent(u"Change"_s));
    QCOMPARE(form.log.take(), QStringList(u"SetDataChanged()"_s));
}

QTEST_GUILESS_MAIN(tst_EventRouting)
#include "tst_event_routing.moc"
