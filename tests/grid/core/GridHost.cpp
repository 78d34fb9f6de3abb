#include "tests/grid/core/GridHost.h"

#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"

GridHost::GridHost(int width, int height) {
    plat::Headless();
    window.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE,
                    RECT{0, 0, width + 100, height + 100}, nullptr, 0);
    grid.CreateGrid(WS_CHILD | WS_VISIBLE, RECT{10, 10, 10 + width, 10 + height}, &window, 1000);
    Pump();
}

GridHost::~GridHost() {
    grid.DestroyWindow();
    window.DestroyWindow();
}

void GridHost::Resize(int width, int height) {
    grid.MoveWindow(10, 10, width, height, TRUE);
    Pump();
}

void GridHost::Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

void GridHost::Type(const std::string& text) {
    for (char c : text) plat::PushChar(c);
    Pump();
}

void GridHost::Key(int vk, bool shift) {
    plat::PushKey(vk, shift);
    Pump();
}

void Fill(GridCtrl& grid, int cols, int rows) {
    grid.SetColCount(cols, 0);
    grid.SetRowCount(rows, 0);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            grid.SetCellText(c, r, "r" + std::to_string(r) + "c" + std::to_string(c));
}
