#pragma once

#include "grid_surface.h"

struct FieldProperties;

// The stored properties of a grid, with their defaults.
struct GridProperties {
    GridDesign design;
    QString fields; // the columns; see GridColumns
    bool enabled = true;

    // Raises error 5 or 13 for a property that does not fit.
    [[nodiscard]] static GridProperties read(const FieldProperties &properties);
};
