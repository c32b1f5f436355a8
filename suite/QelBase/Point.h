#pragma once
// A position in project grid units: x east, y north (grid north), z height or depth.

#include "QelBase/QelBaseExport.h"

struct QELBASE_EXPORT Point
{
    double x = 0;
    double y = 0;
    double z = 0;

    // The origin.
    Point() = default;
    // A point at (x, y, z).
    Point(double x, double y, double z = 0.0);

    // Component-wise sum, z included.
    Point operator+(const Point& other) const;
    // Component-wise difference, z included.
    Point operator-(const Point& other) const;
    // Exact component-wise equality.
    bool operator==(const Point&) const = default;

    // Turns (x, y) clockwise about the origin by degrees, as a bearing turns; z is kept.
    // Multiples of 90 degrees are exact; a non-finite angle leaves the point unchanged.
    void Rotate(double degrees);
    // A copy turned clockwise about the origin by degrees.
    Point Rotated(double degrees) const;
    // Turns (x, y) clockwise about centre by degrees; z is kept.
    void Rotate(double degrees, const Point& centre);
};
