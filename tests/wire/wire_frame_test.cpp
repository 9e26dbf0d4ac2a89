#include "checksums.h"
#include "frame_decoder.h"
#include "rows.h"
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
    void crcMatchesPublishedVectors() {
        for (const auto &[data, crc16, crc32] : Rows<QByteArray, quint32, quint32>{
                 {"check", QByteArray("123456789"), 0x29B1U, 0xCBF43926U},
                 {"empty", QByteArray(), 0xFFFFU, 0U},
                 {"zeros", QByteArray(8, '\0'), 0x313EU, 0x6522DF69U},
                 {"ones", QByteArray(8, '\xFF'), 0x97DFU, 0x2144DF1CU},
                 {"A", QByteArray("A"), 0xB915U, 0xD3D99E8BU},
             }) {
            QCOMPARE(quint32(Checksums::crc16(data)), crc16);
            QCOMPARE(Checksums::crc32(data), crc32);
        }
    }

    void garbageAndDamageCostNoOtherFrame() {
        const QByteArray one = frame(1, "one");
        const QByteArray two = frame(2, QByteArray(200, '\xA5'));
        const QByteArray three = frame(3, {});
        QByteArray badCrc = frame(9, "bad");
        badCrc.back() = char(badCrc.back() ^ 1);
        QByteArray shortened = frame(9, "shortened");
        shortened.remove(8, 1);
        for (const auto &[stream, sequences] : Rows<QByteArray, QList<int>>{
                 {"plain", one + two + three, {1, 2, 3}},
                 {"garbage between", "xx" + one + "\x5A\xA5\r\n" + two + three, {1, 2, 3}},
                 {"half a start marker in front", hex("a5") + one + hex("a5") + two, {1, 2}},
                 {"bad CRC between", one + badCrc + two, {1, 2}},
                 {"a byte lost in the middle", one + shortened + two + three, {1, 2, 3}},
                 {"oversize length", hex("a55affff0101") + one, {1}},
                 {"false start whose length spans two frames", hex("a55a000401") + one + two, {1, 2}},
                 {"payload full of start markers", frame(4, hex("a55aa55aa55a")) + one, {4, 1}},
                 {"frame within a damaged frame", badCrc.left(6) + one + three, {1, 3}},
             }) {
            for (const int piece : {1, 2, 3, 7, 64, 10000})
                QCOMPARE(sequencesOf(stream, piece), sequences);
        }
    }

    void oversizeLengthIsRefusedBeforeItIsBuffered() {
        FrameDecoder decoder;
        decoder.feed(hex("a55a10050101")); // 4101: one more than a block with its offset
        QVERIFY(!decoder.next());
        QCOMPARE(decoder.brokenFrames(), 1);
        QVERIFY(!decoder.inFrame());
        decoder.feed(hex("a55a10040101")); // 4100 is allowed
        QVERIFY(!decoder.next());
        QVERIFY(decoder.inFrame());
    }

    void silenceInAFalseStartReleasesTheFrameBehindIt() {
        FrameDecoder decoder;
        decoder.feed(hex("a55a0fff0101") + frame(5, "real"));
        QVERIFY(!decoder.next());
        decoder.abandonPartial();
        const auto found = decoder.next();
        QVERIFY(found);
        QCOMPARE(found->payload, QByteArray("real"));
    }

    void tooLongPayloadIsNotSent() {
        QCOMPARE(frame(1, QByteArray(Wire::kMaxPayload, 'x')).size(), Wire::kMaxPayload + Wire::kFrameOverhead);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)frame(1, QByteArray(Wire::kMaxPayload + 1, 'x')));
    }

    void everySingleBitErrorIsNoticed() {
        const QByteArray whole = frame(7, "a payload of some length");
        for (qsizetype bit = 0; bit < whole.size() * 8; ++bit) {
            QByteArray damaged = whole;
            damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << (bit % 8)));
            QVERIFY2(sequencesOf(damaged, 1000).isEmpty(), qPrintable(QString::number(bit)));
        }
    }
};

QTEST_GUILESS_MAIN(WireFrameTest)
#include "wire_frame_test.moc"
