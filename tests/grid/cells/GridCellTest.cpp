#include "grid/cells/GridCell.h"

#include "StoreChecker.h"
#include "grid/cells/CellHook.h"
#include "platform/user/User.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Distinct addresses for objects that the cell only points at.
char FakeObjects[128];
template <typename T> T* Fake(int n) {
    return reinterpret_cast<T*>(FakeObjects + n);
}

// Each property with its bits and a setter; `other` gives a second, different value.
struct Property {
    const char* name;
    DWORD bits;
    std::function<void(GridCell&, bool other)> set;
};

const Property Properties[] = {
    {"text", PropText | PropDataType, [](GridCell& c, bool o) { c.SetText(o ? "two" : "one"); }},
    {"mask", PropMask, [](GridCell& c, bool o) { c.SetMask(o ? "99" : "00"); }},
    {"label", PropLabel, [](GridCell& c, bool o) { c.SetLabel(o ? "B" : "A"); }},
    {"data type", PropDataType, [](GridCell& c, bool o) { c.SetDataType(o ? 5 : 2); }},
    {"user value", PropUserValue, [](GridCell& c, bool o) { c.SetUserValue(o ? 8 : 7); }},
    {"cell type", PropCellType, [](GridCell& c, bool o) { c.SetCellType(o ? 3 : 2); }},
    {"option", PropCellTypeOption, [](GridCell& c, bool o) { c.SetCellTypeOption(o ? 6 : 5); }},
    {"text colour", PropTextColor, [](GridCell& c, bool o) { c.SetTextColor(o ? 11 : 10); }},
    {"back colour", PropBackColor, [](GridCell& c, bool o) { c.SetBackColor(o ? 21 : 20); }},
    {"hilite text", PropHiliteTextColor,
     [](GridCell& c, bool o) { c.SetHiliteTextColor(o ? 31 : 30); }},
    {"hilite back", PropHiliteBackColor,
     [](GridCell& c, bool o) { c.SetHiliteBackColor(o ? 41 : 40); }},
    {"border", PropBorder, [](GridCell& c, bool o) { c.SetBorder(o ? 0x2000 : 0x1); }},
    {"pen", PropBorderPen, [](GridCell& c, bool o) { c.SetBorderPen(Fake<CPen>(o ? 16 : 8)); }},
    {"font", PropFont, [](GridCell& c, bool o) { c.SetFont(Fake<CFont>(o ? 32 : 24)); }},
    {"bitmap", PropBitmap, [](GridCell& c, bool o) { c.SetBitmap(Fake<CBitmap>(o ? 48 : 40)); }},
    {"alignment", PropAlignment, [](GridCell& c, bool o) { c.SetAlignment(o ? 0x24 : 0x2); }},
    {"extra", PropExtraData,
     [](GridCell& c, bool o) { std::memcpy(c.AllocExtraData(2), o ? "yy" : "xx", 2); }},
    {"join", PropJoin, [](GridCell& c, bool o) { c.SetJoin(o ? 0 : 1, o ? -1 : 2, o ? -2 : 3); }},
    {"hook", PropCellHook, [](GridCell& c, bool o) { c.SetCellHook(Fake<CellHook>(o ? 72 : 64)); }},
    {"style", PropStyleCell,
     [](GridCell& c, bool o) { c.SetStyleCell(Fake<GridCell>(o ? 88 : 80)); }},
    {"read only", PropReadOnly, [](GridCell& c, bool o) { c.SetReadOnly(o ? 0 : 1); }},
    {"precision", PropPrecision, [](GridCell& c, bool o) { c.SetPrecision(o ? 4 : 3); }},
};

void SetAll(GridCell& cell, bool other) {
    for (const Property& p : Properties) p.set(cell, other);
}

TEST(GridCell, NewCellIsEmptyAndAnswersDefaults) {
    GridCell cell;
    EXPECT_EQ(cell.GetProperties(), 0u);
    EXPECT_EQ(cell.GetText(), nullptr);
    EXPECT_EQ(cell.GetTextLength(), 0);
    EXPECT_EQ(cell.GetDataType(), 1);
    EXPECT_EQ(cell.GetTextColor(), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(cell.GetBackColor(), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(cell.GetHiliteTextColor(), GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(cell.GetHiliteBackColor(), GetSysColor(COLOR_HIGHLIGHT));
    std::string out = "kept";
    EXPECT_EQ(cell.GetText(out), 1);
    EXPECT_EQ(out, "kept");
}

TEST(GridCell, EachSetterRaisesExactlyItsBits) {
    for (const Property& p : Properties) {
        GridCell cell;
        p.set(cell, false);
        EXPECT_EQ(cell.GetProperties(), p.bits) << p.name;
    }
}

TEST(GridCell, MergeReplacesOnlyWhatTheSourceSets) {
    for (const Property& p : Properties) {
        SCOPED_TRACE(p.name);
        GridCell target, source, expected;
        SetAll(target, false);
        SetAll(expected, false);
        p.set(source, true);
        p.set(expected, true);
        target.MergeFrom(source);
        EXPECT_EQ(DescribeCell(target), DescribeCell(expected));
    }
}

TEST(GridCell, MergeNeverTakesAPropertyAway) {
    GridCell target, before, source;
    SetAll(target, false);
    SetAll(before, false);
    source.SetProperties(0x40000);
    source.MergeInto(target);
    EXPECT_EQ(target.GetProperties(), before.GetProperties() | 0x40000);
    target.SetProperties(before.GetProperties());
    EXPECT_EQ(DescribeCell(target), DescribeCell(before));
}

TEST(GridCell, CopyTakesTheSourceMaskAndKeepsHiddenFields) {
    GridCell target, source;
    SetAll(target, false);
    source.SetBackColor(7);
    source.CopyTo(target);
    EXPECT_EQ(target.GetProperties(), DWORD{PropBackColor});
    EXPECT_EQ(target.GetBackColor(), 7u);
    // The fields behind the cleared bits still hold the old values.
    target.SetProperties(PropUserValue | PropText);
    EXPECT_EQ(target.GetUserValue(), 7);
    EXPECT_STREQ(target.GetText(), "one");
}

TEST(GridCell, ClearAllLeavesMarkersBehindTheMask) {
    GridCell cell;
    SetAll(cell, false);
    cell.ClearAll();
    EXPECT_EQ(cell.GetProperties(), 0u);
    cell.SetProperties(PropText | PropMask | PropUserValue | PropCellType | PropExtraData);
    EXPECT_STREQ(cell.GetText(), "");
    EXPECT_STREQ(cell.GetMask(), "00");
    EXPECT_EQ(cell.GetUserValue(), -1);
    EXPECT_EQ(cell.GetCellType(), -1);
    EXPECT_EQ(cell.GetExtraData(), nullptr);
    EXPECT_EQ(cell.GetExtraSize(), 0u);
}

TEST(GridCell, SetDefaultsFillsTextsColoursAndAlignment) {
    GridCell cell;
    cell.SetText("x");
    cell.SetStyleCell(&cell);
    cell.SetDefaults();
    EXPECT_EQ(cell.GetProperties(), 0x8787u);
    EXPECT_STREQ(cell.GetText(), "");
    EXPECT_EQ(cell.GetBackColor(), GetSysColor(COLOR_WINDOW));
    cell.SetProperties(PropStyleCell);
    EXPECT_EQ(cell.GetStyleCell(), nullptr);
}

TEST(GridCell, NullArgumentsOfBitmapAndHook) {
    GridCell cell;
    cell.SetBitmap(Fake<CBitmap>(8));
    cell.SetCellHook(Fake<CellHook>(16));
    EXPECT_EQ(cell.SetBitmap(nullptr), 0);
    EXPECT_FALSE(cell.HasProperty(PropBitmap));
    EXPECT_EQ(cell.SetCellHook(nullptr), 1);
    EXPECT_EQ(cell.GetCellHook(), Fake<CellHook>(16));
    cell.SetReadOnly(5);
    EXPECT_EQ(cell.GetReadOnly(), 1);
}

TEST(GridCell, ExtraDataIsEachCellsOwn) {
    GridCell a, b;
    std::memcpy(a.AllocExtraData(4), "abcd", 4);
    b.MergeFrom(a);
    a.FreeExtraData();
    EXPECT_FALSE(a.HasProperty(PropExtraData));
    ASSERT_EQ(b.GetExtraSize(), 4u);
    EXPECT_EQ(std::memcmp(b.GetExtraData(), "abcd", 4), 0);
    b.MergeFrom(b);
    b.CopyFrom(b);
    EXPECT_EQ(std::memcmp(b.GetExtraData(), "abcd", 4), 0);
}

TEST(GridCell, ReservedKindChangesOnlyAnAlreadySetDataType) {
    const std::int32_t fields[6] = {1, 2, 3, 4, 5, 6};
    GridCell fresh;
    EXPECT_EQ(fresh.SetReservedValue(fields), 1);
    EXPECT_EQ(fresh.GetProperties(), 0u);
    EXPECT_EQ(fresh.GetDataType(), 1);

    GridCell text;
    text.SetText("x");
    text.SetReservedValue(fields);
    EXPECT_EQ(text.GetDataType(), 4);
    EXPECT_STREQ(text.GetText(), "x");
}

TEST(GridCell, TypedSettersWriteTextAndKind) {
    GridCell cell;
    cell.SetNumber(1.5);
    EXPECT_STREQ(cell.GetText(), "1.500000");
    EXPECT_EQ(cell.GetDataType(), 2);
    cell.SetPrecision(2);
    cell.SetNumber(1.5);
    EXPECT_STREQ(cell.GetText(), "1.50");
    cell.SetPrecision(0);
    cell.SetNumber(-3.25);
    EXPECT_STREQ(cell.GetText(), "-3");
    cell.SetBool(9);
    EXPECT_STREQ(cell.GetText(), "1");
    EXPECT_EQ(cell.GetDataType(), 3);
    cell.AppendText("2");
    EXPECT_STREQ(cell.GetText(), "12");
    EXPECT_EQ(cell.GetDataType(), 1);
}

TEST(GridCell, BooleanReading) {
    const struct {
        const char* text;
        int value;
    } cases[] = {{"1", 1},     {"TRUE", 1}, {"true", 1}, {"7", 1},   {" 3", 1},
                 {"false", 0}, {"0", 0},    {"", 0},     {"yes", 0}, {"-0", 0}};
    for (const auto& c : cases) {
        GridCell cell;
        cell.SetText(c.text);
        EXPECT_EQ(cell.GetBool(), c.value) << c.text;
        int flag = 9;
        cell.ParseBool(c.text, flag);
        EXPECT_EQ(flag, c.text[0] == '0' || c.text[0] == 'f' ? 0 : 1) << c.text;
    }
    GridCell cell;
    int flag = 9;
    EXPECT_EQ(cell.ParseBool("F", flag), 0);
    EXPECT_EQ(flag, 0);
}

TEST(GridCell, NumberReadingNeedsOnlyText) {
    GridCell cell;
    int i = 5;
    EXPECT_EQ(cell.GetInt(i), 1);
    EXPECT_EQ(i, 5);
    EXPECT_EQ(cell.GetNumber(), 0.0);
    cell.SetText("99999999999");
    EXPECT_EQ(cell.GetInt(i), 0);
    EXPECT_EQ(i, INT32_MAX);
    LONG l = 0;
    cell.SetText("-12abc");
    cell.GetLong(l);
    EXPECT_EQ(l, -12);
    float f = 0;
    cell.SetText("0.1");
    cell.GetFloat(f);
    EXPECT_EQ(f, 0.1f);
    EXPECT_EQ(cell.GetNumber(), 0.1);
}

TEST(GridCell, ParseNumberKeepsDecimalsByPrecision) {
    const struct {
        const char* text;
        int precision; // -1: not set
        double value;
    } cases[] = {
        {"12.345", -1, 12},      {"12.345", 0, 12}, {"12.345", 1, 12}, {"12.345", 3, 12.34},
        {"a1b2.3.4c", 3, 12.34}, {"-1,5", -1, -15}, {"1.2-3", 9, 1.2}, {"", 2, 0},
    };
    for (const auto& c : cases) {
        GridCell cell;
        if (c.precision >= 0) cell.SetPrecision(static_cast<short>(c.precision));
        double out = -1;
        EXPECT_EQ(cell.ParseNumber(c.text, out), 0);
        EXPECT_DOUBLE_EQ(out, c.value) << c.text << " precision " << c.precision;
    }
}

} // namespace
