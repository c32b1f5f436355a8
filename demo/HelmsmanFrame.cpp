#include "HelmsmanFrame.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelBase/NumberUtils.h>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/PECFont.h>
#include <QelMfc0/colour/ColorControl.h>

#include <algorithm>
#include <cmath>

namespace {

struct GaugeSetup {
    const char* title;
    double axisMin, axisMax;
    double reference;
};

// Draught below the waterline, the dredge head against its design depth, the tide level.
const GaugeSetup kGauges[HelmsmanFrame::kGaugeCount] = {
    { QT_TRANSLATE_NOOP("HelmsmanFrame", "Draught"), -8.0, -4.0, -6.0 },
    { QT_TRANSLATE_NOOP("HelmsmanFrame", "Dredge head"), -18.0, -10.0, -14.0 },
    { QT_TRANSLATE_NOOP("HelmsmanFrame", "Tide"), -2.0, 2.0, 0.0 },
};

// The survey's off-track scale and tolerance, in metres.
constexpr double kOffTrackRange = 10.0;
constexpr double kOffTrackTolerance = 2.5;
constexpr int kOffTrackIntervals = 4;

// Day colours; each is drawn as the colour mode's counterpart, asked for at paint time. The
// signal colours are the gauge's own defaults (and port red, starboard green), which the
// colour maps turn into dim colours of the same hue.
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kPort = RGB(225, 0, 0);
constexpr COLORREF kStarboard = RGB(0, 128, 0);
constexpr COLORREF kAbove = RGB(128, 128, 0);
constexpr COLORREF kInside = RGB(0, 128, 0);
constexpr COLORREF kBelow = RGB(225, 0, 0);
constexpr COLORREF kPane = RGB(200, 205, 210);
constexpr COLORREF kPointer = RGB(255, 255, 225);
constexpr COLORREF kLabel = RGB(224, 224, 224);
constexpr COLORREF kAlongFill = RGB(255, 128, 0);

constexpr int kMeterFontSize = 10;
constexpr int kGaugeFontSize = 10;
constexpr int kGap = 8;
constexpr int kGaugeGap = 24;
constexpr int kBarHeight = 34;
constexpr int kStripWidth = 26;

COLORREF ModeRef(COLORREF color)
{
    return ColorControl::Instance().GetColor(color, false);
}

QColor Mode(COLORREF color)
{
    return toQColor(ModeRef(color));
}

const ProjectDefinition* Project()
{
    return DataSearch::GetDataSearch().GetProjectDefinition();
}

// Metres in the project's unit of a kind, and that unit's abbreviation ("m" without a project).
double InUnit(int kind, double metres)
{
    const ProjectDefinition* project = Project();
    return project ? project->GetUnitCnv().ToExternalUnit(kind, metres) : metres;
}

QString UnitOf(int kind)
{
    const ProjectDefinition* project = Project();
    const QString mnemonic = project ? project->GetUnitCnv().GetUnitMnem(kind) : QString();
    return mnemonic.isEmpty() ? QStringLiteral("m") : mnemonic;
}

int DistanceDecimals()
{
    int decimals = 2;
    if (const ProjectDefinition* project = Project())
        project->GetDistanceDecimals(decimals);
    return std::clamp(decimals, 0, 15);
}

QFont TitleFont(const QPainter* painter)
{
    PECFont font;
    font.Create(QStringLiteral("Arial"), 9, false, true, painter->device(), true);
    return font;
}

QFont SmallFont(const QPainter* painter)
{
    PECFont font;
    font.Create(QStringLiteral("Arial"), 8, false, false, painter->device(), true);
    return font;
}

int TitleHeight()
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSize(9);
    font.setBold(true);
    return QFontMetrics(font).height();
}

int MeterTextHeight()
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSize(kMeterFontSize);
    return QFontMetrics(font).height();
}

} // namespace

HelmsmanFrame::HelmsmanFrame()
{
    m_offTrack.SetFont(FontInfo(QStringLiteral("Arial"), kMeterFontSize, false, false, 0));
    m_offTrack.SetRange(kOffTrackRange);
    m_offTrack.SetTickIntervals(kOffTrackIntervals);
    m_offTrack.SetTolerance(kOffTrackTolerance);
    for (int i = 0; i < kGaugeCount; ++i) {
        UpDownIndicator& gauge = m_gauges[size_t(i)];
        CAttributeMap attributes;
        attributes.SetAttribValue(ATTR_FONTSIZE, kGaugeFontSize);
        attributes.SetAttribValue(ATTR_YAXISRANGE, QPair<double, double>(kGauges[i].axisMin, kGauges[i].axisMax));
        attributes.SetAttribValue(UpDownIndicator::ATTR_SHOWMINMAXMARKER, UpDownIndicator::MARKERS_PROGRAM);
        gauge.LoadAttributes(attributes);
        gauge.SetItemName(tr("dashed: lowest and highest since reset"));
        gauge.SetRefValue(kGauges[i].reference);
        gauge.ShowResetButton(true);
    }
    ApplyColours();
}

void HelmsmanFrame::ApplyColours()
{
    // The meters take their colours through the colour mode themselves, except the side and
    // band colours, which they draw as given: those are converted here, at every paint.
    m_offTrack.SetColor(kInk);
    m_offTrack.SetBkColor(kPaper);
    m_offTrack.SetLRSideColor(ModeRef(kPort), ModeRef(kStarboard));
    m_distance.SetColor(kAlongFill);
    m_distance.SetBkColor(kPaper);
    CAttributeMap attributes;
    attributes.SetAttribColor(ATTR_ABOVECOLOR, ModeRef(kAbove));
    attributes.SetAttribColor(UpDownIndicator::ATTR_INSIDECOLOR, ModeRef(kInside));
    attributes.SetAttribColor(ATTR_BELOWCOLOR, ModeRef(kBelow));
    attributes.SetAttribColor(ATTR_PANECOLOR, kPane);
    attributes.SetAttribColor(ATTR_TEXTCOLOR, kInk);
    attributes.SetAttribColor(ATTR_BCKGNDCOLOR, kPointer);
    attributes.SetAttribColor(UpDownIndicator::ATTR_LABELBACKGROUNDCOLOR, kLabel);
    for (UpDownIndicator& gauge : m_gauges)
        gauge.LoadAttributes(attributes);
}

void HelmsmanFrame::Update(const VesselState& state)
{
    m_state = state;
    m_offTrack.SetValue(InUnit(UNIT_DISTANCE, state.offTrack));
    m_distance.SetRange(InUnit(UNIT_DISTANCE, state.lineLength));
    m_distance.SetValue(InUnit(UNIT_DISTANCE, state.alongTrack));
    const double values[kGaugeCount] = { -state.draught, state.dredgeHead, state.tide };
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

QRect HelmsmanFrame::DistanceRect(const QRect& area) const
{
    // The strip on the right, under its two title lines, above its value.
    const int top = area.top() + kGap + 2 * TitleHeight() + kGap;
    const int bottom = area.bottom() - kGap - MeterTextHeight() - kGap;
    return QRect(area.right() - kGap - kStripWidth, top, kStripWidth, std::max(0, bottom - top));
}

QRect HelmsmanFrame::OffTrackRect(const QRect& area) const
{
    // Left of the distance strip and its scale labels, under the title line.
    const int right = area.right() - kGap - kStripWidth - 64;
    return QRect(area.left() + kGap, area.top() + kGap + TitleHeight() + 4, std::max(0, right - area.left() - kGap), kBarHeight);
}

QRect HelmsmanFrame::GaugeRect(const QRect& area, int index) const
{
    // Side by side under the off-track value, each under its title, apart from each other.
    const QRect bar = OffTrackRect(area);
    const int top = bar.bottom() + 1 + MeterTextHeight() + kGap + TitleHeight() + 4;
    const int height = std::max(0, area.bottom() - kGap - top);
    const int width = std::max(0, (bar.width() - (kGaugeCount - 1) * kGaugeGap) / kGaugeCount);
    return QRect(bar.left() + index * (width + kGaugeGap), top, width, height);
}

double HelmsmanFrame::FittedRange(QPainter* painter, double nominal, int width) const
{
    // The end ticks stand at the scale's ends and their labels are centred on them: widen
    // the scale until half the widest label fits between the outermost tick and the end.
    PECFont font;
    font.Create(QStringLiteral("Arial"), kMeterFontSize, false, false, painter->device(), true);
    const QFontMetrics metrics(font, painter->device());
    double range = nominal;
    OffrackMeter probe(m_offTrack);
    for (int pass = 0; pass < 4; ++pass) {
        probe.SetRange(range);
        const double largest = probe.GetLargestTickValue();
        const int label = metrics.horizontalAdvance(QString::number(-largest, 'f', DistanceDecimals())) + 4;
        if (largest <= 0.0 || width <= label)
            break;
        const double needed = largest * width / double(width - label);
        if (needed <= range)
            break;
        range = std::max(nominal, needed);
    }
    return range;
}

void HelmsmanFrame::Paint(QPainter* painter, const QRect& area)
{
    m_lastArea = area;
    painter->save();
    painter->fillRect(area, Mode(kPaper));
    ApplyColours();
    PaintOffTrack(painter, area);
    PaintDistance(painter, area);
    PaintGauges(painter, area);
    painter->restore();
}

void HelmsmanFrame::PaintOffTrack(QPainter* painter, const QRect& area)
{
    const QRect bar = OffTrackRect(area);
    if (bar.width() < 40)
        return;
    // Title and the two sides above the bar.
    painter->setPen(Mode(kInk));
    painter->setFont(TitleFont(painter));
    const QRect titleRow(bar.left(), area.top() + kGap, bar.width(), TitleHeight());
    painter->drawText(titleRow, Qt::AlignHCenter | Qt::AlignVCenter, tr("Off track (%1)").arg(UnitOf(UNIT_DISTANCE)));
    painter->setFont(SmallFont(painter));
    painter->drawText(titleRow, Qt::AlignLeft | Qt::AlignVCenter, tr("\u25C0 left of the line"));
    painter->drawText(titleRow, Qt::AlignRight | Qt::AlignVCenter, tr("right of the line \u25B6"));

    // The fitted range depends only on the width, the unit and the decimals: worked out again
    // when one of them changes.
    const double nominal = InUnit(UNIT_DISTANCE, kOffTrackRange);
    const int decimals = DistanceDecimals();
    if (bar.width() != m_fittedFor.width || nominal != m_fittedFor.nominal || decimals != m_fittedFor.decimals) {
        m_fittedFor = { bar.width(), nominal, decimals, FittedRange(painter, nominal, bar.width()) };
    }
    m_offTrack.SetRange(m_fittedFor.range);
    m_offTrack.SetTolerance(InUnit(UNIT_DISTANCE, kOffTrackTolerance));
    // The meter measures from the painter's origin: move the origin to its corner.
    painter->save();
    painter->translate(bar.topLeft());
    const QRect local(QPoint(0, 0), bar.size());
    painter->fillRect(local, Mode(kPaper));
    painter->setPen(Mode(kInk));
    painter->setBrush(Qt::NoBrush);
    m_offTrack.Draw(painter, local);
    painter->setClipping(false);
    painter->setPen(Mode(kInk));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(local.adjusted(0, 0, -1, -1));
    painter->restore();
}

void HelmsmanFrame::PaintDistance(QPainter* painter, const QRect& area)
{
    const QRect strip = DistanceRect(area);
    if (strip.height() < 20)
        return;
    const double range = InUnit(UNIT_DISTANCE, m_state.lineLength);
    // Two title lines over the strip and its scale.
    painter->setPen(Mode(kInk));
    painter->setFont(TitleFont(painter));
    const int labelWidth = 64;
    const QRect column(strip.right() - kStripWidth - labelWidth, area.top() + kGap, labelWidth + kStripWidth + 1, TitleHeight());
    painter->drawText(column, Qt::AlignRight | Qt::AlignVCenter, tr("Along line"));
    painter->drawText(column.translated(0, TitleHeight()), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("(%1)").arg(UnitOf(UNIT_DISTANCE)));

    m_distance.Draw(painter, strip);
    painter->setPen(Mode(kInk));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(strip.adjusted(0, 0, -1, -1));

    // A scale on its left: ticks and labels at a rounded step, from the line's start.
    painter->setFont(SmallFont(painter));
    const QFontMetrics metrics = painter->fontMetrics();
    if (range > 0.0 && std::isfinite(range)) {
        // At most one label per two text lines: the next 1-2-5 step up when the nearest is too fine.
        const int wanted = std::max(1, strip.height() / (2 * metrics.height()));
        double step = Double125(range / wanted);
        for (int i = 0; i < 3 && step > 0.0 && range / step > wanted; ++i)
            step = Double125(step * 2.2);
        for (double v = 0.0; step > 0.0 && v <= range * (1.0 + 1e-9); v += step) {
            const int y = strip.bottom() - int(std::lround(v / range * (strip.height() - 1)));
            painter->drawLine(strip.left() - 5, y, strip.left() - 1, y);
            painter->drawText(QRect(strip.left() - 6 - labelWidth, y - metrics.height() / 2, labelWidth - 2, metrics.height()),
                              Qt::AlignRight | Qt::AlignVCenter, QString::number(v, 'f', 0));
        }
    }
    // The value under the strip.
    painter->setFont(TitleFont(painter));
    const QelFormatter formatter;
    painter->drawText(QRect(column.left(), strip.bottom() + kGap / 2, column.width(), MeterTextHeight() + kGap),
                      Qt::AlignRight | Qt::AlignTop, formatter.FormatDistance(m_state.alongTrack));
}

void HelmsmanFrame::PaintGauges(QPainter* painter, const QRect& area)
{
    const QString unit = UnitOf(UNIT_DEPTH);
    for (int i = 0; i < kGaugeCount; ++i) {
        const QRect gauge = GaugeRect(area, i);
        if (gauge.width() < 40 || gauge.height() < 40)
            continue;
        painter->setPen(Mode(kInk));
        painter->setFont(TitleFont(painter));
        painter->drawText(QRect(gauge.left(), gauge.top() - TitleHeight() - 4, gauge.width(), TitleHeight()), Qt::AlignHCenter | Qt::AlignBottom,
                          tr("%1 (%2)").arg(tr(kGauges[i].title), unit));
        // Texts are drawn on their own cells, as in a device context, so that the band's
        // dashed lines pass under the value rather than through it.
        painter->save();
        painter->setBackgroundMode(Qt::OpaqueMode);
        painter->setBackground(Mode(kLabel));
        m_gauges[size_t(i)].Draw(painter, gauge);
        painter->restore();
    }
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

QString HelmsmanFrame::ToolTipAt(const QPoint& point) const
{
    if (m_lastArea.isNull())
        return QString();
    for (int i = 0; i < kGaugeCount; ++i)
        if (m_gauges[size_t(i)].CheckResetBtn(point))
            return tr("Reset the %1 band: the dashed lowest and highest lines start again from the current value").arg(tr(kGauges[i].title).toLower());
    for (int i = 0; i < kGaugeCount; ++i)
        if (GaugeRect(m_lastArea, i).contains(point))
            return tr("%1: the bar runs from the reference to the current value; between the dashed lines it is green").arg(tr(kGauges[i].title));
    if (OffTrackRect(m_lastArea).adjusted(0, 0, 0, MeterTextHeight()).contains(point))
        return tr("Distance from the run line; the wedges mark the tolerance");
    if (DistanceRect(m_lastArea).contains(point))
        return tr("Distance sailed along the run line");
    return QString();
}
