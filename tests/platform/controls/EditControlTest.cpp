// The edit control driven as a user drives it: keys and characters through the queue, the
// mouse, the clipboard; and the messages programs send it.

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/gdi/Gdi.h"
#include "platform/user/Dialog.h"
#include "platform/user/WindowManager.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

struct Selection {
    DWORD start = 0, end = 0;
    bool operator==(const Selection&) const = default;
};

Selection Sel(HWND edit) {
    Selection s;
    SendMessage(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&s.start),
                reinterpret_cast<LPARAM>(&s.end));
    return s;
}

std::ostream& operator<<(std::ostream& out, const Selection& s) {
    return out << s.start << ".." << s.end;
}

void SetSel(HWND edit, int start, int end) {
    SendMessage(edit, EM_SETSEL, static_cast<WPARAM>(start), end);
}

class EditTest : public ::testing::Test {
protected:
    HWND Make(DWORD style, const char* text = "", int width = 200, int height = 22) {
        edit = harness.Add("Edit", WS_BORDER | style, 10, 10, width, height, 100, text);
        SetFocus(edit);
        ControlHarness::Pump();
        harness.Take();
        return edit;
    }
    plat::Backend& Machine() { return plat::WindowManager::Get().GetBackend(); }

    ControlHarness harness;
    HWND edit = nullptr;
};

TEST_F(EditTest, TypedCharactersNotifyEachChangeAndStopAtTheLimit) {
    Make(ES_AUTOHSCROLL);
    SendMessage(edit, EM_LIMITTEXT, 4, 0);
    ControlHarness::Type("12345");
    EXPECT_EQ(harness.Take(),
              (Events{"EN_UPDATE \"1\"", "EN_CHANGE \"1\"", "EN_UPDATE \"12\"", "EN_CHANGE \"12\"",
                      "EN_UPDATE \"123\"", "EN_CHANGE \"123\"", "EN_UPDATE \"1234\"",
                      "EN_CHANGE \"1234\"", "EN_MAXTEXT \"1234\""}));
    EXPECT_EQ(Sel(edit), (Selection{4, 4}));
    EXPECT_EQ(SendMessage(edit, EM_GETLIMITTEXT, 0, 0), 4);
    // A selection makes room: the typed character replaces it.
    SetSel(edit, 0, -1);
    ControlHarness::Type("9");
    EXPECT_EQ(GetWindowString(edit), "9");
    EXPECT_TRUE(SendMessage(edit, EM_GETMODIFY, 0, 0));
}

TEST_F(EditTest, DefaultLimitIsTheDocumentedOneAndZeroLiftsIt) {
    Make(ES_AUTOHSCROLL);
    EXPECT_EQ(SendMessage(edit, EM_GETLIMITTEXT, 0, 0), 32767);
    SendMessage(edit, EM_LIMITTEXT, 0, 0);
    EXPECT_EQ(SendMessage(edit, EM_GETLIMITTEXT, 0, 0), 0x7FFFFFFE);
}

TEST_F(EditTest, KeysMoveAndExtendTheSelection) {
    struct Step {
        int vk;
        bool shift, ctrl;
        Selection after;
        const char* text;
    };
    // From "abcd ef" with the caret at 1.
    const Step steps[] = {
        {VK_END, true, false, {1, 7}, "abcd ef"},   {VK_HOME, false, false, {0, 0}, "abcd ef"},
        {VK_RIGHT, true, false, {0, 1}, "abcd ef"}, {VK_RIGHT, true, false, {0, 2}, "abcd ef"},
        {VK_LEFT, false, false, {1, 1}, "abcd ef"}, {VK_RIGHT, false, true, {5, 5}, "abcd ef"},
        {VK_LEFT, true, true, {0, 5}, "abcd ef"},   {VK_DELETE, false, false, {0, 0}, "ef"},
        {VK_DELETE, false, false, {0, 0}, "f"},     {'A', false, true, {0, 1}, "f"},
    };
    Make(ES_AUTOHSCROLL, "abcd ef");
    SetSel(edit, 1, 1);
    for (const Step& s : steps) {
        ControlHarness::Key(s.vk, s.shift, s.ctrl);
        EXPECT_EQ(Sel(edit), s.after) << "after key " << s.vk;
        EXPECT_EQ(GetWindowString(edit), s.text) << "after key " << s.vk;
    }
}

TEST_F(EditTest, SetSelTakesReversedAndOpenEnds) {
    Make(ES_AUTOHSCROLL, "abcdef");
    SetSel(edit, 4, 1);
    EXPECT_EQ(Sel(edit), (Selection{1, 4}));
    EXPECT_EQ(SendMessage(edit, EM_GETSEL, 0, 0), MAKELONG(1, 4));
    // The caret went to the given end, so Shift+Left grows the selection leftwards.
    ControlHarness::Key(VK_LEFT, true);
    EXPECT_EQ(Sel(edit), (Selection{0, 4}));
    SetSel(edit, 2, -1);
    EXPECT_EQ(Sel(edit), (Selection{2, 6}));
    SetSel(edit, -1, 0); // drops the selection, the caret stays
    EXPECT_EQ(Sel(edit), (Selection{6, 6}));
    SetSel(edit, 99, 99);
    EXPECT_EQ(Sel(edit), (Selection{6, 6}));
}

TEST_F(EditTest, SetTextNotifiesOnlyOnASingleLine) {
    Make(ES_AUTOHSCROLL);
    SendMessage(edit, EM_LIMITTEXT, 2, 0);
    ControlHarness::Type("x");
    harness.Take();
    SetWindowText(edit, "long text");
    EXPECT_EQ(harness.Take(), (Events{"EN_UPDATE \"long text\"", "EN_CHANGE \"long text\""}));
    EXPECT_EQ(Sel(edit), (Selection{0, 0}));
    EXPECT_FALSE(SendMessage(edit, EM_GETMODIFY, 0, 0));
    EXPECT_FALSE(SendMessage(edit, EM_CANUNDO, 0, 0));
    HWND multi = harness.Add("Edit", ES_MULTILINE, 10, 50, 200, 60, 101);
    harness.Take();
    SetWindowText(multi, "a\r\nb");
    EXPECT_TRUE(harness.Take().empty());
    EXPECT_EQ(GetWindowString(multi), "a\r\nb");
}

TEST_F(EditTest, ReplaceSelIsCutAtTheLimitAndSaysSoFirst) {
    Make(ES_AUTOHSCROLL, "ab");
    SendMessage(edit, EM_LIMITTEXT, 5, 0);
    SetSel(edit, 1, 1);
    SendMessage(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("12345"));
    EXPECT_EQ(harness.Take(),
              (Events{"EN_MAXTEXT \"ab\"", "EN_UPDATE \"a123b\"", "EN_CHANGE \"a123b\""}));
    EXPECT_EQ(Sel(edit), (Selection{4, 4}));
}

TEST_F(EditTest, SingleLineIgnoresControlCharactersMultiLineTakesThem) {
    Make(ES_AUTOHSCROLL, "x");
    SetSel(edit, 1, 1);
    for (char c : {'\r', '\t', '\x1b', '\x01'})
        SendMessage(edit, WM_CHAR, static_cast<WPARAM>(c), 1);
    EXPECT_EQ(GetWindowString(edit), "x");
    EXPECT_TRUE(harness.Take().empty());

    HWND multi = harness.Add("Edit", ES_MULTILINE | ES_WANTRETURN, 10, 50, 200, 60, 101, "x");
    SetFocus(multi);
    SetSel(multi, 1, 1);
    ControlHarness::Key(VK_RETURN);
    ControlHarness::Key(VK_TAB);
    ControlHarness::Key(VK_ESCAPE);
    EXPECT_EQ(GetWindowString(multi), "x\r\n\t");
    // Backspace takes the whole line break.
    SetSel(multi, 3, 3);
    ControlHarness::Key(VK_BACK);
    EXPECT_EQ(GetWindowString(multi), "x\t");
}

TEST_F(EditTest, DialogCodesAsRecordedAndEnterGoesToTheDialogUnlessWanted) {
    Make(ES_AUTOHSCROLL);
    EXPECT_EQ(SendMessage(edit, WM_GETDLGCODE, 0, 0), 0x89);
    HWND multi = harness.Add("Edit", ES_MULTILINE, 10, 50, 200, 60, 101);
    HWND wants = harness.Add("Edit", ES_MULTILINE | ES_WANTRETURN, 10, 120, 200, 60, 102);
    EXPECT_EQ(SendMessage(multi, WM_GETDLGCODE, 0, 0), 0x8d);
    MSG enter{multi, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_EQ(SendMessage(multi, WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) &
                  DLGC_WANTALLKEYS,
              0);
    enter.hwnd = wants;
    EXPECT_NE(SendMessage(wants, WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) &
                  DLGC_WANTALLKEYS,
              0);
}

TEST_F(EditTest, ClipboardKeysCopyCutAndPaste) {
    Make(ES_AUTOHSCROLL, "hello world");
    SetSel(edit, 0, 5);
    ControlHarness::Key('C', false, true);
    EXPECT_EQ(Machine().ClipboardText(), "hello");
    SetSel(edit, 5, 11);
    ControlHarness::Key('X', false, true);
    EXPECT_EQ(Machine().ClipboardText(), " world");
    EXPECT_EQ(GetWindowString(edit), "hello");
    SetSel(edit, 0, 0);
    ControlHarness::Key('V', false, true);
    EXPECT_EQ(GetWindowString(edit), " worldhello");
    // A single line takes the clipboard's first line only.
    Machine().SetClipboardText("one\ntwo");
    SetSel(edit, 0, -1);
    SendMessage(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(GetWindowString(edit), "one");
    // A password is never copied out.
    HWND password =
        harness.Add("Edit", ES_PASSWORD | ES_AUTOHSCROLL, 10, 50, 200, 22, 101, "secret");
    SetSel(password, 0, -1);
    SendMessage(password, WM_COPY, 0, 0);
    SendMessage(password, WM_CUT, 0, 0);
    EXPECT_EQ(Machine().ClipboardText(), "one\ntwo");
    EXPECT_EQ(GetWindowString(password), "secret");
}

TEST_F(EditTest, MultiLinePasteGetsFullLineBreaks) {
    Make(ES_MULTILINE, "", 200, 80);
    Machine().SetClipboardText("a\nb\r\nc");
    SendMessage(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(GetWindowString(edit), "a\r\nb\r\nc");
    EXPECT_EQ(SendMessage(edit, EM_GETLINECOUNT, 0, 0), 3);
}

TEST_F(EditTest, UndoTakesBackTheLastRunOfTypingAndThenRedoesIt) {
    Make(ES_AUTOHSCROLL, "x");
    SetSel(edit, 0, -1);
    ControlHarness::Type("abc");
    EXPECT_EQ(GetWindowString(edit), "abc");
    ControlHarness::Key('Z', false, true);
    EXPECT_EQ(GetWindowString(edit), "x");
    EXPECT_EQ(Sel(edit), (Selection{0, 1}));
    SendMessage(edit, WM_UNDO, 0, 0);
    EXPECT_EQ(GetWindowString(edit), "abc");
    // Backspaces in a row are one step too.
    SetSel(edit, 3, 3);
    ControlHarness::Key(VK_BACK);
    ControlHarness::Key(VK_BACK);
    EXPECT_EQ(GetWindowString(edit), "a");
    SendMessage(edit, EM_UNDO, 0, 0);
    EXPECT_EQ(GetWindowString(edit), "abc");
}

TEST_F(EditTest, StylesFilterWhatIsTyped) {
    struct Case {
        DWORD style;
        const char* typed;
        const char* result;
    };
    const Case cases[] = {
        {ES_NUMBER, "a1b2", "12"},
        {ES_UPPERCASE, "abC\xe9", "ABC\xc9"},
        {ES_LOWERCASE, "ABc\xc9", "abc\xe9"},
        {ES_READONLY, "abc", ""},
    };
    int id = 200;
    for (const Case& c : cases) {
        HWND e = harness.Add("Edit", c.style | ES_AUTOHSCROLL, 10, 10, 200, 22, id++);
        SetFocus(e);
        for (const char* p = c.typed; *p; ++p)
            SendMessage(e, WM_CHAR, static_cast<unsigned char>(*p), 1);
        EXPECT_EQ(GetWindowString(e), c.result) << "style " << std::hex << c.style;
        DestroyWindow(e);
    }
}

TEST_F(EditTest, ReadOnlyRefusesTheUserButNotThePrograms) {
    Make(ES_READONLY | ES_AUTOHSCROLL, "keep");
    SetSel(edit, 0, -1);
    ControlHarness::Key(VK_DELETE);
    ControlHarness::Key(VK_BACK);
    SendMessage(edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(GetWindowString(edit), "keep");
    SendMessage(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("new"));
    EXPECT_EQ(GetWindowString(edit), "new");
    SendMessage(edit, EM_SETREADONLY, FALSE, 0);
    ControlHarness::Type("!");
    EXPECT_EQ(GetWindowString(edit), "new!");
}

TEST_F(EditTest, MouseClickPlacesTheCaretDragSelectsDoubleClickTakesAWord) {
    Make(ES_AUTOHSCROLL, "one two three", 300);
    auto at = [&](int index) {
        LRESULT p = SendMessage(edit, EM_POSFROMCHAR, static_cast<WPARAM>(index), 0);
        return POINT{GET_X_LPARAM(p), GET_Y_LPARAM(p) + 3};
    };
    // Time passes between the gestures, so that no press counts as the second of a double click.
    auto later = [] { plat::Headless().Sleep(1000); };
    POINT four = at(4), eight = at(8);
    ControlHarness::Click(edit, four.x, four.y);
    EXPECT_EQ(Sel(edit), (Selection{4, 4}));
    later();
    ControlHarness::Press(edit, four.x, four.y);
    ControlHarness::MoveTo(edit, eight.x, eight.y);
    EXPECT_EQ(GetCapture(), edit);
    ControlHarness::Release(edit, eight.x, eight.y);
    EXPECT_EQ(Sel(edit), (Selection{4, 8}));
    EXPECT_EQ(GetCapture(), nullptr);
    later();
    POINT inTwo = at(5);
    ControlHarness::Click(edit, inTwo.x, inTwo.y, true);
    EXPECT_EQ(Sel(edit), (Selection{4, 7}));
    LRESULT hit = SendMessage(edit, EM_CHARFROMPOS, 0, MakePointLParam(eight.x, eight.y));
    EXPECT_EQ(LOWORD(static_cast<std::uintptr_t>(hit)), 8);
}

TEST_F(EditTest, ClickIntoAnUnfocusedEditTakesTheFocusWithNotification) {
    Make(ES_AUTOHSCROLL, "abc");
    HWND other = harness.Add("Edit", ES_AUTOHSCROLL, 10, 50, 200, 22, 101, "xyz");
    harness.Take();
    ControlHarness::Click(other, 5, 5);
    EXPECT_EQ(GetFocus(), other);
    EXPECT_EQ(harness.Take(), (Events{"EN_KILLFOCUS \"abc\"", "EN_SETFOCUS \"xyz\""}));
}

TEST_F(EditTest, LongTextScrollsToKeepTheCaretInView) {
    Make(ES_AUTOHSCROLL, "", 60);
    ControlHarness::Type("a long line that cannot fit in the field");
    RECT client;
    GetClientRect(edit, &client);
    LRESULT last = SendMessage(edit, EM_POSFROMCHAR, 39, 0);
    EXPECT_LT(GET_X_LPARAM(last), client.right);
    EXPECT_LT(GET_X_LPARAM(SendMessage(edit, EM_POSFROMCHAR, 0, 0)), 0);
    ControlHarness::Key(VK_HOME);
    EXPECT_GE(GET_X_LPARAM(SendMessage(edit, EM_POSFROMCHAR, 0, 0)), 0);
    EXPECT_EQ(SendMessage(edit, EM_POSFROMCHAR, 40, 0), -1);
}

TEST_F(EditTest, WithoutAutoScrollASingleLineTakesOnlyWhatShows) {
    Make(0, "", 40);
    ControlHarness::Type("wwwwwwwwwwwwwwwwwwww");
    std::string kept = GetWindowString(edit);
    EXPECT_LT(kept.size(), 20u);
    EXPECT_FALSE(kept.empty());
    Events events = harness.Take();
    EXPECT_EQ(events.back(), "EN_MAXTEXT \"" + kept + "\"");
}

TEST_F(EditTest, MultiLineLinesAndArrowKeys) {
    Make(ES_MULTILINE | ES_AUTOHSCROLL, "first\r\nsecond line\r\n\r\nend", 200, 80);
    EXPECT_EQ(SendMessage(edit, EM_GETLINECOUNT, 0, 0), 4);
    const struct {
        int line;
        LRESULT index, length;
    } lines[] = {{0, 0, 5}, {1, 7, 11}, {2, 20, 0}, {3, 22, 3}};
    for (const auto& l : lines) {
        EXPECT_EQ(SendMessage(edit, EM_LINEINDEX, static_cast<WPARAM>(l.line), 0), l.index)
            << l.line;
        EXPECT_EQ(SendMessage(edit, EM_LINELENGTH, static_cast<WPARAM>(l.index), 0), l.length)
            << l.line;
        EXPECT_EQ(SendMessage(edit, EM_LINEFROMCHAR, static_cast<WPARAM>(l.index), 0), l.line);
    }
    EXPECT_EQ(SendMessage(edit, EM_LINEINDEX, 4, 0), -1);
    char buffer[16];
    *reinterpret_cast<WORD*>(buffer) = sizeof buffer;
    LRESULT n = SendMessage(edit, EM_GETLINE, 1, reinterpret_cast<LPARAM>(buffer));
    EXPECT_EQ(std::string(buffer, static_cast<size_t>(n)), "second line");

    SetSel(edit, 3, 3); // "fir|st"
    ControlHarness::Key(VK_DOWN);
    EXPECT_EQ(SendMessage(edit, EM_LINEFROMCHAR, static_cast<WPARAM>(-1), 0), 1);
    ControlHarness::Key(VK_END);
    EXPECT_EQ(Sel(edit), (Selection{18, 18}));
    ControlHarness::Key(VK_DOWN, true);
    EXPECT_EQ(Sel(edit), (Selection{18, 20}));
    ControlHarness::Key(VK_END, false, true);
    EXPECT_EQ(Sel(edit), (Selection{25, 25}));
    ControlHarness::Key(VK_HOME, false, true);
    EXPECT_EQ(Sel(edit), (Selection{0, 0}));
}

TEST_F(EditTest, MultiLineWithoutAutoScrollBreaksBetweenWords) {
    Make(ES_MULTILINE, "alpha beta gamma delta epsilon zeta eta theta", 90, 120);
    LRESULT count = SendMessage(edit, EM_GETLINECOUNT, 0, 0);
    ASSERT_GT(count, 2);
    RECT format;
    SendMessage(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&format));
    for (int line = 0; line < count; ++line) {
        LRESULT start = SendMessage(edit, EM_LINEINDEX, static_cast<WPARAM>(line), 0);
        LRESULT length = SendMessage(edit, EM_LINELENGTH, static_cast<WPARAM>(start), 0);
        std::string text =
            GetWindowString(edit).substr(static_cast<size_t>(start), static_cast<size_t>(length));
        // Every line starts a word and ends at a blank or the end of the text.
        EXPECT_NE(text.front(), ' ') << line;
        if (line + 1 < count) {
            EXPECT_EQ(text.back(), ' ') << line;
        }
    }
}

TEST_F(EditTest, SubclassSeesMessagesFirstAndPassesTheRestOn) {
    Make(ES_AUTOHSCROLL);
    static WNDPROC original = nullptr;
    original = reinterpret_cast<WNDPROC>(GetWindowLongPtr(edit, GWLP_WNDPROC));
    // Like the grid's editors: swallows some characters, hands everything else to the edit.
    WNDPROC noDigits = [](HWND h, UINT m, WPARAM w, LPARAM l) -> LRESULT {
        if (m == WM_CHAR && w >= '0' && w <= '9') return 0;
        return CallWindowProc(original, h, m, w, l);
    };
    SetWindowLongPtr(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(noDigits));
    ControlHarness::Type("a1b2");
    EXPECT_EQ(GetWindowString(edit), "ab");
    ControlHarness::Key(VK_HOME, true);
    EXPECT_EQ(Sel(edit), (Selection{0, 2}));
}

TEST_F(EditTest, ParentMayDestroyTheControlFromANotification) {
    Make(ES_AUTOHSCROLL);
    HWND doomed = edit;
    harness.hook = [&](UINT msg, WPARAM wParam, LPARAM, LRESULT*) {
        if (msg == WM_COMMAND && HIWORD(wParam) == EN_UPDATE) DestroyWindow(doomed);
        return false;
    };
    ControlHarness::Type("ab");
    EXPECT_FALSE(IsWindow(doomed));
    harness.hook = nullptr;
}

// A focused edit shows a caret: pixels of the text colour in an otherwise white field.
TEST_F(EditTest, FocusedEditShowsACaretAndADisabledOneIsGrey) {
    Make(ES_AUTOHSCROLL, "", 100, 24);
    auto darkPixels = [&] {
        UpdateWindow(edit);
        HDC dc = GetDC(edit);
        RECT r;
        GetClientRect(edit, &r);
        int dark = 0;
        for (int y = 0; y < r.bottom; ++y)
            for (int x = 0; x < r.right; ++x)
                if (GetPixel(dc, x, y) == RGB(0, 0, 0)) ++dark;
        ReleaseDC(edit, dc);
        return dark;
    };
    EXPECT_GT(darkPixels(), 5);
    SetFocus(harness.Window());
    EXPECT_EQ(darkPixels(), 0);
    EnableWindow(edit, FALSE);
    UpdateWindow(edit);
    HDC dc = GetDC(edit);
    EXPECT_EQ(GetPixel(dc, 3, 3), GetSysColor(COLOR_BTNFACE));
    ReleaseDC(edit, dc);
}

} // namespace
