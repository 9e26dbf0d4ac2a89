#pragma once

#include "radio_identity.h"

enum class RadioPhase { Interrogation, Reading, Programming };

// Hears what a radio operation does. Called from inside the operation; the event loop runs between two calls.
class RadioProgress {
  public:
    virtual ~RadioProgress() = default;
    // total: what the increments of this phase add up to (bytes); 0: unknown.
    virtual void phaseStarted(RadioPhase phase, qint32 total) = 0;
    // item: English, what is moved at present. percentage: "45 %".
    virtual void advanced(qint32 increment, const QString &item, const QString &percentage) = 0;
    virtual void identified(const RadioIdentity &identity) = 0;
};

namespace RadioPhases {
// "Radio Interrogation", "Reading Radio" or "Programming Radio"; untranslated.
[[nodiscard]] QString title(RadioPhase phase);
} // namespace RadioPhases
