#pragma once

// Roles of the field controls that their widgets do not have by themselves: a frame is a grouping, its border a border.
namespace FieldAccessibility {
// To be called before such a control can be asked for its role; more calls change nothing.
void install();
} // namespace FieldAccessibility
