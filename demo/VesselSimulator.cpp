#include "VesselSimulator.h"

#include <QTimer>
#include <cmath>

namespace {
constexpr double kSpeed = 3.2;        // m/s along the line (about 6 knots)
constexpr double kStartBefore = 150.0; // metres before the line start where the run begins
}

VesselSimulator::VesselSimulator(const Point& start, const Point& end, double rateHz, QObject* parent)
    : QObject(parent)
    , m_start(start)
    , m_end(end)
    , m_period(rateHz > 0.0 ? 1.0 / rateHz : 0.1)
{
    m_timer = new QTimer(this);
    m_timer->setInterval(int(std::lround(m_period * 1000.0)));
    connect(m_timer, &QTimer::timeout, this, &VesselSimulator::Step);
    m_state.lineLength = std::hypot(end.x - start.x, end.y - start.y);
    Step();
}

void VesselSimulator::Start() { m_timer->start(); }
void VesselSimulator::Stop() { m_timer->stop(); }
const VesselState& VesselSimulator::State() const { return m_state; }

void VesselSimulator::Step()
{
    m_time += m_period;
    std::normal_distribution<double> noise(0.0, 0.15);
    // The run starts again a little before the line once the vessel has sailed past its end.
    const double along = std::fmod(m_time * kSpeed, m_state.lineLength + 2.0 * kStartBefore) - kStartBefore;
    // A slow swing across the line, a wind drift that builds up, and sensor noise.
    m_drift = 0.995 * m_drift + 0.02 * std::sin(m_time / 17.0);
    const double off = 4.5 * std::sin(m_time / 9.0) + 3.0 * m_drift + noise(m_random);

    const double dx = (m_end.x - m_start.x) / m_state.lineLength, dy = (m_end.y - m_start.y) / m_state.lineLength;
    m_state.alongTrack = along;
    m_state.offTrack = off;
    m_state.position = Point(m_start.x + dx * along + dy * off, m_start.y + dy * along - dx * off);
    m_state.draught = 5.8 + 0.05 * std::sin(m_time / 3.0) + 0.3 * noise(m_random);
    m_state.dredgeHead = -(14.0 + 1.6 * std::sin(m_time / 6.0) + 0.4 * std::sin(m_time * 1.3)) + noise(m_random);
    m_state.tide = 1.2 * std::sin(m_time / 600.0 + 0.8);
    emit updated(m_state);
}
