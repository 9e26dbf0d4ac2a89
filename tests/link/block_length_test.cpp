#include "block_length.h"

#include <QTest>

class BlockLengthTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void shrinksToTheLeastBlockAndNoFurther();
    void silenceEndsHopeSooner();
    void growsBackOnlyAfterARunOfSuccesses();
    void oneSuccessAmongFailuresKeepsHope();
};

void BlockLengthTest::shrinksToTheLeastBlockAndNoFurther() {
    BlockLength length(1000);
    QList<int> seen;
    for (int i = 0; i < 6; ++i) {
        seen << length.bytes();
        length.failed(false);
    }
    QCOMPARE(seen, (QList<int>{1000, 500, 250, 125, 64, 64}));
}

void BlockLengthTest::growsBackOnlyAfterARunOfSuccesses() {
    BlockLength length(4096);
    length.failed(false);
    for (int i = 0; i < 7; ++i)
        length.succeeded();
    length.failed(false);
    QCOMPARE(length.bytes(), 1024);
    for (int i = 0; i < 100; ++i)
        length.succeeded();
    QCOMPARE(length.bytes(), 4096);
}

void BlockLengthTest::oneSuccessAmongFailuresKeepsHope() {
    BlockLength length(4096);
    for (int i = 0; i < 15; ++i)
        length.failed(false);
    QVERIFY(!length.hopeless());
    length.succeeded();
    for (int i = 0; i < 15; ++i)
        length.failed(false);
    QVERIFY(!length.hopeless());
    length.failed(false);
    QVERIFY(length.hopeless());
}

void BlockLengthTest::silenceEndsHopeSooner() {
    BlockLength length(4096);
    for (const bool silent : {true, true, true, true, false, true, true, true, true})
        length.failed(silent);
    QVERIFY(!length.hopeless());
    length.failed(true);
    QVERIFY(length.hopeless());
}

QTEST_GUILESS_MAIN(BlockLengthTest)
#include "block_length_test.moc"
