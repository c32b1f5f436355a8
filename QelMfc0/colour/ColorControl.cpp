#include "QelMfc0/colour/ColorControl.h"

#include <QDebug>
#include <QImage>
#include <QThread>
#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/StringTable.h>
#include <QelMfc0/colour/ApplicationPalette.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ThemePlatform.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <algorithm>
#include <cmath>
#include <optional>
#include <thread>
#include <vector>

namespace {
constexpr COLORREF kTransparentKey = 0xC0C0C0;
constexpr int kThemeSwitchChecks = 60;
constexpr int kColorMapFileKind = 60;
const QString kSettingsWindowExe = QStringLiteral("systemsettings.exe");

// State of the system theme shared by every instance.
struct ThemeState {
    QString currentTheme;
    QString currentWallPaper;
    QString defaultTheme;
    QString defaultWallPaper;
    int pendingChecks = 0;
    std::unique_ptr<ThemePlatform> platform;
};

ThemeState& Theme()
{
    static ThemeState state;
    return state;
}

ThemePlatform& Platform()
{
    ThemeState& state = Theme();
    if (!state.platform)
        state.platform = ThemePlatform::CreateDefault();
    return *state.platform;
}

// How a 32-bit image with 8-bit channels holds them; nothing for other formats.
std::optional<BitmapRemapper::PixelLayout> PixelLayoutOf(const QImage& image)
{
    using Layout = BitmapRemapper::PixelLayout;
    switch (image.format()) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
        return Layout::Argb32;
    case QImage::Format_ARGB32_Premultiplied:
        return Layout::Argb32Premultiplied;
    case QImage::Format_RGBX8888:
    case QImage::Format_RGBA8888:
        return Layout::Rgba8888;
    case QImage::Format_RGBA8888_Premultiplied:
        return Layout::Rgba8888Premultiplied;
    default:
        return std::nullopt;
    }
}

// Converts the rows of an image, in slices on the global thread pool for large images.
template <typename RowFn>
void ForEachRowSlice(QImage& image, RowFn convertRow)
{
    const int height = image.height();
    const int width = image.width();
    const qsizetype stride = image.bytesPerLine();
    uchar* bits = image.bits(); // detaches a shared image once, before the threads start
    auto convertRows = [&](std::pair<int, int> rows) {
        for (int y = rows.first; y < rows.second; ++y) {
            convertRow(reinterpret_cast<quint32*>(bits + stride * y), width);
        }
    };
    constexpr qint64 kParallelPixels = 1 << 18;
    if (qint64(width) * height < kParallelPixels) {
        convertRows({ 0, height });
        return;
    }
    // One slice per processor: the calling thread converts the first, helpers the others.
    const int slices = std::clamp(QThread::idealThreadCount(), 1, 16);
    std::vector<std::thread> helpers;
    for (int i = 1; i < slices; ++i)
        helpers.emplace_back(convertRows, std::pair<int, int>(height * i / slices, height * (i + 1) / slices));
    convertRows({ 0, height / slices });
    for (std::thread& helper : helpers)
        helper.join();
}

COLORREF GrayOf(COLORREF color)
{
    const double luminance = 0.21 * GetRValue(color) / 255.0 + 0.72 * GetGValue(color) / 255.0
                           + 0.07 * GetBValue(color) / 255.0;
    const int level = std::min(255, int(std::floor(((luminance - 0.5) * 0.25 + 0.75) * 255.0 + 0.5)));
    return RGB(level, level, level);
}
// Converts a 32-bit image of any channel order in place with `remapper`.
void RemapImage(const BitmapRemapper& remapper, QImage& image)
{
    const auto layout = PixelLayoutOf(image);
    if (!layout || image.isNull() || remapper.IsIdentity())
        return;
    ForEachRowSlice(image, [&remapper, layout](quint32* line, int width) { remapper.Remap(line, width, *layout); });
}
} // namespace

ColorControl& ColorControl::Instance()
{
    static ColorControl instance;
    return instance;
}

ColorControl::ColorControl()
    : m_modeFileNames { QStringLiteral("unknown"), QStringLiteral("normal"), QStringLiteral("night"),
                        QStringLiteral("twilight"), QStringLiteral("bright") }
{
    qRegisterMetaType<ColorConverter::mode>("ColorConverter::mode");
    // Already in normal mode: returns at once, so a new instance converts nothing and loads no file.
    SetLightMode(ColorConverter::normal, false);
}

ColorControl::~ColorControl() = default;

void ColorControl::SetLightMode(ColorConverter::mode mode, bool changeWindowsTheme)
{
    ThemeState& theme = Theme();
    if (mode == m_mode || theme.pendingChecks != 0)
        return;
    m_mode = mode;

    ThemePlatform& platform = Platform();
    if (changeWindowsTheme && platform.CanSwitchTheme()) {
        const QString themeFile = ThemeFileOf(mode);
        if (themeFile != theme.currentTheme && platform.FileExists(themeFile)) {
            theme.currentTheme = themeFile;
            platform.OpenThemeFile(themeFile);
            theme.pendingChecks = kThemeSwitchChecks;
        }
    }
    LoadColormapFile(m_modeFileNames[size_t(mode >= 0 && mode < 5 ? mode : ColorConverter::unknown)]);
    if (changeWindowsTheme) {
        // The style's icons are converted with the colours of this mode, whatever happens later.
        // They are full-colour pictures of the platform, not the library's images whose byte
        // order the colour maps are written for: each pixel is converted as the colour it shows
        // (red as red), so that a yellow warning sign stays yellow and black turns to the mode's
        // text colour.
        auto snapshot = std::make_shared<const BitmapRemapper>(m_remapper);
        ApplicationPalette::Apply(m_colorMap.GetFileColors(), [snapshot](QImage& image) {
            image = image.convertToFormat(QImage::Format_ARGB32).rgbSwapped();
            RemapImage(*snapshot, image);
            image = image.rgbSwapped();
        });
    }
    if (theme.pendingChecks == 0)
        AnnounceModeChange();
}

QString ColorControl::ThemeFileOf(ColorConverter::mode mode)
{
    ThemeState& theme = Theme();
    ThemePlatform& platform = Platform();
    switch (mode) {
    case ColorConverter::night:
        return platform.ThemeFolder() + QStringLiteral("NightColor.theme");
    case ColorConverter::twilight:
        return platform.ThemeFolder() + QStringLiteral("TwilightColor.theme");
    case ColorConverter::normal:
    case ColorConverter::bright:
        if (theme.defaultTheme.isEmpty())
            theme.defaultTheme = platform.StockTheme();
        return theme.defaultTheme;
    default:
        return platform.ThemeFolder();
    }
}

ColorConverter::mode ColorControl::GetLightMode() const { return m_mode; }

bool ColorControl::GetInvertColors() const { return m_converter.GetInvert(); }

COLORREF ColorControl::GetColor(COLORREF color, bool raw) const
{
    COLORREF substitute = 0;
    if (!raw && m_colorMap.Find(color, substitute))
        return substitute;
    return m_converter.Convert(color & 0x00FFFFFF, !raw && m_converter.GetInvert());
}

COLORREF ColorControl::GetGrayColor(COLORREF color) const
{
    return GrayOf(color);
}

void ColorControl::RemapColorTable(ColorTable& table) const
{
    table.SetLowColor(GetColor(table.LowColor(), true));
    for (int i = 0; i < table.NumEntries(); ++i)
        table.SetEntryColor(i, m_converter.Convert(table.EntryColor(i), false));
}

void ColorControl::RemapBitmap(QImage& image) const
{
    RemapImage(m_remapper, image);
}

void ColorControl::RemapBitmapGray(QImage& image) const
{
    const auto layout = PixelLayoutOf(image);
    if (!layout || image.isNull())
        return;
    if (*layout != BitmapRemapper::PixelLayout::Argb32) {
        // Other byte orders and premultiplied colours through the straight 0xAARRGGBB form.
        const QImage::Format format = image.format();
        image.convertTo(QImage::Format_ARGB32);
        RemapBitmapGray(image);
        image.convertTo(format);
        return;
    }
    ForEachRowSlice(image, [](quint32* line, int width) {
        for (int x = 0; x < width; ++x) {
            const quint32 color = line[x] & 0x00FFFFFFu;
            if (color != kTransparentKey)
                line[x] = (line[x] & 0xFF000000u) | GrayOf(color);
        }
    });
}

QString ColorControl::GetColorModeString(ColorConverter::mode mode)
{
    switch (mode) {
    case ColorConverter::normal:
        return LoadQelString(QelStrings::MODE_NORMAL);
    case ColorConverter::night:
        return LoadQelString(QelStrings::MODE_NIGHT);
    case ColorConverter::twilight:
        return LoadQelString(QelStrings::MODE_TWILIGHT);
    case ColorConverter::bright:
        return LoadQelString(QelStrings::MODE_BRIGHT);
    default:
        return LoadQelString(QelStrings::MODE_UNKNOWN);
    }
}

void ColorControl::TimerCheck()
{
    ThemeState& theme = Theme();
    if (theme.pendingChecks == 0)
        return;
    --theme.pendingChecks;
    if (IsProcessRunning(kSettingsWindowExe)) {
        Platform().Wait(1000);
        CloseSettingDialog();
        theme.pendingChecks = 0;
        AnnounceModeChange();
    }
    // A countdown that runs out without the settings window announces nothing.
}

void ColorControl::CloseSettingDialog()
{
    Platform().CloseSettingsWindow();
}

void ColorControl::RestoreOriginalWindowsTheme()
{
    ApplicationPalette::RestoreOriginal();
    ThemeState& theme = Theme();
    ThemePlatform& platform = Platform();
    if (!platform.CanSwitchTheme())
        return;
    if (theme.defaultTheme.isEmpty())
        theme.defaultTheme = platform.StockTheme();
    if (!theme.defaultTheme.isEmpty() && theme.defaultTheme.compare(GetCurrentTheme(), Qt::CaseInsensitive) != 0) {
        theme.pendingChecks = 0;
        platform.OpenThemeFile(theme.defaultTheme);
        // Blocks for up to a minute, waiting for the settings window to close it.
        for (int i = 0; i < kThemeSwitchChecks; ++i) {
            platform.Wait(1000);
            if (platform.IsProcessRunning(kSettingsWindowExe)) {
                platform.Wait(1000);
                CloseSettingDialog();
                break;
            }
        }
    }
    if (!theme.defaultWallPaper.isEmpty()
        && theme.defaultWallPaper.compare(GetCurrentWallPaper(), Qt::CaseInsensitive) != 0)
        platform.SetWallPaper(theme.defaultWallPaper);
}

void ColorControl::SaveDefaultTheme() { Theme().defaultTheme = GetCurrentTheme(); }

void ColorControl::SaveDefaultWallPaper() { Theme().defaultWallPaper = GetCurrentWallPaper(); }

QString ColorControl::GetCurrentTheme() { return Platform().ReadCurrentTheme(); }

QString ColorControl::GetCurrentWallPaper() { return Platform().ReadCurrentWallPaper(); }

void ColorControl::SetCurrentTheme(const QByteArray& path) { Theme().currentTheme = QString::fromUtf8(path); }

QByteArray ColorControl::GetCurrentTheme() const { return Theme().currentTheme.toUtf8(); }

void ColorControl::SetCurrentWallPaper(const QByteArray& path) { Theme().currentWallPaper = QString::fromUtf8(path); }

QByteArray ColorControl::GetCurrentWallPaper() const { return Theme().currentWallPaper.toUtf8(); }

int ColorControl::PendingThemeChecks() { return Theme().pendingChecks; }

void ColorControl::SetThemePlatform(std::unique_ptr<ThemePlatform> platform)
{
    Theme().platform = std::move(platform);
}

const ColorMap& ColorControl::GetColorMap() const { return m_colorMap; }

const ColorConverter& ColorControl::GetConverter() const { return m_converter; }

const QStringList& ColorControl::GetColorMapErrors() const { return m_colorMapErrors; }

void ColorControl::LoadColormapFile(const QString& name)
{
    FileObject file;
    const QString path = DataSearch::GetDataSearch().GetFullPath(kColorMapFileKind, name);
    if (path.isEmpty() || !file.FileOpen(path, FileObject::OPEN_READ)) {
        m_colorMap.Clear();
        m_converter.Reset();
        m_colorMapErrors.clear();
    } else {
        m_colorMap.Load(file);
        m_colorMapErrors = m_colorMap.GetErrors();
        m_converter.Load(file, &m_colorMapErrors);
        for (const QString& error : std::as_const(m_colorMapErrors))
            qWarning().noquote() << "Colour map" << path << error;
    }
    m_remapper = BitmapRemapper(m_colorMap, m_converter);
}

bool ColorControl::IsProcessRunning(const QString& exeName)
{
    return Platform().IsProcessRunning(exeName);
}

void ColorControl::AnnounceModeChange()
{
    SubscriptionManager::Instance().NotifyPost(SubscriptionCodes::COLOR_MODE_CHANGED, GeneralSubKeys::COLOR_CONTROL);
    emit lightModeChanged(m_mode);
}
