#include "tool_run.h"

#include <QDir>
#include <QFile>
#include <QProcess>

ToolFolder::ToolFolder() {
    QDir::setCurrent(mFolder.path());
    for (const char *name : {"STATE", "DATA", "CONFIG"})
        qputenv(QByteArrayLiteral("XDG_") + name + "_HOME",
                QFile::encodeName(mFolder.filePath(QString::fromLatin1(name).toLower())));
}

ToolFolder::~ToolFolder() { QDir::setCurrent(QDir::rootPath()); }

namespace ToolRun {
Outcome run(const QStringList &words) {
    constexpr int kPatience = 60000;
    QProcess process;
    process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600ctl"), words);
    if (!process.waitForFinished(kPatience))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

Outcome run(const QString &line) { return run(line.split(u' ', Qt::SkipEmptyParts)); }

QByteArray contentOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &name, const QByteArray &content) {
    QFile file(name);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}
} // namespace ToolRun
