// The library's file dialogs: data types of the project, media files, multi-selection.
#include "QelMfc0/QelMfc0Functions.h"
#include "QelMfc0/StringTable.h"

#include <QDateTime>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileDialogRequest.h>
#include <QelConfigure/FileTypeDialog.h>
#include <QelConfigure/ProjectDefinition.h>

namespace {
// Data folders of the project used as start folders.
constexpr int kProjectDataFolder = 2;
constexpr int kMultimediaFolder = 14;
// Saves the project definition's settings and options.
constexpr unsigned kProjectSaveFlags = 4113;

QString DataFolder(int kind)
{
    QString folder;
    DataSearch::GetDataSearch().GetDataPathInfo(kind, folder);
    return folder;
}

// Everything before the last folder separator of a path, either kind of slash.
QString FolderOf(const QString& path)
{
    const qsizetype slash = std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return slash < 0 ? QString() : path.left(slash);
}

QString MultimediaFilter(MultiMediaType type)
{
    using namespace QelStrings;
    switch (type) {
    case MM_TIFF:
        return LoadQelString(TIFF_FILE) + QStringLiteral(" (*.tif)|*.tif||");
    case MM_VIDEO:
        return LoadQelString(AUDIO_VIDEO_FILE) + QStringLiteral(" (*.avi)|*.avi||");
    case MM_IMPORT_IMAGE:
        return LoadQelString(JPEG_FILE) + QStringLiteral(" (*.jpg)|*.jpg|") + LoadQelString(TIFF_FILE)
             + QStringLiteral(" (*.tif)|*.tif||");
    case MM_IMAGE:
    default:
        return LoadQelString(JPEG_FILE) + QStringLiteral(" (*.jpg)|*.jpg|") + LoadQelString(BITMAP_FILE)
             + QStringLiteral(" (*.bmp)|*.bmp||");
    }
}
} // namespace

bool StartFileTypeDlg(unsigned int fileType, QString& path, bool save, QWidget* parent)
{
    FileTypeDialog dialog(fileType, save, parent);
    const bool chosen = dialog.Go();
    if (chosen)
        path = dialog.GetPathName();
    return chosen;
}

bool ShowMultimediaFileDlg(QString& path, QWidget* parent, MultiMediaType type, int open)
{
    using namespace FileDialogFlags;
    ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();

    FileDialogRequest request;
    request.mode = open ? FileDialogRequest::Open : FileDialogRequest::Save;
    request.parent = parent;
    request.defaultSuffix = QStringLiteral("jpg");
    request.defaultName = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    request.flags = open ? (OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_FILEMUSTEXIST)
                         : (OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    if (!project || !project->GetMultiMediaFilePath(request.directory) || request.directory.isEmpty())
        request.directory = DataFolder(kMultimediaFolder);
    if (type == MM_TIFF)
        request.directory = DataFolder(kProjectDataFolder);
    if (type == MM_IMPORT_IMAGE)
        request.title = LoadQelString(QelStrings::IMPORT_IMAGE_TITLE);
    request.filter = MultimediaFilter(type);

    QStringList chosen;
    if (!RunFileDialog(request, chosen) || chosen.isEmpty())
        return false;
    path = chosen.first();
    if (project) {
        // The folder is stored and the project saved even when the folder did not change.
        project->SetMultiMediaFilePath(FolderOf(path));
        project->FileSave(QString(), 0, kProjectSaveFlags);
    }
    return true;
}

bool ShowMultiSelectionFileDlg(QStringList& files, QString filter, QWidget* parent)
{
    using namespace FileDialogFlags;
    files.clear();
    FileDialogRequest request;
    request.mode = FileDialogRequest::OpenMultiple;
    request.parent = parent;
    request.flags = OFN_EXPLORER | OFN_ALLOWMULTISELECT | OFN_HIDEREADONLY;
    // The caller's filter is also handed over as the default extension: the dialog only uses a
    // default extension that is a plain suffix, so a filter text there changes nothing.
    request.filter = filter;
    request.defaultSuffix = filter;
    request.directory = DataFolder(kProjectDataFolder);

    QStringList chosen;
    if (!RunFileDialog(request, chosen))
        return false;
    files = chosen;
    return true;
}
