#include "QelMfc0/colour/ColorConverter.h"

#include <QelBase/FileObject.h>
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

bool ColorConverter::Load(const FileObject& file)
{
    double red = 1.0, green = 1.0, blue = 1.0;
    bool invert = false;
    const bool present = file.HasSection(kSection);
    if (present) {
        file.GetDouble(kSection, kRedKey, red);
        file.GetDouble(kSection, kGreenKey, green);
        file.GetDouble(kSection, kBlueKey, blue);
        file.GetBool(kSection, kInvertKey, invert);
    }
    SetParameters(red, green, blue, invert);
    return present;
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
