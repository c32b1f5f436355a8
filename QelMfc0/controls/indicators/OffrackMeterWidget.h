#pragma once
// A widget that shows one off-track meter (OffrackMeter): the bar with its scale and tolerance
// wedges over the widget's width, the value text in a line of its own below the bar.
//
// Every setting is a property that notifies with the new value, and only when the value
// really changes. The foreground and background colours follow the display's colour mode
// (converted when painting; the widget repaints when the mode changes); the two side colours
// are drawn as they are. The widget is cleared to the background colour before the meter paints.

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/controls/indicators/OffrackMeter.h>

#include <QColor>
#include <QWidget>

class QELMFC0_EXPORT OffrackMeterWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double range READ range WRITE setRange NOTIFY rangeChanged)
    Q_PROPERTY(int tickIntervals READ tickIntervals WRITE setTickIntervals NOTIFY tickIntervalsChanged)
    Q_PROPERTY(double tolerance READ tolerance WRITE setTolerance NOTIFY toleranceChanged)
    Q_PROPERTY(QColor foregroundColor READ foregroundColor WRITE setForegroundColor NOTIFY foregroundColorChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor leftSideColor READ leftSideColor WRITE setLeftSideColor NOTIFY leftSideColorChanged)
    Q_PROPERTY(QColor rightSideColor READ rightSideColor WRITE setRightSideColor NOTIFY rightSideColorChanged)

public:
    // A scale of -5..5 in 2 intervals a side, tolerance 1, value 0; black on white, the left
    // side red and the right side green.
    explicit OffrackMeterWidget(QWidget* parent = nullptr);
    ~OffrackMeterWidget() override;

    // The off-track distance: negative left of the line, positive right.
    double value() const { return m_meter.GetValue(); }
    void setValue(double value);
    // Half-width of the scale: the bar spans -range .. +range.
    double range() const { return m_meter.GetRange(); }
    void setRange(double range);
    // Intervals a side, before rounding the step to the 1-2-5 series.
    int tickIntervals() const { return m_meter.GetTickIntervals(); }
    void setTickIntervals(int intervals);
    // Where the two tolerance wedges stand, at +tolerance and -tolerance.
    double tolerance() const { return m_meter.GetTolerance(); }
    void setTolerance(double tolerance);

    // Outline, ticks, labels and value text.
    QColor foregroundColor() const { return toQColor(m_meter.GetColor()); }
    void setForegroundColor(const QColor& color);
    // The widget's fill, the tolerance wedges and the value's cell.
    QColor backgroundColor() const { return toQColor(m_meter.GetBkColor()); }
    void setBackgroundColor(const QColor& color);
    // The bar for negative and positive values.
    QColor leftSideColor() const { return toQColor(m_meter.GetLeftSideColor()); }
    void setLeftSideColor(const QColor& color);
    QColor rightSideColor() const { return toQColor(m_meter.GetRightSideColor()); }
    void setRightSideColor(const QColor& color);

    // The meter as drawn, for hosts that draw it elsewhere too.
    const OffrackMeter& meter() const { return m_meter; }
    // The rectangle the bar takes; the value text lies below it.
    QRect barRect() const;

    // Room for the value text below the bar and for the scale's labels side by side.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void valueChanged(double value);
    void rangeChanged(double range);
    void tickIntervalsChanged(int intervals);
    void toleranceChanged(double tolerance);
    void foregroundColorChanged(const QColor& color);
    void backgroundColorChanged(const QColor& color);
    void leftSideColorChanged(const QColor& color);
    void rightSideColorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int TextHeight() const;
    QSize LabelSize() const;

    OffrackMeter m_meter;
    QSize m_hint; // the minimum size hint last given to the layout
};
