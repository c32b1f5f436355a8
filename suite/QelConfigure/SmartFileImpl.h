#pragma once
// A data file of the suite opened by type and name: the file's FileObject, its path, the mode
// it was opened with and whether it was read. The path is looked up through DataSearch when
// the file is opened, so a project switch between two opens is followed.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>
#include <QelBase/FileObject.h>

class QELCONFIGURE_EXPORT SmartFileImpl
{
public:
    // A file of data type `fileType` (DataSearch::FileType), not yet opened.
    explicit SmartFileImpl(int fileType);
    virtual ~SmartFileImpl();

    // Opens the file named `name` (a name of the type's folder, or a path) with FileObject's
    // flags; true and loaded when it was read. A missing file gives false and an empty object
    // bound to the path, so that a later save creates it.
    bool FileOpen(int mode, const QString& name);
    // Forgets the contents (the path and name stay for a following save).
    void FileClose();
    // Writes the object atomically to the file named `name` (empty: the one opened), creating
    // its folder; false, with the old file left whole, when the write fails.
    bool FileSave(int mode, const QString& name = QString());
    // The object the file was read into.
    FileObject& GetFileObject();
    const FileObject& GetFileObject() const;
    // The full path of the last open or save, its name as given, the data type, the open mode.
    QString GetPathName() const;
    QString GetName() const;
    int GetFileType() const;
    int GetMode() const;
    // True when the last open read the file.
    bool IsLoaded() const;

private:
    int m_fileType;
    int m_mode = 0;
    bool m_loaded = false;
    QString m_name;
    QString m_path;
    FileObject m_file;
};
