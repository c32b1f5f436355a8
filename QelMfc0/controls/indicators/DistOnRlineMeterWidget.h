#pragma once
// A widget that shows one distance-on-run-line meter (DistOnRlineMeter) over its whole area: a
// vertical bar filled from the bottom in proportion to value / range.
//
// Every setting is a property that notifies with the new value, and only when the value
// really changes. Both colours follow the display's colour mode (converted when painting; the
// widget repaints when the mode changes).

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/controls/indicators/DistOnRlineMeter.h>

#include <QColor>
#include <QWidget>

class QELMFC0_EXPORT DistOnRlineMeterWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double range READ range WRITE setRange NOTIFY rangeChanged)
    Q_PROPERTY(QColor barColor READ barColor WRITE setBarColor NOTIFY barColorChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)

public:
    // A range of 100, value 0; a blue bar on white.
    explicit DistOnRlineMeterWidget(QWidget* parent = nullptr);
    ~DistOnRlineMeterWidget() override;

    // The distance travelled along the run line.
    double value() const { return m_meter.GetValue(); }
    void setValue(double value);
    // The distance that fills the whole bar.
    double range() const { return m_meter.GetRange(); }
    void setRange(double range);
    // The bar's fill.
    QColor barColor() const { return toQColor(m_meter.GetColor()); }
    void setBarColor(const QColor& color);
    // The colour the meter is cleared to.
    QColor backgroundColor() const { return toQColor(m_meter.GetBkColor()); }
    void setBackgroundColor(const QColor& color);

    // The meter as drawn, for hosts that draw it elsewhere too.
    const DistOnRlineMeter& meter() const { return m_meter; }

    // A slim, upright bar.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void valueChanged(double value);
    void rangeChanged(double range);
    void barColorChanged(const QColor& color);
    void backgroundColorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DistOnRlineMeter m_meter;
};
