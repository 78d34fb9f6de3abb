// The dialog manager: building a dialog from its template, the default dialog procedure, the
// keys a dialog takes for itself (Tab, arrows, Enter, Escape) and the modal loop.

#include "platform/user/Dialog.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>

#include "platform/gdi/Gdi.h"
#include "platform/user/Internal.h"
#include "platform/user/MenuTracker.h"

using namespace plat;

namespace {

struct DialogData {
    DLGPROC proc = nullptr;
    HFONT font = nullptr;  // made from the template; deleted with the dialog
    int baseX = 0, baseY = 0;
    int defId = IDOK;
    bool ended = false;
    INT_PTR result = 0;
    HWND savedFocus = nullptr;
};

std::map<HWND, std::unique_ptr<DialogData>>& Dialogs() {
    static std::map<HWND, std::unique_ptr<DialogData>> dialogs;
    return dialogs;
}

DialogData* Data(HWND hwnd) {
    auto it = Dialogs().find(hwnd);
    return it == Dialogs().end() ? nullptr : it->second.get();
}

// The dialogs whose modal loops run now, innermost last.
std::vector<HWND>& ModalStack() {
    static std::vector<HWND> stack;
    return stack;
}

std::map<std::pair<HINSTANCE, int>, DialogTemplate>& Resources() {
    static std::map<std::pair<HINSTANCE, int>, DialogTemplate> resources;
    return resources;
}

// Average character width and height of a font, the way the dialog manager measures them.
SIZE BaseUnits(HFONT font) {
    HDC dc = GetDC(nullptr);
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRIC tm;
    GetTextMetrics(dc, &tm);
    SIZE size;
    const char* alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    GetTextExtentPoint32(dc, alphabet, 52, &size);
    SelectObject(dc, old);
    ReleaseDC(nullptr, dc);
    return SIZE{(size.cx / 26 + 1) / 2, tm.tmHeight};
}

int Code(HWND control, const MSG* msg) {
    return static_cast<int>(SendMessage(control, WM_GETDLGCODE, msg ? msg->wParam : 0, reinterpret_cast<LPARAM>(msg)));
}

bool TabStop(HWND h) {
    LONG style = GetWindowLong(h, GWL_STYLE);
    return (style & WS_TABSTOP) && (style & WS_VISIBLE) && !(style & WS_DISABLED);
}

HWND FirstTabStop(HWND dialog) { return GetNextDlgTabItem(dialog, nullptr, FALSE); }

// Focus a control as the dialog manager does: an edit field gets all its text selected.
void FocusControl(HWND control) {
    if (!control) return;
    SetFocus(control);
    if (Code(control, nullptr) & DLGC_HASSETSEL) SendMessage(control, EM_SETSEL, 0, -1);
}

void ClickButton(HWND dialog, int id) {
    HWND button = GetDlgItem(dialog, id);
    if (button && !IsWindowEnabled(button)) return;
    SendMessage(dialog, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void RestoreFocus(HWND dialog, DialogData* d) {
    if (d->ended) return;
    HWND target = d->savedFocus && IsChild(dialog, d->savedFocus) && IsWindowEnabled(d->savedFocus)
                      ? d->savedFocus
                      : FirstTabStop(dialog);
    if (target) SetFocus(target);
}

}  // namespace

void RegisterDialogResource(HINSTANCE module, int id, const DialogTemplate& tpl) {
    Resources()[{module, id}] = tpl;
}

const DialogTemplate* FindDialogResource(HINSTANCE module, const char* name) {
    if (!IS_INTRESOURCE(name)) return nullptr;
    auto it = Resources().find({module, static_cast<int>(reinterpret_cast<std::uintptr_t>(name))});
    return it == Resources().end() ? nullptr : &it->second;
}

LRESULT DefDlgProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    DialogData* d = Data(hwnd);
    if (d && d->proc) {
        SetWindowLongPtr(hwnd, DWLP_MSGRESULT, 0);
        INT_PTR r = d->proc(hwnd, msg, wParam, lParam);
        if (!(d = Data(hwnd))) return r;
        if (r) {
            bool direct = msg == WM_INITDIALOG || (msg >= WM_CTLCOLORMSGBOX && msg <= WM_CTLCOLORSTATIC);
            return direct ? r : GetWindowLongPtr(hwnd, DWLP_MSGRESULT);
        }
    }
    switch (msg) {
    case WM_ERASEBKGND: {
        HDC dc = reinterpret_cast<HDC>(wParam);
        auto brush = reinterpret_cast<HBRUSH>(SendMessage(hwnd, WM_CTLCOLORDLG, wParam, reinterpret_cast<LPARAM>(hwnd)));
        RECT r;
        GetClipBox(dc, &r);
        FillRect(dc, &r, brush ? brush : GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    case WM_CLOSE: ClickButton(hwnd, IDCANCEL); return 0;
    case DM_GETDEFID: return d ? MAKELONG(static_cast<WORD>(d->defId), DC_HASDEFID) : 0;
    case DM_SETDEFID:
        if (d) d->defId = static_cast<int>(wParam);
        return TRUE;
    case WM_ACTIVATE:
        if (!d) break;
        if (LOWORD(wParam) == WA_INACTIVE) {
            HWND f = GetFocus();
            if (IsChild(hwnd, f)) d->savedFocus = f;
        } else {
            RestoreFocus(hwnd, d);
        }
        return 0;
    case WM_SETFOCUS:
        if (d) RestoreFocus(hwnd, d);
        return 0;
    case WM_NEXTDLGCTL: {
        HWND target = lParam ? reinterpret_cast<HWND>(wParam) : GetNextDlgTabItem(hwnd, GetFocus(), wParam != 0);
        FocusControl(target);
        return 0;
    }
    case WM_GETFONT: return d ? reinterpret_cast<LRESULT>(d->font) : 0;
    case WM_NCDESTROY:
        if (d && d->font) DeleteObject(d->font);
        Dialogs().erase(hwnd);
        return 0;
    default: break;
    }
    return DefWindowProc(hwnd, msg, wParam, lParam);
}

HWND CreateDialogIndirectParam(HINSTANCE instance, const DialogTemplate* tpl, HWND parent, DLGPROC proc,
                               LPARAM param) {
    if (!tpl) return nullptr;
    int height = -((tpl->pointSize * 96 + 36) / 72);
    HFONT font = CreateFont(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0,
                            tpl->faceName.c_str());
    SIZE base = BaseUnits(font);
    auto toPixels = [&](int x, int y, int cx, int cy) {
        return RECT{x * base.cx / 4, y * base.cy / 8, (x + cx) * base.cx / 4, (y + cy) * base.cy / 8};
    };
    RECT client = toPixels(tpl->x, tpl->y, tpl->cx, tpl->cy);
    RECT frame{0, 0, RectWidth(client), RectHeight(client)};
    DWORD style = tpl->style & ~WS_VISIBLE;
    AdjustWindowRectEx(&frame, style, FALSE, tpl->exStyle);
    POINT at{client.left, client.top};
    HWND owner = parent ? GetAncestorTopLevel(parent) : nullptr;
    if (owner) ClientToScreen(owner, &at);
    if (tpl->style & DS_CENTER) {
        at.x = (GetSystemMetrics(SM_CXSCREEN) - RectWidth(frame)) / 2;
        at.y = (GetSystemMetrics(SM_CYSCREEN) - RectHeight(frame)) / 2;
    }
    // A dialog never starts off the screen.
    at.x = std::clamp<LONG>(at.x, 0, std::max<LONG>(0, GetSystemMetrics(SM_CXSCREEN) - RectWidth(frame)));
    at.y = std::clamp<LONG>(at.y, 0, std::max<LONG>(0, GetSystemMetrics(SM_CYSCREEN) - RectHeight(frame)));

    HWND dlg = CreateWindowEx(tpl->exStyle | WS_EX_CONTROLPARENT, "#32770", tpl->caption.c_str(), style, at.x,
                              at.y, RectWidth(frame), RectHeight(frame), owner, nullptr, instance, nullptr);
    if (!dlg) {
        DeleteObject(font);
        return nullptr;
    }
    auto data = std::make_unique<DialogData>();
    data->proc = proc;
    data->font = font;
    data->baseX = base.cx;
    data->baseY = base.cy;
    DialogData* d = data.get();
    Dialogs()[dlg] = std::move(data);

    // The dialog may answer its font with another one for its controls.
    SendMessage(dlg, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    auto controlFont = static_cast<WPARAM>(SendMessage(dlg, WM_GETFONT, 0, 0));
    if (!controlFont) controlFont = reinterpret_cast<WPARAM>(font);
    bool haveDefault = false;
    for (const DialogItemTemplate& item : tpl->items) {
        RECT r = toPixels(item.x, item.y, item.cx, item.cy);
        HWND c = CreateWindowEx(item.exStyle, item.className.c_str(), item.text.c_str(), item.style | WS_CHILD,
                                r.left, r.top, RectWidth(r), RectHeight(r), dlg, MenuFromId(item.id), instance,
                                nullptr);
        if (!c) continue;
        SendMessage(c, WM_SETFONT, controlFont, FALSE);
        if (!haveDefault && item.className == "Button" && (item.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
            d->defId = item.id;
            haveDefault = true;
        }
    }
    HWND first = FirstTabStop(dlg);
    if (SendMessage(dlg, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), param) && IsWindow(dlg))
        FocusControl(FirstTabStop(dlg));
    if (IsWindow(dlg) && (tpl->style & WS_VISIBLE) && !Data(dlg)->ended) ShowWindow(dlg, SW_SHOW);
    return IsWindow(dlg) ? dlg : nullptr;
}

HWND CreateDialogParam(HINSTANCE instance, const char* name, HWND parent, DLGPROC proc, LPARAM param) {
    return CreateDialogIndirectParam(instance, FindDialogResource(instance, name), parent, proc, param);
}

INT_PTR DialogBoxIndirectParam(HINSTANCE instance, const DialogTemplate* tpl, HWND parent, DLGPROC proc,
                               LPARAM param) {
    if (!tpl) return -1;
    HWND owner = parent ? GetAncestorTopLevel(parent) : nullptr;
    bool disabledOwner = owner && IsWindowEnabled(owner);
    if (disabledOwner) EnableWindow(owner, FALSE);
    DialogTemplate hidden = *tpl;
    hidden.style &= ~WS_VISIBLE;
    HWND dlg = CreateDialogIndirectParam(instance, &hidden, parent, proc, param);
    if (!dlg) {
        if (disabledOwner) EnableWindow(owner, TRUE);
        return -1;
    }
    ModalStack().push_back(dlg);
    DialogData* d = Data(dlg);
    if (!d->ended) ShowWindow(dlg, SW_SHOW);
    MSG msg;
    while ((d = Data(dlg)) && !d->ended) {
        if (!GetMessage(&msg, nullptr, 0, 0)) {
            PostQuitMessage(static_cast<int>(msg.wParam));  // the outer loop must see it too
            if ((d = Data(dlg))) d->result = IDCANCEL;
            break;
        }
        // A modeless dialog above the modal one (a find dialog) gets its keys too, as a
        // framework's modal loop hands them on.
        HWND target = msg.hwnd ? GetAncestorTopLevel(msg.hwnd) : nullptr;
        if (target && target != dlg && Data(target) && IsDialogMessage(target, &msg)) continue;
        if (!IsDialogMessage(dlg, &msg)) {
            TranslateMessage(&msg);
            DispatchMessage(&msg);
        }
    }
    ModalStack().erase(std::remove(ModalStack().begin(), ModalStack().end(), dlg), ModalStack().end());
    INT_PTR result = (d = Data(dlg)) ? d->result : static_cast<INT_PTR>(IDCANCEL);
    if (disabledOwner) EnableWindow(owner, TRUE);
    DestroyWindow(dlg);
    return result;
}

INT_PTR DialogBoxParam(HINSTANCE instance, const char* name, HWND parent, DLGPROC proc, LPARAM param) {
    return DialogBoxIndirectParam(instance, FindDialogResource(instance, name), parent, proc, param);
}

BOOL EndDialog(HWND dialog, INT_PTR result) {
    DialogData* d = Data(dialog);
    if (!d) return FALSE;
    d->ended = true;
    d->result = result;
    if (HWND owner = GetWindow(dialog, GW_OWNER)) EnableWindow(owner, TRUE);
    // The focus comes back to the dialog itself before it hides, as on the real system.
    if (IsChild(dialog, GetFocus())) SetFocus(dialog);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    return TRUE;
}

int ModalDepth() { return static_cast<int>(ModalStack().size()) + (MenuTracker::Current() ? 1 : 0); }

void EndAllModalLoops(INT_PTR result) {
    // A menu is the innermost loop wherever it was opened.
    EndMenu();
    std::vector<HWND> stack = ModalStack();
    for (auto it = stack.rbegin(); it != stack.rend(); ++it) EndDialog(*it, result);
}

BOOL IsDialogMessage(HWND dialog, MSG* msg) {
    if (!msg || !dialog || (msg->hwnd != dialog && !IsChild(dialog, msg->hwnd))) return FALSE;
    if (msg->message != WM_KEYDOWN) {
        TranslateMessage(msg);
        DispatchMessage(msg);
        return TRUE;
    }
    int code = Code(msg->hwnd, msg);
    int vk = static_cast<int>(msg->wParam);
    switch (vk) {
    case VK_TAB:
        if (code & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) break;
        FocusControl(GetNextDlgTabItem(dialog, GetFocus(), GetKeyState(VK_SHIFT) < 0));
        return TRUE;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        if (code & DLGC_WANTARROWS) break;
        FocusControl(GetNextDlgGroupItem(dialog, GetFocus(), vk == VK_LEFT || vk == VK_UP));
        return TRUE;
    case VK_RETURN:
        if (code & DLGC_WANTALLKEYS) break;
        if (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) ClickButton(dialog, GetDlgCtrlID(msg->hwnd));
        else ClickButton(dialog, LOWORD(static_cast<std::uintptr_t>(SendMessage(dialog, DM_GETDEFID, 0, 0))));
        return TRUE;
    case VK_ESCAPE:
        if (code & DLGC_WANTALLKEYS) break;
        SendMessage(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDCANCEL)));
        return TRUE;
    default: break;
    }
    TranslateMessage(msg);
    DispatchMessage(msg);
    return TRUE;
}

BOOL MapDialogRect(HWND dialog, RECT* r) {
    DialogData* d = Data(dialog);
    if (!d || !r) return FALSE;
    r->left = r->left * d->baseX / 4;
    r->right = r->right * d->baseX / 4;
    r->top = r->top * d->baseY / 8;
    r->bottom = r->bottom * d->baseY / 8;
    return TRUE;
}

LONG GetDialogBaseUnits() {
    static LONG units = [] {
        HFONT font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
        SIZE s = BaseUnits(font);
        return MAKELONG(static_cast<WORD>(s.cx), static_cast<WORD>(s.cy));
    }();
    return units;
}

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
    std::vector<HWND> stops;
    for (HWND c = GetWindow(dialog, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT))
        if (TabStop(c) || c == control) stops.push_back(c);
    if (stops.empty()) return nullptr;
    auto it = std::find(stops.begin(), stops.end(), control);
    size_t n = stops.size();
    size_t start = it == stops.end() ? (previous ? 0 : n - 1) : static_cast<size_t>(it - stops.begin());
    for (size_t step = 1; step <= n; ++step) {
        size_t i = previous ? (start + n - step) % n : (start + step) % n;
        if (TabStop(stops[i])) return stops[i];
    }
    return control;
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
    // A group runs from a control with WS_GROUP to the next one that has it.
    std::vector<HWND> all;
    for (HWND c = GetWindow(dialog, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) all.push_back(c);
    auto it = std::find(all.begin(), all.end(), control);
    if (it == all.end()) return control;
    size_t pos = static_cast<size_t>(it - all.begin());
    size_t begin = pos, end = pos + 1;
    while (begin > 0 && !(GetWindowLong(all[begin], GWL_STYLE) & WS_GROUP)) --begin;
    while (end < all.size() && !(GetWindowLong(all[end], GWL_STYLE) & WS_GROUP)) ++end;
    size_t n = end - begin;
    for (size_t step = 1; step < n; ++step) {
        size_t i = begin + (previous ? (pos - begin + n - step) % n : (pos - begin + step) % n);
        LONG s = GetWindowLong(all[i], GWL_STYLE);
        if ((s & WS_VISIBLE) && !(s & WS_DISABLED)) return all[i];
    }
    return control;
}

BOOL SetDlgItemText(HWND dialog, int id, const char* text) { return SetWindowText(GetDlgItem(dialog, id), text); }

UINT GetDlgItemText(HWND dialog, int id, char* out, int size) {
    return static_cast<UINT>(GetWindowText(GetDlgItem(dialog, id), out, size));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    char text[16];
    std::snprintf(text, sizeof text, isSigned ? "%d" : "%u", value);
    return SetDlgItemText(dialog, id, text);
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* ok, BOOL isSigned) {
    std::string text = GetWindowString(GetDlgItem(dialog, id));
    char* end = nullptr;
    long v = std::strtol(text.c_str(), &end, 10);
    bool good = !text.empty() && end && *end == 0 && (isSigned || v >= 0);
    if (ok) *ok = good;
    return good ? static_cast<UINT>(v) : 0;
}

LRESULT SendDlgItemMessage(HWND dialog, int id, UINT msg, WPARAM wParam, LPARAM lParam) {
    return SendMessage(GetDlgItem(dialog, id), msg, wParam, lParam);
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
    SendDlgItemMessage(dialog, id, BM_SETCHECK, check, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    return static_cast<UINT>(SendDlgItemMessage(dialog, id, BM_GETCHECK, 0, 0));
}
