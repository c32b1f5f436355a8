// The coordinate control against the sample project (UTM zone 31N on WGS 84).
#include "QelMfc0/controls/CoordinateCtrl.h"

#include "../common/TestProject.h"

#include <QelBase/DisplayScale.h>
#include <QelConfigure/ProjectDefinition.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

using Ctrl = CCoordinateCtrl;

class CoordinateCtrlTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_project.IsOpen());
        SetDpiScale(1.0);
    }
    void TearDown() override { SetDpiScale(0.0); }

    ProjectDefinition& project() { return *m_project.Project(); }
    // A control in the host window, made after the test's project changes.
    Ctrl* make(bool geogOnly = false, bool gridOnly = false)
    {
        auto* ctrl = new Ctrl(geogOnly, gridOnly);
        EXPECT_TRUE(ctrl->Create(QRect(0, 40, 250, 46), &m_host, 1200));
        return ctrl;
    }
    void activate(QWidget& window)
    {
        window.show();
        window.activateWindow();
        QApplication::setActiveWindow(&window);
    }
    static QStringList texts(const Ctrl& ctrl)
    {
        std::unique_ptr<QMenu> menu(ctrl.FormatMenu());
        QStringList list;
        for (const QAction* action : menu->actions())
            list << action->text() + (action->isChecked() ? QStringLiteral("*") : QString());
        return list;
    }

    TestProject m_project;
    QWidget m_host;
};

TEST_F(CoordinateCtrlTest, InitialFormatFollowsProjectAndModeFlags)
{
    EXPECT_EQ(make()->FormatType(), Ctrl::fmt_grid); // the sample project shows grid
    EXPECT_EQ(make(true)->FormatType(), Ctrl::fmt_seconds);
    project().SetCoordFormat(ProjectDefinition::COORD_GEOGRAPHIC);
    project().SetGeogsFlags(3);
    Ctrl* ctrl = make();
    EXPECT_EQ(ctrl->FormatType(), Ctrl::fmt_minutes);
    // The coordinate system (on WGS 84) is taken only when no mode flag is given.
    EXPECT_EQ(ctrl->FormatButton()->text(), QStringLiteral("Sat.\nLat/Lon"));
    EXPECT_EQ(make(true)->FormatButton()->text(), QStringLiteral("Lat/Lon"));
}

TEST_F(CoordinateCtrlTest, DecimalsKeepTheResolutionAcrossFormats)
{
    const struct { int g; unsigned flags; Ctrl::format_type format; int expected; } cases[] = {
        {1, 7, Ctrl::fmt_degrees, 5}, {1, 7, Ctrl::fmt_minutes, 3}, {1, 1, Ctrl::fmt_seconds, 0},
        {5, 1, Ctrl::fmt_seconds, 1}, {6, 7, Ctrl::fmt_grid, 3},
    };
    project().SetGridDecimals(3);
    for (const auto& c : cases) {
        project().SetGeogsDecimals(c.g);
        project().SetGeogsFlags(c.flags);
        EXPECT_EQ(Ctrl().Decimals(c.format), c.expected) << c.g << ' ' << c.flags << ' ' << c.format;
    }
}

TEST_F(CoordinateCtrlTest, PositionsConvertThroughTheProjectCrs)
{
    Ctrl* ctrl = make();
    ctrl->SetLatLon(52.0, 3.0);
    double x = 0, y = 0, latitude = 0, longitude = 0;
    ASSERT_TRUE(ctrl->GetXY(x, y));
    EXPECT_NEAR(x, 500000.0, 1e-3);
    EXPECT_NEAR(y, 5761038.2126, 1e-3);

    ctrl->SetXY(510000.0, 5800000.0);
    ASSERT_TRUE(ctrl->GetLatLon(latitude, longitude));
    EXPECT_NEAR(latitude, 52.3502021504, 1e-8);
    EXPECT_NEAR(longitude, 3.1468137021, 1e-8);
}

TEST_F(CoordinateCtrlTest, GridTextIsReadAsFeetOnlyForTheFootUnit)
{
    project().SetFeetsFlags(1);
    project().GetUnitCnv().SetUnit(1, QStringLiteral("ft"));
    Ctrl* feet = make(false, true);
    project().GetUnitCnv().SetUnit(1, QStringLiteral("ftUS"));
    Ctrl* other = make(false, true);
    const struct { const char* text; double asFeet, leading; } cases[] = {
        {"12' 06\"", 12.5, 12.0}, {"12,5", 12.5, 12.0}, {" -3.5e2m", -350.0, -350.0}, {"1e999", 0.0, 0.0},
    };
    double x = 0, y = 0;
    for (const auto& c : cases) {
        for (Ctrl* ctrl : {feet, other}) {
            ctrl->SetXY(1.0, 1.0);
            ctrl->Edit1()->setText(QString::fromUtf8(c.text));
            ASSERT_TRUE(ctrl->GetXY(x, y));
            EXPECT_EQ(x, ctrl == feet ? c.asFeet : c.leading) << c.text;
        }
    }
}

TEST_F(CoordinateCtrlTest, FormatMenuOffersTheAllowedFormatsAndAlwaysNotifies)
{
    const QString degrees = QStringLiteral("Lat/Lon (°)"), minutes = QStringLiteral("Lat/Lon (° ')"),
                  seconds = QStringLiteral("Lat/Lon (° ' \")"), grid = QStringLiteral("X/Y");
    Ctrl* ctrl = make();
    EXPECT_EQ(texts(*ctrl), (QStringList{degrees, minutes, seconds, grid + "*"}));
    EXPECT_EQ(texts(*make(true)), (QStringList{degrees, minutes, seconds + "*"}));

    ctrl->SetXY(500000.0, 5761038.2126);
    QSignalSpy chosen(ctrl, &Ctrl::formatChosen);
    ctrl->ChooseFormat(Ctrl::kCmdGrid); // the current one
    EXPECT_EQ(chosen.count(), 1);

    // The button's popup, picked by keyboard.
    activate(m_host);
    QTimer::singleShot(0, ctrl, [] {
        if (auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            popup->setActiveAction(popup->actions().at(1));
            QTest::keyClick(popup, Qt::Key_Return);
        }
    });
    QTest::mouseClick(ctrl->FormatButton(), Qt::LeftButton);
    EXPECT_EQ(ctrl->FormatType(), Ctrl::fmt_minutes);
    EXPECT_EQ(chosen.count(), 2);
    EXPECT_EQ(ctrl->Edit1()->text(), QStringLiteral("52°00.0000' N"));
}

TEST_F(CoordinateCtrlTest, PlacedFromAPlaceholderTypingNotifiesAndLeavingTheControlCommits)
{
    QWidget dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* before = new QLineEdit(&dialog);
    layout->addWidget(before);
    layout->addWidget(new QLabel(QStringLiteral("Position"), &dialog));
    layout->itemAt(1)->widget()->setObjectName(QStringLiteral("position"));
    auto* after = new QLineEdit(&dialog);
    layout->addWidget(after);
    Ctrl* ctrl = new Ctrl();
    ASSERT_TRUE(ctrl->CreateFromStatic(QStringLiteral("position"), &dialog));
    EXPECT_EQ(layout->indexOf(ctrl), 1);
    ctrl->SetXY(1000.0, 2000.0);
    QSignalSpy changed(ctrl, &Ctrl::changed), committed(ctrl, &Ctrl::committed);

    activate(dialog);
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), ctrl->FormatButton());
    QTest::keyClick(ctrl->FormatButton(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), ctrl->Edit1());
    ctrl->Edit1()->clear();
    QTest::keyClicks(ctrl->Edit1(), QStringLiteral(" 1234.5xyz"));
    EXPECT_EQ(changed.count(), 11);
    double x = 0, y = 0;
    ASSERT_TRUE(ctrl->GetXY(x, y)); // read again, not rewritten
    EXPECT_EQ(x, 1234.5);

    QTest::keyClick(ctrl->Edit1(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), ctrl->Edit2());
    EXPECT_EQ(committed.count(), 0) << "moving inside the control commits nothing";
    QTest::keyClick(ctrl->Edit2(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), after);
    ASSERT_EQ(committed.count(), 1);
    EXPECT_EQ(committed.at(0).at(0).toDouble(), 1234.5);
    EXPECT_EQ(ctrl->Edit1()->text(), QStringLiteral("1234.50")); // normalised
}

TEST_F(CoordinateCtrlTest, StateIsReadAndWrittenAsPropertiesThatNotifyOnlyChanges)
{
    Ctrl ctrl(&m_host); // as a form builds it: no Create
    QSignalSpy format(&ctrl, &Ctrl::formatChanged), grid(&ctrl, &Ctrl::gridPositionChanged),
        geo(&ctrl, &Ctrl::geoPositionChanged), decimals(&ctrl, &Ctrl::decimalsChanged);

    // By name, then by value: the second write is no change.
    ASSERT_TRUE(ctrl.setProperty("format", "fmt_minutes"));
    ASSERT_TRUE(ctrl.setProperty("format", QVariant::fromValue(Ctrl::fmt_minutes)));
    EXPECT_EQ(ctrl.FormatType(), Ctrl::fmt_minutes);
    EXPECT_EQ(format.count(), 1);
    EXPECT_EQ(decimals.count(), 1);

    for (int i = 0; i < 2; ++i) {
        ctrl.setProperty("latitude", 52.0);
        ctrl.setProperty("longitude", 3.0);
    }
    EXPECT_EQ(geo.count(), 2);
    EXPECT_EQ(grid.count(), 2);
    ctrl.setProperty("latitude", std::nan("")); // no position, as an empty control reads
    EXPECT_TRUE(ctrl.IsEmpty());

    // The two mode flags exclude each other.
    QSignalSpy geogOnly(&ctrl, &Ctrl::geographicOnlyChanged);
    ctrl.setProperty("geographicOnly", true);
    EXPECT_EQ(ctrl.FormatType(), Ctrl::fmt_seconds); // the project's flags
    ctrl.setProperty("gridOnly", true);
    EXPECT_FALSE(ctrl.property("geographicOnly").toBool());
    EXPECT_EQ(texts(ctrl).size(), 1);
    EXPECT_EQ(geogOnly.count(), 2);
}

TEST_F(CoordinateCtrlTest, APromotedControlWorksInItsLayoutWithoutCreate)
{
    QWidget form;
    QFont formFont = form.font();
    formFont.setPointSize(15);
    form.setFont(formFont);
    auto* layout = new QVBoxLayout(&form);
    auto* ctrl = new Ctrl(&form);
    layout->addWidget(ctrl);
    layout->addWidget(new QLineEdit(&form));
    form.resize(300, 200);
    activate(form);
    EXPECT_GE(ctrl->height(), ctrl->minimumSizeHint().height());
    EXPECT_EQ(ctrl->Edit1()->x(), DpiCor(56));
    EXPECT_GT(ctrl->Edit2()->y(), ctrl->Edit1()->geometry().bottom());
    QFont small = formFont;
    small.setPointSize(7);
    ctrl->SetFontBox(&small);
    ctrl->SetFontBox(nullptr); // back to the form's font
    EXPECT_EQ(ctrl->Edit2()->font().pointSize(), 15);

    ctrl->SetXY(0.0, 0.0);
    ctrl->Edit1()->setText(QStringLiteral("510000"));
    EXPECT_EQ(ctrl->GridX(), 510000.0) << "the property reads the typed text";
}

} // namespace
