#include "campaign.h"
#include "component_listener.h"
#include "full_data.h"
#include "radio_run.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <array>
#include <vector>

namespace {
constexpr int kAtOnce = 8; // they mostly wait
constexpr int kPatience = 120000;

struct Sentence {
    const char *kind;
    const char *text;
};
constexpr std::array kSentences{
    Sentence{"nothing sent", "Nothing was sent to the radio."},
    Sentence{"old content", "The radio has its old content."},
    Sentence{"new content, verified", "The radio has the new content, verified."},
    Sentence{"old or new", "holds either its old or the new content, whole."},
};

QString toldBy(const QString &said) {
    for (const Sentence &sentence : kSentences)
        if (said.contains(QString::fromLatin1(sentence.text)))
            return QString::fromLatin1(sentence.kind);
    return QStringLiteral("no sentence");
}

// How far a killed programmer had come, by the last phase that it named.
QString stageOf(const QString &said) {
    for (const char *phase : {"verified", "Comparing", "Writing", "Reading", "Interrogation"})
        if (said.contains(QString::fromLatin1(phase)))
            return QString::fromLatin1(phase).toLower();
    return QStringLiteral("before the contact");
}

QStringList faults(const char *perByte, int seed) {
    const QString probability = QString::fromLatin1(perByte);
    return {
        QStringLiteral("--full-speed"), QStringLiteral("--drop"), probability, QStringLiteral("--corrupt"), probability,
        QStringLiteral("--seed"),       QString::number(seed)};
}
} // namespace

// Programming over bad lines and with killed programmers: whatever happens, the radio has one whole content, and what
// is told about it is true.
class RadioCampaign : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void noisyLineEndsVerifiedOrHonest();
    void hopelessLineGivesUpInTime();
    void cutLineLeavesOneWholeContent();
    void killedProgrammerLeavesOneWholeContent();

  private:
    using Runs = std::vector<std::unique_ptr<RadioRun>>;
    // So many runs at once, with the options for each.
    Runs startRuns(int first, int end, const std::function<QStringList(int)> &options);
    // What a run that has ended told, if that is true; else what is wrong.
    QString truthOf(RadioRun &run) const;
    [[nodiscard]] QString contentOf(RadioRun &run) const;
    void checkOpenRun(RadioRun &run, Campaign::Tally &tally) const;
    void killAtRandomMoments(Runs &runs, Campaign::Random &random) const;

    QTemporaryDir mFolder;
    QByteArray mNew;
    int mBytes = 0;        // of both directions in a run without faults
    qsizetype mLines = 0;  // that the programmer says in such a run
    QStringList mProblems; // of all runs of a test
};

void RadioCampaign::initTestCase() {
    const QString file = mFolder.filePath(QStringLiteral("data.k4p"));
    TransformerComponent window(
        {.settingsFile = {}, .journalFolder = {}, .stateFolder = {}, .restoreFolder = {}, .dataFolder = {}});
    ComponentListener listener;
    window.AddListener(&listener);
    FullData(window).fill();
    bool saved = false;
    window.SaveFile(file, QString(), 0, saved);
    QVERIFY2(saved, qPrintable(listener.messages.join(u' ')));
    for (const QStringList &speed : {QStringList{QStringLiteral("--full-speed")}, QStringList()}) {
        RadioRun run(file);
        QVERIFY(run.start(speed) && run.waitForProgrammer(kPatience));
        mLines = run.said().count(u'\n');
        QVERIFY2(run.exitCode() == 0, qPrintable(run.said()));
        mNew = run.radio().activeBank();
        QVERIFY(mNew != run.before());
        run.stopRadio();
        mBytes = run.radio().count(QStringLiteral("bytes"));
    }
}

RadioCampaign::Runs RadioCampaign::startRuns(int first, int end, const std::function<QStringList(int)> &options) {
    Runs runs;
    for (int number = first; number < std::min(end, first + kAtOnce); ++number) {
        runs.push_back(std::make_unique<RadioRun>(mFolder.filePath(QStringLiteral("data.k4p"))));
        if (!runs.back()->start(options(number)))
            mProblems.append(QStringLiteral("run %1 did not start").arg(number));
    }
    return runs;
}

QString RadioCampaign::contentOf(RadioRun &run) const {
    const QByteArray content = run.radio().activeBank();
    if (content == mNew)
        return QStringLiteral("new");
    return content == run.before() ? QStringLiteral("old") : QStringLiteral("neither");
}

QString RadioCampaign::truthOf(RadioRun &run) const {
    QString told = toldBy(run.said());
    const QString content = contentOf(run);
    const bool verified = told == QStringLiteral("new content, verified");
    const bool open = told == QStringLiteral("old or new") && content != QStringLiteral("neither");
    const bool isTrue = verified ? content == QStringLiteral("new") : open || content == QStringLiteral("old");
    if (isTrue && verified == (run.exitCode() == 0) && told != QStringLiteral("no sentence"))
        return told;
    return QStringLiteral("UNTRUE: told \"%1\", exit %2, content %3").arg(told).arg(run.exitCode()).arg(content);
}

void RadioCampaign::noisyLineEndsVerifiedOrHonest() {
    const int seeds = Campaign::count(3, 20);
    Campaign::Tally tally;
    Campaign::Tally bytes;
    for (int first = 1; first <= seeds; first += kAtOnce) {
        for (auto &run : startRuns(first, seeds + 1, [](int seed) { return faults("0.001", seed); })) {
            QVERIFY2(run->waitForProgrammer(kPatience), "it does not end");
            tally.add(truthOf(*run));
            run->stopRadio();
            for (const char *fault : {"dropped", "corrupted"})
                bytes.add(QString::fromLatin1(fault), run->radio().count(QString::fromLatin1(fault)));
        }
    }
    const QByteArray text = tally.text() + "; bytes " + bytes.text();
    qInfo("%d seeds: %s", seeds, text.constData());
    QVERIFY2(mProblems.isEmpty() && !text.contains("UNTRUE"), text);
    QVERIFY2(bytes.of(QStringLiteral("dropped")) > 20 * seeds && bytes.of(QStringLiteral("corrupted")) > 20 * seeds,
             "the lines were too good to prove anything");
    QVERIFY2(tally.of(QStringLiteral("new content, verified")) * 2 > seeds, "such a line must not stop most runs");
}

void RadioCampaign::hopelessLineGivesUpInTime() {
    constexpr int kBound = 60000;
    const int seeds = Campaign::count(2, 8);
    Campaign::Tally tally;
    QElapsedTimer timer;
    timer.start();
    for (auto &run : startRuns(1, seeds + 1, [](int seed) { return faults("0.02", seed); })) {
        QVERIFY2(run->waitForProgrammer(int(kBound - timer.elapsed())), "it does not give up");
        tally.add(truthOf(*run));
    }
    const QByteArray text = tally.text();
    qInfo("%d seeds: %s", seeds, text.constData());
    QVERIFY2(!text.contains("UNTRUE"), text);
    QCOMPARE(tally.of(QStringLiteral("nothing sent")) + tally.of(QStringLiteral("old content")), seeds);
}

// A run without a known end is named at the next start, and the next contact says which content the radio has.
void RadioCampaign::checkOpenRun(RadioRun &run, Campaign::Tally &tally) const {
    if (!run.hasOpenRun())
        return;
    const QString serial = QStringLiteral("46000001");
    const QString content = contentOf(run);
    QVERIFY(run.nextStart().join(u' ').contains(serial));
    const QString said = run.nextContact();
    const bool saysOld = said.contains(QStringLiteral("has its old content, whole"));
    const bool saysNew = said.contains(QStringLiteral("has the new content, whole"));
    QVERIFY2(saysOld == (content == QStringLiteral("old")) && saysNew == (content == QStringLiteral("new")),
             qPrintable(said));
    QVERIFY(!run.hasOpenRun());
    tally.add(QStringLiteral("explained at the next contact"));
}

// Half of the cuts are spread over the whole run, half over its last bytes, where the commit is.
void RadioCampaign::cutLineLeavesOneWholeContent() {
    constexpr int kCommitBytes = 100;
    const int cuts = Campaign::count(8, 100);
    Campaign::Tally tally;
    const auto options = [&](int cut) {
        const int spread = int(qint64(mBytes) * cut / cuts);
        const int late = mBytes - 1 - kCommitBytes * cut / cuts;
        return QStringList{QStringLiteral("--full-speed"), QStringLiteral("--cut-after"),
                           QString::number(cut % 2 == 0 ? spread : late)};
    };
    for (int first = 0; first < cuts; first += kAtOnce) {
        for (auto &run : startRuns(first, cuts, options)) {
            QVERIFY2(run->waitForProgrammer(kPatience), "it does not end");
            tally.add(truthOf(*run));
            checkOpenRun(*run, tally);
        }
    }
    const QByteArray text = tally.text();
    qInfo("%d cuts: %s", cuts, text.constData());
    QVERIFY2(mProblems.isEmpty() && !text.contains("UNTRUE"), text);
    for (const char *kind : {"nothing sent", "old content", "old or new", "explained at the next contact"})
        QVERIFY2(tally.of(QString::fromLatin1(kind)) > 0, kind);
}

// Each run is killed a moment after it has said a number of lines of its own: a block takes a third of a second, the
// commit behind the last line but one a few milliseconds.
void RadioCampaign::killAtRandomMoments(Runs &runs, Campaign::Random &random) const {
    struct Moment {
        RadioRun *run;
        qsizetype lines;
        qint64 delay;
        qint64 reachedAt = -1;
    };
    std::vector<Moment> moments;
    for (auto &run : runs) {
        const qsizetype lines = Campaign::below(random, mLines);
        moments.push_back({run.get(), lines, Campaign::below(random, lines + 1 == mLines ? 30 : 350)});
    }
    QElapsedTimer timer;
    timer.start();
    while (!moments.empty() && timer.elapsed() < kPatience) {
        for (Moment &moment : moments) {
            if (moment.reachedAt < 0 && moment.run->linesSaid() >= moment.lines)
                moment.reachedAt = timer.elapsed();
            if (moment.reachedAt >= 0 && timer.elapsed() - moment.reachedAt >= moment.delay)
                moment.run->killProgrammer();
        }
        std::erase_if(moments, [&](const Moment &moment) { return moment.run->hasEnded(); });
    }
}

void RadioCampaign::killedProgrammerLeavesOneWholeContent() {
    const int kills = Campaign::count(8, 100);
    Campaign::Tally tally;
    Campaign::Random random(46);
    for (int first = 0; first < kills; first += kAtOnce) {
        Runs runs = startRuns(first, kills, [](int) { return QStringList(); });
        killAtRandomMoments(runs, random);
        for (auto &run : runs) {
            tally.add(QStringLiteral("killed at: ") + stageOf(run->said()));
            tally.add(contentOf(*run));
            checkOpenRun(*run, tally);
        }
    }
    const QByteArray text = tally.text();
    qInfo("%d kills: %s", kills, text.constData());
    QCOMPARE(tally.of(QStringLiteral("neither")), 0);
    for (const char *stage : {"killed at: reading", "killed at: writing", "killed at: comparing"})
        QVERIFY2(tally.of(QString::fromLatin1(stage)) > 0, stage);
    QVERIFY2(tally.of(QStringLiteral("explained at the next contact")) > 0, "no run was open");
}

QTEST_GUILESS_MAIN(RadioCampaign)
#include "radio_campaign.moc"
