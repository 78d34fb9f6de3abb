#pragma once
// What every child window of the grid holds: the control that owns it and the sheet it shows.
// The control keeps `sheet` in step when another sheet becomes active.

class GridCtrl;
class GridSheet;

struct GridChild {
    GridCtrl* grid = nullptr;
    GridSheet* sheet = nullptr;
};
