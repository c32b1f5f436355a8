// Live controls and modeless measuring dialogs while the host opens another project: they read
// the new project's settings and coordinate system and never touch the closed project again.
#include <common/TestProject.h>

#include <QelBase/GeoText.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelGeoCoordSys.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QelMfc0/dialogs/measure/MeasureBrgDistDlg.h>
#include <QelMfc0/dialogs/measure/MeasureDlg.h>
#include <QelMfc0/dialogs/measure/MeasureRelativeDlg.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

// Project B: UTM zone 32N in international feet, one grid decimal, feet shown as feet and
// inches, distances with three decimals.
constexpr char kFeetCrs[] = "+proj=utm +zone=32 +datum=WGS84 +units=ft +no_defs";
constexpr char kFeetProject[] = R"([Project]
Name = Harbour
Crs = +proj=utm +zone=32 +datum=WGS84 +units=ft +no_defs
[Decimals]
Grid = 1
Geographic = 1
Distance = 3
[Geographic]
Flags = 3
[Feet]
Flags = 1
[Units]
System Units = ft
Distance Units = ft
)";
constexpr double kFoot = 0.3048;

// In project A (UTM 31N, metres): a point on the zone's central meridian in the North Sea.
const Point kFrom(500000.0, 6000000.0, -12.0);
const Point kTo(500300.0, 6000400.0, -2.0);

class ProjectSwitchTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_project.IsOpen());
        const QString folder = m_project.ProjectsFolder() + QStringLiteral("/Harbour");
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/Project.qpd"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(kFeetProject);
        file.close();
        m_utm31 = QelGeoCoordSys::Create(QStringLiteral("EPSG:32631"));
        m_utm32ft = QelGeoCoordSys::Create(QString::fromLatin1(kFeetCrs));
        ASSERT_TRUE(m_utm31 && m_utm32ft);
        m_host.resize(600, 200);
        m_host.show();
    }

    static bool OpenProject(const char* name)
    {
        DataSearch& search = DataSearch::GetDataSearch();
        QString folder;
        search.GetDataPathInfo(DataSearch::PATH_PROJECTS, folder);
        return search.Open(folder, QString::fromLatin1(name));
    }
    // Where a position of project A lies in project B.
    Point InFeetProject(const Point& a) const
    {
        double latitude = 0.0, longitude = 0.0;
        EXPECT_TRUE(m_utm31->GridToGeo(a.x, a.y, latitude, longitude));
        Point b(0.0, 0.0, a.z / kFoot);
        EXPECT_TRUE(m_utm32ft->GeoToGrid(latitude, longitude, b.x, b.y));
        return b;
    }
    static void Retype(QLineEdit* edit, const QString& text)
    {
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    TestProject m_project;
    std::unique_ptr<QelGeoCoordSys> m_utm31;
    std::unique_ptr<QelGeoCoordSys> m_utm32ft;
    QWidget m_host;
};

TEST_F(ProjectSwitchTest, ControlsAndMeasureDialogFollowTheNewProjectsCrsAndUnits)
{
    auto* coord = new CCoordinateCtrl();
    ASSERT_TRUE(coord->Create(QRect(0, 0, 250, 46), &m_host, 1));
    auto* typed = new CCoordinateCtrl();
    ASSERT_TRUE(typed->Create(QRect(0, 50, 250, 46), &m_host, 2));
    auto* distance = new DistanceCtrl(&m_host);
    auto* chosen = new DistanceCtrl(&m_host);
    CMeasureDlg measure(&m_host, nullptr, true);
    measure.show();

    coord->SetXY(kFrom.x, kFrom.y);
    double latA = 0.0, lonA = 0.0;
    ASSERT_TRUE(coord->GetLatLon(latA, lonA));
    // Typed in A's grid but not yet read when the project changes: read in A's terms.
    typed->SetXY(0.0, 0.0);
    Retype(typed->Edit1(), QStringLiteral("500100"));
    Retype(typed->Edit2(), QStringLiteral("6000100"));
    distance->SetDistance(100.0, true);
    chosen->SetDistUnit(QStringLiteral("km"));
    chosen->SetDistance(1500.0, true);
    measure.SetFromPos(kFrom);
    measure.SetToPos(kTo);
    const QString trueMetres = measure.DistanceControl()->Edit()->text();

    ASSERT_TRUE(OpenProject("Harbour"));

    // The same place on earth, now in B's grid, feet and decimals.
    double lat = 0.0, lon = 0.0, x = 0.0, y = 0.0;
    ASSERT_TRUE(coord->GetLatLon(lat, lon));
    EXPECT_NEAR(lat, latA, 1e-9);
    ASSERT_TRUE(coord->GetXY(x, y));
    const Point fromB = InFeetProject(kFrom);
    EXPECT_NEAR(x, fromB.x, 1e-3);
    EXPECT_NEAR(y, fromB.y, 1e-3);
    EXPECT_EQ(coord->Edit1()->text(), FormatDouble(fromB.x, 1, 1));
    ASSERT_TRUE(typed->GetXY(x, y));
    const Point typedB = InFeetProject(Point(500100.0, 6000100.0));
    EXPECT_NEAR(x, typedB.x, 1e-3);
    EXPECT_NEAR(y, typedB.y, 1e-3);

    // Distances keep their length in B's unit; the unit shown follows the project's unless
    // another one was picked.
    double value = 0.0;
    ASSERT_TRUE(distance->GetDistance(value));
    EXPECT_NEAR(value, 100.0 / kFoot, 1e-9);
    EXPECT_EQ(distance->Edit()->text(), QStringLiteral("328.084 ft"));
    EXPECT_EQ(chosen->Edit()->text(), QStringLiteral("1.500 km"));

    // The measure dialog shows what a dialog opened in B shows for the same places; the true
    // distance keeps its length although B's projection scales it differently.
    CMeasureDlg fresh(&m_host, nullptr, true);
    fresh.SetFromPos(fromB);
    fresh.SetToPos(InFeetProject(kTo));
    for (const int id : {CMeasureDlg::kToFirstId, CMeasureDlg::kToSecondId, CMeasureDlg::kFromAltitudeId,
                         CMeasureDlg::kToAltitudeId, CMeasureDlg::kBearingId, CMeasureDlg::kElevationId})
        EXPECT_EQ(measure.FieldText(id), fresh.FieldText(id)) << id;
    EXPECT_EQ(measure.FromControl()->Edit1()->text(), fresh.FromControl()->Edit1()->text());
    EXPECT_EQ(measure.DistanceControl()->Edit()->text(), fresh.DistanceControl()->Edit()->text());
    ASSERT_TRUE(measure.DistanceControl()->GetDistance(value));
    EXPECT_NEAR(value * kFoot, trueMetres.section(u' ', 0, 0).toDouble(), 0.01);
}

TEST_F(ProjectSwitchTest, LineRelativeAndVesselDialogsKeepTrueDistances)
{
    MeasureRelativeDlg relative(&m_host, nullptr);
    CMeasureBrgDistDlg vessel(&m_host, nullptr);
    relative.SetStartPos(kFrom);
    relative.SetEndPos(Point(kFrom.x, kFrom.y + 2000.0));
    relative.SetCurrentPos(Point(kFrom.x + 50.0, kFrom.y + 500.0));
    vessel.SetFromPos(kFrom);
    vessel.SetToPos(kTo);
    double offTrackA = 0.0, vesselA = 0.0;
    ASSERT_TRUE(relative.OffTrackControl()->GetDistance(offTrackA));
    ASSERT_TRUE(vessel.DistanceControl()->GetDistance(vesselA));

    ASSERT_TRUE(OpenProject("Harbour"));

    double offTrackB = 0.0, vesselB = 0.0;
    ASSERT_TRUE(relative.OffTrackControl()->GetDistance(offTrackB));
    ASSERT_TRUE(vessel.DistanceControl()->GetDistance(vesselB));
    // Far from B's central meridian the grid line bends away from the true line by a few
    // millimetres (arc to chord), so the off-track agrees to a centimetre.
    EXPECT_NEAR(offTrackB * kFoot, offTrackA, 1e-2);
    EXPECT_NEAR(vesselB * kFoot, vesselA, 1e-3);
}

TEST_F(ProjectSwitchTest, ClosingTheProjectLeavesControlsUsable)
{
    auto* coord = new CCoordinateCtrl();
    ASSERT_TRUE(coord->Create(QRect(0, 0, 250, 46), &m_host, 1));
    CMeasureDlg measure(&m_host, nullptr);
    coord->SetXY(kFrom.x, kFrom.y);
    measure.SetFromPos(kFrom);
    measure.SetToPos(kTo);

    DataSearch::GetDataSearch().Close();

    coord->SetXY(kTo.x, kTo.y); // no coordinate system: the grid numbers stay
    double x = 0.0, y = 0.0;
    ASSERT_TRUE(coord->GetXY(x, y));
    EXPECT_EQ(x, kTo.x);
    measure.SetToPos(Point(kFrom.x + 30.0, kFrom.y + 40.0));
    double value = 0.0;
    ASSERT_TRUE(measure.DistanceControl()->GetDistance(value));
    EXPECT_DOUBLE_EQ(value, 50.0); // no scale correction without a coordinate system
}

} // namespace
