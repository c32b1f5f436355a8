#include "QelMfc0/colour/ThemePlatform.h"

#include <QFileInfo>

ThemePlatform::~ThemePlatform() = default;

#ifndef Q_OS_WIN
namespace {
// Systems without switchable themes: the application's palette alone follows the mode.
class NoThemePlatform final : public ThemePlatform
{
public:
    bool CanSwitchTheme() const override { return false; }
    QString ThemeFolder() const override { return {}; }
    QString StockTheme() const override { return {}; }
    bool FileExists(const QString& path) const override { return QFileInfo(path).isFile(); }
    void OpenThemeFile(const QString&) override {}
    bool IsProcessRunning(const QString&) const override { return false; }
    void CloseSettingsWindow() override {}
    void Wait(int) override {}
    QString ReadCurrentTheme() const override { return {}; }
    QString ReadCurrentWallPaper() const override { return {}; }
    void SetWallPaper(const QString&) override {}
};
} // namespace

std::unique_ptr<ThemePlatform> ThemePlatform::CreateDefault()
{
    return std::make_unique<NoThemePlatform>();
}
#endif
