#pragma once

// What a navigator asks of the grid that does its record commands. Each runs as the grid's own button does, on its
// current row.
class NavigatorGrid {
  public:
    virtual ~NavigatorGrid() = default;
    virtual void Add() = 0;
    virtual void Insert() = 0;
    virtual void Repeat() = 0;
    virtual void Delete() = 0;
};
