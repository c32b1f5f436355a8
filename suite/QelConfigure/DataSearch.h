#pragma once
// Where the suite's data live: the projects folder, the current project and its folders, the
// common files shared by all projects, and the data types (extension, default name, folder).
// One shared instance per process, used on the UI thread.
//
// Opening or closing a project is announced to the suite (GeneralSubKeys::PROJECT): first
// PROJECT_CLOSING while the old project is still current, then PROJECT_CHANGED once the new
// one (or none) is. Whoever shows project data follows these and looks the project up again.
//
// Folder layout:
//   <projects folder>/<project>/Project.qpd        the project file
//   <projects folder>/<project>/Data, Images, MultiMedia
//   <common folder>/Units.def, ColorTables/, ColorMaps/, Bitmaps/
//   <common folder>/DataDefinition.def             the data items (DataDefinition)
//   <common folder>/FileSubTypes.def               sub-types of files (GetFileSubTypeAttribs)
//   <common folder>/Attributes.def                 attribute definitions, read into
//                                                  CAttribDefMap::GetAttribDefMap() by Open
//                                                  (Close leaves the map empty)
// The common folder is <projects folder>/Common unless another one is chosen.
//
// Data-folder kinds (GetDataPathInfo):
//   1 project folder        2 project Data         3 project Images
//   4 projects folder       8 common folder        9 common ColorTables
//   10 common ColorMaps     14 project MultiMedia
// Data / file types (GetFileTypeInfo, GetFullPath):
//   8 units file "Units.def"          13 project file "Project.qpd"
//   25 colour table "<name>.ctb"      60 colour map "<name>.cmap"
// Support-file folders (GetFilePath): 84 the common Bitmaps folder.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>
#include <QStringList>

#include <memory>

class ProjectDefinition;
class QelIniFile_IO;

class QELCONFIGURE_EXPORT DataSearch
{
public:
    // Data-folder kinds.
    enum PathKind : int { PATH_PROJECT = 1, PATH_DATA = 2, PATH_IMAGES = 3, PATH_PROJECTS = 4,
                    PATH_COMMON = 8, PATH_COLOR_TABLES = 9, PATH_COLOR_MAPS = 10,
                    PATH_MULTIMEDIA = 14 };
    // Data / file types.
    enum FileType : int { TYPE_UNITS = 8, TYPE_PROJECT = 13, TYPE_COLOR_TABLE = 25, TYPE_COLOR_MAP = 60 };
    // Support-file folders.
    enum FilePathKind : int { FILEPATH_BITMAPS = 84 };

    DataSearch();
    ~DataSearch();
    DataSearch(const DataSearch&) = delete;
    DataSearch& operator=(const DataSearch&) = delete;

    // The process's shared instance.
    static DataSearch& GetDataSearch();

    // Opens projectsFolder/projectName/Project.qpd with the common files in commonFolder (empty:
    // projectsFolder/Common) and records the choice in the settings. False, with the previous
    // state kept and nothing announced, when the project file is missing or unreadable.
    bool Open(const QString& projectsFolder, const QString& projectName,
              const QString& commonFolder = QString());
    // Opens the project the settings name (projects folder, current project, common folder
    // unless the default one is used); false when they name none or it cannot be opened.
    bool OpenFromSettings();
    // Forgets the open project (the settings stay as they are), announced like Open.
    void Close();

    // The open project, null when none is open.
    ProjectDefinition* GetProjectDefinition();
    const ProjectDefinition* GetProjectDefinition() const;
    // The name of the open project's folder, empty when none is open.
    QString GetProjectName() const;

    // The per-user settings (made on first use over the user's suite settings).
    QelIniFile_IO& GetIniFile();
    // Replaces the settings object (null: back to the user's suite settings on next use).
    void SetIniFile(std::unique_ptr<QelIniFile_IO> iniFile);

    // The folder of a data-folder kind (table above), without a trailing '/'. Kinds 4, 8, 9 and
    // 10 follow the settings and need no open project; the others need one. False and empty
    // for an unknown kind or a folder that is not known.
    bool GetDataPathInfo(int kind, QString& path) const;
    // The full path of a file of a file type: 8 the units file (name ignored), 13 the project
    // file (empty name: the open one, else that project's in the projects folder), 25 and 60
    // a colour table / colour map by name. The type's extension is added unless the name has
    // it; a name with a folder part is kept as a path. Empty for unknown types or no folder.
    QString GetFullPath(int fileKind, const QString& name = QString()) const;
    // A support-file folder with a trailing '/': 84 the common Bitmaps folder. Empty otherwise.
    QString GetFilePath(int pathKind) const;

    // The extension of a data type, with its dot (".qpd"); false for unknown types.
    bool GetFileExtension(int type, QString& ext) const;
    // The default file name of a data type, without extension ("Project"); false if unknown.
    bool GetDefaultFileName(int type, QString& name) const;
    // Description in the user's language ("Project Definition File"), extension and data-folder
    // kind of a data type.
    bool GetFileTypeInfo(int type, QString& description, QString& extension,
                         int& dataPathKind) const;

    // The sub-type attributes of a file of a data type: for colour tables (25) what the table
    // colours, e.g. "MAP,3,1,30" (a map of item 1 of group 3, format 30), read from the common
    // file "FileSubTypes.def" (docs/formats.md); false and empty when the file names none.
    bool GetFileSubTypeAttribs(int fileType, const QString& name, QString& attribs) const;

    // The sub-folders of the projects folder that hold a project file, sorted without regard
    // to case; false when the folder is unknown or holds no project.
    bool GetProjects(QStringList& names) const;

private:
    void AnnounceProject(int code);
    QelIniFile_IO& ini() const;
    QString projectsFolder() const;
    QString commonFolder() const;
    QString projectFolder() const;

    std::unique_ptr<ProjectDefinition> m_project;
    QString m_projectsFolder;
    QString m_commonFolder; // empty: the default one
    mutable std::unique_ptr<QelIniFile_IO> m_ini;
};
