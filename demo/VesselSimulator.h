#pragma once
// A simulated survey vessel sailing a run line: speed along the line, a slow cross-track drift
// with noise, and the depths a helmsman's gauges show (draught, dredge-head depth, tide).

#include <QObject>
#include <QelBase/Point.h>
#include <random>

class QTimer;

struct VesselState {
    Point position;            // grid metres
    double alongTrack = 0.0;   // metres from the line start (negative before it)
    double offTrack = 0.0;     // metres, negative left of the line, positive right
    double lineLength = 0.0;   // metres
    double draught = 0.0;      // metres below the waterline
    double dredgeHead = 0.0;   // depth of the dredge head, metres (negative down)
    double tide = 0.0;         // water level above chart datum, metres
};

class VesselSimulator : public QObject {
    Q_OBJECT
public:
    // A vessel on the line from `start` to `end`, updated `rateHz` times a second once started.
    VesselSimulator(const Point& start, const Point& end, double rateHz = 10.0, QObject* parent = nullptr);

    void Start();
    void Stop();
    // Advances the simulation by one step of 1/rate seconds (also what the timer does).
    void Step();
    const VesselState& State() const;

signals:
    void updated(const VesselState& state);

private:
    Point m_start, m_end;
    double m_period;
    double m_time = 0.0;
    double m_drift = 0.0;
    VesselState m_state;
    std::mt19937 m_random { 2026 };
    QTimer* m_timer = nullptr;
};
