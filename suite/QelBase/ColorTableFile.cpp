#include "QelBase/ColorTableFile.h"

#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

const QString kSection = QStringLiteral("ColorTable");
const QString kDredgeSection = QStringLiteral("DredgeDiff");
const QString kEntryKey = QStringLiteral("Entry");
const QString kLowColorKey = QStringLiteral("LowColor");
const QString kLowColorNameKey = QStringLiteral("LowColorName");
const QString kVersionKey = QStringLiteral("Version");
const QString kLocked = QStringLiteral("locked");
const QString kUnlocked = QStringLiteral("unlocked");

QString problemText(const char* text)
{
    return QCoreApplication::translate("ColorTableFile", text);
}

QString lineError(const QString& section, const QString& key, const QString& value, const QString& problem)
{
    return QStringLiteral("[%1] %2 = %3: %4").arg(section, key, value, problem);
}

// Three integers 0..255 separated by blanks (or commas, in a key of its own) as a COLORREF.
bool parseColor(QStringView text, COLORREF& color)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    const QStringList parts = text.toString().split(separators, Qt::SkipEmptyParts);
    if (parts.size() != 3)
        return false;
    int rgb[3] = { 0, 0, 0 };
    for (int i = 0; i < 3; ++i) {
        if (!FileObject::ParseInt(parts[i], rgb[i]) || rgb[i] < 0 || rgb[i] > 255)
            return false;
    }
    color = RGB(rgb[0], rgb[1], rgb[2]);
    return true;
}

QString colorText(COLORREF color)
{
    return QStringLiteral("%1 %2 %3").arg(GetRValue(color)).arg(GetGValue(color)).arg(GetBValue(color));
}

bool parseLocked(QStringView text, bool& locked)
{
    const QStringView word = text.trimmed();
    if (word.isEmpty() || word.compare(kUnlocked, Qt::CaseInsensitive) == 0) {
        locked = false;
        return true;
    }
    if (word.compare(kLocked, Qt::CaseInsensitive) == 0) {
        locked = true;
        return true;
    }
    return FileObject::ParseBool(word, locked);
}

struct ReadEntry {
    ColorTable::Entry entry;
    qsizetype line = 0;
};

// One entry line: "value, r g b[, locked[, name]]"; the name is the rest of the line and may
// hold commas. Empty `problem` when it reads.
ReadEntry parseEntry(const QString& text, QString& problem)
{
    ReadEntry read;
    problem.clear();
    const QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() < 2) {
        problem = problemText(QT_TRANSLATE_NOOP("ColorTableFile", "an entry needs a value and a colour"));
        return read;
    }
    if (!FileObject::ParseDouble(fields[0], read.entry.value)) {
        problem = problemText(QT_TRANSLATE_NOOP("ColorTableFile", "the value is not a number"));
        return read;
    }
    if (!parseColor(fields[1], read.entry.color)) {
        problem = problemText(QT_TRANSLATE_NOOP("ColorTableFile", "the colour is not three numbers from 0 to 255"));
        return read;
    }
    if (fields.size() > 2 && !parseLocked(fields[2], read.entry.locked)) {
        problem = problemText(QT_TRANSLATE_NOOP("ColorTableFile", "the lock flag is not \"locked\" or \"unlocked\""));
        return read;
    }
    if (fields.size() > 3)
        read.entry.name = fields.mid(3).join(QLatin1Char(',')).trimmed();
    return read;
}

QString entryText(const ColorTable::Entry& entry)
{
    QString text = FileObject::DoubleText(entry.value) + QStringLiteral(", ") + colorText(entry.color);
    if (entry.locked || !entry.name.isEmpty())
        text += QStringLiteral(", ") + (entry.locked ? kLocked : kUnlocked);
    if (!entry.name.isEmpty())
        text += QStringLiteral(", ") + entry.name;
    return text;
}

struct DredgeRampKeys {
    const char* minColor;
    const char* maxColor;
    const char* count;
};
constexpr DredgeRampKeys kUnderKeys { "UnderMinColor", "UnderMaxColor", "UnderCount" };
constexpr DredgeRampKeys kInTolKeys { "InTolMinColor", "InTolMaxColor", "InTolCount" };
constexpr DredgeRampKeys kOverKeys { "OverMinColor", "OverMaxColor", "OverCount" };

} // namespace

bool ColorTableFile::Read(const FileObject& file, ColorTable& table, QStringList& errors)
{
    if (!file.HasSection(kSection))
        return false;

    QString text;
    if (file.GetString(kSection, kLowColorKey, text) && !parseColor(text, table.m_lowColor))
        errors << lineError(kSection, kLowColorKey, text,
                            problemText(QT_TRANSLATE_NOOP("ColorTableFile", "not three numbers from 0 to 255: the low colour stays white")));
    file.GetString(kSection, kLowColorNameKey, table.m_lowColorName);

    // Entries in file order; sorted afterwards, the first of each value kept.
    const QStringList lines = file.GetValues(kSection, kEntryKey);
    std::vector<ReadEntry> read;
    read.reserve(size_t(std::min<qsizetype>(lines.size(), ColorTable::kMaxEntries)));
    QString problem;
    bool overflow = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        ReadEntry entry = parseEntry(lines[i], problem);
        if (!problem.isEmpty()) {
            errors << lineError(kSection, kEntryKey, lines[i], problem);
            continue;
        }
        if (read.size() >= size_t(ColorTable::kMaxEntries)) {
            overflow = true;
            break;
        }
        entry.line = i;
        read.push_back(std::move(entry));
    }
    if (overflow)
        errors << lineError(kSection, kEntryKey, QStringLiteral("..."),
                            problemText(QT_TRANSLATE_NOOP("ColorTableFile", "more entries than a table holds (%1): the rest is skipped"))
                                .arg(ColorTable::kMaxEntries));
    const auto byValue = [](const ReadEntry& a, const ReadEntry& b) { return a.entry.value < b.entry.value; };
    if (!std::is_sorted(read.begin(), read.end(), byValue)) {
        std::stable_sort(read.begin(), read.end(), byValue);
        errors << lineError(kSection, kEntryKey, QStringLiteral("..."),
                            problemText(QT_TRANSLATE_NOOP("ColorTableFile", "the entries are not in ascending order: they are sorted")));
    }
    table.m_entries.reserve(read.size());
    for (ReadEntry& entry : read) {
        if (!table.m_entries.empty() && table.m_entries.back().value == entry.entry.value) {
            errors << lineError(kSection, kEntryKey, lines[entry.line],
                                problemText(QT_TRANSLATE_NOOP("ColorTableFile", "the value is listed before: the first entry is kept")));
            continue;
        }
        table.m_entries.push_back(std::move(entry.entry));
    }

    // The dredging-difference settings, each keeping its default when it does not read.
    if (file.HasSection(kDredgeSection)) {
        // One key read by `parse`, which changes its value only when the text reads.
        const auto read = [&](const char* key, const auto& parse, const char* problem) {
            QString raw;
            if (file.GetString(kDredgeSection, QLatin1String(key), raw) && !parse(raw))
                errors << lineError(kDredgeSection, QLatin1String(key), raw, problemText(problem));
        };
        const char* const unreadable = QT_TRANSLATE_NOOP("ColorTableFile", "does not read: the default is kept");
        const auto readBool = [&](const char* key, bool& value) {
            read(key, [&](const QString& raw) { return FileObject::ParseBool(raw, value); }, unreadable);
        };
        const auto readLimit = [&](const char* key, double& limit) {
            read(key, [&](const QString& raw) { return FileObject::ParseDouble(raw, limit); }, unreadable);
        };
        const auto readRamp = [&](const DredgeRampKeys& keys, ColorTable::Ramp& ramp) {
            read(keys.minColor, [&](const QString& raw) { return parseColor(raw, ramp.minColor); }, unreadable);
            read(keys.maxColor, [&](const QString& raw) { return parseColor(raw, ramp.maxColor); }, unreadable);
            read(keys.count, [&](const QString& raw) {
                int count = 0;
                if (!FileObject::ParseInt(raw, count) || count < 1 || count > 256)
                    return false;
                ramp.count = unsigned(count);
                return true;
            }, QT_TRANSLATE_NOOP("ColorTableFile", "not a count from 1 to 256: the default is kept"));
        };
        readBool("Table", table.m_dredgeDiff);
        readRamp(kUnderKeys, table.m_under);
        readRamp(kInTolKeys, table.m_inTol);
        readRamp(kOverKeys, table.m_over);
        readLimit("UnderLimit", table.m_underLimit);
        readLimit("OverLimit", table.m_overLimit);
        readBool("SyncWithDesignModel", table.m_syncWithDesignModel);
    }
    return true;
}

bool ColorTableFile::Write(const ColorTable& table, FileObject& file)
{
    file.RemoveSection(kSection);
    file.RemoveSection(kDredgeSection);
    file.AddSection(kSection);
    file.SetInt(kSection, kVersionKey, 1);
    file.SetString(kSection, kLowColorKey, colorText(table.m_lowColor));
    if (!table.m_lowColorName.isEmpty())
        file.SetString(kSection, kLowColorNameKey, table.m_lowColorName);
    QStringList entries;
    entries.reserve(qsizetype(table.m_entries.size()));
    for (const ColorTable::Entry& entry : table.m_entries)
        entries << entryText(entry);
    file.SetValues(kSection, kEntryKey, entries);

    // Dredging settings only where a table has them: plain tables stay one section.
    const ColorTable defaults;
    const auto sameRamp = [](const ColorTable::Ramp& a, const ColorTable::Ramp& b) {
        return a.minColor == b.minColor && a.maxColor == b.maxColor && a.count == b.count;
    };
    if (!table.m_dredgeDiff && !table.m_syncWithDesignModel && sameRamp(table.m_under, defaults.m_under)
        && sameRamp(table.m_inTol, defaults.m_inTol) && sameRamp(table.m_over, defaults.m_over)
        && table.m_underLimit == defaults.m_underLimit && table.m_overLimit == defaults.m_overLimit)
        return true;
    file.AddSection(kDredgeSection);
    file.SetBool(kDredgeSection, QStringLiteral("Table"), table.m_dredgeDiff);
    const auto writeRamp = [&file](const DredgeRampKeys& keys, const ColorTable::Ramp& ramp) {
        file.SetString(kDredgeSection, QLatin1String(keys.minColor), colorText(ramp.minColor));
        file.SetString(kDredgeSection, QLatin1String(keys.maxColor), colorText(ramp.maxColor));
        file.SetInt(kDredgeSection, QLatin1String(keys.count), int(ramp.count));
    };
    writeRamp(kUnderKeys, table.m_under);
    writeRamp(kInTolKeys, table.m_inTol);
    writeRamp(kOverKeys, table.m_over);
    file.SetDouble(kDredgeSection, QStringLiteral("UnderLimit"), table.m_underLimit);
    file.SetDouble(kDredgeSection, QStringLiteral("OverLimit"), table.m_overLimit);
    file.SetBool(kDredgeSection, QStringLiteral("SyncWithDesignModel"), table.m_syncWithDesignModel);
    return true;
}
