#include "FileTypeDialog.h"

#include "DataSearch.h"
#include "FileDialogRequest.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <climits>

FileTypeDialog::FileTypeDialog(unsigned fileType, bool save, QWidget* parent)
    : m_fileType(fileType)
    , m_save(save)
    , m_parent(parent)
{
}

bool FileTypeDialog::Go()
{
    using namespace FileDialogFlags;
    const DataSearch& search = DataSearch::GetDataSearch();
    QString description, extension;
    int pathKind = 0;
    if (m_fileType > unsigned(INT_MAX)
        || !search.GetFileTypeInfo(int(m_fileType), description, extension, pathKind))
        return false;

    FileDialogRequest request;
    request.mode = m_save ? FileDialogRequest::Save : FileDialogRequest::Open;
    request.title = m_save ? QCoreApplication::translate("FileTypeDialog", "Save %1").arg(description)
                           : QCoreApplication::translate("FileTypeDialog", "Open %1").arg(description);
    search.GetDataPathInfo(pathKind, request.directory);
    const QString pattern = QLatin1Char('*') + extension;
    request.filter = description + QStringLiteral(" (") + pattern + QStringLiteral(")|") + pattern
        + QStringLiteral("||");
    request.defaultSuffix = extension;
    if (m_save) {
        QString name;
        if (search.GetDefaultFileName(int(m_fileType), name))
            request.defaultName = name + extension;
        request.flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
    } else {
        request.flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
    }
    request.parent = m_parent;

    QStringList chosen;
    if (!RunFileDialog(request, chosen))
        return false;
    m_path = chosen.first();
    return true;
}

QString FileTypeDialog::GetPathName() const
{
    return m_path;
}

QString FileTypeDialog::GetFileTitle() const
{
    return m_path.isEmpty() ? QString() : QFileInfo(m_path).completeBaseName();
}
