#include "FileTypeCombo.h"

#include "DataSearch.h"

#include <QelSubscriber/SubscriptionManager.h>

#include <QDir>
#include <QLoggingCategory>

#include <algorithm>
#include <exception>

namespace {
Q_LOGGING_CATEGORY(lcFileTypeCombo, "qel.project")

// Case-insensitive order; names that differ only in case keep a fixed order among themselves.
bool NameLess(const QString& a, const QString& b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}
} // namespace

FileTypeCombo::FileTypeCombo(int fileType, QWidget* parent)
    : QComboBox(parent)
    , m_fileType(fileType)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    fill(QString());
    m_told = selectedName();
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_filling)
            announce();
    });
    SubscriptionManager::Instance().Subscribe(
        GeneralSubKeys::PROJECT,
        [this](int code, const QString&) {
            if (code != SubscriptionCodes::PROJECT_CHANGED)
                return;
            try {
                Refresh();
            } catch (const std::exception& error) {
                qCWarning(lcFileTypeCombo) << "reading the files again failed:" << error.what();
            } catch (...) {
                qCWarning(lcFileTypeCombo) << "reading the files again failed";
            }
        },
        this);
}

FileTypeCombo::~FileTypeCombo() = default;

QStringList FileTypeCombo::FileNames() const
{
    const DataSearch& search = DataSearch::GetDataSearch();
    QString description, extension, folder;
    int pathKind = 0;
    if (!search.GetFileTypeInfo(m_fileType, description, extension, pathKind)
        || extension.isEmpty() || !search.GetDataPathInfo(pathKind, folder))
        return {};
    QStringList names;
    const QStringList files =
        QDir(folder).entryList({QLatin1Char('*') + extension}, QDir::Files | QDir::Readable);
    const QDir dir(folder);
    for (const QString& file : files) {
        if (file.size() <= extension.size())
            continue;
        const QString name = file.chopped(extension.size());
        // The filter ignores case: list a "Name.CTB" only where "Name" opens it (the file
        // system ignores case too), as every name of the list must open its file.
        if (file.endsWith(extension) || dir.exists(name + extension))
            names.append(name);
    }
    std::sort(names.begin(), names.end(), NameLess);
    return names;
}

void FileTypeCombo::fill(const QString& keep)
{
    m_filling = true;
    clear();
    addItems(FileNames());
    const int index = keep.isEmpty() ? -1 : findName(keep);
    setCurrentIndex(index >= 0 ? index : (count() > 0 ? 0 : -1));
    m_filling = false;
}

int FileTypeCombo::findName(const QString& name) const
{
    // An exact match first: on most file systems "Deep" and "deep" are two files.
    const int exact = findText(name, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    return exact >= 0 ? exact : findText(name, Qt::MatchFixedString);
}

void FileTypeCombo::announce()
{
    const QString name = selectedName();
    if (name == m_told)
        return;
    m_told = name;
    Q_EMIT selectedNameChanged(name);
}

bool FileTypeCombo::SetSelected(const QString& name)
{
    if (name.isEmpty())
        return false;
    int index = findName(name);
    if (index < 0) {
        m_filling = true;
        index = 0;
        while (index < count() && NameLess(itemText(index), name))
            ++index;
        insertItem(index, name);
        m_filling = false;
    }
    setCurrentIndex(index);
    announce();
    return true;
}

bool FileTypeCombo::GetSelected(QString& name) const
{
    name = selectedName();
    return !name.isEmpty();
}

QString FileTypeCombo::selectedName() const
{
    return currentIndex() >= 0 ? itemText(currentIndex()) : QString();
}

void FileTypeCombo::Refresh()
{
    fill(selectedName());
    announce();
}

int FileTypeCombo::GetFileType() const
{
    return m_fileType;
}
