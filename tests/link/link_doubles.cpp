#include "link_doubles.h"

#include "dictionary_loader.h"
#include "serial_line.h"

#include <QTest>

using namespace Qt::StringLiterals;

QString RecordingContent::storeRestorePoint(const RadioIdentity &, const QByteArray &present) {
    restorePoint = present;
    if (takesMilliseconds > 0)
        QTest::qWait(takesMilliseconds);
    return problem;
}

QByteArray RecordingContent::imageOver(const RadioIdentity &, const QByteArray &present) {
    image = present;
    for (char &byte : image)
        byte = char(~byte);
    return image;
}

QString RecordingContent::runStarts(const RadioIdentity &, quint32 oldCrc, quint32 newCrc) {
    oldContent = oldCrc;
    newContent = newCrc;
    return {};
}

void RecordingProgress::phaseStarted(RadioPhase phase, qint32 total) {
    phases << u"%1 %2"_s.arg(RadioPhases::title(phase)).arg(total);
    moved << 0;
}

void RecordingProgress::advanced(qint32 increment, const QString &, const QString &percentage) {
    moved.back() += increment;
    lastPercentage = percentage;
    ++advances;
    if (onAdvance)
        onAdvance(advances);
}

void RecordingProgress::identified(const RadioIdentity &) {}

void RecordingTap::sent(const QByteArray &frame, int bitsPerSecond) {
    bytes += frame.size();
    highestSpeed = qMax(highestSpeed, bitsPerSecond);
    commands << quint8(frame[5]);
    bytesBehind << bytes;
}

void RecordingTap::received(const QByteArray &chunk, int) { bytes += chunk.size(); }

LinkBench::LinkBench()
    : dictionary(DictionaryLoader::loadCompiledIn()),
      link(std::make_unique<SerialLine>(), RadioCompatibility(*dictionary)) {
    link.setProgress(&progress);
    link.setTap(&tap);
}
