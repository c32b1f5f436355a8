// The measuring dialogs: what they compute, what they remember, and that only the close button closes them.
#include <common/TestProject.h>

#include <QelAttributes/AttributeMap.h>
#include <QelBase/DisplayScale.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/BaseDlg.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QelMfc0/dialogs/measure/MeasureBrgDistDlg.h>
#include <QelMfc0/dialogs/measure/MeasureDlg.h>
#include <QelMfc0/dialogs/measure/MeasureRelativeDlg.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <cmath>
#include <memory>

namespace {

// A UTM 31N position on the zone's central meridian (3°E), in the North Sea.
const Point kOrigin(500000.0, 6000000.0);

Point Offset(double dx, double dy, double dz = 0.0)
{
    return Point(kOrigin.x + dx, kOrigin.y + dy, kOrigin.z + dz);
}

double ScaleFactor(const Point& a, const Point& b)
{
    return DataSearch::GetDataSearch().GetProjectDefinition()->GetGeoCoordSys()->GetScaleFactor(
        a.x, a.y, b.x, b.y);
}

double Shown(const DistanceCtrl* control)
{
    double value = std::nan("");
    EXPECT_TRUE(control->GetDistance(value));
    return value;
}

int UnitIndex(const DistanceCtrl* control, const QString& key)
{
    const auto& units = control->Units();
    for (int i = 0; i < units.size(); ++i)
        if (units[i].key == key)
            return i;
    return -1;
}

QString Bearing(double degrees) { return QelFormatter().FormatBearing(degrees); }

class MeasureDlgTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_project.IsOpen()); }

    TestProject m_project;
    CAttributeMap m_attributes;
};

} // namespace

TEST_F(MeasureDlgTest, BearingAndDistanceInEveryQuadrant)
{
    CMeasureDlg dlg(nullptr, &m_attributes, false, true, true);
    const struct { double dx, dy, bearing; } cases[] = {
        { 3, 4, 36.8698976458 }, { 3, -4, 143.1301023542 }, { -3, -4, 216.8698976458 },
        { -3, 4, 323.1301023542 }, { -5, 0, 270.0 },
    };
    dlg.SetFromPos(kOrigin);
    for (const auto& c : cases) {
        dlg.SetToPos(Offset(c.dx, c.dy));
        double distance = 0, bearing = 0;
        dlg.GetDistanceAndBearing(distance, bearing);
        EXPECT_NEAR(bearing, c.bearing, 1e-9) << c.dx << "," << c.dy;
        EXPECT_EQ(dlg.FieldText(CMeasureDlg::kBearingId), Bearing(c.bearing));
        EXPECT_NEAR(Shown(dlg.DistanceControl()), 5.0, 1e-9);
    }
    // In slope mode the angle is taken from the horizontal.
    dlg.SetSlope(true);
    const struct { double dx, dy; QString shown; } slopes[] = {
        { 1, 1, Bearing(45) }, { 1, -1, QLatin1Char('-') + Bearing(45) }, { -1, 1, Bearing(45) }, { 0, 1, Bearing(90) },
    };
    for (const auto& c : slopes) {
        dlg.SetToPos(Offset(c.dx, c.dy));
        EXPECT_EQ(dlg.FieldText(CMeasureDlg::kBearingId), c.shown) << c.dx << "," << c.dy;
    }
}

TEST_F(MeasureDlgTest, ThreeDDistanceElevationAndHeightDifference)
{
    CMeasureDlg dlg(nullptr, nullptr, true, true, true);
    dlg.SetFromPos(Offset(0, 0, 10));
    dlg.SetToPos(Offset(3, 4, 22));
    EXPECT_NEAR(Shown(dlg.DistanceControl()), 13.0, 1e-9);
    EXPECT_EQ(dlg.FieldText(CMeasureDlg::kElevationId), Bearing(std::atan(12.0 / 5.0) * 180 / M_PI));

    dlg.SetToPos(Offset(3, 4, -2)); // going down: a negative elevation, not 292.6°
    EXPECT_EQ(dlg.FieldText(CMeasureDlg::kElevationId),
              QLatin1Char('-') + Bearing(std::atan(12.0 / 5.0) * 180 / M_PI));
    dlg.SetToPos(Offset(0, 0, 10)); // the same point: no distance, no elevation
    EXPECT_NEAR(Shown(dlg.DistanceControl()), 0.0, 0.0);
    EXPECT_EQ(dlg.FieldText(CMeasureDlg::kElevationId), Bearing(0));

    dlg.SetShowZdiff(true);
    dlg.SetToPos(Offset(3, 4, 22));
    EXPECT_EQ(dlg.FieldText(CMeasureDlg::kElevationId), QelFormatter().FormatDepth(12, true, true));
}

TEST_F(MeasureDlgTest, GridDistancesBecomeTrueDistancesUnlessTold)
{
    const Point from = kOrigin, to = Offset(1000, 0);
    const double k = ScaleFactor(from, to);
    ASSERT_NEAR(k, 0.9996, 1e-6); // UTM on its central meridian

    CMeasureDlg corrected(nullptr, nullptr, false, true, false);
    corrected.SetFromPos(from);
    corrected.SetToPos(to);
    EXPECT_NEAR(Shown(corrected.DistanceControl()), 1000.0 / k, 1e-9);
    double distance = 0, bearing = 0;
    corrected.GetDistanceAndBearing(distance, bearing);
    EXPECT_DOUBLE_EQ(distance, 1000.0); // the grid distance, always

    // Far outside the projection's domain the scale factor is 0: the grid distance stays.
    const Point far(1e12, 1e12), farTo(1e12 + 30, 1e12 + 40);
    ASSERT_FALSE(std::isfinite(ScaleFactor(far, farTo)) && ScaleFactor(far, farTo) > 0.0);
    corrected.SetFromPos(far);
    corrected.SetToPos(farTo);
    EXPECT_DOUBLE_EQ(Shown(corrected.DistanceControl()), 50.0);
}

TEST_F(MeasureDlgTest, NotSelectableFixesGridAndShowsUnconverted)
{
    CMeasureDlg dlg(nullptr, &m_attributes, false, false, true);
    EXPECT_EQ(dlg.FromControl()->FormatType(), CCoordinateCtrl::fmt_grid);
    dlg.SetFromPos(kOrigin);
    dlg.SetToPos(Offset(30, 40));
    EXPECT_EQ(dlg.DistanceControl()->Edit()->text(), dlg.DistanceControl()->FormatDistance(50, false));
    EXPECT_EQ(std::unique_ptr<QMenu>(dlg.FromControl()->FormatMenu())->actions().size(), 1);
}

TEST_F(MeasureDlgTest, ChosenFormatAndUnitAreFollowedAndRemembered)
{
    CMeasureDlg dlg(nullptr, &m_attributes);
    dlg.SetFromPos(kOrigin);
    dlg.SetToPos(Offset(300, 400));

    dlg.FromControl()->ChooseFormat(CCoordinateCtrl::kCmdDegrees);
    EXPECT_EQ(m_attributes.FindValue(QStringLiteral("MeasureCoordFormat"))->GetInt(), CCoordinateCtrl::fmt_degrees);

    DistanceCtrl* distance = dlg.DistanceControl();
    distance->ChooseUnit(DistanceCtrl::kFirstUnitCommand + UnitIndex(distance, QStringLiteral("ft")));
    EXPECT_EQ(m_attributes.FindValue(QStringLiteral("MeasureDistUnit"))->GetString(), QStringLiteral("ft"));

    // Clear forgets the positions and puts the remembered choices back.
    distance->SetDistUnit(QStringLiteral("m"));
    dlg.FromControl()->SetFormatType(CCoordinateCtrl::fmt_grid);
    dlg.Clear();
    EXPECT_EQ(distance->DistUnit(), QStringLiteral("ft"));
    EXPECT_EQ(dlg.FromControl()->FormatType(), CCoordinateCtrl::fmt_degrees);
    double value = 0;
    EXPECT_FALSE(distance->GetDistance(value));

    // Every measuring dialog opens with the shared choices.
    MeasureRelativeDlg relative(nullptr, &m_attributes);
    EXPECT_EQ(relative.OffTrackControl()->DistUnit(), QStringLiteral("ft"));
    EXPECT_EQ(relative.EndControl()->FormatType(), CCoordinateCtrl::fmt_degrees);

    // A format or unit chosen on any control of a dialog shows on all of them and is remembered.
    relative.EndControl()->ChooseFormat(CCoordinateCtrl::kCmdGrid);
    for (const CCoordinateCtrl* position : { relative.StartControl(), relative.CurrentControl() })
        EXPECT_EQ(position->FormatType(), CCoordinateCtrl::fmt_grid);
    DistanceCtrl* offTrack = relative.OffTrackControl();
    offTrack->ChooseUnit(DistanceCtrl::kFirstUnitCommand + UnitIndex(offTrack, QStringLiteral("m")));
    for (const DistanceCtrl* other : { relative.FromStartControl(), relative.ToEndControl() })
        EXPECT_EQ(other->DistUnit(), QStringLiteral("m"));
}

TEST_F(MeasureDlgTest, LineRelativeDistancesBeforeAlongAndPastTheLine)
{
    MeasureRelativeDlg dlg(nullptr, &m_attributes);
    const Point start = kOrigin;
    // A line of 1000 m on bearing 36.87°, so that the rotation into the line matters.
    const Point end = Offset(600, 800);
    const double k = ScaleFactor(start, end);
    ASSERT_GT(k, 0.9);
    dlg.SetStartPos(start);
    dlg.SetEndPos(end);
    const double ux = 0.6, uy = 0.8;   // along the line
    const double rx = 0.8, ry = -0.6;  // to its right
    const struct { double along, across; } cases[] = {
        { 500, 50 }, { 500, -50 }, { -100, 10 }, { 1200, -10 }, // either side, before, past
    };
    for (const auto& c : cases) {
        dlg.SetCurrentPos(Offset(c.along * ux + c.across * rx, c.along * uy + c.across * ry));
        EXPECT_NEAR(Shown(dlg.FromStartControl()), c.along / k, 1e-6) << c.along << "," << c.across;
        EXPECT_NEAR(Shown(dlg.OffTrackControl()), std::fabs(c.across) / k, 1e-6);
        EXPECT_NEAR(Shown(dlg.ToEndControl()), (1000 - c.along) / k, 1e-6);
    }
    // A line of no length does not break anything.
    dlg.SetEndPos(start);
    dlg.SetCurrentPos(Offset(0, 30));
    EXPECT_NEAR(Shown(dlg.FromStartControl()), 30 / ScaleFactor(start, start), 1e-6);
}

TEST_F(MeasureDlgTest, OpenAtTheParentsCornerAndOnlyTheCloseButtonCloses)
{
    QWidget host;
    host.setGeometry(120, 90, 600, 400);
    host.show();
    CMeasureDlg measure(&host, &m_attributes);
    MeasureRelativeDlg relative(&host, &m_attributes);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&measure, &relative}) {
        dialog->show();
        EXPECT_EQ(dialog->pos(), host.frameGeometry().topLeft());
        EXPECT_FALSE(dialog->isModal());
    }
    QApplication::setActiveWindow(&measure);
    QWidget* edit = measure.FromControl()->Edit1();
    edit->setFocus();
    for (QWidget* target : { static_cast<QWidget*>(&measure), edit }) {
        for (Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter }) {
            QTest::keyClick(target, key);
            EXPECT_TRUE(measure.isVisible()) << "key " << key;
        }
    }
    EXPECT_TRUE(measure.close());
}

TEST_F(MeasureDlgTest, WindowSizeRestoredUnlessSquareAndWrittenBackOnHide)
{
    const QString section = QStringLiteral("MeasureRelativeDlg");
    FileObject file;
    const QSize initial = MeasureRelativeDlg().size();
    file.SetInt(section, QStringLiteral("iWidth"), 400);
    file.SetInt(section, QStringLiteral("iHeight"), 400);
    MeasureRelativeDlg square;
    square.SetPrsConfiguration(&file);
    EXPECT_EQ(square.size(), initial);

    file.SetInt(section, QStringLiteral("iHeight"), 300);
    MeasureRelativeDlg dlg;
    dlg.SetPrsConfiguration(&file);
    EXPECT_EQ(dlg.size(), QSize(DpiCor(400), DpiCor(300)));
    dlg.show();
    dlg.resize(DpiCor(420), DpiCor(210));
    dlg.hide();
    int width = 0, height = 0;
    EXPECT_TRUE(file.GetInt(section, QStringLiteral("iWidth"), width));
    EXPECT_TRUE(file.GetInt(section, QStringLiteral("iHeight"), height));
    EXPECT_EQ(QSize(width, height), QSize(420, 210));
}

namespace {

// True when `widget` shows its whole text: a line edit does not scroll it, a label's size hint
// fits, a button's caption fits the room its style leaves.
bool ShowsWholeText(QWidget* widget)
{
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setCursorPosition(int(edit->text().size()));
        return edit->text().isEmpty() || edit->cursorPositionAt(QPoint(edit->contentsRect().left() + 4, edit->height() / 2)) == 0;
    }
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        const QSize hint = label->sizeHint();
        return hint.width() <= label->width() && hint.height() <= label->height();
    }
    if (auto* button = qobject_cast<QPushButton*>(widget))
        return BaseDlg::TextFits(button->text(), button->font(), BaseDlg::TextRoom(button));
    return true;
}

std::string CutTexts(QDialog& dialog)
{
    std::string cut;
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&dialog) && !ShowsWholeText(widget))
            cut += " [" + BaseDlg::TextOf(widget).toStdString() + " in " + std::to_string(widget->width()) + "px]";
    }
    return cut;
}

} // namespace

TEST_F(MeasureDlgTest, NoDigitOrLabelIsCutAtAnySize)
{
    // Survey numbers of full length: seven-digit northings, four-digit distances.
    const Point from(498200.0, 5763622.52, -8.4);
    const Point to(505107.58, 5763622.52, -14.9);
    CMeasureDlg measure(nullptr, nullptr, true);
    measure.SetFromPos(from);
    measure.SetToPos(to);
    MeasureRelativeDlg relative(nullptr, nullptr);
    relative.SetStartPos(from);
    relative.SetEndPos(to);
    relative.SetCurrentPos(Point(from.x + 6907.58, from.y - 120.0));
    for (QDialog* dialog : std::initializer_list<QDialog*>{&measure, &relative}) {
        dialog->show();
        for (const QSize size : {QSize(40, 20), QSize(700, 90), QSize(300, 700)}) {
            dialog->resize(size);
            QApplication::processEvents();
            EXPECT_EQ(CutTexts(*dialog), "") << dialog->windowTitle().toStdString() << " asked " << size.width()
                                             << "x" << size.height();
        }
        // Never so small that the text is smaller than the smallest size.
        dialog->resize(1, 1);
        QApplication::processEvents();
        for (const QLineEdit* edit : dialog->findChildren<QLineEdit*>())
            EXPECT_GE(edit->font().pointSize(), MeasureDlgBase::kSmallestPointSize);
    }
}
