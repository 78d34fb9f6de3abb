#include "host/lisp/LispPrinter.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using host::LispPrinter;
using host::LispValue;

TEST(LispPrinter, RealsHaveSixDigitsAndAlwaysAPoint) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {2.5, "2.5"},      {3.0, "3.0"},           {-0.5, "-0.5"},
        {0.0, "0.0"},      {100000.0, "100000.0"}, {1234567.0, "1.23457e+06"},
        {1e20, "1.0e+20"}, {1e-7, "1.0e-07"},      {3.14159265, "3.14159"},
        {0.1, "0.1"},      {-2e6, "-2.0e+06"},
    };
    for (const auto& c : cases) EXPECT_EQ(LispPrinter::PrintReal(c.value), c.text) << c.value;
}

TEST(LispPrinter, NonFiniteRealsStayAsTheyAre) {
    EXPECT_EQ(LispPrinter::PrintReal(INFINITY), "inf");
    EXPECT_EQ(LispPrinter::PrintReal(-INFINITY), "-inf");
}

TEST(LispPrinter, StringsAreEscaped) {
    EXPECT_EQ(LispPrinter::Print(LispValue::String("say \"hi\"\\\n\t\r")),
              R"("say \"hi\"\\\n\t\r")");
    EXPECT_EQ(LispPrinter::Print(LispValue::String("")), R"("")");
    EXPECT_EQ(LispPrinter::Print(LispValue::String("Gr\xFC\xDF")), "\"Gr\xFC\xDF\"");
}

} // namespace
