#pragma once

#include "sim_process.h"

#include <QProcess>
#include <QTemporaryDir>

// A simulated radio and kx4600ctl that programs it, each a process of its own, with state files of their own.
class RadioRun {
  public:
    // dataFile: what is programmed.
    explicit RadioRun(QString dataFile) : mDataFile(std::move(dataFile)) {}

    // Starts the radio (with the options) and, if that works, the programmer.
    [[nodiscard]] bool start(const QStringList &radioOptions);
    void killProgrammer();
    // Takes up what the programmer has written until now; the number of its lines. Waits a moment at most.
    [[nodiscard]] qsizetype linesSaid();
    // False if the programmer has not ended in time.
    [[nodiscard]] bool waitForProgrammer(int milliseconds);
    [[nodiscard]] bool hasEnded() const { return mProgrammer.state() == QProcess::NotRunning; }
    void stopRadio() { mRadio.terminate(); }

    [[nodiscard]] SimProcess &radio() { return mRadio; }
    [[nodiscard]] const QByteArray &before() const { return mBefore; } // content when it started
    [[nodiscard]] const QString &said() const { return mSaid; }        // all that the programmer wrote
    [[nodiscard]] int exitCode() const { return mProgrammer.exitCode(); }
    // The record of a run whose end is open: of this radio, if there is one.
    [[nodiscard]] bool hasOpenRun() const;
    // Switches the radio off and on again, without faults, and asks it who it is: what the programmer then says.
    [[nodiscard]] QString nextContact();
    // What the next start of a window says.
    [[nodiscard]] QStringList nextStart() const;

  private:
    [[nodiscard]] QString stateFolder() const { return mFolder.filePath(QStringLiteral("KX4600")); }
    void startTool(QProcess &process, const QStringList &words) const;

    QString mDataFile;
    QTemporaryDir mFolder;
    SimProcess mRadio;
    QProcess mProgrammer;
    QByteArray mBefore;
    QString mSaid;
};
