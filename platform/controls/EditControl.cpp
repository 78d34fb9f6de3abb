#include "platform/controls/EditControl.h"

#include "platform/backend/Backend.h"
#include "platform/base/MbString.h"
#include "platform/user/WindowManager.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace plat {

namespace {

// The limit of a new control, as documented for the real system.
constexpr size_t DefaultLimit = 32767;

// Message arguments that carry a signed 32-bit number, -1 among them.
int AsInt(std::uintptr_t v) {
    return static_cast<int>(static_cast<std::int32_t>(v));
}

POINT PointOf(LPARAM lParam) {
    return POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

Backend& Machine() {
    return WindowManager::Get().GetBackend();
}

} // namespace

EditControl::EditControl(HWND hwnd) : ControlBase(hwnd), view(hwnd), limit(DefaultLimit) {}

void EditControl::Register() {
    WNDCLASS wc;
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<EditControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_IBEAM);
    wc.lpszClassName = "Edit";
    RegisterClass(&wc);
}

LRESULT EditControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_NCCREATE: {
        auto* cs = reinterpret_cast<const CREATESTRUCT*>(lParam);
        if (cs && cs->lpszName && !IS_INTRESOURCE(cs->lpszName))
            buffer.Reset(Converted(cs->lpszName));
        Changed();
        return DefWindowProc(hwnd, msg, wParam, lParam);
    }
    case WM_SIZE: Changed(); return 0;
    case WM_SETFONT:
        Default(msg, wParam, lParam);
        view.SetFont(Font());
        Changed();
        return 0;
    case WM_SETTEXT: SetText(reinterpret_cast<const char*>(lParam)); return TRUE;
    case WM_GETTEXT: {
        if (wParam == 0 || !lParam) return 0;
        size_t n = std::min(buffer.Size(), static_cast<size_t>(wParam) - 1);
        std::memcpy(reinterpret_cast<char*>(lParam), buffer.Text().data(), n);
        reinterpret_cast<char*>(lParam)[n] = 0;
        return static_cast<LRESULT>(n);
    }
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(buffer.Size());
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1; // the paint fills every pixel
    case WM_ENABLE: InvalidateRect(hwnd, nullptr, TRUE); return 0;
    case WM_SETFOCUS:
        InvalidateRect(hwnd, nullptr, TRUE);
        Notify(EN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        if (tracking && GetCapture() == hwnd) ReleaseCapture();
        InvalidateRect(hwnd, nullptr, TRUE);
        Notify(EN_KILLFOCUS);
        return 0;
    case WM_GETDLGCODE: return DialogCode(lParam);
    case WM_KEYDOWN: OnKeyDown(wParam); return 0;
    case WM_CHAR: OnChar(wParam); return 0;
    case WM_LBUTTONDOWN:
        if (!Focused()) {
            SetFocus(hwnd);
            if (Gone()) return 0;
        }
        OnPress(wParam, lParam);
        return 0;
    case WM_MOUSEMOVE: OnMouseMove(lParam); return 0;
    case WM_LBUTTONUP:
        if (tracking && GetCapture() == hwnd) ReleaseCapture();
        tracking = false;
        return 0;
    case WM_LBUTTONDBLCLK: OnDoubleClick(lParam); return 0;
    case WM_CAPTURECHANGED: tracking = false; return 0;
    case WM_MOUSEWHEEL:
        if (!MultiLine()) return Default(msg, wParam, lParam);
        view.ScrollLines(-GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA * 3);
        InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    case WM_CUT:
        if (ReadOnly() || (Style() & ES_PASSWORD) || !buffer.HasSelection()) return 0;
        Copy();
        ReplaceSelection("", true);
        return 0;
    case WM_COPY: Copy(); return 0;
    case WM_PASTE:
        if (!ReadOnly()) Paste();
        return 0;
    case WM_CLEAR:
        if (!ReadOnly() && buffer.HasSelection()) ReplaceSelection("", true);
        return 0;
    case WM_UNDO:
    case EM_UNDO:
        if (ReadOnly()) return FALSE;
        Undo();
        return TRUE;
    case EM_CANUNDO: return buffer.CanUndo();
    case EM_EMPTYUNDOBUFFER: buffer.ClearUndo(); return 0;
    case EM_GETSEL: return GetSel(wParam, lParam);
    case EM_SETSEL: SetSel(wParam, lParam); return 0;
    case EM_REPLACESEL: {
        const char* text = reinterpret_cast<const char*>(lParam);
        ReplaceSelection(Converted(text ? text : ""), wParam != 0);
        return 0;
    }
    case EM_LIMITTEXT:
        limit = wParam ? static_cast<size_t>(wParam) : MultiLine() ? 0xFFFFFFFFu : 0x7FFFFFFEu;
        return 0;
    case EM_GETLIMITTEXT: return static_cast<LRESULT>(limit);
    case EM_SETMARGINS:
        if (wParam == EC_USEFONTINFO)
            view.SetMargins(EC_LEFTMARGIN | EC_RIGHTMARGIN, EC_USEFONTINFO, EC_USEFONTINFO);
        else
            view.SetMargins(static_cast<UINT>(wParam), LOWORD(static_cast<std::uintptr_t>(lParam)),
                            HIWORD(static_cast<std::uintptr_t>(lParam)));
        Changed();
        return 0;
    case EM_GETMARGINS:
        return MAKELONG(static_cast<WORD>(view.LeftMargin()),
                        static_cast<WORD>(view.RightMargin()));
    case EM_GETRECT:
        if (lParam) *reinterpret_cast<RECT*>(lParam) = view.FormatRect();
        return 0;
    case EM_POSFROMCHAR: return PosFromChar(wParam);
    case EM_CHARFROMPOS: return CharFromPos(lParam);
    case EM_GETLINECOUNT: return MultiLine() ? view.Layout().Count() : 1;
    case EM_LINEINDEX: return LineIndex(wParam);
    case EM_LINELENGTH: return LineLength(wParam);
    case EM_GETLINE: return GetLine(wParam, lParam);
    case EM_LINEFROMCHAR: return LineFromChar(wParam);
    case EM_SETREADONLY:
        SetWindowLong(hwnd, GWL_STYLE,
                      static_cast<LONG>(wParam ? Style() | ES_READONLY : Style() & ~ES_READONLY));
        InvalidateRect(hwnd, nullptr, TRUE);
        return TRUE;
    case EM_GETMODIFY: return buffer.modified;
    case EM_SETMODIFY: buffer.modified = wParam != 0; return 0;
    case EM_SCROLLCARET:
        view.Reveal(buffer.Caret());
        InvalidateRect(hwnd, nullptr, TRUE);
        return TRUE;
    default: return Default(msg, wParam, lParam);
    }
}

std::string EditControl::Converted(std::string text) const {
    if (Style() & ES_UPPERCASE)
        for (char& c : text) c = static_cast<char>(_mbctoupper(static_cast<unsigned char>(c)));
    else if (Style() & ES_LOWERCASE)
        for (char& c : text) c = static_cast<char>(_mbctolower(static_cast<unsigned char>(c)));
    return text;
}

bool EditControl::ReplaceSelection(std::string insert, bool undoable) {
    size_t start = buffer.SelStart(), end = buffer.SelEnd();
    size_t kept = buffer.Size() - (end - start);
    size_t room = limit > kept ? limit - kept : 0;
    bool cut = insert.size() > room;
    if (cut) insert.resize(room);
    // A single line without ES_AUTOHSCROLL takes no more than it can show.
    if (!MultiLine() && !(Style() & ES_AUTOHSCROLL)) {
        const std::string& text = buffer.Text();
        auto fits = [&] {
            std::string whole = text.substr(0, start) + insert + text.substr(end);
            return view.Fits((Style() & ES_PASSWORD) ? std::string(whole.size(), '*') : whole);
        };
        while (!insert.empty() && !fits()) {
            insert.pop_back();
            cut = true;
        }
    }
    // Never half a line break.
    if (!insert.empty() && insert.back() == '\r') insert.pop_back();
    if (cut && !Notify(EN_MAXTEXT)) return false;
    // A refused character changes nothing, so EN_MAXTEXT comes alone, as documented (the
    // recorded platform adds EN_UPDATE and EN_CHANGE for the unchanged text).
    if (insert.empty() && start == end) return true;
    buffer.Replace(insert, undoable);
    Changed();
    return Notify(EN_UPDATE) && Notify(EN_CHANGE);
}

bool EditControl::SetText(const char* text) {
    buffer.Reset(Converted(text ? text : ""));
    Changed();
    if (MultiLine()) return true;
    return Notify(EN_UPDATE) && Notify(EN_CHANGE);
}

bool EditControl::Undo() {
    if (!buffer.CanUndo()) return true;
    buffer.Undo();
    Changed();
    return Notify(EN_UPDATE) && Notify(EN_CHANGE);
}

void EditControl::Copy() const {
    if ((Style() & ES_PASSWORD) || !buffer.HasSelection()) return;
    Machine().SetClipboardText(buffer.Selected());
}

bool EditControl::Paste() {
    std::string text = Machine().ClipboardText();
    if (!MultiLine()) {
        text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    } else {
        // Lines of the clipboard may end in a line feed alone; the control's lines end in both.
        std::string lines;
        for (size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) lines += '\r';
            lines += text[i];
        }
        text = std::move(lines);
    }
    return ReplaceSelection(Converted(text), true);
}

void EditControl::Select(size_t anchor, size_t caret) {
    buffer.Select(anchor, caret);
    view.Reveal(buffer.Caret());
    InvalidateRect(hwnd, nullptr, TRUE);
}

void EditControl::MoveCaret(size_t pos, bool extend) {
    Select(extend ? buffer.Anchor() : pos, pos);
}

void EditControl::Changed() {
    view.Relayout(buffer, Style());
    view.Reveal(buffer.Caret());
    InvalidateRect(hwnd, nullptr, TRUE);
}

LRESULT EditControl::DialogCode(LPARAM msgParam) const {
    LRESULT code = DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;
    if (!MultiLine()) return code;
    code |= DLGC_WANTALLKEYS;
    // In a dialog Escape still cancels, and Enter presses the default button unless the
    // control wants its returns.
    auto* m = reinterpret_cast<const MSG*>(msgParam);
    if (m && m->message == WM_KEYDOWN &&
        (m->wParam == VK_ESCAPE || (m->wParam == VK_RETURN && !(Style() & ES_WANTRETURN))))
        code &= ~DLGC_WANTALLKEYS;
    return code;
}

void EditControl::OnKeyDown(WPARAM vk) {
    bool shift = GetKeyState(VK_SHIFT) < 0, ctrl = GetKeyState(VK_CONTROL) < 0;
    size_t caret = buffer.Caret();
    const EditLayout& layout = view.Layout();
    const EditLayout::Line& line = layout.At(layout.LineOf(caret));
    auto lineStep = [&](int lines) {
        POINT p = view.PointOf(caret);
        return view.PlaceAt(POINT{p.x, p.y + lines * view.LineHeight()});
    };
    int page = std::max(1, view.VisibleLines() - 1);
    switch (vk) {
    case VK_LEFT: MoveCaret(ctrl ? buffer.WordStart(caret) : buffer.Previous(caret), shift); break;
    case VK_RIGHT: MoveCaret(ctrl ? buffer.NextWord(caret) : buffer.Next(caret), shift); break;
    case VK_UP: MoveCaret(MultiLine() ? lineStep(-1) : buffer.Previous(caret), shift); break;
    case VK_DOWN: MoveCaret(MultiLine() ? lineStep(1) : buffer.Next(caret), shift); break;
    case VK_PRIOR:
        if (MultiLine()) MoveCaret(lineStep(-page), shift);
        break;
    case VK_NEXT:
        if (MultiLine()) MoveCaret(lineStep(page), shift);
        break;
    case VK_HOME: MoveCaret(ctrl || !MultiLine() ? 0 : line.start, shift); break;
    case VK_END:
        MoveCaret(ctrl || !MultiLine() ? buffer.Size() : line.start + line.length, shift);
        break;
    case VK_DELETE:
        if (ReadOnly()) break;
        if (shift) {
            SendMessage(hwnd, WM_CUT, 0, 0);
            break;
        }
        if (!buffer.HasSelection()) {
            if (buffer.Next(caret) == caret) break;
            buffer.Select(caret, buffer.Next(caret));
        }
        ReplaceSelection("", true);
        break;
    case VK_INSERT:
        if (ctrl)
            Copy();
        else if (shift && !ReadOnly())
            Paste();
        break;
    case 'A':
        if (ctrl) Select(0, buffer.Size());
        break;
    default: break;
    }
}

void EditControl::OnChar(WPARAM wParam) {
    auto c = static_cast<unsigned char>(wParam);
    switch (c) {
    case 0x03: Copy(); return;                            // Ctrl+C
    case 0x16: SendMessage(hwnd, WM_PASTE, 0, 0); return; // Ctrl+V
    case 0x18: SendMessage(hwnd, WM_CUT, 0, 0); return;   // Ctrl+X
    case 0x1A: SendMessage(hwnd, WM_UNDO, 0, 0); return;  // Ctrl+Z
    case '\b':
        if (ReadOnly()) return;
        if (!buffer.HasSelection()) {
            size_t caret = buffer.Caret();
            if (buffer.Previous(caret) == caret) return;
            buffer.Select(caret, buffer.Previous(caret));
        }
        ReplaceSelection("", true);
        return;
    case '\r':
    case '\n':
        if (MultiLine() && !ReadOnly()) ReplaceSelection("\r\n", true);
        return;
    case '\t':
        if (MultiLine() && !ReadOnly()) ReplaceSelection("\t", true);
        return;
    default: break;
    }
    if (c < 0x20 || c == 0x7F || ReadOnly()) return;
    // The real system shows a balloon for a refused character; this one drops it silently.
    if ((Style() & ES_NUMBER) && !std::isdigit(c)) return;
    ReplaceSelection(Converted(std::string(1, static_cast<char>(c))), true);
}

void EditControl::OnPress(WPARAM keys, LPARAM point) {
    MoveCaret(view.PlaceAt(PointOf(point)), (keys & MK_SHIFT) != 0);
    SetCapture(hwnd);
    tracking = true;
}

void EditControl::OnMouseMove(LPARAM point) {
    if (tracking) MoveCaret(view.PlaceAt(PointOf(point)), true);
}

void EditControl::OnDoubleClick(LPARAM point) {
    auto [start, end] = buffer.WordAt(view.PlaceAt(PointOf(point)));
    Select(start, end);
}

void EditControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    bool enabled = IsWindowEnabled(hwnd) != 0;
    // Read-only and disabled fields take the colours of static text, as on the real system.
    HBRUSH brush = ControlColor(enabled && !ReadOnly() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC, dc);
    RECT client;
    GetClientRect(hwnd, &client);
    FillRect(dc, &client, brush);
    if (!enabled) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    bool focused = Focused();
    view.Paint(dc, buffer, focused || (Style() & ES_NOHIDESEL), focused);
}

LRESULT EditControl::GetSel(WPARAM startOut, LPARAM endOut) const {
    size_t start = buffer.SelStart(), end = buffer.SelEnd();
    if (startOut) *reinterpret_cast<DWORD*>(startOut) = static_cast<DWORD>(start);
    if (endOut) *reinterpret_cast<DWORD*>(endOut) = static_cast<DWORD>(end);
    if (start > 0xFFFF || end > 0xFFFF) return -1;
    return MAKELONG(static_cast<WORD>(start), static_cast<WORD>(end));
}

void EditControl::SetSel(WPARAM startParam, LPARAM endParam) {
    int start = AsInt(startParam), end = AsInt(static_cast<std::uintptr_t>(endParam));
    if (start == -1) {
        Select(buffer.Caret(), buffer.Caret());
        return;
    }
    size_t size = buffer.Size();
    auto place = [&](int v) {
        return v < 0 || static_cast<size_t>(v) > size ? size : static_cast<size_t>(v);
    };
    // The caret goes to the end given, which may lie before the start.
    Select(place(start), place(end));
}

LRESULT EditControl::PosFromChar(WPARAM index) const {
    if (index >= buffer.Size()) return -1;
    POINT p = view.PointOf(index);
    return MAKELONG(static_cast<WORD>(p.x), static_cast<WORD>(p.y));
}

LRESULT EditControl::CharFromPos(LPARAM point) const {
    size_t pos = view.PlaceAt(PointOf(point));
    int line = MultiLine() ? view.Layout().LineOf(pos) : 0;
    return MAKELONG(static_cast<WORD>(pos), static_cast<WORD>(line));
}

LRESULT EditControl::LineIndex(WPARAM lineParam) const {
    const EditLayout& layout = view.Layout();
    int line = AsInt(lineParam);
    if (line == -1) line = layout.LineOf(buffer.Caret());
    if (line < 0 || line >= layout.Count()) return -1;
    return static_cast<LRESULT>(layout.At(line).start);
}

LRESULT EditControl::LineLength(WPARAM indexParam) const {
    const EditLayout& layout = view.Layout();
    int index = AsInt(indexParam);
    if (index == -1) {
        // The characters left unselected on the lines that hold the selection.
        const EditLayout::Line& first = layout.At(layout.LineOf(buffer.SelStart()));
        const EditLayout::Line& last = layout.At(layout.LineOf(buffer.SelEnd()));
        size_t lastEnd = last.start + last.length;
        size_t before = buffer.SelStart() - first.start;
        size_t after = lastEnd > buffer.SelEnd() ? lastEnd - buffer.SelEnd() : 0;
        return static_cast<LRESULT>(before + after);
    }
    if (index < 0) return 0;
    return static_cast<LRESULT>(
        layout.At(layout.LineOf(std::min<size_t>(static_cast<size_t>(index), buffer.Size())))
            .length);
}

LRESULT EditControl::GetLine(WPARAM lineParam, LPARAM out) const {
    const EditLayout& layout = view.Layout();
    int line = MultiLine() ? AsInt(lineParam) : 0;
    if (!out || line < 0 || line >= layout.Count()) return 0;
    // The buffer's first word says how many characters it holds; no terminator is written.
    WORD room;
    std::memcpy(&room, reinterpret_cast<const void*>(out), sizeof room);
    const EditLayout::Line& l = layout.At(line);
    size_t n = std::min<size_t>(room, l.length);
    std::memcpy(reinterpret_cast<char*>(out), buffer.Text().data() + l.start, n);
    return static_cast<LRESULT>(n);
}

LRESULT EditControl::LineFromChar(WPARAM indexParam) const {
    int index = AsInt(indexParam);
    size_t pos = index < 0 ? (buffer.HasSelection() ? buffer.SelStart() : buffer.Caret())
                           : std::min<size_t>(static_cast<size_t>(index), buffer.Size());
    return MultiLine() ? view.Layout().LineOf(pos) : 0;
}

} // namespace plat
