#include "radio_process.h"

#include "program_hands.h"

#include <csignal>

#include <sys/prctl.h>

namespace {
constexpr int kStartMs = 10000;
constexpr int kRunMs = 60000;
} // namespace

RadioProcess::RadioProcess(const QString &programs, const QString &folder, const QString &serialNumber)
    : mLink(folder + QStringLiteral("/radio")) {
    mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A tour that ends badly leaves no radio behind.
    mProcess.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    mProcess.start(programs + QStringLiteral("/kx4600sim"),
                   {QStringLiteral("--link"), mLink, QStringLiteral("--tier"), QStringLiteral("Advanced"),
                    QStringLiteral("--serial"), serialNumber, QStringLiteral("--image"),
                    folder + QStringLiteral("/radio.img"), QStringLiteral("--full-speed")});
    require(mProcess.waitForStarted(kStartMs) && mProcess.waitForReadyRead(kStartMs),
            QStringLiteral("the simulated radio did not start"));
    require(mProcess.readAllStandardOutput().startsWith("ready"), QStringLiteral("the simulated radio is not ready"));
}

RadioProcess::~RadioProcess() {
    mProcess.terminate();
    if (!mProcess.waitForFinished(kStartMs))
        mProcess.kill();
}

QString outputOf(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    require(process.waitForFinished(kRunMs) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            QStringLiteral("%1 %2 failed").arg(program, arguments.join(u' ')));
    return QString::fromUtf8(process.readAllStandardOutput());
}
