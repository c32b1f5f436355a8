#include "BathymetryGrid.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

namespace {
constexpr double kPi = std::numbers::pi;
constexpr double kWidth = BathymetryGrid::kColumns * BathymetryGrid::kCellSize;  // 1280 m
constexpr double kHeight = BathymetryGrid::kRows * BathymetryGrid::kCellSize;    // 960 m

// Channel: a curved axis (metres south of the northern edge at an easting), a flat bottom and
// 1:5 side slopes.
constexpr double kChannelHalfWidth = 70.0;
constexpr double kChannelDepth = -21.5;
constexpr double kChannelSlope = 5.0;
double ChannelAxis(double x) { return 560.0 + 40.0 * std::sin(2.0 * kPi * x / 1400.0 + 0.4); }
double ChannelAxisSlope(double x) { return 40.0 * 2.0 * kPi / 1400.0 * std::cos(2.0 * kPi * x / 1400.0 + 0.4); }

// The shoal's top and extent, the scour hole's place, the barge's gap (all in metres).
constexpr double kShoalX = 261.0, kShoalY = 221.0, kShoalRadiusX = 110.0, kShoalRadiusY = 80.0;
constexpr double kShoalTop = -2.5;
constexpr double kScourX = 1051.0;
double ScourY() { return ChannelAxis(kScourX) + kChannelHalfWidth + 10.0; }
constexpr double kGapX = 901.0, kGapY = 161.0, kGapRadiusX = 48.0, kGapRadiusY = 28.0;

constexpr double kShallowest = -2.0;
constexpr double kDeepest = -25.0;

// A seeded hash of a lattice point into [-1, 1].
double LatticeValue(std::int32_t ix, std::int32_t iy, std::uint32_t seed)
{
    std::uint32_t h = seed ^ (std::uint32_t(ix) * 0x9E3779B1u) ^ (std::uint32_t(iy) * 0x85EBCA77u);
    h ^= h >> 15;
    h *= 0x2C1B3C6Du;
    h ^= h >> 12;
    h *= 0x297A2D39u;
    h ^= h >> 15;
    return double(h & 0xFFFFFFu) / double(0x800000u) - 1.0;
}

// Smooth value noise of one octave at (x, y) in lattice units.
double ValueNoise(double x, double y, std::uint32_t seed)
{
    const double fx = std::floor(x), fy = std::floor(y);
    const auto ix = std::int32_t(fx), iy = std::int32_t(fy);
    const double tx = x - fx, ty = y - fy;
    const double sx = tx * tx * (3.0 - 2.0 * tx), sy = ty * ty * (3.0 - 2.0 * ty);
    const double top = LatticeValue(ix, iy, seed) + sx * (LatticeValue(ix + 1, iy, seed) - LatticeValue(ix, iy, seed));
    const double bottom = LatticeValue(ix, iy + 1, seed) + sx * (LatticeValue(ix + 1, iy + 1, seed) - LatticeValue(ix, iy + 1, seed));
    return top + sy * (bottom - top);
}

// Three octaves of value noise over metres (features of about 120, 50 and 20 m), in [-1, 1].
double SeabedNoise(double x, double y, std::uint32_t seed)
{
    return (ValueNoise(x / 120.0, y / 120.0, seed) + 0.5 * ValueNoise(x / 50.0, y / 50.0, seed + 1)
            + 0.25 * ValueNoise(x / 20.0, y / 20.0, seed + 2)) / 1.75;
}

bool OutsideSwaths(int column, int row)
{
    const int top = 6 + int(std::lround(5.0 * (1.0 + std::sin(2.0 * kPi * column / 150.0))));
    const int bottom = 6 + int(std::lround(5.0 * (1.0 + std::sin(2.0 * kPi * column / 190.0 + 1.3))));
    return row < top || row >= BathymetryGrid::kRows - bottom;
}

double SurveyedDepth(double x, double y)
{
    // Natural seabed, deepening to the south-east.
    const double noise = SeabedNoise(x, y, 0x5EABEDu);
    double seabed = -9.0 - 5.5 * x / kWidth - 2.5 * y / kHeight + 0.35 * noise;

    // The shoal: the seabed lifted to its top with a flat crown and steep flanks.
    const double sx = (x - kShoalX) / kShoalRadiusX, sy = (y - kShoalY) / kShoalRadiusY;
    const double r2 = sx * sx + sy * sy;
    const double shoal = std::exp(-0.5 * r2 * r2);
    seabed += shoal * (kShoalTop - seabed);

    // Sand waves, slightly sinuous crests, higher where the large-scale noise is high.
    const double angle = 20.0 * kPi / 180.0;
    const double phase = 2.0 * kPi * (x * std::cos(angle) + y * std::sin(angle)) / 32.0 + 0.8 * std::sin(y / 110.0);
    const double wave = std::sin(phase) + 0.3 * std::sin(2.0 * phase); // steeper lee side
    const double height = 0.3 * (0.7 + 0.3 * ValueNoise(x / 300.0, y / 300.0, 0xD0E5u));
    seabed += (1.0 - shoal) * height * wave;

    // The channel: a flat bottom with dredged-down remnants of the waves, then the slopes.
    const double axis = ChannelAxis(x);
    const double across = std::abs(y - axis) / std::sqrt(1.0 + ChannelAxisSlope(x) * ChannelAxisSlope(x));
    const double channel = kChannelDepth + std::max(0.0, across - kChannelHalfWidth) / kChannelSlope
                         + 0.1 * SeabedNoise(x, y, 0xC4A77E1u) + 0.05 * wave;
    double depth = std::min(seabed, channel);

    // The scour hole: a bowl down to the deepest depth.
    const double dx = x - kScourX, dy = y - ScourY();
    depth = std::min(depth, kDeepest + 0.0044 * (dx * dx + dy * dy));

    return std::clamp(depth, kDeepest, kShallowest);
}

QPoint CellOf(double x, double y)
{
    return { int(x / BathymetryGrid::kCellSize), int(y / BathymetryGrid::kCellSize) };
}
} // namespace

BathymetryGrid::BathymetryGrid()
    : m_depths(size_t(kColumns) * size_t(kRows))
{
    const float noData = std::numeric_limits<float>::quiet_NaN();
    for (int row = 0; row < kRows; ++row) {
        const double y = (row + 0.5) * kCellSize;
        float* line = m_depths.data() + size_t(row) * kColumns;
        for (int column = 0; column < kColumns; ++column) {
            const double x = (column + 0.5) * kCellSize;
            const double gx = (x - kGapX) / kGapRadiusX, gy = (y - kGapY) / kGapRadiusY;
            const bool gap = gx * gx + gy * gy <= 1.0;
            line[column] = gap || OutsideSwaths(column, row) ? noData : float(SurveyedDepth(x, y));
        }
    }
}

float BathymetryGrid::Depth(int column, int row) const
{
    if (column < 0 || column >= kColumns || row < 0 || row >= kRows)
        return std::numeric_limits<float>::quiet_NaN();
    return m_depths[size_t(row) * kColumns + size_t(column)];
}

QPoint BathymetryGrid::ChannelCell()
{
    const double x = kWidth / 2.0 + 1.0;
    return CellOf(x, ChannelAxis(x));
}

QPoint BathymetryGrid::ShoalCell()
{
    return CellOf(kShoalX, kShoalY);
}

QPoint BathymetryGrid::ScourCell()
{
    return CellOf(kScourX, ScourY());
}

QPoint BathymetryGrid::GapCell()
{
    return CellOf(kGapX, kGapY);
}
