#include "wire_trace.h"

#include <QDateTime>
#include <QDir>

WireTrace::WireTrace(const QString &folder) {
    QDir().mkpath(folder);
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'"));
    mFile.setFileName(folder + QStringLiteral("/trace-") + stamp + QStringLiteral(".log"));
    if (!mFile.open(QIODevice::WriteOnly))
        return;
    const QStringList traces =
        QDir(folder).entryList({QStringLiteral("trace-*.log")}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QString &old : traces.mid(kKept))
        QFile::remove(folder + u'/' + old);
    mTime.start();
}

void WireTrace::sent(const QByteArray &bytes, int bitsPerSecond) { line('>', bytes, bitsPerSecond); }
void WireTrace::received(const QByteArray &bytes, int bitsPerSecond) { line('<', bytes, bitsPerSecond); }

void WireTrace::line(char direction, const QByteArray &bytes, int bitsPerSecond) {
    if (!mFile.isOpen())
        return;
    const QByteArray seconds = QByteArray::number(double(mTime.elapsed()) / 1000.0, 'f', 3);
    mFile.write(seconds + ' ' + QByteArray::number(bitsPerSecond) + ' ' + direction + ' ' + bytes.toHex(' ') + '\n');
}
