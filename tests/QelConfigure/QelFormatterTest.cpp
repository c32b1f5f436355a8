#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelFormatter.h>

#include <QelBase/UnitCategories.h>

#include "common/TestProject.h"

#include <gtest/gtest.h>

#include <limits>

TEST(QelFormatter, BearingWrapsAfterRounding)
{
    ProjectDefinition project;
    project.SetBearingDecimals(2);
    const QelFormatter formatter(&project);
    const std::pair<double, const char*> cases[] = {
        {359.999, "0.00°"}, {359.994, "359.99°"}, {-90.0, "270.00°"},
        {-1e-20, "0.00°"},  {720.5, "0.50°"},     {1e9 + 0.25, "280.25°"},
    };
    for (const auto& [degrees, expected] : cases)
        EXPECT_EQ(formatter.FormatBearing(degrees), QString::fromUtf8(expected)) << degrees;
    EXPECT_TRUE(formatter.FormatBearing(std::numeric_limits<double>::infinity()).isEmpty());

    project.SetBearingDecimals(0);
    EXPECT_EQ(formatter.FormatBearing(359.5), QString::fromUtf8("0°"));
}

TEST(QelFormatter, DepthInTheProjectUnit)
{
    ProjectDefinition project;
    ASSERT_TRUE(project.GetUnitCnv().SetUnit(UNIT_DEPTH, QStringLiteral("ft")));
    const QelFormatter formatter(&project);
    EXPECT_EQ(formatter.FormatDepth(10.0), QStringLiteral("32.81 ft"));
    EXPECT_EQ(formatter.FormatDepth(10.0, true, true), QStringLiteral("+32.81 ft"));
    EXPECT_EQ(formatter.FormatDepth(0.001, true, true), QStringLiteral("0.00 ft")); // rounds to 0
    EXPECT_TRUE(formatter.FormatDepth(std::numeric_limits<double>::quiet_NaN()).isEmpty());

    project.SetDepthDecimals(1);
    EXPECT_EQ(formatter.FormatDepth(10.0), QStringLiteral("32.8 ft"));
    // The distance unit is a unit of its own.
    EXPECT_EQ(formatter.FormatDistance(1234.5), QStringLiteral("1234.50 m"));
    ASSERT_TRUE(project.GetUnitCnv().SetUnit(UNIT_DISTANCE, QStringLiteral("km")));
    EXPECT_EQ(formatter.FormatDistance(1234.5), QStringLiteral("1.23 km"));
}

TEST(QelFormatter, FollowsTheOpenProjectOrDefaults)
{
    const QelFormatter current;
    DataSearch::GetDataSearch().Close();
    EXPECT_EQ(current.FormatDepth(12.345), QStringLiteral("12.35 m"));
    EXPECT_EQ(current.FormatBearing(12.345), QString::fromUtf8("12.35°"));

    TestProject test; // NorthSea: bearing with 1 decimal
    ASSERT_TRUE(test.IsOpen());
    EXPECT_EQ(current.FormatBearing(12.345), QString::fromUtf8("12.3°"));
    ASSERT_TRUE(test.Project()->GetUnitCnv().SetUnit(UNIT_DEPTH, QStringLiteral("ft")));
    EXPECT_EQ(current.FormatDepth(10.0), QStringLiteral("32.81 ft"));
}
