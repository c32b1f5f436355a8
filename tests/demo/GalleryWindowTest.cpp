// QelGallery's main window: its size, menus, shortcuts, status bar and the look of its fields.
#include "GalleryWindow.h"
#include "common/TestProject.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTest>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelMfc0/colour/ColorControl.h>
#include <gtest/gtest.h>

namespace {

void Settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

// The checked entry of a top-level menu whose title contains `title`.
QString CheckedIn(GalleryWindow& window, const QString& title)
{
    for (QAction* top : window.menuBar()->actions()) {
        if (!top->menu())
            continue;
        QList<QAction*> actions = top->menu()->actions();
        for (int i = 0; i < actions.size(); ++i) {
            if (actions[i]->menu() && actions[i]->text().remove(QLatin1Char('&')).contains(title))
                actions = actions[i]->menu()->actions();
        }
        if (!top->text().remove(QLatin1Char('&')).contains(title) && actions == top->menu()->actions())
            continue;
        for (QAction* action : std::as_const(actions))
            if (action->isChecked())
                return action->text();
    }
    return QString();
}

class GalleryWindowTest : public ::testing::Test {
protected:
    ~GalleryWindowTest() override { ColorControl::Instance().SetLightMode(ColorConverter::normal, true); }
    TestProject m_project;
};

TEST_F(GalleryWindowTest, NarrowWindowWhosePagesScrollAndWhoseListsShowWholeItems)
{
    ASSERT_TRUE(m_project.IsOpen());
    GalleryWindow window;
    window.show();
    window.resize(720, 520);
    Settle();
    EXPECT_LE(window.width(), 720);
    window.resize(1180, 800);
    for (int page = 0; page < window.PageCount(); ++page) {
        window.ShowPage(page);
        Settle();
        for (QListWidget* list : window.findChildren<QListWidget*>()) {
            if (!list->isVisible())
                continue;
            for (int row = 0; row < list->count(); ++row) {
                const QString text = list->item(row)->text();
                EXPECT_LE(list->fontMetrics().horizontalAdvance(text) + 6, list->viewport()->width())
                    << "page " << page << ": " << text.toStdString();
            }
        }
    }
}

TEST_F(GalleryWindowTest, MenusMarkTheCurrentPageAndModeAndPagesHaveShortcuts)
{
    GalleryWindow window;
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(window.CurrentPage(), 4);
    window.ShowPage(3);
    const QStringList pageTitles = [&] {
        QStringList titles;
        for (QAction* top : window.menuBar()->actions())
            if (top->text().remove(QLatin1Char('&')) == QLatin1String("Pages"))
                for (QAction* action : top->menu()->actions())
                    titles << action->text();
        return titles;
    }();
    ASSERT_EQ(pageTitles.size(), window.PageCount());
    EXPECT_EQ(CheckedIn(window, QStringLiteral("Pages")), pageTitles[3]);

    for (ColorConverter::mode mode : { ColorConverter::night, ColorConverter::normal }) {
        window.SetColourMode(mode);
        Settle();
        EXPECT_EQ(CheckedIn(window, QStringLiteral("Colour mode")), ColorControl::GetColorModeString(mode));
    }
}

TEST_F(GalleryWindowTest, StatusBarKeepsTheProjectThroughMenuHintsAndFollowsAProjectSwitch)
{
    GalleryWindow window;
    window.show();
    Settle();
    const auto projectShown = [&](const QString& folder) {
        for (QLabel* label : window.statusBar()->findChildren<QLabel*>())
            if (label->isVisible() && label->text().endsWith(QDir::toNativeSeparators(folder)))
                return true;
        return false;
    };
    const QString first = DataSearch::GetDataSearch().GetProjectDefinition()->GetProjectFolder();
    EXPECT_TRUE(projectShown(first));
    QStatusTipEvent hint(QStringLiteral("Opens another project of the projects folder"));
    QApplication::sendEvent(&window, &hint);
    Settle();
    EXPECT_TRUE(projectShown(first));

    ASSERT_TRUE(window.OpenProject(QStringLiteral("NorthSeaED50")));
    Settle();
    EXPECT_TRUE(projectShown(DataSearch::GetDataSearch().GetProjectDefinition()->GetProjectFolder()));
    EXPECT_FALSE(projectShown(first));
}

TEST_F(GalleryWindowTest, ReadOnlyFieldsAreFilledLikeTheWindowInEveryMode)
{
    GalleryWindow window;
    window.show();
    window.ShowPage(3);
    Settle();
    QLineEdit *editable = nullptr, *readOnly = nullptr;
    for (QLineEdit* edit : window.findChildren<QLineEdit*>())
        if (edit->isVisible())
            (edit->isReadOnly() ? readOnly : editable) = edit;
    ASSERT_TRUE(editable && readOnly);
    for (ColorConverter::mode mode : { ColorConverter::normal, ColorConverter::night, ColorConverter::twilight, ColorConverter::bright }) {
        window.SetColourMode(mode);
        Settle();
        // A pixel inside the frame, right of any text.
        const auto fill = [](QLineEdit* edit) {
            const QImage image = edit->grab().toImage();
            return image.pixelColor(image.width() - 6, image.height() / 2);
        };
        // The window's colour, or the frames' light shade where the window is as white as a field.
        const QPalette palette = QApplication::palette();
        const QColor window = palette.color(QPalette::Window) == palette.color(QPalette::Base) ? palette.color(QPalette::Midlight)
                                                                                               : palette.color(QPalette::Window);
        EXPECT_EQ(fill(readOnly), window) << int(mode);
        EXPECT_NE(fill(editable), fill(readOnly)) << int(mode);
    }
}

} // namespace
