#pragma once

#include <QJsonArray>
#include <QString>

#include <functional>
#include <optional>

// What a figure may be: at most, or at least, so much.
struct Budget {
    double limit = 0;
    enum class Kind { AtMost, AtLeast } kind = Kind::AtMost;

    [[nodiscard]] bool isKept(double value) const { return kind == Kind::AtMost ? value <= limit : value >= limit; }
};

// Prints the figures as they are measured, one line each, and keeps them for --json.
class Figures {
  public:
    enum class Form { Lines, Json };
    // What time is: elapsed, as the budgets mean it, or this process's time on the processor, for a busy machine.
    enum class Clock { Elapsed, Processor };
    Figures(Form form, Clock clock) : mForm(form), mClock(clock) {}

    // Milliseconds of the median run; work is run once more before, so that caches are warm.
    [[nodiscard]] double median(int runs, const std::function<void()> &work) const;

    void setGroup(const QString &group) { mGroup = group; }
    void add(const QString &name, double value, const QString &unit, std::optional<Budget> budget = std::nullopt);
    // Writes what has been kept, in the form Json.
    void finish() const;
    [[nodiscard]] int missed() const { return mMissed; }

  private:
    Form mForm;
    Clock mClock;
    QString mGroup;
    QJsonArray mKept;
    int mMissed = 0;
};

namespace Timing {
[[nodiscard]] inline Budget atMost(double limit) { return {limit, Budget::Kind::AtMost}; }
[[nodiscard]] inline Budget atLeast(double limit) { return {limit, Budget::Kind::AtLeast}; }
} // namespace Timing
