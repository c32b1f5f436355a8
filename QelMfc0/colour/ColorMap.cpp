#include "QelMfc0/colour/ColorMap.h"

#include <QelBase/FileObject.h>
#include <QelMfc0/colour/ApplicationPalette.h>
#include <algorithm>

namespace {
// Reads one integer the way "%d" does: blanks, an optional sign, at least one digit; text
// after the digits is ignored. Values beyond 32 bits are refused.
bool ReadInteger(QStringView text, qsizetype& pos, qint64& value)
{
    while (pos < text.size() && text[pos].isSpace())
        ++pos;
    bool negative = false;
    if (pos < text.size() && (text[pos] == QLatin1Char('-') || text[pos] == QLatin1Char('+')))
        negative = text[pos++] == QLatin1Char('-');
    const qsizetype first = pos;
    qint64 magnitude = 0;
    while (pos < text.size() && text[pos] >= QLatin1Char('0') && text[pos] <= QLatin1Char('9')) {
        magnitude = magnitude * 10 + (text[pos].unicode() - '0');
        if (magnitude > 0xFFFFFFFFLL)
            return false;
        ++pos;
    }
    if (pos == first)
        return false;
    value = negative ? -magnitude : magnitude;
    return value >= -0x80000000LL;
}

bool ReadColorref(const QString& text, COLORREF& color)
{
    qsizetype pos = 0;
    qint64 value = 0;
    if (!ReadInteger(text, pos, value))
        return false;
    color = COLORREF(quint32(value));
    return true;
}

bool ReadRgb(const QString& text, COLORREF& color)
{
    qsizetype pos = 0;
    qint64 rgb[3] = {};
    for (qint64& channel : rgb)
        if (!ReadInteger(text, pos, channel))
            return false;
    color = RGB(int(rgb[0] & 0xFF), int(rgb[1] & 0xFF), int(rgb[2] & 0xFF));
    return true;
}
} // namespace

ColorMap::ColorMap()
    : m_systemColors(ApplicationPalette::SystemColorsOf(ApplicationPalette::OriginalPalette()))
{
}

ColorMap::~ColorMap() = default;

void ColorMap::Load(const FileObject& file)
{
    Clear();
    for (const auto& [key, value] : file.GetEntries(kQelColorsSection)) {
        COLORREF from = 0, to = 0;
        if (!ReadColorref(key, from) || !ReadColorref(value, to))
            continue;
        const auto at = std::lower_bound(m_substitutions.begin(), m_substitutions.end(), from,
                                         [](const auto& entry, COLORREF c) { return entry.first < c; });
        if (at != m_substitutions.end() && at->first == from)
            continue; // the first entry of a colour wins
        m_substitutions.insert(at, { from, to });
    }
    RebuildFilter();
    for (const auto& [name, value] : file.GetEntries(kWinColorsSection)) {
        COLORREF color = 0;
        if (ReadRgb(value, color))
            m_fileColors.Set(name, color); // unknown names are refused; a later entry wins
    }
}

void ColorMap::Clear()
{
    m_substitutions.clear();
    m_fileColors.Clear();
    RebuildFilter();
}

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
