// The font description record: field-wise equality and loading from attributes.
#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelMfc0/drawing/FontInfo.h>

#include <gtest/gtest.h>

#include <functional>

TEST(FontInfoTest, AllFieldsAtOnceAndAsAQFont)
{
    FontInfo info;
    info.SetFontInfo(QStringLiteral("Tahoma"), 14, true, false, RGB(1, 2, 3));
    const QFont font = info.ToQFont();
    EXPECT_EQ(font.family(), QStringLiteral("Tahoma"));
    EXPECT_EQ(font.pointSize(), 14);
    EXPECT_EQ(font.weight(), QFont::Bold);
    EXPECT_FALSE(font.italic());
}

TEST(FontInfoTest, EqualOnlyWhenEveryFieldAgrees)
{
    const std::function<void(FontInfo&)> changes[] = {
        [](FontInfo& f) { f.SetName(QStringLiteral("arial")); }, // names are case-sensitive
        [](FontInfo& f) { f.SetSize(11); },
        [](FontInfo& f) { f.SetBold(true); },
        [](FontInfo& f) { f.SetItalic(true); },
        [](FontInfo& f) { f.SetColor(RGB(0, 0, 1)); },
    };
    const FontInfo base(QStringLiteral("Arial"), 10, false, false, 0);
    EXPECT_TRUE(base == FontInfo() && !(base != FontInfo()));
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        FontInfo changed = base;
        changes[i](changed);
        EXPECT_TRUE(changed != base && !(changed == base)) << "field " << i;
    }
}

TEST(FontInfoTest, LoadAttributesReadsWhatIsThereAndKeepsTheRest)
{
    const FontInfo start(QStringLiteral("Courier New"), 12, true, true, RGB(9, 8, 7));
    const struct { std::function<void(CAttributeMap&)> fill; FontInfo expected; } cases[] = {
        {[](CAttributeMap& m) {
             m.SetAttribValue(ATTR_FONTSIZE, 16);
             m.SetAttribColor(ATTR_TEXTCOLOR, RGB(255, 0, 128));
         },
         FontInfo(QStringLiteral("Courier New"), 16, true, true, RGB(255, 0, 128))},
        {[](CAttributeMap& m) {
             m.SetAttribValue(ATTR_FONTNAME, QStringLiteral("Tahoma"));
             m.SetAttribValue(ATTR_FONTSIZE, 8);
             m.SetAttribValue(ATTR_FONTBOLD, false);
             m.SetAttribValue(ATTR_FONTITALIC, true);
             m.SetAttribColor(ATTR_TEXTCOLOR, RGB(0, 0, 0));
         },
         FontInfo(QStringLiteral("Tahoma"), 8, false, true, RGB(0, 0, 0))},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        CAttributeMap map;
        cases[i].fill(map);
        FontInfo info = start;
        info.LoadAttributes(map);
        EXPECT_EQ(info, cases[i].expected) << "case " << i;
    }
}
