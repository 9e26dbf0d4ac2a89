#include "combo_list.h"
#include "navigator_bench.h"
#include "navigator_slider.h"
#include "window_input.h"

#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

namespace {
QStringList moveTo(qint32 position) {
    return {QStringLiteral("ChangePositionStorage Stored %1").arg(position),
            QStringLiteral("ChangedPosition Stored 3 %1").arg(position)};
}

QStringList asked(qint32 position) { return moveTo(position).mid(0, 1); }
} // namespace

// Positions, counts and names.
class tst_page_navigator final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void countSetsTheRange_data();
    void countSetsTheRange();
    void countLeavesAPositionThatStillExists();
    void smallerCountMovesToTheLastRecord();
    void firstRecordsStoreAPositionWhereNoneIsStored();
    void everyWayOfMovingAsksAndThenTells_data();
    void everyWayOfMovingAsksAndThenTells();
    void movesBeyondTheEndsAreNotHeard();
    void refusedMoveGoesBackWithItsNames_data();
    void refusedMoveGoesBackWithItsNames();
    void firstMoveThatIsRefusedStays();
    void samePositionIsAskedForOnlyWhenForced();
    void moveInsideAMoveIsIgnored();
    void withoutAStorageNothingIsHeard();
    void draggedThumbShowsNamesAndMovesAtTheRelease();
    void wheelActsOnlyWithFocus();
    void namesBearThePrefix_data();
    void namesBearThePrefix();
    void namesAreReadAgainAtEachMove();
    void closedInsideAMoveAsksNothingMore();
};

void tst_page_navigator::countSetsTheRange_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("position");
    QTest::newRow("none") << 0 << 0 << 1 << 0 << 0;
    QTest::newRow("below none") << -4 << 0 << 1 << 0 << 0;
    QTest::newRow("one") << 1 << 1 << 2 << 0 << 1;
    QTest::newRow("two") << 2 << 1 << 2 << 1 << 2;
    QTest::newRow("ten") << 10 << 1 << 10 << 1 << 2;
    QTest::newRow("twenty-five") << 25 << 1 << 25 << 2 << 2;
}

void tst_page_navigator::countSetsTheRange() {
    QFETCH(int, count);
    NavigatorBench bench;
    bench.open(5, 2);
    bench.setRecords(count);
    QTEST(bench.slider().minimum(), "minimum");
    QTEST(bench.slider().maximum(), "maximum");
    QTEST(bench.slider().tickInterval(), "frequency");
    QTEST(int(bench.navigator->Inavigator_Position()), "position");
    QCOMPARE(bench.navigator->Inavigator_NumberRecords(), qMax(0, count));
    QCOMPARE(bench.list().count(), qMax(0, count));
    QCOMPARE(bench.list().currentIndex(), bench.navigator->Inavigator_Position() - 1);
    QCOMPARE(bench.slider().isEnabled() && bench.list().isEnabled(), count > 0);
}

// A form that opens again comes back to its record.
void tst_page_navigator::countLeavesAPositionThatStillExists() {
    NavigatorBench bench;
    bench.open(9, 7);
    bench.setRecords(8);
    QCOMPARE(bench.navigator->Inavigator_Position(), 7);
    QCOMPARE(bench.takeHeard(), QStringList());
}

void tst_page_navigator::smallerCountMovesToTheLastRecord() {
    NavigatorBench bench;
    bench.open(9, 9);
    bench.setRecords(8);
    QCOMPARE(bench.takeHeard(), moveTo(8));
    QCOMPARE(bench.list().currentText(), QStringLiteral("Name: Alpha8"));
}

void tst_page_navigator::firstRecordsStoreAPositionWhereNoneIsStored() {
    NavigatorBench bench;
    bench.component.when(QStringLiteral("GetValue"), QStringLiteral("Stored")).answers(QStringLiteral("0"));
    bench.setRecords(4);
    QCOMPARE(bench.takeHeard(), asked(1));
    bench.component.when(QStringLiteral("GetValue"), QStringLiteral("Stored")).answersUndefined();
    bench.setRecords(5);
    QCOMPARE(bench.takeHeard(), QStringList());
}

void tst_page_navigator::everyWayOfMovingAsksAndThenTells_data() {
    using Move = std::function<void(NavigatorBench &)>;
    QTest::addColumn<Move>("move");
    QTest::addColumn<int>("position");
    const auto click = [](const char *name) {
        return Move([name](NavigatorBench &bench) { bench.button(name).click(); });
    };
    const auto press = [](Qt::Key key) {
        return Move([key](NavigatorBench &bench) { QTest::keyClick(&bench.slider(), key); });
    };
    QTest::newRow("first") << click("cmdFirst") << 1;
    QTest::newRow("back") << click("cmdBack") << 2;
    QTest::newRow("forward") << click("cmdForward") << 4;
    QTest::newRow("last") << click("cmdLast") << 25;
    QTest::newRow("arrow") << press(Qt::Key_Right) << 4;
    QTest::newRow("page") << press(Qt::Key_PageUp) << 5;
    QTest::newRow("end") << press(Qt::Key_End) << 25;
    QTest::newRow("list") << Move([](NavigatorBench &bench) { QTest::keyClick(&bench.list(), Qt::Key_Down); }) << 4;
    QTest::newRow("enabler") << Move([](NavigatorBench &bench) { bench.navigator->Inavigator_Position(9); }) << 9;
    QTest::newRow("field") << Move([](NavigatorBench &bench) { bench.navigator->Ifield_SetRecordNumber(9); }) << 9;
    QTest::newRow("forced") << Move([](NavigatorBench &bench) { bench.navigator->Inavigator_ForcePositionChange(3); })
                            << 3;
    QTest::newRow("below the range") << Move([](NavigatorBench &bench) { bench.navigator->Inavigator_Position(-1); })
                                     << 1;
}

void tst_page_navigator::everyWayOfMovingAsksAndThenTells() {
    QFETCH(std::function<void(NavigatorBench &)>, move);
    QFETCH(int, position);
    NavigatorBench bench;
    bench.open(25, 3);
    move(bench);
    QCOMPARE(bench.takeHeard(), moveTo(position));
    QCOMPARE(bench.navigator->Inavigator_Position(), position);
    QCOMPARE(bench.navigator->Ifield_GetRecordNr(), position);
    QCOMPARE(bench.navigator->Ifield_GetValue(), QVariant(position));
    QCOMPARE(bench.list().currentText(), QStringLiteral("Name: Alpha%1").arg(position));
}

void tst_page_navigator::movesBeyondTheEndsAreNotHeard() {
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

void tst_page_navigator::refusedMoveGoesBackWithItsNames_data() { everyWayOfMovingAsksAndThenTells_data(); }

void tst_page_navigator::refusedMoveGoesBackWithItsNames() {
    QFETCH(std::function<void(NavigatorBench &)>, move);
    QFETCH(int, position);
    NavigatorBench bench;
    bench.open(25, 3);
    bench.listener.acceptsPosition = false;
    move(bench);
    const QStringList heard = bench.takeHeard();
    QVERIFY(heard.contains(asked(position).front()));
    QCOMPARE(heard.filter(QStringLiteral("ChangedPosition")), QStringList());
    QCOMPARE(bench.navigator->Inavigator_Position(), 3);
    QCOMPARE(bench.list().currentText(), QStringLiteral("Name: Alpha3"));
    bench.listener.acceptsPosition = true;
    bench.button("cmdForward").click();
    QCOMPARE(bench.takeHeard(), moveTo(4));
}

void tst_page_navigator::firstMoveThatIsRefusedStays() {
    NavigatorBench bench;
    bench.setRecords(5);
    bench.listener.acceptsPosition = false;
    bench.navigator->Inavigator_Position(3);
    QCOMPARE(bench.takeHeard(), asked(3));
    QCOMPARE(bench.navigator->Inavigator_Position(), 3);
}

void tst_page_navigator::samePositionIsAskedForOnlyWhenForced() {
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
void tst_page_navigator::moveInsideAMoveIsIgnored() {
    NavigatorBench bench;
    bench.open(5, 3);
    bench.listener.on = [&](const QString &) { bench.navigator->Inavigator_Position(1); };
    bench.navigator->Inavigator_Position(4);
    QCOMPARE(bench.takeHeard(), moveTo(4));
    bench.listener.on = nullptr;
    bench.navigator->Inavigator_Position(2);
    QCOMPARE(bench.takeHeard(), moveTo(2));
}

void tst_page_navigator::withoutAStorageNothingIsHeard() {
    NavigatorBench bench({{QStringLiteral("PositionStorageUIID"), QString()}});
    bench.open(5, 1);
    bench.navigator->Inavigator_Position(2);
    bench.navigator->Inavigator_ForcePositionChange(3);
    QCOMPARE(bench.takeHeard(), QStringList());
    QVERIFY(bench.log.linesOf(QStringLiteral("GetValue")).filter(QStringLiteral("GetValue(,")).isEmpty());
}

void tst_page_navigator::draggedThumbShowsNamesAndMovesAtTheRelease() {
    NavigatorBench bench;
    bench.open(5, 1);
    bench.slider().setSliderDown(true);
    bench.slider().setSliderPosition(4);
    QCOMPARE(bench.list().currentText(), QStringLiteral("Name: Alpha4"));
    QCOMPARE(bench.navigator->Inavigator_Position(), 1);
    QCOMPARE(bench.takeHeard(), QStringList());
    bench.slider().setSliderDown(false);
    QCOMPARE(bench.takeHeard(), moveTo(4));
}

void tst_page_navigator::wheelActsOnlyWithFocus() {
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

void tst_page_navigator::namesBearThePrefix_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("item");
    QTest::newRow("guide at first") << QString() << QStringLiteral("Name: Alpha2");
    QTest::newRow("two halves") << QStringLiteral("Réseau|Réseaux") << QStringLiteral("Réseau: Alpha2");
    QTest::newRow("no prefix") << QStringLiteral("NULL|Networks") << QStringLiteral("Alpha2");
}

void tst_page_navigator::namesBearThePrefix() {
    QFETCH(QString, name);
    NavigatorBench bench;
    if (!name.isEmpty())
        bench.navigator->Ifield_SetName(name);
    bench.setRecords(3);
    bench.component.when(QStringLiteral("GetValue"), QStringLiteral("Name"), 3).answersUndefined();
    bench.navigator->Inavigator_Position(2);
    QTEST(bench.list().currentText(), "item");
    QVERIFY(!bench.list().itemText(2).contains(u"Undefined"));
    if (!name.isEmpty()) {
        QCOMPARE(bench.navigator->Ifield_GetName(), name.section(u'|', 0, 0));
        QCOMPARE(bench.list().accessibleName(), name.section(u'|', 1));
        QCOMPARE(bench.slider().accessibleName(), name.section(u'|', 0, 0));
    }
}

void tst_page_navigator::namesAreReadAgainAtEachMove() {
    NavigatorBench bench;
    bench.open(3, 1);
    bench.component.when(QStringLiteral("GetValue"), QStringLiteral("Name"), 3).answers(QStringLiteral("Bravo"));
    bench.navigator->Inavigator_Position(2);
    QCOMPARE(bench.list().itemText(2), QStringLiteral("Name: Bravo"));
}

void tst_page_navigator::closedInsideAMoveAsksNothingMore() {
    for (const QString &inside : {QStringLiteral("ChangePositionStorage"), QStringLiteral("ChangedPosition")}) {
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

QTEST_MAIN(tst_page_navigator)
#include "tst_page_navigator.moc"
