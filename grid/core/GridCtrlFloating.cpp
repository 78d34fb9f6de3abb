// The floating window that the grid keeps clear of the pending cell, such as a tool dialog
// that the user works with beside the table.

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"

int GridCtrl::SetFloatingDialog(CWnd* dialog) {
    if (!dialog) return 1;
    floatingDialog = dialog;
    dialog->SetWindowPos(CWnd::FromHandle(HWND_TOPMOST), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return 0;
}

void GridCtrl::KeepFloatingDialogClear() {
    if (!floatingDialog || !floatingDialog->m_hWnd || !view->m_hWnd) return;
    const GridSheet& s = *sheet;
    RECT old;
    floatingDialog->GetWindowRect(&old);
    // `placed` is the window in the view's coordinates, `moved` in the screen's.
    RECT placed = old;
    view->ScreenToClient(&placed);
    RECT cell;
    GetJoinedCellRect(s.pendingCol, s.pendingRow, &cell);
    RECT moved = old;
    bool didMove = false;
    if (s.floatingDialogPlacement == 1) {
        // Docked beside the cell.
        OffsetRect(&placed, cell.right + 30 - placed.left, cell.top - placed.top);
        moved = placed;
        view->ClientToScreen(&moved);
        didMove = true;
    }
    RECT overlap;
    if (IntersectRect(&overlap, &placed, &cell)) {
        const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
        const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
        const int right = cell.right - placed.left + 5;
        const int down = cell.bottom - placed.top + 5;
        const int leftward = cell.left - placed.right - 5;
        const int up = cell.top - placed.bottom - 5;
        didMove = true;
        if (old.right + right < screenWidth)
            OffsetRect(&moved, right, 0);
        else if (old.bottom + down < screenHeight)
            OffsetRect(&moved, 0, down);
        else if (old.left + leftward >= 1)
            OffsetRect(&moved, leftward, 0);
        else if (old.bottom + up < screenHeight)
            OffsetRect(&moved, 0, up);
        else
            didMove = s.floatingDialogPlacement == 1;
    }
    if (!didMove) return;
    NotifyFloatingDialogMoved(&old, &moved);
    floatingDialog->MoveWindow(&moved, TRUE);
    floatingDialog->UpdateWindow();
    RedrawAll();
}
