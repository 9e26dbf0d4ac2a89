#include "bench_component.h"
#include "figure_groups.h"
#include "full_data.h"
#include "run_time_error.h"

#include <QProcess>

namespace {
constexpr double kStep = 16; // milliseconds: a record move, a cell edit, a column sort

// For what goes over many records no budget is set.
std::optional<Budget> budgetOf(const QString &name) {
    return name.contains(QStringLiteral("00 ")) ? std::nullopt : std::optional(Timing::atMost(kStep));
}

QByteArray probe(const QString &file) {
    const QTemporaryDir folder;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), folder.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600gridprobe"), {file});
    constexpr int kPatience = 120000;
    if (!process.waitForFinished(kPatience) || process.exitCode() != 0)
        throw RunTimeError(ErrorNumber::kBadArgument, process.program(),
                           QString::fromUtf8(process.readAllStandardError()));
    return process.readAllStandardOutput();
}
} // namespace

void FigureGroups::grid(Figures &figures) {
    BenchComponent bench;
    bench.transformer.ChangeTier(QStringLiteral("Advanced"));
    FullData(bench.transformer).fill();
    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool saved = false;
    bench.transformer.SaveFile(file, QString(), 0, saved);
    if (!saved)
        throw RunTimeError(ErrorNumber::kBadArgument, file, QStringLiteral("it was not saved"));
    for (const QString &line : QString::fromUtf8(probe(file)).split(u'\n', Qt::SkipEmptyParts)) {
        const QString name = line.section(u'\t', 0, 0);
        figures.add(name, line.section(u'\t', 1).toDouble(), QStringLiteral("ms"), budgetOf(name));
    }
}
