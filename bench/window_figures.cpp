#include "figure_groups.h"

#include "full_file.h"
#include "probe.h"
#include "run_time_error.h"

#include <algorithm>
#include <vector>

using Timing::atMost;

namespace {
const QString kMs = QStringLiteral("ms");
const QString kMiB = QStringLiteral("MiB");
constexpr double kMostMemory = 60;

double medianStart(Probe &probe, const QStringList &words) {
    constexpr int kStarts = 7;
    std::vector<double> times;
    times.reserve(kStarts);
    for (int start = 0; start < kStarts; ++start)
        times.push_back(probe.run(words));
    std::ranges::nth_element(times, times.begin() + kStarts / 2);
    return times[kStarts / 2];
}

void addLines(Figures &figures, const std::vector<Probe::Line> &lines) {
    constexpr double kForm = 30;
    constexpr double kChannelForm = 60;
    constexpr double kKey = 16;
    QStringList refused;
    for (const Probe::Line &line : lines) {
        const QString what = line.value(0);
        const QString name = line.value(1);
        const double value = line.value(2).toDouble();
        if (what == QStringLiteral("form"))
            figures.add(QStringLiteral("open the form ") + name, value, kMs,
                        atMost(name == QStringLiteral("Channels") ? kChannelForm : kForm));
        else if (what == QStringLiteral("refused"))
            refused.append(QString::number(value));
        else if (what == QStringLiteral("key"))
            figures.add(QStringLiteral("keystroke to repaint, median of 21"), value, kMs, atMost(kKey));
        else if (what == QStringLiteral("memory"))
            figures.add(QStringLiteral("peak memory, full file ") + name, value, kMiB, atMost(kMostMemory));
    }
    if (!refused.isEmpty())
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("forms refused, by their nodes"),
                           refused.join(QStringLiteral(", ")));
}
} // namespace

void FigureGroups::window(Figures &figures) {
    const FullFile file;
    Probe probe(QStringLiteral("kx4600windowprobe"));
    figures.add(QStringLiteral("start to the first form"), medianStart(probe, {QStringLiteral("start")}), kMs,
                atMost(120));
    figures.add(QStringLiteral("start with a full file"), medianStart(probe, {QStringLiteral("start"), file.path()}),
                kMs, atMost(200));
    (void)probe.run({QStringLiteral("forms"), file.path()});
    addLines(figures, probe.lines());
}
