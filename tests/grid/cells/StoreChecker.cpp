#include "StoreChecker.h"

#include <gtest/gtest.h>
#include <sstream>

std::string DescribeCell(const GridCell& cell) {
    std::ostringstream s;
    auto text = [](const char* t) {
        return t ? "\"" + std::string(t) + "\"" : std::string("null");
    };
    s << std::hex << "bits " << cell.GetProperties() << std::dec << " text " << text(cell.GetText())
      << " mask " << text(cell.GetMask()) << " label " << text(cell.GetLabel()) << " type "
      << cell.GetDataType() << " user " << cell.GetUserValue() << " celltype " << cell.GetCellType()
      << "/" << cell.GetCellTypeOption() << " colours " << cell.GetTextColor() << ","
      << cell.GetBackColor() << "," << cell.GetHiliteTextColor() << "," << cell.GetHiliteBackColor()
      << " border " << cell.GetBorder() << " pen " << static_cast<const void*>(cell.GetBorderPen())
      << " font " << static_cast<const void*>(cell.GetFont()) << " bitmap "
      << static_cast<const void*>(cell.GetBitmap()) << " align " << cell.GetAlignment() << " hook "
      << static_cast<const void*>(cell.GetCellHook()) << " style "
      << static_cast<const void*>(cell.GetStyleCell()) << " readonly " << cell.GetReadOnly()
      << " precision " << cell.GetPrecision();
    short isMain = 7;
    int colOffset = 7, rowOffset = 7;
    s << " join " << cell.GetJoin(isMain, colOffset, rowOffset) << ":" << isMain << "," << colOffset
      << "," << rowOffset;
    const char* extra = static_cast<const char*>(cell.GetExtraData());
    s << " extra " << (extra != nullptr) << ":"
      << (extra ? std::string(extra, cell.GetExtraSize()) : std::string());
    return s.str();
}

void ExpectSameStore(MemoryDataSource& store, const ReferenceStore& model) {
    const int firstRow = model.Empty() ? 0 : model.FirstRow() - 1;
    const int lastRow = model.Empty() ? 0 : model.LastRow() + 1;
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int col = model.MinCol() - 1; col <= model.MaxCol() + 1; ++col) {
            SCOPED_TRACE("col " + std::to_string(col) + " row " + std::to_string(row));
            GridCell fromStore, fromModel;
            fromStore.SetUserValue(99);
            fromModel.SetUserValue(99);
            ASSERT_EQ(store.GetCell(col, row, fromStore), model.GetCell(col, row, fromModel));
            ASSERT_EQ(DescribeCell(fromStore), DescribeCell(fromModel));
            std::string text = "stale";
            store.GetText(col, row, text);
            const std::string modelText =
                fromModel.HasProperty(PropText)
                    ? std::string(fromModel.GetText(),
                                  static_cast<size_t>(fromModel.GetTextLength()))
                    : "";
            ASSERT_EQ(text, modelText);

            int storeCol = col, modelCol = col;
            ASSERT_EQ(store.FindTextToLeft(&storeCol, row), model.FindTextToLeft(&modelCol, row));
            ASSERT_EQ(storeCol, modelCol);
        }
    }
}
