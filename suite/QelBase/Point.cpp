#include "Point.h"

#include <QtMath>

#include <cmath>

namespace {

// Sine and cosine of an angle in degrees, exact on the four axes so that quarter turns
// of grid coordinates do not pick up rounding noise.
void SinCosDegrees(double degrees, double& s, double& c)
{
    double d = std::fmod(degrees, 360.0);
    if (d < 0.0)
        d += 360.0;
    if (d == 0.0 || d == 360.0) {
        s = 0.0; c = 1.0;
    } else if (d == 90.0) {
        s = 1.0; c = 0.0;
    } else if (d == 180.0) {
        s = 0.0; c = -1.0;
    } else if (d == 270.0) {
        s = -1.0; c = 0.0;
    } else {
        const double r = qDegreesToRadians(d);
        s = std::sin(r);
        c = std::cos(r);
    }
}

} // namespace

Point::Point(double x_, double y_, double z_)
    : x(x_), y(y_), z(z_)
{
}

Point Point::operator+(const Point& other) const
{
    return {x + other.x, y + other.y, z + other.z};
}

Point Point::operator-(const Point& other) const
{
    return {x - other.x, y - other.y, z - other.z};
}

void Point::Rotate(double degrees)
{
    if (!std::isfinite(degrees))
        return;
    double s = 0.0;
    double c = 1.0;
    SinCosDegrees(degrees, s, c);
    // Clockwise in a frame with y up: north (0, 1) turned by 90 becomes east (1, 0).
    const double nx = x * c + y * s;
    const double ny = y * c - x * s;
    x = nx;
    y = ny;
}

Point Point::Rotated(double degrees) const
{
    Point p = *this;
    p.Rotate(degrees);
    return p;
}

void Point::Rotate(double degrees, const Point& centre)
{
    if (!std::isfinite(degrees))
        return;
    Point offset(x - centre.x, y - centre.y);
    offset.Rotate(degrees);
    x = centre.x + offset.x;
    y = centre.y + offset.y;
}
