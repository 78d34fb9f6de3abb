// The KERVGRID module in the host program, as a LISP routine and a person use it: the dialog
// opens on the stock of the call, Cancel asks and returns nil, a call without arguments shows
// the last accepted table, and counts that don't match the layers are refused.

#include "tests/apps/CadhostProcess.h"

#include <gtest/gtest.h>

namespace {

CadhostResult RunModule(const Folder& folder, const std::string& script,
                        std::vector<std::string> forms) {
    std::vector<std::string> arguments{"--module",  KERVGRID_MODULE_PATH,
                                       "--drawing", folder.path + "/plan.dwg",
                                       "--script",  folder.Write("script.txt", script)};
    for (const std::string& form : forms) arguments.insert(arguments.end(), {"-e", form});
    return RunCadhost(CadhostRun{arguments, "", folder.path, {}});
}

} // namespace

TEST(KervModule, TheDialogOpensOnTheCallsStockAndCancelAnswersNil) {
    Folder folder;
    // Cancel, then OK in the question (its default is Cancel).
    const CadhostResult result =
        RunModule(folder, "dump\nbutton 2\nkey shift+Tab\nkey Enter\n",
                  {"(KERVDIALOG '(\"B\" \"A\") '(\"T1\" \"T2\") '(\"12\" \"7\") nil)"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, ";; window 0 #32770 \"Kerv area table\" enabled visible\n"
                          ";; window 1 Button \"&OK\" enabled visible\n"
                          ";; window 2 Button \"&Cancel\" enabled visible\n"
                          ";; window 1000 Static \"Static\" enabled visible\n"
                          ";; window 1001 Static \"\" enabled visible\n"
                          ";; window 1002 Button \"&Save\" enabled visible\n"
                          ";; window 1003 Button \"&Load\" enabled visible\n"
                          ";; window 1004 Button \"&Delete Row \" disabled visible\n"
                          ";; msgbox: Do your really want to cancel dialog?\n"
                          "nil\n");
}

TEST(KervModule, CountsThatDontMatchTheLayersAreRefusedWithoutADialog) {
    Folder folder;
    const CadhostResult result =
        RunModule(folder, "key Enter\n", {"(KERVDIALOG '(\"A\") '(\"T1\") '(\"1\" \"2\") nil)"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, ";; alert: Count of layers not equal count of counts\n");
}

TEST(KervModule, AnAcceptedTableComesBackAndIsShownAgainWithoutArguments) {
    Folder folder;
    // A table saved with type T1 on its "*" row, loaded and accepted with OK.
    folder.Write("plan.tab", "[*]\r\nType=T1\r\nSelectedLayer=1\r\n[Types]\r\nT1=0\r\n");
    const CadhostResult result =
        RunModule(folder,
                  "button 1003\nkey Enter\nbutton 1\n"
                  "button 1\n",
                  {"(KERVDIALOG '(\"A\") '(\"T1\") '(\"4\") nil)", "(KERVDIALOG)"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "((\"*\" \"0\" \"T1\" \"1\"))\n((\"*\" \"0\" \"T1\" \"1\"))\n");
}
