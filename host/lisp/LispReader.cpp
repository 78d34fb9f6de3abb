#include "host/lisp/LispReader.h"

#include "host/lisp/UpperCase.h"

#include <charconv>
#include <limits>

namespace host {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

bool EndsAtom(char c) {
    return IsBlank(c) || c == '(' || c == ')' || c == '"' || c == '\'' || c == ';';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

enum class NumberShape { None, Integer, Real };

// [+-]? (digits [. digits?] | . digits) ([eE] [+-]? digits)?; a point or an exponent makes a real.
NumberShape ShapeOf(std::string_view token) {
    std::size_t i = 0;
    auto digits = [&] {
        std::size_t start = i;
        while (i < token.size() && IsDigit(token[i])) ++i;
        return i - start;
    };
    if (i < token.size() && (token[i] == '+' || token[i] == '-')) ++i;
    std::size_t mantissa = digits();
    bool real = false;
    if (i < token.size() && token[i] == '.') {
        ++i, real = true;
        mantissa += digits();
    }
    if (mantissa == 0) return NumberShape::None;
    if (i < token.size() && (token[i] == 'e' || token[i] == 'E')) {
        ++i, real = true;
        if (i < token.size() && (token[i] == '+' || token[i] == '-')) ++i;
        if (digits() == 0) return NumberShape::None;
    }
    if (i != token.size()) return NumberShape::None;
    return real ? NumberShape::Real : NumberShape::Integer;
}

bool ParseReal(std::string_view token, double* value) {
    if (token.front() == '+') token.remove_prefix(1);
    auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), *value);
    return error == std::errc() && end == token.data() + token.size();
}

} // namespace

ReadStatus LispReader::Next(LispValue* form) {
    SkipBlanks();
    if (AtEnd()) return ReadStatus::End;
    return ReadForm(form, 0);
}

ReadStatus LispReader::ReadForm(LispValue* form, int depth) {
    switch (Peek()) {
    case '(': return ReadList(form, depth);
    case ')': return Report(ReadStatus::Error, position, "unexpected ')'");
    case '"': return ReadString(form);
    case '\'': return ReadQuoted(form, depth);
    default: return ReadAtom(form);
    }
}

ReadStatus LispReader::ReadList(LispValue* form, int depth) {
    const ReadPosition open = position;
    if (depth >= kMaxDepth)
        return Report(ReadStatus::Error, open, "lists nested deeper than 1000 levels");
    Advance();
    std::vector<LispValue> items;
    for (;;) {
        SkipBlanks();
        if (AtEnd()) return Report(ReadStatus::Incomplete, open, "'(' is not closed");
        if (Peek() == ')') break;
        LispValue item;
        ReadStatus status = ReadForm(&item, depth + 1);
        if (status != ReadStatus::Form) return status;
        items.push_back(std::move(item));
    }
    Advance();
    *form = LispValue::List(std::move(items));
    return ReadStatus::Form;
}

ReadStatus LispReader::ReadQuoted(LispValue* form, int depth) {
    const ReadPosition quote = position;
    if (depth >= kMaxDepth)
        return Report(ReadStatus::Error, quote, "quotes nested deeper than 1000 levels");
    Advance();
    SkipBlanks();
    if (AtEnd()) return Report(ReadStatus::Incomplete, quote, "nothing follows the quote");
    LispValue quoted;
    ReadStatus status = ReadForm(&quoted, depth + 1);
    if (status != ReadStatus::Form) return status;
    *form = LispValue::List({LispValue::Symbol("QUOTE"), std::move(quoted)});
    return ReadStatus::Form;
}

ReadStatus LispReader::ReadString(LispValue* form) {
    const ReadPosition open = position;
    Advance();
    std::string value;
    for (;;) {
        if (AtEnd()) return Report(ReadStatus::Incomplete, open, "string is not closed");
        const char c = Peek();
        if (c == '"') break;
        if (c == '\0') return Report(ReadStatus::Error, position, "NUL character in a string");
        if (c != '\\') {
            value += c;
            Advance();
            continue;
        }
        const ReadPosition escape = position;
        Advance();
        if (AtEnd()) return Report(ReadStatus::Incomplete, open, "string is not closed");
        switch (Peek()) {
        case '"': value += '"'; break;
        case '\\': value += '\\'; break;
        case 'n': value += '\n'; break;
        case 't': value += '\t'; break;
        case 'r': value += '\r'; break;
        default:
            return Report(ReadStatus::Error, escape,
                          std::string("unknown escape \\") + (Peek() ? Peek() : '0'));
        }
        Advance();
    }
    Advance();
    *form = LispValue::String(std::move(value));
    return ReadStatus::Form;
}

ReadStatus LispReader::ReadAtom(LispValue* form) {
    const ReadPosition start = position;
    const std::size_t begin = offset;
    while (!AtEnd() && !EndsAtom(Peek())) {
        if (Peek() == '\0') return Report(ReadStatus::Error, position, "NUL character");
        Advance();
    }
    const std::string_view token = text.substr(begin, offset - begin);
    switch (ShapeOf(token)) {
    case NumberShape::Integer: {
        std::int64_t value = 0;
        std::string_view digits = token.front() == '+' ? token.substr(1) : token;
        auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error == std::errc() && value >= std::numeric_limits<std::int32_t>::min() &&
            value <= std::numeric_limits<std::int32_t>::max()) {
            *form = LispValue::Integer(static_cast<std::int32_t>(value));
            return ReadStatus::Form;
        }
        // An integer beyond 32 bits is read as a real, as the host's LISP does.
        [[fallthrough]];
    }
    case NumberShape::Real: {
        double value = 0;
        if (!ParseReal(token, &value))
            return Report(ReadStatus::Error, start, "number out of range");
        *form = LispValue::Real(value);
        return ReadStatus::Form;
    }
    case NumberShape::None: break;
    }
    if (token == ".") return Report(ReadStatus::Error, start, "dotted pairs are not supported");
    std::string name = UpperCase(token);
    if (name == "NIL")
        *form = LispValue::Nil();
    else if (name == "T")
        *form = LispValue::T();
    else
        *form = LispValue::Symbol(std::move(name));
    return ReadStatus::Form;
}

void LispReader::SkipBlanks() {
    while (!AtEnd()) {
        if (Peek() == ';') {
            while (!AtEnd() && Peek() != '\n') Advance();
        } else if (IsBlank(Peek())) {
            Advance();
        } else {
            break;
        }
    }
}

void LispReader::Advance() {
    if (text[offset++] == '\n') {
        ++position.line;
        position.column = 1;
    } else {
        ++position.column;
    }
}

ReadStatus LispReader::Report(ReadStatus status, ReadPosition at, std::string message) {
    problemAt = at;
    problem = std::move(message);
    return status;
}

} // namespace host
