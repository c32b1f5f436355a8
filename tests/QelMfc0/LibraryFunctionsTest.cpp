#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileDialogRequest.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/QelMfc0Functions.h>
#include <QelMfc0/StringTable.h>
#include <VersionControl/VersionControl.h>
#include <common/TestProject.h>
#include <gtest/gtest.h>

namespace {
// Captures every file dialog the library opens and answers it with `answer` (empty = cancel).
struct DialogRecorder {
    std::vector<FileDialogRequest> requests;
    QStringList answer;
    DialogRecorder()
    {
        SetFileDialogHook([this](const FileDialogRequest& request, QStringList& chosen) {
            requests.push_back(request);
            chosen = answer;
            return !answer.isEmpty();
        });
    }
    ~DialogRecorder() { SetFileDialogHook({}); }
};
} // namespace

TEST(QelMfc0StartUp, AttachesWithTheApplicationAndRefusesAForeignSuiteRelease)
{
    EXPECT_TRUE(IsQelMfc0Attached()) << "the library attaches itself when the application starts";

    const quint32 suite = SuiteVersion();
    QelMfc0Detach();
    SetSuiteVersion(PackVersion(6, 0, 0, 0));
    EXPECT_FALSE(QelMfc0Attach());
    EXPECT_FALSE(QelMfc0LastError().isEmpty());
    SetSuiteVersion(suite);
    EXPECT_TRUE(QelMfc0Attach());
}

TEST(SetDialogUnits, ReplacesTheFirstPlaceholderOfEachKindInDirectChildrenOnly)
{
    ASSERT_EQ(DataSearch::GetDataSearch().GetProjectDefinition(), nullptr);
    SetDialogUnits(nullptr); // tolerated

    QWidget dialog;
    auto* label = new QLabel("%W and %W %F %T %S %D %A", &dialog);
    auto* grandchild = new QLabel("%D", new QWidget(&dialog));
    SetDialogUnits(&dialog);
    EXPECT_EQ(label->text(), QString::fromUtf8("m and %W kgf T m/sec m \u00B0"));
    EXPECT_EQ(grandchild->text(), "%D");

    TestProject project; // then the mnemonics of the open project
    ASSERT_TRUE(project.IsOpen());
    ASSERT_TRUE(project.Project()->GetUnitCnv().SetUnit(UNIT_DISTANCE, "ft"));
    label->setText("Offset [%D]");
    SetDialogUnits(&dialog);
    EXPECT_EQ(label->text(), "Offset [ft]");
}

TEST(ShowMultimediaFileDlg, OffersTheFilterTitleFolderAndFlagsOfEachType)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    DialogRecorder dialogs;
    QString path = "untouched";
    const char* const jpgBmp = "Joint Photographic Group File (*.jpg)|*.jpg|Bitmap File (*.bmp)|*.bmp||";
    struct Case { int type; int open; const char* filter; const char* title; };
    const Case cases[] = {
        { 0, 1, jpgBmp, "" }, { -1, 0, jpgBmp, "" }, { 1, 1, "Tagged Image Format File (*.tif)|*.tif||", "" },
        { 3, 1, "Joint Photographic Group File (*.jpg)|*.jpg|Tagged Image Format File (*.tif)|*.tif||", "Import Image " },
    };
    for (const Case& c : cases)
        EXPECT_FALSE(ShowMultimediaFileDlg(path, nullptr, MultiMediaType(c.type), c.open));
    EXPECT_EQ(path, "untouched") << "cancel leaves the path alone";
    ASSERT_EQ(dialogs.requests.size(), std::size(cases));

    QString multimedia, data;
    ASSERT_TRUE(project.Project()->GetMultiMediaFilePath(multimedia));
    ASSERT_TRUE(DataSearch::GetDataSearch().GetDataPathInfo(2, data));
    const QRegularExpression stamp("^\\d{8}-\\d{6}$");
    for (size_t i = 0; i < std::size(cases); ++i) {
        const FileDialogRequest& r = dialogs.requests[i];
        SCOPED_TRACE(cases[i].type);
        EXPECT_EQ(r.filter, cases[i].filter);
        EXPECT_EQ(r.title, cases[i].title);
        EXPECT_EQ(r.flags, cases[i].open ? 0x81006u : 0x80006u);
        EXPECT_TRUE(stamp.match(r.defaultName).hasMatch()) << r.defaultName.toStdString();
        EXPECT_EQ(r.directory, cases[i].type == 1 ? data : multimedia);
    }
}

TEST(ShowMultimediaFileDlg, OnOkStoresTheFolderAndSavesTheProjectEvenWhenUnchanged)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    DialogRecorder dialogs;
    const QString folder = project.ProjectFolder() + "/Pictures";
    dialogs.answer = { folder + "/20261122-101500.jpg" };
    QString path;
    ASSERT_TRUE(ShowMultimediaFileDlg(path, nullptr, MM_IMAGE, 1));
    EXPECT_EQ(path, dialogs.answer.first());
    // Same folder again: the project file is written all the same.
    ASSERT_TRUE(QFile::remove(project.Project()->GetPathName()));
    ASSERT_TRUE(ShowMultimediaFileDlg(path, nullptr, MM_IMAGE, 1));
    EXPECT_TRUE(QFile::exists(project.Project()->GetPathName()));
    EXPECT_EQ(dialogs.requests.back().directory, folder) << "the next dialog starts in the stored folder";
}

TEST(ShowMultiSelectionFileDlg, EmptiesTheListAndReturnsTheChosenFilesInOrder)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    DialogRecorder dialogs;
    QStringList files = { "stale" };
    const QString filter = "Survey Lines (*.lin)|*.lin||";
    EXPECT_FALSE(ShowMultiSelectionFileDlg(files, filter, nullptr));
    EXPECT_TRUE(files.isEmpty());

    dialogs.answer = { "/data/b.lin", "/data/a.lin", "/data/c.lin" };
    ASSERT_TRUE(ShowMultiSelectionFileDlg(files, filter, nullptr));
    EXPECT_EQ(files, dialogs.answer);

    QString path = "untouched"; // a file type dialog copies the path only when a file was chosen
    dialogs.answer.clear();
    EXPECT_FALSE(StartFileTypeDlg(25, path, true, nullptr));
    EXPECT_EQ(path, "untouched");
    dialogs.answer = { project.CommonFolder() + "/ColorTables/Depths.ctb" };
    EXPECT_TRUE(StartFileTypeDlg(25, path, true, nullptr));
    EXPECT_EQ(path, dialogs.answer.first());
}
