// Colour tables: unique sorted entries, the colour of a value, range generation, dredging
// tables and the colour-table file.
#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <cmath>
#include <gtest/gtest.h>

namespace {
constexpr COLORREF kBlue = RGB(0, 0, 255), kRed = RGB(255, 0, 0), kBlack = RGB(0, 0, 0),
                   kWhite = RGB(255, 255, 255), kMagenta = RGB(255, 0, 255);

std::vector<double> values(const ColorTable& table)
{
    std::vector<double> out;
    for (const auto& e : table.Entries())
        out.push_back(e.value);
    return out;
}

ColorTable fromText(const char* text, QStringList* errors = nullptr, bool* ok = nullptr)
{
    FileObject file;
    file.LoadFromText(QString::fromUtf8(text));
    ColorTable table;
    const bool read = table.FileOpen(file);
    if (ok)
        *ok = read;
    if (errors)
        *errors = table.Errors();
    return table;
}
} // namespace

TEST(ColorTable, ValuesAreUniqueSortedAndLookedUpByTheLastEntryNotAbove)
{
    ColorTable table;
    table.SetLowColor(RGB(1, 2, 3));
    table.AddEntry(20, RGB(0, 255, 0), false, "twenty");
    table.AddEntry(10, kRed, true, "ten");
    EXPECT_EQ(table.AddEntry(20, kBlue, true, "again"), 1) << "an equal value replaces its entry";
    EXPECT_EQ(table.InsertEntry(std::nan(""), 0, false), -1);
    EXPECT_EQ(values(table), (std::vector<double> { 10, 20 }));
    EXPECT_EQ(table.EntryName(1), "again");
    const struct { double value; COLORREF color; } cases[] = {
        { 9.999, RGB(1, 2, 3) }, { 10, kRed }, { 19.999, kRed }, { 20, kBlue }, { 1e300, kBlue },
        { -INFINITY, RGB(1, 2, 3) }, { std::nan(""), RGB(1, 2, 3) },
    };
    for (const auto& c : cases)
        EXPECT_EQ(table.GetColor(c.value), c.color) << c.value;

    // The index of each insertion, also while the entries grow and move.
    ColorTable grown;
    for (int i = 0; i < 100; ++i) {
        const double value = (i * 37) % 100;
        const int index = grown.InsertEntry(value, 0, false);
        ASSERT_TRUE(index >= 0 && grown.EntryValue(index) == value) << i;
    }

    table.InsertEntry(30, kWhite, false);
    table.ClearEntries(false);
    EXPECT_EQ(values(table), (std::vector<double> { 10, 20 })) << "only the unlocked entry went";
    table.ClearEntries(true);
    EXPECT_EQ(table.NumEntries(), 0);
}

TEST(ColorTable, RangesByCountAndByStepSpanTheirEndsExactly)
{
    ColorTable table;
    ASSERT_TRUE(table.SetRangeRGB(-10.0, 0.0, 6, kBlue, kRed));
    EXPECT_EQ(values(table), (std::vector<double> { -10, -7.5, -5, -2.5, 0 }));
    EXPECT_EQ(table.LowColor(), kBlue);
    EXPECT_EQ(table.EntryColor(4), kRed);
    EXPECT_EQ(table.EntryColor(1), RGB(102, 0, 153)) << "colour 2 of 6, in RGB";

    ASSERT_TRUE(table.SetRange(0.0, 10.0, 2.0, kBlack, kWhite));
    EXPECT_EQ(values(table), (std::vector<double> { 0, 2, 4, 6, 8, 10 })) << "7 colours";
    ASSERT_TRUE(table.SetRange(0.0, 10.0, 3.0, kBlack, kWhite));
    EXPECT_EQ(values(table), (std::vector<double> { 0, 3, 6, 9, 10 })) << "the last step is cut at max";
    ASSERT_TRUE(table.SetRange(0.1, 0.7, 0.1, kBlack, kWhite));
    EXPECT_EQ(table.NumEntries(), 7) << "a whole number of steps within rounding";

    // Swapped ends swap values and colours together.
    ColorTable swapped, straight;
    ASSERT_TRUE(swapped.SetRange(5.0, -5.0, 11, kBlue, kRed));
    ASSERT_TRUE(straight.SetRange(-5.0, 5.0, 11, kRed, kBlue));
    EXPECT_EQ(swapped, straight);
    EXPECT_EQ(values(swapped).front(), -5.0);

    ASSERT_TRUE(table.SetRange(3.0, 3.0, 50, kBlack, kWhite));
    EXPECT_EQ(values(table), (std::vector<double> { 3 })) << "an empty range has one entry";

    // Refusals leave the table as it was.
    const ColorTable before = table;
    EXPECT_FALSE(table.SetRange(0.0, 1.0, 1, kBlack, kWhite));
    EXPECT_FALSE(table.SetRange(0.0, 1.0, 0.0, kBlack, kWhite));
    EXPECT_FALSE(table.SetRange(0.0, 1.0, -1.0, kBlack, kWhite));
    EXPECT_FALSE(table.SetRangeRGB(std::nan(""), 1.0, 5, kBlack, kWhite));
    EXPECT_FALSE(table.SetRangeRGB(0.0, 1e9, 1e-6, kBlack, kWhite)) << "too many entries";
    EXPECT_FALSE(table.AddRange(-1e308, 1e308, 1.0, kBlack, kWhite, true));
    EXPECT_EQ(table, before);
}

TEST(ColorTable, HueRampsRunTheColourCircleAndThreeColourRampsPassTheMiddle)
{
    ColorTable hues;
    ASSERT_TRUE(hues.SetRange(0.0, 4.0, 6, kRed, kMagenta)); // hues 0 to 300 in steps of 60
    const COLORREF expected[] = { RGB(255, 255, 0), RGB(0, 255, 0), RGB(0, 255, 255), kBlue, kMagenta };
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(hues.EntryColor(i), expected[i]) << i;

    ColorTable greyToBlue;
    ASSERT_TRUE(greyToBlue.SetRange(0.0, 1.0, 3, kWhite, kBlue));
    double h, s, v;
    ColorTable::RGBtoHSV(greyToBlue.EntryColor(0), h, s, v);
    EXPECT_DOUBLE_EQ(h, 240.0) << "a grey end takes the other end's hue";

    ColorTable rust;
    ASSERT_TRUE(rust.SetRangeRGB3(0.0, 1.0, 5, kBlack, RGB(161, 45, 4), RGB(255, 255, 0)));
    EXPECT_EQ(rust.LowColor(), kBlack);
    EXPECT_EQ(rust.EntryColor(1), RGB(161, 45, 4)) << "colour 3 of 5 is the middle colour";
    EXPECT_EQ(rust.EntryColor(3), RGB(255, 255, 0));

    for (COLORREF c : { kRed, RGB(12, 200, 77), RGB(161, 45, 4), RGB(128, 128, 128), kMagenta }) {
        ColorTable::RGBtoHSV(c, h, s, v);
        EXPECT_EQ(ColorTable::HSVtoRGB(h, s, v), c) << std::hex << c;
    }
    EXPECT_EQ(ColorTable::HSVtoRGB(-120.0, 2.0, 1.0), kBlue) << "hue modulo 360, saturation clamped";
}

TEST(ColorTable, AddedRangesMergeAndKeepLockedEntries)
{
    ColorTable table;
    ASSERT_TRUE(table.AddRange(0.0, 2.0, 4, kBlack, kWhite, true));
    EXPECT_EQ(table.LowColor(), kBlack) << "an empty table takes the range's low colour";
    table.SetLowColor(kRed);
    table.SetEntryLocked(1, true);
    const COLORREF lockedColor = table.EntryColor(1);
    ASSERT_TRUE(table.AddRange(1.0, 5.0, 6, kBlue, kBlue, true)); // 1, 2, 3, 4, 5
    EXPECT_EQ(values(table), (std::vector<double> { 0, 1, 2, 3, 4, 5 }));
    EXPECT_EQ(table.EntryColor(1), lockedColor) << "the locked entry of value 1 stays";
    EXPECT_EQ(table.EntryColor(2), kBlue) << "the unlocked entry of value 2 is replaced";
    EXPECT_EQ(table.LowColor(), kRed);
}

TEST(ColorTable, DredgeDifferencesColourBelowBetweenAndAboveTheLimits)
{
    ColorTable table;
    table.SetOverDredgeColorRange(RGB(200, 0, 0), kRed, 3);
    table.SetInTolColorRange(RGB(255, 255, 0), RGB(0, 255, 0), 4);
    table.SetUnderDredgeColorRange(RGB(192, 192, 192), RGB(128, 128, 128), 2);
    table.SetOverDredgeLimit(-0.4);
    table.SetUnderDredgeLimit(0.4);
    table.GenerateDredgeDiffColorTable();
    const std::vector<double> expected { -0.8, -0.6, -0.4, -0.2, 0.0, 0.2, 0.4, 0.6 };
    ASSERT_EQ(table.NumEntries(), int(expected.size()));
    for (int i = 0; i < table.NumEntries(); ++i)
        EXPECT_NEAR(table.EntryValue(i), expected[size_t(i)], 1e-12) << i;
    EXPECT_EQ(table.EntryValue(2), -0.4) << "the in-tolerance ramp starts exactly at the limit";
    EXPECT_EQ(table.EntryValue(6), 0.4);
    const struct { double value; COLORREF color; } cases[] = {
        { -5.0, kRed }, { -0.45, RGB(200, 0, 0) }, { -0.4, RGB(255, 255, 0) },
        { 0.35, RGB(0, 255, 0) }, { 0.4, RGB(192, 192, 192) }, { 9.0, RGB(128, 128, 128) },
    };
    for (const auto& c : cases)
        EXPECT_EQ(table.GetColor(c.value), c.color) << c.value;

    unsigned count = 0;
    COLORREF lo = 0, hi = 0;
    table.SetInTolColorRange(0, 0, 5000);
    table.GetInTolColorRange(lo, hi, count);
    EXPECT_EQ(count, 256u) << "counts are held to 1..256";
}

TEST(ColorTable, FilesRoundTripEverything)
{
    ColorTable table;
    table.SetRange(-20.0, 0.0, 9, kBlue, kRed);
    table.AddEntry(-3.25, RGB(1, 2, 3), true, "Sand, fine");
    table.SetLowColorName("Deep");
    table.SetDredgeDiffColTab(true);
    table.SetUnderDredgeLimit(0.3);
    FileObject file;
    file.LoadFromText(QStringLiteral("[Other]\nkey = kept\n"));
    ASSERT_TRUE(table.FileSave(file));
    ColorTable read;
    FileObject reread;
    reread.LoadFromText(file.ToText());
    ASSERT_TRUE(read.FileOpen(reread));
    EXPECT_EQ(read, table);
    EXPECT_TRUE(read.Errors().isEmpty()) << read.Errors().join('\n').toStdString();
    EXPECT_TRUE(reread.HasEntry("Other", "key"));
}

TEST(ColorTable, BadFilesLoadWhatReadsAndSayWhatWasRepaired)
{
    QStringList errors;
    bool ok = true;
    ColorTable table = fromText("[Other]\nEntry = 1, 0 0 0\n", &errors, &ok);
    EXPECT_FALSE(ok) << "no colour table in the file";
    EXPECT_EQ(table.NumEntries(), 0);

    table = fromText("[ColorTable]\nLowColor = 300 0 0\n"
                     "Entry = 5, 255 0 0\nEntry = x, 0 0 0\nEntry = 1, 0 0\nEntry = 2, 0 0 0, maybe\n"
                     "Entry = 1, 0 255 0\nEntry = 5, 0 0 255, locked\nEntry = nan, 1 1 1\nEntry = 1e999, 1 1 1\n"
                     "Entry = 3\n",
                     &errors, &ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(values(table), (std::vector<double> { 1, 5 })) << "sorted, the first of each value kept";
    EXPECT_EQ(table.EntryColor(1), kRed);
    EXPECT_EQ(table.LowColor(), kWhite);
    EXPECT_EQ(errors.size(), 9) << errors.join('\n').toStdString();

    table = fromText("[ColorTable]\n[DredgeDiff]\nUnderCount = 0\nOverLimit = deep\nTable = 1\n", &errors, &ok);
    EXPECT_TRUE(table.IsDredgeDiffColTab());
    double limit = 0;
    table.GetOverDredgeLimit(limit);
    EXPECT_EQ(limit, -0.5);
    EXPECT_EQ(errors.size(), 2);
}
