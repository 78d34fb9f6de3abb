// cadhost end to end with the echo module: the forms, the transcript, the exit status.

#include "tests/apps/CadhostProcess.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(CadhostRun, FormsOfAllSourcesRunInOrderAndShareVariables) {
    Folder folder;
    const std::string file = folder.Write("forms.lsp", "; a file\n(ECHO a)\n(setq a 2) a\n");
    const CadhostResult result =
        RunWithEcho({"-e", "(ECHO 1) (ECHO 2)", "-e", "(setq a \"x\")", file, "-e", "a"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "(1)\n(2)\n\"x\"\n(\"x\")\n2\n2\n2\n");
    EXPECT_EQ(result.err, "");
}

TEST(CadhostRun, CallsWithoutAValuePrintNothing) {
    const CadhostResult result =
        RunWithScript("key Enter\n", {"-e", "(NOVALUE)", "-e", "(NILVALUE)", "-e", "(UNSET)", "-e",
                                      "(ALERT \"x\")"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "nil\nnil\n;; alert: x\n");
}

TEST(CadhostRun, EventsPrintAsTheyHappenOneLineEach) {
    const CadhostResult result = RunWithScript(
        "key Enter\n",
        {"-e", R"((progn (ALERT "Count of layers\nnot equal") (FAIL "\n Error") (ECHO 1)))"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; alert: Count of layers\\nnot equal\n;; fail: \\n Error\n(1)\n");
}

TEST(CadhostRun, UnknownFunctionIsAnErrorOfItsFormOnly) {
    const CadhostResult result = RunWithEcho({"-e", "(nosuch 1) (ECHO 2)"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; error: no function definition: NOSUCH\n(2)\n");
}

TEST(CadhostRun, UnreadableLispStopsBeforeAnythingRunsAndSaysWhere) {
    Folder folder;
    const std::string file = folder.Write("bad.lsp", "(ECHO 1)\n\n  (ECHO \"a\\q\")\n");
    const struct {
        std::vector<std::string> arguments;
        std::string message;
    } cases[] = {
        {{"-e", "(ECHO 1)", "-e", "(ECHO 2))"},
         "unreadable LISP in -e form 2, line 1, column 9: unexpected ')'"},
        {{"-e", "(ECHO 1)", file},
         "unreadable LISP in " + file + ", line 3, column 11: unknown escape \\q"},
        {{"-e", "(ECHO\n  (list \"a"},
         "unreadable LISP in -e form 1, line 2, column 9: string is not closed"},
        {{"-e", "(ECHO (list 1)"},
         "unreadable LISP in -e form 1, line 1, column 1: '(' is not closed"},
    };
    for (const auto& c : cases) {
        const CadhostResult result = RunWithEcho(c.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, ";; error: " + c.message + "\n");
    }
}

TEST(CadhostRun, StandardInputWithoutATerminalIsReadWithoutPrompt) {
    CadhostResult result =
        RunCadhost({{"--module", ECHO_MODULE_PATH}, "(ECHO 1)\n(ECHO\n 2)\n", "", {}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "(1)\n(2)\n");

    result = RunCadhost({{"--module", ECHO_MODULE_PATH}, "(ECHO 1)\n)", "", {}});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out,
              ";; error: unreadable LISP in standard input, line 2, column 1: unexpected ')'\n");
}

TEST(CadhostRun, DrawingVariablesComeFromTheDrawingOption) {
    Folder folder;
    const std::string forms = R"((GETVAR "DWGPREFIX") (GETVAR "DWGNAME") (GETVAR "NOSUCH"))";
    CadhostResult result =
        RunCadhost({{"--module", ECHO_MODULE_PATH, "-e", forms}, "", folder.path, {}});
    EXPECT_EQ(result.out, "\"" + folder.path + "/\"\n\"drawing.dwg\"\n" + "nil\n");

    result =
        RunCadhost({{"--module", ECHO_MODULE_PATH, "--drawing", "plans/../lots/a.dwg", "-e", forms},
                    "",
                    folder.path,
                    {}});
    EXPECT_EQ(result.out, "\"" + folder.path + "/lots/\"\n\"a.dwg\"\nnil\n");
}

TEST(CadhostRun, ModuleHearsTheMessagesOfAHost) {
    Folder folder;
    const std::string log = folder.path + "/messages";
    const CadhostResult result =
        RunCadhost({{"--module", ECHO_MODULE_PATH, "-e", "(ECHO) (nosuch) (NOVALUE)"},
                    "",
                    "",
                    {{"ECHO_MODULE_LOG", log}}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.Read("messages"),
              "init\nload drawing\ninvoke\ninvoke\nunload drawing\nunload\n");
}

TEST(CadhostRun, ModulesThatCannotBeLoadedAreNamed) {
    const struct {
        std::string module;
        std::string message;
    } cases[] = {
        {"/no/such/module.so", "cadhost: module /no/such/module.so does not exist\n"},
        {NO_ENTRY_MODULE_PATH,
         std::string("cadhost: module ") + NO_ENTRY_MODULE_PATH + " exports no acrxEntryPoint\n"},
    };
    for (const auto& c : cases) {
        const CadhostResult result =
            RunCadhost({{"--module", c.module, "-e", "(ECHO 1)"}, "", "", {}});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, c.message);
        EXPECT_EQ(result.out, "");
    }
}

TEST(CadhostRun, BadOptionsStopBeforeTheModuleIsLoaded) {
    Folder folder;
    const std::string log = folder.path + "/messages";
    // The reasons themselves are the command line's tests; here: refused early, status 2.
    const std::vector<std::vector<std::string>> cases = {
        {"--bogus"}, {"--screen", "0x600"}, {"missing.lsp"}, {"--drawing", "folder/"}};
    for (const auto& arguments : cases) {
        std::vector<std::string> all{"--module", ECHO_MODULE_PATH};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const CadhostResult result = RunCadhost({all, "", "", {{"ECHO_MODULE_LOG", log}}});
        EXPECT_EQ(result.status, 2) << arguments.front();
        EXPECT_EQ(result.err.rfind("cadhost: ", 0), 0u) << result.err;
        EXPECT_EQ(result.out, "");
    }
    EXPECT_FALSE(fs::exists(log));
}

TEST(CadhostRun, HelpPrintsTheUsage) {
    const CadhostResult result = RunCadhost({{"--help"}, "", "", {}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out.rfind("usage: cadhost [--module PATH]", 0), 0u);
}

} // namespace
