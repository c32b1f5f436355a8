#include <QelBase/DisplayScale.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

double ScaleNaN() { return std::nan(""); }
double Scale110Dpi() { return 110.0 / 96.0; }

class DisplayScaleTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        SetDpiScale(0.0);
        SetDpiScaleProvider(nullptr);
    }
};

} // namespace

TEST_F(DisplayScaleTest, RoundsLikeMulDivAt144Dpi)
{
    SetDpiScale(1.5);
    EXPECT_EQ(DpiCor(-1), -2);
    EXPECT_EQ(DpiRevCor(DpiCor(54)), 54);
    EXPECT_DOUBLE_EQ(DpiCor(2.5), 3.75);
    EXPECT_EQ(DpiCor(std::nan("")), 0.0);
    EXPECT_EQ(DpiCor(INT_MIN), INT_MIN);
}

TEST_F(DisplayScaleTest, HalvesAtOddDpiRoundUpDespiteBinaryNoise)
{
    SetDpiScaleProvider(&Scale110Dpi);
    EXPECT_EQ(DpiCor(24), 28); // 24 * 110 / 96 = 27.5
    EXPECT_EQ(DpiCor(23), 26); // 26.35...
}

TEST_F(DisplayScaleTest, InvalidFixedScaleOrProviderIsIgnored)
{
    SetDpiScaleProvider(&Scale110Dpi);
    EXPECT_EQ(GetDpiScale(), 110.0 / 96.0);
    SetDpiScale(-1.0);
    EXPECT_EQ(GetDpiScale(), 110.0 / 96.0);
    SetDpiScaleProvider(&ScaleNaN);
    EXPECT_EQ(GetDpiScale(), 1.0);
}
