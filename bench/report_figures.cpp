#include "figure_groups.h"

#include "bench_component.h"
#include "full_data.h"
#include "run_time_error.h"

#include <QElapsedTimer>
#include <QProcess>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <vector>

using Timing::atMost;

namespace {
struct Run {
    double seconds = 0;
    double mebibytes = 0; // at its greatest
};

QString program(const char *name) { return qEnvironmentVariable("KX4600_BIN") + u'/' + QString::fromLatin1(name); }

// Runs a program to its end. QProcess would not say how much memory it took.
Run measured(const QString &path, const QStringList &words) {
    std::vector<QByteArray> bytes{path.toLocal8Bit()};
    for (const QString &word : words)
        bytes.push_back(word.toLocal8Bit());
    std::vector<char *> arguments;
    for (QByteArray &word : bytes)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    QElapsedTimer timer;
    timer.start();
    pid_t child = 0;
    int status = -1;
    rusage usage{};
    if (::posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
        ::wait4(child, &status, 0, &usage) != child || status != 0)
        throw RunTimeError(ErrorNumber::kBadArgument, path, QStringLiteral("it failed"));
    return {double(timer.nsecsElapsed()) / 1e9, double(usage.ru_maxrss) / 1024};
}

// The lines of the search probe: what, a tab, milliseconds.
void addSearches(Figures &figures, const QTemporaryDir &folder) {
    constexpr int kPatience = 120000;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), folder.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(program("kx4600dialogprobe"), QStringList());
    if (!process.waitForFinished(kPatience) || process.exitCode() != 0)
        throw RunTimeError(ErrorNumber::kBadArgument, process.program(),
                           QString::fromUtf8(process.readAllStandardError()));
    for (const QString &line : QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        figures.add(line.section(u'\t', 0, 0), line.section(u'\t', 1).toDouble(), QStringLiteral("ms"));
}
} // namespace

void FigureGroups::report(Figures &figures) {
    BenchComponent bench;
    bench.transformer.ChangeTier(QStringLiteral("Advanced"));
    FullData(bench.transformer).fill();
    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool saved = false;
    bench.transformer.SaveFile(file, QString(), 0, saved);
    if (!saved)
        throw RunTimeError(ErrorNumber::kBadArgument, file, QStringLiteral("it was not saved"));
    const Run run =
        measured(program("kx4600ctl"), {QStringLiteral("report"), file, QStringLiteral("--all"), QStringLiteral("-o"),
                                        bench.folder.filePath(QStringLiteral("full.pdf"))});
    figures.add(QStringLiteral("all records of a full file as PDF"), run.seconds, QStringLiteral("s"), atMost(20));
    figures.add(QStringLiteral("its peak memory"), run.mebibytes, QStringLiteral("MiB"), atMost(120));
    addSearches(figures, bench.folder);
}
