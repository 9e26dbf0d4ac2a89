#include "block_length.h"

#include <QTest>

class BlockLengthTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void shrinksToTheLeastBlockAndNoFurther() {
        BlockLength length(1000);
        QList<int> seen;
        for (int i = 0; i < 6; ++i) {
            seen << length.bytes();
            length.failed(false);
        }
        QCOMPARE(seen, (QList<int>{1000, 500, 250, 125, 64, 64}));
    }

    void growsBackOnlyAfterARunOfSuccesses() {
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

    // Fifteen failures keep hope, unless all were silence; one success begins the count anew.
    void hopeEndsAfterFailuresInARow() {
        BlockLength length(4096);
        for (const bool again : {false, true}) {
            for (int i = 0; i < 15; ++i)
                length.failed(false);
            QVERIFY(!length.hopeless());
            if (!again)
                length.succeeded();
        }
        length.failed(false);
        QVERIFY(length.hopeless());
        BlockLength silent(4096);
        for (const bool isSilent : {true, true, true, true, false, true, true, true, true})
            silent.failed(isSilent);
        QVERIFY(!silent.hopeless());
        silent.failed(true);
        QVERIFY(silent.hopeless());
    }
};

QTEST_GUILESS_MAIN(BlockLengthTest)
#include "block_length_test.moc"
