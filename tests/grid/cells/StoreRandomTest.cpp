// Long random sequences of operations on the memory store and on the reference store, with the
// answers and the whole content compared after every step.

#include "FakeGrid.h"
#include "ReferenceStore.h"
#include "StoreChecker.h"
#include "grid/cells/MemoryDataSource.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

const char* const Texts[] = {"", "ab", "AB", "xABy", "\xE9", "\xC9", "r1c2", "R1C2", "b", "zz"};

class Harness {
public:
    explicit Harness(unsigned seed) : rng(seed) { store.grid = &storeGrid; }

    int Pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); }
    bool Chance(int percent) { return Pick(1, 100) <= percent; }
    std::string AnyText() { return Texts[Pick(0, std::size(Texts) - 1)]; }

    // Only text cells of data type 1, with or without text, so that the ordering is consistent
    // and the bubble sort ends.
    void FillCell(GridCell& cell) {
        if (Chance(75)) cell.SetText(AnyText());
        if (Chance(20)) cell.SetBackColor(static_cast<COLORREF>(Pick(0, 0xFFFFFF)));
        if (Chance(15)) cell.SetLabel("a label longer than the inline room");
        if (Chance(10)) std::memcpy(cell.AllocExtraData(3), "xyz", 3);
        if (Chance(10)) cell.SetJoin(1, Pick(0, 3), Pick(0, 3));
        if (Chance(10)) cell.SetFont(reinterpret_cast<CFont*>(&rng));
        if (Chance(10)) cell.SetProperties(cell.GetProperties() | 0x40000);
    }

    void Step() {
        const int col = Pick(-3, 7), row = Pick(-3, 8);
        switch (Pick(0, 11)) {
        case 0:
        case 1:
        case 2: {
            GridCell cell;
            FillCell(cell);
            ASSERT_EQ(store.SetCell(col, row, cell), model.SetCell(col, row, cell));
            break;
        }
        case 3: ASSERT_EQ(store.ClearCell(col, row), model.ClearCell(col, row)); break;
        case 4: ASSERT_EQ(store.InsertRow(row), model.InsertRow(row)); break;
        case 5: ASSERT_EQ(store.DeleteRow(row), model.DeleteRow(row)); break;
        case 6:
            ASSERT_EQ(store.InsertCol(col), model.InsertCol(col));
            ASSERT_EQ(storeGrid.sourceCols, modelGrid.sourceCols);
            break;
        case 7:
            ASSERT_EQ(store.DeleteCol(col), model.DeleteCol(col));
            ASSERT_EQ(storeGrid.sourceCols, modelGrid.sourceCols);
            break;
        case 8: {
            int keys[2] = {Pick(-1, 6), Pick(-1, 6)};
            int count = Pick(1, 2), flags = Pick(0, 1) * 2;
            ASSERT_EQ(store.SortRows(keys, count, flags), model.SortRows(keys, count, flags));
            break;
        }
        case 9: Find(col, row); break;
        case 10: Reshape(); break;
        case 11:
            if (Chance(5)) {
                ASSERT_EQ(store.DeleteAll(), model.DeleteAll());
            }
            break;
        }
    }

    void Find(int col, int row) {
        const std::string text = AnyText();
        const int flags = Pick(0, 15);
        int storeCol = col, storeRow = row, modelCol = col, modelRow = row;
        if (Chance(50)) {
            ASSERT_EQ(store.FindFirst(text, &storeCol, &storeRow, flags),
                      model.FindFirst(text, &modelCol, &modelRow, flags));
        } else {
            ASSERT_EQ(store.FindNext(text, &storeCol, &storeRow, flags),
                      model.FindNext(text, &modelCol, &modelRow, flags));
        }
        ASSERT_EQ(storeCol, modelCol);
        ASSERT_EQ(storeRow, modelRow);
    }

    // The grid's counts change, or its columns move.
    void Reshape() {
        if (Chance(50)) {
            storeGrid.rowCount = modelGrid.rowCount = Pick(0, 9);
            storeGrid.sourceCols.resize(Pick(0, 7));
            for (std::size_t c = modelGrid.sourceCols.size(); c < storeGrid.sourceCols.size(); ++c)
                storeGrid.sourceCols[c] = static_cast<int>(c);
        } else {
            std::shuffle(storeGrid.sourceCols.begin(), storeGrid.sourceCols.end(), rng);
        }
        modelGrid.sourceCols = storeGrid.sourceCols;
    }

    std::mt19937 rng;
    FakeGrid storeGrid{6, 7}, modelGrid{6, 7};
    MemoryDataSource store;
    ReferenceStore model{&modelGrid};
};

class StoreRandomTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(StoreRandomTest, AgreesWithTheReferenceAfterEveryStep) {
    Harness h(GetParam());
    for (int step = 0; step < 600; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        ASSERT_NO_FATAL_FAILURE(h.Step());
        ASSERT_NO_FATAL_FAILURE(ExpectSameStore(h.store, h.model));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, StoreRandomTest, ::testing::Range(1u, 7u));

} // namespace
