// The file dialogs driven with keys as the host program's scripts drive them: the default name,
// the default extension, the question before replacing a file, and the list of the folder.

#include "platform/controls/FileDialog.h"

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

constexpr int NameField = 1152;

class FileDialogTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() / ("kerv-filedialog-" + std::to_string(::getpid()));
        fs::remove_all(folder);
        fs::create_directories(folder / "sub");
        std::strncpy(path, (folder / "drawing").c_str(), sizeof path - 1);
        ofn.hwndOwner = owner.Window();
        ofn.lpstrFilter = "Tables (*.tab)\0*.tab\0All files\0*.*\0";
        ofn.lpstrFile = path;
        ofn.nMaxFile = sizeof path;
        ofn.lpstrDefExt = "tab";
        ofn.lpstrTitle = "Kerv table area";
    }
    void TearDown() override { fs::remove_all(folder); }
    void Touch(const std::string& name) { std::ofstream(folder / name) << "x"; }
    static void Later(std::function<void()> action) {
        plat::Headless().Schedule(std::move(action));
    }
    static void Keys(std::initializer_list<int> keys) {
        for (int k : keys) Later([k] { plat::PushKey(k); });
    }
    static void Typed(const std::string& text) {
        Later([text] {
            for (char c : text) plat::PushChar(c);
        });
    }
    static std::vector<std::string> ListedItems(HWND dialog) {
        HWND list = GetDlgItem(dialog, 1120);
        std::vector<std::string> items;
        for (int i = 0; i < SendMessage(list, LB_GETCOUNT, 0, 0); ++i) {
            char text[256] = "";
            SendMessage(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            items.push_back(text);
        }
        return items;
    }

    ControlHarness owner;
    fs::path folder;
    char path[260] = "";
    OPENFILENAME ofn;
};

TEST_F(FileDialogTest, SaveOpensOnTheDefaultNameAndAddsTheExtension) {
    int focusId = 0;
    std::string shown;
    DWORD start = 1, end = 0;
    Later([&] {
        HWND focus = GetFocus();
        focusId = GetDlgCtrlID(focus);
        shown = GetWindowString(focus);
        SendMessage(focus, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                    reinterpret_cast<LPARAM>(&end));
    });
    Keys({VK_RETURN});
    ofn.Flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
    EXPECT_TRUE(GetSaveFileName(&ofn));
    EXPECT_EQ(focusId, NameField);
    EXPECT_EQ(shown, "drawing");
    EXPECT_EQ(start, 0u);
    EXPECT_EQ(end, 7u);
    EXPECT_EQ(std::string(path), (folder / "drawing.tab").string());
    EXPECT_EQ(std::string(path + ofn.nFileOffset), "drawing.tab");
    EXPECT_EQ(std::string(path + ofn.nFileExtension), "tab");
}

TEST_F(FileDialogTest, ReplacingAFileIsAskedAndNoReturnsToTheDialog) {
    Touch("drawing.tab");
    std::string question;
    int focusedButton = 0;
    Keys({VK_RETURN});
    Later([&] {
        HWND box = GetActiveWindow();
        question = GetWindowString(GetDlgItem(box, 0xFFFF));
        focusedButton = GetDlgCtrlID(GetFocus());
        plat::PushKey(VK_RETURN); // No, the default
    });
    Typed("other"); // the field's text is selected again: typing replaces it
    Keys({VK_RETURN});
    ofn.Flags = OFN_OVERWRITEPROMPT;
    EXPECT_TRUE(GetSaveFileName(&ofn));
    EXPECT_EQ(question, "drawing.tab already exists.\nDo you want to replace it?");
    EXPECT_EQ(focusedButton, IDNO);
    EXPECT_EQ(std::string(path), (folder / "other.tab").string());
}

TEST_F(FileDialogTest, YesReplaces) {
    Touch("drawing.tab");
    Keys({VK_RETURN, VK_TAB, VK_RETURN});
    ofn.Flags = OFN_OVERWRITEPROMPT;
    EXPECT_TRUE(GetSaveFileName(&ofn));
    EXPECT_EQ(std::string(path), (folder / "drawing.tab").string());
}

TEST_F(FileDialogTest, OpenRefusesAMissingFileAndCancelAnswersFalse) {
    std::string complaint;
    Keys({VK_RETURN});
    Later([&] {
        complaint = GetWindowString(GetDlgItem(GetActiveWindow(), 0xFFFF));
        plat::PushKey(VK_RETURN);
    });
    Keys({VK_ESCAPE});
    ofn.Flags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST;
    EXPECT_FALSE(GetOpenFileName(&ofn));
    EXPECT_EQ(CommDlgExtendedError(), 0u);
    EXPECT_EQ(complaint.substr(0, complaint.find('\n')), "drawing.tab");
}

TEST_F(FileDialogTest, TheListShowsFoldersAndMatchingFilesAndOpensThem) {
    Touch("b.tab");
    Touch("A.TAB");
    Touch("notes.txt");
    Touch("sub/inner.tab");
    std::vector<std::string> top, inside;
    Later([&] { top = ListedItems(GetActiveWindow()); });
    // Into "sub" by the keyboard: the list, its second item, Enter.
    Keys({VK_TAB, VK_HOME, VK_DOWN, VK_RETURN});
    Later([&] { inside = ListedItems(GetActiveWindow()); });
    // A click on a file names it in the field; a double click opens it.
    Later([] {
        HWND list = GetDlgItem(GetActiveWindow(), 1120);
        RECT r;
        SendMessage(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&r));
        POINT p{r.left + 5, (r.top + r.bottom) / 2};
        ClientToScreen(list, &p);
        plat::PushClick(p, 0, true);
    });
    ofn.Flags = OFN_FILEMUSTEXIST;
    EXPECT_TRUE(GetOpenFileName(&ofn));
    EXPECT_EQ(top, (std::vector<std::string>{"[..]", "[sub]", "A.TAB", "b.tab"}));
    EXPECT_EQ(inside, (std::vector<std::string>{"[..]", "inner.tab"}));
    EXPECT_EQ(std::string(path), (folder / "sub" / "inner.tab").string());
}

TEST_F(FileDialogTest, ATooSmallBufferFailsWithTheReason) {
    char small[8] = "x";
    ofn.lpstrFile = small;
    ofn.nMaxFile = sizeof small;
    ofn.lpstrInitialDir = folder.c_str();
    Keys({VK_RETURN});
    EXPECT_FALSE(GetSaveFileName(&ofn));
    EXPECT_EQ(CommDlgExtendedError(), FNERR_BUFFERTOOSMALL);
    ofn.lpstrFile = nullptr;
    EXPECT_FALSE(GetOpenFileName(&ofn));
    EXPECT_EQ(CommDlgExtendedError(), CDERR_INITIALIZATION);
}

} // namespace
