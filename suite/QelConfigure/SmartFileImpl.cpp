#include "SmartFileImpl.h"

#include "DataSearch.h"

#include <QFileInfo>

SmartFileImpl::SmartFileImpl(int fileType)
    : m_fileType(fileType)
{
}

SmartFileImpl::~SmartFileImpl() = default;

bool SmartFileImpl::FileOpen(int mode, const QString& name)
{
    m_mode = mode;
    m_name = name;
    m_loaded = false;
    m_file.FileClose();
    m_path = DataSearch::GetDataSearch().GetFullPath(m_fileType, name);
    if (m_path.isEmpty())
        return false;
    if (!QFileInfo::exists(m_path)) {
        // Bound to the path, so that FileSave() without a name creates the file.
        m_file.FileOpen(m_path, mode | FileObject::OPEN_CREATE);
        return false;
    }
    m_loaded = m_file.FileOpen(m_path, mode | FileObject::OPEN_READ);
    return m_loaded;
}

void SmartFileImpl::FileClose()
{
    m_file.FileClose();
    m_loaded = false;
}

bool SmartFileImpl::FileSave(int mode, const QString& name)
{
    // Files of the suite are written whole, whatever the mode asks for.
    Q_UNUSED(mode);
    const QString path = name.isEmpty() ? m_path
                                        : DataSearch::GetDataSearch().GetFullPath(m_fileType, name);
    if (path.isEmpty() || !m_file.FileSave(path))
        return false;
    m_path = path;
    if (!name.isEmpty())
        m_name = name;
    return true;
}

FileObject& SmartFileImpl::GetFileObject()
{
    return m_file;
}

const FileObject& SmartFileImpl::GetFileObject() const
{
    return m_file;
}

QString SmartFileImpl::GetPathName() const
{
    return m_path;
}

QString SmartFileImpl::GetName() const
{
    return m_name;
}

int SmartFileImpl::GetFileType() const
{
    return m_fileType;
}

int SmartFileImpl::GetMode() const
{
    return m_mode;
}

bool SmartFileImpl::IsLoaded() const
{
    return m_loaded;
}
