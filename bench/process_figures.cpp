#include "figure_groups.h"

#include "full_file.h"
#include "probe.h"

void FigureGroups::process(Figures &figures) {
    constexpr int kRuns = 9;
    const FullFile file;
    Probe tool(QStringLiteral("kx4600ctl"));
    figures.add(QStringLiteral("kx4600ctl check of a full file"),
                figures.median(kRuns,
                               [&] {
                                   tool.run({QStringLiteral("check"), file.path()});
                               }),
                QStringLiteral("ms"), Timing::atMost(100));
    figures.add(QStringLiteral("kx4600ctl info of it"),
                figures.median(kRuns,
                               [&] {
                                   tool.run({QStringLiteral("info"), file.path()});
                               }),
                QStringLiteral("ms"));
}
