// The one reader of numbers in text: whole-text reads for files, the leading number of a
// typed field, and the scanner underneath.
#include <QelBase/NumberText.h>

#include <QString>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

bool SameDouble(double a, double b)
{
    return a == b && std::signbit(a) == std::signbit(b);
}

} // namespace

TEST(NumberText, WholeTextDoubles)
{
    const double denormMin = std::numeric_limits<double>::denorm_min();
    struct Case { const char* text; bool ok; double expected; };
    const Case cases[] = {
        {" -.25\t", true, -0.25},   {"+7.", true, 7.0},          {"57290e−9", true, 57290e-9},
        {"-0", true, -0.0},          {"5e-324", true, denormMin}, {"0e999999999999", true, 0.0},
        // Out of range at either end, words, other digits, separators and trailing text.
        {"1e999", false, 9},         {"-2.4e-324", false, 9},     {"nan", false, 9},
        {"0x10", false, 9},          {"1,5", false, 9},           {"12abc", false, 9},
        {"1e", false, 9},            {".", false, 9},             {"٣", false, 9},
    };
    for (const Case& c : cases) {
        double value = 9;
        EXPECT_EQ(TextToDouble(Text(c.text), value), c.ok) << c.text;
        EXPECT_TRUE(SameDouble(value, c.expected)) << c.text << " gave " << value;
    }
    // Correct rounding however long the digits are.
    double value = 0;
    EXPECT_TRUE(TextToDouble(QString(300, u'0') + "0.1" + QString(500, u'0'), value));
    EXPECT_EQ(value, 0.1);
}

TEST(NumberText, WholeTextIntegers)
{
    struct Case { const char* text; bool ok; qint64 expected; };
    const Case cases[] = {
        {" +0x1F ", true, 31},       {"-0x80000000", true, -2147483648LL},
        {"000000000000000000000007", true, 7},  {"2147483648", false, 9},
        {"1.0", false, 9},           {"0x", false, 9},      {"−5", false, 9},   {"- 5", false, 9},
    };
    for (const Case& c : cases) {
        int value = 9;
        EXPECT_EQ(TextToInt(Text(c.text), value), c.ok) << c.text;
        EXPECT_EQ(value, c.expected) << c.text;
    }
    qint64 wide = 0;
    EXPECT_TRUE(TextToInt64(Text("-9223372036854775808"), wide));
    EXPECT_EQ(wide, std::numeric_limits<qint64>::min());
    EXPECT_FALSE(TextToInt64(Text("9223372036854775808"), wide));
}

TEST(NumberText, LeadingNumberReadsLikeAtof)
{
    struct Case { const char* text; double expected; };
    const Case cases[] = {
        {"  12.5 m", 12.5},   {"-3e2x", -300.0},   {"2e+", 2.0},      {"1.5.3", 1.5},
        {"-0", -0.0},         {"abc", 0.0},        {"- 5", 0.0},      {".e5", 0.0},
        {"−5", 0.0},          {"1e999", 0.0},      {"-1e-400", 0.0},  {"1,5", 1.0},
    };
    for (const Case& c : cases)
        EXPECT_TRUE(SameDouble(LeadingNumber(Text(c.text)), c.expected)) << c.text;
}

TEST(NumberText, ScannerFollowsTheSyntaxAndReportsWhatItTook)
{
    DecimalSyntax typed;
    typed.sign = false;
    typed.minusSign = true;
    typed.point = u',';
    DecimalSyntax whole;
    whole.exponent = false;
    whole.point = 0;
    struct Case { const char* text; const DecimalSyntax* syntax; qsizetype length; double value;
                  bool point, exponent, outOfRange; };
    const DecimalSyntax standard;
    const Case cases[] = {
        {"12,5e−1 m", &typed, 7, 1.25, true, true, false},
        {"-1", &typed, 0, 0.0, false, false, false},
        {"7.", &standard, 2, 7.0, true, false, false},
        {"-12.5e1", &whole, 3, -12.0, false, false, false},
        {"1e400x", &standard, 5, HUGE_VAL, false, true, true},
        {"-1e-400", &standard, 7, -0.0, false, true, true},
        {"0.0e-400", &standard, 8, 0.0, true, true, false},
    };
    for (const Case& c : cases) {
        const DecimalScan scan = ScanDecimal(Text(c.text), *c.syntax);
        EXPECT_EQ(scan.length, c.length) << c.text;
        EXPECT_TRUE(SameDouble(scan.value, c.value)) << c.text << " gave " << scan.value;
        EXPECT_EQ(scan.hasPoint, c.point) << c.text;
        EXPECT_EQ(scan.hasExponent, c.exponent) << c.text;
        EXPECT_EQ(scan.outOfRange, c.outOfRange) << c.text;
    }
}
