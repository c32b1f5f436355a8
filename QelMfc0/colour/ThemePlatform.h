#pragma once
// The operating system's side of a colour-mode switch: its theme files, the settings window that
// applying a theme brings up, and the user's theme and wallpaper. Only Windows has one; other
// systems get an implementation that switches nothing.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <memory>

class QELMFC0_EXPORT ThemePlatform
{
public:
    virtual ~ThemePlatform();

    // True when the system's theme can be switched (Windows 8 or later).
    virtual bool CanSwitchTheme() const = 0;
    // The folder of the suite's theme files, with a trailing separator.
    virtual QString ThemeFolder() const = 0;
    // The system's stock theme file, the fallback for the user's own theme.
    virtual QString StockTheme() const = 0;
    virtual bool FileExists(const QString& path) const = 0;
    // Applies a theme file; the system then brings up its settings window.
    virtual void OpenThemeFile(const QString& path) = 0;
    // True when a process of that executable name runs (case-insensitive); the theme switch
    // has completed when the settings window "systemsettings.exe" runs.
    virtual bool IsProcessRunning(const QString& exeName) const = 0;
    virtual void CloseSettingsWindow() = 0;
    // Blocks the calling thread.
    virtual void Wait(int milliseconds) = 0;
    // The theme and wallpaper the system uses now; empty when unknown.
    virtual QString ReadCurrentTheme() const = 0;
    virtual QString ReadCurrentWallPaper() const = 0;
    virtual void SetWallPaper(const QString& path) = 0;

    // The implementation of the running system.
    static std::unique_ptr<ThemePlatform> CreateDefault();
};
