#pragma once

#include "dictionary.h"
#include "radio_link.h"
#include "radio_progress.h"

#include <functional>
#include <memory>

// The caller of a programming run: every byte of the present content turned over, so that the new content differs.
class RecordingContent final : public ProgramContent {
  public:
    QString storeRestorePoint(const RadioIdentity &identity, const QByteArray &present) override;
    QByteArray imageOver(const RadioIdentity &identity, const QByteArray &present) override;
    QString runStarts(const RadioIdentity &identity, quint32 oldContent, quint32 newContent) override;

    QByteArray restorePoint;
    QByteArray image;
    QString problem;           // answered to storeRestorePoint
    int takesMilliseconds = 0; // storeRestorePoint, as with a question to the user
    quint32 oldContent = 0;
    quint32 newContent = 0;
};

class RecordingProgress final : public RadioProgress {
  public:
    void phaseStarted(RadioPhase phase, qint32 total) override;
    void advanced(qint32 increment, const QString &item, const QString &percentage) override;
    void identified(const RadioIdentity &identity) override;

    QStringList phases;  // title and total
    QList<qint64> moved; // by phase
    QString lastPercentage;
    std::function<void(int)> onAdvance; // the how manyth
    int advances = 0;
};

// Counts what the line moves, and where each command was sent.
class RecordingTap final : public WireTap {
  public:
    void sent(const QByteArray &bytes, int bitsPerSecond) override;
    void received(const QByteArray &bytes, int bitsPerSecond) override;

    qint64 bytes = 0;
    int highestSpeed = 0;
    QList<quint8> commands;
    QList<qint64> bytesBehind; // all bytes of both directions up to the end of each command
};

// A link with its listeners over the compiled-in dictionary.
struct LinkBench {
    LinkBench();

    std::unique_ptr<const Dictionary> dictionary;
    RecordingProgress progress;
    RecordingTap tap;
    RecordingContent content;
    RadioLink link;
    RadioCompatibility::Data data{.tier = 0, .band = 1, .databaseLevel = 1};
};
