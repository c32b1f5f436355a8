#pragma once
// The display's colour mode: which mode is current, the colours every control draws in that
// mode, and the switch of the application's look (and on Windows the system theme) to it.
//
// Controls call ColorControl::Instance().GetColor(colour, false) for each colour when they
// paint and keep no converted colours. A change of mode is announced with
// SubscriptionManager::Instance().NotifyPost(7, GeneralSubKeys::COLOR_CONTROL) and the
// lightModeChanged signal of the instance.

#include "QelMfc0/QelMfc0Export.h"
#include <QByteArray>
#include <QObject>
#include <QString>
#include <QelBase/QelTypes.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorConverter.h>
#include <QelMfc0/colour/ColorMap.h>
#include <array>
#include <memory>

class ColorTable;
class QImage;
class ThemePlatform;

class QELMFC0_EXPORT ColorControl : public QObject
{
    Q_OBJECT
    // The current colour mode (switched with SetLightMode).
    Q_PROPERTY(ColorConverter::mode lightMode READ GetLightMode NOTIFY lightModeChanged)
public:
    // The process's one instance, made on first use (normal mode, every colour unchanged).
    static ColorControl& Instance();

    ColorControl();
    ~ColorControl() override;
    Q_DISABLE_COPY_MOVE(ColorControl)

    // Switches to `mode`: loads the mode's colour map and, with `changeWindowsTheme`, shows the
    // application in the mode's system colours and switches the Windows theme. Nothing happens
    // for the current mode or while an earlier Windows theme switch is pending.
    void SetLightMode(ColorConverter::mode mode, bool changeWindowsTheme);
    ColorConverter::mode GetLightMode() const;
    // True when the mode inverts colours.
    bool GetInvertColors() const;

    // The colour to draw for `color`: its substitute in the mode's map, else the colour inverted
    // (when the mode inverts) and scaled. `raw` skips substitution and inversion.
    COLORREF GetColor(COLORREF color, bool raw) const;
    // A light grey (159..223) as bright as the colour, for disabled drawing.
    COLORREF GetGrayColor(COLORREF color) const;
    // Scales the low colour and every entry colour of a table by the mode's factors.
    void RemapColorTable(ColorTable& table) const;
    // Converts a 32-bit image (RGB32, ARGB32, RGBX8888, RGBA8888 and their premultiplied
    // forms) in place like GetColor, leaving the transparent key colour 0xC0C0C0 and the alpha
    // alone; images of other formats are left unchanged. Every format gives the colours of the
    // same picture in ARGB32, where the lowest byte of a pixel (blue) gets the red factor, as
    // colour-map files expect; premultiplied images stay validly premultiplied.
    void RemapBitmap(QImage& image) const;
    // Turns every pixel of such an image, but the key colour, into its GetGrayColor grey.
    void RemapBitmapGray(QImage& image) const;

    // "Normal", "Night", "Twilight", "Bright"; "Unknown" for any other value.
    static QString GetColorModeString(ColorConverter::mode mode);

    // Called by the host's periodic timer while a Windows theme switch is pending: counts down
    // 60 calls; when the settings window shows up it is closed and the mode change announced.
    // When the count runs out first, no announcement is made.
    void TimerCheck();
    // Closes the Windows settings window.
    void CloseSettingDialog();
    // At the end of the application: the user's own palette, style, theme and wallpaper back.
    void RestoreOriginalWindowsTheme();
    // At the start of the application: remembers the user's theme and wallpaper.
    void SaveDefaultTheme();
    void SaveDefaultWallPaper();
    // The theme and wallpaper the system uses now (empty when unknown).
    QString GetCurrentTheme();
    QString GetCurrentWallPaper();
    // The theme file this library last applied, and a wallpaper kept for the host, as UTF-8.
    void SetCurrentTheme(const QByteArray& path);
    QByteArray GetCurrentTheme() const;
    void SetCurrentWallPaper(const QByteArray& path);
    QByteArray GetCurrentWallPaper() const;

    // Number of pending checks of a Windows theme switch; 0 when none is pending.
    static int PendingThemeChecks();
    // Replaces the system side of theme switches (tests and special hosts); null restores the
    // running system's.
    static void SetThemePlatform(std::unique_ptr<ThemePlatform> platform);

    // The mode's colour map and converter.
    const ColorMap& GetColorMap() const;
    const ColorConverter& GetConverter() const;
    // What the mode's colour-map file held that could not be used, one line per entry (see
    // ColorMap::GetErrors); each line is also logged as a warning when the file is read.
    const QStringList& GetColorMapErrors() const;

Q_SIGNALS:
    // The mode changed and its colours are in force (sent with the subscription notification).
    void lightModeChanged(ColorConverter::mode mode);

protected:
    // Reads the colour map of a mode file name ("night", ...) from the project's colour maps;
    // a missing or unreadable file gives the identity conversion.
    void LoadColormapFile(const QString& name);
    // True when a process of that executable name runs (the Windows settings window).
    bool IsProcessRunning(const QString& exeName);

private:
    void AnnounceModeChange();
    QString ThemeFileOf(ColorConverter::mode mode);

    ColorConverter::mode m_mode = ColorConverter::normal;
    std::array<QString, 5> m_modeFileNames;
    ColorMap m_colorMap;
    ColorConverter m_converter;
    QStringList m_colorMapErrors;
    BitmapRemapper m_remapper; // the image form of the colour map and converter
};
