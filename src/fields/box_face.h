#pragma once

#include <QPalette>

class QWidget;

// The colour behind an editing part: the window colour where it can be edited, button face where it cannot, red behind
// a number beyond its safety margin.
enum class BoxFace { kWindow, kButton, kAlarm };

// role: the role in which the part paints its own background.
void applyBoxFace(QWidget &part, QPalette::ColorRole role, BoxFace face);
