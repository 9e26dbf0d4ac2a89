#include "figures.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {
QString verdict(double value, const std::optional<Budget> &budget) {
    if (!budget)
        return QStringLiteral("no budget");
    return QStringLiteral("budget %1 %2  %3")
        .arg(budget->kind == Budget::Kind::AtMost ? QStringLiteral("<") : QStringLiteral(">"))
        .arg(budget->limit)
        .arg(budget->isKept(value) ? QStringLiteral("ok") : QStringLiteral("MISSED"));
}
double milliseconds(Figures::Clock clock) {
    timespec now{};
    ::clock_gettime(clock == Figures::Clock::Elapsed ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}
} // namespace

void Figures::add(const QString &name, double value, const QString &unit, std::optional<Budget> budget) {
    const bool isKept = !budget || budget->isKept(value);
    mMissed += isKept ? 0 : 1;
    if (mForm == Form::Lines) {
        std::printf("%-10s %-46s %10.3f %-5s %s\n", qUtf8Printable(mGroup), qUtf8Printable(name), value,
                    qUtf8Printable(unit), qUtf8Printable(verdict(value, budget)));
        std::fflush(stdout);
        return;
    }
    QJsonObject figure{{QStringLiteral("group"), mGroup},
                       {QStringLiteral("name"), name},
                       {QStringLiteral("value"), value},
                       {QStringLiteral("unit"), unit}};
    if (budget) {
        figure.insert(QStringLiteral("budget"), budget->limit);
        figure.insert(QStringLiteral("ok"), isKept);
    }
    mKept.append(figure);
}

void Figures::finish() const {
    if (mForm == Form::Json)
        std::fputs(QJsonDocument(mKept).toJson().constData(), stdout);
}

double Figures::median(int runs, const std::function<void()> &work) const {
    work();
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        const double start = milliseconds(mClock);
        work();
        times.push_back(milliseconds(mClock) - start);
    }
    std::ranges::nth_element(times, times.begin() + runs / 2);
    return times[std::size_t(runs / 2)];
}
