#pragma once
// Message tables: each window class of the framework lists the messages it handles and the
// member function for each, and points to its base class's table. CWnd::WindowProc walks the
// tables from the most derived class down; the first entry that matches handles the message.
//
// In a class:            DECLARE_MESSAGE_MAP()
// In its source file:    BEGIN_MESSAGE_MAP(MyWnd, CWnd)
//                            ON_WM_PAINT()
//                            ON_COMMAND(1002, OnSave)
//                        END_MESSAGE_MAP()
// The ON_ macros call the handlers with the framework's usual signatures (see each macro).

#include "platform/afx/CPoint.h"
#include "platform/base/Messages.h"

class CWnd;

struct MessageMapEntry {
    UINT message;
    UINT code;     // WM_COMMAND: the notification code; 0xFFFF any
    UINT idFirst;  // WM_COMMAND: the control or command ids; 0 and 0xFFFF: any
    UINT idLast;
    LRESULT (*call)(CWnd* self, WPARAM wParam, LPARAM lParam);
};

struct MessageMap {
    const MessageMap* (*base)();
    const MessageMapEntry* entries;
};

#define DECLARE_MESSAGE_MAP()                               \
public:                                                     \
    static const MessageMap* GetThisMessageMap();           \
                                                            \
protected:                                                  \
    const MessageMap* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                           \
    const MessageMap* theClass::GetMessageMap() const { return GetThisMessageMap(); }    \
    const MessageMap* theClass::GetThisMessageMap() {                                    \
        using ThisClass = theClass;                                                      \
        using TheBase = baseClass;                                                       \
        static const MessageMapEntry entries[] = {
#define END_MESSAGE_MAP()                                               \
    {0, 0, 0, 0, nullptr}                                               \
    }                                                                   \
    ;                                                                   \
    static const MessageMap map{&TheBase::GetThisMessageMap, entries}; \
    return &map;                                                        \
    }

#define AFX_SELF static_cast<ThisClass*>(self)
#define AFX_ENTRY(msg, body) {msg, 0, 0, 0, [](CWnd* self, WPARAM wParam, LPARAM lParam) -> LRESULT { (void)self; (void)wParam; (void)lParam; body }},
#define AFX_POINT CPoint(lParam)

// void OnPaint()
#define ON_WM_PAINT() AFX_ENTRY(WM_PAINT, AFX_SELF->OnPaint(); return 0;)
// int OnCreate(CREATESTRUCT*)
#define ON_WM_CREATE() AFX_ENTRY(WM_CREATE, return AFX_SELF->OnCreate(reinterpret_cast<CREATESTRUCT*>(lParam));)
// void OnDestroy()
#define ON_WM_DESTROY() AFX_ENTRY(WM_DESTROY, AFX_SELF->OnDestroy(); return 0;)
// void OnSize(UINT type, int cx, int cy)
#define ON_WM_SIZE() AFX_ENTRY(WM_SIZE, AFX_SELF->OnSize(static_cast<UINT>(wParam), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)); return 0;)
// BOOL OnEraseBkgnd(CDC*)
#define ON_WM_ERASEBKGND() AFX_ENTRY(WM_ERASEBKGND, return AFX_SELF->OnEraseBkgnd(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));)
// void OnSetFocus(CWnd* old), void OnKillFocus(CWnd* next)
#define ON_WM_SETFOCUS() AFX_ENTRY(WM_SETFOCUS, AFX_SELF->OnSetFocus(CWnd::FromHandle(reinterpret_cast<HWND>(wParam))); return 0;)
#define ON_WM_KILLFOCUS() AFX_ENTRY(WM_KILLFOCUS, AFX_SELF->OnKillFocus(CWnd::FromHandle(reinterpret_cast<HWND>(wParam))); return 0;)
// void OnTimer(UINT_PTR id)
#define ON_WM_TIMER() AFX_ENTRY(WM_TIMER, AFX_SELF->OnTimer(static_cast<UINT_PTR>(wParam)); return 0;)
// void OnKeyDown(UINT vk, UINT repeat, UINT flags), OnKeyUp, OnChar the same
#define ON_WM_KEYDOWN() AFX_ENTRY(WM_KEYDOWN, AFX_SELF->OnKeyDown(static_cast<UINT>(wParam), LOWORD(static_cast<std::uintptr_t>(lParam)), HIWORD(static_cast<std::uintptr_t>(lParam))); return 0;)
#define ON_WM_KEYUP() AFX_ENTRY(WM_KEYUP, AFX_SELF->OnKeyUp(static_cast<UINT>(wParam), LOWORD(static_cast<std::uintptr_t>(lParam)), HIWORD(static_cast<std::uintptr_t>(lParam))); return 0;)
#define ON_WM_CHAR() AFX_ENTRY(WM_CHAR, AFX_SELF->OnChar(static_cast<UINT>(wParam), LOWORD(static_cast<std::uintptr_t>(lParam)), HIWORD(static_cast<std::uintptr_t>(lParam))); return 0;)
// void OnXButtonY(UINT flags, CPoint point)
#define ON_WM_MOUSEMOVE() AFX_ENTRY(WM_MOUSEMOVE, AFX_SELF->OnMouseMove(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_LBUTTONDOWN() AFX_ENTRY(WM_LBUTTONDOWN, AFX_SELF->OnLButtonDown(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_LBUTTONUP() AFX_ENTRY(WM_LBUTTONUP, AFX_SELF->OnLButtonUp(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_LBUTTONDBLCLK() AFX_ENTRY(WM_LBUTTONDBLCLK, AFX_SELF->OnLButtonDblClk(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_RBUTTONDOWN() AFX_ENTRY(WM_RBUTTONDOWN, AFX_SELF->OnRButtonDown(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_RBUTTONUP() AFX_ENTRY(WM_RBUTTONUP, AFX_SELF->OnRButtonUp(static_cast<UINT>(wParam), AFX_POINT); return 0;)
#define ON_WM_RBUTTONDBLCLK() AFX_ENTRY(WM_RBUTTONDBLCLK, AFX_SELF->OnRButtonDblClk(static_cast<UINT>(wParam), AFX_POINT); return 0;)
// BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint)
#define ON_WM_MOUSEWHEEL() AFX_ENTRY(WM_MOUSEWHEEL, return AFX_SELF->OnMouseWheel(LOWORD(wParam), GET_WHEEL_DELTA_WPARAM(wParam), AFX_POINT);)
// int OnMouseActivate(CWnd* top, UINT hitTest, UINT message)
#define ON_WM_MOUSEACTIVATE() AFX_ENTRY(WM_MOUSEACTIVATE, return AFX_SELF->OnMouseActivate(CWnd::FromHandle(reinterpret_cast<HWND>(wParam)), LOWORD(static_cast<std::uintptr_t>(lParam)), HIWORD(static_cast<std::uintptr_t>(lParam)));)
// BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
#define ON_WM_SETCURSOR() AFX_ENTRY(WM_SETCURSOR, return AFX_SELF->OnSetCursor(CWnd::FromHandle(reinterpret_cast<HWND>(wParam)), LOWORD(static_cast<std::uintptr_t>(lParam)), HIWORD(static_cast<std::uintptr_t>(lParam)));)
// UINT OnGetDlgCode()
#define ON_WM_GETDLGCODE() AFX_ENTRY(WM_GETDLGCODE, return AFX_SELF->OnGetDlgCode();)
// void OnHScroll(UINT code, UINT pos, CScrollBar* bar), OnVScroll the same
#define ON_WM_HSCROLL() AFX_ENTRY(WM_HSCROLL, AFX_SELF->OnHScroll(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam)))); return 0;)
#define ON_WM_VSCROLL() AFX_ENTRY(WM_VSCROLL, AFX_SELF->OnVScroll(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam)))); return 0;)
// void OnSysColorChange()
#define ON_WM_SYSCOLORCHANGE() AFX_ENTRY(WM_SYSCOLORCHANGE, AFX_SELF->OnSysColorChange(); return 0;)
// void OnCaptureChanged(CWnd* next)
#define ON_WM_CAPTURECHANGED() AFX_ENTRY(WM_CAPTURECHANGED, AFX_SELF->OnCaptureChanged(CWnd::FromHandle(reinterpret_cast<HWND>(lParam))); return 0;)
// HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind): every WM_CTLCOLOR* message
#define AFX_CTLCOLOR(msg) AFX_ENTRY(msg, return reinterpret_cast<LRESULT>(AFX_SELF->OnCtlColor(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), CWnd::FromHandle(reinterpret_cast<HWND>(lParam)), msg - WM_CTLCOLORMSGBOX));)
#define ON_WM_CTLCOLOR()                                                                      \
    AFX_CTLCOLOR(WM_CTLCOLORMSGBOX) AFX_CTLCOLOR(WM_CTLCOLOREDIT) AFX_CTLCOLOR(WM_CTLCOLORLISTBOX) \
    AFX_CTLCOLOR(WM_CTLCOLORBTN) AFX_CTLCOLOR(WM_CTLCOLORDLG) AFX_CTLCOLOR(WM_CTLCOLORSCROLLBAR)    \
    AFX_CTLCOLOR(WM_CTLCOLORSTATIC)
// LRESULT OnX(WPARAM, LPARAM) for any message, a registered one too (a variable)
#define ON_MESSAGE(msg, fn) AFX_ENTRY(msg, return AFX_SELF->fn(wParam, lParam);)
#define ON_REGISTERED_MESSAGE(var, fn) {var, 0, 0, 0, [](CWnd* self, WPARAM wParam, LPARAM lParam) -> LRESULT { return AFX_SELF->fn(wParam, lParam); }},
// void OnX() for a command or a control's notification
#define ON_COMMAND(id, fn) {WM_COMMAND, 0xFFFF, static_cast<UINT>(id), static_cast<UINT>(id), [](CWnd* self, WPARAM, LPARAM) -> LRESULT { AFX_SELF->fn(); return 0; }},
#define ON_CONTROL(code, id, fn) {WM_COMMAND, static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(id), [](CWnd* self, WPARAM, LPARAM) -> LRESULT { AFX_SELF->fn(); return 0; }},
#define ON_BN_CLICKED(id, fn) ON_CONTROL(BN_CLICKED, id, fn)
#define ON_EN_CHANGE(id, fn) ON_CONTROL(EN_CHANGE, id, fn)
#define ON_LBN_SELCHANGE(id, fn) ON_CONTROL(LBN_SELCHANGE, id, fn)
#define ON_LBN_DBLCLK(id, fn) ON_CONTROL(LBN_DBLCLK, id, fn)
// void OnX() in the control itself for a notification it sends its parent: the parent's
// framework hands the notification back to the control first, and a control that handles it
// keeps it from the parent.
inline constexpr UINT WM_REFLECT_BASE = 0xBC00;
#define ON_CONTROL_REFLECT(code, fn) {WM_REFLECT_BASE + WM_COMMAND, static_cast<UINT>(code), 0, 0xFFFF, [](CWnd* self, WPARAM, LPARAM) -> LRESULT { AFX_SELF->fn(); return 0; }},
