// The modeless find and replace dialogs: what they send their owner for each button, and how
// they close.

#include "ControlHarness.h"
#include "platform/controls/FindReplaceDialog.h"
#include "platform/user/Dialog.h"
#include "platform/user/Input.h"

#include <gtest/gtest.h>

namespace {

struct Request {
    DWORD flags;
    std::string findWhat, replaceWith;
    bool operator==(const Request&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Request& r) {
    return out << std::hex << r.flags << std::dec << " \"" << r.findWhat << "\" \"" << r.replaceWith
               << "\"";
}

class FindReplaceTest : public ::testing::Test {
protected:
    void SetUp() override {
        fr.hwndOwner = owner.Window();
        fr.lpstrFindWhat = findWhat;
        fr.wFindWhatLen = sizeof findWhat;
        fr.lpstrReplaceWith = replaceWith;
        fr.wReplaceWithLen = sizeof replaceWith;
        UINT message = RegisterWindowMessage(FINDMSGSTRING);
        owner.hook = [this, message](UINT msg, WPARAM, LPARAM lParam, LRESULT*) {
            if (msg != message) return false;
            auto* sent = reinterpret_cast<FINDREPLACE*>(lParam);
            EXPECT_EQ(sent, &fr);
            if (!sent) return true;
            requests.push_back(
                Request{sent->Flags, sent->lpstrFindWhat, replacing ? sent->lpstrReplaceWith : ""});
            return true;
        };
    }
    // Runs the queue as the owner's loop must for a modeless dialog.
    void Pump() {
        MSG msg;
        while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (IsWindow(dialog) && IsDialogMessage(dialog, &msg)) continue;
            TranslateMessage(&msg);
            DispatchMessage(&msg);
        }
    }
    void Type(const std::string& text) {
        for (char c : text) plat::PushChar(c);
        Pump();
    }
    void Key(int vk) {
        plat::PushKey(vk);
        Pump();
    }

    ControlHarness owner;
    char findWhat[16] = "";
    char replaceWith[16] = "";
    FINDREPLACE fr;
    HWND dialog = nullptr;
    bool replacing = false;
    std::vector<Request> requests;
};

TEST_F(FindReplaceTest, FindNextCarriesTheTextAndTheOptionsAndCancelEndsIt) {
    fr.Flags = FR_DOWN;
    dialog = FindText(&fr);
    ASSERT_NE(dialog, nullptr);
    Pump();
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), 1152);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDOK))); // nothing to find yet
    Type("Parcel");
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    Key(VK_RETURN);
    SendDlgItemMessage(dialog, 1040, BM_CLICK, 0, 0);
    SendDlgItemMessage(dialog, 1041, BM_CLICK, 0, 0);
    SendDlgItemMessage(dialog, 1056, BM_CLICK, 0, 0);
    SetFocus(GetDlgItem(dialog, 1152));
    Key(VK_RETURN);
    Key(VK_ESCAPE);
    EXPECT_EQ(requests,
              (std::vector<Request>{{FR_DOWN | FR_FINDNEXT, "Parcel", ""},
                                    {FR_WHOLEWORD | FR_MATCHCASE | FR_FINDNEXT, "Parcel", ""},
                                    {FR_WHOLEWORD | FR_MATCHCASE | FR_DIALOGTERM, "Parcel", ""}}));
    EXPECT_FALSE(IsWindow(dialog));
}

TEST_F(FindReplaceTest, ReplaceButtonsSendTheirRequestsWithBothTexts) {
    replacing = true;
    strcpy(findWhat, "a");
    strcpy(replaceWith, "b");
    fr.Flags = FR_MATCHCASE;
    dialog = ReplaceText(&fr);
    ASSERT_NE(dialog, nullptr);
    Pump();
    EXPECT_EQ(GetWindowString(GetDlgItem(dialog, 1152)), "a");
    EXPECT_EQ(IsDlgButtonChecked(dialog, 1041), BST_CHECKED);
    SetFocus(GetDlgItem(dialog, 1153));
    Type("bb"); // tabbing in would select all; a set focus does not
    SendDlgItemMessage(dialog, 1024, BM_CLICK, 0, 0);
    SendDlgItemMessage(dialog, 1025, BM_CLICK, 0, 0);
    EXPECT_EQ(requests,
              (std::vector<Request>{{FR_DOWN | FR_MATCHCASE | FR_REPLACE, "a", "bbb"},
                                    {FR_DOWN | FR_MATCHCASE | FR_REPLACEALL, "a", "bbb"}}));
    // The owner may close it from its handler; the dialog goes quietly.
    owner.hook = [&](UINT, WPARAM, LPARAM, LRESULT*) { return false; };
    SendMessage(dialog, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(dialog));
}

TEST_F(FindReplaceTest, UnusableRecordsOpenNothing) {
    FINDREPLACE bad = fr;
    bad.lpstrFindWhat = nullptr;
    EXPECT_EQ(FindText(&bad), nullptr);
    bad = fr;
    bad.hwndOwner = nullptr;
    EXPECT_EQ(ReplaceText(&bad), nullptr);
    EXPECT_EQ(FindText(nullptr), nullptr);
}

} // namespace
