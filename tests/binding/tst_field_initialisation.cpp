#include "bound_form.h"

#include "rows.h"
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
    void textIsFilledInOrder() {
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

    void undefinedTextIsNeverWritten() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        form.component.when(u"GetValue"_s).answersUndefined();
        const QStringList lines = initialise(form, text);
        QVERIFY(form.log.linesOf(u"txtName.SetValue"_s).isEmpty());
        QVERIFY(!lines.contains(u"GetFieldEnabled(Name, 0)"_s));
        QVERIFY(!text.fieldEnabled);
        QVERIFY(lines.contains(u"txtName.SetUIWidth(0)"_s));
    }

    void checkboxIsFilledInOrder() {
        for (const auto &[typeName, answer, shown, enabled] : Rows<QString, QVariant, QString, bool>{
                 {"ticked", u"fldCheckboxField"_s, 1, u"1"_s, true},
                 {"numeric text", u"fldCheckboxField"_s, u" 1 "_s, u" 1 "_s, true},
                 {"text", u"fldCheckboxField"_s, u"yes"_s, u"0"_s, true},
                 {"empty text", u"fldCheckboxField"_s, QString(), u"0"_s, true},
                 {"undefined", u"fldCheckboxField"_s, ValueText::undefined(), u"0"_s, false},
                 {"other case is no undefined", u"fldCheckboxField"_s, u"undefined"_s, u"0"_s, true},
                 {"option button", u"fldOptionButtonField"_s, 2, u"2"_s, true},
             }) {
            BoundForm form;
            auto &check = form.add<FakeField>(u"chkBeep"_s, typeName);
            form.component.when(u"GetValue"_s).answers(answer);
            const QStringList lines = initialise(form, check);
            QCOMPARE(lines.mid(2, 2),
                     QStringList({u"GetValue(Beep, 0)"_s, u"chkBeep.SetValue("_s + shown + u", false)"_s}));
            QCOMPARE(check.fieldEnabled, enabled);
        }
    }

    void comboSettlesEnabledBeforeItsValue() {
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

    void comboWithoutAUsableListIsDisabled() {
        for (const auto &[got, items] : Rows<bool, QStringList>{
                 {"empty list clears the old items", true, {}},
                 {"no list keeps the old items", false, QStringList(u"old"_s)},
             }) {
            BoundForm form;
            auto &combo = form.add<FakeCombo>(u"cboTone"_s);
            combo.items = {u"old"_s};
            if (got)
                form.component.when(u"GetComboItems"_s).answers(QStringList());
            form.component.when(u"GetFieldEnabled"_s).answers(true);
            (void)initialise(form, combo);
            QVERIFY(!combo.fieldEnabled);
            QCOMPARE(combo.items, items);
        }
    }

    void idTrackerIsFilledInOrder() {
        BoundForm form;
        auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
        form.component.when(u"GetComboItems"_s).answers(QStringList(u"Group A|12"_s));
        form.component.when(u"GetValue"_s).answers(u"12"_s);
        const QStringList lines = initialise(form, tracker);
        QCOMPARE(lines.mid(2, 8), QStringList({u"GetValue(Scan, 0)"_s, u"GetComboItems(Scan, 0, 0)"_s,
                                               u"GetFieldVersionLevel(Scan)"_s, u"GetFieldDisableWhenAbsent(Scan)"_s,
                                               u"GetProgramAsAvailable()"_s, u"GetFieldEnabled(Scan, 0)"_s,
                                               u"idtScan.SetEnabled()"_s, u"idtScan.SetValue(12, false)"_s}));
    }

    void idTrackerList() {
        const auto list = [](const QStringList &rows) { return QVariant(rows); };
        // answer: of GetComboItems; invalid: no list
        for (const auto &[answer, value, items, shown, enabled] : Rows<QVariant, QString, QStringList, QVariant, bool>{
                 {"listed by text", list({u"A|1"_s, u"B|2"_s}), u"B"_s, QStringList({u"A=1"_s, u"B=2"_s}), u"B"_s,
                  true},
                 {"not listed: added", list({u"A|1"_s}), u"9"_s, QStringList({u"A=1"_s, u"9=9"_s}), u"9"_s, true},
                 {"other case is not listed", list({u"A|1"_s}), u"a"_s, QStringList({u"A=1"_s, u"a=a"_s}), u"a"_s,
                  true},
                 {"empty value adds nothing", list({u"A|1"_s}), u""_s, QStringList({u"A=1"_s}), u""_s, true},
                 {"texts are the values of one column", list({u"A"_s, u"B"_s}), u"A"_s,
                  QStringList({u"A=A"_s, u"B=B"_s}), u"A"_s, true},
                 {"unusable list", list({u"Undefined|0"_s}), u"5"_s, QStringList({u"5=5"_s}), u"5"_s, true},
                 {"empty list", list({}), u"5"_s, QStringList({u"5=5"_s}), u"5"_s, true},
                 {"no list keeps the old items", {}, u"5"_s, QStringList({u"old=0"_s, u"5=5"_s}), u"5"_s, true},
                 {"undefined shows None", list({u"A|1"_s}), u"Undefined"_s,
                  QStringList({u"A=1"_s, u"Undefined=Undefined"_s}), u"None"_s, false},
             }) {
            BoundForm form;
            auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
            tracker.items = {u"old=0"_s};
            if (answer.isValid())
                form.component.when(u"GetComboItems"_s).answers(answer);
            form.component.when(u"GetValue"_s).answers(value);
            (void)initialise(form, tracker);
            QCOMPARE(tracker.items, items);
            QCOMPARE(tracker.value, shown);
            QCOMPARE(tracker.fieldEnabled, enabled);
        }
    }

    void sliderIsNeverDisabledByUndefined() {
        BoundForm form;
        auto &slider = form.add<FakeSlider>(u"sldVolume"_s);
        form.component.when(u"GetMinValue"_s).answers(2);
        form.component.when(u"GetMaxValue"_s).answers(9);
        form.component.when(u"GetStepValue"_s).answers(1);
        form.component.when(u"GetValue"_s).answersUndefined();
        QCOMPARE(initialise(form, slider).first(10),
                 QStringList({u"GetMinValue(Volume)"_s, u"sldVolume.SetMin(2)"_s, u"GetMaxValue(Volume)"_s,
                              u"sldVolume.SetMax(9)"_s, u"GetStepValue(Volume)"_s, u"sldVolume.SetStep(1)"_s,
                              u"GetLabel(Volume)"_s, u"sldVolume.SetName(design of sldVolume)"_s,
                              u"GetValue(Volume, 0)"_s, u"sldVolume.SetValue(0, false)"_s}));
        QVERIFY(slider.fieldEnabled);
    }

    void sliderStepRoundsHalvesToEven() {
        for (const auto &[tenThousandths, step] : Rows<qint64, int>{
                 {"below a half", qint64(4999), 0},
                 {"half to even, down", qint64(5000), 0},
                 {"half to even, up", qint64(15000), 2},
                 {"half to even, down again", qint64(25000), 2},
                 {"whole", qint64(50000), 5},
             }) {
            BoundForm form;
            auto &slider = form.add<FakeSlider>(u"sldVolume"_s);
            form.component.when(u"GetStepValue"_s)
                .answers(QVariant::fromValue(Currency::fromTenThousandths(tenThousandths)));
            QVERIFY(initialise(form, slider).contains(u"sldVolume.SetStep(%1)"_s.arg(step)));
        }
    }

    void frameGetsLabelAndHelpOnly() {
        BoundForm form;
        auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
        QCOMPARE(initialise(form, frame),
                 QStringList({u"GetLabel(Box)"_s, u"fraBox.SetName(design of fraBox)"_s, u"GetHelpID(Box)"_s,
                              u"fraBox.SetHelpID(0)"_s, u"GetHelpID(Box)"_s, u"fraBox.SetWhatsThisHelpID(0)"_s}));
    }

    void gridIsFilledOnlyWhileEnabled() {
        for (const auto &[enabled, hasData, lines] : Rows<bool, bool, QStringList>{
                 {"enabled", true, true,
                  QStringList({u"grdList.SetColumns()"_s, u"GetGridData(A|B, true, 0)"_s, u"grdList.Rebind(true)"_s})},
                 {"no data, no rebind", true, false,
                  QStringList({u"grdList.SetColumns()"_s, u"GetGridData(A|B, true, 0)"_s})},
                 {"disabled", false, true, QStringList({u"grdList.SetColumns()"_s})},
             }) {
            BoundForm form;
            auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A|B"_s);
            grid.fieldEnabled = enabled;
            if (hasData)
                form.component.when(u"GetGridData"_s).answers(QStringList(u"1|2"_s));
            QCOMPARE(initialise(form, grid), lines);
            QCOMPARE(grid.array.UpperBound(1), enabled && hasData ? 0 : -1);
        }
    }

    void navigatorNeedsAGuide() {
        for (const auto &[guide, lines] : Rows<QString, QStringList>{
                 {"guided", u"Guide"_s,
                  QStringList({u"GetNavigatorLabel(Guide)"_s, u"GetNavigatorRecordName(Guide)"_s,
                               u"navGuide.SetName(Channel|Channels)"_s, u"GetNumberOfRecords(Guide)"_s,
                               u"navGuide.NumberRecords(12)"_s})},
                 {"without a guide", {}, {}},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            navigator.uiid = guide;
            form.component.when(u"GetNavigatorLabel"_s).answers(u"Channel"_s);
            form.component.when(u"GetNavigatorRecordName"_s).answers(u"Channels"_s);
            form.component.when(u"GetNumberOfRecords"_s).answers(12);
            QCOMPARE(initialise(form, navigator), lines);
        }
    }

    void labelFallsBackToTheDesign() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        form.services.translate({u"design of txtName|Entwurf"_s, u"design of navGuide|Kanal"_s});
        form.bind();
        QCOMPARE(form.enabler->SetFieldLabel(form.itemOf(text)), QVariant(u"Entwurf"_s));
        QCOMPARE(form.enabler->SetNavFieldLabel(form.itemOf(navigator)), QVariant(u"Kanal|"_s));
    }

    void labelAndItemsAreTranslatedValuesAreNot() {
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

    void versionDecidesVisibility() {
        for (const auto &[answers, lastLine] : Rows<VersionAnswers, QString>{
                 {"on, level reached", {true, 2, 2, false, true}, u"txtName."_s + u"SetEnabled()"_s},
                 {"on, level passed, refused", {true, 3, 2, false, false}, u"txtName."_s + u"SetDisabled()"_s},
                 {"on, below the level", {true, 1, 2, false, true}, u"txtName."_s + u"SetInvisible()"_s},
                 {"on, below the level: never greyed", {true, 1, 2, true, true}, u"txtName."_s + u"SetInvisible()"_s},
                 {"on, level 0", {true, 0, 0, false, true}, u"txtName."_s + u"SetEnabled()"_s},
                 {"off, level 0", {false, 2, 0, false, true}, u"txtName."_s + u"SetEnabled()"_s},
                 {"off, level 0, refused", {false, 2, 0, true, false}, u"txtName."_s + u"SetDisabled()"_s},
                 {"off, level 1", {false, 2, 1, false, true}, u"txtName."_s + u"SetInvisible()"_s},
                 {"off, level 1, greyed", {false, 2, 1, true, true}, u"txtName."_s + u"SetDisabled()"_s},
             }) {
            BoundForm form;
            auto &text = form.addText(u"txtName"_s);
            form.component.when(u"GetProgramAsAvailable"_s).answers(answers.versioning);
            form.component.when(u"GetVersionLevel"_s).answers(answers.current);
            form.component.when(u"GetFieldVersionLevel"_s).answers(answers.level);
            form.component.when(u"GetFieldDisableWhenAbsent"_s).answers(answers.disableOnly);
            form.component.when(u"GetFieldEnabled"_s).answers(answers.enabled);
            form.bind();
            form.enabler->SetEnabledProperty(form.itemOf(text));
            QCOMPARE(form.log.lines().constLast(), lastLine);
        }
    }

    void hiddenFieldGetsNoHelp() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        form.component.when(u"GetFieldVersionLevel"_s).answers(1);
        QCOMPARE(initialise(form, text).constLast(), u"txtName.SetUIWidth(0)"_s);
    }

  private:
    static QStringList initialise(BoundForm &form, const FakeField &field) {
        form.bind();
        form.enabler->InitialiseField(form.itemOf(field));
        return form.log.take();
    }
};

QTEST_GUILESS_MAIN(tst_FieldInitialisation)
#include "tst_field_initialisation.moc"
