#pragma once
// Gallery page of the sonar palette: a simulated side-scan sonar pings 20 times a second and a
// waterfall shows its returns in a sonar palette. The ramp, brightness, contrast and gamma are
// chosen above it, with a bar of the palette's colours; all of it follows the colour mode.
// The sonar pauses while the page is hidden.

#include "SideScanSimulator.h"

#include <QElapsedTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QSlider;
class QTimer;
class WaterfallView;

class SonarPage : public QWidget {
    Q_OBJECT
public:
    static constexpr double kPingRate = 20.0; // pings a second

    explicit SonarPage(QWidget* parent = nullptr);

    WaterfallView* Waterfall() const { return m_waterfall; }
    const SideScanSimulator& Sonar() const { return m_sonar; }
    // Adds the sonar's next ping to the waterfall.
    void Ping();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    // Hands the chosen ramp and shaping to the waterfall and shows the values.
    void ApplySettings();
    // Called at the display's rate: adds the pings that are due since the sonar started.
    void Tick();

    SideScanSimulator m_sonar;
    WaterfallView* m_waterfall = nullptr;
    QComboBox* m_ramp = nullptr;
    QSlider* m_brightness = nullptr;
    QSlider* m_contrast = nullptr;
    QSlider* m_gamma = nullptr;
    QLabel* m_brightnessValue = nullptr;
    QLabel* m_contrastValue = nullptr;
    QLabel* m_gammaValue = nullptr;
    QTimer* m_frames = nullptr;
    QElapsedTimer m_clock;       // since the sonar (re)started
    qint64 m_pingsAtStart = 0;   // the sonar's ping count then
};
