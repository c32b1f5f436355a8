#include "QelBase/ColorTable.h"

#include <QelBase/ColorTableFile.h>
#include <QelBase/FileObject.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

bool byValue(const ColorTable::Entry& entry, double value) { return entry.value < value; }

double lerp(double a, double b, double t) { return a + (b - a) * t; }

// The value k/n of the way from a to b, as (a (n - k) + b k) / n where that is finite: it
// lands exactly on the decimals a user expects (-0.1 rather than -0.09999999999999998).
double between(double a, double b, double k, double n)
{
    const double v = (a * (n - k) + b * k) / n;
    return std::isfinite(v) ? v : lerp(a, b, k / n);
}

int channelRound(double v) { return int(std::clamp(std::floor(v + 0.5), 0.0, 255.0)); }

COLORREF lerpRgb(COLORREF a, COLORREF b, double t)
{
    return RGB(channelRound(lerp(GetRValue(a), GetRValue(b), t)),
               channelRound(lerp(GetGValue(a), GetGValue(b), t)),
               channelRound(lerp(GetBValue(a), GetBValue(b), t)));
}

// The colours of a generated range, colour 0 the first end.
class ColorRamp
{
public:
    enum class Kind { hsv, rgb, rgb3 };
    ColorRamp(Kind kind, COLORREF first, COLORREF middle, COLORREF last)
        : m_kind(kind), m_first(first), m_middle(middle), m_last(last)
    {
        if (kind == Kind::hsv) {
            ColorTable::RGBtoHSV(first, m_h1, m_s1, m_v1);
            ColorTable::RGBtoHSV(last, m_h2, m_s2, m_v2);
            // A grey has no hue of its own: it takes the other end's, so that a ramp from
            // white to blue stays blue rather than running through the whole circle.
            if (m_s1 == 0.0)
                m_h1 = m_h2;
            if (m_s2 == 0.0)
                m_h2 = m_h1;
        }
    }

    // Colour `k` of `count` colours.
    COLORREF Color(size_t k, size_t count) const
    {
        const double t = count < 2 ? 1.0 : double(k) / double(count - 1);
        switch (m_kind) {
        case Kind::rgb:
            return lerpRgb(m_first, m_last, t);
        case Kind::rgb3:
            return t <= 0.5 ? lerpRgb(m_first, m_middle, 2.0 * t)
                            : lerpRgb(m_middle, m_last, 2.0 * t - 1.0);
        case Kind::hsv:
            break;
        }
        return ColorTable::HSVtoRGB(lerp(m_h1, m_h2, t), lerp(m_s1, m_s2, t), lerp(m_v1, m_v2, t));
    }

private:
    Kind m_kind;
    COLORREF m_first, m_middle, m_last;
    double m_h1 = 0, m_s1 = 0, m_v1 = 0, m_h2 = 0, m_s2 = 0, m_v2 = 0;
};

constexpr unsigned kMaxRampColors = 256;

unsigned rampCount(unsigned count) { return std::clamp(count, 1u, kMaxRampColors); }

// Colour i of a dredging ramp of n colours from `from` to `to` (a single colour is `to`).
COLORREF rampColor(COLORREF from, COLORREF to, unsigned i, unsigned n)
{
    return lerpRgb(from, to, n < 2 ? 1.0 : double(i) / double(n - 1));
}

} // namespace

ColorTable::ColorTable() = default;
ColorTable::~ColorTable() = default;
ColorTable::ColorTable(const ColorTable&) = default;
ColorTable& ColorTable::operator=(const ColorTable&) = default;

bool ColorTable::operator==(const ColorTable& other) const
{
    auto rampEqual = [](const Ramp& a, const Ramp& b) {
        return a.minColor == b.minColor && a.maxColor == b.maxColor && a.count == b.count;
    };
    return m_entries == other.m_entries && m_lowColor == other.m_lowColor
        && m_lowColorName == other.m_lowColorName && rampEqual(m_under, other.m_under)
        && rampEqual(m_inTol, other.m_inTol) && rampEqual(m_over, other.m_over)
        && m_underLimit == other.m_underLimit && m_overLimit == other.m_overLimit
        && m_syncWithDesignModel == other.m_syncWithDesignModel && m_dredgeDiff == other.m_dredgeDiff;
}

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

const std::vector<ColorTable::Entry>& ColorTable::Entries() const { return m_entries; }

int ColorTable::FindValue(double value) const
{
    const auto at = std::lower_bound(m_entries.begin(), m_entries.end(), value, byValue);
    return at != m_entries.end() && at->value == value ? int(at - m_entries.begin()) : -1;
}

int ColorTable::InsertEntry(double value, COLORREF color, bool locked)
{
    return AddEntry(value, color, locked, QString());
}

int ColorTable::AddEntry(double value, COLORREF color, bool locked, const QString& name)
{
    if (!std::isfinite(value))
        return -1;
    const auto at = std::lower_bound(m_entries.begin(), m_entries.end(), value, byValue);
    if (at != m_entries.end() && at->value == value) {
        *at = Entry { value, color, locked, name };
        return int(at - m_entries.begin());
    }
    if (NumEntries() >= kMaxEntries)
        return -1;
    // The insertion may move the entries: take the new begin only after it.
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

bool ColorTable::SetEntryName(int index, const QString& name)
{
    if (index < 0 || index >= NumEntries())
        return false;
    m_entries[size_t(index)].name = name;
    return true;
}

bool ColorTable::SetEntryLocked(int index, bool locked)
{
    if (index < 0 || index >= NumEntries())
        return false;
    m_entries[size_t(index)].locked = locked;
    return true;
}

void ColorTable::ClearEntries(bool includeLocked)
{
    if (includeLocked)
        m_entries.clear();
    else
        std::erase_if(m_entries, [](const Entry& e) { return !e.locked; });
}

COLORREF ColorTable::LowColor() const { return m_lowColor; }
void ColorTable::SetLowColor(COLORREF color) { m_lowColor = color & 0xFFFFFFu; }
QString ColorTable::LowColorName() const { return m_lowColorName; }
void ColorTable::SetLowColorName(const QString& name) { m_lowColorName = name; }

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

void ColorTable::RGBtoHSV(COLORREF color, double& hue, double& saturation, double& value)
{
    const double r = GetRValue(color) / 255.0, g = GetGValue(color) / 255.0, b = GetBValue(color) / 255.0;
    const double max = std::max({ r, g, b }), min = std::min({ r, g, b });
    const double delta = max - min;
    value = max;
    saturation = max > 0.0 ? delta / max : 0.0;
    if (delta <= 0.0) {
        hue = 0.0;
        return;
    }
    double h;
    if (max == r)
        h = (g - b) / delta;
    else if (max == g)
        h = 2.0 + (b - r) / delta;
    else
        h = 4.0 + (r - g) / delta;
    h *= 60.0;
    hue = h < 0.0 ? h + 360.0 : h;
}

COLORREF ColorTable::HSVtoRGB(double hue, double saturation, double value)
{
    if (!std::isfinite(hue))
        hue = 0.0;
    saturation = std::isnan(saturation) ? 0.0 : std::clamp(saturation, 0.0, 1.0);
    value = std::isnan(value) ? 0.0 : std::clamp(value, 0.0, 1.0);
    double h = std::fmod(hue, 360.0);
    if (h < 0.0)
        h += 360.0;
    h /= 60.0;
    const int sector = std::min(int(h), 5);
    const double f = h - sector;
    const double p = value * (1.0 - saturation);
    const double q = value * (1.0 - saturation * f);
    const double t = value * (1.0 - saturation * (1.0 - f));
    double r = value, g = t, b = p;
    switch (sector) {
    case 1: r = q; g = value; b = p; break;
    case 2: r = p; g = value; b = t; break;
    case 3: r = p; g = q; b = value; break;
    case 4: r = t; g = p; b = value; break;
    case 5: r = value; g = p; b = q; break;
    default: break;
    }
    return RGB(channelRound(r * 255.0), channelRound(g * 255.0), channelRound(b * 255.0));
}

bool ColorTable::Generate(double min, double max, int count, double step, bool byStep,
                          Interpolation how, COLORREF first, COLORREF middle, COLORREF last, bool add)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return false;
    if (min > max) {
        std::swap(min, max);
        std::swap(first, last);
    }
    // The number of entries: one for an empty range, else by count or by step.
    size_t entries = 0;
    if (byStep) {
        if (!(step > 0.0) || !std::isfinite(step))
            return false;
        const double intervals = (max - min) / step;
        if (!(intervals < double(kMaxEntries)))
            return false;
        // A range that is a whole number of steps (within rounding) ends on its last step.
        entries = size_t(std::ceil(intervals - 1e-9)) + 1;
    } else {
        if (count < 2 || count - 1 > kMaxEntries)
            return false;
        entries = size_t(count - 1);
    }
    if (min == max)
        entries = 1;
    entries = std::max<size_t>(entries, 1);
    if (entries > size_t(kMaxEntries))
        return false;

    const ColorRamp ramp(how == Interpolation::hsv ? ColorRamp::Kind::hsv
                         : how == Interpolation::rgb ? ColorRamp::Kind::rgb : ColorRamp::Kind::rgb3,
                         first, middle, last);
    const size_t colors = entries + 1;
    std::vector<Entry> generated;
    generated.reserve(entries);
    for (size_t k = 0; k < entries; ++k) {
        double value;
        if (k + 1 == entries && entries > 1)
            value = max;
        else if (byStep)
            value = min + double(k) * step;
        else
            value = entries < 2 ? min : between(min, max, double(k), double(entries - 1));
        // Rounding may bring neighbours of a very fine range together: keep one of each value.
        if (!generated.empty() && !(value > generated.back().value))
            continue;
        generated.push_back(Entry { value, ramp.Color(k + 1, colors), false, QString() });
    }

    if (!add) {
        m_entries = std::move(generated);
        m_lowColor = ramp.Color(0, colors);
        return true;
    }
    if (m_entries.empty())
        m_lowColor = ramp.Color(0, colors);
    std::vector<Entry> merged;
    merged.reserve(m_entries.size() + generated.size());
    auto old = m_entries.begin();
    for (Entry& entry : generated) {
        while (old != m_entries.end() && old->value < entry.value)
            merged.push_back(std::move(*old++));
        if (old != m_entries.end() && old->value == entry.value) {
            merged.push_back(old->locked ? std::move(*old) : std::move(entry));
            ++old;
        } else {
            merged.push_back(std::move(entry));
        }
    }
    merged.insert(merged.end(), std::make_move_iterator(old), std::make_move_iterator(m_entries.end()));
    if (merged.size() > size_t(kMaxEntries))
        return false;
    m_entries = std::move(merged);
    return true;
}

bool ColorTable::SetRange(double min, double max, int count, COLORREF minColor, COLORREF maxColor)
{
    return Generate(min, max, count, 0.0, false, Interpolation::hsv, minColor, 0, maxColor, false);
}

bool ColorTable::SetRange(double min, double max, double step, COLORREF minColor, COLORREF maxColor)
{
    return Generate(min, max, 0, step, true, Interpolation::hsv, minColor, 0, maxColor, false);
}

bool ColorTable::SetRangeRGB(double min, double max, int count, COLORREF minColor, COLORREF maxColor)
{
    return Generate(min, max, count, 0.0, false, Interpolation::rgb, minColor, 0, maxColor, false);
}

bool ColorTable::SetRangeRGB(double min, double max, double step, COLORREF minColor, COLORREF maxColor)
{
    return Generate(min, max, 0, step, true, Interpolation::rgb, minColor, 0, maxColor, false);
}

bool ColorTable::SetRangeRGB3(double min, double max, int count, COLORREF firstColor,
                              COLORREF middleColor, COLORREF lastColor)
{
    return Generate(min, max, count, 0.0, false, Interpolation::rgb3, firstColor, middleColor,
                    lastColor, false);
}

bool ColorTable::SetRangeRGB3(double min, double max, double step, COLORREF firstColor,
                              COLORREF middleColor, COLORREF lastColor)
{
    return Generate(min, max, 0, step, true, Interpolation::rgb3, firstColor, middleColor,
                    lastColor, false);
}

bool ColorTable::AddRange(double min, double max, int count, COLORREF minColor, COLORREF maxColor, bool rgb)
{
    return Generate(min, max, count, 0.0, false, rgb ? Interpolation::rgb : Interpolation::hsv,
                    minColor, 0, maxColor, true);
}

bool ColorTable::AddRange(double min, double max, double step, COLORREF minColor, COLORREF maxColor, bool rgb)
{
    return Generate(min, max, 0, step, true, rgb ? Interpolation::rgb : Interpolation::hsv,
                    minColor, 0, maxColor, true);
}

bool ColorTable::AddRange3(double min, double max, int count, COLORREF firstColor,
                           COLORREF middleColor, COLORREF lastColor)
{
    return Generate(min, max, count, 0.0, false, Interpolation::rgb3, firstColor, middleColor,
                    lastColor, true);
}

bool ColorTable::AddRange3(double min, double max, double step, COLORREF firstColor,
                           COLORREF middleColor, COLORREF lastColor)
{
    return Generate(min, max, 0, step, true, Interpolation::rgb3, firstColor, middleColor,
                    lastColor, true);
}

void ColorTable::GetUnderDredgeColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const
{
    std::tie(minColor, maxColor, count) = std::tuple(m_under.minColor, m_under.maxColor, m_under.count);
}

void ColorTable::GetInTolColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const
{
    std::tie(minColor, maxColor, count) = std::tuple(m_inTol.minColor, m_inTol.maxColor, m_inTol.count);
}

void ColorTable::GetOverDredgeColorRange(COLORREF& minColor, COLORREF& maxColor, unsigned& count) const
{
    std::tie(minColor, maxColor, count) = std::tuple(m_over.minColor, m_over.maxColor, m_over.count);
}

void ColorTable::SetUnderDredgeColorRange(COLORREF minColor, COLORREF maxColor, unsigned count)
{
    m_under = Ramp { minColor & 0xFFFFFFu, maxColor & 0xFFFFFFu, rampCount(count) };
}

void ColorTable::SetInTolColorRange(COLORREF minColor, COLORREF maxColor, unsigned count)
{
    m_inTol = Ramp { minColor & 0xFFFFFFu, maxColor & 0xFFFFFFu, rampCount(count) };
}

void ColorTable::SetOverDredgeColorRange(COLORREF minColor, COLORREF maxColor, unsigned count)
{
    m_over = Ramp { minColor & 0xFFFFFFu, maxColor & 0xFFFFFFu, rampCount(count) };
}

void ColorTable::GetUnderDredgeLimit(double& limit) const { limit = m_underLimit; }
void ColorTable::GetOverDredgeLimit(double& limit) const { limit = m_overLimit; }

void ColorTable::SetUnderDredgeLimit(double limit)
{
    if (std::isfinite(limit))
        m_underLimit = limit;
}

void ColorTable::SetOverDredgeLimit(double limit)
{
    if (std::isfinite(limit))
        m_overLimit = limit;
}

void ColorTable::SetSyncWithDesignModel(bool sync) { m_syncWithDesignModel = sync; }
bool ColorTable::GetSyncWithDesignModel() const { return m_syncWithDesignModel; }
void ColorTable::SetDredgeDiffColTab(bool dredgeDiff) { m_dredgeDiff = dredgeDiff; }
bool ColorTable::IsDredgeDiffColTab() const { return m_dredgeDiff; }

void ColorTable::GenerateDredgeDiffColorTable()
{
    const double over = std::min(m_overLimit, m_underLimit);
    const double under = std::max(m_overLimit, m_underLimit);
    const unsigned nOver = rampCount(m_over.count), nIn = rampCount(m_inTol.count),
                   nUnder = rampCount(m_under.count);
    const double band = under - over;
    // Equal limits leave no tolerance band: the outer ramps then step by a tenth of a unit.
    const double step = band > 0.0 ? band / nIn : 0.1;

    std::vector<Entry> entries;
    entries.reserve(size_t(nOver) + nIn + nUnder);
    auto add = [&entries](double value, COLORREF color) {
        if (std::isfinite(value) && (entries.empty() || value > entries.back().value))
            entries.push_back(Entry { value, color, false, QString() });
    };
    // Over-dredged: the farthest down is the low colour, the ramp runs up to the limit.
    m_lowColor = m_over.maxColor;
    // The value `steps` steps from `limit`.
    const auto at = [&](double limit, double steps) {
        return band > 0.0 ? between(limit, limit + band, steps, double(nIn)) : limit + steps * step;
    };
    for (unsigned j = 1; j < nOver; ++j)
        add(at(over, -double(nOver - j)), rampColor(m_over.maxColor, m_over.minColor, j, nOver));
    if (band > 0.0) {
        for (unsigned k = 0; k < nIn; ++k)
            add(at(over, double(k)), rampColor(m_inTol.minColor, m_inTol.maxColor, k, nIn));
    }
    for (unsigned j = 0; j < nUnder; ++j)
        add(at(under, double(j)), rampColor(m_under.minColor, m_under.maxColor, j, nUnder));
    m_entries = std::move(entries);
}

bool ColorTable::FileOpen(const FileObject& file)
{
    ColorTable read;
    QStringList errors;
    const bool ok = ColorTableFile::Read(file, read, errors);
    read.m_errors = std::move(errors);
    *this = std::move(read);
    return ok;
}

bool ColorTable::FileSave(FileObject& file) const
{
    return ColorTableFile::Write(*this, file);
}

QStringList ColorTable::Errors() const { return m_errors; }
