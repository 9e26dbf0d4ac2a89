#include "campaign.h"
#include "component_listener.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {
constexpr int kStartMs = 60000;
constexpr int kMostLines = 60; // that a session tells: one when it is ready, two an edit
constexpr int kLongestPauseMs = 30;

QString program(const char *name) { return qEnvironmentVariable("KX4600_BIN") + u'/' + QString::fromLatin1(name); }

// What a killed session has told of itself.
struct Session {
    QString tier;
    QStringList edits; // "EconomyTimer 17", "add"; the last one is open where isOpen
    bool isOpen = false;

    explicit Session(const QString &told) {
        for (const QString &line : told.split(u'\n', Qt::SkipEmptyParts)) {
            const QString rest = line.section(u' ', 1);
            if (line.startsWith(QStringLiteral("ready")))
                tier = rest;
            else if (line.startsWith(QStringLiteral("begin")))
                edits << rest;
            isOpen = line.startsWith(QStringLiteral("begin"));
        }
    }
};

// The same edits in a component of this process, as a file.
bool saveExpected(const Session &session, qsizetype edits, const QString &folder, const QString &file) {
    TransformerComponent component(
        {.settingsFile = {}, .journalFolder = {}, .stateFolder = {}, .restoreFolder = {}, .dataFolder = folder});
    component.ChangeTier(session.tier);
    for (const QString &edit : session.edits.first(edits)) {
        bool ok = false;
        qint32 added = 0;
        if (edit == QStringLiteral("add"))
            component.AddRecord(QStringLiteral("ChannelID_q7r"), QString(), added, ok);
        else
            component.SetValue(edit.section(u' ', 0, 0), edit.section(u' ', 1), 1, true, ok);
        if (!ok)
            return false;
    }
    bool saved = false;
    component.SaveFile(file, QString(), 0, saved);
    return saved;
}

bool areEqual(const QString &file, const QString &other) {
    return QProcess::execute(program("kx4600ctl"), {QStringLiteral("diff"), file, other}) == 0;
}
} // namespace

// The real program, killed from outside at random moments while it is edited with keys and clicks.
class RecoveryCampaign : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void eachRestartRestoresExactlyTheAcceptedEdits();

  private:
    // The session is killed once it has told that many lines, and a pause later.
    void killAndRestore(unsigned seed, int lines, int pauseMs, Campaign::Tally &tally);
};

void RecoveryCampaign::killAndRestore(unsigned seed, int lines, int pauseMs, Campaign::Tally &tally) {
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        environment.insert(QString::fromLatin1(name), home.filePath(QString::fromLatin1(name)));
    QProcess victim;
    victim.setProcessEnvironment(environment);
    victim.start(program("kx4600session"), {QStringLiteral("edit"), QString::number(seed)});
    QByteArray toldBefore;
    while (toldBefore.count('\n') < lines) {
        QVERIFY2(victim.waitForReadyRead(kStartMs), toldBefore.constData());
        toldBefore += victim.readAllStandardOutput();
    }
    QThread::msleep(unsigned(pauseMs));
    victim.kill();
    QVERIFY(victim.waitForFinished());
    const Session session(QString::fromUtf8(toldBefore + victim.readAllStandardOutput()));
    QVERIFY2(victim.exitStatus() == QProcess::CrashExit, "the session ended by itself");

    const QString restored = home.filePath(QStringLiteral("restored.k4p"));
    QProcess next;
    next.setProcessEnvironment(environment);
    next.start(program("kx4600session"), {QStringLiteral("recover"), restored});
    QVERIFY(next.waitForFinished(kStartMs));
    const QByteArray told = next.readAllStandardOutput();
    QVERIFY2(next.exitStatus() == QProcess::NormalExit && next.exitCode() == 0, told.constData());
    const qsizetype accepted = session.edits.size() - (session.isOpen ? 1 : 0);
    const bool offered = told.contains("asked The program ended on");
    if (accepted > 0)
        QVERIFY2(offered, "the unsaved work was not offered");
    tally.add(offered ? QStringLiteral("offered") : QStringLiteral("nothing edited"));
    tally.add(QStringLiteral("edits"), int(accepted));

    // An open edit may have been accepted or not.
    const QString expected = home.filePath(QStringLiteral("expected.k4p"));
    bool isRestored = false;
    for (qsizetype edits = accepted; edits <= session.edits.size() && !isRestored; ++edits) {
        QVERIFY(saveExpected(session, edits, home.path(), expected));
        isRestored = areEqual(expected, restored);
    }
    QVERIFY2(isRestored, qPrintable(session.edits.join(QStringLiteral(", "))));
}

void RecoveryCampaign::eachRestartRestoresExactlyTheAcceptedEdits() {
    Campaign::Random random(46);
    Campaign::Tally tally;
    const int kills = Campaign::count(3, 50);
    for (int kill = 0; kill < kills; ++kill) {
        const int lines = 1 + int(Campaign::below(random, kMostLines));
        killAndRestore(unsigned(kill), lines, int(Campaign::below(random, kLongestPauseMs)), tally);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d kills: %s", kills, tally.text().constData());
    QVERIFY(tally.of(QStringLiteral("offered")) > kills / 2);
    QVERIFY(tally.of(QStringLiteral("edits")) > kills);
}

QTEST_GUILESS_MAIN(RecoveryCampaign)
#include "recovery_campaign.moc"
