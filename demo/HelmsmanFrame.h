#pragma once
// What the helmsman watches, drawn into one rectangle: the off-track meter across the top, the
// distance along the run line on the right, and three up/down gauges (draught, dredge-head
// depth, tide) side by side below the meter, each with its title and unit. Used by the
// gallery's helmsman page and by its benchmark.

#include "VesselSimulator.h"

#include <QCoreApplication>
#include <QRect>
#include <QString>
#include <QelMfc0/controls/indicators/DistOnRlineMeter.h>
#include <QelMfc0/controls/indicators/OffrackMeter.h>
#include <QelMfc0/controls/indicators/UpDownIndicator.h>
#include <array>

class QPainter;

class HelmsmanFrame {
    Q_DECLARE_TR_FUNCTIONS(HelmsmanFrame)

public:
    static constexpr int kGaugeCount = 3;

    // Instruments set up as a dredging survey uses them (ranges, tolerance, colours, fonts).
    HelmsmanFrame();

    // Takes the vessel's new state.
    void Update(const VesselState& state);
    // Paints everything into `area` (the host paints nothing else there). Every colour is the
    // colour mode's counterpart of a day colour, asked for at paint time.
    void Paint(QPainter* painter, const QRect& area);
    // A click at `point` of the last painted area: true when it hit a gauge's reset button,
    // which then starts its min/max tracking again.
    bool ClickAt(const QPoint& point);
    // What a tool tip at `point` of the last painted area says; empty where there is none.
    QString ToolTipAt(const QPoint& point) const;

    // Where the parts go within `area`: the off-track bar (its scale and value text around
    // it), the distance strip, and each gauge.
    QRect OffTrackRect(const QRect& area) const;
    QRect DistanceRect(const QRect& area) const;
    QRect GaugeRect(const QRect& area, int index) const;
    // The off-track scale's half-width as last painted, in the project's distance unit: the
    // survey's 10 m widened just enough for the end labels to fit the bar.
    double OffTrackRange() const { return m_offTrack.GetRange(); }

private:
    void ApplyColours();
    void PaintOffTrack(QPainter* painter, const QRect& area);
    void PaintDistance(QPainter* painter, const QRect& area);
    void PaintGauges(QPainter* painter, const QRect& area);
    // The off-track range that shows `nominal` with both end labels inside `width` pixels.
    double FittedRange(QPainter* painter, double nominal, int width) const;

    OffrackMeter m_offTrack;
    DistOnRlineMeter m_distance;
    std::array<UpDownIndicator, kGaugeCount> m_gauges;
    VesselState m_state;
    // Lowest and highest value seen per gauge since its last reset (the band markers).
    std::array<double, kGaugeCount> m_low {}, m_high {};
    std::array<bool, kGaugeCount> m_tracking {};
    QRect m_lastArea;
    struct Fitted {
        int width = -1;
        double nominal = 0.0;
        int decimals = -1;
        double range = 0.0;
    } m_fittedFor; // the off-track range last fitted, and what it was fitted for
};
