// The stores' growth in steps, writes past the end, and what a shrink or a copy leaves.

#include "shell/TableStore.h"

#include <gtest/gtest.h>

TEST(TableStore, GrowsInStepsAndExtendsOnWritesPastTheEnd) {
    IntStore flags(20);
    flags.SetSize(3);
    EXPECT_EQ(flags.GetCapacity(), 20);
    for (int i = 3; i < 21; ++i) flags.Add(i);
    EXPECT_EQ(flags.GetSize(), 21);
    EXPECT_EQ(flags.GetCapacity(), 40);
    EXPECT_EQ(flags[0], 0);
    EXPECT_EQ(flags[20], 20);

    IntStore sparse(20);
    sparse.SetAt(5, 7);
    EXPECT_EQ(sparse.GetSize(), 6);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(sparse[i], 0) << i;

    // Without a step of its own a store grows by an eighth, at least 4 and at most 1024.
    IntStore unstepped;
    unstepped.SetSize(2);
    EXPECT_EQ(unstepped.GetCapacity(), 2);
    unstepped.Add(1);
    EXPECT_EQ(unstepped.GetCapacity(), 6);
    unstepped.SetSize(9000);
    unstepped.Add(1);
    EXPECT_EQ(unstepped.GetCapacity(), 9000 + 1024);
}

TEST(TableStore, ShrinkingReleasesAndRegrowingFindsEmptyEntries) {
    StringStore names(20);
    names.Add("A");
    names.Add("B");
    names.Add("C");
    names.SetSize(1);
    names.SetSize(3);
    EXPECT_EQ(names[0], "A");
    EXPECT_EQ(names[1], "");
    EXPECT_EQ(names[2], "");
    names.SetSize(0);
    EXPECT_EQ(names.GetCapacity(), 0);

    RowStore rows(20);
    rows.Add(ParcelRow{"L1", "3", "T", "1"});
    RowStore copy = rows;
    rows[0].Number = "9";
    EXPECT_EQ(copy.GetSize(), 1);
    EXPECT_EQ(copy[0], (ParcelRow{"L1", "3", "T", "1"}));
}
