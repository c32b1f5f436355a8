#pragma once
// A sectioned key/value text file that keeps everything it read: order, comments, duplicate
// keys and even lines it could not understand, so that a save loses nothing.
//
// Syntax (UTF-8, optional BOM, LF, CRLF or CR line ends):
//   [Section]          a section header; a name that appears twice is one section
//   key = value        an entry; blanks around key and value are trimmed, the value is
//                      everything after the first '='
//   ; text  or  # text a comment
// Entries before the first header belong to the unnamed section "". Section and key lookups
// are case-insensitive; names are kept as written. Other lines are kept but skipped by reads.
// Byte-order marks (U+FEFF) at the start of a line count as blanks.

#include "QelBase/QelBaseExport.h"
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QStringView>

class QELBASE_EXPORT FileObject
{
public:
    enum OpenFlags : int { OPEN_READ = 32, OPEN_CREATE = 64 };

    FileObject();
    virtual ~FileObject();
    FileObject(const FileObject&);
    FileObject& operator=(const FileObject&);

    // Reads the file at `path`, replacing the contents. A missing or unreadable file gives false
    // and an empty object; with OPEN_CREATE a missing file gives an empty object bound to `path`.
    bool FileOpen(const QString& path, int flags = OPEN_READ);
    // Writes atomically to `path` (empty: the path opened or saved last), creating the parent
    // folder; a failed write leaves the old file intact. Remembers the path on success.
    bool FileSave(const QString& path = QString());
    // Forgets the contents and the path.
    void FileClose();
    // The path the object was opened or saved with, empty when none.
    QString GetPathName() const;
    // True when the contents changed since the last open, load or save.
    bool IsModified() const;

    // Replaces the contents with `text` (file syntax); always takes the text. ToText gives it
    // back unchanged.
    bool LoadFromText(const QString& text);
    // The contents in file syntax, one line per entry, '\n' line ends.
    QString ToText() const;
    // Number of lines that were neither header, entry, comment nor blank (kept, never read).
    int MalformedLineCount() const;

    // True when the section has a header (for "": when it has entries).
    bool HasSection(const QString& section) const;
    // The sections in file order, as first written; "" first when it has entries.
    QStringList GetSections() const;
    // Adds an empty section at the end of the file; false when it exists already.
    bool AddSection(const QString& section);
    // Removes the section's headers, entries and the comments inside it; false when absent.
    bool RemoveSection(const QString& section);
    // True when the section holds at least one entry with the key.
    bool HasEntry(const QString& section, const QString& key) const;

    // Starts an iteration over the entries of `section` in file order, duplicates included;
    // false when it has none.
    bool GetFirstEntry(const QString& section, QString& key, QString& value);
    // The next entry of the iteration; false at the end (and every call after it).
    bool GetNextEntry(QString& key, QString& value);
    // All entries of the section in file order.
    QList<QPair<QString, QString>> GetEntries(const QString& section) const;
    // The values of every entry of the key in the section, in file order.
    QStringList GetValues(const QString& section, const QString& key) const;

    // Typed reads of the first entry of the key. Each returns false and leaves the out value
    // untouched when the key is missing or its value does not parse.
    bool GetString(const QString& section, const QString& key, QString& value) const;
    // Decimal with optional sign, or hexadecimal with a 0x prefix; must fit in an int.
    bool GetInt(const QString& section, const QString& key, int& value) const;
    // '.' as decimal point, optional exponent; finite values only.
    bool GetDouble(const QString& section, const QString& key, double& value) const;
    // 1/0, true/false, yes/no, on/off in any case.
    bool GetBool(const QString& section, const QString& key, bool& value) const;
    // Exactly three integers separated by blanks and/or commas.
    bool GetIntTriple(const QString& section, const QString& key, int& a, int& b, int& c) const;

    // Typed writes: replace the value of the first entry of the key in place, or append the
    // entry at the end of the section (created at the end of the file when missing). Newlines in
    // a value become blanks. A key that is empty or would not read back (contains '=' or starts
    // with '[', ';', '#' or a byte-order mark U+FEFF) is not written.
    void SetString(const QString& section, const QString& key, const QString& value);
    void SetInt(const QString& section, const QString& key, int value);
    // Shortest text that reads back to the same double.
    void SetDouble(const QString& section, const QString& key, double value);
    // Written as "1" or "0".
    void SetBool(const QString& section, const QString& key, bool value);
    // Written as "a b c".
    void SetIntTriple(const QString& section, const QString& key, int a, int b, int c);
    // Appends an entry at the end of the section even when the key exists.
    void AddEntry(const QString& section, const QString& key, const QString& value);
    // Replaces every entry of the key in the section by one entry per value, in order, where
    // the first of them stood (else at the end of the section); one pass, for long lists.
    void SetValues(const QString& section, const QString& key, const QStringList& values);
    // Removes every entry of the key in the section; false when there was none.
    bool RemoveEntry(const QString& section, const QString& key);

    // The value parsers and the number writer behind the typed reads and writes, for other
    // readers of the same text forms. The parsers leave `out` untouched on failure.
    static bool ParseInt(QStringView text, int& out);
    static bool ParseDouble(QStringView text, double& out);
    static bool ParseBool(QStringView text, bool& out);
    // Shortest text that reads back to the same double ("-0" keeps the sign of zero).
    static QString DoubleText(double value);

private:
    enum class LineKind { Blank, Comment, Header, Entry, Malformed };
    struct Line
    {
        LineKind kind = LineKind::Blank;
        int section = 0;       // index into m_sections
        QString raw;           // the text as read, or as it will be written
        QString key;           // Entry only
        QString value;         // Entry only
    };

    void parse(const QString& text);
    int sectionIndex(const QString& section) const;
    int ensureSection(const QString& section);
    int findFirstEntry(int section, const QString& key) const;
    int insertionPoint(int section) const;
    void insertEntry(int section, const QString& key, const QString& value);
    bool writeValue(const QString& section, const QString& key, const QString& value);
    static bool validKey(const QString& key);
    static QString entryText(const QString& key, const QString& value);

    QList<Line> m_lines;
    QStringList m_sections;    // index 0 is the unnamed section ""
    QString m_path;
    bool m_modified = false;
    bool m_crlf = false;       // line ends written back as read
    bool m_bom = false;
    int m_malformed = 0;

    QList<QPair<QString, QString>> m_iteration;
    qsizetype m_iterationPos = 0;
};
