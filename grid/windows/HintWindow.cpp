#include "grid/windows/HintWindow.h"

#include "grid/core/GridCtrl.h"
#include "platform/afx/CClientDC.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(HintWindow, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

int HintWindow::Create(CWnd*, HBRUSH background) {
    if (!background) background = reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(25));
    WNDCLASS wc;
    wc.style = CS_DBLCLKS | CS_SAVEBITS;
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hbrBackground = background;
    wc.lpszClassName = "HintWnd";
    WNDCLASS existing;
    if (!GetClassInfo(nullptr, "HintWnd", &existing) && !RegisterClass(&wc)) return 0;
    if (!CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "HintWnd", "", WS_POPUP | WS_BORDER, RECT{},
                  nullptr, 0))
        return 0;
    text.clear();
    textColor = 0;
    backColor = 0xE0FFFF;
    placement = 1;
    font = nullptr;
    lineHeight = Measure("X").cy;
    return 1;
}

SIZE HintWindow::Measure(const char* sample) {
    CClientDC dc(this);
    HGDIOBJ old = font ? SelectObject(dc, font->GetSafeHandle()) : nullptr;
    SIZE size{};
    GetTextExtentPoint32(dc, sample, static_cast<int>(std::char_traits<char>::length(sample)),
                         &size);
    if (old) SelectObject(dc, old);
    return size;
}

int HintWindow::SetHintFont(CFont* hintFont) {
    font = hintFont;
    lineHeight = Measure("Xy").cy + 3;
    return 0;
}

int HintWindow::SetPlacement(int flags) {
    placement = flags;
    return 0;
}

int HintWindow::SetTextColor(COLORREF color) {
    textColor = color;
    return 0;
}

int HintWindow::SetBackColor(COLORREF color) {
    backColor = color;
    return 0;
}

int HintWindow::SetText(const std::string& hintText, int redraw) {
    text = hintText;
    if (redraw) Invalidate(TRUE);
    return 0;
}

int HintWindow::MoveHint(int x, int y, int minimumWidth) {
    const int width = std::max(minimumWidth, static_cast<int>(Measure(text.c_str()).cx) + 4);
    RECT r;
    if (placement & 0x04)
        r.left = x - width / 2;
    else if (placement & 0x02)
        r.left = x - width;
    else
        r.left = x;
    r.right = r.left + width;
    if (placement & 0x20)
        r.top = y - lineHeight / 2;
    else if (placement & 0x10)
        r.top = y - lineHeight;
    else
        r.top = y;
    r.bottom = r.top + lineHeight;
    RECT client;
    grid->GetClientRect(&client);
    if (r.left < 0) OffsetRect(&r, -r.left, 0);
    if (r.top < 0) OffsetRect(&r, 0, -r.top);
    if (r.right > client.right) OffsetRect(&r, client.right - r.right, 0);
    if (r.bottom > client.bottom) OffsetRect(&r, 0, client.bottom - r.bottom);
    grid->ClientToScreen(&r);
    HideHint();
    MoveWindow(&r, TRUE);
    ShowHint();
    SendMessage(WM_PAINT);
    return 0;
}

void HintWindow::HideHint() {
    ShowWindow(SW_HIDE);
}

void HintWindow::ShowHint() {
    if (!IsWindowVisible()) ShowWindow(SW_SHOWNA);
}

void HintWindow::OnPaint() {
    {
        CClientDC dc(this);
        HGDIOBJ old = font ? SelectObject(dc, font->GetSafeHandle()) : nullptr;
        RECT client;
        GetClientRect(&client);
        ::SetTextColor(dc, textColor);
        ::SetBkColor(dc, backColor);
        ::SetBkMode(dc, OPAQUE);
        DrawText(dc, text.c_str(), static_cast<int>(text.size()), &client,
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        if (old) SelectObject(dc, old);
    }
    ValidateRect(nullptr);
}
