#pragma once
// Which cells a repaint is to touch, told in column and row numbers, ranges inclusive at both
// ends. The view, the headings and the selection store queue ranges here; the next paint pass
// of the window draws the cells that some range holds and then clears the hint. The bounding
// box of all ranges lets a pass reject most cells without looking at the list.
//
// During a pass the done list records the joined blocks already drawn (by their main cell),
// so that a block is drawn once, whichever of its cells the walk meets first.

#include <vector>

class DrawHint {
public:
    struct Range {
        int startCol, startRow, endCol, endRow;
    };
    struct Done {
        int col, row;
    };

    void AddCell(int col, int row) { AddRange(col, row, col, row); }
    // Appends a range; the values are stored as given, with no check of their order.
    void AddRange(int startCol, int startRow, int endCol, int endRow);
    // Grows the first range over this one, so that the list doesn't get longer.
    void MergeRange(int startCol, int startRow, int endCol, int endRow);
    bool Contains(int col, int row) const;
    void MarkDone(int col, int row) { done.push_back({col, row}); }
    bool IsDone(int col, int row) const;
    void Clear();

    const std::vector<Range>& Ranges() const { return ranges; }
    // The bounding box; meaningful only while some range is queued.
    Range Bounds() const { return {minCol, minRow, maxCol, maxRow}; }

private:
    void Grow(int startCol, int startRow, int endCol, int endRow);

    std::vector<Range> ranges;
    std::vector<Done> done;
    int minCol = 0;
    int maxCol = 0;
    int minRow = 0;
    int maxRow = 0;
};
