#pragma once

#include "iusrfrm.h"
#include "window_services.h"

#include <memory>
#include <vector>

class UnseenControl;
class ctlFormEnabler;
struct FormDefinition;
struct PlacedControl;

// A form without a window: the controls that its definition declares, bound by a real enabler, for a report or a
// search. Needs no application object.
//
// Life: made, the enabler's InitialiseFields by the owner, and destroyed. The owner enters the enabler where the
// component's events find it.
class UnseenForm final : public Iusrfrm {
  public:
    // The definition and the references in services outlive the form.
    UnseenForm(const FormDefinition &definition, const FieldServices &services);
    ~UnseenForm() override;
    UnseenForm(const UnseenForm &) = delete;
    UnseenForm &operator=(const UnseenForm &) = delete;

    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override;
    void Iusrfrm_Terminate() override;
    const HostControls &Iusrfrm_Controls() override { return mControls; }
    HostControl *Iusrfrm_ActiveControl() override { return nullptr; }

  private:
    [[nodiscard]] std::unique_ptr<UnseenControl> make(const FormDefinition &definition, const PlacedControl &placed,
                                                      HostControl *container) const;

    FieldServices mServices;
    std::vector<std::unique_ptr<UnseenControl>> mOwned;
    HostControls mControls;
    std::shared_ptr<ctlFormEnabler> mEnabler;
};
