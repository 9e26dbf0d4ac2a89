#include "caption_check_box.h"
#include "field_bench.h"
#include "field_label.h"
#include "fld_checkbox_field.h"
#include "fld_frame.h"
#include "fld_text_field.h"
#include "frame_border.h"
#include "rows.h"
#include "run_time_error.h"
#include "window_input.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kName = u"NoiseBlanker"_s;
struct CheckBench : FieldBench {
    fldCheckboxField &field = add<fldCheckboxField>(kName);
};

CaptionCheckBox &check1(const QWidget &field) { return FieldBench::part<CaptionCheckBox>(field, "Check1"); }
} // namespace

class tst_checkbox_and_frame final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void clipboardTakesOnlyZeroOrOne() {
        // toggled: an unchecked box by a paste
        for (const auto &[text, operations, toggled] : Rows<QString, int, bool>{
                 {"one", u"1"_s, 6, true},
                 {"zero is no change", u"0"_s, 6, false},
                 {"blank before", u" 1"_s, 2, false},
                 {"line end behind", u"1\n"_s, 2, false},
                 {"two", u"2"_s, 2, false},
                 {"minus one", u"-1"_s, 2, false},
                 {"nothing", {}, 2, false},
             }) {
            FieldBench bench;
            auto &field = bench.add<fldCheckboxField>(kName);
            bench.services.clipboard.SetText(text);
            QCOMPARE(int(field.Ifield_GetEditOperations()), operations);
            field.Ifield_Paste();
            QCOMPARE(field.Ifield_GetValue().toInt(), toggled ? 1 : 0);
            QCOMPARE(bench.takeHeard().size(), toggled ? 1 : 0); // told once, and only if it changed
        }
    }

    void valueMustBeANumber() {
        struct Row {
            QVariant value;
            bool reported;
            int shown;
        };
        const Row rows[] = {{1, false, 1}, {u"1"_s, false, 1},        {-1, false, 1},
                            {0, false, 0}, {u"Undefined"_s, true, 0}, {QVariant(), true, 0}};
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

    void userTogglesByMouseAndBlankNotByEnter() {
        CheckBench bench;
        bench.show();
        const QString click = u"NoiseBlanker.Click"_s;
        WindowInput::click(check1(bench.field));
        QCOMPARE(bench.field.Ifield_GetValue().toInt(), 1);
        QCOMPARE(bench.takeHeard(), QStringList(click));
        WindowInput::key(Qt::Key_Space);
        QCOMPARE(bench.field.Ifield_GetValue().toInt(), 0);
        WindowInput::key(Qt::Key_Return);
        QCOMPARE(bench.takeHeard(), QStringList(click));
        WindowInput::key(Qt::Key_Escape);
        QCOMPARE(bench.takeHeard(), QStringList(u"NoiseBlanker.Escape"_s));
    }

    void disabledBoxHearsNobodyButCode() {
        CheckBench bench;
        bench.field.Ifield_SetDisabled();
        bench.show();
        WindowInput::click(check1(bench.field));
        QCOMPARE(bench.field.Ifield_GetValue().toInt(), 0);
        bench.field.Ifield_SetValue(1, false);
        QCOMPARE(bench.field.Ifield_GetValue().toInt(), 1);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void boxAloneKeepsItsAccessibleName() {
        FieldBench bench;
        auto &field = bench.add<fldCheckboxField>(kName, QVariantMap{{u"LabelWidthFactor"_s, 0.0}});
        field.Ifield_SetName(u"Noise &Blanker"_s);
        QCOMPARE(field.Ifield_GetName(), u"   "_s);
        QCOMPARE(check1(field).accessibleName(), u"Noise Blanker"_s);
    }

    void eachStateOfTheCheckBox() {
        CheckBench bench;
        bench.field.Ifield_UIIDNotFound();
        QVERIFY(bench.field.Ifield_GetUIIDNotFound() && !bench.field.Ifield_GetEnabled() &&
                bench.field.Ifield_GetVisible());
        bench.field.Ifield_SetInvisible();
        QVERIFY(!bench.field.Ifield_GetVisible() && check1(bench.field).isHidden() && !bench.field.TabStop());
        bench.field.Ifield_SetEnabled();
        QVERIFY(!bench.field.Ifield_GetUIIDNotFound() && bench.field.Ifield_GetEnabled() &&
                bench.field.Ifield_GetVisible());
        QVERIFY(!check1(bench.field).isHidden() && bench.field.TabStop());
    }

    void hiddenFrameLeavesItsHeading() {
        for (const bool hidden : {false, true}) {
            FieldBench bench;
            auto &frame = bench.add<fldFrame>(u"fldFrame1"_s,
                                              QVariantMap{{u"HideThisFrame"_s, hidden}, {u"LabelWidthFactor"_s, 0.5}});
            bench.host(u"fldFrame1"_s).SetGeometry({{0}, {0}, {6000}, {3000}});
            const auto &border = FieldBench::part<FrameBorder>(frame, "Frame1");
            const auto &heading = FieldBench::part<FieldLabel>(frame, "Label1");
            QCOMPARE(border.isHidden(), hidden);
            QCOMPARE(heading.isHidden(), !hidden);
            QCOMPARE(heading.x(), TwipScale::of(frame).toPixels(Twips{2900}).count);
            QVERIFY(frame.Ifield_GetVisible());
        }
    }

    void unknownPropertyIsRefused() {
        FieldBench bench;
        const QVariantMap values{{u"DynamicHeight"_s, true}};
        QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.add<fldCheckboxField>(u"a"_s, values));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.add<fldFrame>(u"b"_s, values));
        bench.add<fldTextField>(u"c"_s, values);
    }

    void tabStopIsTheFocusPolicyOfTheInnerPart() {
        CheckBench bench;
        bench.host(kName).SetTabStop(false);
        QCOMPARE(check1(bench.field).focusPolicy(), Qt::ClickFocus);
        bench.host(kName).SetTabStop(true);
        QCOMPARE(check1(bench.field).focusPolicy(), Qt::StrongFocus);
        QCOMPARE(bench.field.focusPolicy(), Qt::NoFocus);
    }
};

QTEST_MAIN(tst_checkbox_and_frame)
#include "tst_checkbox_and_frame.moc"
