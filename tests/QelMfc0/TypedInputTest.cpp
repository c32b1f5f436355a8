// Typed text that cannot be read, or a latitude or longitude out of range, is marked until it is
// corrected; a typed distance can be taken by the host.
#include <common/TestProject.h>

#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QelMfc0/controls/InputMarker.h>

#include <QApplication>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class TypedInputTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_project.IsOpen()); }
    void TearDown() override
    {
        ColorControl::Instance().SetLightMode(ColorConverter::normal, false);
        QCoreApplication::processEvents();
    }
    static void Type(QLineEdit* edit, const QString& text)
    {
        edit->selectAll();
        if (text.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        else
            QTest::keyClicks(edit, text);
    }
    static QColor Base(const QLineEdit* edit) { return edit->palette().color(QPalette::Base); }

    TestProject m_project;
    QWidget m_host;
};

TEST_F(TypedInputTest, CoordinateEditsMarkUnreadableAndOutOfRangeTextUntilCorrected)
{
    auto* ctrl = new CCoordinateCtrl();
    ASSERT_TRUE(ctrl->Create(QRect(0, 0, 250, 46), &m_host, 1));
    const QColor normalBase = Base(ctrl->Edit1());
    const struct { CCoordinateCtrl::format_type format; const char *first, *second; bool firstMarked, secondMarked; } cases[] = {
        {CCoordinateCtrl::fmt_grid, "500000.25", "5760000", false, false},
        {CCoordinateCtrl::fmt_grid, "500000 m", "-1e3", true, false}, // read as 500000, but not all of it
        {CCoordinateCtrl::fmt_seconds, "56 30 7.2 N", "3°15'E", false, false},
        {CCoordinateCtrl::fmt_seconds, "90 00 01 N", "180 00 01 W", true, true},
        {CCoordinateCtrl::fmt_degrees, "-90", "-180", false, false},
        {CCoordinateCtrl::fmt_degrees, "north", "3,5", true, false},
    };
    for (const auto& c : cases) {
        ctrl->SetFormatType(c.format);
        Type(ctrl->Edit1(), QString::fromUtf8(c.first));
        Type(ctrl->Edit2(), QString::fromUtf8(c.second));
        const auto describe = [&] { return std::string(c.first) + " / " + c.second; };
        EXPECT_EQ(Base(ctrl->Edit1()) != normalBase, c.firstMarked) << describe();
        EXPECT_EQ(Base(ctrl->Edit2()) != normalBase, c.secondMarked) << describe();
        EXPECT_EQ(ctrl->IsInputMarked(), c.firstMarked || c.secondMarked) << describe();
    }
    // The values stay as the control reads them: unreadable geographic text counts as 0.
    double latitude = 1.0, longitude = 1.0;
    ctrl->SetLatLon(10.0, 10.0);
    Type(ctrl->Edit1(), QStringLiteral("north"));
    ASSERT_TRUE(ctrl->GetLatLon(latitude, longitude));
    EXPECT_EQ(latitude, 0.0);
    // Corrected text takes the mark away, and the examples come back as the tooltip.
    Type(ctrl->Edit1(), QStringLiteral("52 N"));
    EXPECT_FALSE(ctrl->IsInputMarked());
    EXPECT_EQ(Base(ctrl->Edit1()), normalBase);
    EXPECT_TRUE(ctrl->Edit1()->toolTip().contains(QStringLiteral("56.502 N")));
}

TEST_F(TypedInputTest, TheMarkFollowsTheColourMode)
{
    auto* ctrl = new CCoordinateCtrl();
    ASSERT_TRUE(ctrl->Create(QRect(0, 0, 250, 46), &m_host, 1));
    Type(ctrl->Edit1(), QStringLiteral("east"));
    ColorControl& colors = ColorControl::Instance();
    EXPECT_EQ(Base(ctrl->Edit1()), toQColor(colors.GetColor(InputMarker::kWarningBackground, false)));
    colors.SetLightMode(ColorConverter::night, false);
    QCoreApplication::processEvents(); // the mode change is posted
    const QColor night = toQColor(colors.GetColor(InputMarker::kWarningBackground, false));
    EXPECT_NE(night, toQColor(InputMarker::kWarningBackground)); // the night map darkens it
    EXPECT_EQ(Base(ctrl->Edit1()), night);
}

TEST_F(TypedInputTest, TypedDistancesAreReadWithTheirUnitAndMarkedWhenUnreadable)
{
    DistanceCtrl ctrl(&m_host); // the project's unit: metres
    ctrl.SetDistUnit(QStringLiteral("NM"));
    ctrl.SetDistance(1852.0, true);
    const struct { const char* text; bool readable; double metres; } cases[] = {
        {"2", true, 3704.0}, // the current unit
        {" 2KM ", true, 2000.0}, {"6,5 ft", true, 1.9812}, {"-1.5e3 m", true, -1500.0},
        {"2 parsecs", false, 0.0}, {"1e999 m", false, 0.0},
    };
    for (const auto& c : cases) {
        Type(ctrl.Edit(), QString::fromUtf8(c.text));
        double metres = -1.0;
        EXPECT_EQ(ctrl.ReadTypedDistance(metres), c.readable) << c.text;
        if (c.readable) {
            EXPECT_NEAR(metres, c.metres, 1e-9) << c.text;
        }
        EXPECT_EQ(ctrl.IsInputMarked(), !c.readable) << c.text;
    }
    // Typing never changes the stored value; the host takes it with SetDistance.
    double value = 0.0;
    ASSERT_TRUE(ctrl.GetDistance(value));
    EXPECT_EQ(value, 1852.0);
    Type(ctrl.Edit(), QString());
    EXPECT_FALSE(ctrl.IsInputMarked());
    EXPECT_FALSE(ctrl.ReadTypedDistance(value));
}

TEST_F(TypedInputTest, AHostThatTakesTypedDistancesKeepsThemWhenTheUnitChanges)
{
    auto* ctrl = new DistanceCtrl(&m_host);
    auto* other = new QLineEdit(&m_host);
    QObject::connect(ctrl, &DistanceCtrl::committed, ctrl, [ctrl] {
        double value = 0.0;
        if (ctrl->ReadTypedDistance(value))
            ctrl->SetDistance(value, true);
    });
    m_host.show();
    QApplication::setActiveWindow(&m_host);
    ctrl->SetDistance(1852.0, true);
    ctrl->Edit()->setFocus();
    Type(ctrl->Edit(), QStringLiteral("2 km"));
    other->setFocus(); // leaving the edit commits
    EXPECT_EQ(ctrl->Edit()->text(), QStringLiteral("2000.00 m"));
    ctrl->ChooseUnit(DistanceCtrl::kFirstUnitCommand + 8); // m km cm mm ft ftUS yd fathom NM
    EXPECT_EQ(ctrl->Edit()->text(), QStringLiteral("1.08 NM"));
}

} // namespace
