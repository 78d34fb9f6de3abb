#include "platform/controls/MenuWindow.h"

#include "platform/controls/ControlDraw.h"
#include "platform/controls/GdiScope.h"

namespace plat {

namespace {

constexpr UINT TextFormat = DT_SINGLELINE | DT_VCENTER;

// The classic check mark: seven columns of three pixels, down two steps and up four, centred
// in `r`.
void DrawCheck(HDC dc, const RECT& r, int sysColor) {
    int cx = (r.left + r.right) / 2 - 3, cy = (r.top + r.bottom) / 2;
    for (int k = 0; k < 7; ++k) {
        int top = k <= 2 ? cy - 1 + k : cy + 3 - k;
        FillSysColor(dc, RECT{cx + k, top, cx + k + 1, top + 3}, sysColor);
    }
}

void DrawString(HDC dc, std::string_view text, RECT r, UINT format, bool embossed) {
    if (text.empty()) return;
    if (embossed)
        DrawEmbossedText(dc, text, r, format);
    else
        DrawText(dc, text.data(), static_cast<int>(text.size()), &r, format);
}

} // namespace

void MenuWindow::Register() {
    WNDCLASS wc;
    wc.style = CS_SAVEBITS | CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<MenuWindow>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = ClassName;
    RegisterClass(&wc);
}

LRESULT MenuWindow::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_NCCREATE:
        view =
            static_cast<const MenuView*>(reinterpret_cast<CREATESTRUCT*>(lParam)->lpCreateParams);
        return Default(msg, wParam, lParam);
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
    default: return Default(msg, wParam, lParam);
    }
}

void MenuWindow::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    SavedDC saved(dc);
    RECT client;
    GetClientRect(hwnd, &client);
    FillSysColor(dc, client, COLOR_MENU);
    if (!view) return;
    SelectObject(dc, view->Font());
    SetBkMode(dc, TRANSPARENT);
    for (int row = 0; row < view->Count(); ++row) DrawItem(dc, row);
}

void MenuWindow::DrawItem(HDC dc, int row) {
    const MenuItem& item = view->At(row);
    RECT r = view->Row(row);
    if (item.Separator()) {
        int y = (r.top + r.bottom) / 2 - 1;
        FillSysColor(dc, RECT{r.left + 1, y, r.right - 1, y + 1}, COLOR_BTNSHADOW);
        FillSysColor(dc, RECT{r.left + 1, y + 1, r.right - 1, y + 2}, COLOR_BTNHIGHLIGHT);
        return;
    }
    bool lit = row == view->highlight;
    bool grayed = (item.flags & MF_GRAYED) != 0;
    if (lit) FillSysColor(dc, r, COLOR_HIGHLIGHT);
    int color = grayed ? COLOR_GRAYTEXT : lit ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT;
    if (item.flags & MF_CHECKED) DrawCheck(dc, view->CheckArea(row), color);
    auto [label, shortcut] = MenuView::Split(item.text);
    RECT text = view->TextArea(row);
    // Greyed text is pressed into the face, except on the highlight, which has no face.
    bool embossed = grayed && !lit;
    SetTextColor(dc, GetSysColor(color));
    DrawString(dc, label, text, TextFormat, embossed);
    DrawString(dc, shortcut, text, TextFormat | DT_RIGHT | DT_NOPREFIX, embossed);
}

} // namespace plat
