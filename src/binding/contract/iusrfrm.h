#pragma once

#include "host_control.h"

#include <memory>

class Ienabler;

// What every form offers.
class Iusrfrm {
  public:
    virtual ~Iusrfrm() = default;
    virtual std::shared_ptr<Ienabler> Iusrfrm_Enabler() = 0;
    // Ends the form's links before it is removed: tab manager, fields, enabler.
    virtual void Iusrfrm_Terminate() = 0;
    virtual const HostControls &Iusrfrm_Controls() = 0;
    // Null when no control of the form has the focus.
    virtual HostControl *Iusrfrm_ActiveControl() = 0;
};
