// The sectioned file reader and writer (FileObject). The input is a file, optionally followed by
// a NUL byte and a script of edits. Checked: a file opened from disk reads like the same text
// loaded directly; typed writes read back as written; the iteration sees what GetEntries sees;
// and after the edits, the text written (and the file saved and opened again) reads back to the
// same sections and entries.
#include "FuzzSupport.h"

#include <QelBase/FileObject.h>

#include <QFile>

#include <cmath>
#include <cstring>

namespace {

// Reads the edit script: bytes, short strings and numbers, zeros past its end.
class Script
{
public:
    explicit Script(const QByteArray& bytes) : m_bytes(bytes) {}
    bool AtEnd() const { return m_pos >= m_bytes.size(); }
    quint8 Byte() { return AtEnd() ? 0 : quint8(m_bytes[m_pos++]); }
    QString String()
    {
        const qsizetype length = Byte() % 24;
        const QByteArray text = m_bytes.mid(m_pos, length);
        m_pos += length;
        return QString::fromUtf8(text);
    }
    qint32 Int()
    {
        quint32 v = 0;
        for (int i = 0; i < 4; ++i)
            v = (v << 8) | Byte();
        return qint32(v);
    }
    double Double()
    {
        quint64 bits = 0;
        for (int i = 0; i < 8; ++i)
            bits = (bits << 8) | Byte();
        double v = 0.0;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    }

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
};

QString OneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

// The keys the writers take (see FileObject's typed writes).
bool WritableKey(const QString& key)
{
    const QString name = key.trimmed();
    return !name.isEmpty() && !name.contains(QLatin1Char('=')) && !name.contains(QLatin1Char('\n'))
        && !name.contains(QLatin1Char('\r')) && !name.startsWith(QLatin1Char('['))
        && !name.startsWith(QLatin1Char(';')) && !name.startsWith(QLatin1Char('#'))
        && !name.startsWith(QChar(0xFEFF));
}

void CheckSameContents(const FileObject& a, const FileObject& b, const char* what)
{
    const QStringList sections = a.GetSections();
    FUZZ_CHECK(b.GetSections() == sections, "%s: sections [%s] became [%s]", what,
               fuzz::Show(sections.join('|')).constData(), fuzz::Show(b.GetSections().join('|')).constData());
    for (const QString& section : sections)
        FUZZ_CHECK(b.GetEntries(section) == a.GetEntries(section), "%s: entries of [%s] differ", what,
                   fuzz::Show(section).constData());
    FUZZ_CHECK(b.MalformedLineCount() == a.MalformedLineCount(), "%s: %d malformed lines became %d", what,
               a.MalformedLineCount(), b.MalformedLineCount());
}

void CheckIteration(FileObject& file, const QString& section)
{
    const auto entries = file.GetEntries(section);
    QString key, value;
    bool more = file.GetFirstEntry(section, key, value);
    for (const auto& entry : entries) {
        FUZZ_CHECK(more && key == entry.first && value == entry.second);
        more = file.GetNextEntry(key, value);
    }
    FUZZ_CHECK(!more && !file.GetNextEntry(key, value));
}

void Edit(FileObject& file, Script& script)
{
    const int kind = script.Byte() % 10;
    const QString section = script.String();
    const QString key = script.String();
    const QString name = OneLine(section);   // the section as the writers name it
    const bool writable = WritableKey(key);
    switch (kind) {
    case 0: {
        const QString value = script.String();
        file.SetString(section, key, value);
        QString back;
        if (writable)
            FUZZ_CHECK(file.GetString(name, key, back) && back == OneLine(value).trimmed(),
                       "SetString [%s] %s = %s read back as %s", fuzz::Show(section).constData(),
                       fuzz::Show(key).constData(), fuzz::Show(value).constData(), fuzz::Show(back).constData());
        break;
    }
    case 1: {
        const int value = script.Int();
        file.SetInt(section, key, value);
        int back = 0;
        if (writable)
            FUZZ_CHECK(file.GetInt(name, key, back) && back == value, "SetInt %d read back as %d", value, back);
        break;
    }
    case 2: {
        const double value = script.Double();
        file.SetDouble(section, key, value);
        double back = 0.0;
        if (writable && std::isfinite(value))
            FUZZ_CHECK(file.GetDouble(name, key, back) && std::memcmp(&back, &value, sizeof value) == 0,
                       "SetDouble %.17g read back as %.17g", value, back);
        break;
    }
    case 3: {
        const bool value = script.Byte() & 1;
        file.SetBool(section, key, value);
        bool back = !value;
        if (writable)
            FUZZ_CHECK(file.GetBool(name, key, back) && back == value);
        break;
    }
    case 4: {
        const int a = script.Int(), b = script.Int(), c = script.Int();
        file.SetIntTriple(section, key, a, b, c);
        int x = 0, y = 0, z = 0;
        if (writable)
            FUZZ_CHECK(file.GetIntTriple(name, key, x, y, z) && x == a && y == b && z == c);
        break;
    }
    case 5: {
        const QString value = script.String();
        const int before = int(file.GetValues(name, key).size());
        file.AddEntry(section, key, value);
        const QStringList values = file.GetValues(name, key);
        if (writable)
            FUZZ_CHECK(values.size() == before + 1 && values.last() == OneLine(value).trimmed(),
                       "AddEntry [%s] %s = %s", fuzz::Show(section).constData(), fuzz::Show(key).constData(),
                       fuzz::Show(value).constData());
        break;
    }
    case 6: {
        const bool had = file.HasEntry(section, key);
        FUZZ_CHECK(file.RemoveEntry(section, key) == had);
        FUZZ_CHECK(!file.HasEntry(section, key) && file.GetValues(section, key).isEmpty());
        break;
    }
    case 7: {
        const bool had = file.HasSection(name.trimmed());
        const bool added = file.AddSection(section);
        FUZZ_CHECK(added == (!had && !name.trimmed().isEmpty()), "AddSection [%s]", fuzz::Show(section).constData());
        if (added)
            FUZZ_CHECK(file.HasSection(name) && file.GetSections().contains(name.trimmed(), Qt::CaseInsensitive));
        break;
    }
    case 8: {
        const bool had = file.HasSection(section);
        FUZZ_CHECK(file.RemoveSection(section) == had, "RemoveSection [%s]", fuzz::Show(section).constData());
        FUZZ_CHECK(!file.HasSection(section) && file.GetEntries(section).isEmpty(),
                   "[%s] is still there", fuzz::Show(section).constData());
        break;
    }
    default:
        CheckIteration(file, section);
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes, operations;
    fuzz::Split(data, size, bytes, operations);
    const QString input = fuzz::ScratchFolder() + QStringLiteral("/input.txt");
    const QString saved = fuzz::ScratchFolder() + QStringLiteral("/saved.txt");

    // From disk (byte-order mark and line ends detected) and from text alike.
    QFile raw(input);
    FUZZ_CHECK(raw.open(QIODevice::WriteOnly | QIODevice::Truncate) && raw.write(bytes) == bytes.size());
    raw.close();
    FileObject file;
    FUZZ_CHECK(file.FileOpen(input, FileObject::OPEN_READ));
    FileObject loaded;
    loaded.LoadFromText(QString::fromUtf8(bytes));
    CheckSameContents(file, loaded, "opened and loaded");
    FUZZ_CHECK(!file.IsModified());
    for (const QString& section : file.GetSections())
        CheckIteration(file, section);

    Script script(operations);
    for (int i = 0; i < 32 && !script.AtEnd(); ++i)
        Edit(file, script);

    FileObject reread;
    reread.LoadFromText(file.ToText());
    CheckSameContents(file, reread, "written as text and read again");
    FUZZ_CHECK(reread.ToText() == file.ToText());

    FUZZ_CHECK(file.FileSave(saved));
    FUZZ_CHECK(!file.IsModified() && file.GetPathName() == saved);
    FileObject reopened;
    FUZZ_CHECK(reopened.FileOpen(saved));
    CheckSameContents(file, reopened, "saved and opened again");
    return 0;
}
