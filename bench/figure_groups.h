#pragma once

#include "figures.h"

// What can be measured. Each raises RunTimeError when the program does not do what is to be measured.
namespace FigureGroups {
void component(Figures &figures); // dictionary, model, files, checks, grids
void process(Figures &figures);   // kx4600ctl as a whole process
void grid(Figures &figures);      // the channels form with 2,000 channels, offscreen, in a process of its own
void window(Figures &figures);    // the real window, offscreen, in processes of its own
void report(Figures &figures);    // the printed report of full data, and the searches
void radio(Figures &figures);     // over the simulated radio as a process of its own
void repaint(Figures &figures);   // the real window during radio operations, offscreen
} // namespace FigureGroups
