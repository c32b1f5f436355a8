#pragma once
// Synthetic side-scan sonar returns for the gallery's waterfall: a towfish flying over a sandy
// seabed with ripples and patches, a wreck, scattered boulders and a pipeline, each casting an
// acoustic shadow. Every ping holds the port side (far range first) followed by the starboard
// side (nadir first) as 8-bit intensities, already corrected for range as a TVG would. The
// returns depend only on the seed and the ping number, never on the clock.

#include <QtGlobal>
#include <cstdint>
#include <vector>

class SideScanSimulator {
public:
    enum class Side { Port, Starboard };

    // Something standing on the seabed across one ping: its ground ranges from the track
    // (metres, on its side) and its height above the seabed.
    struct Obstacle {
        double nearRange = 0.0;
        double farRange = 0.0;
        double height = 0.0;
    };

    static constexpr int kDefaultSamples = 2048;
    static constexpr double kSlantRange = 60.0;     // metres per side
    static constexpr double kPingSpacing = 0.1;     // metres along track between pings
    static constexpr int kCyclePings = 900;         // the scene repeats, boulders excepted

    // `samplesPerSide` samples per side (at least 16), the seabed's texture and the boulders
    // drawn from `seed`.
    explicit SideScanSimulator(quint32 seed = 2026, int samplesPerSide = kDefaultSamples);

    // Makes the next ping; the returned row (2 x SamplesPerSide() wide) stays valid until the
    // next call.
    const std::vector<std::uint8_t>& NextPing();
    // The number of pings made so far (the next ping's number).
    qint64 PingCount() const { return m_ping; }
    int SamplesPerSide() const { return m_samples; }
    int Width() const { return 2 * m_samples; }

    // The towfish's height above the seabed at a ping, metres.
    double AltitudeAt(qint64 ping) const;
    // The sample of a side at which the seabed at `groundRange` metres from the track returns.
    int SampleOfGroundRange(double groundRange, qint64 ping) const;
    // The column of a ping row that holds sample `sample` of `side`.
    int ColumnOf(Side side, int sample) const;
    // What stands on the seabed of a side at a ping.
    std::vector<Obstacle> ObstaclesAt(qint64 ping, Side side) const;

private:
    // Backscatter of the bare seabed at a ground position (metres), about 0.3 ... 1.
    double Seabed(double across, double along) const;
    double Noise(double x, double y, quint32 salt) const;
    void FillSide(Side side, double altitude, std::uint8_t* out, int step);

    quint32 m_seed;
    int m_samples;
    double m_sampleSize;
    qint64 m_ping = 0;
    std::uint64_t m_random = 0;
    std::vector<std::uint8_t> m_row;
    std::vector<double> m_seabed; // scratch of FillSide
};
