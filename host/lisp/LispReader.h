#pragma once
// Reads LISP text into values: strings with \" \\ \n \t \r escapes, integers, reals, symbols
// (upper-cased), nil, T, lists, 'x for (quote x), and comments from ";" to the end of a line.
// Text that ends inside a form is Incomplete rather than wrong, so that a prompt can ask for
// the next line; a caller with no more lines to come reports it like an error.

#include "host/lisp/LispValue.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

struct ReadPosition {
    int line = 1;
    int column = 1; // in bytes, from 1
};

enum class ReadStatus { Form, End, Incomplete, Error };

class LispReader {
public:
    // Nesting beyond this is refused, so that no later walk over a value runs out of stack.
    static constexpr int kMaxDepth = 1000;

    // The text is not copied: it must outlive the reader.
    explicit LispReader(std::string_view text) : text(text) {}

    // Reads the next form. After Error or Incomplete, ProblemPosition and Problem say where and
    // what, and the reader stays where it stopped.
    ReadStatus Next(LispValue* form);

    // Bytes consumed so far: the end of the last form read.
    std::size_t Offset() const { return offset; }
    ReadPosition ProblemPosition() const { return problemAt; }
    const std::string& Problem() const { return problem; }

private:
    ReadStatus ReadForm(LispValue* form, int depth);
    ReadStatus ReadList(LispValue* form, int depth);
    ReadStatus ReadQuoted(LispValue* form, int depth);
    ReadStatus ReadString(LispValue* form);
    ReadStatus ReadAtom(LispValue* form);
    void SkipBlanks();
    bool AtEnd() const { return offset >= text.size(); }
    char Peek() const { return text[offset]; }
    void Advance();
    ReadStatus Report(ReadStatus status, ReadPosition at, std::string message);

    std::string_view text;
    std::size_t offset = 0;
    ReadPosition position;
    ReadPosition problemAt;
    std::string problem;
};

} // namespace host
