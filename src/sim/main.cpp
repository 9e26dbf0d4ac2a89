#include "dictionary_loader.h"
#include "pseudo_terminal.h"
#include "radio_loop.h"
#include "radio_memory.h"
#include "radio_model.h"
#include "run_time_error.h"
#include "simulated_radio.h"
#include "stop_signals.h"

#include <QCoreApplication>

#include <cstdio>

namespace {
constexpr int kExitUsage = 2;
constexpr int kExitFailed = 3;

int complain(const QString &text, int exitCode) {
    std::fprintf(stderr, "kx4600sim: %s\n", qUtf8Printable(text));
    return exitCode;
}

void say(const QString &line) {
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

int simulate(const SimOptions &options) {
    QString problem;
    const std::unique_ptr<const Dictionary> dictionary = DictionaryLoader::loadCompiledIn();
    const std::optional<RadioModel> model = RadioModel::make(*dictionary, options, problem);
    if (!model)
        return complain(problem, kExitUsage);
    RadioMemory memory(model->identity.layout, model->identity.tier, model->fresh);
    if (!options.image.isEmpty())
        problem = memory.attach(options.image);
    if (!problem.isEmpty())
        return complain(options.image + QStringLiteral(": ") + problem, kExitFailed);

    const StopSignals stop;
    PseudoTerminal terminal;
    problem = terminal.open(options.link);
    if (!problem.isEmpty())
        return complain(options.link + QStringLiteral(": ") + problem, kExitFailed);
    SimulatedRadio radio(model->identity, memory);
    FaultyLine line(options.faults);
    say(QStringLiteral("ready ") + options.link);
    RadioLoop(terminal, radio, line, !options.fullSpeed, stop.descriptor()).run();
    const LineCounts &counts = line.counts();
    say(QStringLiteral("ended bytes=%1 dropped=%2 corrupted=%3 swallowed=%4")
            .arg(counts.bytes)
            .arg(counts.dropped)
            .arg(counts.corrupted)
            .arg(counts.swallowed));
    return 0;
}
} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains(QStringLiteral("--help"))) {
        say(SimOptions::usage());
        return 0;
    }
    QString problem;
    const std::optional<SimOptions> options = SimOptions::parse(arguments, problem);
    if (!options)
        return complain(problem + QLatin1Char('\n') + SimOptions::usage(), kExitUsage);
    try {
        return simulate(*options);
    } catch (const RunTimeError &error) {
        return complain(error.Description, kExitFailed);
    }
}
