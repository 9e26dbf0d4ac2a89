#pragma once

#include "host_control.h"

class QWidget;

enum class TabDirection { kForward, kBackward };

// The control that follows the one with this tab index, or precedes it, among those that can take the focus; null when
// there is none.
[[nodiscard]] HostControl *NextTabStop(const HostControls &controls, qint32 tabIndex, TabDirection direction);
// Gives the control the focus as Tab does, so that a grid knows at which end it was entered.
void focusByTab(HostControl &control, TabDirection direction);
// Gives the focus to the next widget of the window that Tab reaches and that is not the given one or a part of it.
void focusBeyond(QWidget &widget, TabDirection direction);
