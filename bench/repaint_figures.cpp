#include "figure_groups.h"

#include "bench_component.h"
#include "full_data.h"
#include "run_time_error.h"
#include "sim_process.h"

#include <QProcess>

using Timing::atMost;

// The real window while a full radio of the largest tier is programmed and read at full speed.
void FigureGroups::repaint(Figures &figures) {
    constexpr int kPatience = 600000;
    constexpr double kLongestGap = 100;
    const QString tier = QStringLiteral("Advanced");
    BenchComponent bench;
    bench.transformer.ChangeTier(tier);
    FullData(bench.transformer).fill();
    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool saved = false;
    bench.transformer.SaveFile(file, QString(), 0, saved);
    SimProcess radio;
    if (!saved || !radio.startPlain({QStringLiteral("--link"), radio.link(), QStringLiteral("--tier"), tier}))
        throw RunTimeError(ErrorNumber::kBadArgument, file, QStringLiteral("file or radio could not be made"));

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), bench.folder.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("KX4600_PORTS"), QStringLiteral("1=") + radio.link());
    process.setProcessEnvironment(environment);
    process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600repaintprobe"), {file});
    if (!process.waitForFinished(kPatience) || process.exitCode() != 0)
        throw RunTimeError(ErrorNumber::kBadArgument, process.program(),
                           QString::fromUtf8(process.readAllStandardError()));
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const bool reads = line.startsWith(QStringLiteral("mnuRead"));
        figures.add(QStringLiteral("longest time between two repaints, full %1, %2")
                        .arg(tier, reads ? QStringLiteral("read") : QStringLiteral("program")),
                    line.section(u'\t', 1).toDouble(), QStringLiteral("ms"), atMost(kLongestGap));
    }
}
