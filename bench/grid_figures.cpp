#include "figure_groups.h"

#include "full_file.h"
#include "probe.h"

namespace {
constexpr double kStep = 16; // milliseconds: a record move, a cell edit, a column sort

// For what goes over many records no budget is set.
std::optional<Budget> budgetOf(const QString &name) {
    return name.contains(QStringLiteral("00 ")) ? std::nullopt : std::optional(Timing::atMost(kStep));
}
} // namespace

void FigureGroups::grid(Figures &figures) {
    const FullFile file;
    Probe probe(QStringLiteral("kx4600gridprobe"));
    probe.run({file.path()});
    for (const Probe::Line &line : probe.lines())
        figures.add(line.value(0), line.value(1).toDouble(), QStringLiteral("ms"), budgetOf(line.value(0)));
}
