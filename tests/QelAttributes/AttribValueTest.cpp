// Typed attribute values: conversions between types and the typed text form.
#include <QelAttributes/AttribValue.h>
#include <QelAttributes/QelDouble.h>

#include <gtest/gtest.h>

#include <limits>

using Type = CAttribValue::Type;

TEST(AttribValue, ConversionsFromEveryType)
{
    struct Case { const char* what; CAttribValue v; QString s; int i; double d; bool b; COLORREF c; };
    auto make = [](auto setter) { CAttribValue v; setter(v); return v; };
    const Case cases[] = {
        {"none", CAttribValue(), "", 0, 0.0, false, 0},
        {"int", make([](CAttribValue& v) { v.SetInt(-7); }), "-7", -7, -7.0, true, COLORREF(-7)},
        {"double", make([](CAttribValue& v) { v.SetDouble(2.5); }), "2.5", 3, 2.5, true, 3},
        {"color", make([](CAttribValue& v) { v.SetColor(RGB(1, 2, 255)); }), "#0102FF",
         int(RGB(1, 2, 255)), double(RGB(1, 2, 255)), true, RGB(1, 2, 255)},
        {"numeric text", make([](CAttribValue& v) { v.SetString(" 12.75 "); }), " 12.75 ", 13,
         12.75, true, 13},
        {"colour text", make([](CAttribValue& v) { v.SetString("#FF0000"); }), "#FF0000", 0, 0.0,
         false, RGB(255, 0, 0)},
        {"pair", make([](CAttribValue& v) { v.SetDoublePair(-1.5, 4); }), "-1.5 4", -2, -1.5,
         true, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.v.GetString(), c.s) << c.what;
        EXPECT_EQ(c.v.GetInt(), c.i) << c.what;
        EXPECT_EQ(c.v.GetDouble(), c.d) << c.what;
        EXPECT_EQ(c.v.GetBool(), c.b) << c.what;
        EXPECT_EQ(c.v.GetColor(), c.c) << c.what;
    }
}

TEST(AttribValue, ExtremesDoNotOverflow)
{
    CAttribValue v;
    v.SetDouble(1e300);
    EXPECT_EQ(v.GetInt(), std::numeric_limits<int>::max());
    EXPECT_EQ(v.GetColor(), 0xFFFFFFFFu);
    v.SetDouble(std::numeric_limits<double>::quiet_NaN());
    int i = 5;
    EXPECT_FALSE(v.TryGetInt(i));
    EXPECT_EQ(i, 5);
    EXPECT_FALSE(v.GetBool());
    v.SetString("99999999999");
    EXPECT_EQ(v.GetInt(), std::numeric_limits<int>::max());   // read as a double, clamped
}

TEST(AttribValue, PairsAndSettersChangeType)
{
    CAttribValue v;
    v.SetString("3, 4");
    double a = 0, b = 0;
    v.GetDoublePair(a, b);
    EXPECT_EQ(std::pair(a, b), std::pair(3.0, 4.0));
    v.SetString("two\nlines");
    EXPECT_EQ(v.GetString(), "two lines");
}

TEST(AttribValue, TextFormRoundTrip)
{
    auto make = [](auto setter) { CAttribValue v; setter(v); return v; };
    const CAttribValue values[] = {
        CAttribValue(),
        make([](CAttribValue& v) { v.SetString("Arial Narrow; 10"); }),
        make([](CAttribValue& v) { v.SetInt(std::numeric_limits<int>::min()); }),
        make([](CAttribValue& v) { v.SetDouble(-0.0); }),
        make([](CAttribValue& v) { v.SetColor(0x01020304); }),
        make([](CAttribValue& v) { v.SetDoublePair(1e-300, -2); }),
    };
    for (const CAttribValue& v : values) {
        CAttribValue back;
        back.SetString("sentinel");
        ASSERT_TRUE(CAttribValue::FromText(v.ToText(), back)) << v.ToText().toStdString();
        EXPECT_EQ(back, v) << v.ToText().toStdString();
    }

    for (const char* bad : {"q:1", "i:1.5", "c:#12345", "p:1 2 3", "12"}) {
        CAttribValue out;
        out.SetInt(42);
        EXPECT_FALSE(CAttribValue::FromText(bad, out)) << bad;
        EXPECT_EQ(out.GetInt(), 42) << bad;
    }
}
