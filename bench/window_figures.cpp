#include "figure_groups.h"

#include "bench_component.h"
#include "full_data.h"
#include "run_time_error.h"

#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <vector>

using Timing::atMost;

namespace {
const QString kMs = QStringLiteral("ms");
const QString kMiB = QStringLiteral("MiB");
constexpr double kMostMemory = 60;

// One line of the probe.
struct Line {
    QString what;
    QString name;
    double value;
};

// Runs the probe in folders of its own.
class Probe {
  public:
    // Milliseconds from the start of the process until it says "shown"; the lines are kept.
    double run(const QStringList &words) {
        mLines.clear();
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environment.insert(QString::fromLatin1(name), mFolder.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
        QElapsedTimer timer;
        timer.start();
        process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600windowprobe"), words);
        const bool shown = process.waitForReadyRead();
        const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
        const bool ended = process.waitForFinished(kPatience) && process.exitCode() == 0;
        const QString said = QString::fromUtf8(process.readAllStandardOutput());
        if (!shown || !ended)
            throw RunTimeError(ErrorNumber::kBadArgument, process.program(),
                               QString::fromUtf8(process.readAllStandardError()));
        for (const QString &line : said.split(u'\n', Qt::SkipEmptyParts))
            mLines.push_back({line.section(u'\t', 0, 0), line.section(u'\t', 1, 1), line.section(u'\t', 2).toDouble()});
        return milliseconds;
    }
    [[nodiscard]] const std::vector<Line> &lines() const { return mLines; }

  private:
    static constexpr int kPatience = 120000;

    QTemporaryDir mFolder;
    std::vector<Line> mLines;
};

double medianStart(Probe &probe, const QStringList &words) {
    constexpr int kStarts = 7;
    std::vector<double> times;
    times.reserve(kStarts);
    for (int start = 0; start < kStarts; ++start)
        times.push_back(probe.run(words));
    std::ranges::nth_element(times, times.begin() + kStarts / 2);
    return times[kStarts / 2];
}

void addLines(Figures &figures, const std::vector<Line> &lines) {
    constexpr double kForm = 30;
    constexpr double kChannelForm = 60;
    constexpr double kKey = 16;
    QStringList refused;
    for (const Line &line : lines) {
        if (line.what == QStringLiteral("form"))
            figures.add(QStringLiteral("open the form ") + line.name, line.value, kMs,
                        atMost(line.name == QStringLiteral("Channels") ? kChannelForm : kForm));
        else if (line.what == QStringLiteral("refused"))
            refused.append(QString::number(line.value));
        else if (line.what == QStringLiteral("key"))
            figures.add(QStringLiteral("keystroke to repaint, median of 21"), line.value, kMs, atMost(kKey));
        else if (line.what == QStringLiteral("memory"))
            figures.add(QStringLiteral("peak memory, full file ") + line.name, line.value, kMiB, atMost(kMostMemory));
    }
    if (!refused.isEmpty())
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("forms refused, by their nodes"),
                           refused.join(QStringLiteral(", ")));
}
} // namespace

void FigureGroups::window(Figures &figures) {
    BenchComponent bench;
    bench.transformer.ChangeTier(QStringLiteral("Advanced"));
    FullData(bench.transformer).fill();
    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool saved = false;
    bench.transformer.SaveFile(file, QString(), 0, saved);
    if (!saved)
        throw RunTimeError(ErrorNumber::kBadArgument, file, QStringLiteral("it was not saved"));
    Probe probe;
    figures.add(QStringLiteral("start to the first form"), medianStart(probe, {QStringLiteral("start")}), kMs,
                atMost(120));
    figures.add(QStringLiteral("start with a full file"), medianStart(probe, {QStringLiteral("start"), file}), kMs,
                atMost(200));
    (void)probe.run({QStringLiteral("forms"), file});
    addLines(figures, probe.lines());
}
