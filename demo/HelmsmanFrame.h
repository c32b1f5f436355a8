#pragma once
// What the helmsman watches, drawn into one rectangle: the off-track meter across the top, the
// distance along the run line on the right, and three up/down gauges (draught, dredge-head
// depth, tide) sharing one pane. Used by the gallery's helmsman page and by its benchmark.

#include "VesselSimulator.h"

#include <QRect>
#include <QelMfc0/controls/DistOnRlineMeter.h>
#include <QelMfc0/controls/OffrackMeter.h>
#include <QelMfc0/colour/ColorConverter.h>
#include <QelMfc0/controls/UpDownIndicator.h>
#include <array>

class QPainter;

class HelmsmanFrame {
public:
    // Instruments set up as a dredging survey uses them (ranges, tolerance, colours, fonts).
    HelmsmanFrame();

    // Takes the vessel's new state.
    void Update(const VesselState& state);
    // Paints everything into `area` (the host paints nothing else there).
    void Paint(QPainter* painter, const QRect& area);
    // A click at `point` of the last painted area: true when it hit a gauge's reset button,
    // which then starts its min/max tracking again.
    bool ClickAt(const QPoint& point);

private:
    // The side and band colours are drawn as given (they carry meaning: port and starboard,
    // above, inside and below the band): the host picks dimmer ones at night.
    void ApplyColours(ColorConverter::mode mode);
    QRect OffTrackRect(const QRect& area) const;
    QRect DistanceRect(const QRect& area) const;
    QRect GaugeRect(const QRect& area) const;

    OffrackMeter m_offTrack;
    DistOnRlineMeter m_distance;
    std::array<UpDownIndicator, 3> m_gauges;
    // Lowest and highest value seen per gauge since its last reset (the band markers).
    std::array<double, 3> m_low {}, m_high {};
    std::array<bool, 3> m_tracking {};
    QRect m_lastArea;
    ColorConverter::mode m_colourMode = ColorConverter::unknown;
};
