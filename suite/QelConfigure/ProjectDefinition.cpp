#include "ProjectDefinition.h"

#include "QelGeoCoordSys.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString kProject = QStringLiteral("Project");
const QString kDecimals = QStringLiteral("Decimals");
const QString kGeographic = QStringLiteral("Geographic");
const QString kFeet = QStringLiteral("Feet");
const QString kCoordinates = QStringLiteral("Coordinates");
const QString kUnits = QStringLiteral("Units");
const QString kFolders = QStringLiteral("Folders");
const QString kOptions = QStringLiteral("Options");

constexpr int kDefaultDecimals = 2;
constexpr int kMaxDecimals = 12;

int ClampDecimals(int decimals)
{
    return std::clamp(decimals, 0, kMaxDecimals);
}

unsigned ValidGeogsFlags(unsigned flags)
{
    return (flags == 1 || flags == 3 || flags == 7) ? flags : 7u;
}

} // namespace

ProjectDefinition::ProjectDefinition() = default;
ProjectDefinition::~ProjectDefinition() = default;

bool ProjectDefinition::Load(const QString& path)
{
    resetSettings();
    if (path.isEmpty() || !FileOpen(path, OPEN_READ))
        return false;
    readSettings();
    return true;
}

void ProjectDefinition::resetSettings()
{
    m_name.clear();
    m_crs.clear();
    m_coordSys.reset();
    m_gridDecimals = m_geogsDecimals = m_distanceDecimals = m_depthDecimals = m_bearingDecimals =
        kDefaultDecimals;
    m_geogsFlags = 7;
    m_feetFlags = 0;
    m_coordFormat = COORD_GRID;
    m_units = CQelUnitCnv();
    m_multiMedia.clear();
}

void ProjectDefinition::readSettings()
{
    GetString(kProject, QStringLiteral("Name"), m_name);
    m_name = m_name.trimmed();
    QString crs;
    if (GetString(kProject, QStringLiteral("Crs"), crs)) {
        m_crs = crs.trimmed();
        if (!m_crs.isEmpty())
            m_coordSys = QelGeoCoordSys::Create(m_crs);
    }

    auto readDecimals = [this](const char* key, int& target) {
        int value = target;
        if (GetInt(kDecimals, QString::fromLatin1(key), value))
            target = ClampDecimals(value);
    };
    readDecimals("Grid", m_gridDecimals);
    readDecimals("Geographic", m_geogsDecimals);
    readDecimals("Distance", m_distanceDecimals);
    readDecimals("Depth", m_depthDecimals);
    readDecimals("Bearing", m_bearingDecimals);

    int value = 0;
    if (GetInt(kGeographic, QStringLiteral("Flags"), value))
        m_geogsFlags = ValidGeogsFlags(unsigned(value));
    if (GetInt(kFeet, QStringLiteral("Flags"), value) && value >= 0)
        m_feetFlags = unsigned(value);
    if (GetInt(kCoordinates, QStringLiteral("Format"), value))
        SetCoordFormat(value);

    m_units.Load(*this, kUnits);
    GetString(kFolders, QStringLiteral("MultiMedia"), m_multiMedia);
    m_multiMedia = m_multiMedia.trimmed();
}

void ProjectDefinition::writeSettings()
{
    SetString(kProject, QStringLiteral("Name"), m_name);
    SetString(kProject, QStringLiteral("Crs"), m_crs);
    SetInt(kDecimals, QStringLiteral("Grid"), m_gridDecimals);
    SetInt(kDecimals, QStringLiteral("Geographic"), m_geogsDecimals);
    SetInt(kDecimals, QStringLiteral("Distance"), m_distanceDecimals);
    SetInt(kDecimals, QStringLiteral("Depth"), m_depthDecimals);
    SetInt(kDecimals, QStringLiteral("Bearing"), m_bearingDecimals);
    SetInt(kGeographic, QStringLiteral("Flags"), int(m_geogsFlags));
    SetInt(kFeet, QStringLiteral("Flags"), int(m_feetFlags));
    SetInt(kCoordinates, QStringLiteral("Format"), int(m_coordFormat));

    m_units.Save(*this, kUnits);

    if (m_multiMedia.isEmpty())
        RemoveEntry(kFolders, QStringLiteral("MultiMedia"));
    else
        SetString(kFolders, QStringLiteral("MultiMedia"), m_multiMedia);
}

bool ProjectDefinition::FileSave(const QString& fileName, int mode, unsigned flags)
{
    Q_UNUSED(mode);
    Q_UNUSED(flags);
    return FileSave(fileName);
}

bool ProjectDefinition::FileSave(const QString& fileName)
{
    if (fileName.isEmpty() && GetPathName().isEmpty())
        return false;
    writeSettings();
    return FileObject::FileSave(fileName);
}

QString ProjectDefinition::GetProjectFolder() const
{
    const QString path = GetPathName();
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

QString ProjectDefinition::GetProjectName() const
{
    if (!m_name.isEmpty())
        return m_name;
    const QString folder = GetProjectFolder();
    return folder.isEmpty() ? QString() : QFileInfo(folder).fileName();
}

void ProjectDefinition::SetProjectName(const QString& name)
{
    m_name = name.trimmed();
}

bool ProjectDefinition::GetGridDecimals(int& decimals) const
{
    decimals = m_gridDecimals;
    return true;
}

bool ProjectDefinition::GetGeogsDecimals(int& decimals) const
{
    decimals = m_geogsDecimals;
    return true;
}

bool ProjectDefinition::GetDistanceDecimals(int& decimals) const
{
    decimals = m_distanceDecimals;
    return true;
}

bool ProjectDefinition::GetDepthDecimals(int& decimals) const
{
    decimals = m_depthDecimals;
    return true;
}

bool ProjectDefinition::GetBearingDecimals(int& decimals) const
{
    decimals = m_bearingDecimals;
    return true;
}

bool ProjectDefinition::GetGeogsFlags(unsigned& flags) const
{
    flags = m_geogsFlags;
    return true;
}

bool ProjectDefinition::GetFeetsFlags(unsigned& flags) const
{
    flags = m_feetFlags;
    return true;
}

ProjectDefinition::coord_format ProjectDefinition::GetCoordFormat() const
{
    return m_coordFormat;
}

void ProjectDefinition::SetGridDecimals(int decimals) { m_gridDecimals = ClampDecimals(decimals); }
void ProjectDefinition::SetGeogsDecimals(int decimals) { m_geogsDecimals = ClampDecimals(decimals); }
void ProjectDefinition::SetDistanceDecimals(int decimals) { m_distanceDecimals = ClampDecimals(decimals); }
void ProjectDefinition::SetDepthDecimals(int decimals) { m_depthDecimals = ClampDecimals(decimals); }
void ProjectDefinition::SetBearingDecimals(int decimals) { m_bearingDecimals = ClampDecimals(decimals); }
void ProjectDefinition::SetGeogsFlags(unsigned flags) { m_geogsFlags = ValidGeogsFlags(flags); }
void ProjectDefinition::SetFeetsFlags(unsigned flags) { m_feetFlags = flags; }

void ProjectDefinition::SetCoordFormat(int format)
{
    m_coordFormat = format == COORD_GEOGRAPHIC ? COORD_GEOGRAPHIC : COORD_GRID;
}

const CQelUnitCnv& ProjectDefinition::GetUnitCnv() const
{
    return m_units;
}

CQelUnitCnv& ProjectDefinition::GetUnitCnv()
{
    return m_units;
}

QelGeoCoordSysBase* ProjectDefinition::GetGeoCoordSys() const
{
    return m_coordSys.get();
}

QString ProjectDefinition::GetCrsDefinition() const
{
    return m_crs;
}

bool ProjectDefinition::SetCrsDefinition(const QString& definition)
{
    const QString text = definition.trimmed();
    if (text.isEmpty()) {
        m_crs.clear();
        m_coordSys.reset();
        return true;
    }
    auto coordSys = QelGeoCoordSys::Create(text);
    if (!coordSys)
        return false;
    m_crs = text;
    m_coordSys = std::move(coordSys);
    return true;
}

bool ProjectDefinition::GetMultiMediaFilePath(QString& path) const
{
    path.clear();
    if (m_multiMedia.isEmpty())
        return false;
    if (QDir::isAbsolutePath(m_multiMedia)) {
        path = QDir::cleanPath(m_multiMedia);
        return true;
    }
    const QString folder = GetProjectFolder();
    if (folder.isEmpty())
        return false;
    path = QDir::cleanPath(folder + QLatin1Char('/') + m_multiMedia);
    return true;
}

void ProjectDefinition::SetMultiMediaFilePath(const QString& path)
{
    const QString cleaned = path.trimmed().isEmpty() ? QString()
                                                     : QDir::cleanPath(QDir::fromNativeSeparators(path.trimmed()));
    const QString folder = GetProjectFolder();
    if (!cleaned.isEmpty() && !folder.isEmpty() && QDir::isAbsolutePath(cleaned)) {
        const QString relative = QDir(folder).relativeFilePath(cleaned);
        if (relative != QLatin1String("..") && !relative.startsWith(QLatin1String("../"))
            && !QDir::isAbsolutePath(relative)) {
            m_multiMedia = relative;
            return;
        }
    }
    m_multiMedia = cleaned;
}

bool ProjectDefinition::GetOption(const QString& key, QString& value) const
{
    return GetString(kOptions, key, value);
}

void ProjectDefinition::SetOption(const QString& key, const QString& value)
{
    SetString(kOptions, key, value);
}
