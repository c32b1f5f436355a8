#include <QelConfigure/DataSearch.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelIniFile_IO.h>

#include "common/TestProject.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void MakeProject(const QString& folder)
{
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/Project.qpd"));
    if (file.open(QIODevice::WriteOnly))
        file.write("[Project]\nCrs = EPSG:32631\n");
}

} // namespace

TEST(DataSearch, DataFoldersByKind)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const DataSearch& search = DataSearch::GetDataSearch();
    const QString project = test.ProjectFolder(), common = test.CommonFolder();
    const std::pair<int, QString> kinds[] = {
        {1, project}, {2, project + "/Data"}, {4, test.ProjectsFolder()}, {8, common},
        {10, common + "/ColorMaps"}, {14, project + "/MultiMedia"}};
    for (const auto& [kind, expected] : kinds) {
        QString path;
        EXPECT_TRUE(search.GetDataPathInfo(kind, path)) << kind;
        EXPECT_EQ(path, expected) << kind;
    }
    QString path = QStringLiteral("stale");
    EXPECT_FALSE(search.GetDataPathInfo(5, path));
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(search.GetFilePath(84), common + "/Bitmaps/");
}

TEST(DataSearch, ProjectFoldersNeedAnOpenProject)
{
    TestProject test;
    DataSearch& search = DataSearch::GetDataSearch();
    search.Close();
    EXPECT_EQ(search.GetProjectDefinition(), nullptr);
    QString path;
    EXPECT_FALSE(search.GetDataPathInfo(2, path));
    EXPECT_TRUE(search.GetDataPathInfo(8, path)); // the settings still name the folders
    EXPECT_EQ(path, test.CommonFolder());
    EXPECT_TRUE(search.GetFullPath(13).isEmpty());
}

TEST(DataSearch, FullPathsByFileKind)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const DataSearch& search = DataSearch::GetDataSearch();
    const QString common = test.CommonFolder();
    struct Case { int kind; QString name; QString expected; };
    const Case cases[] = {
        {13, "", test.ProjectFolder() + "/Project.qpd"},
        {13, "Wreck", test.ProjectsFolder() + "/Wreck/Project.qpd"},
        {25, "Depth.cmap", common + "/ColorTables/Depth.cmap.ctb"},
        {60, "/elsewhere/bright", "/elsewhere/bright.cmap"},
        {25, "", ""},
        {99, "night", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(search.GetFullPath(c.kind, c.name), c.expected) << c.kind << " " << c.name.toStdString();
}

TEST(DataSearch, ASwitchIsAnnouncedWhileTheOldProjectIsStillOpenAndAgainAfter)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    DataSearch& search = DataSearch::GetDataSearch();
    QStringList heard;
    QObject context;
    SubscriptionManager::Instance().Subscribe(
        GeneralSubKeys::PROJECT,
        [&](int code, const QString&) {
            const ProjectDefinition* project = search.GetProjectDefinition();
            heard << QStringLiteral("%1 %2").arg(code).arg(project ? project->GetProjectName() : QStringLiteral("-"));
        },
        &context);

    EXPECT_FALSE(search.Open(test.ProjectsFolder(), QStringLiteral("Missing")));
    EXPECT_TRUE(heard.isEmpty());
    ASSERT_TRUE(search.Open(test.ProjectsFolder(), QStringLiteral("NorthSeaED50")));
    search.Close();
    search.Close(); // nothing open: nothing to announce
    EXPECT_EQ(heard, (QStringList{"8 NorthSea", "9 NorthSeaED50", "8 NorthSeaED50", "9 -"}));
}

TEST(DataSearch, ProjectsAreFoldersWithAProjectFile)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    MakeProject(test.ProjectsFolder() + "/beta");
    MakeProject(test.ProjectsFolder() + "/Alpha");
    QDir().mkpath(test.ProjectsFolder() + "/Empty");
    QStringList names;
    ASSERT_TRUE(DataSearch::GetDataSearch().GetProjects(names));
    EXPECT_EQ(names, (QStringList{"Alpha", "beta", "NorthSea", "NorthSeaED50"}));

    // The settings choose the projects folder, as the project selection does.
    QTemporaryDir empty;
    DataSearch::GetDataSearch().GetIniFile().SetProjectPath(empty.path());
    EXPECT_FALSE(DataSearch::GetDataSearch().GetProjects(names));
    EXPECT_TRUE(names.isEmpty());
}

TEST(DataSearch, OpenKeepsThePreviousProjectOnFailure)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    DataSearch& search = DataSearch::GetDataSearch();
    ProjectDefinition* before = search.GetProjectDefinition();
    for (const char* name : {"Missing", "..", "../NorthSea"})
        EXPECT_FALSE(search.Open(test.ProjectsFolder(), QString::fromLatin1(name))) << name;
    EXPECT_FALSE(search.Open(QString(), QStringLiteral("NorthSea")));
    EXPECT_EQ(search.GetProjectDefinition(), before);

    MakeProject(test.ProjectsFolder() + "/Alpha");
    QTemporaryDir common;
    ASSERT_TRUE(search.Open(test.ProjectsFolder(), QStringLiteral("Alpha"), common.path()));

    // The choice is in the settings: closing and reopening from them gives the same project.
    search.Close();
    ASSERT_TRUE(search.OpenFromSettings());
    EXPECT_EQ(search.GetProjectName(), QStringLiteral("Alpha"));
    QString path;
    ASSERT_TRUE(search.GetDataPathInfo(8, path));
    EXPECT_EQ(path, QDir::cleanPath(common.path()));
}

TEST(QelIniFile_IO, RoundTripOnAFile)
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("suite.ini"));
    const QString history = QStringLiteral("ProjectHistory"), entry = QStringLiteral("Project0");
    {
        QelIniFile_IO ini(file);
        ini.SetProjectPath(QStringLiteral("/data/QEL Projects"));
        ini.SetCurrentProjectName(QStringLiteral("NorthSea"));
        ini.SetCommonProjectFilesPath(QStringLiteral("/data/common"));
        ini.SetUseDefaultCommonPath(false);
        ini.SetString(history, entry, QStringLiteral("/data/QEL Projects,NorthSea"));
    }
    QelIniFile_IO ini(file);
    QStringList texts(4);
    bool flag = true;
    EXPECT_TRUE(ini.GetProjectPath(texts[0]) & ini.GetCurrentProjectName(texts[1])
                & ini.GetCommonProjectFilesPath(texts[2]) & ini.GetString(history, entry, texts[3])
                & ini.GetUseDefaultCommonPath(flag));
    EXPECT_EQ(texts, (QStringList{"/data/QEL Projects", "NorthSea", "/data/common", "/data/QEL Projects,NorthSea"}));
    EXPECT_FALSE(flag);
}
