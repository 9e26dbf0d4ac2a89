#pragma once

#include "host_control.h"

#include <vector>

class ErrorReport;

// The tab stops of one composite control, in tab order. The toolkit's own focus chain leads Shift+Tab to the last of
// them, so entering and leaving need no help here.
class clsTabManager {
  public:
    explicit clsTabManager(ErrorReport &errors);

    // False for a null collection: the manager stays unconstructed. A control that cannot be read, or whose tab index
    // is not below the number of controls, is passed over. The controls outlive ClassDeconstruct.
    bool ClassConstruct(const HostControls *CtlCollection);
    void ClassDeconstruct();
    [[nodiscard]] bool Constructed() const { return mConstructed; }
    // False: the focus was not moved.
    bool ProcessEnterFocus();
    bool ProcessExitFocus();
    // The last control that is enabled, visible and a tab stop; null when there is none.
    [[nodiscard]] HostControl *GetLastFocusableTabStop() const;

  private:
    ErrorReport &mErrors;
    std::vector<HostControl *> mControls; // by tab index
    bool mConstructed = false;
};
