// LISP values travel to a module as a chain and come back through acedRetList: the echo
// module's ECHO returns its argument chain as it got it, and CODES the restype of each node.

#include "tests/apps/CadhostProcess.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* form;
    const char* printed;
};

void ExpectEach(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        const CadhostResult result = RunWithEcho({"-e", c.form});
        EXPECT_EQ(result.status, 0) << c.form << "\n" << result.err;
        EXPECT_EQ(result.out, std::string(c.printed) + "\n") << c.form;
    }
}

TEST(EchoMapping, ValuesComeBackAsTheyWent) {
    ExpectEach({
        {R"((ECHO "a" (quote ("b" nil)) 3 2.5))", R"(("a" ("b" nil) 3 2.5))"},
        {R"((ECHO "say \"hi\"" "back\\slash" "two\nlines" "tab\there"))",
         R"(("say \"hi\"" "back\\slash" "two\nlines" "tab\there"))"},
        {"(ECHO nil T '() 'nil)", "(nil T nil nil)"},
        {"(ECHO 0 -1 32767 -32768 32768 2147483647 -2147483648)",
         "(0 -1 32767 -32768 32768 2147483647 -2147483648)"},
        {"(ECHO 1.0 -0.25 1e20 3.14159265 100000.0)", "(1.0 -0.25 1.0e+20 3.14159 100000.0)"},
        {R"((ECHO '(("A" "12" "T1" "1") ("*" "37" "T2" "13")) '((((nil))))))",
         R"(((("A" "12" "T1" "1") ("*" "37" "T2" "13")) ((((nil))))))"},
        {"(echo \"bytes \xE4\xF6\xFC\")", "(\"bytes \xE4\xF6\xFC\")"},
    });
}

TEST(EchoMapping, ValuesBecomeTheHostsCodes) {
    ExpectEach({
        {R"((CODES "a" '("b" nil) T 2.5 7 70000))",
         "(5005 5016 5005 5019 5017 5021 5001 5003 5010)"},
        {"(CODES nil)", "(5019)"},
        {"(CODES '())", "(5019)"},
        {"(CODES)", R"("no chain")"}, // a call without arguments gets no chain at all
    });
}

TEST(EchoMapping, OneCompleteListReturnsAsItselfOtherChainsAsTheListOfTheirElements) {
    ExpectEach({
        {R"((ECHO '("A" "12" "T1" "1")))", R"(("A" "12" "T1" "1"))"},
        {R"((ECHO '(("A" "12" "T1" "1"))))", R"((("A" "12" "T1" "1")))"},
        {R"((ECHO '("A") '("B")))", R"((("A") ("B")))"},
        {R"((ECHO "A"))", R"(("A"))"},
        {R"((ECHO '("A") "B"))", R"((("A") "B"))"},
        {"(ECHO)", "nil"},
        {"(ECHO nil)", "(nil)"},
    });
}

TEST(EchoMapping, SymbolsCannotBePassed) {
    const CadhostResult result = RunWithEcho({"-e", "(ECHO 'A)", "-e", "(ECHO '(1 B))"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, ";; error: bad argument type: A\n;; error: bad argument type: B\n");
}

} // namespace
