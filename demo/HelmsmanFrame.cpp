#include "HelmsmanFrame.h"

#include <QPainter>
#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/FontInfo.h>
#include <QelMfc0/colour/ColorControl.h>
#include <algorithm>

namespace {
struct GaugeSetup {
    const char* name;
    double axisMin, axisMax;
    double reference;
};

// Draught below the waterline, the dredge head against its design depth, the tide level.
const GaugeSetup kGauges[] = {
    { "Draught", -8.0, -4.0, -6.0 },
    { "Dredge head", -18.0, -10.0, -14.0 },
    { "Tide", -2.0, 2.0, 0.0 },
};
} // namespace

HelmsmanFrame::HelmsmanFrame()
{
    m_offTrack.SetColor(RGB(0, 0, 0));
    m_offTrack.SetBkColor(RGB(255, 255, 255));
    m_offTrack.SetFont(FontInfo(QStringLiteral("Arial"), 9, false, false, 0));
    m_offTrack.SetRange(10.0);
    m_offTrack.SetTickIntervals(4);
    m_offTrack.SetTolerance(2.5);

    m_distance.SetColor(RGB(60, 120, 200));
    m_distance.SetBkColor(RGB(235, 240, 245));

    ApplyColours(ColorConverter::normal);
    for (size_t i = 0; i < m_gauges.size(); ++i) {
        m_gauges[i].SetNumLayers(int(m_gauges.size()));
        m_gauges[i].SetLayerIndex(int(i));
        m_gauges[i].SetItemName(QString::fromLatin1(kGauges[i].name));
        m_gauges[i].SetRefValue(kGauges[i].reference);
        m_gauges[i].ShowResetButton(true);
    }
}

void HelmsmanFrame::ApplyColours(ColorConverter::mode mode)
{
    m_colourMode = mode;
    const bool night = mode == ColorConverter::night;
    // Port red and starboard green; at night dim enough to keep the watch's night vision.
    m_offTrack.SetLRSideColor(night ? RGB(110, 20, 20) : RGB(220, 40, 40), night ? RGB(10, 80, 30) : RGB(30, 160, 60));
    for (size_t i = 0; i < m_gauges.size(); ++i) {
        CAttributeMap attributes;
        attributes.SetAttribColor(ATTR_ABOVECOLOR, night ? RGB(70, 62, 0) : RGB(128, 128, 0));
        attributes.SetAttribColor(QStringLiteral("InsideColor"), night ? RGB(0, 70, 0) : RGB(0, 128, 0));
        attributes.SetAttribColor(ATTR_BELOWCOLOR, night ? RGB(110, 0, 0) : RGB(225, 0, 0));
        attributes.SetAttribColor(ATTR_PANECOLOR, RGB(200, 205, 210));
        attributes.SetAttribColor(ATTR_TEXTCOLOR, RGB(0, 0, 0));
        attributes.SetAttribColor(ATTR_BCKGNDCOLOR, RGB(255, 255, 225));
        attributes.SetAttribValue(ATTR_FONTSIZE, 8);
        attributes.SetAttribValue(ATTR_YAXISRANGE, QPair<double, double>(kGauges[i].axisMin, kGauges[i].axisMax));
        attributes.SetAttribValue(QStringLiteral("ShowMinMaxMarker"), 2); // the program sets the band
        m_gauges[i].LoadAttributes(attributes);
        if (m_tracking[i])
            m_gauges[i].SetMinMaxMarker(m_low[i], m_high[i]);
    }
}

void HelmsmanFrame::Update(const VesselState& state)
{
    m_offTrack.SetValue(state.offTrack);
    m_distance.SetRange(state.lineLength);
    m_distance.SetValue(state.alongTrack);
    const double values[] = { -state.draught, state.dredgeHead, state.tide };
    for (size_t i = 0; i < m_gauges.size(); ++i) {
        if (!m_tracking[i]) {
            m_low[i] = m_high[i] = values[i];
            m_tracking[i] = true;
        }
        m_low[i] = std::min(m_low[i], values[i]);
        m_high[i] = std::max(m_high[i], values[i]);
        m_gauges[i].SetMinMaxMarker(m_low[i], m_high[i]);
        m_gauges[i].SetDeltaValue(values[i]);
    }
}

QRect HelmsmanFrame::OffTrackRect(const QRect& area) const
{
    return QRect(area.left() + 8, area.top() + 8, area.width() - 90, 34);
}

QRect HelmsmanFrame::DistanceRect(const QRect& area) const
{
    return QRect(area.right() - 60, area.top() + 8, 44, area.height() - 16);
}

QRect HelmsmanFrame::GaugeRect(const QRect& area) const
{
    return QRect(area.left() + 8, area.top() + 72, area.width() - 90, area.height() - 80);
}

void HelmsmanFrame::Paint(QPainter* painter, const QRect& area)
{
    m_lastArea = area;
    const ColorControl& colors = ColorControl::Instance();
    if (colors.GetLightMode() != m_colourMode)
        ApplyColours(colors.GetLightMode());
    painter->fillRect(area, toQColor(colors.GetColor(RGB(245, 245, 240), false)));

    // The off-track meter measures from the painter's origin: move the origin to its corner.
    const QRect offTrack = OffTrackRect(area);
    painter->save();
    painter->translate(offTrack.topLeft());
    m_offTrack.Draw(painter, QRect(QPoint(0, 0), offTrack.size()));
    painter->restore();

    m_distance.Draw(painter, DistanceRect(area));
    const QRect gauges = GaugeRect(area);
    for (UpDownIndicator& gauge : m_gauges)
        gauge.Draw(painter, gauges);
}

bool HelmsmanFrame::ClickAt(const QPoint& point)
{
    for (size_t i = 0; i < m_gauges.size(); ++i) {
        if (m_gauges[i].CheckResetBtn(point)) {
            m_tracking[i] = false; // the next value starts the band afresh
            return true;
        }
    }
    return false;
}
