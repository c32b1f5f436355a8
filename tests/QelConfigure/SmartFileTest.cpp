// Data files opened by type and name, and the combo box of a type's files.
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileTypeCombo.h>
#include <QelConfigure/SmartFileImpl.h>

#include "common/TestProject.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace {

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void Write(const QString& path, const QByteArray& bytes = "[Table]\n")
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    file.write(bytes);
}

// The combo's names, joined with '|'.
std::string Items(const QComboBox& combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items << combo.itemText(i);
    return items.join(QLatin1Char('|')).toStdString();
}

class SmartFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(project.IsOpen());
        tables = project.CommonFolder() + QStringLiteral("/ColorTables");
        QDir dir(tables);
        for (const QString& file : dir.entryList({QStringLiteral("*.ctb")}, QDir::Files))
            ASSERT_TRUE(dir.remove(file)); // independent of the sample tables
    }
    TestProject project;
    QString tables;
};

} // namespace

TEST_F(SmartFileTest, AMissingFileOpensEmptyAndIsCreatedBySaveThenReadBack)
{
    SmartFileImpl file(DataSearch::TYPE_COLOR_TABLE);
    EXPECT_FALSE(file.FileOpen(FileObject::OPEN_READ, QStringLiteral("Deep")));
    EXPECT_FALSE(file.IsLoaded());
    EXPECT_EQ(file.GetPathName(), tables + QStringLiteral("/Deep.ctb"));
    file.GetFileObject().SetInt(QStringLiteral("Table"), QStringLiteral("Count"), 3);
    ASSERT_TRUE(file.FileSave(FileObject::OPEN_READ));

    SmartFileImpl again(DataSearch::TYPE_COLOR_TABLE);
    ASSERT_TRUE(again.FileOpen(FileObject::OPEN_READ, QStringLiteral("Deep")));
    EXPECT_TRUE(again.IsLoaded());
    int count = 0;
    EXPECT_TRUE(again.GetFileObject().GetInt(QStringLiteral("Table"), QStringLiteral("Count"), count));
    EXPECT_EQ(count, 3);

    // Closing keeps the name: a save writes the same file again.
    again.FileClose();
    EXPECT_FALSE(again.IsLoaded());
    EXPECT_FALSE(again.GetFileObject().HasSection(QStringLiteral("Table")));
    ASSERT_TRUE(again.FileSave(0));
    EXPECT_EQ(Contents(tables + QStringLiteral("/Deep.ctb")), QByteArray());

    // A name with a folder is a path; saving creates the folder.
    const QString own = project.ProjectFolder() + QStringLiteral("/Tables/Own");
    ASSERT_TRUE(file.FileSave(0, own));
    EXPECT_EQ(file.GetPathName(), own + QStringLiteral(".ctb"));
    EXPECT_EQ(file.GetName(), own);
    EXPECT_TRUE(again.FileOpen(FileObject::OPEN_READ, own));
}

TEST_F(SmartFileTest, AFailedSaveLeavesTheFilesOnDiskAsTheyWere)
{
    Write(tables + QStringLiteral("/Deep.ctb"), "[Table]\nCount = 1\n");
    const QString blocker = project.ProjectFolder() + QStringLiteral("/blocker");
    Write(blocker);
    ASSERT_TRUE(QDir().mkpath(tables + QStringLiteral("/Folder.ctb")));

    const struct { const char* what; QString name; } cases[] = {
        {"the target is a folder", tables + QStringLiteral("/Folder")},
        {"the parent is a file", blocker + QStringLiteral("/Deep")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        SmartFileImpl file(DataSearch::TYPE_COLOR_TABLE);
        ASSERT_TRUE(file.FileOpen(FileObject::OPEN_READ, QStringLiteral("Deep")));
        file.GetFileObject().SetInt(QStringLiteral("Table"), QStringLiteral("Count"), 2);
        const QString target = DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, c.name);
        const QByteArray before = Contents(target);

        EXPECT_FALSE(file.FileSave(0, c.name));
        EXPECT_EQ(Contents(target), before);
        EXPECT_EQ(Contents(tables + QStringLiteral("/Deep.ctb")), "[Table]\nCount = 1\n");
        EXPECT_EQ(file.GetPathName(), tables + QStringLiteral("/Deep.ctb"));
        EXPECT_TRUE(QFileInfo(tables + QStringLiteral("/Folder.ctb")).isDir());
    }
}

TEST_F(SmartFileTest, ComboListsTheTablesSortedAndKeepsTheSelectionOverRefresh)
{
    for (const char* name : {"beta.ctb", "Alpha.ctb", "alpha2.ctb", "Charlie.ctb", "notes.txt"})
        Write(tables + QLatin1Char('/') + QLatin1String(name));
    ASSERT_TRUE(QDir().mkpath(tables + QStringLiteral("/folder.ctb")));

    FileTypeCombo combo(DataSearch::TYPE_COLOR_TABLE);
    EXPECT_EQ(Items(combo), "Alpha|alpha2|beta|Charlie");
    QSignalSpy changed(&combo, &FileTypeCombo::selectedNameChanged);

    EXPECT_TRUE(combo.SetSelected(QStringLiteral("BETA")));
    EXPECT_TRUE(combo.SetSelected(QStringLiteral("beta")));
    EXPECT_FALSE(combo.SetSelected(QString()));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.takeFirst().at(0).toString(), QStringLiteral("beta"));

    Write(tables + QStringLiteral("/aardvark.ctb"));
    combo.Refresh();
    EXPECT_EQ(combo.selectedName(), QStringLiteral("beta"));
    EXPECT_EQ(combo.count(), 5);
    EXPECT_EQ(changed.count(), 0);

    // A name without a file yet is shown in its place.
    EXPECT_TRUE(combo.SetSelected(QStringLiteral("Bravo")));
    EXPECT_EQ(Items(combo), "aardvark|Alpha|alpha2|beta|Bravo|Charlie");
    EXPECT_EQ(combo.property("selectedName").toString(), QStringLiteral("Bravo"));

    // A refill drops the name without a file: the first name is selected, and told.
    combo.Refresh();
    EXPECT_EQ(combo.selectedName(), QStringLiteral("aardvark"));
    ASSERT_EQ(changed.count(), 2);
    EXPECT_EQ(changed.at(1).at(0).toString(), QStringLiteral("aardvark"));
}

TEST_F(SmartFileTest, ComboFollowsAProjectSwitch)
{
    Write(tables + QStringLiteral("/beta.ctb"));
    Write(tables + QStringLiteral("/gamma.ctb"));
    const QString otherCommon = project.ProjectsFolder() + QStringLiteral("/OtherCommon");
    ASSERT_TRUE(QDir().mkpath(otherCommon + QStringLiteral("/ColorTables")));
    Write(otherCommon + QStringLiteral("/ColorTables/Other.ctb"));
    Write(otherCommon + QStringLiteral("/ColorTables/gamma.ctb"));

    FileTypeCombo combo(DataSearch::TYPE_COLOR_TABLE);
    ASSERT_TRUE(combo.SetSelected(QStringLiteral("gamma")));
    QSignalSpy changed(&combo, &FileTypeCombo::selectedNameChanged);
    DataSearch& search = DataSearch::GetDataSearch();

    ASSERT_TRUE(search.Open(project.ProjectsFolder(), QStringLiteral("NorthSeaED50"), otherCommon));
    EXPECT_EQ(Items(combo), "gamma|Other");
    EXPECT_EQ(combo.selectedName(), QStringLiteral("gamma"));
    EXPECT_EQ(changed.count(), 0);

    ASSERT_TRUE(combo.SetSelected(QStringLiteral("Other")));
    ASSERT_TRUE(search.Open(project.ProjectsFolder(), QStringLiteral("NorthSea")));
    EXPECT_EQ(Items(combo), "beta|gamma");
    EXPECT_EQ(combo.selectedName(), QStringLiteral("beta"));
    ASSERT_EQ(changed.count(), 2);
    EXPECT_EQ(changed.at(1).at(0).toString(), QStringLiteral("beta"));
}
