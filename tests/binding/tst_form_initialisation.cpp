#include "bound_form.h"

#include "message_style.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_FormInitialisation : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void navigatorGoesToItsRecord_data();
    void navigatorGoesToItsRecord();
    void undefinedStoredPositionIsToldAndPassedOver();
    void noFillingCountsAsAnEdit();
    void theFlagIsGivenBackAfterAnError();
    void captionsAreTranslatedFromTheSourceEachTime();
    void frameIsShownByItsFields_data();
    void frameIsShownByItsFields();
    void nestedFramesCount();
    void fieldsInFrameAreThePayloads();
    void firstFocusIsTheLowestEnabledTabIndex();
    void whatsThisNumbersFollowVisibility();
    void activeControlIsAField();
    void validateFormNamesTheOpenForm();
};

void tst_FormInitialisation::navigatorGoesToItsRecord_data() {
    QTest::addColumn<qint32>("recordNr");
    QTest::addColumn<QString>("storage");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qint32>("position");
    QTest::newRow("asked for") << 4 << u"Pos"_s << QVariant(2) << 4;
    QTest::newRow("stored") << -1 << u"Pos"_s << QVariant(2) << 2;
    QTest::newRow("stored as text") << -1 << u"Pos"_s << QVariant(u" 3"_s) << 3;
    QTest::newRow("without storage") << -1 << QString() << QVariant(2) << 1;
}

void tst_FormInitialisation::navigatorGoesToItsRecord() {
    QFETCH(qint32, recordNr);
    QFETCH(QString, storage);
    QFETCH(QVariant, stored);
    BoundForm form;
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    navigator.storageUIID = storage;
    form.component.when(u"GetNumberOfRecords"_s).answers(9);
    form.component.when(u"GetValue"_s, u"Pos"_s, 1).answers(stored);
    form.bind();
    form.enabler->Ienabler_InitialiseFields(recordNr);
    QTEST(navigator.position, "position");
}

void tst_FormInitialisation::undefinedStoredPositionIsToldAndPassedOver() {
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

void tst_FormInitialisation::noFillingCountsAsAnEdit() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.bind();
    form.component.when(u"GetUIWidth"_s).runs([&text] { text.raise(FieldEvent(u"Change"_s)); });
    form.enabler->Ienabler_InitialiseFields(-1);
    QVERIFY(form.log.linesOf(u"SetDataChanged"_s).isEmpty());
    QVERIFY(!form.services.process.gblnInitialisingFields);
}

void tst_FormInitialisation::theFlagIsGivenBackAfterAnError() {
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

void tst_FormInitialisation::captionsAreTranslatedFromTheSourceEachTime() {
    BoundForm form;
    auto &tab = form.add<FakeTab>(u"SSTab1"_s, QStringList({u"General"_s, u"Tones"_s}));
    form.services.translate({u"General|Tones"_s, u"Tones|Sons"_s});
    form.bind();
    form.enabler->Ienabler_InitialiseFields(-1);
    form.enabler->Ienabler_InitialiseFields(-1);
    QCOMPARE(tab.captions, QStringList({u"Tones"_s, u"Sons"_s}));
}

void tst_FormInitialisation::frameIsShownByItsFields_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("shown");
    for (const char *type : {"fldTextField", "fldIdTrackerField", "fldComboField", "fldGridField", "fldCheckboxField",
                             "fldPageNavigator", "fldOptionButtonField"}) {
        QTest::addRow("visible %s", type) << QString::fromLatin1(type) << true << true;
        QTest::addRow("invisible %s", type) << QString::fromLatin1(type) << false << false;
    }
    QTest::newRow("only a slider") << u"fldSliderField"_s << true << false;
    QTest::newRow("only a call-up") << u"fldSubFormCallUp"_s << true << false;
    QTest::newRow("only an empty frame") << u"fldFrame"_s << true << false;
}

void tst_FormInitialisation::frameIsShownByItsFields() {
    QFETCH(QString, typeName);
    QFETCH(bool, visible);
    BoundForm form;
    auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
    auto &inner = form.add<FakeField>(u"fldThing"_s, typeName);
    inner.container = &frame;
    inner.fieldVisible = visible;
    form.bind();
    QTEST(form.enabler->FrameHasVisibleFields(frame), "shown");
}

void tst_FormInitialisation::nestedFramesCount() {
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

void tst_FormInitialisation::fieldsInFrameAreThePayloads() {
    BoundForm form;
    auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
    auto &inner = form.add<FakeField>(u"fraInner"_s, u"fldFrame"_s);
    inner.container = &frame;
    const auto addInside = [&form](FakeField &container, const QString &name, const QString &typeName) -> FakeField & {
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

void tst_FormInitialisation::firstFocusIsTheLowestEnabledTabIndex() {
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

void tst_FormInitialisation::whatsThisNumbersFollowVisibility() {
    BoundForm form;
    auto &shown = form.addText(u"txtShown"_s);
    auto &hidden = form.addText(u"txtHidden"_s);
    shown.helpId = 12;
    hidden.fieldVisible = false;
    form.bind();
    form.enabler->Ienabler_SetWhatsThisHelpIDs();
    QCOMPARE(form.log.take(), QStringList(u"txtShown.SetWhatsThisHelpID(12)"_s));
    form.enabler->Ienabler_ClearWhatsThisHelpIDs();
    QCOMPARE(form.log.take(), QStringList({u"txtShown.SetWhatsThisHelpID(0)"_s, u"txtHidden.SetWhatsThisHelpID(0)"_s}));
}

void tst_FormInitialisation::activeControlIsAField() {
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

void tst_FormInitialisation::validateFormNamesTheOpenForm() {
    BoundForm form;
    form.services.shell.formTypeName = u"usrctlChannels"_s;
    form.services.shell.formTitle = u"Channels"_s;
    form.component.when(u"ValidateForm"_s).refuses();
    QVERIFY(!form.enabler->Ienabler_ValidateForm(true));
    QCOMPARE(form.log.take(), QStringList(u"ValidateForm(usrctlChannels, Channels, true)"_s));
}

QTEST_GUILESS_MAIN(tst_FormInitialisation)
#include "tst_form_initialisation.moc"
