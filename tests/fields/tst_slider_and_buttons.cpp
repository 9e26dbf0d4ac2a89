#include "field_bench.h"
#include "fld_frame.h"
#include "fld_slider_field.h"
#include "fld_sub_form_call_up.h"
#include "fld_text_field.h"
#include "fld_trigger.h"
#include "focus_guard.h"
#include "rows.h"
#include "slider_steps.h"
#include "window_input.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {
const QString kName = u"TxPower"_s;
const QString kChange = u"TxPower.Change"_s;

// A slider from 0 to 100 in steps of 10 with a safety margin of 0.8, on 50, with the focus.
struct Desk {
    explicit Desk(double margin = 0.8)
        : field(bench.add<fldSliderField>(kName, {{u"SafetyMargin"_s, margin}, {u"Enabled"_s, true}})) {
        setUp(0, 100, 10);
        field.Ifield_SetName(u"Tx &Power"_s);
        field.Ifield_SetValue(50, false);
        field.Ifield_SetEnabled();
        bench.showWithFocus(field);
    }
    void setUp(qint32 min, qint32 max, qint32 step) {
        field.SetMin(min);
        field.SetMax(max);
        field.SetStep(step);
    }
    [[nodiscard]] QSlider &slider() const { return FieldBench::part<QSlider>(field, "Slider1"); }
    [[nodiscard]] QLineEdit &readOut() const { return FieldBench::part<QLineEdit>(field, "Text1"); }
    [[nodiscard]] QWidget &button(const char *name) const { return FieldBench::part<QToolButton>(field, name); }
    [[nodiscard]] bool isRed() const { return readOut().palette().color(QPalette::Base) == QColor(255, 0, 0); }
    [[nodiscard]] QString changes() {
        const QStringList heard = bench.takeHeard();
        return QString::number(heard.count(kChange));
    }

    FieldBench bench;
    FocusGuard guard{bench.services.errors};
    fldSliderField &field;
};

class RecordingOpener final : public SubFormOpener {
  public:
    QStringList opened;
    void OpenSubForm(const SubFormRequest &request, const FieldServices & /*services*/, QWidget *owner) override {
        opened << u"%1 \"%2\" %3 above %4"_s.arg(request.SubFormControlName, request.SubFormDescription)
                      .arg(request.SubFormRecordNr)
                      .arg(owner->objectName());
    }
};

void pressBy(const QString &way, QPushButton &button) {
    if (way == u"click")
        return WindowInput::click(button);
    button.setFocus();
    if (way == u"access key")
        WindowInput::key(Qt::Key_D, Qt::AltModifier);
    else
        WindowInput::key(way == u"blank" ? Qt::Key_Space : Qt::Key_Return);
}

QAccessible::Role roleOf(QWidget &widget) { return QAccessible::queryAccessibleInterface(&widget)->role(); }
} // namespace

class tst_slider_and_buttons final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void limitsBecomePositions() {
        struct Row {
            const char *name;
            QList<int> limits; // lowest, highest, step
            QList<int> range;  // lowest, highest, position of 50
        };
        const Row rows[] = {{"whole steps", {0, 100, 10}, {0, 10, 5}},
                            {"step 0 is 1", {10, 100, 0}, {10, 100, 50}},
                            {"halves to even", {25, 75, 10}, {2, 8, 5}},
                            {"negative limit", {-20, 100, 10}, {-2, 10, 5}},
                            {"only one value", {50, 50, 10}, {1, 2, 1}}};
        for (const auto &[name, limits, range] : rows) {
            SliderSteps steps;
            steps.setMin(limits[0]);
            steps.setMax(limits[1]);
            steps.setStep(limits[2]);
            QVERIFY2((QList<int>{steps.range().lowest, steps.range().highest, steps.positionOf(50)} == range), name);
        }
    }

    void valueIsTheReadOutsNumber() {
        for (const auto &[value, shown, position] : Rows<QVariant, QString, int>{
                 {"on a step", 70, u"70"_s, 7},
                 {"text", u"70"_s, u"70"_s, 7},
                 // Rounding it to a step would write a value that nobody chose.
                 {"between steps", 73, u"73"_s, 7},
                 {"beyond the range", 170, u"170"_s, 10},
                 {"no number", u"Undefined"_s, u"50"_s, 5},
                 {"empty", {}, u"50"_s, 5},
             }) {
            Desk desk;
            QVERIFY(desk.field.Ifield_SetValue(value, false));
            QCOMPARE(desk.readOut().text(), shown);
            QCOMPARE(desk.field.Ifield_GetValue().toString(), shown);
            QCOMPARE(desk.slider().value(), position);
            QCOMPARE(desk.changes(), u"0"_s);
        }
    }

    void codeMovesTheSliderWithoutAChange() {
        Desk desk;
        QVERIFY(desk.field.Ifield_SetValue(90, false));
        QVERIFY(desk.isRed()); // beyond the margin, though nobody held Shift
        QCOMPARE(desk.slider().value(), 9);
        desk.bench.listener(kName).refuseManualValidate = true;
        QVERIFY(!desk.field.Ifield_SetValue(20, true));
        QCOMPARE(desk.bench.takeHeard(), QStringList{u"TxPower.ManualValidate"_s});
        QVERIFY(!desk.isRed());
    }

    void userMovesInSteps() {
        for (const auto &[start, way, end, changes] : Rows<int, QString, int, QString>{
                 {"button up", 50, u"cmdUp"_s, 60, u"1"_s},
                 {"button down", 50, u"cmdDown"_s, 40, u"1"_s},
                 {"button at the bottom", 0, u"cmdDown"_s, 0, u"0"_s},
                 {"key up", 50, u"Right"_s, 60, u"1"_s},
                 {"key down", 50, u"Left"_s, 40, u"1"_s},
                 {"to the bottom", 50, u"Home"_s, 0, u"1"_s},
                 {"from between steps", 53, u"cmdUp"_s, 60, u"1"_s},
                 {"up to the margin", 70, u"cmdUp"_s, 80, u"1"_s},
                 {"beyond the margin", 80, u"cmdUp"_s, 80, u"0"_s},
                 {"far beyond the margin", 50, u"End"_s, 50, u"0"_s},
                 {"down, but still beyond", 100, u"cmdDown"_s, 90, u"1"_s},
             }) {
            Desk desk;
            desk.field.Ifield_SetValue(start, false);
            if (way.startsWith(u"cmd"))
                WindowInput::click(desk.button(qPrintable(way)));
            else
                WindowInput::key(Qt::Key(QKeySequence::fromString(way)[0].key()));
            QCOMPARE(desk.field.Ifield_GetValue().toInt(), end);
            QCOMPARE(desk.changes(), changes);
            QCOMPARE(desk.slider().value(), desk.field.Ifield_GetValue().toInt() / 10);
            QVERIFY(desk.slider().hasFocus());
        }
    }

    void limitIsPassedWithShiftOnly() {
        Desk desk;
        desk.field.Ifield_SetValue(80, false);
        QTest::keyPress(&desk.slider(), Qt::Key_Shift); // without its own modifier, as some systems report it
        QTest::keyClick(&desk.slider(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyRelease(&desk.slider(), Qt::Key_Shift, Qt::ShiftModifier);
        QCOMPARE(desk.field.Ifield_GetValue().toInt(), 90);
        QVERIFY(desk.isRed());
        QTest::mouseClick(&desk.button("cmdUp"), Qt::LeftButton); // no longer held
        QCOMPARE(desk.field.Ifield_GetValue().toInt(), 90);
        QTest::mouseClick(&desk.button("cmdUp"), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(desk.field.Ifield_GetValue().toInt(), 100);
        Desk wide(1.0);
        WindowInput::key(Qt::Key_End);
        QCOMPARE(wide.field.Ifield_GetValue().toInt(), 100);
        QVERIFY(!wide.isRed()); // a margin of 1 never warns
    }

    void dragReportsEveryFifthMoveAndItsEnd() {
        Desk desk;
        desk.slider().setSliderDown(true);
        for (const int position : {6, 5, 4, 3})
            desk.slider().setSliderPosition(position);
        QCOMPARE(desk.changes(), u"0"_s);
        desk.slider().setSliderPosition(2);
        QCOMPARE(desk.changes(), u"1"_s);
        QCOMPARE(desk.field.Ifield_GetValue().toInt(), 20);
        desk.slider().setSliderPosition(10); // beyond the margin: the thumb goes back at the end
        desk.slider().setSliderDown(false);
        QCOMPARE(desk.changes(), u"0"_s);
        QCOMPARE(desk.slider().value(), 2);
        QCOMPARE(desk.readOut().text(), u"20"_s);
    }

    void fixedSliderCannotBeMoved() {
        Desk desk;
        desk.setUp(50, 50, 10);
        desk.field.Ifield_SetEnabled();
        const int position = desk.slider().value();
        QVERIFY(!desk.slider().isEnabled());
        WindowInput::click(desk.button("cmdUp"));
        desk.field.Ifield_SetValue(80, false);
        QCOMPARE(desk.slider().value(), position);
        QCOMPARE(desk.field.Ifield_GetValue().toInt(), 80);
        QCOMPARE(desk.changes(), u"0"_s);
    }

    void outsideValuesKeepTheMargin() {
        for (const auto &[text, taken] : Rows<QString, bool>{
                 {"number", u"70"_s, true},
                 {"at the margin", u"80"_s, true},
                 {"beyond the margin", u"81"_s, false},
                 {"no number", u"Auto"_s, false},
                 {"nothing", u""_s, false},
             }) {
            Desk desk;
            desk.bench.services.clipboard.SetText(text);
            QCOMPARE(desk.field.Ifield_GetEditOperations(), taken ? 6 : 2);
            desk.field.Ifield_Paste();
            QCOMPARE(desk.readOut().text(), taken ? text : u"50"_s);
            QCOMPARE(desk.changes(), taken ? u"1"_s : u"0"_s);
            desk.field.Ifield_Paste(); // the same again is no change
            QCOMPARE(desk.changes(), u"0"_s);
            desk.field.Ifield_SetDisabled();
            QCOMPARE(desk.field.Ifield_GetEditOperations(), 2);
        }
    }

    void eachStateOfTheSlider() {
        Desk desk;
        desk.field.Ifield_SetValue(90, false);
        desk.field.Ifield_SetDisabled();
        QVERIFY(!desk.field.Ifield_GetEnabled() && desk.field.Ifield_GetVisible());
        QVERIFY(!desk.slider().isEnabled() && !desk.button("cmdUp").isEnabled() && !desk.isRed());
        QCOMPARE(desk.slider().focusPolicy(), Qt::ClickFocus);
        desk.field.Ifield_SetInvisible();
        QVERIFY(!desk.field.Ifield_GetVisible() && desk.slider().isHidden() && desk.readOut().isHidden());
        desk.field.Ifield_SetEnabled();
        QVERIFY(desk.slider().isVisible() && desk.isRed());
        QCOMPARE(desk.slider().focusPolicy(), Qt::StrongFocus);
        desk.field.Ifield_UIIDNotFound();
        QVERIFY(desk.field.Ifield_GetUIIDNotFound() && desk.readOut().text().isEmpty());
    }

    void focusIsToldWithTheValue() {
        Desk desk;
        auto &other = desk.bench.add<fldTextField>(u"Other"_s);
        other.show();
        WindowInput::key(Qt::Key_Tab);
        const QStringList left{u"TxPower.Validate"_s, u"TxPower.ExitFocus"_s, u"TxPower.LostFocus"_s,
                               u"Other.GotFocus"_s};
        QCOMPARE(desk.bench.takeHeard(), left);
        WindowInput::click(desk.button("cmdDown")); // a press on any part brings the focus
        QVERIFY(desk.slider().hasFocus());
        QCOMPARE(desk.bench.takeHeard().mid(3), (QStringList{u"TxPower.EnterFocus"_s, u"TxPower.GotFocus"_s, kChange}));
    }

    void escapeEndsInTheSlider() {
        Desk desk;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        escape.ignore();
        QCoreApplication::sendEvent(&desk.slider(), &escape);
        QVERIFY(escape.isAccepted());
        QVERIFY(desk.bench.takeHeard().isEmpty());
    }

    void partsAreNamed() {
        Desk desk;
        QCOMPARE(desk.readOut().accessibleName(), u"Tx Power"_s);
        QCOMPARE(desk.button("cmdUp").accessibleName(), u"Tx Power: one step up"_s);
        QCOMPARE(roleOf(desk.slider()), QAccessible::Slider);
    }

    void callUpHandsOverItsRequest() {
        for (const QString &way : {u"click"_s, u"blank"_s, u"enter"_s, u"access key"_s}) {
            FieldBench bench;
            bench.services.translate({u"&Details|&Détails"_s, u"Call 2|Appel 2"_s});
            bench.window.setObjectName(u"desk"_s);
            RecordingOpener opener;
            const FieldProperties properties{u"bench.json"_s,
                                             u"callUp"_s,
                                             {{u"SubFormControlName"_s, u"usrctlDetail"_s},
                                              {u"SubFormDescription"_s, u"Call 2"_s},
                                              {u"SubFormRecordNr"_s, 2},
                                              {u"Caption"_s, u"&Details"_s}}};
            fldSubFormCallUp callUp(bench.services.fieldServices(), properties, opener, &bench.window);
            QCOMPARE(callUp.SetControlSize({{1110}, {900}}), (TwipSize{{1110}, {365}}));
            bench.show();
            auto &button = FieldBench::part<QPushButton>(callUp, "cmdCallUp");
            pressBy(way, button);
            QTRY_COMPARE(opener.opened.size(), 1); // an access key shows the button pressed for a moment
            callUp.SubFormRecordNr(0);
            pressBy(way, button);
            QTRY_COMPARE(opener.opened.size(), 2);
            QCOMPARE(opener.opened, (QStringList{u"usrctlDetail \"Call 2\" 2 above desk"_s,
                                                 u"usrctlDetail \"Call 2\" 0 above desk"_s}));
            QCOMPARE(button.accessibleName(), u"Détails"_s);
            QCOMPARE(button.accessibleDescription(), u"Appel 2"_s);
            QVERIFY(callUp.AsField() == nullptr);
        }
    }

    void triggerFiresItsAction() {
        FieldBench bench;
        const FieldProperties properties{u"bench.json"_s, u"t"_s, {{u"ID"_s, u"TestTone"_s}}};
        fldTrigger trigger(bench.services.fieldServices(), properties, &bench.window);
        bench.show();
        auto &button = FieldBench::part<QPushButton>(trigger, "Button1");
        QCOMPARE(button.text(), u"Execute"_s);
        QCOMPARE(button.pos(), QPoint(2, 3)); // 25 and 50 twips
        static_cast<void>(bench.log.take());
        pressBy(u"enter"_s, button);
        QCOMPARE(bench.log.take(), QStringList{u"FireTrigger(TestTone)"_s});
    }

    void failureInsideAButtonIsReported() {
        FieldBench bench;
        bench.component.when(u"FireTrigger"_s).raises(RunTimeError(5, u"x"_s, u"y"_s));
        fldTrigger trigger(bench.services.fieldServices(), {u"bench.json"_s, u"t"_s, {}}, &bench.window);
        bench.show();
        bench.services.errorSink.expectReport();
        pressBy(u"click"_s, FieldBench::part<QPushButton>(trigger, "Button1"));
        QVERIFY(bench.services.errors.HasReported());
    }
};

QTEST_MAIN(tst_slider_and_buttons)
#include "tst_slider_and_buttons.moc"
