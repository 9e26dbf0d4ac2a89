#include "sim_process.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPatience = 20000; // milliseconds; only a stuck program takes so long
constexpr int kHeaderSize = 32;
constexpr int kActiveAt = 16;
} // namespace

SimProcess::~SimProcess() { kill(); }

bool SimProcess::start(const QStringList &options) {
    return startPlain(QStringList{u"--link"_s, link(), u"--full-speed"_s} + options);
}

bool SimProcess::startPlain(const QStringList &arguments) {
    mProcess.start(qEnvironmentVariable("KX4600_BIN") + u"/kx4600sim"_s, arguments);
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
    const QRegularExpression shape(what + u"=([0-9]+)"_s);
    const QRegularExpressionMatch match = shape.match(QString::fromLatin1(mOutput));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}
