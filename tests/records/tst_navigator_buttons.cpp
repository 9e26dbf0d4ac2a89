#include "combo_list.h"
#include "fake_field.h"
#include "field_host.h"
#include "fld_text_field.h"
#include "focus_guard.h"
#include "iusrfrm.h"
#include "navigator_bench.h"
#include "navigator_grid.h"
#include "navigator_slider.h"
#include "recording_host.h"
#include "rows.h"
#include "window_input.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QStringList kRecordButtons{u"cmdAdd"_s, u"cmdInsert"_s, u"cmdRepeat"_s, u"cmdDelete"_s};
const QStringList kSteps{u"cmdRestart"_s, u"cmdPreviousStep"_s, u"cmdNextStep"_s, u"cmdGotoStep"_s};

class GridDouble final : public FakeField, public NavigatorGrid {
  public:
    GridDouble(CallLog &log, const QString &name) : FakeField(log, name, u"fldGridField"_s) {}
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
    void gridDoesTheRecordCommands() {
        FormDouble form;
        NavigatorBench bench({{u"GridControl"_s, u"grdRecords"_s}}, &form);
        GridDouble other(bench.log, u"grdOther"_s);
        GridDouble grid(bench.log, u"grdRecords"_s);
        form.controls = {&other, &grid};
        bench.open(5, 3);
        (void)bench.log.take();
        for (const QString &name : kRecordButtons)
            bench.button(qPrintable(name)).click();
        QCOMPARE(bench.log.take().join(u' '),
                 u"grdRecords.Add() grdRecords.Insert() grdRecords.Repeat() grdRecords.Delete()"_s);
        QCOMPARE(bench.takeHeard().join(u' '), u"ValidateForm ValidateForm ValidateForm"_s);
        bench.navigator.reset();
    }

    void recordButtonsValidateAndRaiseTheirEvent() {
        const QString validate = u"ValidateForm"_s;
        for (const auto &[gridId, valid, heard] : Rows<QString, bool, QStringList>{
                 {"a valid form",
                  u"Grid"_s,
                  true,
                  {validate, u"AddRecordNavigator"_s, validate, u"InsertRecordNavigator"_s, validate,
                   u"RepeatRecordNavigator"_s, u"DeleteRecordNavigator"_s}},
                 {"an invalid form stops all but delete",
                  u"Grid"_s,
                  false,
                  {validate, validate, validate, u"DeleteRecordNavigator"_s}},
                 {"without a grid's id nothing is done", {}, true, {validate, validate, validate}},
             }) {
            NavigatorBench bench({{u"GridID"_s, gridId}});
            bench.open(5, 3);
            bench.listener.formIsValid = valid;
            for (const QString &name : kRecordButtons)
                bench.button(qPrintable(name)).click();
            QCOMPARE(bench.takeHeard(), heard);
        }
    }

    // The enabler counts again inside the event; what then stands at the position must be shown.
    void deleteLooksAtThePositionAgain() {
        NavigatorBench bench;
        bench.open(5, 5);
        bench.listener.on = [&](const QString &event) {
            if (event == u"DeleteRecordNavigator")
                bench.setRecords(4);
        };
        bench.button("cmdDelete").click();
        QCOMPARE(bench.navigator->Inavigator_Position(), 4);
        QCOMPARE(bench.takeHeard().last(), u"ChangedPosition Stored 3 4"_s);
        bench.listener.on = [&](const QString &event) {
            if (event == u"DeleteRecordNavigator")
                bench.setRecords(0);
        };
        bench.button("cmdDelete").click();
        QVERIFY(!bench.slider().isEnabled() && !bench.list().isEnabled() && bench.list().count() == 0);
    }

    void styleChoosesTheButtons() {
        const QStringList movement{u"cmdFirst"_s, u"cmdBack"_s, u"cmdForward"_s, u"cmdLast"_s};
        const QVariantMap addOn{{u"ButtonAdd"_s, true}};
        const QVariantMap insertOff{{u"ButtonInsert"_s, false}};

        for (const auto &[style, flags, buttons] : Rows<int, QVariantMap, QStringList>{
                 {"steps", 0, {}, kSteps},
                 {"steps have no record buttons", 0, addOn, kSteps},
                 {"one", 1, {}, movement},
                 {"one, add", 1, addOn, movement + kRecordButtons.mid(0, 1)},
                 {"two", 2, {}, movement + kRecordButtons},
                 {"two, no insert", 2, insertOff, movement + kRecordButtons.mid(0, 1) + kRecordButtons.mid(2)},
             }) {
            QVariantMap properties = flags;
            properties.insert(u"SliderStyle"_s, style);
            const NavigatorBench bench(properties);
            QCOMPARE(shownButtons(bench), buttons);
            QCOMPARE(bench.list().isHidden(), style == 0);
            QVERIFY(!bench.slider().isHidden());
        }
    }

    void enablingFollowsTheStyle() {
        for (const auto &[style, slider] : Rows<int, bool>{
                 {"0", 0, true},
                 {"1", 1, false},
                 {"2", 2, true},
             }) {
            NavigatorBench bench({{u"SliderStyle"_s, style}});
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
    }

    void stepButtonsFollowThePosition() {
        NavigatorBench bench({{u"SliderStyle"_s, 0}, {u"GotoNumber"_s, 3}});
        bench.open(4, 1);
        QCOMPARE(bench.button("cmdGotoStep").text(), u"&Go To Step 3"_s);
        const auto states = [&] {
            QString text;
            for (const QString &name : kSteps)
                text += enabled(bench, name) ? u'1' : u'0';
            return text; // restart, previous, next, goto
        };
        QCOMPARE(states(), u"0011"_s);
        bench.button("cmdNextStep").click();
        QCOMPARE(states(), u"1111"_s);
        bench.button("cmdGotoStep").click();
        QCOMPARE(states(), u"1110"_s);
        bench.button("cmdNextStep").click();
        QCOMPARE(states(), u"1101"_s);
        bench.button("cmdPreviousStep").click();
        QCOMPARE(bench.navigator->Inavigator_Position(), 3);
        bench.button("cmdRestart").click();
        QCOMPARE(bench.navigator->Inavigator_Position(), 1);
    }

    void textsAreTranslated() {
        NavigatorBench bench;
        bench.services.translate({u"&Add|&Ajouter"_s, u"Next record|Suivant"_s});
        bench.navigator->Ifield_SetName(u"Canal|Canaux"_s);
        QCOMPARE(bench.button("cmdAdd").text(), u"&Ajouter"_s);
        QCOMPARE(bench.button("cmdForward").accessibleName(), u"Suivant"_s);
        QCOMPARE(bench.navigator->findChild<QLabel *>(u"lblComboDescription"_s)->text(), u"Canaux"_s);
    }

    // On a form with pages no part of the navigator has a tab stop: its keys must still reach it.
    void accessKeyMovesFromAnotherField() {
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

    void refusedFieldHoldsThePress() {
        NavigatorBench bench;
        const FocusGuard guard(bench.services.errors);
        bench.open(5, 3);
        auto *field = new fldTextField(bench.services.fieldServices(), {}, &bench.window);
        QStringList heard;
        RecordingHost host(u"field"_s, heard);
        FieldHost place(*field, {u"field"_s, u"fldTextField"_s, nullptr, 0});
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
};

QTEST_MAIN(tst_navigator_buttons)
#include "tst_navigator_buttons.moc"
