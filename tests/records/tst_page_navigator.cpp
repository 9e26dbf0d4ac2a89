#include "combo_list.h"
#include "navigator_bench.h"
#include "navigator_slider.h"
#include "rows.h"
#include "window_input.h"

#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {
QStringList moveTo(qint32 position) {
    return {u"ChangePositionStorage Stored %1"_s.arg(position), u"ChangedPosition Stored 3 %1"_s.arg(position)};
}

QStringList asked(qint32 position) { return moveTo(position).mid(0, 1); }
} // namespace

// Positions, counts and names.
class tst_page_navigator final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void countSetsTheRange() {
        for (const auto &[count, minimum, maximum, frequency, position] : Rows<int, int, int, int, int>{
                 {"none", 0, 0, 1, 0, 0},
                 {"below none", -4, 0, 1, 0, 0},
                 {"one", 1, 1, 2, 0, 1},
                 {"two", 2, 1, 2, 1, 2},
                 {"ten", 10, 1, 10, 1, 2},
                 {"twenty-five", 25, 1, 25, 2, 2},
             }) {
            NavigatorBench bench;
            bench.open(5, 2);
            bench.setRecords(count);
            QCOMPARE(bench.slider().minimum(), minimum);
            QCOMPARE(bench.slider().maximum(), maximum);
            QCOMPARE(bench.slider().tickInterval(), frequency);
            QCOMPARE(int(bench.navigator->Inavigator_Position()), position);
            QCOMPARE(bench.navigator->Inavigator_NumberRecords(), qMax(0, count));
            QCOMPARE(bench.list().count(), qMax(0, count));
            QCOMPARE(bench.list().currentIndex(), bench.navigator->Inavigator_Position() - 1);
            QCOMPARE(bench.slider().isEnabled() && bench.list().isEnabled(), count > 0);
        }
    }

    // A form that opens again comes back to its record.
    void countLeavesAPositionThatStillExists() {
        NavigatorBench bench;
        bench.open(9, 7);
        bench.setRecords(8);
        QCOMPARE(bench.navigator->Inavigator_Position(), 7);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void smallerCountMovesToTheLastRecord() {
        NavigatorBench bench;
        bench.open(9, 9);
        bench.setRecords(8);
        QCOMPARE(bench.takeHeard(), moveTo(8));
        QCOMPARE(bench.list().currentText(), u"Name: Alpha8"_s);
    }

    void firstRecordsStoreAPositionWhereNoneIsStored() {
        NavigatorBench bench;
        bench.component.when(u"GetValue"_s, u"Stored"_s).answers(u"0"_s);
        bench.setRecords(4);
        QCOMPARE(bench.takeHeard(), asked(1));
        bench.component.when(u"GetValue"_s, u"Stored"_s).answersUndefined();
        bench.setRecords(5);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void everyWayOfMovingAsksAndThenTellsOrGoesBack() {
        using Move = std::function<void(NavigatorBench &)>;
        const auto click = [](const char *name) {
            return Move([name](NavigatorBench &bench) { bench.button(name).click(); });
        };
        const auto press = [](Qt::Key key) {
            return Move([key](NavigatorBench &bench) { QTest::keyClick(&bench.slider(), key); });
        };

        for (const auto &[move, position] : Rows<Move, int>{
                 {"first", click("cmdFirst"), 1},
                 {"back", click("cmdBack"), 2},
                 {"forward", click("cmdForward"), 4},
                 {"last", click("cmdLast"), 25},
                 {"arrow", press(Qt::Key_Right), 4},
                 {"page", press(Qt::Key_PageUp), 5},
                 {"end", press(Qt::Key_End), 25},
                 {"list", Move([](NavigatorBench &bench) { QTest::keyClick(&bench.list(), Qt::Key_Down); }), 4},
                 {"enabler", Move([](NavigatorBench &bench) { bench.navigator->Inavigator_Position(9); }), 9},
                 {"field", Move([](NavigatorBench &bench) { bench.navigator->Ifield_SetRecordNumber(9); }), 9},
                 {"forced", Move([](NavigatorBench &bench) { bench.navigator->Inavigator_ForcePositionChange(3); }), 3},
                 {"below the range", Move([](NavigatorBench &bench) { bench.navigator->Inavigator_Position(-1); }), 1},
             }) {
            NavigatorBench refusing;
            refusing.open(25, 3);
            refusing.listener.acceptsPosition = false;
            move(refusing);
            const QStringList heard = refusing.takeHeard();
            QVERIFY(heard.contains(asked(position).front()) && heard.filter(u"ChangedPosition"_s).isEmpty());
            QCOMPARE(refusing.navigator->Inavigator_Position(), 3);
            QCOMPARE(refusing.list().currentText(), u"Name: Alpha3"_s);
            NavigatorBench bench;
            bench.open(25, 3);
            move(bench);
            QCOMPARE(bench.takeHeard(), moveTo(position));
            QCOMPARE(bench.navigator->Inavigator_Position(), position);
            QCOMPARE(bench.list().currentText(), u"Name: Alpha%1"_s.arg(position));
        }
    }

    void movesBeyondTheEndsAreNotHeard() {
        NavigatorBench bench;
        bench.open(1, 1);
        for (const char *name : {"cmdFirst", "cmdBack", "cmdForward", "cmdLast"})
            bench.button(name).click();
        QTest::keyClick(&bench.slider(), Qt::Key_End);
        QCOMPARE(bench.navigator->Inavigator_Position(), 1);
        bench.open(4, 4);
        bench.button("cmdForward").click();
        bench.button("cmdLast").click();
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.open(0, 0);
        for (const char *name : {"cmdFirst", "cmdBack", "cmdForward", "cmdLast"})
            bench.button(name).click();
        bench.navigator->Inavigator_Position(1);
        QCOMPARE(bench.navigator->Inavigator_Position(), 0);
        QCOMPARE(bench.takeHeard(), QStringList());
    }

    void samePositionIsAskedForOnlyWhenForced() {
        NavigatorBench bench;
        bench.open(5, 3);
        bench.navigator->Inavigator_Position(3);
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.navigator->Inavigator_ForcePositionChange(3);
        QCOMPARE(bench.takeHeard(), moveTo(3));
        // The records have changed: what stands at the position may be another.
        bench.setRecords(5);
        bench.navigator->Inavigator_Position(3);
        QCOMPARE(bench.takeHeard(), moveTo(3));
    }

    // A grid that follows the move reports its new row while the move is still under way.
    void moveInsideAMoveIsIgnored() {
        NavigatorBench bench;
        bench.open(5, 3);
        bench.listener.on = [&](const QString &) { bench.navigator->Inavigator_Position(1); };
        bench.navigator->Inavigator_Position(4);
        QCOMPARE(bench.takeHeard(), moveTo(4));
        bench.listener.on = nullptr;
        bench.navigator->Inavigator_Position(2);
        QCOMPARE(bench.takeHeard(), moveTo(2));
    }

    void withoutAStorageNothingIsHeard() {
        NavigatorBench bench({{u"PositionStorageUIID"_s, QString()}});
        bench.open(5, 1);
        bench.navigator->Inavigator_Position(2);
        bench.navigator->Inavigator_ForcePositionChange(3);
        QCOMPARE(bench.takeHeard(), QStringList());
        QVERIFY(bench.log.linesOf(u"GetValue"_s).filter(u"GetValue(,"_s).isEmpty());
    }

    void draggedThumbShowsNamesAndMovesAtTheRelease() {
        NavigatorBench bench;
        bench.open(5, 1);
        bench.slider().setSliderDown(true);
        bench.slider().setSliderPosition(4);
        QCOMPARE(bench.list().currentText(), u"Name: Alpha4"_s);
        QCOMPARE(bench.navigator->Inavigator_Position(), 1);
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.slider().setSliderDown(false);
        QCOMPARE(bench.takeHeard(), moveTo(4));
    }

    void wheelActsOnlyWithFocus() {
        NavigatorBench bench;
        bench.open(5, 3);
        WindowInput::activate(bench.window);
        const auto turn = [&] {
            const QPointF middle(5, 5);
            QWheelEvent event(middle, bench.slider().mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&bench.slider(), &event);
        };
        bench.button("cmdForward").setFocus();
        turn();
        QCOMPARE(bench.takeHeard(), QStringList());
        bench.slider().setFocus();
        turn();
        QVERIFY(!bench.takeHeard().isEmpty());
    }

    void namesBearThePrefix() {
        for (const auto &[name, item] : Rows<QString, QString>{
                 {"guide at first", {}, u"Name: Alpha2"_s},
                 {"two halves", u"Réseau|Réseaux"_s, u"Réseau: Alpha2"_s},
                 {"no prefix", u"NULL|Networks"_s, u"Alpha2"_s},
             }) {
            NavigatorBench bench;
            if (!name.isEmpty())
                bench.navigator->Ifield_SetName(name);
            bench.setRecords(3);
            bench.component.when(u"GetValue"_s, u"Name"_s, 3).answersUndefined();
            bench.navigator->Inavigator_Position(2);
            QCOMPARE(bench.list().currentText(), item);
            QVERIFY(!bench.list().itemText(2).contains(u"Undefined"));
            if (!name.isEmpty()) {
                QCOMPARE(bench.navigator->Ifield_GetName(), name.section(u'|', 0, 0));
                QCOMPARE(bench.list().accessibleName(), name.section(u'|', 1));
                QCOMPARE(bench.slider().accessibleName(), name.section(u'|', 0, 0));
            }
        }
    }

    void namesAreReadAgainAtEachMove() {
        NavigatorBench bench;
        bench.open(3, 1);
        bench.component.when(u"GetValue"_s, u"Name"_s, 3).answers(u"Bravo"_s);
        bench.navigator->Inavigator_Position(2);
        QCOMPARE(bench.list().itemText(2), u"Name: Bravo"_s);
    }

    void closedInsideAMoveAsksNothingMore() {
        for (const QString &inside : {u"ChangePositionStorage"_s, u"ChangedPosition"_s}) {
            NavigatorBench bench;
            bench.open(5, 3);
            bench.listener.on = [&](const QString &event) {
                if (event == inside)
                    bench.navigator->Ifield_Terminate();
                (void)bench.log.take();
            };
            bench.navigator->Inavigator_Position(4);
            QVERIFY(bench.listener.heard.last().startsWith(inside));
            QCOMPARE(bench.log.lines(), QStringList());
        }
    }
};

QTEST_MAIN(tst_page_navigator)
#include "tst_page_navigator.moc"
