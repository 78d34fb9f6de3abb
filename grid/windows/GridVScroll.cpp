#include "grid/windows/GridVScroll.h"

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"
#include "grid/windows/HintWindow.h"

void GridVScroll::Refresh() {
    if (!m_hWnd) return;
    GridSheet& s = *sheet;
    if (s.maxTopRow != lastMaxTopRow || s.vScrollMode != lastMode ||
        s.lockedRows != lastLockedRows) {
        lastMaxTopRow = s.maxTopRow;
        lastMode = s.vScrollMode;
        lastLockedRows = s.lockedRows;
        SCROLLINFO info;
        if (s.maxTopRow <= 1000) {
            if (s.vScrollMode == 2) {
                info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
                info.nMin = 0, info.nMax = 2, info.nPage = 0, info.nPos = 1;
            } else {
                const int page = s.viewHeight / s.defaultRowHeight;
                info.fMask = SIF_RANGE | SIF_PAGE;
                info.nMin = s.lockedRows, info.nMax = s.maxTopRow - 1 + page;
                info.nPage = static_cast<UINT>(page);
            }
            SetScrollInfo(&info, FALSE);
            Invalidate(TRUE);
            rowToThumb = thumbToRow = 1.0;
        } else {
            rowToThumb = 1000.0 / s.maxTopRow;
            thumbToRow = s.maxTopRow / 1000.0;
            if (s.vScrollMode == 2) {
                SendMessage(SBM_SETRANGE, 0, 2);
                rowToThumb = thumbToRow = 1.0;
            } else {
                info.fMask = SIF_RANGE | SIF_PAGE;
                info.nMin = s.lockedRows, info.nMax = 1000, info.nPage = 1;
                SetScrollInfo(&info, FALSE);
            }
        }
        // A bar that the layout left out may be needed again.
        if (RectWidth(s.vScrollRect) == 0) grid->RecalcLayout();
    }
    if (s.topRow != s.previousTopRow) {
        if (s.vScrollMode == 2)
            SetScrollPos(1, TRUE);
        else
            SetScrollPos(static_cast<int>(s.topRow * rowToThumb), TRUE);
    }
}

void GridVScroll::HandleScroll(UINT code, UINT pos) {
    if (grid->view->m_hWnd && CWnd::GetFocus() != grid->view.get()) grid->view->SetFocus();
    sheet->moveSource = 4;
    switch (code) {
    case SB_LINEUP: grid->ScrollRows(0); break;
    case SB_LINEDOWN: grid->ScrollRows(1); break;
    case SB_PAGEUP: grid->ScrollRows(2); break;
    case SB_PAGEDOWN: grid->ScrollRows(3); break;
    case SB_THUMBPOSITION:
        if (sheet->vScrollHintsEnabled) grid->hintWindow->HideHint();
        grid->SetTopRow(static_cast<int>(pos * thumbToRow));
        break;
    case SB_THUMBTRACK: ThumbTrack(pos); break;
    case SB_TOP: grid->ScrollRows(4); break;
    case SB_BOTTOM: grid->ScrollRows(5); break;
    default: break;
    }
}

void GridVScroll::ThumbTrack(UINT pos) {
    if (sheet->vScrollMode == 1) grid->SetTopRow(static_cast<int>(pos * thumbToRow));
    trackRow = static_cast<int>(pos * thumbToRow) + sheet->lockedRows;
    if (!sheet->vScrollHintsEnabled) return;
    RECT bar;
    GetWindowRect(&bar);
    POINT at{bar.left, static_cast<int>(HIWORD(GetMessagePos()))};
    grid->ScreenToClient(&at);
    HintWindow& hint = *grid->hintWindow;
    hint.SetPlacement(0x22);
    std::string text;
    grid->GetVScrollHintText(trackRow, &text);
    hint.SetText(text, FALSE);
    hint.MoveHint(at.x - 1, at.y, 40);
    hint.ShowHint();
}
