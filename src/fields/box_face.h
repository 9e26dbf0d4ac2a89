#pragma once

#include <QPalette>

class QWidget;

// The colour behind an editing part: the window colour where it can be edited, button face where it cannot.
enum class BoxFace { kWindow, kButton };

// role: the role in which the part paints its own background.
void applyBoxFace(QWidget &part, QPalette::ColorRole role, BoxFace face);
