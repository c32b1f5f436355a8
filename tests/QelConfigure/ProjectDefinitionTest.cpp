#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/UnitDefinition.h>

#include <QelBase/QelUnitCnv.h>

#include "common/TestProject.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

QString WriteFile(const QTemporaryDir& dir, const QByteArray& text)
{
    const QString path = dir.filePath(QStringLiteral("Project.qpd"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
    return path;
}

// The numeric settings in one row: grid, geographic, distance, depth and bearing decimals,
// geographic flags, feet flags, coordinate format.
std::array<int, 8> Numbers(const ProjectDefinition& project)
{
    std::array<int, 5> d{-1, -1, -1, -1, -1};
    unsigned flags = 99, feet = 99;
    project.GetGridDecimals(d[0]);
    project.GetGeogsDecimals(d[1]);
    project.GetDistanceDecimals(d[2]);
    project.GetDepthDecimals(d[3]);
    project.GetBearingDecimals(d[4]);
    project.GetGeogsFlags(flags);
    project.GetFeetsFlags(feet);
    return {d[0], d[1], d[2], d[3], d[4], int(flags), int(feet), int(project.GetCoordFormat())};
}

constexpr int kGrid = ProjectDefinition::COORD_GRID, kGeographic = ProjectDefinition::COORD_GEOGRAPHIC;

} // namespace

TEST(ProjectDefinition, OutOfRangeValuesAreCorrected)
{
    struct Case { const char* text; int grid; int flags; int format; };
    const Case cases[] = {
        {"[Decimals]\nGrid = 40\n[Geographic]\nFlags = 5\n[Coordinates]\nFormat = 9\n", 12, 7, kGrid},
        {"[Decimals]\nGrid = -3\n[Geographic]\nFlags = 3\n[Coordinates]\nFormat = 2\n", 0, 3, kGeographic},
    };
    for (const Case& c : cases) {
        QTemporaryDir dir;
        ProjectDefinition project;
        ASSERT_TRUE(project.Load(WriteFile(dir, c.text)));
        EXPECT_EQ(Numbers(project), (std::array{c.grid, 2, 2, 2, 2, c.flags, 0, c.format})) << c.text;
    }
    ProjectDefinition project;
    project.SetDepthDecimals(13);
    project.SetGeogsFlags(4);
    EXPECT_EQ((std::array{Numbers(project)[3], Numbers(project)[5]}), (std::array{12, 7}));
}

TEST(ProjectDefinition, CrsDefinitionAndCoordinateSystem)
{
    QTemporaryDir dir;
    ProjectDefinition project;
    ASSERT_TRUE(project.Load(WriteFile(dir, "[Project]\nCrs = EPSG:4326\n")));
    EXPECT_EQ(project.GetGeoCoordSys(), nullptr); // geographic: no grid

    EXPECT_FALSE(project.SetCrsDefinition(QStringLiteral("no such crs")));
    EXPECT_EQ(project.GetCrsDefinition(), QStringLiteral("EPSG:4326"));
    ASSERT_TRUE(project.SetCrsDefinition(QStringLiteral("EPSG:32631")));
    ASSERT_NE(project.GetGeoCoordSys(), nullptr);
    EXPECT_TRUE(project.GetGeoCoordSys()->IsSatelliteLatLon());
    EXPECT_TRUE(project.SetCrsDefinition(QString()));
    EXPECT_EQ(project.GetGeoCoordSys(), nullptr);

    EXPECT_FALSE(project.Load(dir.filePath(QStringLiteral("missing.qpd"))));
}

TEST(ProjectDefinition, SaveRoundTripKeepsUnknownEntriesAndOptions)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const QString path = test.ProjectFolder() + QStringLiteral("/Project.qpd");
    {
        ProjectDefinition project;
        ASSERT_TRUE(project.Load(path));
        project.SetString(QStringLiteral("Survey"), QStringLiteral("Vessel"), QStringLiteral("Orca"));
        project.SetGridDecimals(3);
        project.SetGeogsFlags(3);
        project.SetCoordFormat(ProjectDefinition::COORD_GEOGRAPHIC);
        project.SetFeetsFlags(1);
        ASSERT_TRUE(project.GetUnitCnv().SetUnit(UNIT_DEPTH, QStringLiteral("ft")));
        project.SetMultiMediaFilePath(test.ProjectFolder() + QStringLiteral("/Media/Photos"));
        ASSERT_TRUE(project.FileSave(QString(), 0, 4113));
    }
    ProjectDefinition reread;
    ASSERT_TRUE(reread.Load(path));
    const auto numbers = Numbers(reread);
    EXPECT_EQ((std::array{numbers[0], numbers[5], numbers[6], numbers[7]}), (std::array{3, 3, 1, kGeographic}));
    EXPECT_EQ(reread.GetUnitCnv().GetUnitKey(UNIT_DEPTH), QStringLiteral("ft"));

    QString media, value;
    ASSERT_TRUE(reread.GetMultiMediaFilePath(media));
    EXPECT_EQ(media, test.ProjectFolder() + QStringLiteral("/Media/Photos"));
    EXPECT_TRUE(reread.GetString(QStringLiteral("Folders"), QStringLiteral("MultiMedia"), value));
    EXPECT_EQ(value, QStringLiteral("Media/Photos")); // kept relative: the project can move
    EXPECT_TRUE(reread.GetString(QStringLiteral("Survey"), QStringLiteral("Vessel"), value));
    EXPECT_EQ(value, QStringLiteral("Orca"));

    // A folder outside the project stays absolute; none set reads as none.
    const QString outside = test.ProjectsFolder() + QStringLiteral("/Shared/Media");
    reread.SetMultiMediaFilePath(outside);
    ASSERT_TRUE(reread.GetMultiMediaFilePath(media));
    EXPECT_EQ(media, outside);
    reread.SetMultiMediaFilePath(QString());
    EXPECT_FALSE(reread.GetMultiMediaFilePath(media));
}

TEST(UnitDefinition, SampleGroupsMatchTheConverter)
{
    UnitDefinition units;
    ASSERT_TRUE(units.FileOpen(QStringLiteral(QEL_SAMPLES_DIR "/Common/Units.def"), 32));
    // Every group's keys are units the converter knows of the matching kind.
    const std::pair<int, int> groups[] = {{1, UNIT_SPEED}, {3, UNIT_ANGULAR}, {4, UNIT_VOLUME},
                                          {5, UNIT_AREA}, {6, UNIT_TEMPERATURE}};
    for (const auto& [group, kind] : groups) {
        const auto items = units.GetGroupItems(group);
        EXPECT_FALSE(items.isEmpty()) << group;
        for (const auto& item : items) {
            UnitInfo known;
            EXPECT_TRUE(CQelUnitCnv::FindUnit(kind, item.key, known)) << item.key.toStdString();
            EXPECT_NEAR(item.factor, known.factor, 1e-15 * std::abs(known.factor));
            EXPECT_NEAR(item.offset, known.offset, 1e-12);
        }
    }
}

TEST(UnitDefinition, MalformedItemsAreSkipped)
{
    UnitDefinition units;
    units.LoadFromText(QStringLiteral("[Group2]\n"
                                      "a = Alpha; 2; 0; al\n"
                                      "b = Beta; 0; 0; be\n"        // zero factor
                                      "c = Gamma; x; 0; ga\n"       // not a number
                                      "d = Delta; 1; 0\n"           // missing abbreviation
                                      "f = Phi; inf; 0; ph\n"       // not finite
                                      "g = Gamma; 3; 0.5; gm; x\n"  // extra field
                                      "h = Eta; 1e3; -1.5; et\n"));
    QStringList keys;
    for (const auto& item : units.GetGroupItems(2))
        keys.append(item.key);
    EXPECT_EQ(keys, (QStringList{"a", "h"}));
}
