#include <QelBase/NumberUtils.h>
#include <QelBase/Point.h>

#include <gtest/gtest.h>

namespace {

void ExpectNear(const Point& actual, const Point& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_DOUBLE_EQ(actual.z, expected.z);
}

} // namespace

TEST(PointTest, QuarterTurnsAreClockwiseAndExact)
{
    // North turned by a bearing of 90 points east; z never changes.
    const Point north(0.0, 1.0, 7.0);
    EXPECT_EQ(north.Rotated(90.0), Point(1.0, 0.0, 7.0));
    EXPECT_EQ(north.Rotated(180.0), Point(0.0, -1.0, 7.0));
    EXPECT_EQ(north.Rotated(270.0), Point(-1.0, 0.0, 7.0));
    EXPECT_EQ(north.Rotated(-90.0), Point(-1.0, 0.0, 7.0));
    EXPECT_EQ(north.Rotated(450.0), Point(1.0, 0.0, 7.0));
    ExpectNear(north.Rotated(45.0), Point(std::sqrt(0.5), std::sqrt(0.5), 7.0));
}

TEST(PointTest, RotationAboutCentreAndBadAngle)
{
    Point p(11.0, 20.0, 5.0);
    p.Rotate(90.0, Point(10.0, 20.0));
    EXPECT_EQ(p, Point(10.0, 19.0, 5.0));

    Point q(3.0, 4.0);
    q.Rotate(std::nan(""));
    q.Rotate(HUGE_VAL, Point(1.0, 1.0));
    EXPECT_EQ(q, Point(3.0, 4.0));
}
