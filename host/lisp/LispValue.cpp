#include "host/lisp/LispValue.h"

namespace host {

LispValue LispValue::T() {
    LispValue v;
    v.type = LispType::T;
    return v;
}

LispValue LispValue::Integer(std::int32_t value) {
    LispValue v;
    v.type = LispType::Integer;
    v.integer = value;
    return v;
}

LispValue LispValue::Real(double value) {
    LispValue v;
    v.type = LispType::Real;
    v.real = value;
    return v;
}

LispValue LispValue::String(std::string text) {
    LispValue v;
    v.type = LispType::String;
    v.text = std::move(text);
    return v;
}

LispValue LispValue::Symbol(std::string name) {
    LispValue v;
    v.type = LispType::Symbol;
    v.text = std::move(name);
    return v;
}

LispValue LispValue::List(std::vector<LispValue> items) {
    LispValue v;
    if (items.empty()) return v;
    v.type = LispType::List;
    v.items = std::move(items);
    return v;
}

} // namespace host
