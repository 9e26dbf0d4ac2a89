#include "figure_groups.h"

#include "bench_component.h"
#include "full_data.h"
#include "radio_timing.h"
#include "run_time_error.h"
#include "sim_process.h"
#include "wire_frame.h"

using Timing::atLeast;
using Timing::atMost;

namespace {
struct Line {
    const char *name;
    int bitsPerSecond;
    QStringList options; // of the simulated radio
};
const QList<Line> &lines() {
    static const QList<Line> kLines = {
        {"19200", Wire::kStartSpeed, {QStringLiteral("--start-speed-only")}},
        {"115200", Wire::kHighSpeed, {}},
        {"115200, 16 ms late", Wire::kHighSpeed, {QStringLiteral("--delay"), QStringLiteral("16")}},
    };
    return kLines;
}

void require(bool ok, const ComponentListener &listener) {
    if (!ok)
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("radio"), listener.messages.join(u' '));
}

// One tier's full data in a component, and a paced radio of that tier at the end of a line.
class RadioBench {
  public:
    RadioBench(Figures &figures, const QString &tier) : mFigures(figures), mTier(tier) {
        mBench.transformer.ChangeTier(tier);
        FullData(mBench.transformer).fill();
        mBench.transformer.AddProgressListener(&mTiming);
    }

    void measure(const Line &line) {
        start(line);
        const QString where = mTier + QStringLiteral(" at ") + QString::fromLatin1(line.name) + QStringLiteral(": ");
        mTiming.start();
        mBench.transformer.ProgramRadio();
        mTiming.stop();
        const double programSeconds = mTiming.seconds();
        require(!mBench.transformer.GetDataIsDirty(), mBench.listener);
        addPhases(where, line);
        mFigures.add(where + QStringLiteral("program and verify"), programSeconds, QStringLiteral("s"));
        addGaps(where, QStringLiteral("program"));
        bool read = false;
        mTiming.start();
        mBench.transformer.ReadRadio(true, read);
        mTiming.stop();
        require(read, mBench.listener);
        mTiming.stop();
        mFigures.add(where + QStringLiteral("read"), mTiming.seconds(), QStringLiteral("s"));
        addGaps(where, QStringLiteral("read"));
    }

    void measureCancel(const Line &line) {
        constexpr std::chrono::milliseconds kInsideABlock{900};
        start(line);
        qint64 abortedAt = 0;
        QElapsedTimer clock;
        clock.start();
        QTimer::singleShot(kInsideABlock, [&] {
            abortedAt = clock.nsecsElapsed();
            mBench.transformer.AbortComms();
        });
        bool read = false;
        mBench.transformer.ReadRadio(true, read);
        require(!read && abortedAt > 0, mBench.listener);
        mFigures.add(QStringLiteral("cancel at %1").arg(QLatin1StringView(line.name)),
                     double(clock.nsecsElapsed() - abortedAt) / 1e6, QStringLiteral("ms"), atMost(200));
    }

    [[nodiscard]] qint64 imageSize() const {
        const Dictionary &dictionary = mBench.transformer.dictionary();
        return dictionary.layout().imageSize(dictionary.tierByKey(mTier).value());
    }

  private:
    void start(const Line &line) {
        mRadio = std::make_unique<SimProcess>();
        const bool ready = mRadio->startPlain(
            QStringList{QStringLiteral("--link"), mRadio->link(), QStringLiteral("--tier"), mTier} + line.options);
        require(ready, mBench.listener);
        mBench.transformer.SaveSetting(QStringLiteral("CommPortNumber"), mRadio->link());
    }
    void addGaps(const QString &where, const QString &operation) {
        const QString ms = QStringLiteral("ms");
        mFigures.add(where + operation + QStringLiteral(", longest gap of the event loop"), mTiming.longestGap() * 1000,
                     ms, atMost(100));
        mFigures.add(where + operation + QStringLiteral(", longest work in it"), mTiming.longestWork() * 1000, ms);
    }
    void addPhases(const QString &where, const Line &line) {
        const double bytesPerSecond = double(line.bitsPerSecond) / Wire::kBitsPerByte;
        for (const RadioTiming::Phase &phase : mTiming.phases())
            mFigures.add(where + QStringLiteral("line use, ") + phase.name.section(u' ', 0, 0).toLower(),
                         phase.bytesPerSecond() / bytesPerSecond, QString(), atLeast(0.85));
    }

    Figures &mFigures;
    QString mTier;
    BenchComponent mBench;
    RadioTiming mTiming;
    std::unique_ptr<SimProcess> mRadio;
};
} // namespace

void FigureGroups::radio(Figures &figures) {
    for (const char *tier : {"Basic", "Standard", "Advanced"}) {
        RadioBench bench(figures, QString::fromLatin1(tier));
        figures.add(QString::fromLatin1(tier) + QStringLiteral(": image"), double(bench.imageSize()) / 1024,
                    QStringLiteral("KiB"));
        for (const Line &line : lines())
            bench.measure(line);
    }
    RadioBench cancelled(figures, QStringLiteral("Advanced"));
    for (const Line &line : lines())
        cancelled.measureCancel(line);
}
