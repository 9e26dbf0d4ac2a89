#include "figure_groups.h"

#include "full_file.h"
#include "probe.h"
#include "run_time_error.h"

#include <QElapsedTimer>

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

// Runs a program to its end. QProcess would not say how much memory it took.
Run measured(const QString &path, const QStringList &words) {
    std::vector<QByteArray> bytes{path.toLocal8Bit()};
    for (const QString &word : words)
        bytes.push_back(word.toLocal8Bit());
    std::vector<char *> arguments;
    arguments.reserve(bytes.size() + 1);
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

} // namespace

void FigureGroups::report(Figures &figures) {
    const FullFile file;
    const Run run = measured(Probe::pathOf(QStringLiteral("kx4600ctl")),
                             {QStringLiteral("report"), file.path(), QStringLiteral("--all"), QStringLiteral("-o"),
                              file.filePath(QStringLiteral("full.pdf"))});
    figures.add(QStringLiteral("all records of a full file as PDF"), run.seconds, QStringLiteral("s"), atMost(20));
    figures.add(QStringLiteral("its peak memory"), run.mebibytes, QStringLiteral("MiB"), atMost(120));
    Probe probe(QStringLiteral("kx4600dialogprobe"));
    probe.run({});
    for (const Probe::Line &line : probe.lines())
        figures.add(line.value(0), line.value(1).toDouble(), QStringLiteral("ms"));
}
