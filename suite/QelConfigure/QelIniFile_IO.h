#pragma once
// The per-user settings of the suite: the projects folder, the current project, the common
// files folder and free string values (e.g. the project history). Kept in QSettings, native
// format, organisation "Qel", application "QelSuite" (the registry on Windows, a config file
// elsewhere), or in an explicit INI file.
//
// Keys: Projects/Path, Projects/Current, Projects/CommonPath, Projects/UseDefaultCommonPath;
// free values under <section>/<key>.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>

#include <memory>

class QSettings;
class QVariant;

class QELCONFIGURE_EXPORT QelIniFile_IO
{
public:
    // The user's suite settings.
    QelIniFile_IO();
    // Settings kept in the INI file at settingsFile (created on the first write).
    explicit QelIniFile_IO(const QString& settingsFile);
    ~QelIniFile_IO();
    QelIniFile_IO(const QelIniFile_IO&) = delete;
    QelIniFile_IO& operator=(const QelIniFile_IO&) = delete;

    // The folder holding the projects; false (path untouched) when unset.
    bool GetProjectPath(QString& path) const;
    void SetProjectPath(const QString& path);
    // The name of the current project (its folder name); false when unset.
    bool GetCurrentProjectName(QString& name) const;
    void SetCurrentProjectName(const QString& name);
    // The chosen common files folder; false when unset.
    bool GetCommonProjectFilesPath(QString& path) const;
    void SetCommonProjectFilesPath(const QString& path);
    // Whether the common files are in the projects folder's "Common" folder; false when unset.
    bool GetUseDefaultCommonPath(bool& useDefault) const;
    void SetUseDefaultCommonPath(bool useDefault);

    // A free string value; false (value untouched) when unset or when section or key is empty.
    bool GetString(const QString& section, const QString& key, QString& value) const;
    // Writes a free string value; ignored when section or key is empty.
    void SetString(const QString& section, const QString& key, const QString& value);
    // Removes a value; false when it was not set.
    bool RemoveKey(const QString& section, const QString& key);

    // Where the settings are kept (a file path or a registry path).
    QString GetLocation() const;

private:
    bool readString(const QString& name, QString& value) const;
    void writeValue(const QString& name, const QVariant& value);

    std::unique_ptr<QSettings> m_settings;
};
