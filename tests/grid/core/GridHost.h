#pragma once
// A top-level window on the headless screen with a recording grid inside it, at a known size.

#include "platform/afx/CWnd.h"
#include "tests/grid/core/RecordingGrid.h"

#include <string>

class GridHost {
public:
    // The grid's client area is width by height; the grid has no border.
    GridHost(int width = 400, int height = 300);
    ~GridHost();
    GridHost(const GridHost&) = delete;
    GridHost& operator=(const GridHost&) = delete;

    // Resizes the grid, which lays itself out again.
    void Resize(int width, int height);
    // Runs the messages that are waiting, paints among them.
    static void Pump();
    // Characters and keys as the user types them, into whatever has the focus; each runs the
    // messages it causes.
    static void Type(const std::string& text);
    static void Key(int vk, bool shift = false);

    CWnd window;
    RecordingGrid grid;
};

// A table of rows by cols, filled with "r<row>c<col>".
void Fill(GridCtrl& grid, int cols, int rows);
