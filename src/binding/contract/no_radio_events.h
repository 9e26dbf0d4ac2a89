#pragma once

#include <QString>

// What a progress listener may be besides: one that tells the user itself that no radio could be reached, and offers
// other ports. The component looks for it among the progress listeners; without one it shows a message box.
class NoRadioEvents {
  public:
    virtual ~NoRadioEvents() = default;
    // Behind the end of the operation: the stored port is missing, or nothing answers there. Prompt and parameters as
    // of TransformerEvents_MsgBox.
    virtual void mobjTransformerEvents_NoRadio(const QString &Prompt, const QString &strParameters) = 0;
};
