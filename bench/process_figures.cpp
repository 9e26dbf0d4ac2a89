#include "figure_groups.h"

#include "bench_component.h"
#include "full_data.h"
#include "run_time_error.h"

#include <QProcess>

void FigureGroups::process(Figures &figures) {
    constexpr int kRuns = 9;
    BenchComponent bench;
    bench.transformer.ChangeTier(QStringLiteral("Advanced"));
    FullData(bench.transformer).fill();
    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool saved = false;
    bench.transformer.SaveFile(file, QString(), 0, saved);
    const QString tool = qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600ctl");
    const auto run = [&](const QStringList &words) {
        QProcess process;
        process.start(tool, words);
        const bool done = process.waitForFinished() && process.exitCode() == 0;
        if (!done || !saved)
            throw RunTimeError(ErrorNumber::kBadArgument, tool,
                               QString::fromUtf8(process.readLine() + process.readAllStandardError()));
    };
    figures.add(QStringLiteral("kx4600ctl check of a full file"),
                figures.median(kRuns,
                               [&] {
                                   run({QStringLiteral("check"), file});
                               }),
                QStringLiteral("ms"), Timing::atMost(100));
    figures.add(QStringLiteral("kx4600ctl info of it"),
                figures.median(kRuns,
                               [&] {
                                   run({QStringLiteral("info"), file});
                               }),
                QStringLiteral("ms"));
}
