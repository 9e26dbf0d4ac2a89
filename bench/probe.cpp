#include "probe.h"

#include "run_time_error.h"

#include <QElapsedTimer>
#include <QProcess>

Probe::Probe(const QString &program) : mPath(pathOf(program)) {}

QString Probe::pathOf(const QString &program) { return qEnvironmentVariable("KX4600_BIN") + u'/' + program; }

double Probe::run(const QStringList &words, const QString &ports) {
    constexpr int kPatience = 600000;
    mLines.clear();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), mFolder.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    if (!ports.isEmpty())
        environment.insert(QStringLiteral("KX4600_PORTS"), ports);
    process.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    process.start(mPath, words);
    process.waitForReadyRead(kPatience);
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    process.waitForFinished(kPatience);
    const bool ended = process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
    if (!ended || process.exitCode() != 0)
        throw RunTimeError(ErrorNumber::kBadArgument, mPath, QString::fromUtf8(process.readAllStandardError()));
    for (const QString &line : QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        mLines.push_back(line.split(u'\t'));
    return milliseconds;
}
