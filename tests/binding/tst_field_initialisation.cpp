#include "bound_form.h"

#include "value_text.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
struct VersionAnswers {
    bool versioning;
    qint32 current;
    qint32 level;
    bool disableOnly;
    bool enabled;
};
} // namespace
Q_DECLARE_METATYPE(VersionAnswers)

class tst_FieldInitialisation : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textIsFilledInOrder();
    void undefinedTextIsNeverWritten();
    void checkboxIsFilledInOrder_data();
    void checkboxIsFilledInOrder();
    void comboSettlesEnabledBeforeItsValue();
    void comboWithoutAUsableListIsDisabled_data();
    void comboWithoutAUsableListIsDisabled();
    void idTrackerIsFilledInOrder();
    void idTrackerList_data();
    void idTrackerList();
    void sliderIsNeverDisabledByUndefined();
    void sliderStepRoundsHalvesToEven_data();
    void sliderStepRoundsHalvesToEven();
    void frameGetsLabelAndHelpOnly();
    void gridIsFilledOnlyWhileEnabled_data();
    void gridIsFilledOnlyWhileEnabled();
    void navigatorNeedsAGuide_data();
    void navigatorNeedsAGuide();
    void labelFallsBackToTheDesign();
    void labelAndItemsAreTranslatedValuesAreNot();
    void versionDecidesVisibility_data();
    void versionDecidesVisibility();
    void hiddenFieldGetsNoHelp();
    void closingInsideAReadStopsTheFilling_data();
    void closingInsideAReadStopsTheFilling();

  private:
    static QStringList initialise(BoundForm &form, const FakeField &field);
};

QStringList tst_FieldInitialisation::initialise(BoundForm &form, const FakeField &field) {
    form.bind();
    form.enabler->InitialiseField(form.itemOf(field));
    return form.log.take();
}

void tst_FieldInitialisation::textIsFilledInOrder() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    text.recordNr = 3;
    form.component.when(u"GetLabel"_s).answers(u"Channel name"_s);
    form.component.when(u"GetValue"_s, u"Name"_s, 3).answers(u"Base"_s);
    form.component.when(u"GetUIWidth"_s).answers(16);
    form.component.when(u"GetHelpID"_s).answers(77);
    QCOMPARE(initialise(form, text),
             QStringList({u"GetLabel(Name)"_s, u"txtName.SetName(Channel name)"_s, u"GetValue(Name, 3)"_s,
                          u"txtName.SetValue(Base, false)"_s, u"GetFieldVersionLevel(Name)"_s,
                          u"GetFieldDisableWhenAbsent(Name)"_s, u"GetProgramAsAvailable()"_s,
                          u"GetFieldEnabled(Name, 3)"_s, u"txtName.SetEnabled()"_s, u"GetUIWidth(Name)"_s,
                          u"txtName.SetUIWidth(16)"_s, u"GetHelpID(Name)"_s, u"txtName.SetHelpID(77)"_s,
                          u"GetHelpID(Name)"_s, u"txtName.SetWhatsThisHelpID(77)"_s}));
}

void tst_FieldInitialisation::undefinedTextIsNeverWritten() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.component.when(u"GetValue"_s).answersUndefined();
    const QStringList lines = initialise(form, text);
    QVERIFY(form.log.linesOf(u"txtName.SetValue"_s).isEmpty());
    QVERIFY(!lines.contains(u"GetFieldEnabled(Name, 0)"_s));
    QVERIFY(!text.fieldEnabled);
    QVERIFY(lines.contains(u"txtName.SetUIWidth(0)"_s));
}

void tst_FieldInitialisation::checkboxIsFilledInOrder_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("ticked") << u"fldCheckboxField"_s << QVariant(1) << u"1"_s << true;
    QTest::newRow("numeric text") << u"fldCheckboxField"_s << QVariant(u" 1 "_s) << u" 1 "_s << true;
    QTest::newRow("text") << u"fldCheckboxField"_s << QVariant(u"yes"_s) << u"0"_s << true;
    QTest::newRow("empty text") << u"fldCheckboxField"_s << QVariant(QString()) << u"0"_s << true;
    QTest::newRow("undefined") << u"fldCheckboxField"_s << QVariant(ValueText::undefined()) << u"0"_s << false;
    QTest::newRow("other case is no undefined") << u"fldCheckboxField"_s << QVariant(u"undefined"_s) << u"0"_s << true;
    QTest::newRow("option button") << u"fldOptionButtonField"_s << QVariant(2) << u"2"_s << true;
}

void tst_FieldInitialisation::checkboxIsFilledInOrder() {
    QFETCH(QString, typeName);
    QFETCH(QVariant, answer);
    QFETCH(QString, shown);
    BoundForm form;
    auto &check = form.add<FakeField>(u"chkBeep"_s, typeName);
    form.component.when(u"GetValue"_s).answers(answer);
    const QStringList lines = initialise(form, check);
    QCOMPARE(lines.mid(2, 2), QStringList({u"GetValue(Beep, 0)"_s, u"chkBeep.SetValue("_s + shown + u", false)"_s}));
    QTEST(check.fieldEnabled, "enabled");
}

void tst_FieldInitialisation::comboSettlesEnabledBeforeItsValue() {
    BoundForm form;
    auto &combo = form.add<FakeCombo>(u"cboTone"_s);
    combo.items = {u"old"_s};
    form.component.when(u"GetComboItems"_s).answers(QStringList({u"Low"_s, u"High"_s}));
    form.component.when(u"GetIsComboIndex"_s).answers(u"3|7"_s);
    form.component.when(u"GetValue"_s).answers(7);
    const QStringList lines = initialise(form, combo);
    QCOMPARE(lines.mid(2, 9),
             QStringList({u"GetComboItems(Tone, 0, 0)"_s, u"GetFieldVersionLevel(Tone)"_s,
                          u"GetFieldDisableWhenAbsent(Tone)"_s, u"GetProgramAsAvailable()"_s,
                          u"GetFieldEnabled(Tone, 0)"_s, u"cboTone.SetEnabled()"_s, u"GetIsComboIndex(Tone)"_s,
                          u"GetValue(Tone, 0)"_s, u"cboTone.SetValue(7, false)"_s}));
    QCOMPARE(combo.items, QStringList({u"Low"_s, u"High"_s}));
    QCOMPARE(combo.comboIndex, u"3|7"_s);
}

void tst_FieldInitialisation::comboWithoutAUsableListIsDisabled_data() {
    QTest::addColumn<bool>("got");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("empty list clears the old items") << true << QStringList();
    QTest::newRow("no list keeps the old items") << false << QStringList(u"old"_s);
}

void tst_FieldInitialisation::comboWithoutAUsableListIsDisabled() {
    QFETCH(bool, got);
    BoundForm form;
    auto &combo = form.add<FakeCombo>(u"cboTone"_s);
    combo.items = {u"old"_s};
    if (got)
        form.component.when(u"GetComboItems"_s).answers(QStringList());
    form.component.when(u"GetFieldEnabled"_s).answers(true);
    (void)initialise(form, combo);
    QVERIFY(!combo.fieldEnabled);
    QTEST(combo.items, "items");
}

void tst_FieldInitialisation::idTrackerIsFilledInOrder() {
    BoundForm form;
    auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
    form.component.when(u"GetComboItems"_s).answers(QStringList(u"Group A|12"_s));
    form.component.when(u"GetValue"_s).answers(u"12"_s);
    const QStringList lines = initialise(form, tracker);
    QCOMPARE(lines.mid(2, 8),
             QStringList({u"GetValue(Scan, 0)"_s, u"GetComboItems(Scan, 0, 0)"_s, u"GetFieldVersionLevel(Scan)"_s,
                          u"GetFieldDisableWhenAbsent(Scan)"_s, u"GetProgramAsAvailable()"_s,
                          u"GetFieldEnabled(Scan, 0)"_s, u"idtScan.SetEnabled()"_s, u"idtScan.SetValue(12, false)"_s}));
}

void tst_FieldInitialisation::idTrackerList_data() {
    QTest::addColumn<QVariant>("answer"); // of GetComboItems; invalid: no list
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QVariant>("shown");
    QTest::addColumn<bool>("enabled");
    const auto list = [](const QStringList &rows) { return QVariant(rows); };
    QTest::newRow("listed by text") << list({u"A|1"_s, u"B|2"_s}) << u"B"_s << QStringList({u"A=1"_s, u"B=2"_s})
                                    << QVariant(u"B"_s) << true;
    QTest::newRow("not listed: added") << list({u"A|1"_s}) << u"9"_s << QStringList({u"A=1"_s, u"9=9"_s})
                                       << QVariant(u"9"_s) << true;
    QTest::newRow("other case is not listed")
        << list({u"A|1"_s}) << u"a"_s << QStringList({u"A=1"_s, u"a=a"_s}) << QVariant(u"a"_s) << true;
    QTest::newRow("empty value adds nothing")
        << list({u"A|1"_s}) << u""_s << QStringList({u"A=1"_s}) << QVariant(u""_s) << true;
    QTest::newRow("texts are the values of one column")
        << list({u"A"_s, u"B"_s}) << u"A"_s << QStringList({u"A=A"_s, u"B=B"_s}) << QVariant(u"A"_s) << true;
    QTest::newRow("unusable list") << list({u"Undefined|0"_s}) << u"5"_s << QStringList({u"5=5"_s}) << QVariant(u"5"_s)
                                   << true;
    QTest::newRow("empty list") << list({}) << u"5"_s << QStringList({u"5=5"_s}) << QVariant(u"5"_s) << true;
    QTest::newRow("no list keeps the old items")
        << QVariant() << u"5"_s << QStringList({u"old=0"_s, u"5=5"_s}) << QVariant(u"5"_s) << true;
    QTest::newRow("undefined shows None")
        << list({u"A|1"_s}) << u"Undefined"_s << QStringList({u"A=1"_s, u"Undefined=Undefined"_s})
        << QVariant(u"None"_s) << false;
}

void tst_FieldInitialisation::idTrackerList() {
    QFETCH(QVariant, answer);
    QFETCH(QString, value);
    BoundForm form;
    auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
    tracker.items = {u"old=0"_s};
    if (answer.isValid())
        form.component.when(u"GetComboItems"_s).answers(answer);
    form.component.when(u"GetValue"_s).answers(value);
    (void)initialise(form, tracker);
    QTEST(tracker.items, "items");
    QTEST(tracker.value, "shown");
    QTEST(tracker.fieldEnabled, "enabled");
}

void tst_FieldInitialisation::sliderIsNeverDisabledByUndefined() {
    BoundForm form;
    auto &slider = form.add<FakeSlider>(u"sldVolume"_s);
    form.component.when(u"GetMinValue"_s).answers(2);
    form.component.when(u"GetMaxValue"_s).answers(9);
    form.component.when(u"GetStepValue"_s).answers(1);
    form.component.when(u"GetValue"_s).answersUndefined();
    QCOMPARE(initialise(form, slider).first(10),
             QStringList({u"GetMinValue(Volume)"_s, u"sldVolume.SetMin(2)"_s, u"GetMaxValue(Volume)"_s,
                          u"sldVolume.SetMax(9)"_s, u"GetStepValue(Volume)"_s, u"sldVolume.SetStep(1)"_s,
                          u"GetLabel(Volume)"_s, u"sldVolume.SetName(design of sldVolume)"_s, u"GetValue(Volume, 0)"_s,
                          u"sldVolume.SetValue(0, false)"_s}));
    QVERIFY(slider.fieldEnabled);
}

void tst_FieldInitialisation::sliderStepRoundsHalvesToEven_data() {
    QTest::addColumn<qint64>("tenThousandths");
    QTest::addColumn<int>("step");
    QTest::newRow("below a half") << qint64(4999) << 0;
    QTest::newRow("half to even, down") << qint64(5000) << 0;
    QTest::newRow("half to even, up") << qint64(15000) << 2;
    QTest::newRow("half to even, down again") << qint64(25000) << 2;
    QTest::newRow("whole") << qint64(50000) << 5;
}

void tst_FieldInitialisation::sliderStepRoundsHalvesToEven() {
    QFETCH(qint64, tenThousandths);
    QFETCH(int, step);
    BoundForm form;
    auto &slider = form.add<FakeSlider>(u"sldVolume"_s);
    form.component.when(u"GetStepValue"_s).answers(QVariant::fromValue(Currency::fromTenThousandths(tenThousandths)));
    QVERIFY(initialise(form, slider).contains(u"sldVolume.SetStep(%1)"_s.arg(step)));
}

void tst_FieldInitialisation::frameGetsLabelAndHelpOnly() {
    BoundForm form;
    auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
    QCOMPARE(initialise(form, frame),
             QStringList({u"GetLabel(Box)"_s, u"fraBox.SetName(design of fraBox)"_s, u"GetHelpID(Box)"_s,
                          u"fraBox.SetHelpID(0)"_s, u"GetHelpID(Box)"_s, u"fraBox.SetWhatsThisHelpID(0)"_s}));
}

void tst_FieldInitialisation::gridIsFilledOnlyWhileEnabled_data() {
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("enabled") << true << true
                             << QStringList({u"grdList.SetColumns()"_s, u"GetGridData(A|B, true, 0)"_s,
                                             u"grdList.Rebind(true)"_s});
    QTest::newRow("no data, no rebind") << true << false
                                        << QStringList({u"grdList.SetColumns()"_s, u"GetGridData(A|B, true, 0)"_s});
    QTest::newRow("disabled") << false << true << QStringList({u"grdList.SetColumns()"_s});
}

void tst_FieldInitialisation::gridIsFilledOnlyWhileEnabled() {
    QFETCH(bool, enabled);
    QFETCH(bool, hasData);
    BoundForm form;
    auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A|B"_s);
    grid.fieldEnabled = enabled;
    if (hasData)
        form.component.when(u"GetGridData"_s).answers(QStringList(u"1|2"_s));
    QTEST(initialise(form, grid), "lines");
    QCOMPARE(grid.array.UpperBound(1), enabled && hasData ? 0 : -1);
}

void tst_FieldInitialisation::navigatorNeedsAGuide_data() {
    QTest::addColumn<QString>("guide");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("guided") << u"Guide"_s
                            << QStringList({u"GetNavigatorLabel(Guide)"_s, u"GetNavigatorRecordName(Guide)"_s,
                                            u"navGuide.SetName(Channel|Channels)"_s, u"GetNumberOfRecords(Guide)"_s,
                                            u"navGuide.NumberRecords(12)"_s});
    QTest::newRow("without a guide") << QString() << QStringList();
}

void tst_FieldInitialisation::navigatorNeedsAGuide() {
    QFETCH(QString, guide);
    BoundForm form;
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    navigator.uiid = guide;
    form.component.when(u"GetNavigatorLabel"_s).answers(u"Channel"_s);
    form.component.when(u"GetNavigatorRecordName"_s).answers(u"Channels"_s);
    form.component.when(u"GetNumberOfRecords"_s).answers(12);
    QTEST(initialise(form, navigator), "lines");
}

void tst_FieldInitialisation::labelFallsBackToTheDesign() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    form.services.translate({u"design of txtName|Entwurf"_s, u"design of navGuide|Kanal"_s});
    form.bind();
    QCOMPARE(form.enabler->SetFieldLabel(form.itemOf(text)), QVariant(u"Entwurf"_s));
    QCOMPARE(form.enabler->SetNavFieldLabel(form.itemOf(navigator)), QVariant(u"Kanal|"_s));
}

void tst_FieldInitialisation::labelAndItemsAreTranslatedValuesAreNot() {
    BoundForm form;
    auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
    form.services.translate({u"Scan group|Gruppe"_s, u"Off|Aus"_s, u"9|neun"_s});
    form.component.when(u"GetLabel"_s).answers(u"Scan group"_s);
    form.component.when(u"GetComboItems"_s).answers(QStringList(u"Off|Off"_s));
    form.component.when(u"GetValue"_s).answers(u"9"_s);
    (void)initialise(form, tracker);
    QCOMPARE(tracker.caption, u"Gruppe"_s);
    QCOMPARE(tracker.items, QStringList({u"Aus=Off"_s, u"neun=9"_s}));
    QCOMPARE(tracker.value, QVariant(u"9"_s));
}

void tst_FieldInitialisation::versionDecidesVisibility_data() {
    QTest::addColumn<VersionAnswers>("answers");
    QTest::addColumn<QString>("lastLine");
    const auto row = [](const char *name, VersionAnswers answers, const QString &line) {
        QTest::newRow(name) << answers << u"txtName."_s + line;
    };
    row("on, level reached", {true, 2, 2, false, true}, u"SetEnabled()"_s);
    row("on, level passed, refused", {true, 3, 2, false, false}, u"SetDisabled()"_s);
    row("on, below the level", {true, 1, 2, false, true}, u"SetInvisible()"_s);
    row("on, below the level: never greyed", {true, 1, 2, true, true}, u"SetInvisible()"_s);
    row("on, level 0", {true, 0, 0, false, true}, u"SetEnabled()"_s);
    row("off, level 0", {false, 2, 0, false, true}, u"SetEnabled()"_s);
    row("off, level 0, refused", {false, 2, 0, true, false}, u"SetDisabled()"_s);
    row("off, level 1", {false, 2, 1, false, true}, u"SetInvisible()"_s);
    row("off, level 1, greyed", {false, 2, 1, true, true}, u"SetDisabled()"_s);
}

void tst_FieldInitialisation::versionDecidesVisibility() {
    QFETCH(VersionAnswers, answers);
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.component.when(u"GetProgramAsAvailable"_s).answers(answers.versioning);
    form.component.when(u"GetVersionLevel"_s).answers(answers.current);
    form.component.when(u"GetFieldVersionLevel"_s).answers(answers.level);
    form.component.when(u"GetFieldDisableWhenAbsent"_s).answers(answers.disableOnly);
    form.component.when(u"GetFieldEnabled"_s).answers(answers.enabled);
    form.bind();
    form.enabler->SetEnabledProperty(form.itemOf(text));
    QTEST(form.log.lines().constLast(), "lastLine");
}

void tst_FieldInitialisation::hiddenFieldGetsNoHelp() {
    BoundForm form;
    auto &text = form.addText(u"txtName"_s);
    form.component.when(u"GetFieldVersionLevel"_s).answers(1);
    QCOMPARE(initialise(form, text).constLast(), u"txtName.SetUIWidth(0)"_s);
}

void tst_FieldInitialisation::closingInsideAReadStopsTheFilling_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("operation");
    const auto rows = [](const char *control, const QStringList &operations) {
        for (const QString &operation : operations)
            QTest::addRow("%s in %s", control, qPrintable(operation)) << QString::fromLatin1(control) << operation;
    };
    rows("txtName", {u"GetLabel"_s, u"GetValue"_s, u"GetFieldEnabled"_s, u"GetUIWidth"_s, u"GetHelpID"_s});
    rows("cboTone", {u"GetLabel"_s, u"GetComboItems"_s, u"GetIsComboIndex"_s, u"GetValue"_s});
    rows("idtScan", {u"GetValue"_s, u"GetComboItems"_s, u"GetVersionLevel"_s});
    rows("sldVolume", {u"GetMinValue"_s, u"GetMaxValue"_s, u"GetStepValue"_s, u"GetValue"_s});
    rows("chkBeep", {u"GetValue"_s, u"GetFieldVersionLevel"_s});
    rows("grdList", {u"GetGridData"_s});
    rows("navGuide", {u"GetNavigatorLabel"_s, u"GetNavigatorRecordName"_s, u"GetNumberOfRecords"_s});
}

// Nothing of the closed form is touched, and no error arises.
void tst_FieldInitialisation::closingInsideAReadStopsTheFilling() {
    QFETCH(QString, control);
    QFETCH(QString, operation);
    BoundForm form;
    form.addText(u"txtName"_s);
    form.add<FakeCombo>(u"cboTone"_s);
    form.add<FakeIdTracker>(u"idtScan"_s);
    form.add<FakeSlider>(u"sldVolume"_s);
    form.addCheckbox(u"chkBeep"_s);
    form.add<FakeGrid>(u"grdList"_s, u"A"_s);
    form.add<FakeNavigator>(u"navGuide"_s);
    form.component.when(u"GetComboItems"_s).answers(QStringList(u"A|1"_s));
    form.component.when(u"GetGridData"_s).answers(QStringList(u"1"_s));
    form.component.when(u"GetProgramAsAvailable"_s).answers(true);
    form.bind();
    for (HostControl *candidate : form.controls) {
        if (candidate->Name() != control)
            continue;
        const ControlItemPtr item = candidate->object()->Ifield_WrapperCtrlItem();
        const std::shared_ptr<ctlFormEnabler> enabler = form.enabler;
        form.component.when(operation).runs([&form] {
            form.close();
            (void)form.log.take();
        });
        enabler->InitialiseField(item);
        QVERIFY(item->Terminated());
    }
    for (const QString &line : form.log.take())
        QVERIFY2(!line.contains(control + u'.'), qPrintable(line));
}

QTEST_GUILESS_MAIN(tst_FieldInitialisation)
#include "tst_field_initialisation.moc"
