#include "bound_form.h"

#include "message_style.h"
#include "rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_EventRouting : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void unknownNamesAreShown() {
        for (const QString &name : {u"escape"_s, QString(), u"GetCombo"_s, u"Change "_s, u"%1"_s}) {
            BoundForm form;
            auto &text = form.addText(u"txtName"_s);
            form.bind();
            const QString message = u"Event '"_s + name + u"' raised in the UI but not processed in clsControlItem"_s;
            form.services.boxes.expect(message, MessageAnswer::kOk);
            text.raise(FieldEvent(name));
            QCOMPARE(form.services.boxes.shown(), QStringList(u"Error: "_s + message + u" [0]"_s));
            QCOMPARE(form.log.take(), QStringList());
        }
    }

    void hostValidateAsksOnlyWhereTheFieldDoesNotAskItself() {
        for (const auto &[typeName, enabled, cancelBefore, cancelAfter, written] :
             Rows<QString, bool, bool, bool, bool>{
                 {"text clears Cancel", u"fldTextField"_s, true, true, false, false},
                 {"combo clears Cancel", u"fldComboField"_s, true, true, false, false},
                 {"refused checkbox holds", u"fldCheckboxField"_s, true, false, true, true},
                 {"disabled checkbox leaves Cancel", u"fldCheckboxField"_s, false, true, true, false},
                 {"disabled checkbox lets go", u"fldCheckboxField"_s, false, false, false, false},
             }) {
            BoundForm form;
            auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
            field.value = 1;
            field.fieldEnabled = enabled;
            form.component.when(u"SetValue"_s).refuses();
            form.bind();
            QCOMPARE(field.validate(cancelBefore), cancelAfter);
            QCOMPARE(!form.log.linesOf(u"SetValue"_s).isEmpty(), written);
        }
    }

    void focusEventsReachTheComponent() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        auto &slider = form.add<FakeSlider>(u"sldVolume"_s);
        slider.value = 5;
        form.bind();
        text.gotFocus();
        text.lostFocus();
        slider.raise(FieldEvent(u"EnterFocus"_s));
        slider.raise(FieldEvent(u"ExitFocus"_s));
        slider.raise(FieldEvent(u"TabToNextField"_s)); // known, and without effect
        QCOMPARE(form.log.take(), QStringList({u"FieldGotFocus(Name)"_s, u"FieldLostFocus(Name)"_s,
                                               u"FieldEnterFocusValue(Volume, 5, 0)"_s, u"FieldGotFocus(Volume)"_s,
                                               u"FieldExitFocusValue(Volume, 5, 0)"_s}));
    }

    void anErrorNamesTheEventsProcedure() {
        TextForm form;
        form.services.errorSink.expectReport();
        form.component.when(u"SetDataChanged"_s).raises({ErrorNumber::kBadArgument, QString(), u"broken"_s});
        form.text.raise(FieldEvent(u"Change"_s));
        QCOMPARE(form.services.errorSink.reports(),
                 QStringList(u"KX4600 Programming Application: Notify_Change\r\nbroken"_s));
        QVERIFY(form.services.errorSink.MainWindowClosed());
    }

    void aClosedFormHearsNothing() {
        TextForm form;
        const ControlItemPtr item = form.itemOf(form.text);
        form.close();
        QVERIFY(!form.text.hasListener());
        QVERIFY(item->Terminated());
        item->frmField_ObjectEvent(FieldEvent(u"Change"_s));
        QCOMPARE(form.log.take(), QStringList());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)item->Field());
    }

    void controlsWithoutAnObjectAreSkipped() {
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

    void aSecondAccessEndsTheFirstItems() {
        TextForm form;
        const ControlItemPtr first = form.itemOf(form.text);
        form.enabler->AccessControls();
        QVERIFY(first->Terminated());
        QVERIFY(form.itemOf(form.text) != first);
        form.text.raise(FieldEvent(u"Change"_s));
        QCOMPARE(form.log.take(), QStringList(u"SetDataChanged()"_s));
    }
};

QTEST_GUILESS_MAIN(tst_EventRouting)
#include "tst_event_routing.moc"
