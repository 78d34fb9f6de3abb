#include "platform/controls/MessageBoxDialog.h"

#include "platform/controls/GdiScope.h"
#include "platform/user/WindowManager.h"

#include <algorithm>

namespace plat {

namespace {

constexpr int TextId = 0xFFFF; // the text's static control, as on the real system

const char* Label(int id) {
    switch (id) {
    case IDOK: return "OK";
    case IDCANCEL: return "Cancel";
    case IDABORT: return "&Abort";
    case IDRETRY: return "&Retry";
    case IDIGNORE: return "&Ignore";
    case IDYES: return "&Yes";
    default: return "&No";
    }
}

// A length in dialog units along x (or y), in pixels of the dialog.
int Units(HWND dialog, int x, int y) {
    RECT r{0, 0, x, y};
    MapDialogRect(dialog, &r);
    return static_cast<int>(x ? r.right : r.bottom);
}

} // namespace

MessageBoxDialog::MessageBoxDialog(const char* text, const char* caption, UINT type)
    : text(text ? text : ""), caption(caption ? caption : "Error") {
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL: buttons = {IDOK, IDCANCEL}; break;
    case MB_ABORTRETRYIGNORE: buttons = {IDABORT, IDRETRY, IDIGNORE}; break;
    case MB_YESNOCANCEL: buttons = {IDYES, IDNO, IDCANCEL}; break;
    case MB_YESNO: buttons = {IDYES, IDNO}; break;
    case MB_RETRYCANCEL: buttons = {IDRETRY, IDCANCEL}; break;
    default: buttons = {IDOK}; break;
    }
    size_t wanted = (type & MB_DEFMASK) >> 8;
    defaultButton = wanted < buttons.size() ? static_cast<int>(wanted) : 0;
}

int MessageBoxDialog::Run(HWND owner) {
    DialogTemplate tpl;
    tpl.caption = caption;
    tpl.cx = 100; // the layout sizes the box to its text once the font is known
    tpl.cy = 50;
    tpl.items.push_back(DialogItemTemplate{SS_LEFT | SS_NOPREFIX | WS_VISIBLE, 0, 0, 0, 0, 0,
                                           TextId, "Static", text});
    for (size_t i = 0; i < buttons.size(); ++i) {
        DWORD style = WS_VISIBLE | WS_TABSTOP | (i == 0 ? WS_GROUP : 0u) |
                      (static_cast<int>(i) == defaultButton ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
        tpl.items.push_back(
            DialogItemTemplate{style, 0, 0, 0, 50, 14, buttons[i], "Button", Label(buttons[i])});
    }
    ReportEvent("msgbox", text);
    INT_PTR result =
        DialogBoxIndirectParam(nullptr, &tpl, owner, Proc, reinterpret_cast<LPARAM>(this));
    return result < 0 ? 0 : static_cast<int>(result);
}

bool MessageBoxDialog::Has(int id) const {
    return std::find(buttons.begin(), buttons.end(), id) != buttons.end();
}

INT_PTR MessageBoxDialog::Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* box = reinterpret_cast<const MessageBoxDialog*>(GetWindowLongPtr(dialog, DWLP_USER));
    switch (msg) {
    case WM_INITDIALOG:
        box = reinterpret_cast<const MessageBoxDialog*>(lParam);
        SetWindowLongPtr(dialog, DWLP_USER, lParam);
        box->Layout(dialog);
        SetFocus(GetDlgItem(dialog, box->buttons[static_cast<size_t>(box->defaultButton)]));
        return FALSE;
    case WM_COMMAND: {
        if (!box || HIWORD(wParam) != BN_CLICKED) return FALSE;
        int id = LOWORD(wParam);
        // Escape and the close box ask for Cancel.
        if (id == IDCANCEL && !box->Has(IDCANCEL)) {
            if (box->buttons.size() == 1) EndDialog(dialog, IDOK);
            return TRUE;
        }
        if (box->Has(id)) EndDialog(dialog, id);
        return TRUE;
    }
    default: return FALSE;
    }
}

void MessageBoxDialog::Layout(HWND dialog) const {
    auto font = reinterpret_cast<HFONT>(SendMessage(dialog, WM_GETFONT, 0, 0));
    MeasureDC measure(font ? font : GetStockObject(SYSTEM_FONT));
    int margin = Units(dialog, 7, 0), vmargin = Units(dialog, 0, 7), gap = Units(dialog, 4, 0);
    int buttonWidth = Units(dialog, 50, 0), buttonHeight = Units(dialog, 0, 14);
    RECT textRect{0, 0, GetSystemMetrics(SM_CXSCREEN) / 2, 0};
    DrawText(measure.Dc(), text.c_str(), static_cast<int>(text.size()), &textRect,
             DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    RECT captionRect{0, 0, 0, 0};
    DrawText(measure.Dc(), caption.c_str(), static_cast<int>(caption.size()), &captionRect,
             DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    int count = static_cast<int>(buttons.size());
    int row = count * buttonWidth + (count - 1) * gap;
    int width = std::max({static_cast<int>(textRect.right), row,
                          static_cast<int>(captionRect.right) + GetSystemMetrics(SM_CYCAPTION)}) +
                2 * margin;
    int textHeight = static_cast<int>(textRect.bottom);
    int height = 3 * vmargin + textHeight + buttonHeight;
    MoveWindow(GetDlgItem(dialog, TextId), margin, vmargin, width - 2 * margin, textHeight, FALSE);
    int x = (width - row) / 2, y = 2 * vmargin + textHeight;
    for (int i = 0; i < count; ++i)
        MoveWindow(GetDlgItem(dialog, buttons[static_cast<size_t>(i)]), x + i * (buttonWidth + gap),
                   y, buttonWidth, buttonHeight, FALSE);

    RECT frame{0, 0, width, height};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLong(dialog, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLong(dialog, GWL_EXSTYLE)));
    int frameWidth = static_cast<int>(frame.right - frame.left),
        frameHeight = static_cast<int>(frame.bottom - frame.top);
    // Centred on the owner, or on the screen; never off the screen.
    RECT area{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    HWND owner = GetWindow(dialog, GW_OWNER);
    if (owner && IsWindowVisible(owner)) GetWindowRect(owner, &area);
    int left = std::clamp<int>((area.left + area.right - frameWidth) / 2, 0,
                               std::max(0, GetSystemMetrics(SM_CXSCREEN) - frameWidth));
    int top = std::clamp<int>((area.top + area.bottom - frameHeight) / 2, 0,
                              std::max(0, GetSystemMetrics(SM_CYSCREEN) - frameHeight));
    SetWindowPos(dialog, nullptr, left, top, frameWidth, frameHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace plat

int MessageBox(HWND owner, const char* text, const char* caption, UINT type) {
    return plat::MessageBoxDialog(text, caption, type).Run(owner);
}
