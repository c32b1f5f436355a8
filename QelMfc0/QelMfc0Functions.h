#pragma once
// Free functions the library offers to the applications of the suite.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QStringList>

class QWidget;

// The kind of media file ShowMultimediaFileDlg asks for; any other value counts as MM_IMAGE.
enum MultiMediaType : int { MM_IMAGE = 0, MM_TIFF = 1, MM_VIDEO = 2, MM_IMPORT_IMAGE = 3 };

// Lets the user pick a file of a data type of the project; fills `path` and returns true on OK,
// leaves `path` untouched on cancel. `save` chooses a save dialog instead of an open dialog.
QELMFC0_EXPORT bool StartFileTypeDlg(unsigned int fileType, QString& path, bool save, QWidget* parent);

// Shows an error message to the user, modally.
QELMFC0_EXPORT void ShowErrorDlg(const QString& message, QWidget* parent);

// Lets the user pick a media file, named by default after the current local time. On OK the
// chosen folder becomes the project's multimedia folder and the project is saved; `open`
// non-zero asks for an existing file, zero for a file to write.
QELMFC0_EXPORT bool ShowMultimediaFileDlg(QString& path, QWidget* parent, MultiMediaType type, int open);

// Lets the user pick several existing files from the project's data folder with `filter`
// ("Text (*.x)|*.x||"); `files` is emptied first and holds the full paths in the dialog's order.
QELMFC0_EXPORT bool ShowMultiSelectionFileDlg(QStringList& files, QString filter, QWidget* parent);

// Replaces the unit placeholders %W %F %T %S %D %A in the texts of the dialog's direct children
// by the project's unit mnemonics (only the first occurrence of each in a text).
QELMFC0_EXPORT void SetDialogUnits(QWidget* dialog);
