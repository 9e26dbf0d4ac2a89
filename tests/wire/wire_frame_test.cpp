#include "checksums.h"
#include "frame_decoder.h"
#include "run_time_error.h"

#include <QTest>

namespace {
QByteArray hex(const char *text) { return QByteArray::fromHex(text); }
QByteArray frame(quint8 sequence, const QByteArray &payload) {
    return Wire::encode({.sequence = sequence, .command = 0x05, .payload = payload});
}
// All frames of a stream that arrives in pieces.
QList<int> sequencesOf(const QByteArray &stream, int piece) {
    FrameDecoder decoder;
    QList<int> found;
    for (qsizetype at = 0; at < stream.size(); at += piece) {
        decoder.feed(QByteArrayView(stream).sliced(at, qMin<qsizetype>(piece, stream.size() - at)));
        while (const auto next = decoder.next())
            found << next->sequence;
    }
    return found;
}
} // namespace

class WireFrameTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void crcMatchesPublishedVectors_data();
    void crcMatchesPublishedVectors();
    void garbageAndDamageCostNoOtherFrame_data();
    void garbageAndDamageCostNoOtherFrame();
    void oversizeLengthIsRefusedBeforeItIsBuffered();
    void silenceInAFalseStartReleasesTheFrameBehindIt();
    void tooLongPayloadIsNotSent();
    void everySingleBitErrorIsNoticed();
};

void WireFrameTest::crcMatchesPublishedVectors_data() {
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<quint32>("crc16");
    QTest::addColumn<quint32>("crc32");
    QTest::newRow("check") << QByteArray("123456789") << 0x29B1U << 0xCBF43926U;
    QTest::newRow("empty") << QByteArray() << 0xFFFFU << 0U;
    QTest::newRow("zeros") << QByteArray(8, '\0') << 0x313EU << 0x6522DF69U;
    QTest::newRow("ones") << QByteArray(8, '\xFF') << 0x97DFU << 0x2144DF1CU;
    QTest::newRow("A") << QByteArray("A") << 0xB915U << 0xD3D99E8BU;
}

void WireFrameTest::crcMatchesPublishedVectors() {
    QFETCH(QByteArray, data);
    QTEST(quint32(Checksums::crc16(data)), "crc16");
    QTEST(Checksums::crc32(data), "crc32");
}

void WireFrameTest::garbageAndDamageCostNoOtherFrame_data() {
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QList<int>>("sequences");
    const QByteArray one = frame(1, "one");
    const QByteArray two = frame(2, QByteArray(200, '\xA5'));
    const QByteArray three = frame(3, {});
    QByteArray badCrc = frame(9, "bad");
    badCrc.back() = char(badCrc.back() ^ 1);
    QByteArray shortened = frame(9, "shortened");
    shortened.remove(8, 1);
    QTest::newRow("plain") << one + two + three << QList<int>{1, 2, 3};
    QTest::newRow("garbage between") << "xx" + one + "\x5A\xA5\r\n" + two + three << QList<int>{1, 2, 3};
    QTest::newRow("half a start marker in front") << hex("a5") + one + hex("a5") + two << QList<int>{1, 2};
    QTest::newRow("bad CRC between") << one + badCrc + two << QList<int>{1, 2};
    QTest::newRow("a byte lost in the middle") << one + shortened + two + three << QList<int>{1, 2, 3};
    QTest::newRow("oversize length") << hex("a55affff0101") + one << QList<int>{1};
    QTest::newRow("false start whose length spans two frames") << hex("a55a000401") + one + two << QList<int>{1, 2};
    QTest::newRow("payload full of start markers") << frame(4, hex("a55aa55aa55a")) + one << QList<int>{4, 1};
    QTest::newRow("frame within a damaged frame") << badCrc.left(6) + one + three << QList<int>{1, 3};
}

void WireFrameTest::garbageAndDamageCostNoOtherFrame() {
    QFETCH(QByteArray, stream);
    for (const int piece : {1, 2, 3, 7, 64, 10000})
        QTEST(sequencesOf(stream, piece), "sequences");
}

void WireFrameTest::oversizeLengthIsRefusedBeforeItIsBuffered() {
    FrameDecoder decoder;
    decoder.feed(hex("a55a10050101")); // 4101: one more than a block with its offset
    QVERIFY(!decoder.next());
    QCOMPARE(decoder.brokenFrames(), 1);
    QVERIFY(!decoder.inFrame());
    decoder.feed(hex("a55a10040101")); // 4100 is allowed
    QVERIFY(!decoder.next());
    QVERIFY(decoder.inFrame());
}

void WireFrameTest::silenceInAFalseStartReleasesTheFrameBehindIt() {
    FrameDecoder decoder;
    decoder.feed(hex("a55a0fff0101") + frame(5, "real"));
    QVERIFY(!decoder.next());
    decoder.abandonPartial();
    const auto found = decoder.next();
    QVERIFY(found);
    QCOMPARE(found->payload, QByteArray("real"));
}

void WireFrameTest::tooLongPayloadIsNotSent() {
    QCOMPARE(frame(1, QByteArray(Wire::kMaxPayload, 'x')).size(), Wire::kMaxPayload + Wire::kFrameOverhead);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)frame(1, QByteArray(Wire::kMaxPayload + 1, 'x')));
}

void WireFrameTest::everySingleBitErrorIsNoticed() {
    const QByteArray whole = frame(7, "a payload of some length");
    for (qsizetype bit = 0; bit < whole.size() * 8; ++bit) {
        QByteArray damaged = whole;
        damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << (bit % 8)));
        QVERIFY2(sequencesOf(damaged, 1000).isEmpty(), qPrintable(QString::number(bit)));
    }
}

QTEST_GUILESS_MAIN(WireFrameTest)
#include "wire_frame_test.moc"
