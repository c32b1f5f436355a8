// The gallery's sonar page: the simulated side-scan returns (repeatable, a dark water column,
// shadows behind what stands on the seabed), the waterfall's rows as the palette colours the
// pings, and the palette following the ramp chosen and the colour mode. Also the colour-table
// page's buttons of the special table editors.
#include "SideScanSimulator.h"
#include "common/TestProject.h"
#include "pages/ColourTablesPage.h"
#include "pages/SonarPage.h"
#include "pages/WaterfallView.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QSet>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/dialogs/colourtables/BCColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/DredgeDiffColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/MapColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/SonarPalette.h>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace {
using Side = SideScanSimulator::Side;

double Mean(const std::vector<std::uint8_t>& ping, const SideScanSimulator& sonar, Side side, int from, int to)
{
    double sum = 0.0;
    for (int s = from; s < to; ++s)
        sum += ping[std::size_t(sonar.ColumnOf(side, s))];
    return sum / std::max(1, to - from);
}

std::array<quint32, SonarPalette::kEntries> PaletteOf(int type, double brightness, double contrast, double gamma)
{
    SonarPalette palette;
    std::vector<unsigned long> pixels;
    palette.Get_BGRA_Palette(type, brightness, contrast, gamma, pixels, 255, false);
    return SonarPalette::Packed(pixels);
}

TEST(SideScanSimulator, TheSameSeedGivesTheSamePingsAnotherSeedOthers)
{
    SideScanSimulator a(7, 256), b(7, 256), c(8, 256);
    bool differs = false;
    for (int i = 0; i < 40; ++i) {
        const auto ping = a.NextPing();
        ASSERT_EQ(ping, b.NextPing()) << i;
        differs = differs || ping != c.NextPing();
    }
    EXPECT_TRUE(differs);
}

TEST(SideScanSimulator, WaterColumnIsDarkAndWhatStandsOnTheSeabedCastsAShadow)
{
    SideScanSimulator sonar;
    const struct {
        qint64 ping;
        Side side;
        const char* what;
    } cases[] = {
        { 260, Side::Starboard, "wreck" },
        { 1160, Side::Port, "wreck in the next pass" },
        { 560, Side::Port, "pipeline" },
        { 700, Side::Starboard, "pipeline" },
    };
    std::map<qint64, std::vector<std::uint8_t>> pings;
    for (qint64 i = 0; i <= 1160; ++i) {
        const auto& ping = sonar.NextPing();
        if (i % 100 == 50 || std::any_of(std::begin(cases), std::end(cases), [i](const auto& c) { return c.ping == i; }))
            pings[i] = ping;
    }
    // Before the first return of the seabed only noise; beyond it the seabed.
    for (const auto& [i, ping] : pings) {
        for (Side side : { Side::Port, Side::Starboard }) {
            const int seabed = sonar.SampleOfGroundRange(0.0, i);
            EXPECT_LT(Mean(ping, sonar, side, 0, seabed - 4), 15.0) << i;
            EXPECT_GT(Mean(ping, sonar, side, sonar.SampleOfGroundRange(4.0, i), sonar.SampleOfGroundRange(45.0, i)), 45.0) << i;
        }
    }
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto obstacles = sonar.ObstaclesAt(c.ping, c.side);
        const auto tallest = std::max_element(obstacles.begin(), obstacles.end(), [](const auto& a, const auto& b) { return a.height < b.height; });
        ASSERT_NE(tallest, obstacles.end());
        const auto& ping = pings[c.ping];
        const double before = Mean(ping, sonar, c.side, sonar.SampleOfGroundRange(tallest->nearRange - 3.0, c.ping),
                                   sonar.SampleOfGroundRange(tallest->nearRange - 0.5, c.ping));
        const double behind = Mean(ping, sonar, c.side, sonar.SampleOfGroundRange(tallest->farRange + 0.1, c.ping),
                                   sonar.SampleOfGroundRange(tallest->farRange + 0.6, c.ping));
        EXPECT_GT(before, 40.0);
        EXPECT_LT(behind, 15.0);
    }
}

// History of four pings: the ring wraps around after the fourth.
class WaterfallRows : public ::testing::TestWithParam<int> {};

TEST_P(WaterfallRows, NewestPingOnTopEachRowThePaletteOfItsPing)
{
    constexpr int kSamples = 300, kHistory = 4;
    WaterfallView view(kSamples, kHistory);
    view.resize(kSamples, kHistory + 2);
    SideScanSimulator sonar(3, kSamples / 2);
    std::vector<std::vector<std::uint8_t>> sent;
    for (int i = 0; i < GetParam(); ++i) {
        sent.push_back(sonar.NextPing());
        view.AddPing(sent.back().data());
    }
    const QImage shot = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto& palette = view.Palette();
    for (int row = 0; row < kHistory + 2; ++row) {
        const auto* pixels = reinterpret_cast<const quint32*>(shot.constScanLine(row));
        const int ping = GetParam() - 1 - row;
        for (int x = 0; x < kSamples; ++x) {
            // Rows without a ping show the colour of no return.
            const quint32 expected = ping >= 0 && row < kHistory ? palette[sent[std::size_t(ping)][std::size_t(x)]] : palette[0];
            ASSERT_EQ(pixels[x], expected) << "row " << row << " x " << x;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pings, WaterfallRows, ::testing::Values(1, 3, 4, 6, 9));

class SonarPageTest : public ::testing::Test {
protected:
    SonarPageTest()
    {
        EXPECT_TRUE(m_project.IsOpen());
        m_page.resize(900, 600);
        m_page.show();
        QApplication::processEvents();
    }
    ~SonarPageTest() override { ColorControl::Instance().SetLightMode(ColorConverter::normal, true); }

    // The palette the page's sliders ask for, built as the current mode shows it.
    std::array<quint32, SonarPalette::kEntries> ChosenPalette(int type) const
    {
        return PaletteOf(type, m_page.findChild<QSlider*>(QStringLiteral("brightness"))->value(),
                         m_page.findChild<QSlider*>(QStringLiteral("contrast"))->value(),
                         m_page.findChild<QSlider*>(QStringLiteral("gamma"))->value() / 10.0);
    }

    // True when every pixel of the waterfall is one of the palette's.
    bool AllPixelsFrom(const std::array<quint32, SonarPalette::kEntries>& palette) const
    {
        const QSet<quint32> colours(palette.begin(), palette.end());
        const QImage shot = m_page.Waterfall()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < shot.height(); ++y) {
            const auto* pixels = reinterpret_cast<const quint32*>(shot.constScanLine(y));
            for (int x = 0; x < shot.width(); ++x) {
                if (!colours.contains(pixels[x]))
                    return false;
            }
        }
        return true;
    }

    TestProject m_project;
    SonarPage m_page;
};

TEST_F(SonarPageTest, AnotherRampColoursEveryKeptPingAgain)
{
    auto* ramp = m_page.findChild<QComboBox*>(QStringLiteral("ramp"));
    ASSERT_EQ(ramp->count(), SonarPalette::kRampTypes);
    ASSERT_GT(m_page.Sonar().PingCount(), 500);
    EXPECT_EQ(m_page.Waterfall()->Palette(), ChosenPalette(ramp->currentIndex()));
    ramp->setCurrentIndex(SonarPalette::GreyRamp);
    EXPECT_EQ(m_page.Waterfall()->Palette(), ChosenPalette(SonarPalette::GreyRamp));
    EXPECT_TRUE(AllPixelsFrom(ChosenPalette(SonarPalette::GreyRamp)));
}

TEST_F(SonarPageTest, NightModeShowsThePaletteAsTheModeConvertsIt)
{
    const auto day = m_page.Waterfall()->Palette();
    ColorControl::Instance().SetLightMode(ColorConverter::night, true);
    QApplication::processEvents();
    const auto night = ChosenPalette(m_page.Waterfall()->RampType());
    EXPECT_NE(night, day);
    EXPECT_EQ(m_page.Waterfall()->Palette(), night);
    EXPECT_TRUE(AllPixelsFrom(night));
}

// Once a dialog shows, notes its class and closes it.
void CloseDialogWhenShown(QString& seen, int tries = 200)
{
    QTimer::singleShot(10, [&seen, tries] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible()) {
                seen = QString::fromLatin1(dialog->metaObject()->className());
                dialog->reject();
                return;
            }
        }
        if (tries > 0)
            CloseDialogWhenShown(seen, tries - 1);
    });
}

TEST(ColourTablesPageSpecialEditors, EachButtonOpensItsEditor)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    ColourTablesPage page;
    page.show();
    const struct {
        const char* button;
        const QMetaObject* editor;
    } cases[] = {
        { "dredgeDiffEditor", &DredgeDiffColorTableEditor::staticMetaObject },
        { "bottomClassEditor", &BCColorTableEditor::staticMetaObject },
        { "mapColourEditor", &MapColorTableEditor::staticMetaObject },
    };
    for (const auto& c : cases) {
        auto* button = page.findChild<QPushButton*>(QLatin1String(c.button));
        ASSERT_NE(button, nullptr) << c.button;
        QString seen;
        CloseDialogWhenShown(seen);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(seen, QLatin1String(c.editor->className()));
    }
}

} // namespace
