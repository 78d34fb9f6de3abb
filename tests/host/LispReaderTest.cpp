#include "host/lisp/LispReader.h"

#include "host/lisp/LispPrinter.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using host::LispReader;
using host::LispValue;
using host::ReadStatus;

// Every form of `text`, printed and joined by " | "; the reader must end cleanly.
std::string ReadAll(const std::string& text) {
    LispReader reader(text);
    LispValue form;
    std::string printed;
    ReadStatus status;
    while ((status = reader.Next(&form)) == ReadStatus::Form) {
        if (!printed.empty()) printed += " | ";
        printed += host::LispPrinter::Print(form);
    }
    EXPECT_EQ(status, ReadStatus::End) << text << ": " << reader.Problem();
    return printed;
}

TEST(LispReader, ReadsEachKindOfForm) {
    const struct {
        const char* text;
        const char* printed;
    } cases[] = {
        {R"("a")", R"("a")"},
        {R"("q\"b\\s\nn\tt\rr")", R"("q\"b\\s\nn\tt\rr")"},
        {"42 -7 +7 0", "42 | -7 | 7 | 0"},
        {"2147483647 -2147483648", "2147483647 | -2147483648"},
        {"2147483648", "2.14748e+09"}, // past 32 bits an integer is read as a real
        {"2.5 -.5 5. 1e3 1.5E-2", "2.5 | -0.5 | 5.0 | 1000.0 | 0.015"},
        {"abc Foo-Bar 1+ 1a", "ABC | FOO-BAR | 1+ | 1A"},
        {"nil NIL t T () ( )", "nil | nil | T | T | nil | nil"},
        {R"((ECHO "a" (quote ("b" nil)) 3 2.5))", R"((ECHO "a" (QUOTE ("b" nil)) 3 2.5))"},
        {"'x '(1 2) ''y", "(QUOTE X) | (QUOTE (1 2)) | (QUOTE (QUOTE Y))"},
        {"(a(b)c)\"d\"e", "(A (B) C) | \"d\" | E"},
        {"; comment\n(a ; inside\n b) ; end", "(A B)"},
        {"  \t\r\n", ""},
    };
    for (const auto& c : cases) EXPECT_EQ(ReadAll(c.text), c.printed) << c.text;
}

TEST(LispReader, PrintedFormsReadBackTheSame) {
    const char* texts[] = {
        R"((("A" "12" "T1" "1") ("*" "37" "T2" "13")))",
        R"(("" "\"" "\\" "\n" (nil T) -32769 70000 2.5 -1.0e+20 SYM))",
        "\"bytes \xE4\xF6\xFC\x01 stay\"",
    };
    for (const char* text : texts) {
        LispReader reader(text);
        LispValue first;
        ASSERT_EQ(reader.Next(&first), ReadStatus::Form) << text;
        const std::string printed = host::LispPrinter::Print(first);
        LispReader again(printed);
        LispValue second;
        ASSERT_EQ(again.Next(&second), ReadStatus::Form) << printed;
        EXPECT_EQ(first, second) << printed;
        EXPECT_EQ(host::LispPrinter::Print(second), printed);
    }
}

TEST(LispReader, ReportsWhereTextIsWrongOrUnfinished) {
    const struct {
        const char* text;
        ReadStatus status;
        int line, column;
        const char* problem;
    } cases[] = {
        {")", ReadStatus::Error, 1, 1, "unexpected ')'"},
        {"(a)\n  (b))", ReadStatus::Error, 2, 6, "unexpected ')'"},
        {"(a\n (b)", ReadStatus::Incomplete, 1, 1, "'(' is not closed"},
        {"x \"abc", ReadStatus::Incomplete, 1, 3, "string is not closed"},
        {"\"ab\\", ReadStatus::Incomplete, 1, 1, "string is not closed"},
        {"'", ReadStatus::Incomplete, 1, 1, "nothing follows the quote"},
        {"\n  \"a\\qb\"", ReadStatus::Error, 2, 5, "unknown escape \\q"},
        {"(a . b)", ReadStatus::Error, 1, 4, "dotted pairs are not supported"},
        {"1e999", ReadStatus::Error, 1, 1, "number out of range"},
    };
    for (const auto& c : cases) {
        LispReader reader(c.text);
        LispValue form;
        ReadStatus status;
        while ((status = reader.Next(&form)) == ReadStatus::Form) {
        }
        EXPECT_EQ(status, c.status) << c.text;
        EXPECT_EQ(reader.ProblemPosition().line, c.line) << c.text;
        EXPECT_EQ(reader.ProblemPosition().column, c.column) << c.text;
        EXPECT_EQ(reader.Problem(), c.problem) << c.text;
    }
}

TEST(LispReader, NulIsRefusedInStringsAndAtoms) {
    for (const std::string& text : {std::string("\"a\0b\"", 5), std::string("ab\0c", 4)}) {
        LispReader reader(text);
        LispValue form;
        EXPECT_EQ(reader.Next(&form), ReadStatus::Error);
        EXPECT_EQ(reader.ProblemPosition().column, 3);
    }
}

TEST(LispReader, NestingIsBounded) {
    const int limit = LispReader::kMaxDepth;
    const std::string deepest = std::string(limit, '(') + std::string(limit, ')');
    LispReader fits(deepest);
    LispValue form;
    EXPECT_EQ(fits.Next(&form), ReadStatus::Form);

    const std::string tooDeep = "(" + deepest + ")";
    LispReader refused(tooDeep);
    EXPECT_EQ(refused.Next(&form), ReadStatus::Error);
    EXPECT_EQ(refused.ProblemPosition().column, limit + 1);

    const std::string manyQuotes = std::string(limit + 1, '\'') + "x";
    LispReader quotes(manyQuotes);
    EXPECT_EQ(quotes.Next(&form), ReadStatus::Error);
}

TEST(LispReader, OffsetIsTheEndOfTheLastForm) {
    LispReader reader("(a) (b");
    LispValue form;
    ASSERT_EQ(reader.Next(&form), ReadStatus::Form);
    EXPECT_EQ(reader.Offset(), 3u);
    EXPECT_EQ(reader.Next(&form), ReadStatus::Incomplete);
}

} // namespace
