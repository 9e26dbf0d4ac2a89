#include "figure_groups.h"

#include "full_file.h"
#include "probe.h"
#include "run_time_error.h"
#include "sim_process.h"

using Timing::atMost;

// The real window while a full radio of the largest tier is programmed and read at full speed.
void FigureGroups::repaint(Figures &figures) {
    constexpr double kLongestGap = 100;
    const QString tier = QStringLiteral("Advanced");
    const FullFile file(tier);
    SimProcess radio;
    if (!radio.startPlain({QStringLiteral("--link"), radio.link(), QStringLiteral("--tier"), tier}))
        throw RunTimeError(ErrorNumber::kBadArgument, radio.link(), QStringLiteral("the radio did not start"));
    Probe probe(QStringLiteral("kx4600repaintprobe"));
    probe.run({file.path()}, QStringLiteral("1=") + radio.link());
    for (const Probe::Line &line : probe.lines()) {
        const bool reads = line.value(0).startsWith(QStringLiteral("mnuRead"));
        figures.add(QStringLiteral("longest time between two repaints, full %1, %2")
                        .arg(tier, reads ? QStringLiteral("read") : QStringLiteral("program")),
                    line.value(1).toDouble(), QStringLiteral("ms"), atMost(kLongestGap));
    }
}
