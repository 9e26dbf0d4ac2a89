#include "field_bench.h"
#include "fld_checkbox_field.h"
#include "fld_combo_field.h"
#include "fld_frame.h"
#include "fld_id_tracker_field.h"
#include "fld_text_field.h"
#include "rows.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kName = u"Target"_s;

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
    void textFieldTakesOnlyItsOwnKind() {
        for (const auto &[text, taken] : Rows<QString, bool>{
                 {"another text field", u"Other|fldTextField|x"_s, true},
                 {"its own", u"Target|fldTextField|x"_s, true},
                 {"an empty value", u"Other|fldTextField|"_s, true},
                 {"a combo", u"Other|fldComboField|x"_s, false},
                 {"a bar in the value", u"Other|fldTextField|a|b"_s, false},
                 {"a frame", u"Details|fldFrame~Other|fldTextField|x"_s, false},
                 {"a file", u"file:///tmp/a.k4p"_s, false},
             }) {
            FieldBench bench;
            auto &field = bench.add<fldTextField>(kName);
            for (const char *part : {"Label1", "Text1"})
                QCOMPARE(offer(FieldBench::part<QWidget>(field, part), text), taken);
        }
    }

    void textFieldRefusesWhileItCannotBeEdited() {
        FieldBench bench;
        const QString text = u"Other|fldTextField|x"_s;
        auto &readOnly = bench.add<fldTextField>(u"ReadOnly"_s, QVariantMap{{u"ReadOnly"_s, true}});
        QVERIFY(!offer(labelOf(readOnly), text));
        auto &field = bench.add<fldTextField>(kName);
        field.Ifield_SetDisabled();
        QVERIFY(!offer(labelOf(field), text));
    }

    void droppedTextIsWrittenToTheShownRecord() {
        for (const auto &[stream, record] : {std::pair(0, 1), std::pair(1, 5)}) {
            FieldBench bench;
            auto &field = bench.add<fldTextField>(kName, QVariantMap{{u"NavigatorStream"_s, stream}});
            field.Ifield_SetRecordNumber(5);
            (void)bench.log.take();
            drop(labelOf(field), u"Other|fldTextField|new"_s);
            QCOMPARE(bench.log.linesOf(u"SetValue"_s), QStringList(u"SetValue(Target, new, %1, true)"_s.arg(record)));
            QCOMPARE(field.Text(), u"new"_s);
        }
    }

    void refusedDropPutsTheOldTextBack() {
        FieldBench bench;
        auto &field = bench.add<fldTextField>(kName);
        field.Ifield_SetValue(u"old"_s, false);
        bench.component.when(u"SetValue"_s, kName).refuses();
        drop(labelOf(field), u"Other|fldTextField|new"_s);
        QCOMPARE(field.Text(), u"old"_s);
    }

    void listTakesAnyKindWhoseTextIsAnItem() {
        FieldBench bench;
        auto &field = bench.add<fldComboField>(kName);
        field.AddItem(u"Low"_s);
        field.AddItem(u"High"_s);
        field.Ifield_SetValue(0, false);
        QVERIFY(!offer(labelOf(field), u"Other|fldComboField|high"_s));
        QVERIFY(!offer(labelOf(field), u"Other|fldComboField|1"_s));
        QVERIFY(offer(labelOf(field), u"Other|fldTextField|High"_s));
        drop(FieldBench::part<QWidget>(field, "Combo1"), u"Other|fldTextField|High"_s);
        QCOMPARE(field.ListIndex(), 1);
        QCOMPARE(bench.takeHeard(), QStringList(u"Target.Click"_s));
        field.Ifield_SetDisabled();
        QVERIFY(!offer(labelOf(field), u"Other|fldTextField|Low"_s));
    }

    void checkBoxTakesZeroAndOne() {
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

    void frameTakesNothing() {
        FieldBench bench;
        auto &frame = bench.add<fldFrame>(kName);
        for (const char *part : {"Frame1", "Label1"})
            QVERIFY(!FieldBench::part<QWidget>(frame, part).acceptDrops());
    }

    void dragStartsBehindTheThreshold() {
        for (const auto &[button, way, enabled, starts] : Rows<int, QPoint, bool, bool>{
                 {"12 pixels are not more than 180 twips", int(Qt::LeftButton), {12, 0}, true, false},
                 {"to the right", int(Qt::LeftButton), {13, 0}, true, true},
                 {"upwards", int(Qt::LeftButton), {0, -13}, true, true},
                 {"across, each less than the threshold", int(Qt::LeftButton), {12, 12}, true, false},
                 {"right button", int(Qt::RightButton), {20, 0}, true, true},
                 {"middle button", int(Qt::MiddleButton), {20, 0}, true, false},
                 {"disabled field", int(Qt::LeftButton), {20, 0}, false, false},
             }) {
            FieldBench bench;
            auto &field = bench.add<fldTextField>(kName, QVariantMap{{u"Enabled"_s, enabled}});
            bench.show();
            dragBy(labelOf(field), Qt::MouseButton(button), way);
            const QStringList &told = bench.services.shell.told;
            QCOMPARE(told.size(), starts ? 2 : 0); // the start and the end
            if (starts)
                QVERIFY(told.first().contains(kName) && told.first().contains(u"fldTextField"_s));
        }
    }

    void onlyTheRightButtonDragsACheckBox() {
        FieldBench bench;
        auto &field = bench.add<fldCheckboxField>(kName);
        bench.show();
        dragBy(checkOf(field), Qt::LeftButton, {30, 0});
        QCOMPARE(bench.services.shell.told, QStringList());
        bench.takeHeard();
        dragBy(checkOf(field), Qt::RightButton, {30, 0});
        QCOMPARE(bench.services.shell.told.size(), 2);
        QVERIFY(!bench.takeHeard().contains(u"Target.Click"_s));
        dragBy(checkOf(field), Qt::LeftButton, {0, 0}); // a later click counts again
        QVERIFY(bench.takeHeard().contains(u"Target.Click"_s));
    }

    void frameAsksForItsFields() {
        FieldBench bench;
        auto &frame = bench.add<fldFrame>(kName, QVariantMap{{u"Caption"_s, u"Details"_s}});
        bench.listener(kName).fieldsInFrame = {u"A|fldTextField|1"_s, u"B|fldComboField|2"_s};
        bench.show();
        dragBy(FieldBench::part<QWidget>(frame, "Frame1"), Qt::LeftButton, {20, 0});
        QCOMPARE(bench.takeHeard(), QStringList(u"Target.GetFieldsInFrame"_s));
        QVERIFY(bench.services.shell.told.first().contains(u"Details"_s));
    }
};

QTEST_MAIN(tst_field_drag)
#include "tst_field_drag.moc"
