// The window objects of the framework: message tables walked from the most derived class,
// unhandled messages passed to the window's own procedure, controls taken over, dialog data
// exchange and the dialog's font hook.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/afx/CDialog.h"
#include "platform/afx/CEdit.h"
#include "platform/afx/CFont.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/gdi/Gdi.h"
#include "platform/user/Input.h"

namespace {

std::vector<std::string> heard;

class BaseWnd : public CWnd {
public:
    void OnLButtonDown(UINT, CPoint p) { heard.push_back("base down " + std::to_string(p.x)); }
    void OnTimer(UINT_PTR id) { heard.push_back("base timer " + std::to_string(id)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_TIMER()
END_MESSAGE_MAP()

class DerivedWnd : public BaseWnd {
public:
    void OnTimer(UINT_PTR id) {
        heard.push_back("derived timer " + std::to_string(id));
        BaseWnd::OnTimer(id);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

// An edit field that refuses the digit 7 and hears its own focus.
class NoSevens : public CEdit {
public:
    void OnChar(UINT c, UINT rep, UINT flags) {
        if (c != '7') CEdit::OnChar(c, rep, flags);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NoSevens, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

class FontDialog : public CDialog {
public:
    explicit FontDialog(const DialogTemplate& t) : CDialog(t) {}
    NoSevens field;
    std::string controlFace;
    void DoDataExchange(CDataExchange* dx) override { DDX_Control(dx, 100, field); }
    void OnSetFont(CFont* font) override {
        LOGFONT lf;
        font->GetLogFont(&lf);
        std::snprintf(lf.lfFaceName, LF_FACESIZE, "Courier");
        HFONT mine = CreateFontIndirect(&lf);
        font->Detach();
        font->Attach(mine);
    }
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        LOGFONT lf;
        GetObject(reinterpret_cast<HFONT>(field.SendMessage(WM_GETFONT)), sizeof lf, &lf);
        controlFace = lf.lfFaceName;
        return TRUE;
    }
};

}  // namespace

TEST(Framework, DerivedTableFirstThenBaseThenDefault) {
    DerivedWnd w;
    ASSERT_TRUE(w.CreateEx(0, AfxRegisterWndClass(0), "w", WS_POPUP | WS_VISIBLE, RECT{0, 0, 50, 50}, nullptr, 0));
    heard.clear();
    w.SendMessage(WM_TIMER, 3);
    w.SendMessage(WM_LBUTTONDOWN, 0, MakePointLParam(7, 1));
    w.SetWindowText("title");  // nobody's table: the window's own procedure keeps the text
    EXPECT_EQ(heard, (std::vector<std::string>{"derived timer 3", "base timer 3", "base down 7"}));
    EXPECT_EQ(w.GetWindowText(), "title");
    HWND h = w.m_hWnd;
    w.DestroyWindow();
    EXPECT_EQ(w.m_hWnd, nullptr);
    EXPECT_FALSE(IsWindow(h));
}

TEST(Framework, DialogBindsControlsAndGivesThemTheFontItChose) {
    DialogTemplate t;
    t.cx = 120, t.cy = 40;
    t.faceName = "MS Sans Serif";
    t.items.push_back(DialogItemTemplate{WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP, 0, 5, 5, 100, 12, 100, "Edit", ""});
    t.items.push_back(DialogItemTemplate{WS_CHILD | WS_VISIBLE | BS_DEFPUSHBUTTON | WS_TABSTOP, 0, 5, 20, 40, 14, IDOK, "Button", "OK"});
    FontDialog dialog(t);
    std::string typed;
    plat::HeadlessBackend& h = plat::Headless();
    for (char c : std::string("1776")) h.Schedule([c] { plat::PushChar(c); });
    h.Schedule([&] { typed = dialog.field.GetWindowText(); });
    h.Schedule([] { plat::PushKey(VK_RETURN); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(typed, "16");
    EXPECT_EQ(dialog.controlFace, "Courier");
    EXPECT_EQ(dialog.field.m_hWnd, nullptr);  // gone with the dialog
}
