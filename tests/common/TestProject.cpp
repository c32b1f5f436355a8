#include "TestProject.h"

#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelIniFile_IO.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace {

bool CopyTree(const QString& from, const QString& to)
{
    if (!QDir().mkpath(to))
        return false;
    QDirIterator it(from, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    const QDir source(from);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString target = to + QLatin1Char('/') + source.relativeFilePath(path);
        if (it.fileInfo().isDir()) {
            if (!QDir().mkpath(target))
                return false;
        } else if (!QFile::copy(path, target)) {
            return false;
        }
    }
    return true;
}

} // namespace

TestProject::TestProject()
{
    if (!m_dir.isValid() || !CopyTree(QStringLiteral(QEL_SAMPLES_DIR), ProjectsFolder()))
        return;
    DataSearch& search = DataSearch::GetDataSearch();
    search.SetIniFile(std::make_unique<QelIniFile_IO>(SettingsFile()));
    m_open = search.Open(ProjectsFolder(), QStringLiteral("NorthSea"));
}

TestProject::~TestProject()
{
    DataSearch& search = DataSearch::GetDataSearch();
    search.Close();
    search.SetIniFile(nullptr);
}

ProjectDefinition* TestProject::Project() const
{
    return m_open ? DataSearch::GetDataSearch().GetProjectDefinition() : nullptr;
}
