#include <QelBase/GeoText.h>

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include <cmath>
#include <vector>

namespace {

const QString kDeg = QString(QChar(0x00B0));

QString Deg(const char* text)
{
    return QString::fromUtf8(text).replace(QLatin1Char('@'), kDeg);
}

QString Geo(double value, unsigned flags, int decimals, int kind, bool letter = true,
            bool symbols = true)
{
    QString text;
    EXPECT_TRUE(FormatGeogs(value, flags, decimals, kind, text, letter, symbols));
    return text;
}

} // namespace

TEST(FormatDoubleTest, FixedPointTable)
{
    struct Case { double value; int decimals; const char* expected; };
    const Case cases[] = {
        {2.675, 2, "2.68"}, {-0.001, 2, "0.00"}, {-2.5, 0, "-3"}, {0.1, 20, "0.100000000000000"},
        {12.5, -4, "13"},   {1e21, 1, "1000000000000000000000.0"}, {99.996, 2, "100.00"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(FormatDouble(c.value, c.decimals), QString::fromLatin1(c.expected)) << c.value;
    EXPECT_TRUE(FormatDouble(std::nan(""), 2).isEmpty());
    EXPECT_TRUE(FormatDouble(-HUGE_VAL, 2, FeetFlags::FEET_INCHES).isEmpty());
}

TEST(FormatDoubleTest, FeetAndInchesCarry)
{
    struct Case { double feet; int decimals; const char* expected; };
    const Case cases[] = {
        {11.99999, 2, "12' 00.00\""}, {12.5417, 2, "12' 06.50\""},
        {-3.1666667, 0, "-3' 02\""},  {-0.0001, 2, "0' 00.00\""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(FormatDouble(c.feet, c.decimals, FeetFlags::FEET_INCHES), c.expected) << c.feet;
}

TEST(FormatGeogsTest, FormsKindsAndLetters)
{
    EXPECT_EQ(Geo(52.502, 7, 2, 10), Deg("52@30'07.20\" N"));
    EXPECT_EQ(Geo(-3.25, 7, 1, 11, false), Deg("-003@15'00.0\""));
    EXPECT_EQ(Geo(4.5, 3, 3, 11, true, false), QStringLiteral("004 30.000 E"));
    EXPECT_EQ(Geo(56.502, 3, 2, 10), Deg("56@30.12' N"));
    EXPECT_EQ(Geo(5.5, 1, 3, 10), Deg("05.500@ N"));
    // A plain angle has no padding and never a letter.
    EXPECT_EQ(Geo(-5.5, 7, 0, 0), Deg("-5@30'00\""));
}

TEST(FormatGeogsTest, RoundingCarriesIntoTheNextUnit)
{
    EXPECT_EQ(Geo(0.99999989, 7, 2, 10), Deg("01@00'00.00\" N"));
    EXPECT_EQ(Geo(10.0 + 59.9999 / 60.0, 3, 2, 11), Deg("011@00.00' E"));

    // Values that round to zero are north/east and carry no minus sign.
    EXPECT_EQ(Geo(-1e-7, 7, 2, 11, false), Deg("000@00'00.00\""));
}

TEST(FormatGeogsTest, RejectsBadFlagsAndValues)
{
    for (unsigned flags : {0u, 2u, 5u, 8u}) {
        QString text = QStringLiteral("old");
        EXPECT_FALSE(FormatGeogs(10.0, flags, 2, 10, text));
        EXPECT_TRUE(text.isEmpty());
    }
    QString text = QStringLiteral("old");
    EXPECT_FALSE(FormatGeogs(std::nan(""), 7, 2, 10, text));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_TRUE(FormatGeogs(1.0, 1, 40, 10, text, false, false));
    EXPECT_EQ(text, QStringLiteral("01.000000000000"));
}

TEST(StringToGeoTest, ReadsTypedForms)
{
    struct Case { const char* text; double expected; };
    const Case cases[] = {
        {"56@30'07.2\" N", 56.502}, {"s 56.502", -56.502}, {"W 3 15", -3.25}, {"56:30:07.2", 56.502},
        {"56º30′07.2″ S", -56.502},  {"−1 30", -1.5},       {"-0 30", -0.5},   {"56,5 S", -56.5},
    };
    for (const Case& c : cases) {
        double value = 99.0;
        EXPECT_TRUE(StringToGeo(Deg(c.text), value)) << c.text;
        EXPECT_NEAR(value, c.expected, 1e-12) << c.text;
    }
}

TEST(StringToGeoTest, RejectsMalformedText)
{
    const char* const cases[] = {
        "", "56 61 00 N", "N 56 S", "-56 S", "56 30.5 10", "1e999", "56 30 60", "56 -30", "56,30.5",
        "5 6 7 8", "٥٦",
    };
    for (const char* text : cases) {
        double value = 99.0;
        EXPECT_FALSE(StringToGeo(Deg(text), value)) << text;
        EXPECT_EQ(value, 0.0) << text;
    }
    double value = 99.0;
    EXPECT_FALSE(StringToGeo(QString(400, QLatin1Char('9')), value));
    EXPECT_EQ(value, 0.0);
}

TEST(StringToGeoTest, RoundTripsEveryFormWithinHalfTheLastDigit)
{
    std::vector<double> values = {0.0, 180.0, -180.0, -(1.0 - 1e-9),
                                  12.0 + 59.0 / 60.0 + 59.99999 / 3600.0, -1e-10};
    QRandomGenerator random(20240611);
    for (int i = 0; i < 150; ++i)
        values.push_back(random.bounded(360.0) - 180.0);

    for (unsigned flags : {1u, 3u, 7u}) {
        const double perDegree = flags == 7 ? 3600.0 : flags == 3 ? 60.0 : 1.0;
        for (int decimals = 0; decimals <= 8; ++decimals) {
            const double tolerance = 0.5 * std::pow(10.0, -decimals) / perDegree + 1e-12;
            for (int kind : {10, 11}) {
                for (int style = 0; style < 4; ++style) {
                    for (double v : values) {
                        QString text;
                        ASSERT_TRUE(FormatGeogs(v, flags, decimals, kind, text, style & 1, style & 2));
                        double back = 0.0;
                        ASSERT_TRUE(StringToGeo(text, back)) << qPrintable(text);
                        ASSERT_NEAR(back, v, tolerance) << qPrintable(text);
                    }
                }
            }
        }
    }
}

TEST(StringToValueTest, NumbersUnitsAndFeet)
{
    struct Case { const char* text; bool ok; double expected; };
    const Case cases[] = {
        {"12.50 m", true, 12.5},  {"  -3.5e2 ", true, -350.0}, {"12,5", true, 12.5}, {"2e", true, 2.0},
        {"−4", true, -4.0},       {"-3' 2\"", true, -(3.0 + 2.0 / 12.0)}, {"3′ 2″", true, 3.0 + 2.0 / 12.0},
        {"", false, 0},           {"1e999", false, 0},  {"1,234.5", false, 0}, {"12 m 5", false, 0},
        {"3' 12\"", false, 0},    {"12.5' 3\"", false, 0}, {"5 m²", false, 0},
    };
    for (const Case& c : cases) {
        bool ok = !c.ok;
        const double value = StringToValue(Deg(c.text), &ok);
        EXPECT_EQ(ok, c.ok) << c.text;
        EXPECT_DOUBLE_EQ(value, c.expected) << c.text;
    }
}
