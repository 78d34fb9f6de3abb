// The view's painting on the headless screen: cells in walk order with locks and scrolling,
// joins drawn once, selection and the current-cell frame, the area beyond the table, partial
// updates through the draw hint, the scroll that reuses pixels, and double buffering. The
// draw hint's own operations come first.
//
// Cells are told apart by their back colours, read at a point of each cell that neither the
// text nor the current-cell frame reaches.

#include "grid/cells/NormalCellType.h"
#include "grid/windows/DrawHint.h"
#include "grid/windows/GridView.h"
#include "platform/afx/CClientDC.h"
#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

bool operator==(const DrawHint::Range& a, const DrawHint::Range& b) {
    return a.startCol == b.startCol && a.startRow == b.startRow && a.endCol == b.endCol &&
           a.endRow == b.endRow;
}

TEST(DrawHint, RangesStayInOrderUnderTheirBoundingBox) {
    DrawHint hint;
    EXPECT_FALSE(hint.Contains(0, 0));
    hint.AddCell(3, 4);
    hint.AddRange(10, 1, 12, 2);
    ASSERT_EQ(hint.Ranges().size(), 2u);
    EXPECT_TRUE((hint.Ranges()[0] == DrawHint::Range{3, 4, 3, 4}));
    EXPECT_TRUE((hint.Ranges()[1] == DrawHint::Range{10, 1, 12, 2}));
    EXPECT_TRUE((hint.Bounds() == DrawHint::Range{3, 1, 12, 4}));
    EXPECT_TRUE(hint.Contains(3, 4));
    EXPECT_TRUE(hint.Contains(12, 1));
    // Inside the box but in no range, and outside the box.
    EXPECT_FALSE(hint.Contains(5, 3));
    EXPECT_FALSE(hint.Contains(2, 4));
    EXPECT_FALSE(hint.Contains(13, 1));
    // A range is stored as given: reversed, it holds no cell.
    hint.AddRange(30, 30, 20, 20);
    EXPECT_TRUE((hint.Ranges()[2] == DrawHint::Range{30, 30, 20, 20}));
    EXPECT_FALSE(hint.Contains(25, 25));
}

TEST(DrawHint, MergeGrowsTheFirstRangeInsteadOfAddingOne) {
    DrawHint hint;
    hint.MergeRange(2, 2, 3, 3);
    hint.MergeRange(0, 5, 1, 6);
    ASSERT_EQ(hint.Ranges().size(), 1u);
    EXPECT_TRUE((hint.Ranges()[0] == DrawHint::Range{0, 2, 3, 6}));
    EXPECT_TRUE(hint.Contains(1, 4));
    hint.AddCell(10, 10);
    hint.MergeRange(20, 0, 20, 0);
    ASSERT_EQ(hint.Ranges().size(), 2u);
    EXPECT_TRUE((hint.Ranges()[0] == DrawHint::Range{0, 0, 20, 6}));
    EXPECT_TRUE((hint.Bounds() == DrawHint::Range{0, 0, 20, 10}));
}

TEST(DrawHint, DoneMarksAndClear) {
    DrawHint hint;
    hint.AddRange(0, 0, 5, 5);
    hint.MarkDone(1, 2);
    EXPECT_TRUE(hint.IsDone(1, 2));
    EXPECT_FALSE(hint.IsDone(2, 1));
    hint.Clear();
    EXPECT_FALSE(hint.IsDone(1, 2));
    EXPECT_FALSE(hint.Contains(1, 1));
    EXPECT_TRUE(hint.Ranges().empty());
    // A new range after Clear sets the box afresh.
    hint.AddCell(9, 9);
    EXPECT_TRUE((hint.Bounds() == DrawHint::Range{9, 9, 9, 9}));
}

constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Marked = RGB(250, 20, 20);
constexpr int Width = 50;
constexpr int Height = 20;

COLORREF Colour(int col, int row) {
    return RGB(100 + col * 10, 40 + row * 4, 200);
}

COLORREF Inverted(COLORREF c) {
    return RGB(255 - GetRValue(c), 255 - GetGValue(c), 255 - GetBValue(c));
}

// Writes down the cells it draws, with their rectangles.
class CountingType : public NormalCellType {
public:
    void Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
              int current) override {
        draws.push_back({col, row, *rect});
        NormalCellType::Draw(dc, rect, col, row, cell, selected, current);
    }
    struct Drawn {
        int col, row;
        RECT rect;
    };
    std::vector<Drawn> draws;
};

class ViewPaint : public ::testing::Test {
protected:
    // cols by rows of cells Width by Height, each in its own colour.
    void Setup(int cols, int rows) {
        Fill(grid, cols, rows);
        for (int c = 0; c < cols; ++c) {
            grid.SetColWidth(c, Width);
            for (int r = 0; r < rows; ++r) grid.SetCellBackColor(c, r, Colour(c, r));
        }
        grid.RecalcLayout();
        Paint();
    }
    void Paint() {
        grid.view->RedrawAll();
        GridHost::Pump();
    }
    COLORREF Pixel(int x, int y) { return CClientDC(grid.view.get()).GetPixel(x, y); }
    // A point of the cell in column slot i and row slot j of the view, left of the text and
    // inside the current-cell frame.
    COLORREF Slot(int i, int j) { return Pixel(i * Width + 2, j * Height + 10); }
    // The cell on view at (i, j) shows the colour of cell (col, row).
    ::testing::AssertionResult Shows(int i, int j, int col, int row) {
        if (Slot(i, j) == Colour(col, row)) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "slot " << i << "," << j << " is not cell "
                                             << col << "," << row;
    }
    // Every cell on view shows its own colour; cells run Width by Height from the locks on.
    ::testing::AssertionResult AllShown() {
        const int cols = s.viewWidth / Width, rows = s.viewHeight / Height;
        for (int j = 0; j < rows; ++j) {
            const int row = j < s.lockedRows ? j : s.topRow + j - s.lockedRows;
            for (int i = 0; i < cols; ++i) {
                const int col = i < s.lockedCols ? i : s.leftCol + i - s.lockedCols;
                if (auto shown = Shows(i, j, col, row); !shown) return shown;
            }
        }
        return ::testing::AssertionSuccess();
    }
    bool HasInk(const RECT& area, COLORREF ink) {
        CClientDC dc(grid.view.get());
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (dc.GetPixel(x, y) == ink) return true;
        return false;
    }
    // The current-cell frame inverts every other pixel of its top edge.
    bool FramedAt(int x, int y, COLORREF under) {
        const COLORREF a = Pixel(x, y), b = Pixel(x + 1, y);
        return (a == Inverted(under) && b == under) || (a == under && b == Inverted(under));
    }
    std::vector<COLORREF> Capture() {
        CClientDC dc(grid.view.get());
        std::vector<COLORREF> pixels;
        for (int y = 0; y < s.viewHeight; ++y)
            for (int x = 0; x < s.viewWidth; ++x) pixels.push_back(dc.GetPixel(x, y));
        return pixels;
    }

    CountingType counting;
    GridHost host;
    RecordingGrid& grid = host.grid;
    GridSheet& s = *grid.sheet;
};

TEST_F(ViewPaint, CellsStandInWalkOrderWithLocksAndTheirText) {
    Setup(10, 40);
    grid.LockCols(1);
    grid.LockRows(1);
    grid.SetLeftCol(3);
    grid.SetTopRow(5);
    grid.SetCellText(4, 5, "");
    Paint();
    EXPECT_TRUE(Shows(0, 0, 0, 0));
    EXPECT_TRUE(Shows(1, 0, 3, 0));
    EXPECT_TRUE(Shows(0, 1, 0, 5));
    EXPECT_TRUE(Shows(2, 3, 4, 7));
    EXPECT_TRUE(AllShown());
    // The lock lines, over the grid lines at the locks' edges.
    EXPECT_EQ(Pixel(Width - 1, 3 * Height + 5), Black);
    EXPECT_EQ(Pixel(3 * Width + 5, Height - 1), Black);
    // Text in the cell's own place: "r5c3" at slot (1, 1), none in the emptied cell beside.
    EXPECT_TRUE(HasInk({Width + 4, Height + 1, 2 * Width - 2, 2 * Height - 2}, Black));
    EXPECT_FALSE(HasInk({2 * Width + 4, Height + 1, 3 * Width - 2, 2 * Height - 2}, Black));
}

TEST_F(ViewPaint, AScrollMovesThePixelsAndPaintsWhatItUncovered) {
    Setup(10, 40);
    grid.LockCols(1);
    Paint();
    // Changed without a repaint: a scroll that moves the old pixels shows the old colour.
    grid.SetCellBackColor(3, 4, Marked);
    grid.SetTopRow(2);
    EXPECT_TRUE(AllShown());
    grid.SetTopRow(3);
    grid.SetTopRow(1);
    EXPECT_TRUE(AllShown());
    grid.SetLeftCol(2);
    EXPECT_TRUE(AllShown());
    grid.SetLeftCol(1);
    EXPECT_TRUE(AllShown());
    // More than a view away nothing is reused: the changed cell shows when it comes back.
    grid.SetTopRow(25);
    EXPECT_TRUE(AllShown());
    grid.SetTopRow(2);
    EXPECT_EQ(Slot(3, 2), Marked);
}

TEST_F(ViewPaint, AScrollAlongBothAxesRepaintsTheLockedPart) {
    Setup(20, 40);
    grid.LockCols(1);
    grid.LockRows(1);
    Paint();
    const int leftCol = s.leftCol, topRow = s.topRow;
    grid.GotoCell(s.rightCol + 1, s.bottomRow + 1);
    ASSERT_GT(s.leftCol, leftCol);
    ASSERT_GT(s.topRow, topRow);
    EXPECT_TRUE(AllShown());
}

TEST_F(ViewPaint, AJoinIsDrawnOnceInItsWholeRectangle) {
    Setup(6, 20);
    const int type = grid.AddCellType(&counting);
    grid.SetCellTypeId(1, 1, type);
    grid.JoinCells(1, 1, 2, 2);
    Paint();
    ASSERT_EQ(counting.draws.size(), 1u);
    EXPECT_EQ(counting.draws[0].col, 1);
    EXPECT_EQ(counting.draws[0].row, 1);
    const RECT& block = counting.draws[0].rect;
    EXPECT_EQ(block.left, Width);
    EXPECT_EQ(block.top, Height);
    EXPECT_EQ(block.right, 3 * Width);
    EXPECT_EQ(block.bottom, 3 * Height);
    // No grid line inside the block, and the main cell's colour all over it.
    EXPECT_EQ(Pixel(2 * Width - 1, Height + 10), Colour(1, 1));
    EXPECT_EQ(Pixel(2 * Width + 10, 2 * Height - 1), Colour(1, 1));
    EXPECT_EQ(Slot(2, 2), Colour(1, 1));

    // Scrolled half out of view, the pass meets the block in its middle.
    counting.draws.clear();
    grid.SetTopRow(2);
    Paint();
    ASSERT_EQ(counting.draws.size(), 1u);
    EXPECT_EQ(counting.draws[0].row, 1);
    EXPECT_EQ(counting.draws[0].rect.top, 0);
    EXPECT_EQ(counting.draws[0].rect.bottom, Height);
    EXPECT_EQ(Slot(2, 0), Colour(1, 1));
}

TEST_F(ViewPaint, SelectedCellsTakeHighlightColoursAndTheCurrentCellAFrame) {
    Setup(6, 10);
    grid.SetSelectionMode(1);
    grid.view->SetFocus();
    grid.GotoCell(1, 1);
    grid.SelectRange(1, 1, 3, 2);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    EXPECT_EQ(Slot(2, 1), highlight);
    EXPECT_EQ(Slot(3, 2), highlight);
    EXPECT_TRUE(Shows(4, 1, 4, 1));
    // The current cell is not drawn as selected, and it has the frame.
    EXPECT_TRUE(Shows(1, 1, 1, 1));
    EXPECT_TRUE(FramedAt(Width + 2, Height, Colour(1, 1)));

    // A move repaints the old cell without its frame and frames the new one.
    grid.GotoCell(4, 3);
    EXPECT_TRUE(FramedAt(4 * Width + 2, 3 * Height, Colour(4, 3)));
    EXPECT_EQ(Pixel(Width + 2, Height), Colour(1, 1));
    EXPECT_EQ(Pixel(Width + 3, Height), Colour(1, 1));
    EXPECT_EQ(Slot(2, 1), Colour(2, 1));

    // Without the focus there is no frame.
    host.window.SetFocus();
    Paint();
    EXPECT_EQ(Pixel(4 * Width + 2, 3 * Height), Colour(4, 3));
    EXPECT_EQ(Pixel(4 * Width + 3, 3 * Height), Colour(4, 3));
}

TEST_F(ViewPaint, InWholeRowModeTheFrameSpansTheView) {
    Setup(4, 10);
    grid.SetWholeRowMode(1);
    grid.view->SetFocus();
    grid.GotoCell(0, 2);
    ASSERT_LT(4 * Width + 20, s.viewWidth);
    EXPECT_TRUE(FramedAt(4 * Width + 10, 2 * Height, White));
    EXPECT_TRUE(FramedAt(Width + 10, 2 * Height, Colour(1, 2)));
    // The old row loses its frame, also beyond the last column.
    grid.GotoCell(0, 4);
    EXPECT_EQ(Pixel(4 * Width + 10, 2 * Height), White);
    EXPECT_EQ(Pixel(4 * Width + 11, 2 * Height), White);
    EXPECT_TRUE(FramedAt(4 * Width + 10, 4 * Height, White));
}

TEST_F(ViewPaint, TheAreaBeyondTheTableTakesTheBackColourAndTheEdgesAreRecorded) {
    Setup(3, 4);
    const RECT all{0, 0, s.viewWidth, s.viewHeight};
    CClientDC(grid.view.get()).FillSolidRect(&all, Marked);
    Paint();
    EXPECT_TRUE(Shows(2, 3, 2, 3));
    EXPECT_EQ(Pixel(3 * Width + 5, 5), White);
    EXPECT_EQ(Pixel(5, 4 * Height + 5), White);
    EXPECT_EQ(Pixel(s.viewWidth - 1, s.viewHeight - 1), White);
    EXPECT_EQ(s.rightCol, 3);
    EXPECT_EQ(s.bottomRow, 4);

    // A column that ends exactly at the view's edge doesn't end the walk.
    grid.SetColWidth(0, s.viewWidth - Width);
    Paint();
    EXPECT_EQ(s.rightCol, 2);
    grid.SetColWidth(0, s.viewWidth - Width + 1);
    Paint();
    EXPECT_EQ(s.rightCol, 1);

    // No columns: all of the view is background.
    grid.SetColCount(0, 0);
    CClientDC(grid.view.get()).FillSolidRect(&all, Marked);
    Paint();
    EXPECT_FALSE(HasInk(all, Marked));
}

TEST_F(ViewPaint, RowsEndingInViewAreOfferedToTheSourceAndPaintedAtOnce) {
    Setup(3, 2);
    grid.rowsToAdd = 3;
    grid.Take();
    Paint();
    EXPECT_EQ(s.rowCount, 5);
    EXPECT_EQ(s.bottomRow, 5);
    // The new rows have their grid lines; below them is background.
    const COLORREF gridLine = RGB(220, 220, 220);
    EXPECT_EQ(Pixel(Width - 1, 4 * Height + 5), gridLine);
    EXPECT_EQ(Pixel(Width - 1, 5 * Height + 5), White);
}

TEST_F(ViewPaint, RedrawsPaintOnlyWhatTheyName) {
    Setup(6, 10);
    grid.SetCellBackColor(1, 1, Marked);
    grid.SetCellBackColor(2, 2, Marked);
    grid.RedrawCell(2, 2);
    EXPECT_EQ(Slot(2, 2), Marked);
    EXPECT_TRUE(Shows(1, 1, 1, 1));
    grid.RedrawRow(1);
    EXPECT_EQ(Slot(1, 1), Marked);

    grid.SetCellBackColor(3, 5, Marked);
    grid.SetCellBackColor(4, 6, Marked);
    grid.RedrawCol(3);
    EXPECT_EQ(Slot(3, 5), Marked);
    EXPECT_TRUE(Shows(4, 6, 4, 6));
    grid.RedrawRange(4, 6, 4, 6);
    EXPECT_EQ(Slot(4, 6), Marked);

    // Marked ranges wait for the next pass; a paint message in between takes them along.
    grid.AddViewRange(0, 0, 1, 1);
    EXPECT_FALSE(grid.view->hint.Ranges().empty());
    Paint();
    EXPECT_TRUE(grid.view->hint.Ranges().empty());
}

TEST_F(ViewPaint, DoubleBufferingGivesTheSamePixelsAsDirectDrawing) {
    Setup(10, 40);
    grid.LockCols(1);
    grid.view->SetFocus();
    grid.GotoCell(2, 3);
    Paint();
    const std::vector<COLORREF> direct = Capture();
    EXPECT_EQ(grid.SetDoubleBufferMode(1), 0);
    ASSERT_NE(grid.view->buffer, nullptr);
    Paint();
    EXPECT_EQ(Capture(), direct);

    // Scrolls and moves through the buffer end as a full direct paint of the same state.
    grid.SetTopRow(4);
    grid.SetLeftCol(2);
    grid.GotoCell(3, 6);
    const std::vector<COLORREF> buffered = Capture();
    EXPECT_TRUE(AllShown());
    grid.SetDoubleBufferMode(0);
    EXPECT_EQ(grid.view->buffer, nullptr);
    Paint();
    EXPECT_EQ(Capture(), buffered);
}

TEST_F(ViewPaint, ASizeMakesABufferOfTheNewSizeAndKeepsTheClientRectangle) {
    Setup(4, 4);
    grid.SetDoubleBufferMode(1);
    host.Resize(300, 200);
    BITMAP bm{};
    grid.view->buffer->GetBitmap(&bm);
    RECT client;
    grid.view->GetClientRect(&client);
    EXPECT_EQ(bm.bmWidth, client.right);
    EXPECT_EQ(bm.bmHeight, client.bottom);
    EXPECT_EQ(grid.view->clientRect.right, client.right);
    EXPECT_EQ(grid.view->clientRect.bottom, client.bottom);
    // A view of no width still gets a bitmap.
    host.Resize(300 - s.viewWidth, 200);
    ASSERT_EQ(grid.view->clientRect.right, 0);
    grid.view->buffer->GetBitmap(&bm);
    EXPECT_EQ(bm.bmWidth, 1);
}

}  // namespace
