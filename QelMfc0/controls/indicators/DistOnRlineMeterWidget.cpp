#include <QelMfc0/controls/indicators/DistOnRlineMeterWidget.h>

#include <QelMfc0/controls/indicators/IndicatorWidgetSupport.h>

#include <QelBase/DisplayScale.h>

#include <QPainter>

using namespace IndicatorWidgetSupport;

DistOnRlineMeterWidget::DistOnRlineMeterWidget(QWidget* parent)
    : QWidget(parent)
{
    m_meter.SetColor(RGB(0, 0, 255));
    m_meter.SetBkColor(RGB(255, 255, 255));
    m_meter.SetRange(100.0);
    setAttribute(Qt::WA_OpaquePaintEvent);
    RepaintOnModeChange(this);
}

DistOnRlineMeterWidget::~DistOnRlineMeterWidget() = default;

void DistOnRlineMeterWidget::setValue(double value)
{
    Change(this, this->value(), value, [&] { m_meter.SetValue(value); }, &DistOnRlineMeterWidget::valueChanged);
}

void DistOnRlineMeterWidget::setRange(double range)
{
    Change(this, this->range(), range, [&] { m_meter.SetRange(range); }, &DistOnRlineMeterWidget::rangeChanged);
}

void DistOnRlineMeterWidget::setBarColor(const QColor& color)
{
    Change(this, barColor(), Drawn(color), [&] { m_meter.SetColor(toColorref(color)); },
           &DistOnRlineMeterWidget::barColorChanged);
}

void DistOnRlineMeterWidget::setBackgroundColor(const QColor& color)
{
    Change(this, backgroundColor(), Drawn(color), [&] { m_meter.SetBkColor(toColorref(color)); },
           &DistOnRlineMeterWidget::backgroundColorChanged);
}

QSize DistOnRlineMeterWidget::sizeHint() const
{
    return { DpiCor(20), DpiCor(120) };
}

QSize DistOnRlineMeterWidget::minimumSizeHint() const
{
    return { DpiCor(6), DpiCor(20) };
}

void DistOnRlineMeterWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // With a range that cannot be drawn the meter paints nothing: the background shows.
    painter.fillRect(rect(), toQColor(ColorControl::Instance().GetColor(m_meter.GetBkColor(), false)));
    m_meter.Draw(&painter, rect());
}
