#include "QelMfc0/colour/ColorConverter.h"

#include <QCoreApplication>
#include <QelBase/FileObject.h>
#include <QelMfc0/colour/ColorMap.h>
#include <algorithm>
#include <cmath>

namespace {
double UsableFactor(double factor)
{
    return std::isfinite(factor) && factor >= 0.0 ? factor : 1.0;
}
} // namespace

ColorConverter::ColorConverter()
{
    BuildScaleTable();
}

ColorConverter::~ColorConverter() = default;

void ColorConverter::SetParameters(double red, double green, double blue, bool invert)
{
    m_factors = { UsableFactor(red), UsableFactor(green), UsableFactor(blue) };
    m_invert = invert;
    BuildScaleTable();
}

void ColorConverter::Reset()
{
    SetParameters(1.0, 1.0, 1.0, false);
}

bool ColorConverter::Load(const FileObject& file, QStringList* errors)
{
    double factors[3] = { 1.0, 1.0, 1.0 };
    bool invert = false;
    const QString factorKeys[3] = { kRedKey, kGreenKey, kBlueKey };
    const auto report = [&](const QString& key, const QString& value, const char* problem) {
        if (errors)
            errors->append(ColorMap::EntryError(kSection, key, value, QCoreApplication::translate("ColorConverter", problem)));
    };
    // The first entry of a key counts, as in the file object's typed reads.
    QStringList seen;
    for (const auto& entry : file.GetEntries(kSection)) {
        const QString& key = entry.first;
        if (seen.contains(key, Qt::CaseInsensitive))
            continue;
        seen.append(key);
        const QString value = ColorMap::StripComment(entry.second);
        const auto factor = std::find_if(std::begin(factorKeys), std::end(factorKeys),
                                         [&](const QString& k) { return k.compare(key, Qt::CaseInsensitive) == 0; });
        if (factor != std::end(factorKeys)) {
            double& target = factors[factor - std::begin(factorKeys)];
            if (!FileObject::ParseDouble(value, target))
                report(key, value, QT_TRANSLATE_NOOP("ColorConverter", "not a number; the factor stays 1.0"));
            else if (UsableFactor(target) != target)
                report(key, value, QT_TRANSLATE_NOOP("ColorConverter", "a negative factor counts as 1.0"));
        } else if (kInvertKey.compare(key, Qt::CaseInsensitive) == 0) {
            if (!FileObject::ParseBool(value, invert))
                report(key, value, QT_TRANSLATE_NOOP("ColorConverter", "not 1/0, true/false, yes/no or on/off; no inversion"));
        } else {
            report(key, value, QT_TRANSLATE_NOOP("ColorConverter", "unknown key; ignored"));
        }
    }
    SetParameters(factors[0], factors[1], factors[2], invert);
    return file.HasSection(kSection);
}

void ColorConverter::BuildScaleTable()
{
    // Every channel value is scaled once here; conversions then only look the results up.
    for (size_t channel = 0; channel < 3; ++channel) {
        for (int value = 0; value < 256; ++value) {
            const double scaled = std::floor(value * m_factors[channel] + 0.5);
            m_scale[channel][size_t(value)] = quint8(std::clamp(scaled, 0.0, 255.0));
        }
    }
}
