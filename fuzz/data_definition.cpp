// The data-definition reader (DataDefinition::Load over a FileObject), the data identifier
// (CDataInfo::SetFromString) and the field splitter (CQelString). Checked: every item an entry
// defines is found with a known format and a trimmed name, only items of format 30 have texts
// (no more than the entry lists), each entry is reported at most once, an identifier that reads
// writes back as itself and one that does not stays as it was, and split fields are trimmed and
// join back to the same fields.
#include "FuzzSupport.h"

#include <QelBase/FileObject.h>
#include <QelBase/QelString.h>
#include <QelConfigure/DataDefinition.h>
#include <QelConfigure/DataInfo.h>

namespace {

bool KnownFormat(int format)
{
    return format == 1 || format == 2 || format == 3 || format == 10 || format == 30;
}

// "<word> <number>" as the reader takes section and item names.
bool Numbered(const QString& text, QLatin1String word, int& number)
{
    const QString trimmed = text.trimmed();
    return trimmed.startsWith(word, Qt::CaseInsensitive)
        && CDataInfo::ReadWholeNumber(QStringView(trimmed).mid(word.size()), number);
}

void CheckItem(const DataDefinition& definition, int group, int item, const QString& value)
{
    int format = -1;
    if (!definition.GetGroupItemFormat(group, item, format)) {
        // Not defined: the entry must have been unreadable.
        const CQelString fields(value, QLatin1Char(';'));
        int listed = -1;
        FUZZ_CHECK(fields[0].isEmpty() || !CDataInfo::ReadWholeNumber(fields[1], listed)
                       || !KnownFormat(listed),
                   "item %d,%d of %s not defined", group, item, fuzz::Show(value).constData());
        return;
    }
    FUZZ_CHECK(KnownFormat(format), "format %d", format);
    const QString name = definition.GetGroupItemName(group, item);
    FUZZ_CHECK(!name.isEmpty() && name == name.trimmed(), "name %s", fuzz::Show(name).constData());
    QString text;
    FUZZ_CHECK(!definition.GetGroupItemMapTxt(group, item, -1, text));
    int texts = 0;
    while (definition.GetGroupItemMapTxt(group, item, texts, text)) {
        FUZZ_CHECK(text == text.trimmed());
        ++texts;
    }
    FUZZ_CHECK(format == DataDefinition::FORMAT_MAP_TEXT || texts == 0, "%d texts of format %d", texts, format);
}

void CheckDefinition(const FileObject& file)
{
    DataDefinition definition;
    const bool any = definition.Load(file);
    qsizetype entries = 0;
    bool groups = false;
    for (const QString& section : file.GetSections()) {
        int group = -1;
        const bool isGroup = Numbered(section, QLatin1String("Group"), group);
        groups = groups || isGroup;
        const auto sectionEntries = file.GetEntries(section);
        entries += sectionEntries.size();
        for (const auto& [key, value] : sectionEntries) {
            int item = -1;
            if (isGroup && Numbered(key, QLatin1String("Item"), item))
                CheckItem(definition, group, item, value);
        }
    }
    FUZZ_CHECK(any == groups, "Load gave %d", int(any));
    FUZZ_CHECK(definition.Errors().size() <= entries, "%lld errors for %lld entries",
               qlonglong(definition.Errors().size()), qlonglong(entries));
    for (const QString& error : definition.Errors())
        FUZZ_CHECK(error.startsWith(QLatin1Char('[')), "%s", fuzz::Show(error).constData());
    definition.Clear();
    int format = 0;
    FUZZ_CHECK(definition.Errors().isEmpty() && !definition.GetGroupItemFormat(0, 0, format));
}

void CheckDataInfo(const QString& text)
{
    CDataInfo info(7, 8, 9);
    if (!info.SetFromString(text)) {
        FUZZ_CHECK(info.ToString() == QLatin1String("7,8,9"), "changed by %s", fuzz::Show(text).constData());
        return;
    }
    FUZZ_CHECK(info.IsValid());
    CDataInfo back;
    FUZZ_CHECK(back.SetFromString(info.ToString()) && back.ToString() == info.ToString());
}

void CheckFields(const QString& text)
{
    CQelString fields(text, QLatin1Char(','));
    FUZZ_CHECK(fields.Size() == (text.isEmpty() ? 0 : int(text.count(QLatin1Char(','))) + 1));
    for (const QString& field : fields.Fields())
        FUZZ_CHECK(field == field.trimmed());
    const QString joined = fields.Join(QLatin1Char(','));
    if (!joined.isEmpty())
        FUZZ_CHECK(CQelString(joined, QLatin1Char(',')).Fields() == fields.Fields());
    const int size = fields.Size();
    FUZZ_CHECK(!fields.Erase(size) && !fields.Erase(-1));
    if (size > 0)
        FUZZ_CHECK(fields.Erase(0) && fields.Size() == size - 1);
    FUZZ_CHECK(fields[fields.Size()].isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::Text(data, size);
    FileObject file;
    file.LoadFromText(text);
    CheckDefinition(file);
    CheckDataInfo(text);
    CheckFields(text);
    // Each value as the editors read sub-type attributes: the identifier after the first field.
    for (const QString& section : file.GetSections()) {
        for (const auto& [key, value] : file.GetEntries(section)) {
            CheckDataInfo(value);
            CQelString fields(value, QLatin1Char(','));
            fields.Erase(0);
            CheckDataInfo(fields.Join(QLatin1Char(',')));
        }
    }
    return 0;
}
