#include "host/lisp/LispEvaluator.h"

#include "host/ads/AdsLisp.h"
#include "host/lisp/LispPrinter.h"
#include "host/lisp/LispReader.h"
#include "tests/host/TestModule.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

class LispEvaluatorTest : public ::testing::Test {
protected:
    void SetUp() override {
        module.Define("ECHO", 1, [this] {
            ++calls;
            acedRetList(acedGetArgs());
        });
        module.Define("VOID", 2, [] { acedRetVoid(); });
        module.Start(session);
    }

    // Evaluates every form of `text` in turn; the outcomes, printed, joined by " | ".
    std::string Run(const std::string& text) {
        host::LispReader reader(text);
        host::LispValue form;
        std::string out;
        while (reader.Next(&form) == host::ReadStatus::Form) {
            const host::LispOutcome outcome = evaluator.Evaluate(form);
            if (!out.empty()) out += " | ";
            if (outcome.kind == host::LispOutcome::Kind::Error)
                out += "error: " + outcome.error;
            else if (outcome.kind == host::LispOutcome::Kind::NoValue)
                out += "<no value>";
            else
                out += host::LispPrinter::Print(outcome.value);
        }
        return out;
    }

    TestModule module; // outlives the host, which talks to it while it shuts down
    std::ostringstream transcript;
    host::EventLog events{transcript};
    host::Host session{events, *host::Drawing::At("")};
    host::LispEvaluator evaluator{session};
    int calls = 0;
};

TEST_F(LispEvaluatorTest, BuiltInsAndAtoms) {
    const struct {
        const char* text;
        const char* result;
    } cases[] = {
        {R"(1 2.5 "s" nil T)", R"(1 | 2.5 | "s" | nil | T)"},
        {"unset", "nil"},
        {"'x (quote (a \"b\"))", R"(X | (A "b"))"},
        {"(list 1 (list) (list \"a\" 'b))", R"((1 nil ("a" B)))"},
        {"(setq a 1 b (list a 2)) a b", "(1 2) | 1 | (1 2)"},
        {"(setq) (progn) (progn 1 2 3)", "nil | nil | 3"},
        {"()", "nil"},
    };
    for (const auto& c : cases) EXPECT_EQ(Run(c.text), c.result) << c.text;
}

TEST_F(LispEvaluatorTest, ModuleFunctionsGetEvaluatedArguments) {
    EXPECT_EQ(Run(R"((setq s "x") (echo s (list 1 s) 'q))"),
              R"("x" | error: bad argument type: Q)");
    EXPECT_EQ(Run(R"((ECHO s (list 1 s)))"), R"(("x" (1 "x")))");
    EXPECT_EQ(Run("(ECHO (VOID)) (VOID) (progn (VOID)) (setq v (VOID)) v"),
              "(nil) | <no value> | <no value> | nil | nil");
}

TEST_F(LispEvaluatorTest, TheFirstErrorEndsTheForm) {
    const struct {
        const char* text;
        const char* result;
    } cases[] = {
        {"(nosuch 1)", "error: no function definition: NOSUCH"},
        {"(1 2)", "error: bad function: 1"},
        {"((quote echo) 1)", "error: bad function: (QUOTE ECHO)"},
        {"(quote)", "error: too few arguments"},
        {"(quote 1 2)", "error: too many arguments"},
        {"(setq a)", "error: too few arguments"},
        {"(setq 1 2)", "error: bad argument type: 1"},
        {"(setq T 2)", "error: bad argument type: T"},
        {"(ECHO 1 (nosuch) (ECHO 2))", "error: no function definition: NOSUCH"},
        {"(progn (ECHO 3) (nosuch) (ECHO 4))", "error: no function definition: NOSUCH"},
    };
    for (const auto& c : cases) EXPECT_EQ(Run(c.text), c.result) << c.text;
    EXPECT_EQ(calls, 1); // only (ECHO 3) ran
}

} // namespace
