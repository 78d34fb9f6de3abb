#pragma once
// The range selection of a sheet: an ordered list of rectangular blocks, each of which marks
// its cells selected or unselected. Where blocks overlap the last one decides, so a later
// block can take cells out of an earlier one (with mode bit ModeFirstDecides, the first one
// decides). The grid feeds the store every move of the current cell while range selection is
// on, through the four entries OnKeyMove, OnLeftPress, OnRightPress and OnDrag; the store
// itself reads Shift and Control to choose whether a move starts a new block, adds one or
// extends the last one. After each entry the grid takes GetAnchor as its current cell, so
// that during a Shift move or a drag the current cell stays where the block began.
//
// selectionCount tells the states apart: 0 empty, 1 one fresh block of one cell, above 1 a
// real selection (a block that was extended, or several blocks).

#include <memory>

class SelectionGrid;
class SelectionSheet;

class MultiSelect {
public:
    enum : int {
        ModeBlocks = 0x1,
        // Every block spans from column 0 to the last column.
        ModeWholeRows = 0x2,
        ModeFirstDecides = 0x10,
    };

    MultiSelect() = default;
    MultiSelect(const MultiSelect&) = delete;
    MultiSelect& operator=(const MultiSelect&) = delete;
    virtual ~MultiSelect();

    // Frees all blocks; repaints the whole grid when there was a real selection.
    virtual int Clear();
    // As Clear, without the repaint.
    virtual int Reset();
    virtual int SetMode(int bits);
    int GetMode() const { return mode; }
    int GetSelectionCount() const { return selectionCount; }

    virtual int StartBlock(int col, int row);
    // 1 when there is no block to extend.
    virtual int ExtendBlock(int col, int row);
    virtual int ToggleCell(int col, int row);
    // Where the last block was started; 1 with no block.
    virtual int GetAnchor(int* col, int* row) const;
    virtual int GetLastBlock(int* left, int* top, int* right, int* bottom) const;

    // `block`, when given, receives the position of the deciding block in the list, 0 when none.
    virtual int IsSelected(int col, int row, int* block) const;
    virtual int IsColSelected(int col) const;
    virtual int IsRowSelected(int row) const;

    // The selected cells row by row, left to right, each once however many blocks hold it:
    // 0 for a cell, 1 at the end. An empty store yields the current cell alone.
    virtual int FirstCell(int* col, int* row);
    virtual int NextCell(int* col, int* row);
    // Bounding box of all blocks, selected or not; 2 with no block.
    virtual int GetBounds(int* left, int* top, int* right, int* bottom) const;
    // Queues the bounding box on the view for repainting, when there are blocks.
    virtual void MarkBounds();

    // One entry per kind of move; `flags` are the mouse message's key flags.
    virtual void OnKeyMove(int col, int row);
    virtual void OnLeftPress(int col, int row, unsigned flags);
    virtual void OnRightPress(int col, int row, unsigned flags);
    virtual void OnDrag(int col, int row, unsigned flags);

    // Set when the sheet joins a control; not owned.
    SelectionGrid* grid = nullptr;
    SelectionSheet* sheet = nullptr;

protected:
    struct Block {
        int anchorCol = 0;
        int endCol = 0;
        int anchorRow = 0;
        int endRow = 0;
        // The block normalised, bounds inclusive.
        int leftCol = 0;
        int rightCol = 0;
        int topRow = 0;
        int bottomRow = 0;
        int selected = 1;
        std::unique_ptr<Block> next;

        bool Holds(int col, int row) const {
            return col >= leftCol && col <= rightCol && row >= topRow && row <= bottomRow;
        }
    };

    // Normalises the block from its corners, widened to whole rows in that mode.
    void SetBounds(Block& block) const;
    // Walks the box from (nextCol, nextRow) to its first selected place; 1 when there is none.
    int ScanFromNext(int* col, int* row);

    std::unique_ptr<Block> firstBlock;
    int startCol = 0;
    int startRow = 0;
    int hasBlock = 0;
    Block* lastBlock = nullptr;
    int mode = 0;
    int selectionCount = 0;
    int blockFresh = 0;
    int minCol = 0;
    int minRow = 0;
    int maxCol = 0;
    int maxRow = 0;
    int nextCol = 0;
    int nextRow = 0;
    int enumerating = 0;
    int lastCol = -1;
    int lastRow = -1;
    int anchorCellCol = 0;
    int anchorCellRow = 0;
};
