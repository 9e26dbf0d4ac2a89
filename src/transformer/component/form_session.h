#pragma once

#include "change_notifier.h"
#include "component_state.h"
#include "final_checks.h"

// The open form: saved, reverted, checked; and the check of the whole data.
class FormSession {
  public:
    explicit FormSession(ComponentState &state) : mState(state) {}

    void SaveForm(const QString &tierKey);
    void RevertFormData(const QString &tierKey);
    void ValidateForm(const QString &formTypeName, bool &ok);
    [[nodiscard]] bool FinalValidate();

  private:
    // The lines of the first few, as one parameter of a message.
    [[nodiscard]] QString listed(const std::vector<Finding> &findings) const;
    void tellErrors(const std::vector<Finding> &findings);

    ComponentState &mState;
};

namespace Findings {
// "Channels, record 3, Tx Frequency: ..." as a parameter of a message.
[[nodiscard]] QString line(const Dictionary &dictionary, const Finding &finding);
// The caption of the form that a finding is on, in the tree; its class name where the tree lacks it.
[[nodiscard]] QString formCaption(const Dictionary &dictionary, const FieldDefinition &field);
} // namespace Findings
