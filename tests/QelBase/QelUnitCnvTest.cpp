// Unit conversions against the exact definitions of the units.
#include <QelBase/FileObject.h>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>

#include <gtest/gtest.h>

#include <limits>

TEST(QelUnitCnv, Conversions)
{
    CQelUnitCnv cnv;
    ASSERT_TRUE(cnv.SetUnit(UNIT_DISTANCE, "ft"));
    EXPECT_EQ(cnv.ToInternalUnit(UNIT_DISTANCE, 10.0), 3.048);

    ASSERT_TRUE(cnv.SetUnit(UNIT_DEPTH, "ftUS"));
    for (double v : {1.0, 3937.0, 12345.678, -0.5})
        EXPECT_DOUBLE_EQ(cnv.ToExternalUnit(UNIT_DEPTH, cnv.ToInternalUnit(UNIT_DEPTH, v)), v);

    struct Case { int kind; const char* from; const char* to; double in; double out; };
    const Case cases[] = {
        {UNIT_DEPTH, "fathom", "ft", 1.0, 6.0},
        {UNIT_SPEED, "kn", "km/h", 1.0, 1.852},
        {UNIT_TEMPERATURE, "degC", "degF", 37.0, 98.6},
        {UNIT_WEIGHT, "T", "lb", 0.45359237, 1000.0},
    };
    for (const Case& c : cases) {
        bool ok = false;
        EXPECT_NEAR(cnv.ConvertUnit(c.kind, c.in, c.from, c.to, &ok), c.out, 1e-12 * (1 + std::abs(c.out)))
            << c.from << "->" << c.to;
        EXPECT_TRUE(ok);
    }
    bool ok = true;
    EXPECT_EQ(cnv.ConvertUnit(UNIT_DISTANCE, 5.0, "ft", "furlong", &ok), 0.0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(cnv.ConvertUnit(-3, 5.0, "m", "m"), 0.0);
}

TEST(QelUnitCnv, BadInputNeverFails)
{
    CQelUnitCnv cnv;
    EXPECT_FALSE(cnv.SetUnit(UNIT_DISTANCE, "parsec"));
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DISTANCE), "m");
    EXPECT_FALSE(cnv.SetUnit(kUnitKindCount, "m"));
    EXPECT_EQ(cnv.ToInternalUnit(77, 4.5), 4.5);
    const double inf = std::numeric_limits<double>::infinity();
    for (double factor : {0.0, inf, std::nan("")}) {
        EXPECT_EQ(cnv.ToExternalUnit(3, 8.0, factor, 1.0), 7.0);
        EXPECT_EQ(cnv.ToInternalUnit(3, 8.0, factor, 1.0), 9.0);
    }
}

TEST(QelUnitCnv, LoadAndSaveThroughFile)
{
    FileObject fo;
    fo.LoadFromText("[Units]\n"
                    "Distance Units = ft\n"
                    "4 = fathom\n"
                    "Speed Units = kn\n"
                    "Height Units = parsec\n"
                    "Bogus Units = m\n"
                    "99 = m\n");
    CQelUnitCnv cnv;
    EXPECT_TRUE(cnv.Load(fo));
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DEPTH), "fathom");
    EXPECT_EQ(cnv.GetUnitKey(UNIT_HEIGHT), "m");
    FileObject out;
    cnv.Save(out, "U");
    EXPECT_EQ(out.GetEntries("U").size(), kUnitKindCount);
}

TEST(QelUnitCnv, SavingIntoTheSectionItWasReadFromReadsBackTheSame)
{
    // A kind named twice, or by its number, would override the saved entry on the next load.
    FileObject fo;
    fo.LoadFromText("[Units]\nDepth Units = ft\n4 = fats = 1\nDistance Units = km\n[Other]\nx = 1\n"
                    "[Units]\ndepth units = ft\n4 = fathom\n3 = yd\n");
    CQelUnitCnv cnv;
    ASSERT_TRUE(cnv.Load(fo));
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DEPTH), "fathom");
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DISTANCE), "yd");
    cnv.Save(fo);
    EXPECT_EQ(fo.GetEntries("Units").size(), kUnitKindCount);
    CQelUnitCnv back;
    ASSERT_TRUE(back.Load(fo));
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        EXPECT_EQ(back.GetUnitKey(kind), cnv.GetUnitKey(kind)) << kind;
    EXPECT_EQ(fo.GetValues("Other", "x"), QStringList{"1"});
}
