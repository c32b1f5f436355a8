#include "DataSearch.h"

#include "ProjectDefinition.h"
#include "QelIniFile_IO.h"

#include <QelAttributes/AttribDefMap.h>
#include <QelBase/FileObject.h>
#include <QelSubscriber/SubscriptionManager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <array>
#include <utility>

namespace {

struct FileTypeInfo
{
    int type;
    const char* description;
    const char* extension;
    const char* defaultName;
    int pathKind;
};

constexpr std::array<FileTypeInfo, 4> kFileTypes = {{
    {DataSearch::TYPE_UNITS, QT_TRANSLATE_NOOP("DataSearch", "Unit Definition File"), ".def", "Units", DataSearch::PATH_COMMON},
    {DataSearch::TYPE_PROJECT, QT_TRANSLATE_NOOP("DataSearch", "Project Definition File"), ".qpd", "Project", DataSearch::PATH_PROJECT},
    {DataSearch::TYPE_COLOR_TABLE, QT_TRANSLATE_NOOP("DataSearch", "Color Table File"), ".ctb", "Default", DataSearch::PATH_COLOR_TABLES},
    {DataSearch::TYPE_COLOR_MAP, QT_TRANSLATE_NOOP("DataSearch", "Color Map File"), ".cmap", "normal", DataSearch::PATH_COLOR_MAPS},
}};

const FileTypeInfo* FindType(int type)
{
    for (const FileTypeInfo& info : kFileTypes)
        if (info.type == type)
            return &info;
    return nullptr;
}

QString Clean(const QString& path)
{
    const QString trimmed = path.trimmed();
    return trimmed.isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(trimmed));
}

QString Join(const QString& folder, const char* child)
{
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + QLatin1String(child);
}

QString ProjectFileName()
{
    const FileTypeInfo* info = FindType(DataSearch::TYPE_PROJECT);
    return QLatin1String(info->defaultName) + QLatin1String(info->extension);
}

// Replaces the process's attribute definitions with those of the common folder's
// "Attributes.def"; none when the folder or the file is missing.
void LoadAttributeDefinitions(const QString& commonFolder)
{
    CAttribDefMap& definitions = CAttribDefMap::GetAttribDefMap();
    definitions.Clear();
    if (commonFolder.isEmpty())
        return;
    FileObject file;
    if (file.FileOpen(commonFolder + QLatin1String("/Attributes.def")))
        definitions.Load(file);
}

} // namespace

DataSearch::DataSearch() = default;
DataSearch::~DataSearch() = default;

DataSearch& DataSearch::GetDataSearch()
{
    static DataSearch instance;
    return instance;
}

bool DataSearch::Open(const QString& projectsFolder, const QString& projectName,
                      const QString& commonFolder)
{
    const QString folder = Clean(projectsFolder);
    const QString name = projectName.trimmed();
    if (folder.isEmpty() || name.isEmpty() || name.contains(QLatin1Char('/'))
        || name.contains(QLatin1Char('\\')) || name == QLatin1String("..")
        || name == QLatin1String("."))
        return false;
    auto project = std::make_unique<ProjectDefinition>();
    if (!project->Load(folder + QLatin1Char('/') + name + QLatin1Char('/') + ProjectFileName()))
        return false;

    // The old project stays alive until every follower has heard that the new one is current.
    AnnounceProject(SubscriptionCodes::PROJECT_CLOSING);
    std::unique_ptr<ProjectDefinition> previous = std::exchange(m_project, std::move(project));
    m_projectsFolder = QFileInfo(folder).absoluteFilePath();
    m_commonFolder = Clean(commonFolder);
    QelIniFile_IO& ini = GetIniFile();
    ini.SetProjectPath(m_projectsFolder);
    ini.SetCurrentProjectName(name);
    ini.SetUseDefaultCommonPath(m_commonFolder.isEmpty());
    if (!m_commonFolder.isEmpty())
        ini.SetCommonProjectFilesPath(m_commonFolder);
    LoadAttributeDefinitions(this->commonFolder());
    AnnounceProject(SubscriptionCodes::PROJECT_CHANGED);
    return true;
}

bool DataSearch::OpenFromSettings()
{
    QelIniFile_IO& ini = GetIniFile();
    QString folder, name, common;
    if (!ini.GetProjectPath(folder) || !ini.GetCurrentProjectName(name))
        return false;
    bool useDefault = true;
    ini.GetUseDefaultCommonPath(useDefault);
    if (!useDefault)
        ini.GetCommonProjectFilesPath(common);
    return Open(folder, name, common);
}

void DataSearch::Close()
{
    if (!m_project)
        return;
    AnnounceProject(SubscriptionCodes::PROJECT_CLOSING);
    const std::unique_ptr<ProjectDefinition> previous = std::move(m_project);
    LoadAttributeDefinitions(QString());
    AnnounceProject(SubscriptionCodes::PROJECT_CHANGED);
}

void DataSearch::AnnounceProject(int code)
{
    // Sent at once: a follower must be able to read the closing project before it goes.
    SubscriptionManager::Instance().NotifySend(code, GeneralSubKeys::PROJECT);
}

ProjectDefinition* DataSearch::GetProjectDefinition()
{
    return m_project.get();
}

const ProjectDefinition* DataSearch::GetProjectDefinition() const
{
    return m_project.get();
}

QString DataSearch::GetProjectName() const
{
    const QString folder = projectFolder();
    return folder.isEmpty() ? QString() : QFileInfo(folder).fileName();
}

QelIniFile_IO& DataSearch::GetIniFile()
{
    return ini();
}

void DataSearch::SetIniFile(std::unique_ptr<QelIniFile_IO> iniFile)
{
    m_ini = std::move(iniFile);
}

QelIniFile_IO& DataSearch::ini() const
{
    if (!m_ini)
        m_ini = std::make_unique<QelIniFile_IO>();
    return *m_ini;
}

QString DataSearch::projectsFolder() const
{
    QString path;
    if (ini().GetProjectPath(path) && !Clean(path).isEmpty())
        return Clean(path);
    return m_projectsFolder;
}

QString DataSearch::commonFolder() const
{
    bool useDefault = true;
    if (ini().GetUseDefaultCommonPath(useDefault)) {
        QString path;
        if (!useDefault && ini().GetCommonProjectFilesPath(path) && !Clean(path).isEmpty())
            return Clean(path);
    } else if (!m_commonFolder.isEmpty()) {
        return m_commonFolder;
    }
    return Join(projectsFolder(), "Common");
}

QString DataSearch::projectFolder() const
{
    return m_project ? m_project->GetProjectFolder() : QString();
}

bool DataSearch::GetDataPathInfo(int kind, QString& path) const
{
    switch (kind) {
    case PATH_PROJECT: path = projectFolder(); break;
    case PATH_DATA: path = Join(projectFolder(), "Data"); break;
    case PATH_IMAGES: path = Join(projectFolder(), "Images"); break;
    case PATH_MULTIMEDIA: path = Join(projectFolder(), "MultiMedia"); break;
    case PATH_PROJECTS: path = projectsFolder(); break;
    case PATH_COMMON: path = commonFolder(); break;
    case PATH_COLOR_TABLES: path = Join(commonFolder(), "ColorTables"); break;
    case PATH_COLOR_MAPS: path = Join(commonFolder(), "ColorMaps"); break;
    default: path.clear(); break;
    }
    return !path.isEmpty();
}

QString DataSearch::GetFullPath(int fileKind, const QString& name) const
{
    const FileTypeInfo* info = FindType(fileKind);
    if (!info)
        return QString();
    const QString extension = QLatin1String(info->extension);
    QString file = Clean(name);
    if (fileKind == TYPE_UNITS)
        file.clear();
    if (fileKind == TYPE_PROJECT && !file.isEmpty()) {
        // A project by name: its file in the projects folder.
        const QString folder = projectsFolder();
        return folder.isEmpty() || file.contains(QLatin1Char('/'))
            ? QString()
            : folder + QLatin1Char('/') + file + QLatin1Char('/') + ProjectFileName();
    }
    if (file.isEmpty()) {
        if (fileKind != TYPE_UNITS && fileKind != TYPE_PROJECT)
            return QString();
        file = QLatin1String(info->defaultName);
    }
    if (!file.endsWith(extension, Qt::CaseInsensitive))
        file += extension;
    if (file.contains(QLatin1Char('/')))
        return file; // already a path
    QString folder;
    if (!GetDataPathInfo(info->pathKind, folder))
        return QString();
    return folder + QLatin1Char('/') + file;
}

QString DataSearch::GetFilePath(int pathKind) const
{
    if (pathKind != FILEPATH_BITMAPS)
        return QString();
    const QString common = commonFolder();
    return common.isEmpty() ? QString() : common + QLatin1String("/Bitmaps/");
}

bool DataSearch::GetFileExtension(int type, QString& ext) const
{
    const FileTypeInfo* info = FindType(type);
    if (!info)
        return false;
    ext = QLatin1String(info->extension);
    return true;
}

bool DataSearch::GetDefaultFileName(int type, QString& name) const
{
    const FileTypeInfo* info = FindType(type);
    if (!info)
        return false;
    name = QLatin1String(info->defaultName);
    return true;
}

bool DataSearch::GetFileTypeInfo(int type, QString& description, QString& extension,
                                 int& dataPathKind) const
{
    const FileTypeInfo* info = FindType(type);
    if (!info)
        return false;
    description = QCoreApplication::translate("DataSearch", info->description);
    extension = QLatin1String(info->extension);
    dataPathKind = info->pathKind;
    return true;
}

bool DataSearch::GetFileSubTypeAttribs(int fileType, const QString& name, QString& attribs) const
{
    attribs.clear();
    const QString common = commonFolder();
    if (common.isEmpty())
        return false;
    // The key is the bare file name: no folder, no extension of the type.
    QString key = QFileInfo(Clean(name)).fileName();
    QString extension;
    if (GetFileExtension(fileType, extension) && key.endsWith(extension, Qt::CaseInsensitive))
        key.chop(extension.size());
    key = key.trimmed();
    if (key.isEmpty())
        return false;
    FileObject file;
    QString value;
    if (!file.FileOpen(common + QLatin1String("/FileSubTypes.def"))
        || !file.GetString(QString::number(fileType), key, value))
        return false;
    attribs = value.trimmed();
    return !attribs.isEmpty();
}

bool DataSearch::GetProjects(QStringList& names) const
{
    names.clear();
    const QString folder = projectsFolder();
    if (folder.isEmpty())
        return false;
    const QDir dir(folder);
    const QString projectFile = ProjectFileName();
    const QStringList subfolders =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString& sub : subfolders)
        if (QFileInfo(dir.filePath(sub + QLatin1Char('/') + projectFile)).isFile())
            names.append(sub);
    return !names.isEmpty();
}
