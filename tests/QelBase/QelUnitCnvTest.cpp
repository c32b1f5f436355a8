// Unit conversions against the exact definitions of the units.
#include <QelBase/FileObject.h>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>

#include <gtest/gtest.h>

#include <limits>

TEST(UnitCategories, NamesAndKinds)
{
    EXPECT_EQ(UnitCategoryName(UNIT_NONE), "No Units");
    EXPECT_EQ(UnitCategoryName(UNIT_DISTANCE), "Distance Units");
    EXPECT_EQ(UnitCategoryName(UNIT_PERCENT), "Percent Units");
    EXPECT_TRUE(UnitCategoryName(-1).isEmpty());
    EXPECT_TRUE(UnitCategoryName(kUnitKindCount).isEmpty());
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        EXPECT_EQ(UnitKindFromName(UnitCategoryName(kind).toUpper()), kind);
    EXPECT_EQ(UnitKindFromName("water/wind speed units"), UNIT_WATER_WIND_SPEED);
    EXPECT_EQ(UnitKindFromName("Distance"), -1);
}

TEST(QelUnitCnv, Defaults)
{
    const CQelUnitCnv cnv;
    struct Case { int kind; const char* mnemonic; };
    const Case cases[] = {{UNIT_SYSTEM, "m"}, {UNIT_SPEED, "m/sec"}, {UNIT_DISTANCE, "m"},
                          {UNIT_DEPTH, "m"}, {UNIT_HEIGHT, "m"}, {UNIT_WEIGHT, "T"},
                          {UNIT_FORCE, "kgf"}, {UNIT_ANGULAR, "°"}};
    for (const Case& c : cases)
        EXPECT_EQ(cnv.GetUnitMnem(c.kind), QString::fromUtf8(c.mnemonic)) << c.kind;
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        EXPECT_FALSE(CQelUnitCnv::KnownUnits(kind).isEmpty()) << kind;
    EXPECT_TRUE(cnv.GetUnitMnem(kUnitKindCount).isEmpty());
    double f = 0, o = 0;
    QString name, key, mnem;
    EXPECT_FALSE(cnv.GetUnit(-1, f, o, name, key, mnem));
    EXPECT_TRUE(cnv.GetUnit(UNIT_WEIGHT, f, o, name, key, mnem));
    EXPECT_EQ(key + " " + QString::number(f), "T 1000");
}

TEST(QelUnitCnv, ExactFactors)
{
    struct Case { int kind; const char* key; double factor; double offset; };
    const Case cases[] = {
        {UNIT_DISTANCE, "ft", 0.3048, 0}, {UNIT_DEPTH, "ftUS", 1200.0 / 3937.0, 0},
        {UNIT_HEIGHT, "yd", 0.9144, 0}, {UNIT_DEPTH, "fathom", 1.8288, 0},
        {UNIT_SYSTEM, "NM", 1852, 0}, {UNIT_DISTANCE, "mi", 1609.344, 0},
        {UNIT_SPEED, "kn", 1852.0 / 3600.0, 0}, {UNIT_FORCE, "kgf", 9.80665, 0},
        {UNIT_WEIGHT, "lb", 0.45359237, 0}, {UNIT_WEIGHT, "T", 1000, 0},
        {UNIT_TEMPERATURE, "degF", 5.0 / 9.0, -160.0 / 9.0}, {UNIT_TEMPERATURE, "K", 1, -273.15},
        {UNIT_KP, "km", 1000, 0}, {UNIT_PAPER, "in", 0.0254, 0}, {UNIT_DISTANCE, "mm", 0.001, 0},
    };
    for (const Case& c : cases) {
        UnitInfo info;
        ASSERT_TRUE(CQelUnitCnv::FindUnit(c.kind, c.key, info)) << c.key;
        EXPECT_EQ(info.factor, c.factor) << c.key;
        EXPECT_EQ(info.offset, c.offset) << c.key;
    }
    UnitInfo info;
    EXPECT_FALSE(CQelUnitCnv::FindUnit(UNIT_DISTANCE, "M", info));   // keys are case-sensitive
    EXPECT_FALSE(CQelUnitCnv::FindUnit(UNIT_KP, "ft", info));
    EXPECT_FALSE(CQelUnitCnv::FindUnit(99, "m", info));
}

TEST(QelUnitCnv, Conversions)
{
    CQelUnitCnv cnv;
    ASSERT_TRUE(cnv.SetUnit(UNIT_DISTANCE, "ft"));
    EXPECT_EQ(cnv.ToInternalUnit(UNIT_DISTANCE, 10.0), 3.048);
    EXPECT_DOUBLE_EQ(cnv.ToExternalUnit(UNIT_DISTANCE, 0.3048), 1.0);
    EXPECT_DOUBLE_EQ(cnv.ConvertUnit(UNIT_DISTANCE, 1.0), 1.0 / 0.3048);

    ASSERT_TRUE(cnv.SetUnit(UNIT_DEPTH, "ftUS"));
    for (double v : {1.0, 3937.0, 12345.678, -0.5})
        EXPECT_DOUBLE_EQ(cnv.ToExternalUnit(UNIT_DEPTH, cnv.ToInternalUnit(UNIT_DEPTH, v)), v);

    struct Case { int kind; const char* from; const char* to; double in; double out; };
    const Case cases[] = {
        {UNIT_DEPTH, "fathom", "ft", 1.0, 6.0},
        {UNIT_DISTANCE, "NM", "m", 2.0, 3704.0},
        {UNIT_DISTANCE, "mi", "ft", 1.0, 5280.0},
        {UNIT_DISTANCE, "ftUS", "m", 3937.0, 1200.0},
        {UNIT_SPEED, "kn", "km/h", 1.0, 1.852},
        {UNIT_TEMPERATURE, "degF", "degC", 212.0, 100.0},
        {UNIT_TEMPERATURE, "degF", "degC", -40.0, -40.0},
        {UNIT_TEMPERATURE, "degC", "degF", 37.0, 98.6},
        {UNIT_TEMPERATURE, "K", "degC", 0.0, -273.15},
        {UNIT_FORCE, "kgf", "N", 2.0, 19.6133},
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
    ok = true;
    EXPECT_EQ(cnv.ConvertUnit(UNIT_SPEED, 5.0, "m", "ft", &ok), 0.0);   // lengths are no speeds
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

TEST(QelUnitCnv, FormatCodes)
{
    const CQelUnitCnv cnv;
    struct Case { const char* code; int kind; };
    const Case cases[] = {{"FMT_DISTANCE", 3}, {" fmt_depth ", 4}, {"FMT_HEIGHT", 9},
                          {"FMT_SPEED", 2}, {"FMT_ANGLE", 19}, {"FMT_PERCENT", 29},
                          {"FMT_WEIGHT", 13}, {"FMT_FORCE", 23}, {"FMT_TEMPERATURE", 21},
                          {"FMT_PRESSURE", 10}, {"FMT_VOLUME", 5}, {"FMT_AREA", 20},
                          {"FMT_SYSTEM", 1}, {"FMT_DISTANCEX", 0}, {"", 0}, {"3", 0}};
    for (const Case& c : cases)
        EXPECT_EQ(cnv.ConvertFMTtoUNIT(c.code), c.kind) << c.code;
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
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DISTANCE), "ft");
    EXPECT_EQ(cnv.GetUnitKey(UNIT_DEPTH), "fathom");
    EXPECT_EQ(cnv.GetUnitKey(UNIT_SPEED), "kn");
    EXPECT_EQ(cnv.GetUnitKey(UNIT_HEIGHT), "m");
    EXPECT_FALSE(cnv.Load(fo, "Missing"));

    FileObject out;
    cnv.Save(out, "U");
    EXPECT_EQ(out.GetEntries("U").size(), kUnitKindCount);
    CQelUnitCnv back;
    ASSERT_TRUE(back.Load(out, "U"));
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        EXPECT_EQ(back.GetUnitKey(kind), cnv.GetUnitKey(kind)) << kind;
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
