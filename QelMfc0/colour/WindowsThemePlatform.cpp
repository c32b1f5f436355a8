// The Windows theme switch: theme files opened through the shell, the settings window found in
// the process list and closed, theme and wallpaper read from the user's registry.
#include "QelMfc0/colour/ThemePlatform.h"

#ifdef Q_OS_WIN
#include <QDir>
#include <QFileInfo>
#include <qt_windows.h>
#include <shellapi.h>
#include <tlhelp32.h>
#include <versionhelpers.h>

namespace {
QString ReadUserRegistryText(const wchar_t* key, const wchar_t* value)
{
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_READ, &handle) != ERROR_SUCCESS)
        return {};
    wchar_t buffer[MAX_PATH] = {};
    DWORD bytes = sizeof(buffer) - sizeof(wchar_t);
    DWORD type = 0;
    const LONG status = RegQueryValueExW(handle, value, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &bytes);
    RegCloseKey(handle);
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
        return {};
    return QString::fromWCharArray(buffer); // stops at the terminating zero
}

void ShellOpenHidden(const QString& file, const QString& arguments = QString())
{
    ShellExecuteW(nullptr, L"open", reinterpret_cast<LPCWSTR>(file.utf16()),
                  arguments.isEmpty() ? nullptr : reinterpret_cast<LPCWSTR>(arguments.utf16()), nullptr, SW_HIDE);
}

QString ExecutableFolder()
{
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return {};
    const QString exe = QString::fromWCharArray(path, int(length));
    return exe.left(exe.lastIndexOf(QLatin1Char('\\')) + 1);
}

class WindowsThemePlatform final : public ThemePlatform
{
public:
    bool CanSwitchTheme() const override { return IsWindows8OrGreater() && !ExecutableFolder().isEmpty(); }

    QString ThemeFolder() const override
    {
        const QString folder = ExecutableFolder();
        if (folder.isEmpty() || QFileInfo::exists(folder + QStringLiteral("General")))
            return folder;
        // A development build: the theme files live in AppTest three levels up.
        QString up = folder;
        for (int cut = 0; cut < 4 && up.contains(QLatin1Char('\\')); ++cut)
            up = up.left(up.lastIndexOf(QLatin1Char('\\')));
        return up + QStringLiteral("\\AppTest\\");
    }

    QString StockTheme() const override
    {
        wchar_t folder[MAX_PATH] = {};
        const UINT length = GetWindowsDirectoryW(folder, MAX_PATH);
        if (length == 0 || length >= MAX_PATH)
            return {};
        return QString::fromWCharArray(folder, int(length)) + QStringLiteral("\\Resources\\Themes\\aero.theme");
    }

    bool FileExists(const QString& path) const override { return QFileInfo(path).isFile(); }

    void OpenThemeFile(const QString& path) override { ShellOpenHidden(path); }

    bool IsProcessRunning(const QString& exeName) const override
    {
        const std::wstring wanted = exeName.toStdWString();
        HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
        if (snapshot == INVALID_HANDLE_VALUE)
            return false;
        PROCESSENTRY32W entry {};
        entry.dwSize = sizeof(entry);
        bool found = false;
        for (BOOL more = Process32FirstW(snapshot, &entry); more && !found; more = Process32NextW(snapshot, &entry))
            found = _wcsicmp(entry.szExeFile, wanted.c_str()) == 0;
        CloseHandle(snapshot);
        return found;
    }

    void CloseSettingsWindow() override
    {
        wchar_t folder[MAX_PATH] = {};
        const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
        if (length == 0 || length >= MAX_PATH)
            return;
        ShellOpenHidden(QString::fromWCharArray(folder, int(length)) + QStringLiteral("\\cmd.exe"),
                        QStringLiteral("/v:on /c \"TASKKILL /F /IM systemsettings.exe\""));
    }

    void Wait(int milliseconds) override { Sleep(DWORD(milliseconds)); }

    QString ReadCurrentTheme() const override
    {
        return ReadUserRegistryText(L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes", L"CurrentTheme");
    }

    QString ReadCurrentWallPaper() const override
    {
        return ReadUserRegistryText(L"Control Panel\\Desktop", L"WallPaper");
    }

    void SetWallPaper(const QString& path) override
    {
        std::wstring file = path.toStdWString();
        SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, file.data(), SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
    }
};
} // namespace

std::unique_ptr<ThemePlatform> ThemePlatform::CreateDefault()
{
    return std::make_unique<WindowsThemePlatform>();
}
#endif
