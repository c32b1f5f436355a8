#include "QelMfc0/colour/ColorMap.h"

#include <QCoreApplication>
#include <QelBase/FileObject.h>
#include <QelBase/NumberText.h>
#include <QelMfc0/colour/ApplicationPalette.h>
#include <algorithm>

namespace {
// Reads one integer the way "%d" does: blanks, an optional sign, at least one digit; pos ends
// after the digits. Values beyond 32 bits are refused.
bool ReadInteger(QStringView text, qsizetype& pos, qint64& value)
{
    while (pos < text.size() && text[pos].isSpace())
        ++pos;
    DecimalSyntax integer;
    integer.exponent = false;
    integer.point = 0;
    const DecimalScan scan = ScanDecimal(text.sliced(pos), integer);
    if (scan.length == 0 || !(scan.value >= -2147483648.0 && scan.value <= 4294967295.0))
        return false;
    pos += scan.length;
    value = qint64(scan.value);
    return true;
}

bool OnlyBlanksFrom(QStringView text, qsizetype pos)
{
    return text.sliced(pos).trimmed().isEmpty();
}
} // namespace

ColorMap::ColorMap()
    : m_systemColors(ApplicationPalette::CurrentSystemColors())
{
}

ColorMap::~ColorMap() = default;

QString ColorMap::StripComment(const QString& value)
{
    qsizetype end = value.size();
    for (const QChar mark : { QLatin1Char(';'), QLatin1Char('#') }) {
        const qsizetype at = value.indexOf(mark);
        if (at >= 0 && at < end)
            end = at;
    }
    return value.left(end).trimmed();
}

QString ColorMap::EntryError(const QString& section, const QString& key, const QString& value,
                             const QString& problem)
{
    return QStringLiteral("[%1] %2 = %3: %4").arg(section, key, value, problem);
}

void ColorMap::Load(const FileObject& file)
{
    Clear();
    for (const auto& entry : file.GetEntries(kQelColorsSection)) {
        const QString& key = entry.first;
        const QString value = StripComment(entry.second);
        const auto report = [&](const char* problem) {
            m_errors.append(EntryError(kQelColorsSection, key, value, QCoreApplication::translate("ColorMap", problem)));
        };
        qsizetype keyEnd = 0, valueEnd = 0;
        qint64 from = 0, to = 0;
        if (!ReadInteger(key, keyEnd, from)) {
            report(QT_TRANSLATE_NOOP("ColorMap", "the colour to replace is no 32-bit number; entry skipped"));
            continue;
        }
        if (!ReadInteger(value, valueEnd, to)) {
            report(QT_TRANSLATE_NOOP("ColorMap", "the replacement is no 32-bit number; entry skipped"));
            continue;
        }
        if (!OnlyBlanksFrom(key, keyEnd) || !OnlyBlanksFrom(value, valueEnd))
            report(QT_TRANSLATE_NOOP("ColorMap", "text after a number is ignored"));
        const COLORREF color = COLORREF(quint32(from));
        const auto at = std::lower_bound(m_substitutions.begin(), m_substitutions.end(), color,
                                         [](const auto& entry, COLORREF c) { return entry.first < c; });
        if (at != m_substitutions.end() && at->first == color) {
            report(QT_TRANSLATE_NOOP("ColorMap", "the colour is listed earlier, whose entry is used"));
            continue;
        }
        m_substitutions.insert(at, { color, COLORREF(quint32(to)) });
    }
    RebuildFilter();

    for (const auto& entry : file.GetEntries(kWinColorsSection)) {
        const QString& name = entry.first;
        const QString value = StripComment(entry.second);
        const auto report = [&](const char* problem) {
            m_errors.append(EntryError(kWinColorsSection, name, value, QCoreApplication::translate("ColorMap", problem)));
        };
        if (WindowsColorMap::IndexOf(name) < 0) {
            report(QT_TRANSLATE_NOOP("ColorMap", "no system colour of that name; entry skipped"));
            continue;
        }
        qsizetype pos = 0;
        qint64 rgb[3] = {};
        if (!ReadInteger(value, pos, rgb[0]) || !ReadInteger(value, pos, rgb[1])
            || !ReadInteger(value, pos, rgb[2])) {
            report(QT_TRANSLATE_NOOP("ColorMap", "not three numbers red green blue; entry skipped"));
            continue;
        }
        if (!OnlyBlanksFrom(value, pos))
            report(QT_TRANSLATE_NOOP("ColorMap", "text after the third number is ignored"));
        if (std::any_of(std::begin(rgb), std::end(rgb), [](qint64 c) { return c < 0 || c > 255; }))
            report(QT_TRANSLATE_NOOP("ColorMap", "a component outside 0..255 is taken modulo 256"));
        COLORREF earlier = 0;
        if (m_fileColors.Get(name, earlier))
            report(QT_TRANSLATE_NOOP("ColorMap", "the name is listed earlier; this later entry is used"));
        m_fileColors.Set(name, RGB(int(rgb[0] & 0xFF), int(rgb[1] & 0xFF), int(rgb[2] & 0xFF)));
    }
}

void ColorMap::Clear()
{
    m_substitutions.clear();
    m_fileColors.Clear();
    m_errors.clear();
    RebuildFilter();
}

const QStringList& ColorMap::GetErrors() const { return m_errors; }

bool ColorMap::FindSorted(COLORREF color, COLORREF& substitute) const
{
    const auto at = std::lower_bound(m_substitutions.begin(), m_substitutions.end(), color,
                                     [](const auto& entry, COLORREF c) { return entry.first < c; });
    if (at == m_substitutions.end() || at->first != color)
        return false;
    substitute = at->second;
    return true;
}

void ColorMap::RebuildFilter()
{
    m_filter.fill(0);
    for (const auto& entry : m_substitutions) {
        const quint32 slot = FilterSlot(entry.first);
        m_filter[slot >> 6] |= quint64(1) << (slot & 63);
    }
}

int ColorMap::Count() const { return int(m_substitutions.size()); }

const std::vector<std::pair<COLORREF, COLORREF>>& ColorMap::Substitutions() const
{
    return m_substitutions;
}

const WindowsColorMap& ColorMap::GetSystemColors() const { return m_systemColors; }
const WindowsColorMap& ColorMap::GetFileColors() const { return m_fileColors; }
