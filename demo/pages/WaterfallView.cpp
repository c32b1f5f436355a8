#include "pages/WaterfallView.h"

#include <QPainter>
#include <QelMfc0/colour/ColorControl.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <exception>

WaterfallView::WaterfallView(int samplesPerPing, int history, QWidget* parent)
    : QWidget(parent)
    , m_samples(std::max(1, samplesPerPing))
    , m_history(std::max(1, history))
    , m_pings(std::size_t(m_samples) * std::size_t(m_history), 0)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Rebuild();
    // A new colour mode gives new palette pixels: every kept ping is coloured again.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { Rebuild(); }, this);
}

QSize WaterfallView::sizeHint() const
{
    return { 1000, 600 };
}

QSize WaterfallView::minimumSizeHint() const
{
    return { 200, 120 };
}

void WaterfallView::SetPalette(int type, double brightness, double contrast, double gamma)
{
    if (type == m_type && brightness == m_brightness && contrast == m_contrast && gamma == m_gamma)
        return;
    m_type = type;
    m_brightness = brightness;
    m_contrast = contrast;
    m_gamma = gamma;
    Rebuild();
}

void WaterfallView::Rebuild()
{
    try {
        SonarPalette palette;
        std::vector<unsigned long> pixels;
        palette.Get_BGRA_Palette(m_type, m_brightness, m_contrast, m_gamma, pixels, 255, false);
        const auto packed = SonarPalette::Packed(pixels);
        if (packed == m_palette && !m_image.isNull())
            return;
        m_palette = packed;
        ColourAll();
        update();
        Q_EMIT paletteChanged();
    } catch (const std::exception& e) {
        qWarning("Waterfall: %s", e.what());
    }
}

void WaterfallView::FitWidth()
{
    const int width = std::clamp(int(std::lround(this->width() * devicePixelRatioF())), 1, m_samples);
    if (width == m_width && !m_image.isNull())
        return;
    try {
        FitWidth(width);
    } catch (const std::exception& e) {
        // Out of memory: nothing shows until a later size fits.
        m_image = QImage();
        m_width = 0;
        qWarning("Waterfall: %s", e.what());
    }
}

void WaterfallView::FitWidth(int width)
{
    m_width = width;
    m_columns.resize(std::size_t(width) + 1);
    for (int x = 0; x <= width; ++x)
        m_columns[std::size_t(x)] = int(qint64(x) * m_samples / width);
    m_shown.assign(std::size_t(width) * std::size_t(m_history), 0);
    for (int row = 0; row < m_history; ++row)
        Shrink(m_pings.data() + std::size_t(row) * m_samples, m_shown.data() + std::size_t(row) * width);
    m_image = QImage(width, m_history, QImage::Format_RGB32);
    ColourAll();
}

void WaterfallView::ColourAll()
{
    if (m_image.isNull())
        return;
    SonarPalette::ApplyImage(m_shown.data(), m_width, m_history, m_width, m_palette.data(),
                             reinterpret_cast<quint32*>(m_image.bits()), m_image.bytesPerLine() / 4);
}

void WaterfallView::Shrink(const std::uint8_t* ping, std::uint8_t* row) const
{
    if (m_width == m_samples) {
        std::memcpy(row, ping, std::size_t(m_samples));
        return;
    }
    for (int x = 0; x < m_width; ++x) {
        const int from = m_columns[std::size_t(x)], to = m_columns[std::size_t(x) + 1];
        int sum = 0;
        for (int i = from; i < to; ++i)
            sum += ping[i];
        row[x] = std::uint8_t((sum + (to - from) / 2) / (to - from));
    }
}

void WaterfallView::AddPing(const std::uint8_t* samples)
{
    if (!samples)
        return;
    FitWidth();
    if (m_image.isNull())
        return;
    m_newest = (m_newest + m_history - 1) % m_history;
    std::uint8_t* kept = m_pings.data() + std::size_t(m_newest) * m_samples;
    std::memcpy(kept, samples, std::size_t(m_samples));
    std::uint8_t* shown = m_shown.data() + std::size_t(m_newest) * m_width;
    Shrink(kept, shown);
    SonarPalette::Apply(shown, m_width, m_palette.data(), reinterpret_cast<quint32*>(m_image.scanLine(m_newest)));
    update();
}

void WaterfallView::paintEvent(QPaintEvent*)
{
    FitWidth();
    QPainter painter(this);
    if (m_image.isNull()) {
        painter.fillRect(rect(), QColor::fromRgb(m_palette[0]));
        return;
    }
    const double ratio = devicePixelRatioF();
    m_image.setDevicePixelRatio(ratio);
    const int rows = std::min(m_history, int(std::ceil(height() * ratio)));
    const double left = std::max(0.0, (width() - m_width / ratio) / 2.0);
    // The ring from the newest row to its end, then from its start: newest on top.
    const int first = std::min(rows, m_history - m_newest);
    painter.drawImage(QPointF(left, 0.0), m_image, QRect(0, m_newest, m_width, first));
    if (rows > first)
        painter.drawImage(QPointF(left, first / ratio), m_image, QRect(0, 0, m_width, rows - first));
    // Where no ping reaches, the colour of no return.
    const QColor empty = QColor::fromRgb(m_palette[0]);
    const double bottom = rows / ratio, right = left + m_width / ratio;
    if (bottom < height())
        painter.fillRect(QRectF(0.0, bottom, width(), height() - bottom), empty);
    if (left > 0.0) {
        painter.fillRect(QRectF(0.0, 0.0, left, bottom), empty);
        painter.fillRect(QRectF(right, 0.0, width() - right, bottom), empty);
    }
}
