#include "bound_form.h"
#include "iusrfrm.h"
#include "line_log.h"
#include "test_failure.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// A plain frame, which is no field.
class FakePlainFrame final : public FakeControl {
  public:
    FakePlainFrame(CallLog &log, const QString &name, QString caption)
        : FakeControl(log, name, u"Frame"_s), mCaption(std::move(caption)) {}
    [[nodiscard]] QString Caption() const override { return mCaption; }

  private:
    QString mCaption;
};

// A form of doubles as the report meets it.
class ReportedForm final : public BoundForm, public Iusrfrm {
  public:
    LineLog printed;

    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override { return enabler; }
    void Iusrfrm_Terminate() override {}
    const HostControls &Iusrfrm_Controls() override { return controls; }
    HostControl *Iusrfrm_ActiveControl() override { return nullptr; }

    FakeField &text(const QString &uiid, const QVariant &value) {
        FakeField &field = addText(u"txt"_s + uiid);
        component.when(u"GetLabel"_s, uiid).answers(uiid + u" label"_s);
        component.when(u"GetValue"_s, uiid).answers(value);
        return field;
    }
    FakeGrid &grid(const QString &uiids, const QStringList &heads, const QStringList &rows) {
        auto &added = add<FakeGrid>(u"grdList"_s, uiids);
        added.heads = heads;
        if (rows.isEmpty())
            return added;
        added.array.ReDim(qint32(rows.size()) - 1, qint32(rows.first().count(u'|')));
        for (qint32 row = 0; row < rows.size(); ++row) {
            for (qint32 column = 0; column <= added.array.UpperBound(2); ++column)
                added.array.SetValue(row, column, rows.at(row).split(u'|').value(column));
        }
        return added;
    }
    // The lines behind the title.
    QStringList report(bool printAll) {
        printed.lines.clear();
        enabler->Ienabler_PrintForm(*this, u"My Form"_s, printed, printAll);
        if (printed.lines.first(2) != QStringList({u"* My Form<br>"_s, u"* -------"_s}))
            failTest(u"the title is wrong: "_s + printed.lines.join(u'|'));
        return printed.lines.mid(2);
    }
};
} // namespace

class tst_FormReport : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void fieldShowsItsValue_data();
    void fieldShowsItsValue();
    void fieldsComeInTabOrder();
    void fieldIsLeftOut_data();
    void fieldIsLeftOut();
    void framesIndentUnlessNothingIsInside();
    void gridIsATable_data();
    void gridIsATable();
    void everyTextIsTranslated();
    void allRecordsFollowWhatStandsOutside();
    void gridsOfTheNavigatorsRecordsAreLeftOut();
    void failureIsToldOnceAndEndsTheWalk_data();
    void failureIsToldOnceAndEndsTheWalk();
};

void tst_FormReport::fieldShowsItsValue_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("map");
    const auto row = [](const char *name, const char *type, const QVariant &value, const char *shown,
                        const char *map = "") {
        QTest::newRow(name) << QString::fromLatin1(type) << value << QString::fromLatin1(shown)
                            << QString::fromLatin1(map);
    };
    row("text", "fldTextField", u"Base 1"_s, "Base 1");
    row("fraction", "fldTextField", 12.5, "12.5");
    row("unset text", "fldTextField", QString(), "Undefined");
    row("text of no record", "fldTextField", u"Undefined"_s, "Undefined");
    row("slider", "fldSliderField", 40, "40");
    row("reference", "fldIdTrackerField", u"None"_s, "None");
    row("combo by position", "fldComboField", 1, "High");
    row("combo by position as text", "fldComboField", u"1"_s, "High");
    row("combo by stored value", "fldComboField", 5, "Low", "5|9|12");
    row("combo past the end", "fldComboField", 3, "Undefined");
    row("combo without selection", "fldComboField", -1, "Undefined");
    // The map's last entry would stand for a value that it does not hold.
    row("combo of no record", "fldComboField", u"Undefined"_s, "Undefined", "5|9|12");
    row("checked", "fldCheckboxField", 1, "Yes");
    row("checked as text", "fldCheckboxField", u"1"_s, "Yes");
    row("unchecked", "fldCheckboxField", 0, "No");
    row("check box of no record", "fldCheckboxField", u"Undefined"_s, "No");
    row("option", "fldOptionButtonField", 1, "Yes");
}

void tst_FormReport::fieldShowsItsValue() {
    QFETCH(QString, typeName);
    QFETCH(QVariant, value);
    QFETCH(QString, map);
    QFETCH(QString, shown);
    ReportedForm form;
    auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
    field.recordNr = 7;
    field.value = u"stale text of the control"_s;
    form.component.when(u"GetLabel"_s, u"Thing"_s).answers(u"Thing"_s);
    form.component.when(u"GetValue"_s, u"Thing"_s, 7).answers(value);
    form.component.when(u"GetIsComboIndex"_s, u"Thing"_s).answers(map);
    form.component.when(u"GetComboItems"_s, u"Thing"_s, 7).answers(QStringList({u"Low"_s, u"High"_s, u"Off"_s}));
    QCOMPARE(form.report(false), QStringList(u"  Thing: "_s + shown));
}

void tst_FormReport::fieldsComeInTabOrder() {
    ReportedForm form;
    form.text(u"Third"_s, 3).tabIndex = 12;
    form.text(u"First"_s, 1).tabIndex = 2;
    form.text(u"Second"_s, 2).tabIndex = 2;
    QCOMPARE(form.report(false), QStringList({u"  First label: 1"_s, u"  Second label: 2"_s, u"  Third label: 3"_s}));
}

void tst_FormReport::fieldIsLeftOut_data() {
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("unknown");
    QTest::newRow("hidden") << u"fldTextField"_s << false << false;
    QTest::newRow("unknown to the component") << u"fldTextField"_s << true << true;
    QTest::newRow("navigator") << u"fldPageNavigator"_s << true << false;
    QTest::newRow("call-up of a sub-form") << u"fldSubFormCallUp"_s << true << false;
    QTest::newRow("trigger") << u"fldTrigger"_s << true << false;
}

void tst_FormReport::fieldIsLeftOut() {
    QFETCH(QString, typeName);
    ReportedForm form;
    auto &field = form.add<FakeField>(u"fldThing"_s, typeName);
    QFETCH(bool, visible);
    QFETCH(bool, unknown);
    field.fieldVisible = visible;
    field.notFound = unknown;
    form.text(u"Other"_s, 1);
    QCOMPARE(form.report(false), QStringList(u"  Other label: 1"_s));
}

void tst_FormReport::framesIndentUnlessNothingIsInside() {
    ReportedForm form;
    auto &tab = form.add<FakeTab>(u"SSTab1"_s, QStringList(u"Page"_s));
    auto &outer = form.add<FakeField>(u"fraOuter"_s, u"fldFrame"_s);
    auto &inner = form.add<FakePlainFrame>(u"Frame3"_s, u"Inner"_s);
    outer.container = &tab;
    outer.caption = u"Outer"_s;
    outer.notFound = true; // a frame is never bound
    form.text(u"A"_s, 1).container = &outer;
    inner.container = &outer;
    form.text(u"B"_s, 2).container = &inner;
    form.text(u"C"_s, 3);
    auto &empty = form.add<FakeField>(u"fraEmpty"_s, u"fldFrame"_s);
    auto &emptyToo = form.add<FakeField>(u"fraEmptyToo"_s, u"fldFrame"_s);
    emptyToo.container = &empty;
    FakeField &hidden = form.text(u"D"_s, 4);
    hidden.container = &emptyToo;
    hidden.fieldVisible = false;
    // By tab index: tab, frame, inner frame, A, B, C.
    QCOMPARE(form.report(false), QStringList({u"  Outer"_s, u"  >Inner"_s, u"  >>B label: 2"_s, u"   "_s,
                                              u"  >A label: 1"_s, u"   "_s, u"  C label: 3"_s}));
}

void tst_FormReport::gridIsATable_data() {
    QTest::addColumn<bool>("dynamic");
    QTest::addColumn<QStringList>("heads");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("two columns") << true << QStringList({u"  Nr"_s, u" Name"_s})
                                 << QStringList({u"1| Base "_s, u"2|Fleet"_s})
                                 << QStringList({u"|   Nr> Name"_s, u"| 1>Base"_s, u"| 2>Fleet"_s, u"   "_s});
    QTest::newRow("one column") << true << QStringList(u" Nr"_s) << QStringList({u"1"_s, u"2"_s})
                                << QStringList({u"   Nr>"_s, u"  1>"_s, u"  2>"_s, u"   "_s});
    QTest::newRow("no rows") << true << QStringList({u" Nr"_s, u" Name"_s}) << QStringList()
                             << QStringList({u"|  Nr> Name"_s, u"  No records>"_s, u"   "_s});
    QTest::newRow("fixed") << false << QStringList() << QStringList({u"Tone| 5 "_s})
                           << QStringList({u"  "_s, u"| ID>Value"_s, u"| Tone> 5 "_s, u"   "_s});
    QTest::newRow("fixed without rows") << false << QStringList() << QStringList()
                                        << QStringList({u"  "_s, u"| ID>Value"_s, u"  No records>"_s, u"   "_s});
}

void tst_FormReport::gridIsATable() {
    QFETCH(bool, dynamic);
    QFETCH(QStringList, heads);
    QFETCH(QStringList, rows);
    ReportedForm form;
    form.grid(u"A|B"_s, heads, rows).dynamic = dynamic;
    QTEST(form.report(false), "shown");
}

void tst_FormReport::everyTextIsTranslated() {
    ReportedForm form;
    form.services.translate({u"Undefined|Indéfini"_s, u"Yes|Oui"_s, u"Mode label|Mode"_s, u"Low|Bas"_s,
                             u"No records|Aucun"_s, u"ID|No"_s, u"Value|Valeur"_s});
    form.text(u"Mode"_s, QString());
    form.component.when(u"GetLabel"_s, u"Ring"_s).answers(u"Mode label"_s);
    form.component.when(u"GetValue"_s, u"Ring"_s).answers(1);
    form.addCheckbox(u"chkRing"_s);
    form.grid(u"A|B"_s, {u"Value"_s, u"Kind"_s}, {u"Low| Low"_s});
    form.grid({}, {}, {}).dynamic = false;
    QCOMPARE(form.report(false),
             QStringList({u"  Mode: Indéfini"_s, u"  Mode: Oui"_s, u"| Valeur>Kind"_s, u"| Bas>Bas"_s, u"   "_s,
                          u"  "_s, u"| No>Valeur"_s, u"  Aucun>"_s, u"   "_s}));
}

void tst_FormReport::allRecordsFollowWhatStandsOutside() {
    ReportedForm form;
    FakeField &inside = form.text(u"Inside"_s, {});
    inside.stream = 1;
    inside.recordNr = 2;
    form.text(u"Outside"_s, u"x"_s);
    form.text(u"Elsewhere"_s, u"y"_s).stream = 2;
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    navigator.stream = 1;
    navigator.storageUIID = u"Pos"_s;
    form.component.when(u"GetNumberOfRecords"_s, u"Guide"_s).answers(2);
    form.component.when(u"GetValue"_s, u"Guide"_s, 1).answers(u"North"_s);
    form.component.when(u"GetValue"_s, u"Guide"_s, 2).answers(u"South"_s);
    form.component.when(u"GetValue"_s, u"Inside"_s, 1).answers(11);
    form.component.when(u"GetValue"_s, u"Inside"_s, 2).answers(22);
    // The record that the navigator leaves is not asked whether it is valid.
    form.component.when(u"GetValue"_s, u"Pos"_s).answers(1);
    form.component.when(u"SetValue"_s, u"Pos"_s, 2).runs([&form] {
        form.component.when(u"GetValue"_s, u"Pos"_s).answers(2);
    });
    form.component.when(u"ValidateForm"_s).refuses();
    form.bind();
    // Without print-all the record as it stands.
    QCOMPARE(form.report(false),
             QStringList({u"  Inside label: 22"_s, u"  Outside label: x"_s, u"  Elsewhere label: y"_s}));
    QCOMPARE(form.report(true),
             QStringList({u"  Outside label: x"_s, u"   "_s, u"* My Form North"_s, u"  Inside label: 11"_s, u"   "_s,
                          u"* My Form South"_s, u"  Inside label: 22"_s, u"   "_s}));
    QVERIFY(form.log.linesOf(u"ValidateForm"_s).isEmpty());
    QCOMPARE(navigator.position, 2); // and there it stays
}

void tst_FormReport::gridsOfTheNavigatorsRecordsAreLeftOut() {
    ReportedForm form;
    form.grid(u"GuideName|Guide"_s, {u"Lists"_s, u"guide"_s}, {});
    form.grid(u"GuideName|Other"_s, {u"Of each"_s, u"record"_s}, {});
    auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
    navigator.stream = 1;
    form.component.when(u"GetNumberOfRecords"_s).answers(1);
    const QStringList other{u"| Of each>record"_s, u"  No records>"_s, u"   "_s};
    const QStringList record{u"   "_s, u"* My Form "_s};
    QCOMPARE(form.report(true), other + record + other + QStringList(u"   "_s));

    // Bound by name: left out in front of the records only.
    navigator.gridControl = u"grdList"_s;
    QCOMPARE(form.report(true), record + other + QStringList(u"   "_s));
}

void tst_FormReport::failureIsToldOnceAndEndsTheWalk_data() {
    QTest::addColumn<int>("failAt");
    QTest::newRow("title") << 0;
    QTest::newRow("field in a frame") << 3;
    QTest::newRow("title of a record") << 6;
    QTest::newRow("field of a record") << 7;
}

void tst_FormReport::failureIsToldOnceAndEndsTheWalk() {
    QFETCH(int, failAt);
    const QString message = u"An error has occurred while attempting to print report. The print has been cancelled. "
                            "Please check printer settings."_s;
    ReportedForm form;
    auto &frame = form.add<FakeField>(u"fraBox"_s, u"fldFrame"_s);
    form.text(u"Boxed"_s, 1).container = &frame;
    form.text(u"Inside"_s, 1).stream = 1;
    form.add<FakeNavigator>(u"navGuide"_s).stream = 1;
    form.component.when(u"GetNumberOfRecords"_s).answers(3);
    form.printed.failAt = failAt;
    form.services.boxes.expect(message, 1);
    QVERIFY(!form.enabler->Ienabler_PrintForm(form, u"Form"_s, form.printed, true));
    QCOMPARE(form.printed.lines.size(), failAt);
    QCOMPARE(form.services.boxes.shown().size(), 1);
    QVERIFY(form.services.boxes.shown().first().startsWith(u"Print Error: "_s));
}

QTEST_GUILESS_MAIN(tst_FormReport)
#include "tst_form_report.moc"
