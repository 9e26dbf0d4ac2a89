#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>
#include <random>

// What all campaigns share: how many runs, how often each kind of event took effect, and work in a process of its own.
namespace Campaign {
// The full count under KX_FULL.
[[nodiscard]] int count(int small, int full);
// Of a campaign that looks for crashes: the full count under KX_FULL_SANITIZED, meant for the sanitizer build.
[[nodiscard]] int countSanitized(int small, int full);

// How often each kind of event took effect.
class Tally {
  public:
    void add(const QString &kind, int times = 1) { mTimes[kind] += times; }
    [[nodiscard]] int of(const QString &kind) const { return mTimes.value(kind); }
    // "kind 12, other 7"
    [[nodiscard]] QByteArray text() const;

  private:
    QMap<QString, int> mTimes;
};

using Random = std::mt19937;
// From 0 to below.
[[nodiscard]] qsizetype below(Random &random, qsizetype limit);

// Runs work in a forked process; answers with its exit code, -1 when it crashed or could not be started.
[[nodiscard]] int inChild(const std::function<int()> &work);
// In a child of the superuser: becomes a user without rights. False when that fails; true at once for other users.
[[nodiscard]] bool becomeNobody();
} // namespace Campaign
