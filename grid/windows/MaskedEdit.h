#pragma once
// The grid's second editor: an edit field that holds each typed character against a position
// of an input mask, taken from the edited cell at each focus. A client makes one as a child of
// its grid and offers it from QueryEditStart. No prompt characters are shown: the field holds
// what was typed and the literals that came with it. Unlike the built-in editor, Tab does
// nothing here and Up and Down always leave the cell.
//
// Mask letters: 0 digit; 9 digit or blank; # digit, blank, + or -; L letter; ? letter or
// blank; A letter or digit; a letter, digit or blank; & and C any printable character. Any
// other character, and any character after a backslash, is a literal.

#include "grid/windows/CellEditor.h"

#include <string>

class MaskedEdit : public CellEditor {
public:
    // A null or empty mask turns the mask off. Otherwise the text limit becomes the mask's
    // length (a backslash counts) and the present text is rewritten under the mask.
    int SetMask(const char* newMask);
    // Keeps of `text` what the mask accepts, with the literals between; 1 without a mask.
    int ApplyMask(std::string& text) const;
    // The decision on one typed character: 1 accept, 0 refuse. Deletes the selection first and
    // types a literal that stands at the caret.
    int CheckChar(UINT* character);

protected:
    int OnCreate(CREATESTRUCT* create);
    void OnSetFocus(CWnd* old);
    void OnKillFocus(CWnd* next);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    void OnChar(UINT character, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr char LiteralMark = 8;

    // The control itself is typing or rewriting, so WM_CHAR doesn't check.
    int inMaskWork = 0;
    int maskActive = 0;
    const char* maskLetters = "09#L?Aa&C";
    std::string mask;
    // Per position: its mask letter, or LiteralMark for a literal.
    std::string maskTemplate;
    // Per position: its literal, or LiteralMark for an entry position.
    std::string maskLiterals;
};
