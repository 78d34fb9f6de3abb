#pragma once
// A LISP value of the host: nil, T, a 32-bit integer, a real, a string, a symbol or a list.
// The empty list is nil, so a value of type List always has elements. Symbol names are kept
// in upper case, as the reader makes them.

#include <cstdint>
#include <string>
#include <vector>

namespace host {

enum class LispType { Nil, T, Integer, Real, String, Symbol, List };

class LispValue {
public:
    LispValue() = default; // nil

    static LispValue Nil() { return LispValue(); }
    static LispValue T();
    static LispValue Integer(std::int32_t value);
    static LispValue Real(double value);
    static LispValue String(std::string text);
    static LispValue Symbol(std::string name);
    static LispValue List(std::vector<LispValue> items);

    LispType Type() const { return type; }
    std::int32_t IntegerValue() const { return integer; }
    double RealValue() const { return real; }
    // The characters of a string, or the name of a symbol.
    const std::string& Text() const { return text; }
    const std::vector<LispValue>& Items() const { return items; }

    bool operator==(const LispValue& other) const = default;

private:
    LispType type = LispType::Nil;
    std::int32_t integer = 0;
    double real = 0;
    std::string text;
    std::vector<LispValue> items;
};

} // namespace host
