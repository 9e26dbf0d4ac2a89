#include "bound_form.h"

#include "message_style.h"
#include "rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_FormInitialisation : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void navigatorGoesToItsRecord() {
        for (const auto &[recordNr, storage, stored, position] : Rows<qint32, QString, QVariant, qint32>{
                 {"asked for", 4, u"Pos"_s, 2, 4},
                 {"stored", -1, u"Pos"_s, 2, 2},
                 {"stored as text", -1, u"Pos"_s, u" 3"_s, 3},
                 {"without storage", -1, {}, 2, 1},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            navigator.storageUIID = storage;
            form.component.when(u"GetNumberOfRecords"_s).answers(9);
            form.component.when(u"GetValue"_s, u"Pos"_s, 1).answers(stored);
            form.bind();
            form.enabler->Ienabler_InitialiseFields(recordNr);
            QCOMPARE(navigator.position, position);
        }
    }

    void undefinedStoredPositionIsToldAndPassedOver() {
        BoundForm form;
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        navigator.storageUIID = u"Pos"_s;
        navigator.position = 5;
        auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
        form.component.when(u"GetNumberOfRecords"_s).answers(9);
        form.component.when(u"GetValue"_s, u"Pos"_s).answersUndefined();
        form.bind();
        form.services.boxes.expect(u"Navigator position storage UIID is returning an undefined value"_s,
                                   MessageAnswer::kOk);
        form.enabler->Ienabler_InitialiseFields(-1);
        QVERIFY(form.services.boxes.shown().first().startsWith(u"Unknown Error: "_s));
        QVERIFY(form.services.boxes.shown().first().endsWith(u"[16]"_s));
        QCOMPARE(navigator.position, 5);
        QVERIFY(!frame.hostVisible); // it went on
    }

    void noFillingCountsAsAnEdit() {
        TextForm form;
        form.component.when(u"GetUIWidth"_s).runs([&form] { form.text.raise(FieldEvent(u"Change"_s)); });
        form.enabler->Ienabler_InitialiseFields(-1);
        QVERIFY(form.log.linesOf(u"SetDataChanged"_s).isEmpty());
        QVERIFY(!form.services.process.gblnInitialisingFields);
    }

    void theFlagIsGivenBackAfterAnError() {
        BoundForm form;
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        navigator.storageUIID = u"Pos"_s;
        form.component.when(u"GetValue"_s, u"Pos"_s).answers(u"not a number"_s);
        form.bind();
        form.services.errorSink.expectReport();
        form.enabler->Ienabler_InitialiseFields(-1);
        QCOMPARE(form.services.errorSink.reports().size(), 1);
        QVERIFY(!form.services.process.gblnInitialisingFields);
    }

    void captionsAreTranslatedFromTheSourceEachTime() {
        BoundForm form;
        auto &tab = form.add<FakeTab>(u"SSTab1"_s, QStringList({u"General"_s, u"Tones"_s}));
        form.services.translate({u"General|Tones"_s, u"Tones|Sons"_s});
        form.bind();
        form.enabler->Ienabler_InitialiseFields(-1);
        form.enabler->Ienabler_InitialiseFields(-1);
        QCOMPARE(tab.captions, QStringList({u"Tones"_s, u"Sons"_s}));
    }

    void frameIsShownByItsFields() {
        for (const auto &[typeName, shows] : {std::pair(u"fldTextField"_s, true),
                                              {u"fldIdTrackerField"_s, true},
                                              {u"fldComboField"_s, true},
                                              {u"fldGridField"_s, true},
                                              {u"fldCheckboxField"_s, true},
                                              {u"fldPageNavigator"_s, true},
                                              {u"fldOptionButtonField"_s, true},
                                              {u"fldSliderField"_s, false},
                                              {u"fldSubFormCallUp"_s, false},
                                              {u"fldFrame"_s, false}}) {
            for (const bool visible : {false, true}) {
                BoundForm form;
                auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
                auto &inner = form.add<FakeField>(u"fldThing"_s, typeName);
                inner.container = &frame;
                inner.fieldVisible = visible;
                form.bind();
                QVERIFY2(form.enabler->FrameHasVisibleFields(frame) == (shows && visible), qPrintable(typeName));
            }
        }
    }

    void nestedFramesCount() {
        BoundForm form;
        auto &outer = form.add<FakeField>(u"fraOuter"_s, u"fldFrame"_s);
        auto &plain = form.add<FakeControl>(u"Frame3"_s, u"Frame"_s);
        auto &text = form.addText(u"txtName"_s);
        auto &lonely = form.add<FakeField>(u"fraLonely"_s, u"fldFrame"_s);
        plain.container = &outer;
        text.container = &plain;
        form.component.when(u"GetFieldVersionLevel"_s, u"Name"_s).answers(0);
        form.bind();
        form.enabler->Ienabler_InitialiseFields(-1);
        QVERIFY(outer.hostVisible && plain.hostVisible);
        QVERIFY(!lonely.hostVisible);

        form.component.when(u"GetFieldVersionLevel"_s, u"Name"_s).answers(1);
        form.enabler->Ienabler_InitialiseFields(-1);
        QVERIFY(!outer.hostVisible && !plain.hostVisible);
    }

    void fieldsInFrameAreThePayloads() {
        BoundForm form;
        auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
        auto &inner = form.add<FakeField>(u"fraInner"_s, u"fldFrame"_s);
        inner.container = &frame;
        const auto addInside = [&form](FakeField &container, const QString &name,
                                       const QString &typeName) -> FakeField & {
            auto &field = form.add<FakeField>(name, typeName);
            field.container = &container;
            return field;
        };
        addInside(frame, u"txtName"_s, u"fldTextField"_s).value = u"Base"_s;
        addInside(inner, u"sldVolume"_s, u"fldSliderField"_s).value = 2.5;
        addInside(frame, u"txtUnknown"_s, u"fldTextField"_s).notFound = true;
        addInside(frame, u"txtGrey"_s, u"fldTextField"_s).fieldEnabled = false;
        addInside(frame, u"txtHidden"_s, u"fldTextField"_s).fieldVisible = false;
        addInside(frame, u"navGuide"_s, u"fldPageNavigator"_s);
        form.addText(u"txtOutside"_s);
        form.bind();
        QStringList payloads;
        frame.raise(FieldEvent(u"GetFieldsInFrame"_s, in(u"fraBox"_s), out(payloads)));
        QCOMPARE(payloads, QStringList({u"Volume|fldSliderField|2.5"_s, u"Name|fldTextField|Base"_s}));
    }

    void firstFocusIsTheLowestEnabledTabIndex() {
        BoundForm form;
        form.add<FakeNavigator>(u"navGuide"_s).tabIndex = 0;
        auto &grey = form.addText(u"txtGrey"_s);
        grey.tabIndex = 1;
        grey.fieldEnabled = false;
        form.addText(u"txtLate"_s).tabIndex = 9;
        form.addText(u"txtFirst"_s).tabIndex = 3;
        form.addText(u"txtEqual"_s).tabIndex = 3;
        form.bind();
        form.enabler->UserControl_Show();
        QCOMPARE(form.log.take(), QStringList(u"txtFirst.SetFocus()"_s));
    }

    void whatsThisNumbersFollowVisibility() {
        BoundForm form;
        auto &shown = form.addText(u"txtShown"_s);
        auto &hidden = form.addText(u"txtHidden"_s);
        shown.helpId = 12;
        hidden.fieldVisible = false;
        form.bind();
        form.enabler->Ienabler_SetWhatsThisHelpIDs();
        QCOMPARE(form.log.take(), QStringList(u"txtShown.SetWhatsThisHelpID(12)"_s));
        form.enabler->Ienabler_ClearWhatsThisHelpIDs();
        QCOMPARE(form.log.take(),
                 QStringList({u"txtShown.SetWhatsThisHelpID(0)"_s, u"txtHidden.SetWhatsThisHelpID(0)"_s}));
    }

    void activeControlIsAField() {
        BoundForm form;
        auto &tab = form.add<FakeTab>(u"SSTab1"_s, QStringList(u"Page"_s));
        auto &text = form.addText(u"txtName"_s);
        form.bind();
        QVERIFY(form.enabler->Ienabler_GetActiveControl() == nullptr);
        QCOMPARE(form.enabler->Ienabler_GetUIIDOfFieldWithFocus(), QString());
        form.active = &tab;
        QVERIFY(form.enabler->Ienabler_GetActiveControl() == nullptr);
        form.active = &text;
        QCOMPARE(form.enabler->Ienabler_GetActiveControl(), form.itemOf(text));
        QCOMPARE(form.enabler->Ienabler_GetUIIDOfFieldWithFocus(), u"Name"_s);
    }

    void validateFormNamesTheOpenForm() {
        BoundForm form;
        form.services.shell.formTypeName = u"usrctlChannels"_s;
        form.services.shell.formTitle = u"Channels"_s;
        form.component.when(u"ValidateForm"_s).refuses();
        QVERIFY(!form.enabler->Ienabler_ValidateForm(true));
        QCOMPARE(form.log.take(), QStringList(u"ValidateForm(usrctlChannels, Channels, true)"_s));
    }
};

QTEST_GUILESS_MAIN(tst_FormInitialisation)
#include "tst_form_initialisation.moc"
