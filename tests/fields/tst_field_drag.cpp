#include "field_bench.h"
#include "fld_checkbox_field.h"
#include "fld_combo_field.h"
#include "fld_frame.h"
#include "fld_id_tracker_field.h"
#include "fld_text_field.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

namespace {
const QString kName = QStringLiteral("Target");

// A drag of that text over the part and away again: whether enter and move were taken as a copy.
bool offer(QWidget &part, const QString &text) {
    QMimeData data;
    data.setText(text);
    const QPoint middle = part.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&part, &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&part, &move);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&part, &leave);
    return move.isAccepted() && move.dropAction() == Qt::CopyAction;
}

// A drop reaches only a part that has taken the drag's entry.
void drop(QWidget &part, const QString &text) {
    QMimeData data;
    data.setText(text);
    const QPoint middle = part.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&part, &enter);
    QDropEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&part, &event);
}

// Press at 5, 5, then a move by that way, with the button down.
void dragBy(QWidget &part, Qt::MouseButton button, const QPoint &way) {
    const QPointF start(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, start, part.mapToGlobal(start), button, button, Qt::NoModifier);
    QApplication::sendEvent(&part, &press);
    const QPointF end = start + way;
    QMouseEvent move(QEvent::MouseMove, end, part.mapToGlobal(end), Qt::NoButton, button, Qt::NoModifier);
    QApplication::sendEvent(&part, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, end, part.mapToGlobal(end), button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&part, &release);
}

QWidget &labelOf(const QWidget &field) { return FieldBench::part<QWidget>(field, "Label1"); }
QWidget &checkOf(const QWidget &field) { return FieldBench::part<QWidget>(field, "Check1"); }
} // namespace

class tst_field_drag final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void textFieldTakesOnlyItsOwnKind_data();
    void textFieldTakesOnlyItsOwnKind();
    void textFieldRefusesWhileItCannotBeEdited();
    void droppedTextIsWrittenToTheShownRecord();
    void refusedDropPutsTheOldTextBack();
    void listTakesAnyKindWhoseTextIsAnItem();
    void checkBoxTakesZeroAndOne();
    void frameTakesNothing();
    void dragStartsBehindTheThreshold_data();
    void dragStartsBehindTheThreshold();
    void onlyTheRightButtonDragsACheckBox();
    void frameAsksForItsFields();
};

void tst_field_drag::textFieldTakesOnlyItsOwnKind_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::newRow("another text field") << QStringLiteral("Other|fldTextField|x") << true;
    QTest::newRow("its own") << QStringLiteral("Target|fldTextField|x") << true;
    QTest::newRow("an empty value") << QStringLiteral("Other|fldTextField|") << true;
    QTest::newRow("a combo") << QStringLiteral("Other|fldComboField|x") << false;
    QTest::newRow("a bar in the value") << QStringLiteral("Other|fldTextField|a|b") << false;
    QTest::newRow("a frame") << QStringLiteral("Details|fldFrame~Other|fldTextField|x") << false;
    QTest::newRow("a file") << QStringLiteral("file:///tmp/a.k4p") << false;
}

void tst_field_drag::textFieldTakesOnlyItsOwnKind() {
    QFETCH(QString, text);
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    for (const char *part : {"Label1", "Text1"})
        QTEST(offer(FieldBench::part<QWidget>(field, part), text), "taken");
}

void tst_field_drag::textFieldRefusesWhileItCannotBeEdited() {
    FieldBench bench;
    const QString text = QStringLiteral("Other|fldTextField|x");
    auto &readOnly =
        bench.add<fldTextField>(QStringLiteral("ReadOnly"), QVariantMap{{QStringLiteral("ReadOnly"), true}});
    QVERIFY(!offer(labelOf(readOnly), text));
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetDisabled();
    QVERIFY(!offer(labelOf(field), text));
}

void tst_field_drag::droppedTextIsWrittenToTheShownRecord() {
    for (const auto &[stream, record] : {std::pair(0, 1), std::pair(1, 5)}) {
        FieldBench bench;
        auto &field = bench.add<fldTextField>(kName, QVariantMap{{QStringLiteral("NavigatorStream"), stream}});
        field.Ifield_SetRecordNumber(5);
        (void)bench.log.take();
        drop(labelOf(field), QStringLiteral("Other|fldTextField|new"));
        QCOMPARE(bench.log.linesOf(QStringLiteral("SetValue")),
                 QStringList(QStringLiteral("SetValue(Target, new, %1, true)").arg(record)));
        QCOMPARE(field.Text(), QStringLiteral("new"));
    }
}

void tst_field_drag::refusedDropPutsTheOldTextBack() {
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName);
    field.Ifield_SetValue(QStringLiteral("old"), false);
    bench.component.when(QStringLiteral("SetValue"), kName).refuses();
    drop(labelOf(field), QStringLiteral("Other|fldTextField|new"));
    QCOMPARE(field.Text(), QStringLiteral("old"));
}

void tst_field_drag::listTakesAnyKindWhoseTextIsAnItem() {
    FieldBench bench;
    auto &field = bench.add<fldComboField>(kName);
    field.AddItem(QStringLiteral("Low"));
    field.AddItem(QStringLiteral("High"));
    field.Ifield_SetValue(0, false);
    QVERIFY(!offer(labelOf(field), QStringLiteral("Other|fldComboField|high")));
    QVERIFY(!offer(labelOf(field), QStringLiteral("Other|fldComboField|1")));
    QVERIFY(offer(labelOf(field), QStringLiteral("Other|fldTextField|High")));
    drop(FieldBench::part<QWidget>(field, "Combo1"), QStringLiteral("Other|fldTextField|High"));
    QCOMPARE(field.ListIndex(), 1);
    QCOMPARE(bench.takeHeard(), QStringList(QStringLiteral("Target.Click")));
    field.Ifield_SetDisabled();
    QVERIFY(!offer(labelOf(field), QStringLiteral("Other|fldTextField|Low")));
}

void tst_field_drag::checkBoxTakesZeroAndOne() {
    struct Row {
        const char *text;
        bool offered;
        int value;
    };
    for (const auto &[text, offered, value] :
         {Row{"Other|fldCheckboxField|1", true, 1}, Row{"Other|fldCheckboxField|2", true, 0}, // offered, not taken
          Row{"Other|fldTextField|a", false, 0}}) {
        FieldBench bench;
        auto &field = bench.add<fldCheckboxField>(kName);
        QCOMPARE(offer(checkOf(field), QString::fromLatin1(text)), offered);
        if (offered)
            drop(checkOf(field), QString::fromLatin1(text));
        QCOMPARE(field.Ifield_GetValue().toInt(), value);
    }
}

void tst_field_drag::frameTakesNothing() {
    FieldBench bench;
    auto &frame = bench.add<fldFrame>(kName);
    for (const char *part : {"Frame1", "Label1"})
        QVERIFY(!FieldBench::part<QWidget>(frame, part).acceptDrops());
}

void tst_field_drag::dragStartsBehindTheThreshold_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("starts");
    QTest::newRow("12 pixels are not more than 180 twips") << int(Qt::LeftButton) << QPoint(12, 0) << true << false;
    QTest::newRow("to the right") << int(Qt::LeftButton) << QPoint(13, 0) << true << true;
    QTest::newRow("upwards") << int(Qt::LeftButton) << QPoint(0, -13) << true << true;
    QTest::newRow("across, each less than the threshold") << int(Qt::LeftButton) << QPoint(12, 12) << true << false;
    QTest::newRow("right button") << int(Qt::RightButton) << QPoint(20, 0) << true << true;
    QTest::newRow("middle button") << int(Qt::MiddleButton) << QPoint(20, 0) << true << false;
    QTest::newRow("disabled field") << int(Qt::LeftButton) << QPoint(20, 0) << false << false;
}

void tst_field_drag::dragStartsBehindTheThreshold() {
    QFETCH(int, button);
    QFETCH(QPoint, way);
    QFETCH(bool, enabled);
    QFETCH(bool, starts);
    FieldBench bench;
    auto &field = bench.add<fldTextField>(kName, QVariantMap{{QStringLiteral("Enabled"), enabled}});
    bench.show();
    dragBy(labelOf(field), Qt::MouseButton(button), way);
    const QStringList &told = bench.services.shell.told;
    QCOMPARE(told.size(), starts ? 2 : 0); // the start and the end
    if (starts)
        QVERIFY(told.first().contains(kName) && told.first().contains(QStringLiteral("fldTextField")));
}

void tst_field_drag::onlyTheRightButtonDragsACheckBox() {
    FieldBench bench;
    auto &field = bench.add<fldCheckboxField>(kName);
    bench.show();
    dragBy(checkOf(field), Qt::LeftButton, {30, 0});
    QCOMPARE(bench.services.shell.told, QStringList());
    bench.takeHeard();
    dragBy(checkOf(field), Qt::RightButton, {30, 0});
    QCOMPARE(bench.services.shell.told.size(), 2);
    QVERIFY(!bench.takeHeard().contains(QStringLiteral("Target.Click")));
    dragBy(checkOf(field), Qt::LeftButton, {0, 0}); // a later click counts again
    QVERIFY(bench.takeHeard().contains(QStringLiteral("Target.Click")));
}

void tst_field_drag::frameAsksForItsFields() {
    FieldBench bench;
    auto &frame = bench.add<fldFrame>(kName, QVariantMap{{QStringLiteral("Caption"), QStringLiteral("Details")}});
    bench.listener(kName).fieldsInFrame = {QStringLiteral("A|fldTextField|1"), QStringLiteral("B|fldComboField|2")};
    bench.show();
    dragBy(FieldBench::part<QWidget>(frame, "Frame1"), Qt::LeftButton, {20, 0});
    QCOMPARE(bench.takeHeard(), QStringList(QStringLiteral("Target.GetFieldsInFrame")));
    QVERIFY(bench.services.shell.told.first().contains(QStringLiteral("Details")));
}

QTEST_MAIN(tst_field_drag)
#include "tst_field_drag.moc"
