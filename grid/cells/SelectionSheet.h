#pragma once
// What the selection store reads of the sheet that owns it: the current cell, which an empty
// selection stands for, and the column count, which whole-row blocks span.

class SelectionSheet {
public:
    virtual int GetCurrentCol() const = 0;
    virtual int GetCurrentRow() const = 0;
    virtual int GetColCount() const = 0;

protected:
    ~SelectionSheet() = default;
};
