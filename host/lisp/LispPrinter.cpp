#include "host/lisp/LispPrinter.h"

#include <charconv>

namespace host {

std::string LispPrinter::Print(const LispValue& value) {
    std::string out;
    Append(value, &out);
    return out;
}

std::string LispPrinter::PrintReal(double value) {
    char buffer[32];
    auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
    std::string text(buffer, result.ptr);
    if (text.find_first_of(".ni") != std::string::npos) return text; // has a point, inf or nan
    const std::size_t exponent = text.find('e');
    text.insert(exponent == std::string::npos ? text.size() : exponent, ".0");
    return text;
}

void LispPrinter::Append(const LispValue& value, std::string* out) {
    switch (value.Type()) {
    case LispType::Nil: *out += "nil"; break;
    case LispType::T: *out += 'T'; break;
    case LispType::Integer: *out += std::to_string(value.IntegerValue()); break;
    case LispType::Real: *out += PrintReal(value.RealValue()); break;
    case LispType::String: AppendString(value.Text(), out); break;
    case LispType::Symbol: *out += value.Text(); break;
    case LispType::List:
        *out += '(';
        for (std::size_t i = 0; i < value.Items().size(); ++i) {
            if (i > 0) *out += ' ';
            Append(value.Items()[i], out);
        }
        *out += ')';
        break;
    }
}

void LispPrinter::AppendString(const std::string& text, std::string* out) {
    *out += '"';
    for (char c : text) {
        switch (c) {
        case '"': *out += "\\\""; break;
        case '\\': *out += "\\\\"; break;
        case '\n': *out += "\\n"; break;
        case '\t': *out += "\\t"; break;
        case '\r': *out += "\\r"; break;
        default: *out += c;
        }
    }
    *out += '"';
}

} // namespace host
