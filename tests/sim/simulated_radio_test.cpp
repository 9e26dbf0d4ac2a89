#include "checksums.h"
#include "line_model.h"
#include "radio_memory.h"
#include "rows.h"
#include "sample_identity.h"
#include "simulated_radio.h"
#include "wire_timing.h"

#include <QTest>

using namespace Wire;
using namespace std::chrono_literals;

namespace {
RadioIdentity smallRadio() {
    RadioIdentity identity = sampleIdentity();
    identity.maxBlock = 256;
    identity.imageSize = 1000;
    return identity;
}

// A radio of 1000 bytes with the calls that a test needs.
struct Bench {
    RadioMemory memory{1, 2, QByteArray(1000, 'o')};
    SimulatedRadio radio{smallRadio(), memory};
    std::chrono::milliseconds now{0};
    quint8 sequence = 0;

    WireFrame ask(Command command, const QByteArray &payload = {}) {
        FrameDecoder decoder;
        decoder.feed(radio.receive(encode({++sequence, request(command), payload}), now));
        return decoder.next().value_or(WireFrame{});
    }
    void open() { ask(Command::OpenSession, OpenSessionRequest{}.encode()); }
    // 0: a positive answer.
    int refusalOf(Command command, const QByteArray &payload) {
        const WireFrame frame = ask(command, payload);
        if (frame.command != kNegative)
            return frame.command == answer(command) && frame.sequence == sequence ? 0 : -1;
        const auto refusal = Refusal::decode(frame.payload);
        return refusal && refusal->command == request(command) ? int(refusal->code) : -1;
    }
    void write(const QByteArray &content) {
        for (int at = 0; at < content.size(); at += 250)
            ask(Command::WriteBlock, Block{quint32(at), content.mid(at, 250)}.encode());
    }
};
} // namespace

class SimulatedRadioTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void wrongRequestsAreRefusedByCode() {
        const auto read = [](quint32 offset, quint16 length) {
            return ReadBlockRequest{Bank::Active, offset, length}.encode();
        };
        const auto write = [](quint32 offset, int length) { return Block{offset, QByteArray(length, 'n')}.encode(); };
        const int range = int(ErrorCode::OutOfRange);

        for (const auto &[command, payload, code] : Rows<Command, QByteArray, int>{
                 {"unknown command", Command(0x55), QByteArray(), int(ErrorCode::UnknownCommand)},
                 {"identify with payload", Command::Identify, QByteArray("x"), int(ErrorCode::BadPayload)},
                 {"other protocol", Command::OpenSession, QByteArray("\x02"), int(ErrorCode::WrongProtocol)},
                 {"speed nobody has", Command::SetSpeed, LineSpeed{57600}.encode(), int(ErrorCode::SpeedRefused)},
                 {"last byte", Command::ReadBlock, read(999, 1), 0},
                 {"one behind the end", Command::ReadBlock, read(999, 2), range},
                 {"offset that wraps", Command::ReadBlock, read(0xFFFFFFFF, 16), range},
                 {"empty read", Command::ReadBlock, read(0, 0), range},
                 {"greatest block", Command::ReadBlock, read(0, 256), 0},
                 {"longer than its block", Command::ReadBlock, read(0, 257), range},
                 {"write up to the end", Command::WriteBlock, write(900, 100), 0},
                 {"write over the end", Command::WriteBlock, write(900, 101), range},
                 {"write with an offset that wraps", Command::WriteBlock, write(0xFFFFFFF0, 100), range},
                 {"write of nothing", Command::WriteBlock, write(0, 0), int(ErrorCode::BadPayload)},
             }) {
            Bench bench;
            bench.open();
            QCOMPARE(bench.refusalOf(command, payload), code);
            QCOMPARE(bench.memory.active(), QByteArray(1000, 'o'));
        }
    }

    void sessionCommandsNeedASession() {
        for (const auto &[command, payload] : Rows<Command, QByteArray>{
                 {"speed", Command::SetSpeed, LineSpeed{115200}.encode()},
                 {"read", Command::ReadBlock, ReadBlockRequest{Bank::Active, 0, 10}.encode()},
                 {"write", Command::WriteBlock, Block{0, "x"}.encode()},
                 {"checksum", Command::BankChecksum, BankRequest{}.encode()},
                 {"commit", Command::Commit, CommitContent{1, 0}.encode()},
             }) {
            Bench bench;
            QCOMPARE(bench.refusalOf(command, payload), int(ErrorCode::NoSession));
            bench.open();
            QVERIFY(bench.refusalOf(command, payload) != int(ErrorCode::NoSession));
            bench.ask(Command::CloseSession);
            QCOMPARE(bench.refusalOf(command, payload), int(ErrorCode::NoSession));
        }
    }

    void repeatedCommitDoesNotSwitchBack() {
        Bench bench;
        bench.open();
        const QByteArray content(1000, 'n');
        bench.write(content);
        const QByteArray commit = CommitContent{1, Checksums::crc32(content)}.encode();
        for (int repeated = 0; repeated < 3; ++repeated) {
            QCOMPARE(bench.refusalOf(Command::Commit, commit), 0);
            QCOMPARE(bench.memory.active(), content);
        }
        QCOMPARE(bench.memory.second(), QByteArray(1000, 'o'));
    }

    void commitOfAnotherContentChangesNothing() {
        for (const auto &[layout, rightChecksum] : Rows<quint16, bool>{
                 {"wrong checksum", quint16(1), false},
                 {"wrong memory map", quint16(2), true},
             }) {
            Bench bench;
            bench.open();
            const QByteArray content(1000, 'n');
            bench.write(content);
            const quint32 crc = Checksums::crc32(content) + (rightChecksum ? 0 : 1);
            QCOMPARE(bench.refusalOf(Command::Commit, CommitContent{layout, crc}.encode()),
                     int(ErrorCode::ChecksumDiffers));
            QCOMPARE(bench.memory.active(), QByteArray(1000, 'o'));
        }
    }

    void speedChangesBehindTheAnswerAndFallsBackWithoutAFrame() {
        Bench bench;
        bench.open();
        QCOMPARE(bench.refusalOf(Command::SetSpeed, LineSpeed{115200}.encode()), 0);
        QCOMPARE(bench.radio.speed(), 19200);
        bench.radio.answerSent(bench.now);
        QCOMPARE(bench.radio.speed(), 115200);
        bench.now += WireTiming::kSpeedTrial - 1ms;
        (void)bench.radio.elapse(bench.now);
        QCOMPARE(bench.radio.speed(), 115200);
        bench.now += 1ms;
        (void)bench.radio.elapse(bench.now);
        QCOMPARE(bench.radio.speed(), 19200);
        QVERIFY(!bench.radio.inSession());
    }

    void silentSessionEndsAtTheStartSpeed() {
        Bench bench;
        bench.open();
        bench.ask(Command::SetSpeed, LineSpeed{115200}.encode());
        bench.radio.answerSent(bench.now);
        bench.ask(Command::Identify);
        bench.now += WireTiming::kSessionSilence - 1ms;
        (void)bench.radio.elapse(bench.now);
        QVERIFY2(bench.radio.inSession(), "a frame at the new speed ends its trial");
        bench.ask(Command::Identify);
        bench.now += WireTiming::kSessionSilence;
        (void)bench.radio.elapse(bench.now);
        QVERIFY(!bench.radio.inSession());
        QCOMPARE(bench.radio.speed(), 19200);
    }

    void damagedRequestIsAskedForAgain() {
        Bench bench;
        QByteArray damaged = encode({77, request(Command::Identify), {}});
        damaged[6] = char(damaged[6] ^ 1);
        FrameDecoder decoder;
        decoder.feed(bench.radio.receive(damaged, bench.now));
        const auto frame = decoder.next();
        QVERIFY(frame);
        QCOMPARE(frame->sequence, quint8(77));
        QCOMPARE(Refusal::decode(frame->payload)->code, ErrorCode::FrameCheck);
    }

    void newRequestReplacesTheAnswerUnderWay() {
        Bench bench;
        FrameDecoder decoder;
        decoder.feed(bench.radio.receive(
            encode({1, request(Command::Identify), {}}) + encode({2, request(Command::Identify), {}}), bench.now));
        const auto frame = decoder.next();
        QVERIFY(frame);
        QCOMPARE(frame->sequence, quint8(2));
        QVERIFY(!decoder.next());
    }

    void lineKeepsItsPaceAndOrder() {
        LineDirection line(true, 5ms);
        line.put("abcd", 10000, 0ms); // 1 ms a byte
        line.put("e", 10000, 1ms);    // waits for the four
        QVERIFY(line.take(5999us).isEmpty());
        QCOMPARE(line.take(6ms), QByteArray("a"));
        QCOMPARE(line.take(8999us), QByteArray("bc"));
        QCOMPARE(line.take(10ms), QByteArray("de"));
        QVERIFY(line.isEmpty());
    }

    void faultsTakeEffectAtTheirRate() {
        FaultyLine line({.drop = 0.01, .corrupt = 0.02, .cutAfter = 100000, .seed = 7});
        const QByteArray out = line.pass(QByteArray(100000, 'x'), true);
        const LineCounts &counts = line.counts();
        QCOMPARE(out.size(), 100000 - counts.dropped);
        QCOMPARE(out.size() - out.count('x'), counts.corrupted);
        QVERIFY2(counts.dropped > 800 && counts.dropped < 1200, qPrintable(QString::number(counts.dropped)));
        QVERIFY2(counts.corrupted > 1700 && counts.corrupted < 2300, qPrintable(QString::number(counts.corrupted)));
        QVERIFY2(line.pass("dead", true).isEmpty(), "nothing comes through behind the cut");
    }
};

QTEST_GUILESS_MAIN(SimulatedRadioTest)
#include "simulated_radio_test.moc"
