// Colour maps and colour conversion of the display colour modes.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRandomGenerator>
#include <QelBase/ColorTable.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ColorMapper.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <common/TestProject.h>
#include <deque>
#include <gtest/gtest.h>

namespace {
class ColourMapTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(project.IsOpen());
        folder = QFileInfo(DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_MAP, "night")).absolutePath();
        QDir dir(folder);
        ASSERT_TRUE(dir.mkpath("."));
        for (const QString& file : dir.entryList({ "*.cmap" }, QDir::Files))
            ASSERT_TRUE(dir.remove(file)); // independent of the sample maps
    }
    void WriteMap(const QString& mode, const QString& text)
    {
        QFile file(folder + "/" + mode + ".cmap");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text.toUtf8());
    }
    // A control in night mode with `text` as the night map, kept by the fixture.
    ColorControl& NightControl(const QString& text)
    {
        WriteMap("night", text);
        ColorControl& cc = controls.emplace_back();
        cc.SetLightMode(ColorConverter::night, false);
        return cc;
    }

    TestProject project;
    std::deque<ColorControl> controls;
    QString folder;
};

const char* const kParsingMap = "[QEL_COLORS]\n"
                                "255 = 65280 ; trailing text ends the number\n"
                                "255 = 16711680\n"
                                "abc = 7\n"
                                "18 = xyz\n"
                                "19 =\n"
                                "20 = 21\n"
                                "+16 = 32abc\n"
                                "17 = -1\n"
                                "-2 = 5\n"
                                "0x10 = 3\n"
                                "1.5 = 9\n"
                                "16777344 = 4\n"
                                "[WIN_COLORS]\n"
                                "btnface = 256 -1 300\n"
                                "window = 1 2 3\n"
                                "window = 4 5 6\n"
                                "BtnText = 1 2 3\n"
                                "nosuch = 1 2 3\n"
                                "menu = 10 20\n"
                                "highlight = 1, 2, 3\n";
} // namespace

TEST_F(ColourMapTest, EntriesAreReadLikePercentDAndMalformedOnesSkippedOneByOne)
{
    const ColorControl& cc = NightControl(kParsingMap);
    const struct { COLORREF in, out; } cases[] = {
        { 255, 65280 },                    // the first of a repeated key wins
        { 18, 18 },                        // non-numeric key or value: skipped
        { 20, 21 },                        // entries after skipped ones still count
        { 16, 32 },                        // sign accepted, text after the digits ignored
        { 17, 0xFFFFFFFF },                // negative values wrap to 32 bits, returned as they are
        { 0xFFFFFFFE, 5 },
        { 0, 3 },                          // "0x10" reads as 0
        { 1, 9 },                          // "1.5" reads as 1
        { 0x01000080, 4 },                 // a top byte only matches the same top byte
        { 0x02000080, 0x80 },
    };
    for (const auto& c : cases)
        EXPECT_EQ(cc.GetColor(c.in, false), c.out) << std::hex << c.in;
    EXPECT_EQ(cc.GetColorMap().Count(), 8);

    // System colours: exact names, components modulo 256, the last of a repeated name.
    const WindowsColorMap& colors = cc.GetColorMap().GetFileColors();
    COLORREF c = 0;
    EXPECT_TRUE(colors.Get("btnface", c) && c == RGB(0, 255, 44));
    EXPECT_TRUE(colors.Get("window", c) && c == RGB(4, 5, 6));
    EXPECT_EQ(colors.Count(), 2) << "case-sensitive names, unknown names, two numbers, commas: skipped";
}

TEST_F(ColourMapTest, AMissingOrUnreadableMapGivesTheIdentityAfterAModeWithAMap)
{
    ASSERT_TRUE(QDir(folder).mkdir("bright.cmap")); // a folder: it cannot be opened as a file
    for (ColorConverter::mode next : { ColorConverter::twilight, ColorConverter::bright }) {
        ColorControl& cc = NightControl(QString(kParsingMap) + "[PARAMS]\nred = 0.5\ninvert = 1\n");
        ASSERT_TRUE(cc.GetInvertColors());
        cc.SetLightMode(next, false);
        EXPECT_EQ(cc.GetColorMap().Count(), 0);
        EXPECT_FALSE(cc.GetInvertColors());
        EXPECT_EQ(cc.GetColor(0x12345678, false), 0x345678u);
    }
}

TEST_F(ColourMapTest, TrailingCommentsAreReadAndUnusableEntriesReported)
{
    // Every value of the example of the file format carries a comment.
    const ColorControl& documented = NightControl("[PARAMS]\n"
                                                 "red = 0.42          ; factor of the lowest byte of a colour\n"
                                                 "green = 0.34\n"
                                                 "invert = 1          ; 1/0, true/false, yes/no, on/off\n"
                                                 "[QEL_COLORS]\n"
                                                 "255 = 140           ; pure red -> dark red\n"
                                                 "[WIN_COLORS]\n"
                                                 "btnface = 24 20 18  # face\n");
    EXPECT_EQ(documented.GetConverter().GetRedFactor(), 0.42);
    EXPECT_EQ(documented.GetColor(255, false), 140u);
    COLORREF face = 0;
    EXPECT_TRUE(documented.GetColorMap().GetFileColors().Get("btnface", face) && face == RGB(24, 20, 18));
    EXPECT_TRUE(documented.GetColorMapErrors().isEmpty());

    // Each entry that is skipped, or read only in part, is reported once; the others are not.
    const ColorControl& cc = NightControl(QString(kParsingMap) + "[PARAMS]\nred = dark\nblue = -2\ninvert = maybe\ngamma = 2\n");
    const char* const reported[] = {
        "[QEL_COLORS] 255 = 16711680:", "[QEL_COLORS] +16 = 32abc:", "[WIN_COLORS] btnface = 256 -1 300:",
        "[WIN_COLORS] window = 4 5 6:", "[PARAMS] invert = maybe:", "[PARAMS] gamma = 2:",
    };
    const QStringList errors = cc.GetColorMapErrors();
    for (const char* entry : reported)
        EXPECT_EQ(errors.filter(QString(entry)).size(), 1) << entry;
    EXPECT_EQ(errors.size(), 17) << errors.join('\n').toStdString();
}

TEST_F(ColourMapTest, OutOfRangeModesReadTheUnknownMap)
{
    WriteMap("unknown", "[QEL_COLORS]\n1 = 2\n");
    for (int value : { 9, -3 }) {
        ColorControl cc;
        cc.SetLightMode(ColorConverter::mode(value), false);
        EXPECT_EQ(cc.GetColor(1, false), 2u) << value;
    }
}

TEST_F(ColourMapTest, ANewInstanceIgnoresNormalModeEntirely)
{
    WriteMap("normal", "[QEL_COLORS]\n1 = 2\n[PARAMS]\ninvert = 1\n");
    QCoreApplication::processEvents(); // announcements of earlier tests
    int notes = 0;
    QObject context;
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [&](int, const QString&) { ++notes; }, &context);
    ColorControl cc;
    cc.SetLightMode(ColorConverter::normal, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(notes, 0);
    EXPECT_EQ(cc.GetColor(1, false), 1u) << "no map was read";
}

TEST_F(ColourMapTest, ParametersFallBackKeyByKeyAndGetColorInvertsScalesRoundsAndClamps)
{
    const struct { const char* params; COLORREF in; bool raw; COLORREF out; } cases[] = {
        { "red = dark\ninvert = yes", 0x123456, false, 0xEDCBA9 }, // an unreadable key keeps its default
        { "red = 0.5\ngreen = 0.25\nblue = 2", RGB(100, 100, 100), false, RGB(50, 25, 200) },
        { "invert = 1", 0xAB000000, false, 0xFFFFFF },
        { "invert = 1", 0xAB123456, true, 0x123456 },     // raw skips substitution and inversion
        { "red = 0.5\nblue = 0.5", RGB(3, 1, 1), false, RGB(2, 1, 1) },
        { "red = 2\ngreen = 1.5\nblue = 0.3\ninvert = 1", RGB(200, 100, 10), true, RGB(255, 150, 3) },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.params);
        const ColorControl& cc = NightControl(QString("[QEL_COLORS]\n255 = 65280\n[PARAMS]\n") + c.params);
        EXPECT_EQ(cc.GetColor(c.in, c.raw), c.out) << std::hex << c.in;
    }
}

TEST(ColourConversion, GreyAndHalfBrightnessColours)
{
    const ColorControl cc;
    EXPECT_EQ(cc.GetGrayColor(0xFFFFFF), 0xDFDFDFu);
    EXPECT_EQ(ColorMapper().Map(0x00FF8001), 0x007F4000u);
}

TEST_F(ColourMapTest, RemapBitmapConvertsOnly32BitImagesPixelByPixel)
{
    const ColorControl& cc = NightControl("[QEL_COLORS]\n255 = 16776960\n[PARAMS]\nred = 0.5\nblue = 0.25\ninvert = 1\n");
    for (QImage::Format format : { QImage::Format_RGB888, QImage::Format_Indexed8, QImage::Format_RGB30 }) {
        QImage image = QImage(4, 3, QImage::Format_ARGB32).convertToFormat(format);
        image.fill(Qt::red); // substituted and scaled if it were converted
        const QImage before = image.copy();
        cc.RemapBitmap(image);
        cc.RemapBitmapGray(image);
        EXPECT_EQ(image, before) << format;
    }

    // Large enough to be converted in slices on several threads; the key colour is checked with
    // the pixel form of the conversion.
    QImage image(600, 500, QImage::Format_ARGB32);
    QRandomGenerator random(42);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate());
    image.setPixel(1, 0, 0x400000FF); // substituted
    const QImage original = image;    // shares the pixels until the remap detaches
    QImage gray = image.copy();
    cc.RemapBitmap(image);
    cc.RemapBitmapGray(gray);
    int wrong = 0, wrongGray = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const quint32 pixel = original.pixel(x, y), alpha = pixel & 0xFF000000;
            wrong += image.pixel(x, y) != (alpha | (cc.GetColor(pixel & 0xFFFFFF, false) & 0xFFFFFF));
            wrongGray += gray.pixel(x, y) != (alpha | cc.GetGrayColor(pixel & 0xFFFFFF));
        }
    }
    EXPECT_EQ(wrong + wrongGray, 0);
}

TEST_F(ColourMapTest, RemapColorTableScalesWithoutSubstitutionOrInversion)
{
    const ColorControl& cc = NightControl("[QEL_COLORS]\n255 = 65280\n[PARAMS]\nred = 0.5\nblue = 0.25\ninvert = 1\n");
    ColorTable table;
    table.SetLowColor(255);
    table.InsertEntry(1.0, 255, false);
    table.InsertEntry(2.0, 0x01FFFFFF, true);
    cc.RemapColorTable(table);
    EXPECT_EQ(table.LowColor(), RGB(128, 0, 0));
    EXPECT_EQ(table.EntryColor(0), RGB(128, 0, 0));
    EXPECT_EQ(table.EntryColor(1), RGB(128, 255, 64));
}
