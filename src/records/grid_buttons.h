#pragma once

#include "twips.h"

#include <array>
#include <functional>

class GridSurface;
class QPushButton;
class Translation;

// The four buttons under a grid: cmdAdd, cmdInsert, cmdRepeat, cmdDelete. A button that the design does not show takes
// no place. Each runs its command unless the current cell is refused.
class GridButtons {
  public:
    struct Commands {
        std::function<void()> add;
        std::function<void()> insert;
        std::function<void()> repeat;
        std::function<void()> remove;
    };
    // The buttons are children of the grid's control.
    GridButtons(GridSurface &grid, const Commands &commands);

    // The untranslated captions become translated ones.
    void translate(const Translation &translation);
    // Gives the access keys to this grid, or takes them: the captions untranslated with or without "&".
    void AcceleratorsEnabled(bool enabled);
    // A button that is disabled hands the focus to the table first, so that it stays in the grid.
    void SetButtonEnabledState(bool enabled);
    // Lays the buttons out in a control of this size; returns the place that is left for the table.
    TwipRect place(const TwipSize &control);

  private:
    static constexpr std::size_t kButtons = 4;

    void click(const std::function<void()> &command);

    GridSurface &mGrid;
    std::array<QPushButton *, kButtons> mButtons{}; // owned by the control; null where not shown
};
