#pragma once

#include "twips.h"

#include <algorithm>
#include <vector>

struct ControlDefinition;

struct ArrangedControl {
    const ControlDefinition *control;
    TwipRect place; // relative to its container
};

// A piece of a form, laid out: where its controls stand and how well that went.
struct Arrangement {
    std::vector<ArrangedControl> controls;
    Twips height;
    int wrappedCaptions = 0;
    int narrowBoxes = 0; // editing parts too narrow for what they show
    Twips missingRows;   // height that the grids would like to have in addition

    void add(const ControlDefinition &control, Twips left, Twips top, Twips width, Twips itsHeight) {
        controls.push_back({&control, {left, top, width, itsHeight}});
    }
    // A grid likes to show about nine rows below its heads and above its buttons.
    void addGrid(const ControlDefinition &grid, Twips left, Twips top, Twips width, Twips itsHeight) {
        constexpr Twips kComfortable{3000};
        add(grid, left, top, width, itsHeight);
        missingRows = missingRows + std::max(Twips{}, kComfortable - itsHeight);
    }
    // Takes over the controls of another piece; its height is left to the caller.
    void take(const Arrangement &piece) {
        controls.insert(controls.end(), piece.controls.begin(), piece.controls.end());
        wrappedCaptions += piece.wrappedCaptions;
        narrowBoxes += piece.narrowBoxes;
        missingRows = missingRows + piece.missingRows;
    }
};
