#include "FileDialogRequest.h"

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>

namespace {

FileDialogHook& Hook()
{
    static FileDialogHook hook;
    return hook;
}

} // namespace

QStringList QtNameFilters(const QString& suiteFilter)
{
    QStringList fields = suiteFilter.split(QLatin1Char('|'));
    while (!fields.isEmpty() && fields.last().trimmed().isEmpty())
        fields.removeLast();
    if (fields.isEmpty() || fields.size() % 2 != 0)
        return {};

    static const QRegularExpression trailingPatterns(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    QStringList filters;
    for (qsizetype i = 0; i < fields.size(); i += 2) {
        QString description = fields[i].trimmed();
        QStringList patterns;
        for (const QString& pattern : fields[i + 1].split(QLatin1Char(';'))) {
            const QString p = pattern.trimmed();
            if (p.contains(QLatin1Char('(')) || p.contains(QLatin1Char(')'))
                || p.contains(QLatin1Char(' ')))
                return {};
            if (!p.isEmpty())
                patterns.append(p);
        }
        if (description.isEmpty() || patterns.isEmpty())
            return {};
        description.remove(trailingPatterns);
        const QString list = QLatin1Char('(') + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
        filters.append(description.isEmpty() ? list : description + QLatin1Char(' ') + list);
    }
    return filters;
}

void SetFileDialogHook(FileDialogHook hook)
{
    Hook() = std::move(hook);
}

bool RunFileDialog(const FileDialogRequest& request, QStringList& chosen)
{
    using namespace FileDialogFlags;
    chosen.clear();
    // A copy, so that a hook may replace itself while it runs.
    if (const FileDialogHook hook = Hook()) {
        QStringList files;
        if (!hook(request, files) || files.isEmpty())
            return false;
        chosen = files;
        return true;
    }

    // Dialogs need a widget application; without one there is nothing to show.
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return false;

    QFileDialog dialog(request.parent, request.title, request.directory);
    dialog.setOption(QFileDialog::DontUseNativeDialog, true);
    const bool save = request.mode == FileDialogRequest::Save;
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (request.mode == FileDialogRequest::OpenMultiple)
        dialog.setFileMode(QFileDialog::ExistingFiles);
    else if (!save || (request.flags & OFN_FILEMUSTEXIST))
        dialog.setFileMode(QFileDialog::ExistingFile);
    else
        dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !(request.flags & OFN_OVERWRITEPROMPT));
    const QStringList filters = QtNameFilters(request.filter);
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    QString suffix = request.defaultSuffix.trimmed();
    if (suffix.startsWith(QLatin1Char('.')))
        suffix.remove(0, 1);
    // A suffix that is a filter text or a pattern would be appended verbatim: skip it.
    if (!suffix.isEmpty() && !suffix.contains(QRegularExpression(QStringLiteral("[|*?;() ]"))))
        dialog.setDefaultSuffix(suffix);
    if (!request.defaultName.isEmpty())
        dialog.selectFile(request.defaultName);

    if (dialog.exec() != QDialog::Accepted)
        return false;
    chosen = dialog.selectedFiles();
    return !chosen.isEmpty();
}
