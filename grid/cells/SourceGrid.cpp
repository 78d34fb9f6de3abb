#include "grid/cells/SourceGrid.h"

#include "grid/cells/GridCell.h"

#include <cstring>
#include <utility>

int SourceGrid::CompareCells(const GridCell* first, const GridCell* second, int flags) {
    if (flags & 0x2) std::swap(first, second);
    if (!first && !second) return 0;
    if (!first) return -1;
    if (!second) return 1;

    const char* firstText = first->GetText();
    const char* secondText = second->GetText();
    if (!firstText) return secondText ? -1 : 0;

    WORD type = first->GetDataType();
    if (type == CellDataNumber || type == CellDataBool || type == CellDataNumericText) {
        // A missing second text reads as 0.0.
        double a = first->GetNumber(), b = second->GetNumber();
        return (a > b) - (a < b);
    }
    if (!secondText) return 1;
    return std::strcmp(firstText, secondText);
}
