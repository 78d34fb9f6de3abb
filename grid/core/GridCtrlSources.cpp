// Data sources: the registry, the sheet's source and the sources of single columns, shaping
// the sheet to a source, and the sort and search that the source carries out.

#include "grid/cells/GridDataSource.h"
#include "grid/core/GridCtrl.h"

int GridCtrl::AddDataSource(GridDataSource* source) {
    if (!source) return -1;
    source->grid = this;
    int index = 1;
    while (index < dataSourceCapacity && dataSources[static_cast<size_t>(index)]) ++index;
    if (index >= dataSourceCapacity) {
        dataSourceCapacity += 16;
        dataSources.resize(static_cast<size_t>(dataSourceCapacity), nullptr);
    }
    dataSources[static_cast<size_t>(index)] = source;
    ++dataSourceCount;
    source->SetSourceId(index);
    return index;
}

GridDataSource* GridCtrl::GetDataSource(int index) {
    if (index < 0 || index > dataSourceCount) return nullptr;
    if (index == 0) return &sheet->memoryDataSource;
    // A removed source's slot may be counted beyond the table.
    return index < dataSourceCapacity ? dataSources[static_cast<size_t>(index)] : nullptr;
}

int GridCtrl::SelectDataSource(int index) {
    // An emptied entry can't serve: the sheet must always have a source.
    GridDataSource* source = GetDataSource(index);
    if (!source) return 1;
    sheet->dataSourceIndex = index;
    sheet->dataSource = source;
    for (ColumnInfo& info : sheet->columns) info.dataSource = source;
    return 0;
}

int GridCtrl::RemoveDataSource(int index) {
    if (index < 1 || index > dataSourceCount || !GetDataSource(index)) return 1;
    // The count stays, so that the indexes of the other sources don't shift.
    dataSources[static_cast<size_t>(index)] = nullptr;
    return 0;
}

int GridCtrl::ShapeToDataSource(int index) {
    GridDataSource* source = GetDataSource(index);
    if (!source) return 1;
    const int cols = source->GetColCount();
    if (cols < 1) return 2;
    SetColCount(cols, 0);
    // A source that doesn't know its rows answers a negative count, and the rows stay.
    const int rows = source->GetRowCount();
    if (rows >= 0) SetRowCount(rows, 0);
    RecalcLayout();
    return 0;
}

int GridCtrl::SetColDataSource(int col, GridDataSource* source) {
    if (col < 0 || col >= sheet->colCount || !source) return 1;
    sheet->columns[static_cast<size_t>(col)].dataSource = source;
    return 0;
}

int GridCtrl::SetColDataSourceByIndex(int col, int index) {
    return SetColDataSource(col, GetDataSource(index));
}

int GridCtrl::SortByCol(int col, int flags) {
    return SortByCols(&col, 1, flags);
}

int GridCtrl::SortByCols(int* cols, int count, int flags) {
    for (int i = 0; i < count; ++i) cols[i] = GetTranslatedCol(cols[i]);
    return sheet->dataSource->SortRows(cols, count, flags);
}

int GridCtrl::FindInDataSource(const std::string& text, int* col, int* row, int flags) {
    *col = GetTranslatedCol(*col);
    return sheet->dataSource->FindFirst(text, col, row, flags);
}

int GridCtrl::FindNextInDataSource(const std::string& text, int* col, int* row, int flags) {
    *col = GetTranslatedCol(*col);
    return sheet->dataSource->FindNext(text, col, row, flags);
}
