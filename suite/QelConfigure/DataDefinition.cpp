#include "DataDefinition.h"

#include "DataInfo.h"
#include "DataSearch.h"

#include <QelBase/FileObject.h>
#include <QelBase/QelString.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const char* const kFileName = "DataDefinition.def";

QString Problem(const char* text)
{
    return QCoreApplication::translate("DataDefinition", text);
}

bool KnownFormat(int format)
{
    switch (format) {
    case DataDefinition::FORMAT_INT:
    case DataDefinition::FORMAT_DOUBLE:
    case DataDefinition::FORMAT_STRING:
    case DataDefinition::FORMAT_DEPTH:
    case DataDefinition::FORMAT_MAP_TEXT:
        return true;
    default:
        return false;
    }
}

// "<word> <number>" (the word in any case, blanks optional): the number, or false.
bool NumberedName(const QString& text, QLatin1String word, int& number)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.startsWith(word, Qt::CaseInsensitive))
        return false;
    return CDataInfo::ReadWholeNumber(QStringView(trimmed).mid(word.size()), number);
}

// What the process's definition was read from, to see when it has to be read again.
struct Source
{
    QString path;
    bool exists = false;
    QDateTime modified;
    qint64 size = -1;
    bool read = false;

    static Source Of(const QString& path)
    {
        Source source;
        source.path = path;
        source.read = true;
        if (path.isEmpty())
            return source;
        const QFileInfo info(path);
        source.exists = info.isFile();
        if (source.exists) {
            source.modified = info.lastModified();
            source.size = info.size();
        }
        return source;
    }

    bool operator==(const Source&) const = default;
};

} // namespace

DataDefinition::DataDefinition() = default;
DataDefinition::~DataDefinition() = default;

DataDefinition& DataDefinition::GetDataDefinition()
{
    static DataDefinition instance;
    static Source readFrom;
    const DataSearch& search = DataSearch::GetDataSearch();
    QString path;
    if (search.GetProjectDefinition() && search.GetDataPathInfo(DataSearch::PATH_COMMON, path))
        path += QLatin1Char('/') + QLatin1String(kFileName);
    else
        path.clear();
    // One look at the file per call: a project change or an edited file is read again.
    const Source now = Source::Of(path);
    if (now == readFrom)
        return instance;
    readFrom = now;
    instance.Clear();
    FileObject file;
    if (now.exists && file.FileOpen(path))
        instance.Load(file);
    return instance;
}

void DataDefinition::Clear()
{
    m_groups.clear();
    m_items.clear();
    m_errors.clear();
    m_loaded = false;
}

bool DataDefinition::Load(const FileObject& file)
{
    Clear();
    const auto report = [this](const QString& section, const QString& key, const QString& value,
                               const QString& problem) {
        m_errors.append(QStringLiteral("[%1] %2 = %3: %4").arg(section, key, value, problem));
    };
    const QLatin1String groupWord("Group");
    const QLatin1String itemWord("Item");
    const QLatin1String nameKey("Name");

    for (const QString& section : file.GetSections()) {
        int group = -1;
        const bool isGroup = NumberedName(section, groupWord, group);
        if (isGroup)
            m_groups.try_emplace(group, QString());
        for (const auto& [key, value] : file.GetEntries(section)) {
            if (!isGroup) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "the section is not a group (\"Group <number>\"): the entry is skipped")));
                continue;
            }
            if (key.compare(nameKey, Qt::CaseInsensitive) == 0) {
                QString& name = m_groups[group];
                if (name.isEmpty())
                    name = value;
                else
                    report(section, key, value,
                           Problem(QT_TRANSLATE_NOOP("DataDefinition", "the group is named before: the first name is kept")));
                continue;
            }
            int itemNumber = -1;
            if (!key.startsWith(itemWord, Qt::CaseInsensitive)) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "unknown key: the entry is skipped")));
                continue;
            }
            if (!NumberedName(key, itemWord, itemNumber)) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "the item number is not a whole number from 0 up: the item is skipped")));
                continue;
            }
            if (m_items.count({group, itemNumber}) != 0) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "the item is defined before: the first definition is kept")));
                continue;
            }
            CQelString fields(value, QLatin1Char(';'));
            // A closing ';' gives no text.
            while (fields.Size() > 2 && fields[fields.Size() - 1].isEmpty())
                fields.Erase(fields.Size() - 1);
            Item item;
            item.name = fields[0];
            if (item.name.isEmpty()) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "the item has no name: it is skipped")));
                continue;
            }
            if (!CDataInfo::ReadWholeNumber(fields[1], item.format) || !KnownFormat(item.format)) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "the format is not 1, 2, 3, 10 or 30: the item is skipped")));
                continue;
            }
            const QStringList texts = fields.Fields().mid(2);
            if (item.format == FORMAT_MAP_TEXT) {
                item.texts = texts;
                const qsizetype blank = texts.indexOf(QString());
                if (texts.isEmpty())
                    report(section, key, value,
                           Problem(QT_TRANSLATE_NOOP("DataDefinition", "an item of format 30 lists no texts")));
                else if (blank >= 0)
                    report(section, key, value,
                           Problem(QT_TRANSLATE_NOOP("DataDefinition", "value %1 has an empty text"))
                               .arg(blank));
            } else if (!texts.isEmpty()) {
                report(section, key, value,
                       Problem(QT_TRANSLATE_NOOP("DataDefinition", "texts belong to items of format 30 only: they are ignored")));
            }
            m_items.emplace(std::pair{group, itemNumber}, std::move(item));
        }
    }
    m_loaded = !m_groups.empty();
    return m_loaded;
}

bool DataDefinition::GetGroupItemFormat(int group, int item, int& format) const
{
    const auto found = m_items.find({group, item});
    if (found == m_items.end())
        return false;
    format = found->second.format;
    return true;
}

bool DataDefinition::GetGroupItemMapTxt(int group, int item, int index, QString& text) const
{
    const auto found = m_items.find({group, item});
    if (found == m_items.end() || found->second.format != FORMAT_MAP_TEXT || index < 0
        || index >= found->second.texts.size())
        return false;
    text = found->second.texts[index];
    return true;
}

QString DataDefinition::GetGroupItemName(int group, int item) const
{
    const auto found = m_items.find({group, item});
    return found == m_items.end() ? QString() : found->second.name;
}

QString DataDefinition::GetGroupName(int group) const
{
    const auto found = m_groups.find(group);
    return found == m_groups.end() ? QString() : found->second;
}

QStringList DataDefinition::Errors() const
{
    return m_errors;
}
