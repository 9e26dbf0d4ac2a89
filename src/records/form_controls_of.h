#pragma once

#include "host_control.h"

class QWidget;

// The controls of the form that a control stands on; null for one that stands on none.
[[nodiscard]] const HostControls *formControlsOf(const QWidget &control);
