#include "grid/core/PtrList.h"

#include <gtest/gtest.h>

namespace {

struct Item : CObject {};

class PtrListTest : public ::testing::Test {
protected:
    // Fills the list with items[0..n) under tags 100 + i.
    void Fill(int n) {
        for (int i = 0; i < n; ++i) ASSERT_EQ(list.Add(&items[i], 100 + i), i);
    }

    PtrList list;
    Item items[25];
};

TEST_F(PtrListTest, GrowsByTenAndKeepsEveryIndexThroughGrowth) {
    EXPECT_EQ(list.GetCapacity(), 0);
    Fill(10);
    EXPECT_EQ(list.GetCapacity(), 10);
    EXPECT_EQ(list.Add(&items[10], 0), 10);
    EXPECT_EQ(list.GetCapacity(), 20);
    EXPECT_EQ(list.GetCount(), 11);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(list.GetAt(i), &items[i]) << i;
        EXPECT_EQ(list.GetTag(i), 100 + i) << i;
    }
}

TEST_F(PtrListTest, RemovingLeavesHolesThatAddFillsFirstToLast) {
    Fill(10);
    ASSERT_EQ(list.RemoveAt(5), 0);
    ASSERT_EQ(list.RemoveAt(2), 0);
    EXPECT_EQ(list.GetCount(), 8);
    EXPECT_EQ(list.GetAt(2), nullptr);
    EXPECT_EQ(list.GetAt(3), &items[3]); // nothing moved up

    EXPECT_EQ(list.Add(&items[20], 7), 2);
    EXPECT_EQ(list.GetTag(2), 7);
    EXPECT_EQ(list.Add(&items[21], 0), 5);
    EXPECT_EQ(list.GetCapacity(), 10); // holes are used before the table grows
    EXPECT_EQ(list.Add(&items[22], 0), 10);
}

TEST_F(PtrListTest, BadIndexesAndFreeSlotsAnswerAsDocumented) {
    Fill(3);
    list.RemoveAt(1);
    // Outside the table, a removed slot, a slot never used.
    struct Case {
        int index, setTag, remove;
    } cases[] = {{-1, 1, 1}, {10, 1, 1}, {1, 2, 0}, {5, 2, 0}};
    for (const Case& c : cases) {
        EXPECT_EQ(list.GetAt(c.index), nullptr) << c.index;
        EXPECT_EQ(list.GetExtra(c.index), nullptr) << c.index;
        EXPECT_EQ(list.GetTag(c.index), 0) << c.index;
        EXPECT_EQ(list.SetTag(c.index, 9), c.setTag) << c.index;
        EXPECT_EQ(list.RemoveAt(c.index), c.remove) << c.index;
    }
    EXPECT_EQ(list.GetCount(), 2); // removing a free slot counts nothing
    EXPECT_EQ(list.SetTag(2, 9), 0);
    EXPECT_EQ(list.GetTag(2), 9);
}

TEST_F(PtrListTest, IndexOfFindsTheFirstSlotHoldingTheItem) {
    Fill(3);
    EXPECT_EQ(list.Add(&items[1], 0), 3);
    EXPECT_EQ(list.IndexOf(&items[1]), 1);
    list.RemoveAt(1);
    EXPECT_EQ(list.IndexOf(&items[1]), 3);
    EXPECT_EQ(list.IndexOf(&items[9]), -1);
    EXPECT_EQ(list.IndexOf(nullptr), -1); // free slots hold no item
}

TEST_F(PtrListTest, ExtraBlockIsCopiedAndForgottenWithTheSlot) {
    unsigned char extra[PtrList::ExtraSize];
    for (int i = 0; i < PtrList::ExtraSize; ++i) extra[i] = static_cast<unsigned char>(i + 1);
    ASSERT_EQ(list.Add(&items[0], 0, extra), 0);
    extra[0] = 99;
    EXPECT_EQ(list.GetExtra(0)[0], 1);
    EXPECT_EQ(list.GetExtra(0)[15], 16);

    list.RemoveAt(0);
    ASSERT_EQ(list.Add(&items[1], 0), 0);
    EXPECT_EQ(list.GetExtra(0)[15], 0);
}

TEST_F(PtrListTest, RemoveAllFreesTheTableAndStartsOver) {
    Fill(12);
    EXPECT_EQ(list.RemoveAll(), 0);
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetCapacity(), 0);
    EXPECT_EQ(list.GetAt(0), nullptr);
    EXPECT_EQ(list.Add(&items[5], 0), 0);
    EXPECT_EQ(list.GetCapacity(), 10);
}

} // namespace
