#pragma once

#include "host_control.h"

// Takes the tab stop from every control that does not stand on the shown page of the tab control, and gives it to the
// enabled ones that do (frames never have one). Called after each page change and once when the form is shown. A
// control outside the tab control has no tab stop either. A control that cannot be read is passed over.
void SetPageTabStops(HostControl &tab, const HostControls &controls);
