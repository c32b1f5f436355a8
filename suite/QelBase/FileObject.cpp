#include "FileObject.h"

#include "NumberText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <cmath>

namespace {

QString oneLine(const QString& text)
{
    QString result = text;
    result.replace(QLatin1String("\r\n"), QLatin1String(" "));
    result.replace(QLatin1Char('\r'), QLatin1Char(' '));
    result.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return result;
}

bool sameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The text without the blanks and byte-order marks (U+FEFF) that lead it. Marks are blanks at
// the start of a line: editors leave them there, and one at the start of the file is dropped
// on reading, so they must not change what a line means.
QStringView withoutLead(QStringView text)
{
    while (!text.isEmpty() && (text.front().isSpace() || text.front() == QChar(0xFEFF)))
        text = text.sliced(1);
    return text;
}

bool parseBool(QStringView text, bool& out)
{
    text = text.trimmed();
    static const char* const kTrue[] = {"1", "true", "yes", "on"};
    static const char* const kFalse[] = {"0", "false", "no", "off"};
    for (const char* word : kTrue) {
        if (text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0) {
            out = true;
            return true;
        }
    }
    for (const char* word : kFalse) {
        if (text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0) {
            out = false;
            return true;
        }
    }
    return false;
}

} // namespace

FileObject::FileObject()
{
    m_sections.append(QString());
}

FileObject::~FileObject() = default;
FileObject::FileObject(const FileObject&) = default;
FileObject& FileObject::operator=(const FileObject&) = default;

bool FileObject::FileOpen(const QString& path, int flags)
{
    FileClose();
    if (path.isEmpty())
        return false;
    QFile file(path);
    if (!file.exists()) {
        if (flags & OPEN_CREATE) {
            m_path = path;
            return true;
        }
        return false;
    }
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        FileClose();
        return false;
    }
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        m_bom = true;
        bytes.remove(0, 3);
    }
    const qsizetype nl = bytes.indexOf('\n');
    const qsizetype cr = bytes.indexOf('\r');
    m_crlf = cr >= 0 && nl == cr + 1;
    // Only the one mark taken off above is the file's; QString::fromUtf8 would drop another.
    // Stateless: a character cut off at the end of the file reads as U+FFFD, not as nothing.
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
    parse(utf8(bytes));
    m_path = path;
    return true;
}

bool FileObject::FileSave(const QString& path)
{
    const QString target = path.isEmpty() ? m_path : path;
    if (target.isEmpty())
        return false;
    const QFileInfo info(target);
    if (info.isDir())
        return false;
    if (!QDir().mkpath(info.absolutePath()))
        return false;

    QString text = ToText();
    if (m_crlf)
        text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QByteArray bytes = text.toUtf8();
    if (m_bom)
        bytes.prepend("\xEF\xBB\xBF");

    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return false;
    }
    if (!file.commit())
        return false;
    m_path = target;
    m_modified = false;
    return true;
}

void FileObject::FileClose()
{
    m_lines.clear();
    m_sections = QStringList{QString()};
    m_path.clear();
    m_modified = false;
    m_crlf = false;
    m_bom = false;
    m_malformed = 0;
    m_iteration.clear();
    m_iterationPos = 0;
}

QString FileObject::GetPathName() const
{
    return m_path;
}

bool FileObject::IsModified() const
{
    return m_modified;
}

bool FileObject::LoadFromText(const QString& text)
{
    m_lines.clear();
    m_sections = QStringList{QString()};
    m_iteration.clear();
    m_iterationPos = 0;
    parse(text); // a leading U+FEFF stays in the text, where it counts as a blank
    m_modified = false;
    return true;
}

void FileObject::parse(const QString& text)
{
    m_malformed = 0;
    QStringList rows = text.split(QRegularExpression(QStringLiteral("\r\n|\r|\n")));
    if (!rows.isEmpty() && rows.last().isEmpty())
        rows.removeLast();   // the final line end does not start another line
    m_lines.reserve(rows.size());
    int section = 0;
    for (const QString& row : std::as_const(rows)) {
        Line line;
        line.raw = row;
        const QString trimmed = withoutLead(row).trimmed().toString();
        if (trimmed.isEmpty()) {
            line.kind = LineKind::Blank;
        } else if (trimmed.startsWith(QLatin1Char(';')) || trimmed.startsWith(QLatin1Char('#'))) {
            line.kind = LineKind::Comment;
        } else if (trimmed.startsWith(QLatin1Char('[')) && trimmed.endsWith(QLatin1Char(']'))) {
            line.kind = LineKind::Header;
            section = ensureSection(trimmed.mid(1, trimmed.size() - 2).trimmed());
        } else {
            const qsizetype eq = row.indexOf(QLatin1Char('='));
            const QString key = eq < 0 ? QString() : withoutLead(QStringView(row).left(eq)).trimmed().toString();
            if (key.isEmpty()) {
                line.kind = LineKind::Malformed;
                ++m_malformed;
            } else {
                line.kind = LineKind::Entry;
                line.key = key;
                line.value = row.mid(eq + 1).trimmed();
            }
        }
        line.section = section;
        m_lines.append(line);
    }
}

QString FileObject::ToText() const
{
    QString text;
    for (const Line& line : m_lines) {
        text += line.raw;
        text += QLatin1Char('\n');
    }
    return text;
}

int FileObject::MalformedLineCount() const
{
    return m_malformed;
}

int FileObject::sectionIndex(const QString& section) const
{
    const QString name = section.trimmed();
    for (int i = 0; i < m_sections.size(); ++i) {
        if (sameName(m_sections[i], name))
            return i;
    }
    return -1;
}

int FileObject::ensureSection(const QString& section)
{
    const int index = sectionIndex(section);
    if (index >= 0)
        return index;
    m_sections.append(section.trimmed());
    return int(m_sections.size()) - 1;
}

bool FileObject::HasSection(const QString& section) const
{
    const int index = sectionIndex(section);
    if (index < 0)
        return false;
    const LineKind wanted = index == 0 ? LineKind::Entry : LineKind::Header;
    for (const Line& line : m_lines) {
        if (line.section == index && (line.kind == wanted || line.kind == LineKind::Header))
            return true;
    }
    return false;
}

QStringList FileObject::GetSections() const
{
    // One pass: a named section shows by its header, the unnamed one by its entries.
    QList<bool> present(m_sections.size(), false);
    for (const Line& line : m_lines) {
        if (line.kind == LineKind::Header || (line.kind == LineKind::Entry && line.section == 0))
            present[line.section] = true;
    }
    QStringList names;
    for (int i = 0; i < m_sections.size(); ++i) {
        if (present[i])
            names.append(m_sections[i]);
    }
    return names;
}

bool FileObject::AddSection(const QString& section)
{
    const QString name = oneLine(section).trimmed();
    if (name.isEmpty() || HasSection(name))
        return false;
    const int index = ensureSection(name);
    if (!m_lines.isEmpty() && m_lines.last().kind != LineKind::Blank) {
        Line blank;
        blank.section = m_lines.last().section;
        m_lines.append(blank);
    }
    Line header;
    header.kind = LineKind::Header;
    header.section = index;
    header.raw = QLatin1Char('[') + m_sections[index] + QLatin1Char(']');
    m_lines.append(header);
    m_modified = true;
    return true;
}

bool FileObject::RemoveSection(const QString& section)
{
    const int index = sectionIndex(section);
    if (index < 0 || !HasSection(section))
        return false;
    const qsizetype before = m_lines.size();
    m_lines.removeIf([index](const Line& line) { return line.section == index; });
    const bool removed = m_lines.size() != before;
    if (index > 0) {
        m_sections.removeAt(index);
        for (Line& line : m_lines) {
            if (line.section > index)
                --line.section;
        }
    }
    m_malformed = 0;
    for (const Line& line : std::as_const(m_lines))
        m_malformed += line.kind == LineKind::Malformed ? 1 : 0;
    if (removed)
        m_modified = true;
    return removed;
}

int FileObject::findFirstEntry(int section, const QString& key) const
{
    if (section < 0)
        return -1;
    const QString name = key.trimmed();
    for (int i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        if (line.kind == LineKind::Entry && line.section == section && sameName(line.key, name))
            return i;
    }
    return -1;
}

bool FileObject::HasEntry(const QString& section, const QString& key) const
{
    return findFirstEntry(sectionIndex(section), key) >= 0;
}

bool FileObject::GetFirstEntry(const QString& section, QString& key, QString& value)
{
    m_iteration = GetEntries(section);
    m_iterationPos = 0;
    return GetNextEntry(key, value);
}

bool FileObject::GetNextEntry(QString& key, QString& value)
{
    if (m_iterationPos >= m_iteration.size())
        return false;
    key = m_iteration[m_iterationPos].first;
    value = m_iteration[m_iterationPos].second;
    ++m_iterationPos;
    return true;
}

QList<QPair<QString, QString>> FileObject::GetEntries(const QString& section) const
{
    QList<QPair<QString, QString>> entries;
    const int index = sectionIndex(section);
    if (index < 0)
        return entries;
    for (const Line& line : m_lines) {
        if (line.kind == LineKind::Entry && line.section == index)
            entries.append({line.key, line.value});
    }
    return entries;
}

QStringList FileObject::GetValues(const QString& section, const QString& key) const
{
    QStringList values;
    const int index = sectionIndex(section);
    if (index < 0)
        return values;
    const QString name = key.trimmed();
    for (const Line& line : m_lines) {
        if (line.kind == LineKind::Entry && line.section == index && sameName(line.key, name))
            values.append(line.value);
    }
    return values;
}

bool FileObject::GetString(const QString& section, const QString& key, QString& value) const
{
    const int at = findFirstEntry(sectionIndex(section), key);
    if (at < 0)
        return false;
    value = m_lines[at].value;
    return true;
}

bool FileObject::GetInt(const QString& section, const QString& key, int& value) const
{
    QString text;
    return GetString(section, key, text) && ParseInt(text, value);
}

bool FileObject::GetDouble(const QString& section, const QString& key, double& value) const
{
    QString text;
    return GetString(section, key, text) && ParseDouble(text, value);
}

bool FileObject::GetBool(const QString& section, const QString& key, bool& value) const
{
    QString text;
    return GetString(section, key, text) && ParseBool(text, value);
}

bool FileObject::GetIntTriple(const QString& section, const QString& key, int& a, int& b,
                              int& c) const
{
    QString text;
    if (!GetString(section, key, text))
        return false;
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    const QStringList parts = text.split(separators, Qt::SkipEmptyParts);
    if (parts.size() != 3)
        return false;
    int values[3] = {0, 0, 0};
    for (int i = 0; i < 3; ++i) {
        if (!ParseInt(parts[i], values[i]))
            return false;
    }
    a = values[0];
    b = values[1];
    c = values[2];
    return true;
}

bool FileObject::validKey(const QString& key)
{
    const QString name = key.trimmed();
    return !name.isEmpty() && !name.contains(QLatin1Char('=')) && !name.contains(QLatin1Char('\n'))
        && !name.contains(QLatin1Char('\r')) && !name.startsWith(QLatin1Char('['))
        && !name.startsWith(QLatin1Char(';')) && !name.startsWith(QLatin1Char('#'))
        && !name.startsWith(QChar(0xFEFF)); // a mark leading a line reads as a blank
}

QString FileObject::entryText(const QString& key, const QString& value)
{
    return key + QLatin1Char('=') + value;
}

int FileObject::insertionPoint(int section) const
{
    // After the section's last entry; in a section without entries after its header and the
    // comments that follow it; trailing blank lines stay between sections.
    int lastEntry = -1;
    int lastOther = -1;
    for (int i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        if (line.section != section)
            continue;
        if (line.kind == LineKind::Entry)
            lastEntry = i;
        else if (line.kind != LineKind::Blank)
            lastOther = i;
    }
    if (lastEntry >= 0)
        return lastEntry + 1;
    if (lastOther >= 0)
        return lastOther + 1;
    return section == 0 ? 0 : -1;   // a named section without a header
}

void FileObject::insertEntry(int section, const QString& key, const QString& value)
{
    Line line;
    line.kind = LineKind::Entry;
    line.section = section;
    line.key = key.trimmed();
    line.value = oneLine(value).trimmed();
    line.raw = entryText(line.key, line.value);
    int at = insertionPoint(section);
    if (at < 0) {
        AddSection(m_sections[section]);
        at = int(m_lines.size());
    }
    m_lines.insert(at, line);
    m_modified = true;
}

bool FileObject::writeValue(const QString& section, const QString& key, const QString& value)
{
    if (!validKey(key))
        return false;
    const QString name = oneLine(section).trimmed();
    const int index = ensureSection(name);
    const int at = findFirstEntry(index, key);
    if (at < 0) {
        insertEntry(index, key, value);
        return true;
    }
    Line& line = m_lines[at];
    const QString text = oneLine(value).trimmed();
    if (line.value != text) {
        line.value = text;
        line.raw = entryText(line.key, line.value);
        m_modified = true;
    }
    return true;
}

void FileObject::SetString(const QString& section, const QString& key, const QString& value)
{
    writeValue(section, key, value);
}

void FileObject::SetInt(const QString& section, const QString& key, int value)
{
    writeValue(section, key, QString::number(value));
}

void FileObject::SetDouble(const QString& section, const QString& key, double value)
{
    writeValue(section, key, DoubleText(value));
}

void FileObject::SetBool(const QString& section, const QString& key, bool value)
{
    writeValue(section, key, value ? QStringLiteral("1") : QStringLiteral("0"));
}

void FileObject::SetIntTriple(const QString& section, const QString& key, int a, int b, int c)
{
    writeValue(section, key, QStringLiteral("%1 %2 %3").arg(a).arg(b).arg(c));
}

void FileObject::AddEntry(const QString& section, const QString& key, const QString& value)
{
    if (!validKey(key))
        return;
    insertEntry(ensureSection(oneLine(section).trimmed()), key, value);
}

void FileObject::SetValues(const QString& section, const QString& key, const QStringList& values)
{
    if (!validKey(key))
        return;
    const int index = ensureSection(oneLine(section).trimmed());
    const QString name = key.trimmed();
    const auto isKey = [&](const Line& line) {
        return line.kind == LineKind::Entry && line.section == index && sameName(line.key, name);
    };
    const auto first = std::find_if(m_lines.cbegin(), m_lines.cend(), isKey);
    qsizetype at = first - m_lines.cbegin();
    if (first != m_lines.cend()) {
        m_lines.removeIf(isKey);
    } else {
        at = insertionPoint(index);
        if (at < 0) {
            AddSection(m_sections[index]);
            at = m_lines.size();
        }
    }
    QList<Line> lines;
    lines.reserve(m_lines.size() + values.size());
    lines.append(m_lines.mid(0, at));
    for (const QString& value : values) {
        Line line;
        line.kind = LineKind::Entry;
        line.section = index;
        line.key = name;
        line.value = oneLine(value).trimmed();
        line.raw = entryText(line.key, line.value);
        lines.append(std::move(line));
    }
    lines.append(m_lines.mid(at));
    m_lines = std::move(lines);
    m_modified = true;
}

bool FileObject::RemoveEntry(const QString& section, const QString& key)
{
    const int index = sectionIndex(section);
    if (index < 0)
        return false;
    const QString name = key.trimmed();
    const qsizetype before = m_lines.size();
    m_lines.removeIf([&](const Line& line) {
        return line.kind == LineKind::Entry && line.section == index && sameName(line.key, name);
    });
    if (m_lines.size() == before)
        return false;
    m_modified = true;
    return true;
}

bool FileObject::ParseInt(QStringView text, int& out)
{
    return TextToInt(text, out);
}

bool FileObject::ParseDouble(QStringView text, double& out)
{
    return TextToDouble(text, out);
}

bool FileObject::ParseBool(QStringView text, bool& out)
{
    return parseBool(text, out);
}

QString FileObject::DoubleText(double value)
{
    // Qt drops the sign of a negative zero; keep it so that the value reads back the same.
    if (value == 0.0 && std::signbit(value))
        return QStringLiteral("-0");
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}
