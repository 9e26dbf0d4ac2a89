#include "byte_line.h"
#include "frame_decoder.h"
#include "frame_mutants.h"
#include "radio_memory.h"
#include "radio_report.h"
#include "radio_session.h"
#include "simulated_radio.h"

#include <QTest>

using namespace Wire;
using Campaign::below;

namespace {
constexpr int kImageSize = 5000;

RadioIdentity identity() {
    RadioIdentity radio;
    radio.tier = 2;
    radio.band = 1;
    radio.databaseLevel = 2;
    radio.layout = 1;
    radio.maxBlock = 1024;
    radio.imageSize = kImageSize;
    return radio;
}

struct Radio {
    RadioMemory memory{1, 2, QByteArray(kImageSize, 'o')};
    SimulatedRadio radio{identity(), memory};
    SimulatedRadio::Time now{0};
};

// A line without time to a radio, on which answers may be changed. When an answer has run out, the port is gone.
class LoopLine final : public ByteLine {
  public:
    explicit LoopLine(Radio &radio) : mRadio(radio) {}

    std::function<QByteArray(const QByteArray &)> change; // of an answer
    QList<QByteArray> requests;

    void open(const QString & /*device*/) override {}
    void close() override {}
    void setSpeed(int /*bitsPerSecond*/) override {}
    [[nodiscard]] int speed() const override { return kHighSpeed; }
    void write(const QByteArray &bytes) override {
        requests.append(bytes);
        const QByteArray answer = mRadio.radio.receive(bytes, ++mRadio.now);
        mPending = change ? change(answer) : answer;
    }
    [[nodiscard]] QByteArray waitForBytes(QDeadlineTimer /*deadline*/) override {
        if (mPending.isEmpty())
            throw LinkFailure(LinkFault::CutOff);
        const qsizetype piece = std::min<qsizetype>(mPending.size(), 700);
        QByteArray bytes = mPending.first(piece);
        mPending.remove(0, piece);
        return bytes;
    }
    void flush(QDeadlineTimer /*deadline*/) override {}
    void discardInput() override { mPending.clear(); }

  private:
    Radio &mRadio;
    QByteArray mPending;
};

// What a programming run asks, each step on its own; false where one failed.
bool runSession(LoopLine &line, Campaign::Tally &outcomes) {
    const bool aborted = false;
    RequestChannel channel(line, aborted);
    RadioSession session(channel);
    const QByteArray block(1000, 'n');
    bool good = true;
    const std::function<bool()> steps[] = {
        [&] { return session.contact(QStringLiteral("loop")) == identity(); },
        [&] { return session.open(), true; },
        [&] { return session.readBlock(Bank::Active, 0, 1000).has_value(); },
        [&] { return session.writeBlock(0, block); },
        [&] { return session.readBlock(Bank::Second, 0, 1000) == block; },
        [&] { return session.checksum(Bank::Second, kImageSize) != 0; },
        [&] {
            return session.commit({1, session.checksum(Bank::Second, kImageSize)});
        },
        [&] { return session.close(), true; },
    };
    for (const auto &step : steps) {
        QString outcome = QStringLiteral("failed");
        try {
            outcome = step() ? QStringLiteral("done") : QStringLiteral("no answer");
        } catch (const LinkFailure &failure) {
            outcome = failure.fault == LinkFault::Refused ? QStringLiteral("refused") : QStringLiteral("given up");
        }
        outcomes.add(outcome);
        good = good && outcome == QStringLiteral("done");
    }
    return good;
}
} // namespace

// Random bytes and changed recordings of real runs into both ends of the line.
class CodecCampaign : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void randomBytesHarmNeitherEnd();
    void changedRequestsHarmNoRadio();
    void changedAnswersHarmNoProgrammer();
};

void CodecCampaign::randomBytesHarmNeitherEnd() {
    constexpr qsizetype kPiece = 5000;
    const qsizetype wanted = Campaign::countSanitized(500'000, 10'000'000);
    Campaign::Random random(1);
    Radio radio;
    FrameDecoder programmer;
    qint64 frames = 0;
    for (qsizetype done = 0; done < wanted; done += kPiece) {
        QByteArray bytes = FrameMutants::randomBytes(kPiece, random);
        // Start markers of their own are too rare to try the frames' lengths.
        for (int i = 0; i < 20; ++i)
            bytes.replace(below(random, kPiece - 2), 2, QByteArray("\xA5\x5A"));
        const QByteArray answer = radio.radio.receive(bytes, ++radio.now);
        QVERIFY(answer.size() <= kFrameOverhead + kMaxPayload);
        (void)radio.radio.elapse(radio.now += std::chrono::milliseconds(below(random, 300)));
        programmer.feed(bytes);
        while (programmer.next())
            ++frames;
    }
    qInfo("%lld random bytes: %lld broken starts, %lld frames by chance", qint64(wanted), programmer.brokenFrames(),
          frames);
    QVERIFY2(programmer.brokenFrames() > wanted / kPiece, "hardly a start was seen");
    QCOMPARE(radio.memory.active(), QByteArray(kImageSize, 'o'));
}

void CodecCampaign::changedRequestsHarmNoRadio() {
    Radio recorded;
    LoopLine line(recorded);
    Campaign::Tally clean;
    QVERIFY(runSession(line, clean));
    Campaign::Random random(2);
    Campaign::Tally changes;
    Campaign::Tally answers;
    const int runs = Campaign::countSanitized(300, 20'000);
    for (int run = 0; run < runs; ++run) {
        Radio radio;
        for (const QByteArray &request : std::as_const(line.requests)) {
            FrameDecoder decoder;
            decoder.feed(request);
            const WireFrame frame = decoder.next().value();
            const qsizetype kind = below(random, 4);
            const QByteArray sent = kind == 0   ? FrameMutants::damaged(request, random, changes)
                                    : kind == 1 ? FrameMutants::resealed(frame, random, changes)
                                                : request;
            const QByteArray answer = radio.radio.receive(sent, ++radio.now);
            FrameDecoder programmer;
            programmer.feed(answer);
            const auto got = programmer.next();
            QVERIFY2(answer.isEmpty() || (got && !programmer.inFrame()), "an answer is one whole frame or nothing");
            answers.add(!got ? QStringLiteral("silence")
                             : (got->command == kNegative ? QStringLiteral("refused") : QStringLiteral("done")));
            (void)radio.radio.elapse(radio.now += std::chrono::milliseconds(below(random, 200)));
        }
        QCOMPARE(radio.memory.active().size(), kImageSize);
        QCOMPARE(radio.memory.second().size(), kImageSize);
    }
    const QByteArray text = changes.text() + "; answers: " + answers.text();
    qInfo("%d runs: %s", runs, text.constData());
    QVERIFY2(answers.of(QStringLiteral("refused")) > runs && answers.of(QStringLiteral("silence")) > runs / 10, text);
}

void CodecCampaign::changedAnswersHarmNoProgrammer() {
    Campaign::Random random(3);
    Campaign::Tally changes;
    Campaign::Tally outcomes;
    const int runs = Campaign::countSanitized(300, 20'000);
    for (int run = 0; run < runs; ++run) {
        Radio radio;
        LoopLine line(radio);
        line.change = [&](const QByteArray &answer) {
            FrameDecoder decoder;
            decoder.feed(answer);
            const auto frame = decoder.next();
            const qsizetype kind = frame ? below(random, 4) : 0;
            if (kind == 0 && !answer.isEmpty())
                return FrameMutants::damaged(answer, random, changes);
            return kind == 1 ? FrameMutants::resealed(*frame, random, changes) : answer;
        };
        (void)runSession(line, outcomes);
    }
    const QByteArray text = changes.text() + "; steps: " + outcomes.text();
    qInfo("%d runs: %s", runs, text.constData());
    for (const char *kind : {"done", "no answer", "given up"})
        QVERIFY2(outcomes.of(QString::fromLatin1(kind)) > runs / 20, text);
}

QTEST_GUILESS_MAIN(CodecCampaign)
#include "codec_campaign.moc"
