#include "grid/windows/GridHScroll.h"

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"
#include "grid/windows/HintWindow.h"

void GridHScroll::Refresh() {
    if (!m_hWnd) return;
    GridSheet& s = *sheet;
    if (s.maxLeftCol != lastMaxLeftCol || s.lockedCols != lastLockedCols) {
        lastMaxLeftCol = s.maxLeftCol;
        lastLockedCols = s.lockedCols;
        const int page =
            s.defaultColWidth > 0 ? (s.viewWidth - s.lockedWidth) / s.defaultColWidth : 0;
        SCROLLINFO info;
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMin = 0;
        info.nMax = s.maxLeftCol - s.lockedCols - 1 + page;
        info.nPage = static_cast<UINT>(page);
        SetScrollInfo(&info, FALSE);
        if (RectHeight(s.hScrollRect) == 0) grid->RecalcLayout();
    }
    if (s.leftCol != s.previousLeftCol) SetScrollPos(s.leftCol - s.lockedCols, TRUE);
    Invalidate(TRUE);
}

void GridHScroll::HandleScroll(UINT code, UINT pos) {
    if (grid->view->m_hWnd && CWnd::GetFocus() != grid->view.get()) grid->view->SetFocus();
    sheet->moveSource = 4;
    switch (code) {
    case SB_LINEUP: grid->ScrollCols(0); break;
    case SB_LINEDOWN: grid->ScrollCols(1); break;
    case SB_PAGEUP: grid->ScrollCols(2); break;
    case SB_PAGEDOWN: grid->ScrollCols(3); break;
    case SB_THUMBPOSITION:
        if (sheet->hScrollHintsEnabled) grid->hintWindow->HideHint();
        grid->SetLeftCol(static_cast<int>(pos) + sheet->lockedCols);
        break;
    case SB_THUMBTRACK: ThumbTrack(pos); break;
    case SB_TOP: grid->ScrollCols(4); break;
    case SB_BOTTOM: grid->ScrollCols(5); break;
    default: break;
    }
}

void GridHScroll::ThumbTrack(UINT pos) {
    if (sheet->hScrollMode == 1) grid->SetLeftCol(static_cast<int>(pos) + sheet->lockedCols);
    trackCol = static_cast<int>(pos) + sheet->lockedCols;
    if (!sheet->hScrollHintsEnabled) return;
    RECT bar;
    GetWindowRect(&bar);
    POINT at{static_cast<int>(LOWORD(GetMessagePos())), bar.top};
    grid->ScreenToClient(&at);
    HintWindow& hint = *grid->hintWindow;
    hint.SetPlacement(0x14);
    std::string text;
    grid->GetHScrollHintText(trackCol, &text);
    hint.SetText(text, FALSE);
    hint.MoveHint(at.x, at.y - 1, 20);
    hint.ShowHint();
}
