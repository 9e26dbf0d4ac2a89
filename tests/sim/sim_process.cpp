#include "sim_process.h"

#include <QFile>
#include <QRegularExpression>

namespace {
constexpr int kPatience = 20000; // milliseconds; only a stuck program takes so long
constexpr int kHeaderSize = 32;
constexpr int kActiveAt = 16;
} // namespace

SimProcess::~SimProcess() { kill(); }

bool SimProcess::start(const QStringList &options) {
    return startPlain(QStringList{QStringLiteral("--link"), link(), QStringLiteral("--full-speed")} + options);
}

bool SimProcess::startPlain(const QStringList &arguments) {
    mProcess.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600sim"), arguments);
    while (mProcess.state() != QProcess::NotRunning) {
        if (mProcess.canReadLine())
            return mProcess.readLine().startsWith("ready ");
        if (!mProcess.waitForReadyRead(kPatience))
            return false;
    }
    return false;
}

void SimProcess::kill() {
    if (mProcess.state() == QProcess::NotRunning)
        return;
    mProcess.kill();
    mProcess.waitForFinished(kPatience);
}

void SimProcess::terminate() {
    mProcess.terminate();
    mProcess.waitForFinished(kPatience);
    mOutput += mProcess.readAllStandardOutput();
}

QByteArray SimProcess::activeBank() const {
    QFile file(image());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    const qsizetype size = (content.size() - kHeaderSize) / 2;
    return content.mid(kHeaderSize + content[kActiveAt] * size, size);
}

int SimProcess::count(const QString &what) {
    const QRegularExpression shape(what + QStringLiteral("=([0-9]+)"));
    const QRegularExpressionMatch match = shape.match(QString::fromLatin1(mOutput));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}
