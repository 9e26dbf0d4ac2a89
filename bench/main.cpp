#include "figure_groups.h"

#include "run_time_error.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cstdio>

namespace {
struct Group {
    const char *name;
    const char *about;
    void (*measure)(Figures &figures);
};
constexpr std::array kGroups{
    Group{"component", "dictionary, model, files, checks and grids", FigureGroups::component},
    Group{"process", "kx4600ctl as a whole process", FigureGroups::process},
    Group{"window", "starts of the real window, its forms and keystrokes, offscreen", FigureGroups::window},
    Group{"grid", "the channels form with 2,000 channels, offscreen", FigureGroups::grid},
    Group{"report", "all records of full data as PDF; find field and search of the help", FigureGroups::report},
    Group{"radio", "a full radio of each tier over the simulated radio; takes some minutes", FigureGroups::radio},
    Group{"repaint", "the real window while a full radio is programmed and read", FigureGroups::repaint},
};

int usage(std::FILE *stream, int exitCode) {
    std::fputs("usage: kx4600bench [--json] [--cpu] [GROUP ...]\n"
               "  --cpu      time of this process on the processor, for a busy machine (group component alone)\n",
               stream);
    for (const Group &group : kGroups)
        std::fprintf(stream, "  %-10s %s\n", group.name, group.about);
    return exitCode;
}

bool isGroup(const QString &word) {
    return std::ranges::any_of(kGroups, [&](const Group &group) { return word == QLatin1StringView(group.name); });
}
} // namespace

// Exit code 0: every budget is kept, 1: one is missed, 2: wrong usage, 3: something could not be measured.
int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    if (!qEnvironmentVariableIsSet("KX4600_BIN"))
        qputenv("KX4600_BIN", QFile::encodeName(QCoreApplication::applicationDirPath()));
    QStringList words = QCoreApplication::arguments().sliced(1);
    if (words.contains(QStringLiteral("--help")))
        return usage(stdout, 0);
    const bool isJson = words.removeAll(QStringLiteral("--json")) > 0;
    const bool isCpu = words.removeAll(QStringLiteral("--cpu")) > 0;
    if (!std::ranges::all_of(words, isGroup))
        return usage(stderr, 2);
    Figures figures(isJson ? Figures::Form::Json : Figures::Form::Lines,
                    isCpu ? Figures::Clock::Processor : Figures::Clock::Elapsed);
    int exitCode = 0;
    for (const Group &group : kGroups) {
        const QString name = QString::fromLatin1(group.name);
        if (!words.isEmpty() && !words.contains(name))
            continue;
        figures.setGroup(name);
        try {
            group.measure(figures);
        } catch (const RunTimeError &error) {
            std::fprintf(stderr, "%s: %s: %s\n", group.name, qUtf8Printable(error.Source),
                         qUtf8Printable(error.Description));
            exitCode = 3;
        }
    }
    figures.finish();
    return exitCode != 0 ? exitCode : int(figures.missed() > 0);
}
