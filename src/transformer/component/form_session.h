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
    [[nodiscard]] QString describe(const Finding &finding) const;
    void tellErrors(const std::vector<Finding> &findings);

    ComponentState &mState;
};

namespace Findings {
// "Channels, record 3, Tx Frequency: ..."; English.
[[nodiscard]] QString place(const TierData &data, const Finding &finding);
// The caption of the form that a finding is on, in the tree; its class name where the tree lacks it.
[[nodiscard]] QString formCaption(const Dictionary &dictionary, const FieldDefinition &field);
} // namespace Findings
