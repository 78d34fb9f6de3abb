#pragma once
// The text of an edit control with its selection and its one level of undo, without any
// window. The selection runs from the anchor (where it started) to the caret (where the
// keyboard and the mouse move); a line break "\r\n" counts as one step and nothing stops
// between its two bytes.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace plat {

class EditBuffer {
public:
    const std::string& Text() const { return text; }
    size_t Size() const { return text.size(); }
    size_t Anchor() const { return anchor; }
    size_t Caret() const { return caret; }
    size_t SelStart() const { return anchor < caret ? anchor : caret; }
    size_t SelEnd() const { return anchor < caret ? caret : anchor; }
    bool HasSelection() const { return anchor != caret; }
    std::string Selected() const { return text.substr(SelStart(), SelEnd() - SelStart()); }

    // Takes a new text: the caret goes to 0, undo and the modified flag are cleared.
    void Reset(std::string newText);
    void Select(size_t newAnchor, size_t newCaret);
    // Replaces the selection; the caret ends behind the inserted text. Typing in a row and
    // deleting in a row become one step of undo.
    void Replace(std::string_view insert, bool undoable);

    bool CanUndo() const { return undo.valid; }
    // Puts back what the last undoable change replaced and selects it; undoing again redoes.
    void Undo();
    void ClearUndo() { undo = UndoStep{}; }
    bool modified = false;

    // Neighbouring places the caret may take.
    size_t Previous(size_t pos) const;
    size_t Next(size_t pos) const;
    size_t WordStart(size_t pos) const; // the start of the word before pos
    size_t NextWord(size_t pos) const;  // the start of the word after pos
    // The word, or the run of blanks, that the character at pos belongs to.
    std::pair<size_t, size_t> WordAt(size_t pos) const;

private:
    size_t Valid(size_t pos) const;

    struct UndoStep {
        bool valid = false;
        size_t pos = 0;
        std::string removed;
        size_t inserted = 0;
    };
    std::string text;
    size_t anchor = 0;
    size_t caret = 0;
    UndoStep undo;
};

} // namespace plat
