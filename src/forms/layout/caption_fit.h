#pragma once

#include "twips.h"

#include <QString>

#include <functional>

// How a caption stands in a given width.
namespace CaptionFit {
using Measure = std::function<Twips(const QString &)>;

// Lines that the text takes when it is broken where a label breaks it, at blanks and hyphens; 0 for an empty text. A
// word wider than the width still takes one line.
[[nodiscard]] int lines(const Measure &measure, const QString &text, Twips width);
// Width of the widest word: no narrower label shows the whole text.
[[nodiscard]] Twips widestWord(const Measure &measure, const QString &text);
} // namespace CaptionFit
