#include "caption_check_box.h"
#include "field_bench.h"
#include "field_label.h"
#include "fld_checkbox_field.h"
#include "fld_frame.h"
#include "fld_text_field.h"
#include "frame_border.h"
#include "run_time_error.h"
#include "window_input.h"

#include <QTabWidget>
#include <QTest>

namespace {
const QString kName = QStringLiteral("NoiseBlanker");
CaptionCheckBox &check1(const QWidget &field) { return FieldBench::part<CaptionCheckBox>(field, "Check1"); }
} // namespace

class tst_checkbox_and_frame final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void clipboardTakesOnlyZeroOrOne_data();
    void clipboardTakesOnlyZeroOrOne();
    void valueMustBeANumber();
    void userTogglesByMouseAndBlankNotByEnter();
    void disabledBoxHearsNobodyButCode();
    void boxAloneKeepsItsAccessibleName();
    void eachStateOfTheCheckBox();
    void frameIsNeverBound();
    void hiddenFrameLeavesItsHeading();
    void unknownPropertyIsRefused();
    void controlOnAHiddenPageIsParked();
    void tabStopIsTheFocusPolicyOfTheInnerPart();
};

void tst_checkbox_and_frame::clipboardTakesOnlyZeroOrOne_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("operations");
    QTest::addColumn<bool>("toggled"); // an unchecked box by a paste
    QTest::newRow("one") << QStringLiteral("1") << 6 << true;
    QTest::newRow("zero is no change") << QStringLiteral("0") << 6 << false;
    QTest::newRow("blank before") << QStringLiteral(" 1") << 2 << false;
    QTest::newRow("line end behind") << QStringLiteral("1\n") << 2 << false;
    QTest::newRow("two") << QStringLiteral("2") << 2 << false;
    QTest::newRow("minus one") << QStringLiteral("-1") << 2 << false;
    QTest::newRow("nothing") << QString() << 2 << false;
}

void tst_checkbox_and_frame::clipboardTakesOnlyZeroOrOne() {
    QFETCH(QString, text);
    QFETCH(bool, toggled);
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    bench.services.clipboard.SetText(text);
    QTEST(int(field.Ifield_GetEditOperations()), "operations");
    field.Ifield_Paste();
    QCOMPARE(field.Ifield_GetValue().toInt(), toggled ? 1 : 0);
    QCOMPARE(bench.takeHeard().size(), toggled ? 1 : 0); // told once, and only if it changed
}

void tst_checkbox_and_frame::valueMustBeANumber() {
    struct Row {
        QVariant value;
        bool reported;
        int shown;
    };
    const Row rows[] = {{1, false, 1}, {QStringLiteral("1"), false, 1},        {-1, false, 1},
                        {0, false, 0}, {QStringLiteral("Undefined"), true, 0}, {QVariant(), true, 0}};
    for (const auto &[value, reported, shown] : rows) {
        FieldBench bench;
        auto &field = bench.add<fldCheckboxField>(kName);
        if (reported)
            bench.services.errorSink.expectReport();
        QCOMPARE(field.Ifield_SetValue(value, false), !reported);
        QCOMPARE(!bench.services.errorSink.reports().isEmpty(), reported);
        QCOMPARE(field.Ifield_GetValue().toInt(), shown);
        QCOMPARE(bench.takeHeard(), QStringList());
    }
}

void tst_checkbox_and_frame::userTogglesByMouseAndBlankNotByEnter() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    bench.show();
    const QString click = QStringLiteral("NoiseBlanker.Click");
    WindowInput::click(check1(field));
    QCOMPARE(field.Ifield_GetValue().toInt(), 1);
    QCOMPARE(bench.takeHeard(), QStringList(click));
    WindowInput::key(Qt::Key_Space);
    QCOMPARE(field.Ifield_GetValue().toInt(), 0);
    WindowInput::key(Qt::Key_Return);
    QCOMPARE(bench.takeHeard(), QStringList(click));
    WindowInput::key(Qt::Key_Escape);
    QCOMPARE(bench.takeHeard(), QStringList(QStringLiteral("NoiseBlanker.Escape")));
}

void tst_checkbox_and_frame::disabledBoxHearsNobodyButCode() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    field.Ifield_SetDisabled();
    bench.show();
    WindowInput::click(check1(field));
    QCOMPARE(field.Ifield_GetValue().toInt(), 0);
    field.Ifield_SetValue(1, false);
    QCOMPARE(field.Ifield_GetValue().toInt(), 1);
    QCOMPARE(bench.takeHeard(), QStringList());
}

void tst_checkbox_and_frame::boxAloneKeepsItsAccessibleName() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName, QVariantMap{{QStringLiteral("LabelWidthFactor"), 0.0}});
    field.Ifield_SetName(QStringLiteral("Noise &Blanker"));
    QCOMPARE(field.Ifield_GetName(), QStringLiteral("   "));
    QCOMPARE(check1(field).accessibleName(), QStringLiteral("Noise Blanker"));
}

void tst_checkbox_and_frame::eachStateOfTheCheckBox() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    field.Ifield_UIIDNotFound();
    QVERIFY(field.Ifield_GetUIIDNotFound() && !field.Ifield_GetEnabled() && field.Ifield_GetVisible());
    field.Ifield_SetInvisible();
    QVERIFY(!field.Ifield_GetVisible() && check1(field).isHidden() && !field.TabStop());
    field.Ifield_SetEnabled();
    QVERIFY(!field.Ifield_GetUIIDNotFound() && field.Ifield_GetEnabled() && field.Ifield_GetVisible());
    QVERIFY(!check1(field).isHidden() && field.TabStop());
}

void tst_checkbox_and_frame::frameIsNeverBound() {
    FieldBench bench;
    auto &frame = bench.add<fldFrame>(QStringLiteral("fldFrame1"));
    QCOMPARE(frame.Ifield_GetUIID(), QStringLiteral("Undefined"));
    QCOMPARE(frame.Ifield_GetValue().toString(), QStringLiteral("Undefined"));
    frame.Ifield_UIIDNotFound();
    frame.Ifield_SetEnabled();
    QVERIFY(!frame.Ifield_GetUIIDNotFound());
    QVERIFY(!frame.TabStop());
}

void tst_checkbox_and_frame::hiddenFrameLeavesItsHeading() {
    for (const bool hidden : {false, true}) {
        FieldBench bench;
        auto &frame =
            bench.add<fldFrame>(QStringLiteral("fldFrame1"), QVariantMap{{QStringLiteral("HideThisFrame"), hidden},
                                                                         {QStringLiteral("LabelWidthFactor"), 0.5}});
        bench.host(QStringLiteral("fldFrame1")).SetGeometry({{0}, {0}, {6000}, {3000}});
        const auto &border = FieldBench::part<FrameBorder>(frame, "Frame1");
        const auto &heading = FieldBench::part<FieldLabel>(frame, "Label1");
        QCOMPARE(border.isHidden(), hidden);
        QCOMPARE(heading.isHidden(), !hidden);
        QCOMPARE(heading.x(), TwipScale::of(frame).toPixels(Twips{2900}).count);
        QVERIFY(frame.Ifield_GetVisible());
    }
}

void tst_checkbox_and_frame::unknownPropertyIsRefused() {
    FieldBench bench;
    const QVariantMap values{{QStringLiteral("DynamicHeight"), true}};
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.add<fldCheckboxField>(QStringLiteral("a"), values));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.add<fldFrame>(QStringLiteral("b"), values));
    bench.add<fldTextField>(QStringLiteral("c"), values);
}

void tst_checkbox_and_frame::controlOnAHiddenPageIsParked() {
    FieldBench bench;
    QTabWidget tabs(&bench.window);
    auto *first = new QWidget;
    auto *second = new QWidget;
    tabs.addTab(first, QStringLiteral("1"));
    tabs.addTab(second, QStringLiteral("2"));
    auto *frame = new fldFrame(bench.services.fieldServices(), {}, second);
    auto *field = new fldTextField(bench.services.fieldServices(), {}, frame);
    FieldHost tab(tabs, {QStringLiteral("SSTab1"), QStringLiteral("SSTab"), nullptr, 0});
    FieldHost frameHost(*frame, {QStringLiteral("f"), QStringLiteral("fldFrame"), &tab, 1});
    FieldHost fieldHost(*field, {QStringLiteral("t"), QStringLiteral("fldTextField"), &frameHost, 2});
    frameHost.SetPage(tabs, 1);
    frameHost.SetGeometry({{300}, {0}, {6000}, {3000}});
    fieldHost.SetGeometry({{150}, {0}, {4000}, {400}});
    QCOMPARE(frameHost.Left(), 300 - 75000);
    QCOMPARE(fieldHost.Left(), 150 - 75000);
    QVERIFY(frameHost.Visible());
    QVERIFY(tab.object() == nullptr);
    tabs.setCurrentIndex(1);
    QCOMPARE(frameHost.Left(), 300);
    QCOMPARE(fieldHost.Left(), 150);
}

void tst_checkbox_and_frame::tabStopIsTheFocusPolicyOfTheInnerPart() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    bench.host(kName).SetTabStop(false);
    QCOMPARE(check1(field).focusPolicy(), Qt::ClickFocus);
    bench.host(kName).SetTabStop(true);
    QCOMPARE(check1(field).focusPolicy(), Qt::StrongFocus);
    QCOMPARE(field.focusPolicy(), Qt::NoFocus);
}

QTEST_MAIN(tst_checkbox_and_frame)
#include "tst_checkbox_and_frame.moc"
