#pragma once

#include "progress_events.h"

#include <QElapsedTimer>
#include <QList>
#include <QTimer>

#include <functional>

// How long each phase of a radio operation takes, and how evenly the event loop turns meanwhile.
class RadioTiming final : public ProgressEvents {
  public:
    struct Phase {
        QString name; // the item that is moved
        qint64 bytes = 0;
        double startedAt = 0; // seconds
        double endedAt = 0;

        [[nodiscard]] double seconds() const { return endedAt - startedAt; }
        [[nodiscard]] double bytesPerSecond() const { return double(bytes) / seconds(); }
    };

    RadioTiming();

    void start();
    void stop();
    [[nodiscard]] double seconds() const { return double(mClock.nsecsElapsed()) / 1e9; }
    [[nodiscard]] const QList<Phase> &phases() const { return mPhases; }
    // Seconds between two turns of the event loop: elapsed, and of this process on the processor, which a busy machine
    // does not lengthen.
    [[nodiscard]] double longestGap() const { return mLongestGap; }
    [[nodiscard]] double longestWork() const { return mLongestWork; }

    void mobjTransformerEvents_ProgressBarStart(qint32 Total, const QString &strProgressTitle) override;
    void mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                            const QString &strItemPercentage) override;
    void mobjTransformerEvents_ProgressBarEnd(bool /*blnForceClose*/) override {}
    void mobjTransformerEvents_RadioInfo(const QString & /*strRadioModel*/, const QString & /*strSWVersion*/,
                                         const QString & /*strDBVersion*/, const QString & /*strHardwareRev*/,
                                         const QString & /*strProductCode*/) override {}

  private:
    void turned();

    QElapsedTimer mClock;
    QTimer mTicks;
    double mLastTurn = 0;
    double mLongestGap = 0;
    double mWorkAtLastTurn = 0;
    double mLongestWork = 0;
    double mPhaseStart = 0;
    QList<Phase> mPhases;
};
