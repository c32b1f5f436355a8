#include <QelMfc0/controls/indicators/OffrackMeterWidget.h>

#include <QelMfc0/controls/indicators/IndicatorWidgetSupport.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/PECFont.h>

#include <QelBase/DisplayScale.h>

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace IndicatorWidgetSupport;

OffrackMeterWidget::OffrackMeterWidget(QWidget* parent)
    : QWidget(parent)
{
    m_meter.SetColor(RGB(0, 0, 0));
    m_meter.SetBkColor(RGB(255, 255, 255));
    m_meter.SetLRSideColor(RGB(255, 0, 0), RGB(0, 160, 0));
    m_meter.SetRange(5.0);
    m_meter.SetTickIntervals(2);
    m_meter.SetTolerance(1.0);
    setAttribute(Qt::WA_OpaquePaintEvent);
    RepaintOnModeChange(this);
    m_hint = minimumSizeHint();
}

OffrackMeterWidget::~OffrackMeterWidget() = default;

void OffrackMeterWidget::setValue(double value)
{
    if (Change(this, this->value(), value, [&] { m_meter.SetValue(value); }, &OffrackMeterWidget::valueChanged))
        RefreshSizeHint(this, m_hint);
}

void OffrackMeterWidget::setRange(double range)
{
    if (Change(this, this->range(), range, [&] { m_meter.SetRange(range); }, &OffrackMeterWidget::rangeChanged))
        RefreshSizeHint(this, m_hint);
}

void OffrackMeterWidget::setTickIntervals(int intervals)
{
    if (Change(this, tickIntervals(), intervals, [&] { m_meter.SetTickIntervals(intervals); },
               &OffrackMeterWidget::tickIntervalsChanged))
        updateGeometry(); // the labels' spacing in the size hint
}

void OffrackMeterWidget::setTolerance(double tolerance)
{
    Change(this, this->tolerance(), tolerance, [&] { m_meter.SetTolerance(tolerance); },
           &OffrackMeterWidget::toleranceChanged);
}

void OffrackMeterWidget::setForegroundColor(const QColor& color)
{
    Change(this, foregroundColor(), Drawn(color), [&] { m_meter.SetColor(toColorref(color)); },
           &OffrackMeterWidget::foregroundColorChanged);
}

void OffrackMeterWidget::setBackgroundColor(const QColor& color)
{
    Change(this, backgroundColor(), Drawn(color), [&] { m_meter.SetBkColor(toColorref(color)); },
           &OffrackMeterWidget::backgroundColorChanged);
}

void OffrackMeterWidget::setLeftSideColor(const QColor& color)
{
    Change(this, leftSideColor(), Drawn(color),
           [&] { m_meter.SetLRSideColor(toColorref(color), m_meter.GetRightSideColor()); },
           &OffrackMeterWidget::leftSideColorChanged);
}

void OffrackMeterWidget::setRightSideColor(const QColor& color)
{
    Change(this, rightSideColor(), Drawn(color),
           [&] { m_meter.SetLRSideColor(m_meter.GetLeftSideColor(), toColorref(color)); },
           &OffrackMeterWidget::rightSideColorChanged);
}

int OffrackMeterWidget::TextHeight() const
{
    PECFont font;
    if (!font.Create(m_meter.GetFont(), this))
        return fontMetrics().height();
    return QFontMetrics(font, this).height();
}

QSize OffrackMeterWidget::LabelSize() const
{
    // The widest label is that of the outermost tick, or the value itself.
    PECFont font;
    const QFontMetrics metrics = font.Create(m_meter.GetFont(), this) ? QFontMetrics(font, this) : fontMetrics();
    int width = metrics.horizontalAdvance(OffrackMeter::FormatReading(value()));
    width = std::max(width, metrics.horizontalAdvance(OffrackMeter::FormatReading(-m_meter.GetLargestTickValue())));
    return { width, metrics.height() };
}

QRect OffrackMeterWidget::barRect() const
{
    return QRect(0, 0, width(), std::max(0, height() - TextHeight() - 1));
}

QSize OffrackMeterWidget::minimumSizeHint() const
{
    // The bar holds the labels between the upper and lower tick marks; the value text lies
    // below it.
    const QSize label = LabelSize();
    const int bar = label.height() + 2 * OffrackMeter::kTickLength + 1;
    return { label.width() + 2, bar + 1 + TextHeight() };
}

QSize OffrackMeterWidget::sizeHint() const
{
    // Wide enough for the labels of neighbouring ticks to stand apart, and a bar a little
    // higher than its labels.
    constexpr int kWidest = 1200;
    const QSize minimum = minimumSizeHint();
    const double step = m_meter.GetTickInterval();
    const int gap = DpiCor(6);
    double width = DpiCor(200);
    if (step > 0.0)
        width = std::max(width, (LabelSize().width() + gap) * 2.0 * range() / step);
    return { std::max(minimum.width(), int(std::ceil(std::min(width, double(DpiCor(kWidest)))))),
             minimum.height() + DpiCor(12) };
}

void OffrackMeterWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(ColorControl::Instance().GetColor(m_meter.GetBkColor(), false)));
    m_meter.Draw(&painter, barRect(), this);
}
