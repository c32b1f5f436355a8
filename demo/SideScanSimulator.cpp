#include "SideScanSimulator.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {
constexpr double kTwoPi = 2.0 * std::numbers::pi;

std::uint64_t Mix(std::uint64_t h)
{
    h ^= h >> 30;
    h *= 0xBF58476D1CE4E5B9ULL;
    h ^= h >> 27;
    h *= 0x94D049BB133111EBULL;
    return h ^ (h >> 31);
}

std::uint64_t Hash(qint64 x, qint64 y, std::uint64_t salt)
{
    return Mix(std::uint64_t(x) * 0x9E3779B97F4A7C15ULL ^ Mix(std::uint64_t(y) + 0x632BE59BD9B4E019ULL) ^ (salt << 17));
}

double Unit(std::uint64_t h)
{
    return double(h >> 11) * (1.0 / 9007199254740992.0);
}

double Smooth(double t)
{
    return t * t * (3.0 - 2.0 * t);
}

// Where the wreck lies along the scene (metres), its centre's ground range, half its beam and
// its hull height.
constexpr double kWreckStart = 12.0, kWreckEnd = 40.0, kWreckRange = 26.0, kWreckBeam = 4.5, kWreckHeight = 4.5;
// The pipeline crosses from far port to far starboard over this stretch.
constexpr double kPipeStart = 46.0, kPipeEnd = 76.0, kPipeReach = 58.0, kPipeDiameter = 0.6;
constexpr int kBoulders = 10;
} // namespace

SideScanSimulator::SideScanSimulator(quint32 seed, int samplesPerSide)
    : m_seed(seed)
    , m_samples(std::max(16, samplesPerSide))
    , m_sampleSize(kSlantRange / m_samples)
    , m_row(std::size_t(2 * m_samples), 0)
{
}

double SideScanSimulator::AltitudeAt(qint64 ping) const
{
    const double p = double(ping);
    return 10.0 + 1.8 * std::sin(kTwoPi * p / 1100.0) + 0.6 * std::sin(kTwoPi * p / 270.0 + 1.3) + 0.15 * std::sin(kTwoPi * p / 37.0);
}

int SideScanSimulator::SampleOfGroundRange(double groundRange, qint64 ping) const
{
    const double altitude = AltitudeAt(ping);
    const double slant = std::sqrt(groundRange * groundRange + altitude * altitude);
    return int(std::clamp(std::floor(slant / m_sampleSize), 0.0, double(m_samples - 1)));
}

int SideScanSimulator::ColumnOf(Side side, int sample) const
{
    return side == Side::Port ? m_samples - 1 - sample : m_samples + sample;
}

std::vector<SideScanSimulator::Obstacle> SideScanSimulator::ObstaclesAt(qint64 ping, Side side) const
{
    std::vector<Obstacle> found;
    const qint64 cycle = ping >= 0 ? ping / kCyclePings : (ping - kCyclePings + 1) / kCyclePings;
    const double along = double(ping - cycle * kCyclePings) * kPingSpacing;
    const double sign = side == Side::Starboard ? 1.0 : -1.0;

    // The wreck, to starboard and to port in turn.
    const bool wreckHere = (cycle % 2 == 0) == (side == Side::Starboard);
    if (wreckHere && along > kWreckStart && along < kWreckEnd) {
        const double t = (along - (kWreckStart + kWreckEnd) / 2.0) / ((kWreckEnd - kWreckStart) / 2.0);
        const double beam = kWreckBeam * std::sqrt(std::max(0.0, 1.0 - t * t * t * t));
        double height = kWreckHeight * (0.7 + 0.3 * (1.0 - t * t));
        if (std::abs(t - 0.1) < 0.15)
            height += 2.0; // the wheelhouse
        if (beam > 0.05)
            found.push_back({ kWreckRange - beam, kWreckRange + beam, height });
    }

    // The pipeline, crossing the track at a slant.
    if (along > kPipeStart && along < kPipeEnd) {
        const double slope = 2.0 * kPipeReach / (kPipeEnd - kPipeStart);
        const double across = -kPipeReach + (along - kPipeStart) * slope;
        const double half = kPipeDiameter / 2.0 * std::sqrt(1.0 + slope * slope);
        if (across * sign > half)
            found.push_back({ across * sign - half, across * sign + half, kPipeDiameter });
    }

    // Boulders, different in every repeat of the scene.
    for (int k = 0; k < kBoulders; ++k) {
        const std::uint64_t h = Hash(cycle, k, m_seed ^ 0xB0u);
        if (((h >> 3) & 1u) != (side == Side::Starboard ? 1u : 0u))
            continue;
        const double centre = 2.0 + 86.0 * Unit(Mix(h + 1));
        const double range = 6.0 + 46.0 * Unit(Mix(h + 2));
        const double radius = 0.4 + 0.9 * Unit(Mix(h + 3));
        const double dy = along - centre;
        if (std::abs(dy) >= radius)
            continue;
        const double half = std::sqrt(radius * radius - dy * dy);
        found.push_back({ range - half, range + half, 1.1 * half });
    }
    return found;
}

double SideScanSimulator::Noise(double x, double y, quint32 salt) const
{
    const double fx = std::floor(x), fy = std::floor(y);
    const qint64 ix = qint64(fx), iy = qint64(fy);
    const double tx = Smooth(x - fx), ty = Smooth(y - fy);
    const std::uint64_t s = std::uint64_t(m_seed) << 8 | salt;
    const double a = Unit(Hash(ix, iy, s)), b = Unit(Hash(ix + 1, iy, s));
    const double c = Unit(Hash(ix, iy + 1, s)), d = Unit(Hash(ix + 1, iy + 1, s));
    return (a + (b - a) * tx) * (1.0 - ty) + (c + (d - c) * tx) * ty;
}

double SideScanSimulator::Seabed(double across, double along) const
{
    // Patches of coarser and finer sediment, sand ripples in some of them, and grain.
    const double sediment = 0.45 + 0.55 * Smooth(Noise(across / 14.0, along / 14.0, 1));
    const double rippled = std::clamp((Noise(across / 20.0, along / 20.0, 2) - 0.45) * 3.0, 0.0, 1.0);
    const double phase = (across * 0.8 + along * 0.6) / 1.1 * kTwoPi + 2.0 * Noise(across / 5.0, along / 5.0, 3);
    const double ripple = 1.0 + 0.35 * rippled * std::sin(phase);
    const double grain = 0.8 + 0.4 * Noise(across / 0.35, along / 0.35, 4);
    return sediment * ripple * grain;
}

void SideScanSimulator::FillSide(Side side, double altitude, std::uint8_t* out, int step)
{
    const std::vector<Obstacle> obstacles = ObstaclesAt(m_ping, side);
    const double along = double(m_ping) * kPingSpacing;
    const double sign = side == Side::Starboard ? 1.0 : -1.0;
    const auto uniform = [this] {
        m_random ^= m_random >> 12;
        m_random ^= m_random << 25;
        m_random ^= m_random >> 27;
        return (double((m_random * 0x2545F4914F6CDD1DULL) >> 11) + 0.5) * (1.0 / 9007199254740992.0);
    };
    // The bare seabed every kStride samples, in between interpolated: its finest grain is
    // still several samples wide.
    constexpr int kStride = 4;
    m_seabed.resize(std::size_t(m_samples / kStride + 2));
    for (std::size_t k = 0; k < m_seabed.size(); ++k) {
        const double slant = (double(k) * kStride + 0.5) * m_sampleSize;
        m_seabed[k] = Seabed(sign * std::sqrt(std::max(0.0, slant * slant - altitude * altitude)), along);
    }
    for (int s = 0; s < m_samples; ++s) {
        const double slant = (s + 0.5) * m_sampleSize;
        const double u = uniform();
        double value = 3.0 + 9.0 * u; // the water column and shadows: noise only
        if (slant >= altitude) {
            const double ground = std::sqrt(slant * slant - altitude * altitude);
            bool shadow = false;
            double level = -1.0;
            for (const Obstacle& o : obstacles) {
                const double height = std::min(o.height, 0.9 * altitude);
                if (ground >= o.nearRange && ground <= o.farRange) {
                    // The face towards the sonar returns strongly, the top less.
                    const double face = ground - o.nearRange < 0.25 * (o.farRange - o.nearRange) ? 1.6 : 1.0;
                    level = face * (0.7 + 0.6 * Noise(ground / 0.4, along / 0.4, 5));
                    break;
                }
                if (ground > o.farRange && ground < o.farRange * altitude / (altitude - height))
                    shadow = true;
            }
            if (level < 0.0 && !shadow) {
                const double t = double(s % kStride) / kStride;
                level = m_seabed[std::size_t(s / kStride)] * (1.0 - t) + m_seabed[std::size_t(s / kStride) + 1] * t;
            }
            if (level >= 0.0) {
                const double grazing = 0.6 + 0.4 * altitude / slant;
                const double firstReturn = 1.0 + 1.2 * std::exp(-(slant - altitude) / 0.4);
                const double residual = std::exp(-0.35 * (slant - altitude) / kSlantRange);
                const double speckle = 0.55 + 0.45 * 1.128 * std::sqrt(-std::log(u));
                value = 200.0 * level * grazing * firstReturn * residual * speckle;
            }
        }
        out[s * step] = std::uint8_t(std::clamp(value, 0.0, 255.0));
    }
}

const std::vector<std::uint8_t>& SideScanSimulator::NextPing()
{
    m_random = Mix(Hash(m_ping, 7, m_seed)) | 1u;
    const double altitude = AltitudeAt(m_ping);
    FillSide(Side::Port, altitude, m_row.data() + m_samples - 1, -1);
    FillSide(Side::Starboard, altitude, m_row.data() + m_samples, 1);
    ++m_ping;
    return m_row;
}
