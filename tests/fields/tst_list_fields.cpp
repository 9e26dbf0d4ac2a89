#include "field_bench.h"
#include "fld_combo_field.h"
#include "fld_id_tracker_field.h"
#include "rows.h"
#include "window_input.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {
const QString kName = u"TxPower"_s;
const QString kClick = u"TxPower.Click"_s;
QComboBox &combo(const QWidget &field) { return FieldBench::part<QComboBox>(field, "Combo1"); }

fldComboField &addCombo(FieldBench &bench, const QStringList &items, const QString &map = {}) {
    auto &field = bench.add<fldComboField>(kName, QVariantMap{{u"ComboIndex"_s, map}});
    for (const QString &item : items)
        field.AddItem(item);
    return field;
}

const QStringList &threeItems() {
    static const QStringList kItems{u"Alpha"_s, u"Bravo"_s, u"Charlie"_s};
    return kItems;
}

fldIdTrackerField &addTracker(FieldBench &bench) {
    auto &field = bench.add<fldIdTrackerField>(kName);
    field.AddItem(u"Fleet"_s, u"7"_s);
    field.AddItem(u"Workshop"_s, u"9"_s);
    return field;
}

struct ComboBench : FieldBench {
    fldComboField &field = addCombo(*this, threeItems());
};

struct TrackerBench : FieldBench {
    fldIdTrackerField &field = addTracker(*this);
};

void pickInOpenList(QComboBox &list, int row) {
    list.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(list.view()->window()));
    const QRect cell = list.view()->visualRect(list.model()->index(row, 0));
    // The list passes over a release that follows its opening too closely.
    QTest::qWait(QApplication::doubleClickInterval() + 10);
    WindowInput::clickAt(*list.view()->viewport(), cell.center());
}
} // namespace

class tst_list_fields final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void comboTakesItsValue() {
        const QString threes = u"0|5|10"_s;
        const QString large = u"Combo field '%0:S' is being set to item '%1:S' which is too large"_s;
        const QString word = u"Combo field '%0:S' is being set to item '%1:S' which is not numeric"_s;

        for (const auto &[map, value, index, ok, message] : Rows<QString, QVariant, int, bool, QString>{
                 {"position", {}, 2, 2, true, {}},
                 {"position as text", {}, u"2"_s, 2, true, {}},
                 {"half rounds to even", {}, 0.5, 0, true, {}},
                 {"below 0 clears", {}, -7, -1, true, {}},
                 {"too large", {}, 3, 1, false, large},
                 {"a word", {}, u"High"_s, 1, false, word},
                 {"undefined is passed over", {}, u"Undefined"_s, 1, false, {}},
                 {"nothing is passed over", {}, QString(), 1, false, {}},
                 {"stored value", threes, 5, 1, true, {}},
                 {"unknown stored value takes the last", threes, 7, 2, true, {}},
                 {"compared as text", threes, u"05"_s, 2, true, {}},
                 {"no stored value clears", threes, QString(), -1, true, {}},
             }) {
            FieldBench bench;
            auto &field = addCombo(bench, threeItems(), map);
            combo(field).setCurrentIndex(1);
            if (!message.isEmpty())
                bench.services.boxes.expect(message, 1);
            QCOMPARE(field.Ifield_SetValue(value, false), ok);
            QCOMPARE(int(field.ListIndex()), index);
            QCOMPARE(bench.takeHeard(), QStringList());
        }
    }

    void comboGivesItsValue() {
        struct Row {
            const char *map;
            int index;
            int value;
        };
        for (const auto &[map, index, value] :
             {Row{"", 2, 2}, Row{"", -1, -1}, Row{"0|5|10", 2, 10}, Row{"-3|5|10", 0, -3}}) {
            FieldBench bench;
            auto &field = addCombo(bench, threeItems(), QString::fromLatin1(map));
            combo(field).setCurrentIndex(index);
            QCOMPARE(field.Ifield_GetValue().toInt(), value);
        }
    }

    void failingTranslationIsReportedWithItsText() {
        FieldBench bench;
        auto &field = addCombo(bench, threeItems(), u"0|5|10"_s);
        combo(field).setCurrentIndex(-1);
        bench.services.errorSink.expectReport();
        (void)field.Ifield_GetValue();
        QCOMPARE(bench.services.errorSink.reports().size(), 1);
        QVERIFY(bench.services.errorSink.reports().first().endsWith(u"Error setting combo item value "_s));
    }

    void firstItemMayBeMissingOrUndefined() {
        FieldBench bench;
        QVERIFY(!addCombo(bench, {}).Ifield_SetValue(0, false));
        FieldBench other;
        auto &field = addCombo(other, {u"Undefined"_s, u"On"_s});
        QVERIFY(field.Ifield_SetValue(1, false));
        QCOMPARE(field.List(0), QString());
    }

    void mouseReportsAtOnceKeysAtTheEnd() {
        ComboBench bench;
        bench.field.Ifield_SetValue(0, false);
        bench.showWithFocus(bench.field);
        pickInOpenList(combo(bench.field), 1);
        QCOMPARE(bench.field.ListIndex(), 1);
        QCOMPARE(bench.takeHeard(), QStringList(kClick));
        WindowInput::key(Qt::Key_Down);
        QCOMPARE(bench.field.ListIndex(), 2);
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.field.FocusHasLeft();
        QCOMPARE(bench.takeHeard(), (QStringList{kClick, u"TxPower.LostFocus"_s}));
        bench.field.FocusHasLeft();
        QCOMPARE(bench.takeHeard(), QStringList(u"TxPower.LostFocus"_s));
    }

    void choiceByCodeIsNotReported() {
        ComboBench bench;
        bench.show();
        bench.field.Ifield_SetValue(2, false);
        bench.field.Ifield_SetValue(1, true);
        QCOMPARE(bench.takeHeard(), QStringList(u"TxPower.ManualValidate"_s));
    }

    void choiceDuringAFormChangeIsNotReported() {
        for (const auto &[tracker, heardAtOnce] : Rows<bool, QStringList>{
                 {"combo", false, {}},
                 {"an ID tracker is held back only at the end", true, QStringList(kClick)},
             }) {
            FieldBench bench;
            ListField &field = tracker ? static_cast<ListField &>(addTracker(bench)) : addCombo(bench, threeItems());
            bench.show();
            bench.services.shell.changingForms = true;
            combo(field).setCurrentIndex(1);
            Q_EMIT combo(field).activated(1); // as the open list does it
            QCOMPARE(bench.takeHeard(), heardAtOnce);
            bench.services.shell.changingForms = false;
            field.Ifield_SetFocus();
            WindowInput::key(Qt::Key_Up);
            bench.services.shell.changingForms = true;
            bench.takeHeard();
            field.FocusHasLeft();
            QCOMPARE(bench.takeHeard(), QStringList(u"TxPower.LostFocus"_s));
        }
    }

    void typingChoosesAndWaits() {
        ComboBench bench;
        bench.field.Ifield_SetValue(0, false);
        bench.showWithFocus(bench.field);
        WindowInput::type(u"cz"_s);
        QCOMPARE(bench.field.Text(), u"Charlie"_s);
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.field.FocusHasLeft();
        QVERIFY(bench.takeHeard().contains(kClick));
        WindowInput::type(u"b"_s); // what was typed before is forgotten
        QCOMPARE(bench.field.Text(), u"Bravo"_s);
    }

    void blankTypesAndDoesNotOpenTheList() {
        FieldBench bench;
        auto &field = addCombo(bench, {u"A B"_s, u"A C"_s, u"A"_s});
        bench.showWithFocus(field);
        WindowInput::type(u"a c"_s);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(field.ListIndex(), 1);
    }

    void escapeIsToldAndClosesAnOpenListSilently() {
        ComboBench bench;
        bench.showWithFocus(bench.field);
        WindowInput::key(Qt::Key_Escape);
        QCOMPARE(bench.takeHeard(), QStringList(u"TxPower.Escape"_s));
        combo(bench.field).showPopup();
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        WindowInput::key(Qt::Key_Escape);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void wheelActsOnlyWithFocus() {
        ComboBench bench;
        bench.add<fldComboField>(u"Other"_s);
        bench.field.Ifield_SetValue(0, false);
        bench.show();
        combo(bench.field).clearFocus();
        const auto turn = [&bench] {
            const QPointF middle = combo(bench.field).rect().center();
            QWheelEvent wheel(middle, combo(bench.field).mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&combo(bench.field), &wheel);
        };
        turn();
        QCOMPARE(bench.field.ListIndex(), 0);
        bench.field.Ifield_SetFocus();
        bench.takeHeard();
        turn();
        QCOMPARE(bench.field.ListIndex(), 1);
        QCOMPARE(bench.takeHeard(), QStringList(kClick));
    }

    void pasteChoosesOnlyAnExactItem() {
        ComboBench bench;
        bench.field.Ifield_SetValue(0, false);
        bench.show();
        for (const char *text : {"bravo", "Brav", "Bravo ", ""}) {
            bench.services.clipboard.SetText(QString::fromLatin1(text));
            bench.field.Ifield_Paste();
            QCOMPARE(bench.field.ListIndex(), 0);
        }
        bench.services.clipboard.SetText(u"Bravo"_s);
        bench.field.Ifield_Paste();
        bench.field.Ifield_Paste(); // no change, no second report
        QCOMPARE(bench.field.ListIndex(), 1);
        QCOMPARE(bench.takeHeard(), QStringList(kClick));
    }

    void neverCut() {
        ComboBench bench;
        bench.field.Ifield_SetValue(1, false);
        QCOMPARE(bench.field.Ifield_GetEditOperations(), 6);
        bench.field.Ifield_Cut();
        QCOMPARE(bench.field.ListIndex(), 1);
        QCOMPARE(bench.services.clipboard.Text(), u"Bravo"_s);
    }

    void trackerShowsAnUnknownValueAndKeepsIt() {
        TrackerBench bench;
        QVERIFY(bench.field.Ifield_SetValue(42, false));
        QCOMPARE(bench.field.Text(), u"42"_s);
        QCOMPARE(bench.field.Ifield_GetValue(), QVariant(42));
        QVERIFY(bench.field.Ifield_SetValue(42, false));
        QCOMPARE(bench.field.ListCount(), 3); // the second time it finds the first one's item
    }

    void trackerPassesOverUndefinedAndAnEmptyList() {
        TrackerBench bench;
        bench.field.Ifield_SetValue(u"Workshop"_s, false);
        QVERIFY(bench.field.Ifield_SetValue(u"Undefined"_s, false));
        QCOMPARE(bench.field.Text(), u"Workshop"_s);
        bench.field.Clear();
        QVERIFY(bench.field.Ifield_SetValue(u"Fleet"_s, false));
        QCOMPARE(bench.field.ListCount(), 0);
    }

    void lastItemOfExactlyThatTextDecidesItsValue() {
        for (const auto &[added, value] : {std::pair("Fleet", "8"), std::pair("FLEET", "7")}) {
            FieldBench bench;
            auto &field = addTracker(bench);
            field.AddItem(QString::fromLatin1(added), u"8"_s);
            field.Ifield_SetValue(u"Fleet"_s, false);
            QCOMPARE(field.Ifield_GetValue(), QVariant(QString::fromLatin1(value)));
        }
    }

    void trackerWithoutAChoiceFailsIntoTheReport() {
        TrackerBench bench;
        combo(bench.field).setCurrentIndex(-1);
        bench.services.errorSink.expectReport();
        (void)bench.field.Ifield_GetValue();
        QCOMPARE(bench.services.errorSink.reports().size(), 1);
        QVERIFY(bench.services.errorSink.reports().first().contains(u": Ifield_GetValue\r\n"_s));
    }

    void trackerFillsAnewBeforeItsListOpens() {
        TrackerBench bench;
        bench.show();
        bool openAtInitialise = true;
        bench.listener(kName).on = [&](const QString &event) {
            if (event != u"Initialise"_s)
                return;
            openAtInitialise = QApplication::activePopupWidget() != nullptr;
            bench.field.AddItem(u"New"_s, u"11"_s);
        };
        bench.field.Ifield_SetFocus();
        WindowInput::key(Qt::Key_F4);
        QVERIFY(!openAtInitialise);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QCOMPARE(combo(bench.field).view()->model()->rowCount(), 3);
        combo(bench.field).hidePopup();
    }

    void storedNameFindsItsTranslatedItem() {
        FieldBench bench;
        bench.services.translate({u"None|Aucun"_s});
        auto &field = addTracker(bench);
        field.AddItem(u"Aucun"_s, u"0"_s);
        field.Ifield_SetValue(u"None"_s, false);
        QCOMPARE(field.ListIndex(), 2);
        QCOMPARE(field.ListCount(), 3);
    }
};

QTEST_MAIN(tst_list_fields)
#include "tst_list_fields.moc"
