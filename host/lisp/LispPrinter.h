#pragma once
// Writes values in LISP notation, so that the reader reads them back: nil, T, integers,
// symbols, lists in parentheses, strings in quotes with \" \\ \n \t \r escapes.
//
// Reals are printed as the host prints them: six significant digits, always with a decimal
// point, so 2.5 is "2.5", 3.0 is "3.0", 1e20 is "1.0e+20" and 1234567.0 is "1.23457e+06".

#include "host/lisp/LispValue.h"

#include <string>

namespace host {

class LispPrinter {
public:
    static std::string Print(const LispValue& value);
    static std::string PrintReal(double value);

private:
    static void Append(const LispValue& value, std::string* out);
    static void AppendString(const std::string& text, std::string* out);
};

} // namespace host
