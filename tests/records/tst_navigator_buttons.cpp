#include "combo_list.h"
#include "fake_field.h"
#include "field_host.h"
#include "fld_text_field.h"
#include "focus_guard.h"
#include "form_geometry.h"
#include "iusrfrm.h"
#include "navigator_bench.h"
#include "navigator_grid.h"
#include "navigator_slider.h"
#include "recording_host.h"
#include "window_input.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
const QStringList kRecordButtons{QStringLiteral("cmdAdd"), QStringLiteral("cmdInsert"), QStringLiteral("cmdRepeat"),
                                 QStringLiteral("cmdDelete")};
const QStringList kSteps{QStringLiteral("cmdRestart"), QStringLiteral("cmdPreviousStep"), QStringLiteral("cmdNextStep"),
                         QStringLiteral("cmdGotoStep")};

class GridDouble final : public FakeField, public NavigatorGrid {
  public:
    GridDouble(CallLog &log, const QString &name) : FakeField(log, name, QStringLiteral("fldGridField")) {}
    void Add() override { log("Add"); }
    void Insert() override { log("Insert"); }
    void Repeat() override { log("Repeat"); }
    void Delete() override { log("Delete"); }
};

class FormDouble final : public QWidget, public Iusrfrm {
  public:
    HostControls controls;
    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override { return nullptr; }
    void Iusrfrm_Terminate() override {}
    const HostControls &Iusrfrm_Controls() override { return controls; }
    HostControl *Iusrfrm_ActiveControl() override { return nullptr; }
};

QStringList shownButtons(const NavigatorBench &bench) {
    QStringList shown;
    for (const QPushButton *button : bench.navigator->findChildren<QPushButton *>()) {
        if (!button->isHidden())
            shown << button->objectName();
    }
    return shown;
}

bool enabled(const NavigatorBench &bench, const QString &name) { return bench.button(qPrintable(name)).isEnabled(); }
} // namespace

// Buttons, styles, looks.
class tst_navigator_buttons final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void recordButtonRaisesItsEvent_data();
    void recordButtonRaisesItsEvent();
    void gridDoesTheRecordCommands();
    void invalidFormStopsAllButDelete();
    void withoutAGridIdNothingIsDone();
    void deleteLooksAtThePositionAgain();
    void styleChoosesTheButtons_data();
    void styleChoosesTheButtons();
    void enablingFollowsTheStyle_data();
    void enablingFollowsTheStyle();
    void stepButtonsFollowThePosition();
    void nothingOverlapsInAnyLanguage_data();
    void nothingOverlapsInAnyLanguage();
    void textsAreTranslated();
    void accessKeyMovesFromAnotherField();
    void refusedFieldHoldsThePress();
    void unknownPropertyIsRefused();
};

void tst_navigator_buttons::recordButtonRaisesItsEvent_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("events");
    const QString validate = QStringLiteral("ValidateForm");
    QTest::newRow("add") << kRecordButtons[0] << QStringList{validate, QStringLiteral("AddRecordNavigator")};
    QTest::newRow("insert") << kRecordButtons[1] << QStringList{validate, QStringLiteral("InsertRecordNavigator")};
    QTest::newRow("repeat") << kRecordButtons[2] << QStringList{validate, QStringLiteral("RepeatRecordNavigator")};
    QTest::newRow("delete") << kRecordButtons[3] << QStringList{QStringLiteral("DeleteRecordNavigator")};
}

void tst_navigator_buttons::recordButtonRaisesItsEvent() {
    QFETCH(QString, button);
    NavigatorBench bench;
    bench.open(5, 3);
    bench.button(qPrintable(button)).click();
    QTEST(bench.takeHeard(), "events");
}

void tst_navigator_buttons::gridDoesTheRecordCommands() {
    FormDouble form;
    NavigatorBench bench({{QStringLiteral("GridControl"), QStringLiteral("grdRecords")}}, &form);
    GridDouble other(bench.log, QStringLiteral("grdOther"));
    GridDouble grid(bench.log, QStringLiteral("grdRecords"));
    form.controls = {&other, &grid};
    bench.open(5, 3);
    (void)bench.log.take();
    for (const QString &name : kRecordButtons)
        bench.button(qPrintable(name)).click();
    QCOMPARE(bench.log.take().join(u' '),
             QStringLiteral("grdRecords.Add() grdRecords.Insert() grdRecords.Repeat() grdRecords.Delete()"));
    QCOMPARE(bench.takeHeard().join(u' '), QStringLiteral("ValidateForm ValidateForm ValidateForm"));
    bench.navigator.reset();
}

void tst_navigator_buttons::invalidFormStopsAllButDelete() {
    NavigatorBench bench;
    bench.open(5, 3);
    bench.listener.formIsValid = false;
    for (const QString &name : kRecordButtons)
        bench.button(qPrintable(name)).click();
    QCOMPARE(bench.takeHeard().join(u' '),
             QStringLiteral("ValidateForm ValidateForm ValidateForm DeleteRecordNavigator"));
}

void tst_navigator_buttons::withoutAGridIdNothingIsDone() {
    NavigatorBench bench({{QStringLiteral("GridID"), QString()}});
    bench.open(5, 3);
    for (const QString &name : kRecordButtons)
        bench.button(qPrintable(name)).click();
    QCOMPARE(bench.takeHeard().filter(QStringLiteral("Record")), QStringList());
}

// The enabler counts again inside the event; what then stands at the position must be shown.
void tst_navigator_buttons::deleteLooksAtThePositionAgain() {
    NavigatorBench bench;
    bench.open(5, 5);
    bench.listener.on = [&](const QString &event) {
        if (event == u"DeleteRecordNavigator")
            bench.setRecords(4);
    };
    bench.button("cmdDelete").click();
    QCOMPARE(bench.navigator->Inavigator_Position(), 4);
    QCOMPARE(bench.takeHeard().last(), QStringLiteral("ChangedPosition Stored 3 4"));
    bench.listener.on = [&](const QString &event) {
        if (event == u"DeleteRecordNavigator")
            bench.setRecords(0);
    };
    bench.button("cmdDelete").click();
    QVERIFY(!bench.slider().isEnabled() && !bench.list().isEnabled() && bench.list().count() == 0);
}

void tst_navigator_buttons::styleChoosesTheButtons_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<QVariantMap>("flags");
    QTest::addColumn<QStringList>("buttons");
    const QStringList movement{QStringLiteral("cmdFirst"), QStringLiteral("cmdBack"), QStringLiteral("cmdForward"),
                               QStringLiteral("cmdLast")};
    const QVariantMap addOn{{QStringLiteral("ButtonAdd"), true}};
    const QVariantMap insertOff{{QStringLiteral("ButtonInsert"), false}};
    QTest::newRow("steps") << 0 << QVariantMap() << kSteps;
    QTest::newRow("steps have no record buttons") << 0 << addOn << kSteps;
    QTest::newRow("one") << 1 << QVariantMap() << movement;
    QTest::newRow("one, add") << 1 << addOn << movement + kRecordButtons.mid(0, 1);
    QTest::newRow("two") << 2 << QVariantMap() << movement + kRecordButtons;
    QTest::newRow("two, no insert") << 2 << insertOff << movement + kRecordButtons.mid(0, 1) + kRecordButtons.mid(2);
}

void tst_navigator_buttons::styleChoosesTheButtons() {
    QFETCH(int, style);
    QFETCH(QVariantMap, flags);
    flags.insert(QStringLiteral("SliderStyle"), style);
    const NavigatorBench bench(flags);
    QTEST(shownButtons(bench), "buttons");
    QCOMPARE(bench.list().isHidden(), style == 0);
    QVERIFY(!bench.slider().isHidden());
}

void tst_navigator_buttons::enablingFollowsTheStyle_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("slider");
    QTest::newRow("0") << 0 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("2") << 2 << true;
}

void tst_navigator_buttons::enablingFollowsTheStyle() {
    QFETCH(int, style);
    QFETCH(bool, slider);
    NavigatorBench bench({{QStringLiteral("SliderStyle"), style}});
    bench.open(5, 3);
    bench.navigator->Ifield_SetDisabled();
    QVERIFY(!bench.slider().isEnabled() && !bench.navigator->Ifield_GetEnabled());
    for (const QString &name : kRecordButtons + kSteps)
        QVERIFY2(!enabled(bench, name), qPrintable(name));
    bench.navigator->Ifield_SetEnabled();
    QCOMPARE(bench.slider().isEnabled(), slider);
    for (const QString &name : kRecordButtons)
        QCOMPARE(enabled(bench, name), slider);
    for (const QString &name : kSteps)
        QCOMPARE(enabled(bench, name), !slider);
}

void tst_navigator_buttons::stepButtonsFollowThePosition() {
    NavigatorBench bench({{QStringLiteral("SliderStyle"), 0}, {QStringLiteral("GotoNumber"), 3}});
    bench.open(4, 1);
    QCOMPARE(bench.button("cmdGotoStep").text(), QStringLiteral("&Go To Step 3"));
    const auto states = [&] {
        QString text;
        for (const QString &name : kSteps)
            text += enabled(bench, name) ? u'1' : u'0';
        return text; // restart, previous, next, goto
    };
    QCOMPARE(states(), QStringLiteral("0011"));
    bench.button("cmdNextStep").click();
    QCOMPARE(states(), QStringLiteral("1111"));
    bench.button("cmdGotoStep").click();
    QCOMPARE(states(), QStringLiteral("1110"));
    bench.button("cmdNextStep").click();
    QCOMPARE(states(), QStringLiteral("1101"));
    bench.button("cmdPreviousStep").click();
    QCOMPARE(bench.navigator->Inavigator_Position(), 3);
    bench.button("cmdRestart").click();
    QCOMPARE(bench.navigator->Inavigator_Position(), 1);
}

void tst_navigator_buttons::nothingOverlapsInAnyLanguage_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("french");
    for (const int style : {0, 1, 2}) {
        for (const int width : {9225, 15000}) {
            QTest::newRow(qPrintable(QStringLiteral("style %1, %2").arg(style).arg(width))) << style << width << false;
            QTest::newRow(qPrintable(QStringLiteral("style %1, %2, French").arg(style).arg(width)))
                << style << width << true;
        }
    }
}

void tst_navigator_buttons::nothingOverlapsInAnyLanguage() {
    QFETCH(int, style);
    QFETCH(int, width);
    QFETCH(bool, french);
    NavigatorBench bench({{QStringLiteral("SliderStyle"), style}, {QStringLiteral("GotoNumber"), 49}});
    if (french) {
        bench.services.translate({QStringLiteral("&Add|&Ajouter"), QStringLiteral("&Insert|&Insérer"),
                                  QStringLiteral("&Repeat|&Répéter"), QStringLiteral("&Delete|&Supprimer"),
                                  QStringLiteral("&Go To Step |&Aller à l'étape ")});
    }
    bench.navigator->Ifield_SetName(QStringLiteral("System|MDC1200 systems"));
    bench.open(5, 3);
    const TwipSize size = bench.navigator->SetControlSize({{width}, {600}});
    QCOMPARE(size.width, Twips{width});
    bench.window.show();
    FormGeometry geometry;
    geometry.look(*bench.navigator, QStringLiteral("navigator"));
    QCOMPARE(geometry.faults().join(u'\n'), QString());
    if (style != 0)
        QVERIFY2(bench.list().width() >= 80, qPrintable(QString::number(bench.list().width())));
    QCOMPARE(bench.navigator->SetControlSize({{3000}, {600}}).width, Twips{6000});
}

void tst_navigator_buttons::textsAreTranslated() {
    NavigatorBench bench;
    bench.services.translate({QStringLiteral("&Add|&Ajouter"), QStringLiteral("Next record|Suivant")});
    bench.navigator->Ifield_SetName(QStringLiteral("Canal|Canaux"));
    QCOMPARE(bench.button("cmdAdd").text(), QStringLiteral("&Ajouter"));
    QCOMPARE(bench.button("cmdForward").accessibleName(), QStringLiteral("Suivant"));
    QCOMPARE(bench.navigator->findChild<QLabel *>(QStringLiteral("lblComboDescription"))->text(),
             QStringLiteral("Canaux"));
}

// On a form with pages no part of the navigator has a tab stop: its keys must still reach it.
void tst_navigator_buttons::accessKeyMovesFromAnotherField() {
    NavigatorBench bench;
    bench.open(5, 3);
    bench.navigator->SetTabStop(false);
    QLineEdit edit(&bench.window);
    WindowInput::activate(bench.window);
    edit.setFocus();
    WindowInput::key(Qt::Key_Tab);
    QVERIFY(edit.hasFocus());
    WindowInput::key(Qt::Key_Right, Qt::AltModifier);
    QTRY_COMPARE(bench.navigator->Inavigator_Position(), 4);
    WindowInput::key(Qt::Key_Home, Qt::AltModifier);
    QTRY_COMPARE(bench.navigator->Inavigator_Position(), 1);
}

void tst_navigator_buttons::refusedFieldHoldsThePress() {
    NavigatorBench bench;
    const FocusGuard guard(bench.services.errors);
    bench.open(5, 3);
    auto *field = new fldTextField(bench.services.fieldServices(), {}, &bench.window);
    QStringList heard;
    RecordingHost host(QStringLiteral("field"), heard);
    FieldHost place(*field, {QStringLiteral("field"), QStringLiteral("fldTextField"), nullptr, 0});
    place.SetGeometry({{100}, {1500}, {6000}, {400}});
    place.SetListener(&host);
    WindowInput::activate(bench.window);
    field->Ifield_SetFocus();
    host.refuseManualValidate = true;
    WindowInput::click(bench.button("cmdForward"));
    WindowInput::key(Qt::Key_Right, Qt::AltModifier);
    QTest::qWait(200); // a key presses a button for a while
    QCOMPARE(bench.takeHeard(), QStringList());
    host.refuseManualValidate = false;
    WindowInput::click(bench.button("cmdForward"));
    QCOMPARE(bench.navigator->Inavigator_Position(), 4);
    delete field;
}

void tst_navigator_buttons::unknownPropertyIsRefused() {
    const QVariantMap withId{{QStringLiteral("ID"), QStringLiteral("x")}};
    QVERIFY_THROWS_EXCEPTION(RunTimeError, NavigatorBench{withId});
}

QTEST_MAIN(tst_navigator_buttons)
#include "tst_navigator_buttons.moc"
