#include "field_bench.h"
#include "fld_frame.h"
#include "fld_slider_field.h"
#include "fld_sub_form_call_up.h"
#include "fld_text_field.h"
#include "fld_trigger.h"
#include "focus_guard.h"
#include "slider_steps.h"
#include "window_input.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>

namespace {
const QString kName = QStringLiteral("TxPower");
const QString kChange = QStringLiteral("TxPower.Change");

// A slider from 0 to 100 in steps of 10 with a safety margin of 0.8, on 50, with the focus.
struct Desk {
    explicit Desk(double margin = 0.8)
        : field(bench.add<fldSliderField>(
              kName, {{QStringLiteral("SafetyMargin"), margin}, {QStringLiteral("Enabled"), true}})) {
        setUp(0, 100, 10);
        field.Ifield_SetName(QStringLiteral("Tx &Power"));
        field.Ifield_SetValue(50, false);
        field.Ifield_SetEnabled();
        bench.show();
        field.Ifield_SetFocus();
        bench.takeHeard();
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
        opened << QStringLiteral("%1 \"%2\" %3 above %4")
                      .arg(request.SubFormControlName, request.SubFormDescription)
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
    void limitsBecomePositions();
    void valueIsTheReadOutsNumber_data();
    void valueIsTheReadOutsNumber();
    void codeMovesTheSliderWithoutAChange();
    void userMovesInSteps_data();
    void userMovesInSteps();
    void limitIsPassedWithShiftOnly();
    void dragReportsEveryFifthMoveAndItsEnd();
    void fixedSliderCannotBeMoved();
    void outsideValuesKeepTheMargin_data();
    void outsideValuesKeepTheMargin();
    void eachStateOfTheSlider();
    void focusIsToldWithTheValue();
    void escapeEndsInTheSlider();
    void partsAreNamed();
    void callUpHandsOverItsRequest_data();
    void callUpHandsOverItsRequest();
    void triggerFiresItsAction();
    void failureInsideAButtonIsReported();
};

void tst_slider_and_buttons::limitsBecomePositions() {
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

void tst_slider_and_buttons::valueIsTheReadOutsNumber_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("position");
    QTest::newRow("on a step") << QVariant(70) << "70" << 7;
    QTest::newRow("text") << QVariant(QStringLiteral("70")) << "70" << 7;
    // Rounding it to a step would write a value that nobody chose.
    QTest::newRow("between steps") << QVariant(73) << "73" << 7;
    QTest::newRow("beyond the range") << QVariant(170) << "170" << 10;
    QTest::newRow("no number") << QVariant(QStringLiteral("Undefined")) << "50" << 5;
    QTest::newRow("empty") << QVariant() << "50" << 5;
}

void tst_slider_and_buttons::valueIsTheReadOutsNumber() {
    QFETCH(QVariant, value);
    Desk desk;
    QVERIFY(desk.field.Ifield_SetValue(value, false));
    QTEST(desk.readOut().text(), "shown");
    QTEST(desk.field.Ifield_GetValue().toString(), "shown");
    QTEST(desk.slider().value(), "position");
    QCOMPARE(desk.changes(), QStringLiteral("0"));
}

void tst_slider_and_buttons::codeMovesTheSliderWithoutAChange() {
    Desk desk;
    QVERIFY(desk.field.Ifield_SetValue(90, false));
    QVERIFY(desk.isRed()); // beyond the margin, though nobody held Shift
    QCOMPARE(desk.slider().value(), 9);
    desk.bench.listener(kName).refuseManualValidate = true;
    QVERIFY(!desk.field.Ifield_SetValue(20, true));
    QCOMPARE(desk.bench.takeHeard(), QStringList{QStringLiteral("TxPower.ManualValidate")});
    QVERIFY(!desk.isRed());
}

void tst_slider_and_buttons::userMovesInSteps_data() {
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("changes");
    QTest::newRow("button up") << 50 << "cmdUp" << 60 << "1";
    QTest::newRow("button down") << 50 << "cmdDown" << 40 << "1";
    QTest::newRow("button at the bottom") << 0 << "cmdDown" << 0 << "0";
    QTest::newRow("key up") << 50 << "Right" << 60 << "1";
    QTest::newRow("key down") << 50 << "Left" << 40 << "1";
    QTest::newRow("to the bottom") << 50 << "Home" << 0 << "1";
    QTest::newRow("from between steps") << 53 << "cmdUp" << 60 << "1";
    QTest::newRow("up to the margin") << 70 << "cmdUp" << 80 << "1";
    QTest::newRow("beyond the margin") << 80 << "cmdUp" << 80 << "0";
    QTest::newRow("far beyond the margin") << 50 << "End" << 50 << "0";
    QTest::newRow("down, but still beyond") << 100 << "cmdDown" << 90 << "1";
}

void tst_slider_and_buttons::userMovesInSteps() {
    QFETCH(int, start);
    QFETCH(QString, way);
    Desk desk;
    desk.field.Ifield_SetValue(start, false);
    if (way.startsWith(u"cmd"))
        WindowInput::click(desk.button(qPrintable(way)));
    else
        WindowInput::key(Qt::Key(QKeySequence::fromString(way)[0].key()));
    QTEST(desk.field.Ifield_GetValue().toInt(), "end");
    QTEST(desk.changes(), "changes");
    QCOMPARE(desk.slider().value(), desk.field.Ifield_GetValue().toInt() / 10);
    QVERIFY(desk.slider().hasFocus());
}

void tst_slider_and_buttons::limitIsPassedWithShiftOnly() {
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

void tst_slider_and_buttons::dragReportsEveryFifthMoveAndItsEnd() {
    Desk desk;
    desk.slider().setSliderDown(true);
    for (const int position : {6, 5, 4, 3})
        desk.slider().setSliderPosition(position);
    QCOMPARE(desk.changes(), QStringLiteral("0"));
    desk.slider().setSliderPosition(2);
    QCOMPARE(desk.changes(), QStringLiteral("1"));
    QCOMPARE(desk.field.Ifield_GetValue().toInt(), 20);
    desk.slider().setSliderPosition(10); // beyond the margin: the thumb goes back at the end
    desk.slider().setSliderDown(false);
    QCOMPARE(desk.changes(), QStringLiteral("0"));
    QCOMPARE(desk.slider().value(), 2);
    QCOMPARE(desk.readOut().text(), QStringLiteral("20"));
}

void tst_slider_and_buttons::fixedSliderCannotBeMoved() {
    Desk desk;
    desk.setUp(50, 50, 10);
    desk.field.Ifield_SetEnabled();
    const int position = desk.slider().value();
    QVERIFY(!desk.slider().isEnabled());
    WindowInput::click(desk.button("cmdUp"));
    desk.field.Ifield_SetValue(80, false);
    QCOMPARE(desk.slider().value(), position);
    QCOMPARE(desk.field.Ifield_GetValue().toInt(), 80);
    QCOMPARE(desk.changes(), QStringLiteral("0"));
}

void tst_slider_and_buttons::outsideValuesKeepTheMargin_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::newRow("number") << "70" << true;
    QTest::newRow("at the margin") << "80" << true;
    QTest::newRow("beyond the margin") << "81" << false;
    QTest::newRow("no number") << "Auto" << false;
    QTest::newRow("nothing") << "" << false;
}

void tst_slider_and_buttons::outsideValuesKeepTheMargin() {
    QFETCH(QString, text);
    QFETCH(bool, taken);
    Desk desk;
    desk.bench.services.clipboard.SetText(text);
    QCOMPARE(desk.field.Ifield_GetEditOperations(), taken ? 6 : 2);
    desk.field.Ifield_Paste();
    QCOMPARE(desk.readOut().text(), taken ? text : QStringLiteral("50"));
    QCOMPARE(desk.changes(), taken ? QStringLiteral("1") : QStringLiteral("0"));
    desk.field.Ifield_Paste(); // the same again is no change
    QCOMPARE(desk.changes(), QStringLiteral("0"));
    desk.field.Ifield_SetDisabled();
    QCOMPARE(desk.field.Ifield_GetEditOperations(), 2);
}

void tst_slider_and_buttons::eachStateOfTheSlider() {
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

void tst_slider_and_buttons::focusIsToldWithTheValue() {
    Desk desk;
    auto &other = desk.bench.add<fldTextField>(QStringLiteral("Other"));
    other.show();
    WindowInput::key(Qt::Key_Tab);
    const QStringList left{QStringLiteral("TxPower.Validate"), QStringLiteral("TxPower.ExitFocus"),
                           QStringLiteral("TxPower.LostFocus"), QStringLiteral("Other.GotFocus")};
    QCOMPARE(desk.bench.takeHeard(), left);
    WindowInput::click(desk.button("cmdDown")); // a press on any part brings the focus
    QVERIFY(desk.slider().hasFocus());
    QCOMPARE(desk.bench.takeHeard().mid(3),
             (QStringList{QStringLiteral("TxPower.EnterFocus"), QStringLiteral("TxPower.GotFocus"), kChange}));
}

void tst_slider_and_buttons::escapeEndsInTheSlider() {
    Desk desk;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();
    QCoreApplication::sendEvent(&desk.slider(), &escape);
    QVERIFY(escape.isAccepted());
    QVERIFY(desk.bench.takeHeard().isEmpty());
}

void tst_slider_and_buttons::partsAreNamed() {
    Desk desk;
    QCOMPARE(desk.readOut().accessibleName(), QStringLiteral("Tx Power"));
    QCOMPARE(desk.button("cmdUp").accessibleName(), QStringLiteral("Tx Power: one step up"));
    QCOMPARE(roleOf(desk.slider()), QAccessible::Slider);
}

void tst_slider_and_buttons::callUpHandsOverItsRequest_data() {
    QTest::addColumn<QString>("way");
    for (const char *way : {"click", "blank", "enter", "access key"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_slider_and_buttons::callUpHandsOverItsRequest() {
    QFETCH(QString, way);
    FieldBench bench;
    bench.services.translate({QStringLiteral("&Details|&Détails"), QStringLiteral("Call 2|Appel 2")});
    bench.window.setObjectName(QStringLiteral("desk"));
    RecordingOpener opener;
    const FieldProperties properties{QStringLiteral("bench.json"),
                                     QStringLiteral("callUp"),
                                     {{QStringLiteral("SubFormControlName"), QStringLiteral("usrctlDetail")},
                                      {QStringLiteral("SubFormDescription"), QStringLiteral("Call 2")},
                                      {QStringLiteral("SubFormRecordNr"), 2},
                                      {QStringLiteral("Caption"), QStringLiteral("&Details")}}};
    fldSubFormCallUp callUp(bench.services.fieldServices(), properties, opener, &bench.window);
    QCOMPARE(callUp.SetControlSize({{1110}, {900}}), (TwipSize{{1110}, {365}}));
    bench.show();
    auto &button = FieldBench::part<QPushButton>(callUp, "cmdCallUp");
    pressBy(way, button);
    QTRY_COMPARE(opener.opened.size(), 1); // an access key shows the button pressed for a moment
    callUp.SubFormRecordNr(0);
    pressBy(way, button);
    QTRY_COMPARE(opener.opened.size(), 2);
    QCOMPARE(opener.opened, (QStringList{QStringLiteral("usrctlDetail \"Call 2\" 2 above desk"),
                                         QStringLiteral("usrctlDetail \"Call 2\" 0 above desk")}));
    QCOMPARE(button.accessibleName(), QStringLiteral("Détails"));
    QCOMPARE(button.accessibleDescription(), QStringLiteral("Appel 2"));
    QVERIFY(callUp.AsField() == nullptr);
}

void tst_slider_and_buttons::triggerFiresItsAction() {
    FieldBench bench;
    const FieldProperties properties{
        QStringLiteral("bench.json"), QStringLiteral("t"), {{QStringLiteral("ID"), QStringLiteral("TestTone")}}};
    fldTrigger trigger(bench.services.fieldServices(), properties, &bench.window);
    bench.show();
    auto &button = FieldBench::part<QPushButton>(trigger, "Button1");
    QCOMPARE(button.text(), QStringLiteral("Execute"));
    QCOMPARE(button.pos(), QPoint(2, 3)); // 25 and 50 twips
    static_cast<void>(bench.log.take());
    pressBy(QStringLiteral("enter"), button);
    QCOMPARE(bench.log.take(), QStringList{QStringLiteral("FireTrigger(TestTone)")});
}

void tst_slider_and_buttons::failureInsideAButtonIsReported() {
    FieldBench bench;
    bench.component.when(QStringLiteral("FireTrigger"))
        .raises(RunTimeError(5, QStringLiteral("x"), QStringLiteral("y")));
    fldTrigger trigger(bench.services.fieldServices(), {QStringLiteral("bench.json"), QStringLiteral("t"), {}},
                       &bench.window);
    bench.show();
    bench.services.errorSink.expectReport();
    pressBy(QStringLiteral("click"), FieldBench::part<QPushButton>(trigger, "Button1"));
    QVERIFY(bench.services.errors.HasReported());
}

QTEST_MAIN(tst_slider_and_buttons)
#include "tst_slider_and_buttons.moc"
