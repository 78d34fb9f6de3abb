#pragma once
// What evaluating a form or calling a function gave: a value, no value at all (a function that
// returned with acedRetVoid), or an error message that ends the form.

#include "host/lisp/LispValue.h"

#include <string>

namespace host {

struct LispOutcome {
    enum class Kind { Value, NoValue, Error };

    Kind kind = Kind::Value;
    LispValue value; // nil unless kind is Value, so a call without a value passes on nil
    std::string error;

    static LispOutcome Of(LispValue value) { return {Kind::Value, std::move(value), {}}; }
    static LispOutcome None() { return {Kind::NoValue, {}, {}}; }
    static LispOutcome Failure(std::string message) {
        return {Kind::Error, {}, std::move(message)};
    }

    bool Failed() const { return kind == Kind::Error; }
};

} // namespace host
