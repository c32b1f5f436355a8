#include "QelBase/ColorTable.h"

#include <algorithm>
#include <cmath>

ColorTable::ColorTable() = default;
ColorTable::~ColorTable() = default;

int ColorTable::NumEntries() const { return int(m_entries.size()); }

double ColorTable::EntryValue(int index) const
{
    return index >= 0 && index < NumEntries() ? m_entries[size_t(index)].value : 0.0;
}

COLORREF ColorTable::EntryColor(int index) const
{
    return index >= 0 && index < NumEntries() ? m_entries[size_t(index)].color : 0;
}

bool ColorTable::EntryLocked(int index) const
{
    return index >= 0 && index < NumEntries() && m_entries[size_t(index)].locked;
}

QString ColorTable::EntryName(int index) const
{
    return index >= 0 && index < NumEntries() ? m_entries[size_t(index)].name : QString();
}

int ColorTable::NumLocked() const
{
    return int(std::count_if(m_entries.begin(), m_entries.end(), [](const Entry& e) { return e.locked; }));
}

int ColorTable::InsertEntry(double value, COLORREF color, bool locked)
{
    return AddEntry(value, color, locked, QString());
}

int ColorTable::AddEntry(double value, COLORREF color, bool locked, const QString& name)
{
    if (!std::isfinite(value))
        return -1;
    const auto at = std::upper_bound(m_entries.begin(), m_entries.end(), value,
                                     [](double v, const Entry& e) { return v < e.value; });
    const auto inserted = m_entries.insert(at, Entry { value, color, locked, name });
    return int(inserted - m_entries.begin());
}

bool ColorTable::RemoveEntry(int index)
{
    if (index < 0 || index >= NumEntries())
        return false;
    m_entries.erase(m_entries.begin() + index);
    return true;
}

bool ColorTable::SetEntryColor(int index, COLORREF color)
{
    if (index < 0 || index >= NumEntries())
        return false;
    m_entries[size_t(index)].color = color;
    return true;
}

void ColorTable::ClearEntries(bool keepLocked)
{
    if (!keepLocked) {
        m_entries.clear();
        return;
    }
    std::erase_if(m_entries, [](const Entry& e) { return !e.locked; });
}

COLORREF ColorTable::LowColor() const { return m_lowColor; }

void ColorTable::SetLowColor(COLORREF color) { m_lowColor = color; }

COLORREF ColorTable::GetColor(double value) const
{
    if (std::isnan(value))
        return m_lowColor;
    const auto after = std::upper_bound(m_entries.begin(), m_entries.end(), value,
                                        [](double v, const Entry& e) { return v < e.value; });
    return after == m_entries.begin() ? m_lowColor : std::prev(after)->color;
}

COLORREF ColorTable::GetContrastColor(COLORREF background)
{
    // Relative luminance with the sRGB weights; text is black on light backgrounds.
    const double luminance = 0.2126 * GetRValue(background) + 0.7152 * GetGValue(background)
                           + 0.0722 * GetBValue(background);
    return luminance >= 140.0 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}
