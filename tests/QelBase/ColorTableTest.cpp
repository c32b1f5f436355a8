// Colour tables: sorted entries, the colour of a value, locked entries, contrast colours.
#include <QelBase/ColorTable.h>
#include <cmath>
#include <gtest/gtest.h>

namespace {
// Entries 10 (red), 20 (green), 20 (blue, locked), 30 (white, locked) inserted out of order.
ColorTable SampleTable()
{
    ColorTable table;
    table.SetLowColor(RGB(1, 2, 3));
    table.AddEntry(20, RGB(0, 255, 0), false, "first 20");
    table.AddEntry(30, RGB(255, 255, 255), true, "thirty");
    table.AddEntry(10, RGB(255, 0, 0), false, "ten");
    table.AddEntry(20, RGB(0, 0, 255), true, "second 20");
    return table;
}
} // namespace

TEST(ColorTable, EntriesStaySortedAndEqualValuesKeepTheirInsertionOrder)
{
    const ColorTable table = SampleTable();
    ASSERT_EQ(table.NumEntries(), 4);
    const char* const names[] = { "ten", "first 20", "second 20", "thirty" };
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(table.EntryName(i), names[i]);
    EXPECT_EQ(table.NumLocked(), 2);
    ColorTable copy = table;
    EXPECT_EQ(copy.InsertEntry(20, 0, false), 3) << "after the entries of the same value";
    EXPECT_EQ(copy.InsertEntry(std::nan(""), 0, false), -1);
    EXPECT_EQ(copy.NumEntries(), 5);
}

TEST(ColorTable, TheColourOfAValueIsThatOfTheLastEntryNotAboveIt)
{
    const ColorTable table = SampleTable();
    const struct { double value; COLORREF color; } cases[] = {
        { 9.999, RGB(1, 2, 3) },   { 10, RGB(255, 0, 0) },  { 20, RGB(0, 0, 255) },
        { 1e300, RGB(255, 255, 255) }, { std::nan(""), RGB(1, 2, 3) },
    };
    for (const auto& c : cases)
        EXPECT_EQ(table.GetColor(c.value), c.color) << c.value;
    EXPECT_EQ(ColorTable().GetColor(0), RGB(255, 255, 255)) << "an empty table gives its low colour";
}

TEST(ColorTable, EditsOutOfRangeAreRefusedAndClearingCanKeepLockedEntries)
{
    ColorTable table = SampleTable();
    for (int index : { -1, 4 }) {
        EXPECT_FALSE(table.RemoveEntry(index));
        EXPECT_FALSE(table.SetEntryColor(index, 0));
        EXPECT_EQ(table.EntryColor(index), 0u);
    }
    EXPECT_EQ(table.NumEntries(), 4);
    EXPECT_TRUE(table.SetEntryColor(0, RGB(9, 9, 9)));
    EXPECT_EQ(table.GetColor(10), RGB(9, 9, 9));
    EXPECT_TRUE(table.RemoveEntry(0));
    EXPECT_EQ(table.GetColor(10), RGB(1, 2, 3));

    table.ClearEntries(true);
    ASSERT_EQ(table.NumEntries(), 2);
    EXPECT_EQ(table.EntryName(0), "second 20");
    EXPECT_EQ(table.EntryName(1), "thirty");
    table.ClearEntries();
    EXPECT_EQ(table.NumEntries(), 0);
}
