#pragma once
// A small plan view of the sample survey area: grid, shoal, run line and the vessel sailing it.
// Clicking picks a grid position.

#include <QWidget>
#include <QelBase/Point.h>

class QTimer;

class PlanView : public QWidget {
    Q_OBJECT
public:
    explicit PlanView(QWidget* parent = nullptr);

    // The run line's ends and the vessel's current position, in project grid metres.
    Point RunLineStart() const;
    Point RunLineEnd() const;
    Point VesselPosition() const;
    // The two most recently picked positions (the older first); markers are drawn at both.
    void SetPicks(const Point& first, const Point& second, int count);
    // Grid position of a widget position and back.
    Point ToGrid(const QPointF& pixel) const;
    QPointF ToPixel(const Point& grid) const;

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

    QRectF m_area;        // grid extent shown, metres
    double m_along = 0.0; // vessel progress along the run line, 0..1
    Point m_picks[2];
    int m_pickCount = 0;
    QTimer* m_timer = nullptr;
};
