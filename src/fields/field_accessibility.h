#pragma once

// Roles that widgets of forms do not have by themselves: a frame is a grouping, its border a border, tabs with their
// pages a pane.
namespace FieldAccessibility {
// To be called before such a control can be asked for its role; more calls change nothing.
void install();
} // namespace FieldAccessibility
