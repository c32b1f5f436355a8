// The gallery's library page: unit placeholders filled in as a dialog of the suite shows them,
// and filled in again when another project is opened.
#include "pages/LibraryPage.h"
#include "common/TestProject.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QelConfigure/DataSearch.h>
#include <gtest/gtest.h>

namespace {

QStringList ShownTexts(const LibraryPage& page)
{
    QStringList texts;
    if (const QWidget* filled = page.findChild<QWidget*>(QStringLiteral("filledInTexts"))) {
        for (const QLabel* label : filled->findChildren<QLabel*>())
            texts << label->text();
    }
    return texts;
}

} // namespace

TEST(LibraryPageTest, PlaceholdersAreFilledOncePerTextAndFollowTheProject)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    const QString feet = project.ProjectsFolder() + QStringLiteral("/Feet");
    ASSERT_TRUE(QDir().mkpath(feet));
    QFile file(feet + QStringLiteral("/Project.qpd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Units]\nSystem Units = ft\nDistance Units = ftUS\nSpeed Units = kn\n");
    file.close();

    LibraryPage page;
    const QStringList metres = ShownTexts(page);
    EXPECT_TRUE(metres.contains(QStringLiteral("Draught [m]"))) << metres.join(" | ").toStdString();
    EXPECT_TRUE(metres.contains(QStringLiteral("Once per text: m, then %D")));
    EXPECT_TRUE(metres.contains(QStringLiteral("Not a placeholder: %X")));

    ASSERT_TRUE(DataSearch::GetDataSearch().Open(project.ProjectsFolder(), QStringLiteral("Feet")));
    const QStringList feetTexts = ShownTexts(page);
    EXPECT_TRUE(feetTexts.contains(QStringLiteral("Draught [ftUS]"))) << feetTexts.join(" | ").toStdString();
    EXPECT_TRUE(feetTexts.contains(QStringLiteral("Grid [ft]")));
    EXPECT_TRUE(feetTexts.contains(QStringLiteral("Speed [kn], heading [°]")));
}
