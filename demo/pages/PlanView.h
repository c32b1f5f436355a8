#pragma once
// A small plan of the sample survey area on one scale in both directions: the kilometre grid
// labelled with eastings and northings, a circular shoal in depth bands, the run line and the
// vessel sailing it. Clicking picks a grid position; with two picks the plan shows the distance
// and bearing between them.

#include <QWidget>
#include <QelBase/Point.h>

class QPainter;
class QTimer;

class PlanView : public QWidget {
    Q_OBJECT
public:
    explicit PlanView(QWidget* parent = nullptr);

    // The run line's ends and the vessel's current position, in chart grid metres.
    Point RunLineStart() const;
    Point RunLineEnd() const;
    Point VesselPosition() const;
    // The two most recently picked positions (the older first); markers are drawn at both.
    void SetPicks(const Point& first, const Point& second, int count);
    // Grid position of a widget position and back. One metre is the same number of pixels
    // east and north.
    Point ToGrid(const QPointF& pixel) const;
    QPointF ToPixel(const Point& grid) const;
    // Distance and bearing from the first pick to the second in the chart's grid, as the plan
    // shows them; empty with fewer than two picks.
    QString MeasuredText() const;

    QSize minimumSizeHint() const override;

signals:
    // A position was picked with the mouse; z is the sounded depth there (metres, negative down).
    void picked(const Point& position);
    // The vessel moved along the run line.
    void vesselMoved(const Point& position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    double DepthAt(double x, double y) const;
    // Where the area is drawn: the widget less room for the labels, on one scale, centred.
    QRectF ChartRect() const;
    double PixelsPerMetre() const;
    void PaintGrid(QPainter& p, const QRectF& chart) const;
    void PaintMeasurement(QPainter& p) const;

    QRectF m_area;        // grid extent shown, metres
    double m_along = 0.0; // vessel progress along the run line, 0..1
    Point m_picks[2];
    int m_pickCount = 0;
    QTimer* m_timer = nullptr;
};
