#pragma once

#include <QColor>

class QPalette;

// The colour of what cannot be edited but must still be read: between text and window, on a light and a dark desktop.
// A style's own disabled colour is often too faint for it.
[[nodiscard]] QColor dimmedTextColour(const QPalette &palette);
// A mixture: strength 0 gives the window's colour, 1 that of its text.
[[nodiscard]] QColor mixedTextColour(const QPalette &palette, double strength);
