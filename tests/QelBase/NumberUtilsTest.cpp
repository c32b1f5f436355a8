#include <QelBase/NumberUtils.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(XYToPolarTest, QuadrantsAndAxes)
{
    struct Case { double dx, dy, bearing, distance; };
    const Case cases[] = {
        {5, 0, 90, 5}, {-5, 0, 270, 5}, {-3, -4, 216.86989764584402, 5}, {-0.0, -0.0, 0, 0},
    };
    for (const Case& c : cases) {
        double bearing = -1.0, distance = -1.0;
        XYToPolar(c.dx, c.dy, bearing, distance);
        EXPECT_NEAR(bearing, c.bearing, 1e-9) << c.dx << "," << c.dy;
        EXPECT_DOUBLE_EQ(distance, c.distance) << c.dx << "," << c.dy;
    }
}

TEST(XYToPolarTest, NeverReturns360AndRejectsNonFinite)
{
    double bearing = -1.0, distance = -1.0;
    XYToPolar(-1e-300, 1.0, bearing, distance);
    EXPECT_GE(bearing, 0.0);
    EXPECT_LT(bearing, 360.0);

    for (double bad : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        XYToPolar(1.0, bad, bearing, distance);
        EXPECT_EQ(bearing, 0.0);
        EXPECT_EQ(distance, 0.0);
    }
}

TEST(Double125Test, NearestSeriesMemberTiesUp)
{
    struct Case { double value, expected; };
    const Case cases[] = {
        {1.49, 1},  {1.5, 2},     {3.49, 2},     {3.5, 5},     {7.49, 5},       {7.5, 10},
        {0.15, 0.2}, {2500, 2000}, {1.4e12, 1e12}, {8e200, 1e201}, {5e-324, 5e-324},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Double125(c.value), c.expected) << c.value;

    for (double bad : {0.0, -2.0, std::nan(""), HUGE_VAL})
        EXPECT_EQ(Double125(bad), 0.0) << bad;
    EXPECT_TRUE(std::isfinite(Double125(std::numeric_limits<double>::max())));
}

TEST(RoundingTest, RoundDoubleHalvesAwayFromZeroAndClamps)
{
    EXPECT_EQ(RoundDouble(-2.5), -3);
    EXPECT_EQ(RoundDouble(0.49999999999999994), 0);
    EXPECT_EQ(RoundDouble(std::nan("")), 0);
    EXPECT_EQ(RoundDouble(1e300), std::numeric_limits<long>::max());
    EXPECT_EQ(RoundDouble(-HUGE_VAL), std::numeric_limits<long>::min());
}

TEST(RoundingTest, RoundToDecimalsWorksOnTheShortestDecimal)
{
    struct Case { double value; int decimals; double expected; };
    const Case cases[] = {
        {-2.675, 2, -2.68},   {1.005, 2, 1.01},  {9.995, 2, 10.0},  {1234.5678, -3, 1235.0},
        {0.1 + 0.2, 15, 0.3}, {123456789.123, 40, 123456789.123},
    };
    for (const Case& c : cases)
        EXPECT_EQ(RoundToDecimals(c.value, c.decimals), c.expected) << c.value;
    EXPECT_FALSE(std::signbit(RoundToDecimals(-0.001, 2)));
    EXPECT_EQ(RoundToDecimals(std::nan(""), 2), 0.0);
}
