#pragma once

#include "call_log.h"
#include "run_time_error.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <map>
#include <optional>

// What a recording double answers, and what it does before it answers. A call is addressed by its operation alone, by
// operation and first argument (mostly a UIID), or by operation and its first two (mostly UIID and record); the closest
// address wins.
class CallScript {
  public:
    class Address {
      public:
        // The answer from now on. A refusing operation answers false.
        Address &answers(const QVariant &answer);
        Address &answersUndefined();
        Address &refuses() { return answers(false); }
        // The operation fails: nothing is answered.
        Address &raises(const RunTimeError &error);
        // Re-entry: runs inside the operation, before it answers. An action is not entered again while it runs.
        Address &runs(std::function<void()> action);
        // Back to the double's default.
        void reset();

      private:
        friend class CallScript;
        std::optional<QVariant> mAnswer;
        std::optional<RunTimeError> mError;
        std::function<void()> mAction;
        bool mRunning = false;
    };

    explicit CallScript(CallLog &log) : mLog(log) {}

    [[nodiscard]] Address &when(const QString &operation) { return mAddresses[operation]; }
    [[nodiscard]] Address &when(const QString &operation, const QString &uiid);
    [[nodiscard]] Address &when(const QString &operation, const QString &uiid, qint32 recordNr);

    // Records the call, does what is scripted for it and yields its answer, or fallback where none is.
    QVariant play(const QString &operation, const QVariantList &arguments, const QVariant &fallback = {});

  private:
    Address *find(const QString &operation, const QVariantList &arguments,
                  const std::function<bool(const Address &)> &wanted);

    CallLog &mLog;
    std::map<QString, Address> mAddresses;
};
