// cadhost with scripts, end to end: the echo module opens its dialog, message boxes, the
// host's alert and file dialog, and the script answers them as a person would.

#include "platform/user/User.h"
#include "tests/apps/CadhostProcess.h"

#include <cairo.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

// The dump of the echo dialog as it opens; lines for the name field and the status line are
// put in.
std::string EchoDialogDump(const std::string& name, const std::string& status) {
    return ";; window 0 #32770 \"Echo dialog\" enabled visible\n"
           ";; window -1 Static \"&Name:\" enabled visible\n"
           ";; window 101 Edit \"" +
           name +
           "\" enabled visible\n"
           ";; window 102 ListBox \"\" enabled visible\n"
           ";; window 103 Button \"&Upper\" enabled visible\n"
           ";; window 104 Static \"" +
           status +
           "\" enabled visible\n"
           ";; window 105 Button \"Later\" disabled visible\n"
           ";; window 1 Button \"OK\" enabled visible\n"
           ";; window 2 Button \"Cancel\" enabled visible\n";
}

TEST(ScriptRun, DialogIsDrivenByTypingKeysAndButtons) {
    const CadhostResult result = RunWithScript("dump\n"
                                               "type parcel \"a\" \xC3\xBC\n"
                                               "key Tab Down\n"
                                               "button 103\n"
                                               "dump\n"
                                               "button 1\n",
                                               {"-e", "(DIALOG)"});
    EXPECT_EQ(result.status, 0) << result.err;
    // The dialog found its template through the resource handle the module pushed, and the
    // host's main window owned it (the T at the end). The script's UTF-8 u umlaut arrives as the
    // code page's byte.
    EXPECT_EQ(result.out, EchoDialogDump("", "") + EchoDialogDump("PARCEL \\\"A\\\" \xFC", "") +
                              "(1 \"PARCEL \\\"A\\\" \xFC\" \"Alpha\" T)\n");
}

TEST(ScriptRun, PointerLinesAimAtClientCoordinatesOfTheActiveWindowOrOfAControl) {
    const CadhostResult result = RunWithScript("rclick 3 4\n"
                                               "dump\n"
                                               "press 2 2\n"
                                               "move 40 -5\n"
                                               "dump\n"
                                               "release 6 120\n"
                                               "dump\n"
                                               "wheel 3 3 -240\n"
                                               "dump\n"
                                               "dblclick @102 5 3\n"
                                               "click @101 60 5\n"
                                               "type s\n"
                                               "click @999 1 1\n"
                                               "button 1\n",
                                               {"-e", "(DIALOG)"});
    EXPECT_EQ(result.status, 0) << result.err;
    // The double click picked the first entry and copied it; the click put the caret behind it.
    EXPECT_EQ(result.out, EchoDialogDump("", "rclick 3 4") + EchoDialogDump("", "dragging 40 -5") +
                              EchoDialogDump("", "drag 2 2 to 6 120") +
                              EchoDialogDump("", "wheel -240 at 3 3") +
                              ";; error: script line 13: the active window has no control 999\n"
                              "(1 \"Alphas\" \"Alpha\" T)\n");
}

TEST(ScriptRun, WheelOverAWindowThatIgnoresItReachesItsParent) {
    const CadhostResult result =
        RunWithScript("wheel @104 1 1 120\ndump\nkey Escape\n", {"-e", "(DIALOG)"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("104 Static \"wheel 120 at "), std::string::npos) << result.out;
}

TEST(ScriptRun, AlertPrintsItsLineOnceAndWaitsForOk) {
    const CadhostResult result =
        RunWithScript("dump\nkey Enter\n", {"-e", R"((ALERT "Stop\nhere") (ECHO 1))"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; alert: Stop\\nhere\n"
                          ";; window 0 #32770 \"AutoCAD\" enabled visible\n"
                          ";; window 65535 Static \"Stop\\nhere\" enabled visible\n"
                          ";; window 1 Button \"OK\" enabled visible\n"
                          "(1)\n");
}

TEST(ScriptRun, MessageBoxesAnswerTheirKeys) {
    // Escape does nothing in a Yes/No box; Right moves to No. Escape cancels, or answers OK in
    // a box with only OK; Enter presses the default button.
    const CadhostResult result = RunWithScript(
        "key Escape\nkey Right Enter\nkey Escape\nkey Escape\nkey Enter\n",
        {"-e", R"((ASK "Go on?" 4) (ASK "Sure?" 1) (ASK "Note" 0) (ASK "Default no?" 260))"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; msgbox: Go on?\n(7)\n"
                          ";; msgbox: Sure?\n(2)\n"
                          ";; msgbox: Note\n(1)\n"
                          ";; msgbox: Default no?\n(7)\n");
}

TEST(ScriptRun, FileDialogTakesATypedNameInTheDrawingsFolder) {
    Folder folder;
    folder.Write("plan.tab", "");
    const std::string drawing = folder.path + "/plan.dwg";
    const std::string forms = "(GETFILE \"Kerv table area\" \"" + folder.path +
                              "/plan\" \"tab\" 3) (GETFILE \"Load\" \"plan\" \"tab\" 0) "
                              "(GETFILE \"Load\" \"plan\" \"tab\" 0)";
    const CadhostResult result = RunWithScript("dump\ntype lots\nkey Enter\n"
                                               "key Enter\n"
                                               "key Escape\n",
                                               {"--drawing", drawing, "-e", forms});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; window 0 #32770 \"Kerv table area\" enabled visible\n"
                          ";; window 1090 Static \"File &name:\" enabled visible\n"
                          ";; window 1152 Edit \"plan\" enabled visible\n"
                          ";; window 1120 ListBox \"\" enabled visible\n"
                          ";; window 1089 Static \"Files of type: *.tab\" enabled visible\n"
                          ";; window 1 Button \"&Save\" enabled visible\n"
                          ";; window 2 Button \"Cancel\" enabled visible\n"
                          ";; window 1088 Static \"" +
                              folder.path +
                              "\" enabled visible\n"
                              "\"" +
                              folder.path +
                              "/lots.tab\"\n"
                              "\"" +
                              folder.path +
                              "/plan.tab\"\n"
                              "(-5001)\n");
}

TEST(ScriptRun, FileToReadMustExist) {
    Folder folder;
    const CadhostResult result = RunWithScript(
        "type none\nkey Enter\nkey Enter\nkey Escape\n",
        {"--drawing", folder.path + "/plan.dwg", "-e", "(GETFILE \"Load\" \"plan\" \"tab\" 0)"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; msgbox: none.tab\\nFile not found.\\nPlease verify the correct "
                          "file name was given.\n(-5001)\n");
}

TEST(ScriptRun, FileToWriteAsksBeforeItReplacesOne) {
    Folder folder;
    folder.Write("old.tab", "kept");
    const std::string question =
        ";; msgbox: old.tab already exists.\\nDo you want to replace it?\n";
    // No (the default) returns to the dialog, where Escape cancels; Yes takes the name.
    const CadhostResult result = RunWithScript(
        "type old\nkey Enter\nkey Enter\nkey Escape\n"
        "type old\nkey Enter\nbutton 6\n",
        {"--drawing", folder.path + "/plan.dwg", "-e",
         "(GETFILE \"Save\" \"plan\" \"tab\" 3) (GETFILE \"Save\" \"plan\" \"tab\" 3)"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, question + "(-5001)\n" + question + "\"" + folder.path + "/old.tab\"\n");
    EXPECT_EQ(folder.Read("old.tab"), "kept");
}

TEST(ScriptRun, WaitLetsTimersFireOncePerPeriod) {
    const CadhostResult result =
        RunWithScript("wait 1000\nkey Enter\nwait 1000\n", {"-e", "(BEEPER 200)"});
    EXPECT_EQ(result.status, 0);
    std::string beeps;
    for (int i = 0; i < 5; ++i) beeps += ";; beep 440 20\n";
    // The timer ended with the box: the last wait hears nothing.
    EXPECT_EQ(result.out, ";; msgbox: Beeping\n" + beeps);
}

TEST(ScriptRun, WindowLeftOpenIsCancelledAndTheStatusSaysSo) {
    const CadhostResult result = RunWithScript(
        "key Escape\n", {"-e", R"((ASK "Stay?" 4) (ECHO 1) (ASK "Later?" 0) (DIALOG))"});
    EXPECT_EQ(result.status, 3);
    // Once the script has ended, every window that opens is cancelled at once.
    EXPECT_EQ(result.out, ";; msgbox: Stay?\n"
                          ";; error: script ended with a window open\n"
                          "(2)\n(1)\n"
                          ";; msgbox: Later?\n(2)\n"
                          "(2 \"\" \"\" T)\n");
}

TEST(ScriptRun, RunWithoutAScriptLeavesNoWindowOpen) {
    const CadhostResult result = RunWithEcho({"-e", "(ALERT \"x\") (ECHO 2)"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.out, ";; alert: x\n;; error: script ended with a window open\n(2)\n");
}

TEST(ScriptRun, ScriptLinesLeftAfterTheFormsPlayOnTheMainWindow) {
    const CadhostResult result =
        RunWithScript("key Enter\ndump\n", {"--drawing", "site/lot 7.dwg", "-e", "(ALERT \"x\")"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; alert: x\n"
                          ";; window 0 AcadMainFrame \"AutoCAD - [lot 7.dwg]\" enabled visible\n"
                          ";; window 59648 AcadDrawing \"lot 7.dwg\" enabled visible\n");
}

TEST(ScriptRun, BadScriptLineStopsTheProgramBeforeAnythingRuns) {
    Folder folder;
    const std::string log = folder.path + "/messages";
    const CadhostResult result = RunCadhost(
        {{"--module", ECHO_MODULE_PATH, "--script",
          folder.Write("bad.txt", "# answers\nkey Enter\n\n  jump 3\n"), "-e", "(ALERT \"x\")"},
         "",
         "",
         {{"ECHO_MODULE_LOG", log}}});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, ";; error: script line 4: unknown command jump\n");
    EXPECT_FALSE(std::filesystem::exists(log));
}

// The pixels of a PNG file, read with cairo.
class Picture {
public:
    explicit Picture(const std::string& path)
        : surface(cairo_image_surface_create_from_png(path.c_str())) {}
    ~Picture() { cairo_surface_destroy(surface); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    bool Loaded() const { return cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS; }
    int Width() const { return cairo_image_surface_get_width(surface); }
    int Height() const { return cairo_image_surface_get_height(surface); }
    COLORREF At(int x, int y) const {
        const unsigned char* row =
            cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
        const auto pixel = reinterpret_cast<const std::uint32_t*>(row)[x];
        return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
    }
    // How many pixels of the rectangle have the colour.
    int Count(const RECT& area, COLORREF colour) const {
        int n = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x) n += At(x, y) == colour;
        return n;
    }

private:
    cairo_surface_t* surface;
};

TEST(ScriptRun, ScreenshotShowsTheDialogOverTheDrawing) {
    Folder folder;
    const std::string shot = folder.path + "/shot.png";
    const std::string lost = folder.path + "/missing/shot.png";
    const CadhostResult result =
        RunWithScript("type Parcel\nscreenshot " + shot + "\nscreenshot " + lost + "\nkey Escape\n",
                      {"--screen", "800x600", "-e", "(DIALOG)"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; error: cannot write " + lost + "\n(2 \"\" \"\" T)\n");

    EXPECT_EQ(folder.Read("shot.png").substr(0, 8), "\x89PNG\r\n\x1a\n");
    const Picture picture(shot);
    ASSERT_TRUE(picture.Loaded());
    EXPECT_EQ(picture.Width(), 800);
    EXPECT_EQ(picture.Height(), 600);
    // The drawing's dark background around, the dialog's face in the middle of the screen.
    const COLORREF drawing = picture.At(20, 580);
    EXPECT_EQ(picture.At(780, 60), drawing);
    const RECT middle{350, 250, 450, 350};
    EXPECT_EQ(picture.Count(middle, drawing), 0);
    EXPECT_GT(picture.Count(middle, GetSysColor(COLOR_BTNFACE)), 1000);
}

} // namespace
