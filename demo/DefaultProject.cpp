#include "DefaultProject.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {
const QString kResourceRoot = QStringLiteral(":/sample_project");

bool CopyTree(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    bool any = false;
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + source.mid(from.size());
        if (!QDir().mkpath(QFileInfo(target).absolutePath()) || !QFile::copy(source, target))
            return false;
        // Resources are read-only; the copies must be writable so that the project can be saved.
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        any = true;
    }
    return any;
}
} // namespace

DefaultProject::DefaultProject()
{
    m_valid = m_folder.isValid() && CopyTree(kResourceRoot, m_folder.path());
}

bool DefaultProject::IsValid() const { return m_valid; }

QString DefaultProject::ProjectsFolder() const { return m_folder.path(); }

QString DefaultProject::ProjectName() { return QStringLiteral("NorthSea"); }
