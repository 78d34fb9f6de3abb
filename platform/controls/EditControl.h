#pragma once
// The "Edit" class, single-line and ES_MULTILINE.
//
// Every change of the text by the user or by EM_REPLACESEL, WM_CUT, WM_PASTE, WM_CLEAR and
// WM_UNDO sends EN_UPDATE and then EN_CHANGE to the parent, with the new text already in
// place. WM_SETTEXT does the same on a single-line control (even for the same text) and
// nothing on a multi-line one. What would take the text past the limit (EM_LIMITTEXT) is cut,
// and the parent hears EN_MAXTEXT first; WM_SETTEXT ignores the limit. The focus comes and
// goes with EN_SETFOCUS and EN_KILLFOCUS. The parent may destroy the control from any of these
// notifications.
//
// The focused control draws a steady one-pixel caret; the selection shows only while it has
// the focus (or with ES_NOHIDESEL). A single-line control, and a multi-line one with
// ES_AUTOHSCROLL, scrolls sideways to keep the caret in view; a multi-line one without it
// breaks its lines between words.

#include "platform/controls/ControlBase.h"
#include "platform/controls/EditBuffer.h"
#include "platform/controls/EditView.h"

namespace plat {

class EditControl : public ControlBase {
public:
    explicit EditControl(HWND hwnd);
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    bool MultiLine() const { return (Style() & ES_MULTILINE) != 0; }
    bool ReadOnly() const { return (Style() & ES_READONLY) != 0; }

    // Changes of the text. Each answers false when the window is gone afterwards.
    bool ReplaceSelection(std::string insert, bool undoable);
    bool SetText(const char* text);
    bool Undo();
    bool Paste();
    void Copy() const;
    std::string Converted(std::string text) const;

    void Select(size_t anchor, size_t caret);
    void MoveCaret(size_t pos, bool extend);
    void Changed(); // layout, scrolling and repaint after the text or the selection moved

    LRESULT DialogCode(LPARAM msg) const;
    void OnKeyDown(WPARAM vk);
    void OnChar(WPARAM c);
    void OnPress(WPARAM keys, LPARAM point);
    void OnMouseMove(LPARAM point);
    void OnDoubleClick(LPARAM point);
    void OnPaint();

    LRESULT GetSel(WPARAM start, LPARAM end) const;
    void SetSel(WPARAM start, LPARAM end);
    LRESULT PosFromChar(WPARAM index) const;
    LRESULT CharFromPos(LPARAM point) const;
    LRESULT LineIndex(WPARAM line) const;
    LRESULT LineLength(WPARAM index) const;
    LRESULT GetLine(WPARAM line, LPARAM buffer) const;
    LRESULT LineFromChar(WPARAM index) const;

    EditBuffer buffer;
    EditView view;
    size_t limit;
    bool tracking = false; // a mouse press is selecting
};

} // namespace plat
