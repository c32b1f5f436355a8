#pragma once
// The one path through which the suite opens file dialogs, so that hosts and tests can
// intercept them: a request describes the dialog, RunFileDialog shows it (or hands it to the
// installed hook).

#include "QelConfigure/QelConfigureExport.h"
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace FileDialogFlags {
constexpr quint32 OFN_OVERWRITEPROMPT = 0x2;
constexpr quint32 OFN_HIDEREADONLY = 0x4;
constexpr quint32 OFN_ALLOWMULTISELECT = 0x200;
constexpr quint32 OFN_FILEMUSTEXIST = 0x1000;
constexpr quint32 OFN_EXPLORER = 0x80000;
} // namespace FileDialogFlags

struct QELCONFIGURE_EXPORT FileDialogRequest
{
    enum Mode : int { Open, Save, OpenMultiple };
    Mode mode = Open;
    QString title;
    QString directory;
    QString defaultName;
    QString defaultSuffix;  // without or with a leading '.'
    QString filter;         // "Text (*.x)|*.x|Other (*.y;*.z)|*.y;*.z||"
    quint32 flags = 0;      // FileDialogFlags
    QWidget* parent = nullptr;
};

// The Qt name filters of a suite filter text: "Bitmap File (*.bmp)|*.bmp||" gives
// {"Bitmap File (*.bmp)"}, a pattern list "*.jpg;*.jpeg" becomes "(*.jpg *.jpeg)". Malformed
// text (odd number of fields, empty description or pattern) gives an empty list.
QELCONFIGURE_EXPORT QStringList QtNameFilters(const QString& suiteFilter);

// Receives every request instead of the real dialog; fills `chosen` and returns true on OK.
using FileDialogHook = std::function<bool(const FileDialogRequest&, QStringList& chosen)>;

// Installs a hook (empty: the real dialog again).
QELCONFIGURE_EXPORT void SetFileDialogHook(FileDialogHook hook);

// Shows the dialog (a Qt file dialog that follows the application palette): overwrite prompt
// only with OFN_OVERWRITEPROMPT, existing files only in Open modes or with OFN_FILEMUSTEXIST,
// several files only in OpenMultiple. True on OK with at least one file, `chosen` holding the
// full paths; false (and `chosen` empty) on cancel.
QELCONFIGURE_EXPORT bool RunFileDialog(const FileDialogRequest& request, QStringList& chosen);
