// Switching colour modes: the system theme switch and its settings window, the announcement of
// the change, and the application palette that follows the mode.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryDir>
#include <QToolTip>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ThemePlatform.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <common/TestProject.h>
#include <gtest/gtest.h>
#include <tuple>

namespace {
// A system whose theme switches are recorded; the settings window shows up on request.
class FakeThemePlatform final : public ThemePlatform
{
public:
    bool canSwitch = true;
    QString folder, stock, currentTheme, currentWallPaper;
    int settingsWindowAfter = -1; // number of process checks before it runs; -1 never
    mutable int processChecks = 0;
    QStringList opened, wallPapers;
    QList<int> waits;
    int closes = 0;

    bool CanSwitchTheme() const override { return canSwitch; }
    QString ThemeFolder() const override { return folder; }
    QString StockTheme() const override { return stock; }
    bool FileExists(const QString& path) const override { return QFileInfo(path).isFile(); }
    void OpenThemeFile(const QString& path) override { opened << path; }
    bool IsProcessRunning(const QString& exeName) const override
    {
        ++processChecks;
        return exeName.compare("SystemSettings.exe", Qt::CaseInsensitive) == 0 && settingsWindowAfter >= 0
            && processChecks > settingsWindowAfter;
    }
    void CloseSettingsWindow() override { ++closes; }
    void Wait(int ms) override { waits << ms; }
    QString ReadCurrentTheme() const override { return currentTheme; }
    QString ReadCurrentWallPaper() const override { return currentWallPaper; }
    void SetWallPaper(const QString& path) override { wallPapers << path; }
};

// Counts the (posted) mode-change notifications delivered to subscribers.
struct Announcements {
    QList<int> codes;
    QObject context; // ends the subscription first
    Announcements()
    {
        SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int code, const QString&) { codes << code; }, &context);
    }
    int Count() { return QCoreApplication::processEvents(), int(codes.size()); }
};

// The palette a new widget of that class shows with (class palettes take effect on polish).
template <typename Widget>
QPalette Polished()
{
    Widget widget;
    widget.ensurePolished();
    return widget.palette();
}

class ThemeSwitchTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(project.IsOpen() && themes.isValid());
        QCoreApplication::processEvents(); // announcements of earlier tests
        mapFolder = QFileInfo(DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_MAP, "night")).absolutePath();
        QDir dir(mapFolder);
        ASSERT_TRUE(dir.mkpath("."));
        for (const QString& file : dir.entryList({ "*.cmap" }, QDir::Files))
            ASSERT_TRUE(dir.remove(file));
        fake = new FakeThemePlatform;
        fake->folder = themes.path() + "/";
        nightTheme = fake->folder + "NightColor.theme";
        fake->stock = Write(fake->folder + "stock.theme");
        Write(nightTheme);
        ColorControl::SetThemePlatform(std::unique_ptr<ThemePlatform>(fake));
        ResetThemeState();
    }
    void TearDown() override
    {
        if (!fake)
            return;
        fake->settingsWindowAfter = -1;
        Drain();
        ResetThemeState();
        ColorControl::SetThemePlatform(nullptr);
    }
    static void Drain()
    {
        while (ColorControl::PendingThemeChecks() > 0)
            ColorControl().TimerCheck();
    }
    void ResetThemeState()
    {
        ColorControl cc;
        cc.SetCurrentTheme({});
        cc.SetCurrentWallPaper({});
        fake->currentTheme = fake->currentWallPaper = QString();
        cc.SaveDefaultTheme();
        cc.SaveDefaultWallPaper();
    }
    static QString Write(const QString& path, const QString& text = {})
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text.toUtf8()) == text.toUtf8().size());
        return path;
    }
    void WriteMap(const QString& mode, const QString& text) { Write(mapFolder + "/" + mode + ".cmap", text); }

    TestProject project;
    QTemporaryDir themes;
    QString mapFolder, nightTheme;
    FakeThemePlatform* fake = nullptr; // owned by ColorControl
};
} // namespace

TEST_F(ThemeSwitchTest, ANightThemeIsAnnouncedOnlyWhenTheSettingsWindowIsClosed)
{
    WriteMap("night", "[QEL_COLORS]\n1 = 2\n");
    Announcements notes;
    ColorControl cc;
    QSignalSpy spy(&cc, &ColorControl::lightModeChanged);
    cc.SetLightMode(ColorConverter::night, true);
    EXPECT_EQ(fake->opened, QStringList { nightTheme });
    EXPECT_EQ(ColorControl::PendingThemeChecks(), 60);
    EXPECT_EQ(cc.GetColor(1, false), 2u) << "the map is loaded while the switch is pending";

    for (ColorConverter::mode ignored : { ColorConverter::twilight, ColorConverter::normal }) {
        cc.SetLightMode(ignored, false);
        ColorControl().SetLightMode(ignored, true);
    }
    EXPECT_EQ(cc.GetLightMode(), ColorConverter::night) << "other modes are ignored while the switch is pending";
    EXPECT_EQ(fake->opened.size(), 1);

    fake->settingsWindowAfter = 3;
    for (int i = 0; i < 3; ++i)
        cc.TimerCheck();
    EXPECT_EQ(notes.Count() + spy.count(), 0);
    cc.TimerCheck();
    EXPECT_EQ(ColorControl::PendingThemeChecks(), 0);
    EXPECT_EQ(fake->closes, 1);
    EXPECT_EQ(notes.Count(), 1);
    EXPECT_EQ(notes.codes.value(0), 7);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<ColorConverter::mode>(), ColorConverter::night);
    cc.TimerCheck();
    EXPECT_EQ(notes.Count(), 1);
}

TEST_F(ThemeSwitchTest, TheThemeFileFollowsTheModeAndTheSavedUserTheme)
{
    const QString user = Write(fake->folder + "user.theme");
    const struct { ColorConverter::mode mode; bool change, canSwitch; const char* current; QString userTheme; QString opens; } cases[] = {
        { ColorConverter::night, true, true, "", "", nightTheme },
        { ColorConverter::night, false, true, "", "", "" },
        { ColorConverter::night, true, false, "", "", "" },
        { ColorConverter::night, true, true, "NightColor.theme", "", "" }, // applied already
        { ColorConverter::night, true, true, "nightcolor.theme", "", nightTheme }, // names compare case-sensitively
        { ColorConverter::twilight, true, true, "", "", "" },              // no such file
        { ColorConverter::bright, true, true, "", user, user },
        { ColorConverter::normal, true, true, "", "", fake->stock },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.mode << c.change << c.canSwitch << c.current << c.userTheme.toStdString());
        ResetThemeState();
        if (*c.current)
            ColorControl().SetCurrentTheme((fake->folder + c.current).toUtf8());
        fake->currentTheme = c.userTheme;
        ColorControl().SaveDefaultTheme();
        fake->canSwitch = c.canSwitch;
        fake->opened.clear();
        ColorControl cc;
        cc.SetLightMode(ColorConverter::unknown, false);
        QCoreApplication::processEvents();
        Announcements notes;
        cc.SetLightMode(c.mode, c.change);
        EXPECT_EQ(fake->opened, c.opens.isEmpty() ? QStringList() : QStringList { c.opens });
        EXPECT_EQ(ColorControl::PendingThemeChecks(), c.opens.isEmpty() ? 0 : 60);
        EXPECT_EQ(notes.Count(), c.opens.isEmpty() ? 1 : 0);
        Drain();
    }
}

TEST_F(ThemeSwitchTest, RestoringReopensTheUserThemeAndWallPaperWhenTheyDiffer)
{
    const struct { QString saved, now; int windowAfter; QString opens; int waits; const char *wallSaved, *wallNow, *wallSet; } cases[] = {
        { "C:/Themes/user.theme", "c:/themes/USER.theme", 0, "", 0, "wall.jpg", "WALL.JPG", "" },
        { "C:/Themes/user.theme", "C:/Themes/other.theme", 2, "C:/Themes/user.theme", 4, "wall.jpg", "b.jpg", "wall.jpg" },
        { "", "C:/Themes/other.theme", -1, fake->stock, 60, "", "b.jpg", "" },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.saved.toStdString());
        ColorControl cc;
        cc.SetLightMode(ColorConverter::night, true); // pending, cleared by the restore
        fake->currentTheme = c.saved;
        fake->currentWallPaper = c.wallSaved;
        cc.SaveDefaultTheme();
        cc.SaveDefaultWallPaper();
        fake->currentTheme = c.now;
        fake->currentWallPaper = c.wallNow;
        fake->opened.clear();
        fake->waits.clear();
        fake->closes = fake->processChecks = 0;
        fake->settingsWindowAfter = c.windowAfter;
        cc.RestoreOriginalWindowsTheme();
        fake->settingsWindowAfter = -1;
        EXPECT_EQ(ColorControl::PendingThemeChecks(), c.opens.isEmpty() ? 60 : 0);
        EXPECT_EQ(fake->opened, c.opens.isEmpty() ? QStringList() : QStringList { c.opens });
        EXPECT_EQ(fake->waits.size(), c.waits);
        EXPECT_EQ(fake->closes, c.windowAfter >= 0 && !c.opens.isEmpty() ? 1 : 0);
        EXPECT_EQ(fake->wallPapers, *c.wallSet ? QStringList { c.wallSet } : QStringList());
        fake->wallPapers.clear();
        Drain();
        ResetThemeState();
    }
}

TEST_F(ThemeSwitchTest, TheApplicationPaletteAndSystemColoursFollowTheModeAndComeBackExactly)
{
    fake->canSwitch = false;
    const struct { const char* name; COLORREF color; QColor (*shown)(); } roles[] = {
        { "btnface", RGB(10, 20, 30), [] { return QApplication::palette().color(QPalette::Window); } },
        { "btnface", RGB(10, 20, 30), [] { return Polished<QMessageBox>().color(QPalette::Window); } },
        { "graytext", RGB(90, 10, 10), [] { return QApplication::palette().color(QPalette::Disabled, QPalette::Text); } },
        { "infobk", RGB(1, 2, 3), [] { return QToolTip::palette().color(QPalette::ToolTipBase); } },
        { "menu", RGB(7, 8, 9), [] { return Polished<QMenu>().color(QPalette::Window); } },
        { "scrollbar", RGB(14, 15, 16), [] { return Polished<QScrollBar>().color(QPalette::Window); } },
    };
    QString map = "[WIN_COLORS]\n";
    for (const auto& r : roles)
        map += QString("%1 = %2 %3 %4\n").arg(r.name).arg(GetRValue(r.color)).arg(GetGValue(r.color)).arg(GetBValue(r.color));
    WriteMap("night", map);
    WriteMap("twilight", "[PARAMS]\nred = 0.5\n");

    const auto snapshot = [] {
        return std::make_tuple(QApplication::palette(), Polished<QMenu>(), Polished<QScrollBar>(), QToolTip::palette(),
                               QApplication::style()->name());
    };
    const auto original = snapshot();
    const WindowsColorMap user = ColorMap().GetSystemColors();
    ColorControl().SetLightMode(ColorConverter::night, false);
    EXPECT_TRUE(snapshot() == original) << "without the theme switch the palette is untouched";

    for (int way = 0; way < 2; ++way) {
        SCOPED_TRACE(way == 0 ? "restore" : "mode without system colours");
        ColorControl cc;
        cc.SetLightMode(ColorConverter::night, true);
        for (const auto& r : roles)
            EXPECT_EQ(r.shown(), QColor(GetRValue(r.color), GetGValue(r.color), GetBValue(r.color))) << r.name;
        // A colour map made in the mode records the mode's system colours, the user's for the rest.
        const WindowsColorMap night = ColorMap().GetSystemColors();
        COLORREF face = 0, userHighlight = 0, nightHighlight = 1;
        EXPECT_TRUE(night.Get("btnface", face) && face == RGB(10, 20, 30));
        EXPECT_TRUE(user.Get("highlight", userHighlight) && night.Get("highlight", nightHighlight) && nightHighlight == userHighlight);
        if (way == 0)
            cc.RestoreOriginalWindowsTheme();
        else
            cc.SetLightMode(ColorConverter::twilight, true);
        EXPECT_TRUE(snapshot() == original);
        EXPECT_TRUE(ColorMap().GetSystemColors().Entries() == user.Entries());
    }
}

TEST_F(ThemeSwitchTest, AHostThatDeclinesTheStyleKeepsItsPaletteAndStyle)
{
    fake->canSwitch = false;
    WriteMap("night", "[WIN_COLORS]\nbtnface = 10 20 30\n");
    const QString styleName = QApplication::style()->name();
    const QColor button = QApplication::palette().color(QPalette::Button);
    ASSERT_NE(button, QColor(10, 20, 30));
    ColorControl cc;
    cc.SetLightMode(ColorConverter::night, true);
    ASSERT_NE(QApplication::palette().color(QPalette::Button), button);
    QelMfc0SetAttachOptions(QelMfc0AttachOptions { true, false });
    EXPECT_EQ(QApplication::palette().color(QPalette::Button), button) << "declining later restores the host's own";
    EXPECT_EQ(QApplication::style()->name(), styleName);
    cc.SetLightMode(ColorConverter::twilight, true);
    cc.SetLightMode(ColorConverter::night, true);
    EXPECT_EQ(QApplication::palette().color(QPalette::Button), button) << "a declined host keeps its palette";
    EXPECT_EQ(QApplication::style()->name(), styleName);
    cc.SetLightMode(ColorConverter::normal, true);
    QelMfc0SetAttachOptions(QelMfc0AttachOptions());
}
