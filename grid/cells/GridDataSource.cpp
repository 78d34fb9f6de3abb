#include "grid/cells/GridDataSource.h"

int GridDataSource::GetRowCount() {
    return -1;
}
int GridDataSource::GetColCount() {
    return -1;
}
int GridDataSource::AppendRow() {
    return -1;
}
int GridDataSource::InsertRow(int) {
    return -1;
}
int GridDataSource::AppendCol() {
    return -1;
}
int GridDataSource::InsertCol(int) {
    return -1;
}
int GridDataSource::DeleteRow(int) {
    return -1;
}
int GridDataSource::DeleteCol(int) {
    return -1;
}
int GridDataSource::ClearCell(int, int) {
    return -1;
}
int GridDataSource::DeleteAll() {
    return -1;
}
int GridDataSource::GetCell(int, int, GridCell&) {
    return -1;
}
int GridDataSource::SetCell(int, int, const GridCell&) {
    return -1;
}
int GridDataSource::FindFirst(const std::string&, int*, int*, int) {
    return -1;
}
int GridDataSource::FindNext(const std::string&, int*, int*, int) {
    return -1;
}
int GridDataSource::SortRows(const int*, int, int) {
    return -1;
}
int GridDataSource::SortRowsByCol(int, int) {
    return -1;
}
int GridDataSource::NotifyPastLastRow(int, int, int*) {
    return -1;
}
void GridDataSource::NotifyRowChanged(int, int) {}
void GridDataSource::NotifyColumnChanged(int, int) {}
int GridDataSource::CanMoveCurrentCell(int, int, int, int) {
    return 1;
}
int GridDataSource::QueryEditStart(int, int, CWnd**) {
    return 1;
}
int GridDataSource::QueryEditKey(int, int, CWnd*, UINT*) {
    return 1;
}
int GridDataSource::QueryEditFinish(int, int, CWnd*, const std::string&, int) {
    return 1;
}
int GridDataSource::QueryEditContinue(int, int, int*, int*) {
    return 1;
}
int GridDataSource::FindTextToLeft(int*, int) {
    return -1;
}
