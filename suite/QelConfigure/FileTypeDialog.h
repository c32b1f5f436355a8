#pragma once
// A file dialog for one data type of DataSearch: the type's description and extension as the
// filter, its data folder as the start folder, an open or a save dialog. Shown through
// RunFileDialog, so hooks see it.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>

class QWidget;

class QELCONFIGURE_EXPORT FileTypeDialog
{
public:
    // A dialog for the data type `fileType`; `save` makes it a save dialog (overwrite prompt,
    // the type's default name offered), otherwise an open dialog for existing files.
    FileTypeDialog(unsigned fileType, bool save, QWidget* parent);

    // Shows the dialog; true when the user chose a file. False at once for an unknown type.
    bool Go();
    // The chosen file's full path; empty before a successful Go.
    QString GetPathName() const;
    // The chosen file's name without folder and extension.
    QString GetFileTitle() const;

private:
    unsigned m_fileType;
    bool m_save;
    QWidget* m_parent;
    QString m_path;
};
