#include "QelIniFile_IO.h"

#include <QSettings>

namespace {

const QString kProjectPath = QStringLiteral("Projects/Path");
const QString kCurrentProject = QStringLiteral("Projects/Current");
const QString kCommonPath = QStringLiteral("Projects/CommonPath");
const QString kUseDefaultCommon = QStringLiteral("Projects/UseDefaultCommonPath");

// Section and key joined into a settings name; empty when either part is unusable.
QString SettingsName(const QString& section, const QString& key)
{
    const QString s = section.trimmed();
    const QString k = key.trimmed();
    if (s.isEmpty() || k.isEmpty())
        return QString();
    return s + QLatin1Char('/') + k;
}

} // namespace

QelIniFile_IO::QelIniFile_IO()
    : m_settings(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                             QStringLiteral("Qel"), QStringLiteral("QelSuite")))
{
}

QelIniFile_IO::QelIniFile_IO(const QString& settingsFile)
    : m_settings(std::make_unique<QSettings>(settingsFile, QSettings::IniFormat))
{
}

QelIniFile_IO::~QelIniFile_IO() = default;

bool QelIniFile_IO::readString(const QString& name, QString& value) const
{
    if (name.isEmpty() || !m_settings->contains(name))
        return false;
    value = m_settings->value(name).toString();
    return true;
}

void QelIniFile_IO::writeValue(const QString& name, const QVariant& value)
{
    if (name.isEmpty())
        return;
    m_settings->setValue(name, value);
    m_settings->sync();
}

bool QelIniFile_IO::GetProjectPath(QString& path) const
{
    return readString(kProjectPath, path);
}

void QelIniFile_IO::SetProjectPath(const QString& path)
{
    writeValue(kProjectPath, path);
}

bool QelIniFile_IO::GetCurrentProjectName(QString& name) const
{
    return readString(kCurrentProject, name);
}

void QelIniFile_IO::SetCurrentProjectName(const QString& name)
{
    writeValue(kCurrentProject, name);
}

bool QelIniFile_IO::GetCommonProjectFilesPath(QString& path) const
{
    return readString(kCommonPath, path);
}

void QelIniFile_IO::SetCommonProjectFilesPath(const QString& path)
{
    writeValue(kCommonPath, path);
}

bool QelIniFile_IO::GetUseDefaultCommonPath(bool& useDefault) const
{
    if (!m_settings->contains(kUseDefaultCommon))
        return false;
    useDefault = m_settings->value(kUseDefaultCommon).toBool();
    return true;
}

void QelIniFile_IO::SetUseDefaultCommonPath(bool useDefault)
{
    writeValue(kUseDefaultCommon, useDefault);
}

bool QelIniFile_IO::GetString(const QString& section, const QString& key, QString& value) const
{
    return readString(SettingsName(section, key), value);
}

void QelIniFile_IO::SetString(const QString& section, const QString& key, const QString& value)
{
    writeValue(SettingsName(section, key), value);
}

bool QelIniFile_IO::RemoveKey(const QString& section, const QString& key)
{
    const QString name = SettingsName(section, key);
    if (name.isEmpty() || !m_settings->contains(name))
        return false;
    m_settings->remove(name);
    m_settings->sync();
    return true;
}

QString QelIniFile_IO::GetLocation() const
{
    return m_settings->fileName();
}
