#include "DisplayScale.h"

#include "NumberUtils.h"

#include <atomic>
#include <cmath>
#include <limits>

namespace {

std::atomic<DpiScaleProvider> g_provider{nullptr};
std::atomic<double> g_fixedScale{0.0}; // 0: ask the provider

// Rounds half away from zero into the int range. A product that is a half up to rounding
// noise (24 px at 110 DPI is 27.5, not 27.4999...) counts as a half, as MulDiv's exact
// integer arithmetic would see it.
int RoundPixels(double value)
{
    if (!std::isfinite(value))
        return 0;
    const double magnitude = std::fabs(value);
    double whole = std::floor(magnitude);
    if (magnitude - whole >= 0.5 - Epsilon(magnitude))
        whole += 1.0;
    const double rounded = std::copysign(whole, value);
    if (rounded >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (rounded <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(rounded);
}

} // namespace

void SetDpiScaleProvider(DpiScaleProvider provider)
{
    g_provider.store(provider);
}

void SetDpiScale(double scale)
{
    g_fixedScale.store(std::isfinite(scale) && scale > 0.0 ? scale : 0.0);
}

double GetDpiScale()
{
    const double fixed = g_fixedScale.load();
    if (fixed > 0.0)
        return fixed;
    if (const DpiScaleProvider provider = g_provider.load()) {
        const double scale = provider();
        if (std::isfinite(scale) && scale > 0.0)
            return scale;
    }
    return 1.0;
}

int DpiCor(int pixels)
{
    return RoundPixels(double(pixels) * GetDpiScale());
}

double DpiCor(double pixels)
{
    if (!std::isfinite(pixels))
        return 0.0;
    return pixels * GetDpiScale();
}

int DpiRevCor(int pixels)
{
    return RoundPixels(double(pixels) / GetDpiScale());
}

double DpiRevCor(double pixels)
{
    if (!std::isfinite(pixels))
        return 0.0;
    return pixels / GetDpiScale();
}
