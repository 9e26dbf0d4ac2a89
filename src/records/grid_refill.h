#pragma once

class GridSurface;

// Fetches all rows of the grid from the component and shows them.
void refillGrid(GridSurface &grid);
