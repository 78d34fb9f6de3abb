#include "grid/cells/MultiSelect.h"

#include "grid/cells/SelectionGrid.h"
#include "grid/cells/SelectionSheet.h"
#include "platform/base/Messages.h"
#include "platform/user/User.h"

#include <algorithm>

MultiSelect::~MultiSelect() {
    Reset();
}

int MultiSelect::Clear() {
    hasBlock = 0;
    lastBlock = nullptr;
    // One block at a time: a long list must not recurse through the owners.
    while (firstBlock) firstBlock = std::move(firstBlock->next);
    if (selectionCount > 1) grid->RedrawAll();
    enumerating = 0;
    selectionCount = 0;
    lastCol = -1;
    lastRow = -1;
    return 0;
}

int MultiSelect::Reset() {
    selectionCount = 0;
    return Clear();
}

int MultiSelect::SetMode(int bits) {
    Clear();
    mode = bits;
    return 0;
}

void MultiSelect::SetBounds(Block& block) const {
    block.leftCol = std::min(block.anchorCol, block.endCol);
    block.rightCol = std::max(block.anchorCol, block.endCol);
    block.topRow = std::min(block.anchorRow, block.endRow);
    block.bottomRow = std::max(block.anchorRow, block.endRow);
    if (mode & ModeWholeRows) {
        block.leftCol = 0;
        block.rightCol = sheet->GetColCount() - 1;
    }
}

int MultiSelect::StartBlock(int col, int row) {
    startCol = anchorCellCol = col;
    startRow = anchorCellRow = row;
    auto block = std::make_unique<Block>();
    block->anchorCol = block->endCol = col;
    block->anchorRow = block->endRow = row;
    SetBounds(*block);
    Block* added = block.get();
    // Blocks only ever join at the end, so lastBlock is the tail while there are blocks.
    (hasBlock ? lastBlock->next : firstBlock) = std::move(block);
    lastBlock = added;
    hasBlock = 1;
    blockFresh = 1;
    ++selectionCount;
    return 0;
}

int MultiSelect::ExtendBlock(int col, int row) {
    if (!hasBlock) return 1;
    Block& block = *lastBlock;
    const int oldEndCol = block.endCol, oldEndRow = block.endRow;
    const int oldLeft = block.leftCol, oldRight = block.rightCol;
    const int oldTop = block.topRow, oldBottom = block.bottomRow;
    block.endCol = col;
    block.endRow = row;
    SetBounds(block);
    block.selected = 1;
    if (blockFresh) {
        blockFresh = 0;
        ++selectionCount;
    }

    // Only the strips that changed are repainted, across the union of old and new bounds.
    int left = std::min(oldLeft, block.leftCol), right = std::max(oldRight, block.rightCol);
    int top = std::min(oldTop, block.topRow), bottom = std::max(oldBottom, block.bottomRow);
    if (row != oldEndRow)
        grid->AddViewRange(left, std::min(oldEndRow, row), right, std::max(oldEndRow, row));
    if (col != oldEndCol)
        grid->AddViewRange(std::min(oldEndCol, col), top, std::max(oldEndCol, col), bottom);
    return 0;
}

int MultiSelect::ToggleCell(int col, int row) {
    for (Block* b = firstBlock.get(); b; b = b->next.get()) {
        if (b->leftCol == col && b->rightCol == col && b->topRow == row && b->bottomRow == row) {
            b->selected = !b->selected;
            return 0;
        }
    }
    int was = IsSelected(col, row, nullptr);
    StartBlock(col, row);
    lastBlock->selected = !was;
    return 0;
}

int MultiSelect::GetAnchor(int* col, int* row) const {
    if (!hasBlock) return 1;
    *col = anchorCellCol;
    *row = anchorCellRow;
    return 0;
}

int MultiSelect::GetLastBlock(int* left, int* top, int* right, int* bottom) const {
    if (!hasBlock) return 1;
    *left = lastBlock->leftCol;
    *top = lastBlock->topRow;
    *right = lastBlock->rightCol;
    *bottom = lastBlock->bottomRow;
    return 0;
}

int MultiSelect::IsSelected(int col, int row, int* block) const {
    int result = 0, deciding = 0, position = 0;
    for (const Block* b = firstBlock.get(); b; b = b->next.get(), ++position) {
        if (!b->Holds(col, row)) continue;
        result = b->selected;
        deciding = position;
        if (mode & ModeFirstDecides) break;
    }
    if (block) *block = deciding;
    return result;
}

int MultiSelect::IsColSelected(int col) const {
    // Whole rows span every column; column 1 stands for them all.
    if (mode & ModeWholeRows) col = 1;
    int result = 0;
    for (const Block* b = firstBlock.get(); b; b = b->next.get()) {
        if (col < b->leftCol || col > b->rightCol) continue;
        result = b->selected;
        if (mode & ModeFirstDecides) break;
    }
    return result;
}

int MultiSelect::IsRowSelected(int row) const {
    int result = 0;
    for (const Block* b = firstBlock.get(); b; b = b->next.get()) {
        if (row < b->topRow || row > b->bottomRow) continue;
        result = b->selected;
        if (mode & ModeFirstDecides) break;
    }
    return result;
}

int MultiSelect::FirstCell(int* col, int* row) {
    if (!firstBlock) {
        *col = sheet->GetCurrentCol();
        *row = sheet->GetCurrentRow();
        return 0;
    }
    enumerating = 1;
    minCol = maxCol = sheet->GetCurrentCol();
    minRow = maxRow = sheet->GetCurrentRow();
    for (const Block* b = firstBlock.get(); b; b = b->next.get()) {
        minCol = std::min(minCol, b->leftCol);
        maxCol = std::max(maxCol, b->rightCol);
        minRow = std::min(minRow, b->topRow);
        maxRow = std::max(maxRow, b->bottomRow);
    }
    nextCol = minCol;
    nextRow = minRow;
    return ScanFromNext(col, row);
}

int MultiSelect::NextCell(int* col, int* row) {
    if (!enumerating) return 1;
    return ScanFromNext(col, row);
}

int MultiSelect::ScanFromNext(int* col, int* row) {
    for (; nextRow <= maxRow; ++nextRow, nextCol = minCol) {
        while (nextCol <= maxCol) {
            int place = nextCol++;
            if (IsSelected(place, nextRow, nullptr)) {
                *col = place;
                *row = nextRow;
                return 0;
            }
        }
    }
    return 1;
}

int MultiSelect::GetBounds(int* left, int* top, int* right, int* bottom) const {
    if (!firstBlock) return 2;
    *left = firstBlock->leftCol;
    *top = firstBlock->topRow;
    *right = firstBlock->rightCol;
    *bottom = firstBlock->bottomRow;
    for (const Block* b = firstBlock->next.get(); b; b = b->next.get()) {
        *left = std::min(*left, b->leftCol);
        *top = std::min(*top, b->topRow);
        *right = std::max(*right, b->rightCol);
        *bottom = std::max(*bottom, b->bottomRow);
    }
    return 0;
}

void MultiSelect::MarkBounds() {
    int left, top, right, bottom;
    if (GetBounds(&left, &top, &right, &bottom) == 0) grid->AddViewRange(left, top, right, bottom);
}

void MultiSelect::OnKeyMove(int col, int row) {
    if (col == lastCol && row == lastRow) return;
    if (GetKeyState(VK_SHIFT) < 0) {
        ExtendBlock(col, row);
    } else if (GetKeyState(VK_CONTROL) < 0) {
        StartBlock(col, row);
    } else {
        MarkBounds();
        Clear();
        StartBlock(col, row);
    }
}

void MultiSelect::OnLeftPress(int col, int row, unsigned flags) {
    if (col == lastCol && row == lastRow) return;
    if (flags & MK_CONTROL) {
        StartBlock(col, row);
    } else if (flags & MK_SHIFT) {
        ExtendBlock(col, row);
    } else {
        MarkBounds();
        Clear();
        StartBlock(col, row);
    }
    // Noted after the Clear above, which forgets it: the pressed cell is the one place that
    // the key moves and drag steps that follow the press pass over.
    lastCol = col;
    lastRow = row;
}

void MultiSelect::OnRightPress(int col, int row, unsigned) {
    // A press on the selection keeps it for a context menu.
    if (IsSelected(col, row, nullptr)) return;
    MarkBounds();
    Clear();
    StartBlock(col, row);
}

void MultiSelect::OnDrag(int col, int row, unsigned) {
    if (col == lastCol && row == lastRow) return;
    ExtendBlock(col, row);
}
