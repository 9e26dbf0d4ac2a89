#pragma once

#include "program_icons.h"

// State shown by an image in the tree, on the tiers and on the filter tabs.
enum class TickImage {
    White, // nothing changed
    Green, // changed: a green tick
    Link   // a parent, which never takes a tick
};

[[nodiscard]] inline QIcon tickIcon(TickImage image) {
    switch (image) {
    case TickImage::Green:
        return loadIcon(ProgramIcon::kTickGreen);
    case TickImage::Link:
        return loadIcon(ProgramIcon::kGroup);
    case TickImage::White:
        break;
    }
    return loadIcon(ProgramIcon::kTickWhite);
}
