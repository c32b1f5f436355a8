#pragma once
// A sonar waterfall: the last pings of 8-bit intensities, the newest on top, coloured by a
// sonar palette as the colour mode shows it. Each ping is coloured once, when it arrives, into
// a ring of image rows; painting draws the ring in two pieces, so the picture scrolls without
// copying. When the view is narrower than a ping, neighbouring samples are averaged.

#include <QImage>
#include <QWidget>
#include <QelMfc0/dialogs/colourtables/SonarPalette.h>
#include <array>
#include <cstdint>
#include <vector>

class WaterfallView : public QWidget {
    Q_OBJECT
public:
    // A view of pings of `samplesPerPing` samples keeping the last `history` of them.
    explicit WaterfallView(int samplesPerPing, int history = 1000, QWidget* parent = nullptr);

    int SamplesPerPing() const { return m_samples; }
    int History() const { return m_history; }

    // Adds a ping of SamplesPerPing() samples on top and repaints.
    void AddPing(const std::uint8_t* samples);
    // Colours with ramp `type` shaped by brightness and contrast (-25 ... 25) and gamma
    // (0 ... 10); every kept ping is coloured again when anything changed.
    void SetPalette(int type, double brightness, double contrast, double gamma);
    int RampType() const { return m_type; }
    // The 256 pixels (0xffRRGGBB) intensities are drawn with, in the current colour mode.
    const std::array<quint32, SonarPalette::kEntries>& Palette() const { return m_palette; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The palette's pixels changed (new settings or a new colour mode).
    void paletteChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Builds the palette for the current settings and colour mode and colours every row again.
    void Rebuild();
    // Makes the rings as wide as the view's device pixels (at most a ping) when they are not.
    void FitWidth();
    void FitWidth(int width);
    // Averages a ping down to the ring's width.
    void Shrink(const std::uint8_t* ping, std::uint8_t* row) const;
    void ColourAll();

    int m_samples;
    int m_history;
    int m_width = 0;                  // pixels per row of the rings
    int m_newest = 0;                 // ring row of the newest ping
    std::vector<std::uint8_t> m_pings; // history x samples, as received
    std::vector<std::uint8_t> m_shown; // history x width, as shown
    std::vector<int> m_columns;        // first sample of each shown column, and the end
    QImage m_image;                    // history x width, coloured
    int m_type = SonarPalette::SeaGreenRamp;
    double m_brightness = 0.0, m_contrast = 0.0, m_gamma = 0.0;
    std::array<quint32, SonarPalette::kEntries> m_palette {};
};
