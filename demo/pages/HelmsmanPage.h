#pragma once
// Gallery page of the navigation indicators: a simulated vessel sails a run line of the
// sample project at 10 Hz and the helmsman's instruments follow it.

#include <QWidget>

#include "HelmsmanFrame.h"

class VesselSimulator;

class HelmsmanPage : public QWidget {
    Q_OBJECT
public:
    explicit HelmsmanPage(QWidget* parent = nullptr);

protected:
    // Tool tips name what the instruments show and what the reset buttons do.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    HelmsmanFrame m_frame;
    VesselSimulator* m_vessel = nullptr;
};
