// The registries: cell type ids, shared fonts, bitmaps read from files, and what a cell keeps
// when an entry leaves its list.

#include "grid/core/GridCtrl.h"
#include "platform/afx/AfxApp.h"
#include "platform/afx/CBitmap.h"
#include "platform/user/BitmapResources.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

TEST(Resources, CellTypesKeepTheirIds) {
    GridCtrl grid;
    NormalCellType custom;
    EXPECT_EQ(grid.AddCellType(nullptr), -1);
    EXPECT_EQ(grid.AddCellType(&custom), 4);
    EXPECT_EQ(custom.GetTypeId(), 4);
    EXPECT_EQ(custom.grid, static_cast<CellTypeGrid*>(&grid));
    EXPECT_EQ(grid.GetCellType(4), &custom);
    EXPECT_EQ(grid.GetCellType(2), &grid.checkBoxCellType);
    for (int id : {0, -1, 5, 99}) EXPECT_EQ(grid.GetCellType(id), &grid.normalCellType) << id;
    EXPECT_EQ(grid.RemoveCellType(4), 0);
    EXPECT_EQ(grid.GetCellType(4), &grid.normalCellType);
    EXPECT_EQ(grid.GetCellTypeId(&custom), -1);
    EXPECT_EQ(grid.AddCellType(&custom), 4);
}

TEST(Resources, FontsAreSharedByTheirFullDescription) {
    GridCtrl grid;
    const int arial = grid.AddFontByFace("Arial", -12, 400);
    EXPECT_EQ(grid.AddFontByFace("Arial", -12, 400), arial);
    EXPECT_EQ(grid.fonts.GetCount(), 1);
    EXPECT_EQ(grid.fonts.GetTag(arial), 1);
    const int bold = grid.AddFontByFace("Arial", -12, 700);
    EXPECT_NE(bold, arial);
    const int italic = grid.AddFont(-12, 0, 0, 0, 400, 1, 0, 0, 0, 0, 0, 0, 0, "Arial");
    EXPECT_NE(italic, arial);

    grid.SetCellFontByIndex(-1, 0, arial);
    GridCell cell;
    grid.GetCell(-1, 0, cell);
    CFont* held = cell.GetFont();
    EXPECT_EQ(held, grid.GetFont(arial));
    // The tag counts the holders beyond the first, and the first release ends the sharing.
    EXPECT_EQ(grid.ReleaseFont(bold), 0);
    EXPECT_EQ(grid.GetFont(bold), nullptr);
    EXPECT_EQ(grid.ReleaseFont(arial), 0);
    EXPECT_EQ(grid.GetFont(arial), nullptr);
    EXPECT_EQ(grid.ReleaseFont(arial), 0);
    // The next font takes the first hole.
    const int bold2 = grid.AddFontByFace("Arial", -12, 700);
    EXPECT_EQ(bold2, arial);
    // The cell's font lives on with the control.
    LOGFONT lf;
    EXPECT_NE(held->GetLogFont(&lf), 0);
    EXPECT_STREQ(lf.lfFaceName, "Arial");
    EXPECT_EQ(grid.AddFontByFace("Courier", -10, 400), bold);

    const std::string name31(31, 'f'), name32(32, 'f');
    grid.GetFont(grid.AddFontByFace(name31, -10, 400))->GetLogFont(&lf);
    EXPECT_EQ(std::string(lf.lfFaceName), name31);
    grid.GetFont(grid.AddFontByFace(name32, -10, 400))->GetLogFont(&lf);
    EXPECT_STREQ(lf.lfFaceName, "");

    EXPECT_EQ(grid.SetDefaultFontByIndex(99), 1);
    EXPECT_EQ(grid.SetDefaultFontByIndex(bold2), 0);
    EXPECT_EQ(grid.sheet->defaultFont, grid.GetFont(bold2));
    EXPECT_EQ(grid.ClearFonts(), 0);
    EXPECT_EQ(grid.GetFont(bold2), nullptr);
    EXPECT_EQ(grid.fonts.GetCapacity(), 0);
}

namespace {

// A 2 by 2 bitmap of 24 bits, rows padded to 8 bytes.
// A 2 x 2 picture of 24 bits per pixel, every byte 0x7F.
std::string TwoByTwoBmp() {
    std::string file(14 + 40 + 16, '\0');
    auto put = [&file](int at, unsigned value, int bytes) {
        for (int i = 0; i < bytes; ++i) file[at + i] = static_cast<char>(value >> (8 * i));
    };
    file[0] = 'B', file[1] = 'M';
    put(2, static_cast<unsigned>(file.size()), 4);
    put(10, 54, 4);
    put(14, 40, 4);
    put(18, 2, 4);
    put(22, 2, 4);
    put(26, 1, 2);
    put(28, 24, 2);
    put(34, 16, 4);
    for (size_t i = 54; i < file.size(); ++i) file[i] = 0x7F;
    return file;
}

std::string WriteBmp(const std::filesystem::path& path) {
    std::ofstream(path, std::ios::binary) << TwoByTwoBmp();
    return path.string();
}

void ExpectTwoByTwo(CBitmap* bitmap) {
    BITMAP info{};
    ASSERT_NE(bitmap->GetBitmap(&info), 0);
    EXPECT_EQ(info.bmWidth, 2);
    EXPECT_EQ(info.bmHeight, 2);
}

} // namespace

TEST(Resources, BitmapsComeFromFilesAndStayWithTheirCells) {
    const auto folder = std::filesystem::temp_directory_path() / "gridcore_bitmaps";
    std::filesystem::create_directories(folder);
    const std::string good = WriteBmp(folder / "two.bmp");
    std::ofstream(folder / "bad.bmp") << "not a bitmap";

    GridCtrl grid;
    grid.SetColCount(1, 0);
    grid.SetRowCount(1, 0);
    EXPECT_EQ(grid.AddBitmapFile((folder / "missing.bmp").string()), -1);
    EXPECT_EQ(grid.AddBitmapFile((folder / "bad.bmp").string()), -1);
    const int index = grid.AddBitmapFile(good);
    ASSERT_EQ(index, 0);
    ExpectTwoByTwo(grid.GetBitmap(index));

    grid.SetCellBitmapByIndex(0, 0, index);
    GridCell cell;
    grid.GetCell(0, 0, cell);
    CBitmap* held = cell.GetBitmap();
    EXPECT_EQ(held, grid.GetBitmap(index));
    EXPECT_EQ(grid.RemoveBitmap(index), 0);
    EXPECT_EQ(grid.GetBitmap(index), nullptr);
    ExpectTwoByTwo(held);
    grid.SetCellBitmapByIndex(0, 0, index);
    grid.GetCell(0, 0, cell);
    EXPECT_FALSE(cell.HasProperty(PropBitmap));
    EXPECT_EQ(grid.AddBitmapFile(good), 0);
    EXPECT_EQ(grid.ClearBitmaps(), 0);
    EXPECT_EQ(grid.GetBitmap(0), nullptr);
    std::filesystem::remove_all(folder);
}

TEST(Resources, BitmapsComeFromTheModulesResources) {
    static int moduleTag;
    const HINSTANCE module = reinterpret_cast<HINSTANCE>(&moduleTag);
    const std::string bmp = TwoByTwoBmp();
    RegisterBitmapResource(module, 5, bmp.data(), bmp.size());
    RegisterBitmapResource(module, "ARROW", bmp.data(), bmp.size());
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(module);

    GridCtrl grid;
    // The high bits of the id are not the resource's.
    EXPECT_EQ(grid.AddBitmapResource(0x10005), 0);
    EXPECT_EQ(grid.AddBitmapResource(0, "arrow"), 1);
    EXPECT_EQ(grid.AddBitmapResource(6), -1);
    EXPECT_EQ(grid.AddBitmapResource(5, "missing"), -1);
    AfxSetResourceHandle(before);
    ExpectTwoByTwo(grid.GetBitmap(0));
    ExpectTwoByTwo(grid.GetBitmap(1));
    EXPECT_EQ(grid.GetBitmap(2), nullptr);
}
