#pragma once
// How bright a colour looks and which hue it has, for tests of what the colour modes show.

#include <QColor>
#include <cmath>

// Relative luminance (sRGB), 0 black .. 1 white.
inline double Luminance(const QColor& c)
{
    const auto linear = [](int v) {
        const double s = v / 255.0;
        return s <= 0.04045 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(c.red()) + 0.7152 * linear(c.green()) + 0.0722 * linear(c.blue());
}

// The contrast ratio of two colours, 1 (same) .. 21 (black on white).
inline double Contrast(const QColor& a, const QColor& b)
{
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The hue in degrees, -1 for a grey.
inline int Hue(const QColor& c)
{
    return c.hsvHue();
}

// Degrees between two hues.
inline int HueDistance(int a, int b)
{
    const int d = std::abs(a - b) % 360;
    return std::min(d, 360 - d);
}
