#pragma once
// The framework's window object. A CWnd is bound to one window handle; messages for that
// window come to WindowProc, which finds the handler in the message tables of the object's
// class and its bases, and otherwise hands the message to the window's original procedure
// (Default). Objects made by the framework for handles it did not create are temporary
// wrappers: never keep them.

#include <string>

#include "platform/afx/CObject.h"
#include "platform/afx/CRect.h"
#include "platform/afx/MessageMap.h"
#include "platform/user/User.h"

class CDC;
class CFont;
class CScrollBar;

class CWnd : public CObject {
public:
    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND m_hWnd = nullptr;

    static CWnd* FromHandle(HWND hwnd);
    static CWnd* FromHandlePermanent(HWND hwnd);
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    // Creation binds the object before the window's first message arrives.
    virtual BOOL CreateEx(DWORD exStyle, const char* className, const char* windowName, DWORD style,
                          const RECT& rect, CWnd* parent, UINT id, void* param = nullptr);
    virtual BOOL Create(const char* className, const char* windowName, DWORD style, const RECT& rect,
                        CWnd* parent, UINT id);
    virtual BOOL DestroyWindow();
    BOOL Attach(HWND hwnd);
    HWND Detach();
    // Takes over an existing window: its messages now come here first.
    BOOL SubclassWindow(HWND hwnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();

    // Thin wrappers of the window functions.
    LRESULT SendMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const { return ::SendMessage(m_hWnd, msg, wParam, lParam); }
    BOOL PostMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const { return ::PostMessage(m_hWnd, msg, wParam, lParam); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT swpFlags = 0);
    void SetWindowText(const char* text) { ::SetWindowText(m_hWnd, text); }
    std::string GetWindowText() const { return ::GetWindowString(m_hWnd); }
    void GetClientRect(RECT* r) const { ::GetClientRect(m_hWnd, r); }
    void GetWindowRect(RECT* r) const { ::GetWindowRect(m_hWnd, r); }
    void ClientToScreen(POINT* p) const { ::ClientToScreen(m_hWnd, p); }
    void ClientToScreen(RECT* r) const;
    void ScreenToClient(POINT* p) const { ::ScreenToClient(m_hWnd, p); }
    void ScreenToClient(RECT* r) const;
    void MoveWindow(int x, int y, int w, int h, BOOL repaint = TRUE) { ::MoveWindow(m_hWnd, x, y, w, h, repaint); }
    void MoveWindow(const RECT* r, BOOL repaint = TRUE) { MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, repaint); }
    BOOL SetWindowPos(const CWnd* after, int x, int y, int w, int h, UINT flags) {
        return ::SetWindowPos(m_hWnd, after ? after->m_hWnd : nullptr, x, y, w, h, flags);
    }
    BOOL ShowWindow(int cmd) { return ::ShowWindow(m_hWnd, cmd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(const RECT* r, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, r, erase); }
    void ValidateRect(const RECT* r) { ::ValidateRect(m_hWnd, r); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(const RECT* r = nullptr, HRGN rgn = nullptr, UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE) {
        return ::RedrawWindow(m_hWnd, r, rgn, flags);
    }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    CWnd* SetParent(CWnd* parent) { return FromHandle(::SetParent(m_hWnd, parent ? parent->m_hWnd : nullptr)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc = nullptr) { return ::SetTimer(m_hWnd, id, elapse, proc); }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    CDC* GetDC();
    int ReleaseDC(CDC* dc);
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;
    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK) const;
    void ScrollWindow(int dx, int dy, const RECT* scroll = nullptr, const RECT* clip = nullptr) {
        ::ScrollWindow(m_hWnd, dx, dy, scroll, clip);
    }

protected:
    // The message tables; see MessageMap.h.
    static const MessageMap* GetThisMessageMap();
    virtual const MessageMap* GetMessageMap() const;
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    // Commands and control notifications: TRUE when a table entry handled it.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // A notification this control sent its parent, handed back first; TRUE keeps it there.
    virtual BOOL OnChildNotify(UINT msg, WPARAM wParam, LPARAM lParam);
    // Hands the message to the window's original procedure.
    virtual LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    // The message being handled now, to the original procedure.
    LRESULT Default();
    virtual void PreSubclassWindow() {}
    // After the window's last message; an object that deletes itself does it here.
    virtual void PostNcDestroy() {}

    // Default handlers: each passes its message on (Default).
    void OnPaint() { Default(); }
    int OnCreate(CREATESTRUCT*) { return static_cast<int>(Default()); }
    void OnDestroy() { Default(); }
    void OnSize(UINT, int, int) { Default(); }
    BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    void OnSetFocus(CWnd*) { Default(); }
    void OnKillFocus(CWnd*) { Default(); }
    void OnTimer(UINT_PTR) { Default(); }
    void OnKeyDown(UINT, UINT, UINT) { Default(); }
    void OnKeyUp(UINT, UINT, UINT) { Default(); }
    void OnChar(UINT, UINT, UINT) { Default(); }
    void OnMouseMove(UINT, CPoint) { Default(); }
    void OnLButtonDown(UINT, CPoint) { Default(); }
    void OnLButtonUp(UINT, CPoint) { Default(); }
    void OnLButtonDblClk(UINT, CPoint) { Default(); }
    void OnRButtonDown(UINT, CPoint) { Default(); }
    void OnRButtonUp(UINT, CPoint) { Default(); }
    void OnRButtonDblClk(UINT, CPoint) { Default(); }
    BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
    BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    void OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
    void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
    void OnSysColorChange() { Default(); }
    void OnCaptureChanged(CWnd*) { Default(); }
    HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(Default()); }

private:
    friend LRESULT AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    LRESULT Dispatch(UINT msg, WPARAM wParam, LPARAM lParam);
    const MessageMapEntry* FindEntry(UINT msg, WPARAM wParam) const;
    WNDPROC superProc = nullptr;
    // The message being handled, for Default. Kept per thread, not per object: a handler may
    // destroy its own object, and the dispatch that called it must not touch the object after.
    static thread_local inline MSG current{};
};

// The window procedure of every window bound to a CWnd.
LRESULT AfxWndProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
// A window class for the framework's own windows, registered once per combination.
const char* AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr, HBRUSH background = nullptr);
