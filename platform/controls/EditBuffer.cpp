#include "platform/controls/EditBuffer.h"

#include <algorithm>

namespace plat {

namespace {

bool Blank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

size_t EditBuffer::Valid(size_t pos) const {
    pos = std::min(pos, text.size());
    if (pos > 0 && pos < text.size() && text[pos - 1] == '\r' && text[pos] == '\n') --pos;
    return pos;
}

void EditBuffer::Reset(std::string newText) {
    text = std::move(newText);
    anchor = caret = 0;
    modified = false;
    ClearUndo();
}

void EditBuffer::Select(size_t newAnchor, size_t newCaret) {
    anchor = Valid(newAnchor);
    caret = Valid(newCaret);
}

void EditBuffer::Replace(std::string_view insert, bool undoable) {
    size_t start = SelStart(), end = SelEnd();
    std::string removed = text.substr(start, end - start);
    text.replace(start, end - start, insert);
    anchor = caret = start + insert.size();
    if (!removed.empty() || !insert.empty()) modified = true;
    if (!undoable) {
        ClearUndo();
        return;
    }
    bool typingOn =
        undo.valid && removed.empty() && !insert.empty() && start == undo.pos + undo.inserted;
    bool deleting = undo.valid && insert.empty() && !removed.empty() && undo.inserted == 0;
    if (typingOn) {
        undo.inserted += insert.size();
    } else if (deleting && end == undo.pos) { // Backspace after Backspace
        undo.pos = start;
        undo.removed = removed + undo.removed;
    } else if (deleting && start == undo.pos) { // Delete after Delete
        undo.removed += removed;
    } else {
        undo = UndoStep{true, start, std::move(removed), insert.size()};
    }
}

void EditBuffer::Undo() {
    if (!undo.valid) return;
    std::string current = text.substr(undo.pos, undo.inserted);
    text.replace(undo.pos, undo.inserted, undo.removed);
    anchor = undo.pos;
    caret = undo.pos + undo.removed.size();
    undo = UndoStep{true, undo.pos, std::move(current), undo.removed.size()};
    modified = true;
}

size_t EditBuffer::Previous(size_t pos) const {
    pos = Valid(pos);
    if (pos >= 2 && text[pos - 2] == '\r' && text[pos - 1] == '\n') return pos - 2;
    return pos > 0 ? pos - 1 : 0;
}

size_t EditBuffer::Next(size_t pos) const {
    pos = Valid(pos);
    if (pos + 1 < text.size() && text[pos] == '\r' && text[pos + 1] == '\n') return pos + 2;
    return std::min(pos + 1, text.size());
}

size_t EditBuffer::WordStart(size_t pos) const {
    pos = Valid(pos);
    while (pos > 0 && Blank(text[pos - 1])) --pos;
    while (pos > 0 && !Blank(text[pos - 1])) --pos;
    return pos;
}

size_t EditBuffer::NextWord(size_t pos) const {
    pos = Valid(pos);
    while (pos < text.size() && !Blank(text[pos])) ++pos;
    while (pos < text.size() && Blank(text[pos])) ++pos;
    return pos;
}

std::pair<size_t, size_t> EditBuffer::WordAt(size_t pos) const {
    pos = Valid(pos);
    if (pos == text.size() && pos > 0) --pos;
    if (text.empty()) return {0, 0};
    bool blank = Blank(text[pos]);
    size_t start = pos, end = pos;
    while (start > 0 && Blank(text[start - 1]) == blank) --start;
    while (end < text.size() && Blank(text[end]) == blank) ++end;
    return {Valid(start), Valid(end)};
}

} // namespace plat
