#include "pages/SonarPage.h"

#include "pages/WaterfallView.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QScreen>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <algorithm>
#include <cmath>

namespace {
// The palette's 256 colours from weak (left) to strong returns.
class PaletteBar : public QWidget {
public:
    explicit PaletteBar(const WaterfallView* view, QWidget* parent)
        : QWidget(parent)
        , m_view(view)
    {
        setMinimumSize(256, 16);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const auto& palette = m_view->Palette();
        const QImage strip(reinterpret_cast<const uchar*>(palette.data()), int(palette.size()), 1, QImage::Format_RGB32);
        QPainter painter(this);
        const QRect bar = rect().adjusted(1, 1, -1, -1);
        painter.drawImage(bar, strip);
        painter.setPen(toQColor(ColorControl::Instance().GetColor(RGB(96, 96, 96), false)));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    const WaterfallView* m_view;
};

// The slider's number, as the slider shows it.
QLabel* ValueLabel(const QString& widest, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest) + 4);
    return label;
}

QSlider* Slider(const QString& name, int low, int high, int value, QWidget* parent)
{
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setObjectName(name);
    slider->setRange(low, high);
    slider->setValue(value);
    slider->setMinimumWidth(120);
    return slider;
}

// Pings of the history shown when the page first appears: the wreck and the pipeline in view.
constexpr int kFirstPings = 760;
} // namespace

SonarPage::SonarPage(QWidget* parent)
    : QWidget(parent)
    , m_sonar(2026)
{
    m_waterfall = new WaterfallView(m_sonar.Width(), 1000, this);
    m_waterfall->setObjectName(QStringLiteral("waterfall"));

    auto* layout = new QVBoxLayout(this);
    auto* controls = new QHBoxLayout;
    auto* rampLabel = new QLabel(tr("&Colours:"), this);
    m_ramp = new QComboBox(this);
    m_ramp->setObjectName(QStringLiteral("ramp"));
    // In the order of SonarPalette::RampType.
    m_ramp->addItems({ tr("Sea green"), tr("Grey"), tr("Rainbow"), tr("Copper"), tr("Inverted grey"), tr("Fire") });
    rampLabel->setBuddy(m_ramp);
    controls->addWidget(rampLabel);
    controls->addWidget(m_ramp);
    controls->addSpacing(12);

    const QLocale locale;
    m_brightness = Slider(QStringLiteral("brightness"), -25, 25, 0, this);
    m_contrast = Slider(QStringLiteral("contrast"), -25, 25, 0, this);
    m_gamma = Slider(QStringLiteral("gamma"), 0, 100, 0, this);
    m_brightnessValue = ValueLabel(locale.toString(-25), this);
    m_contrastValue = ValueLabel(locale.toString(-25), this);
    m_gammaValue = ValueLabel(locale.toString(10.0, 'f', 1), this);
    const auto addSlider = [&](const QString& text, QSlider* slider, QLabel* value) {
        auto* label = new QLabel(text, this);
        label->setBuddy(slider);
        controls->addWidget(label);
        controls->addWidget(slider, 1);
        controls->addWidget(value);
        controls->addSpacing(12);
    };
    addSlider(tr("&Brightness:"), m_brightness, m_brightnessValue);
    addSlider(tr("C&ontrast:"), m_contrast, m_contrastValue);
    addSlider(tr("&Gamma:"), m_gamma, m_gammaValue);
    layout->addLayout(controls);

    auto* key = new QHBoxLayout;
    auto* bar = new PaletteBar(m_waterfall, this);
    bar->setObjectName(QStringLiteral("paletteBar"));
    key->addWidget(new QLabel(tr("Weak"), this));
    key->addWidget(bar, 1);
    key->addWidget(new QLabel(tr("Strong"), this));
    layout->addLayout(key);
    layout->addWidget(m_waterfall, 1);

    connect(m_waterfall, &WaterfallView::paletteChanged, bar, qOverload<>(&QWidget::update));
    connect(m_ramp, &QComboBox::currentIndexChanged, this, &SonarPage::ApplySettings);
    for (QSlider* slider : { m_brightness, m_contrast, m_gamma })
        connect(slider, &QSlider::valueChanged, this, &SonarPage::ApplySettings);
    ApplySettings();

    // Pings are due at the sonar's rate; the picture moves at the display's.
    m_frames = new QTimer(this);
    m_frames->setTimerType(Qt::PreciseTimer);
    connect(m_frames, &QTimer::timeout, this, &SonarPage::Tick);
}

void SonarPage::ApplySettings()
{
    const QLocale locale;
    m_brightnessValue->setText(locale.toString(m_brightness->value()));
    m_contrastValue->setText(locale.toString(m_contrast->value()));
    m_gammaValue->setText(locale.toString(m_gamma->value() / 10.0, 'f', 1));
    m_waterfall->SetPalette(m_ramp->currentIndex(), m_brightness->value(), m_contrast->value(), m_gamma->value() / 10.0);
}

void SonarPage::Ping()
{
    m_waterfall->AddPing(m_sonar.NextPing().data());
}

void SonarPage::Tick()
{
    const qint64 due = m_pingsAtStart + qint64(double(m_clock.elapsed()) * kPingRate / 1000.0);
    // After a stall, carry on from now rather than racing to catch up.
    if (due - m_sonar.PingCount() > 4) {
        m_clock.restart();
        m_pingsAtStart = m_sonar.PingCount() + 1;
        Ping();
        return;
    }
    while (m_sonar.PingCount() < due)
        Ping();
}

void SonarPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    while (m_sonar.PingCount() < kFirstPings)
        Ping();
    const QScreen* screen = this->screen();
    const double refresh = screen && screen->refreshRate() > 1.0 ? screen->refreshRate() : 60.0;
    m_frames->start(std::max(1, int(std::floor(1000.0 / refresh))));
    m_clock.start();
    m_pingsAtStart = m_sonar.PingCount();
}

void SonarPage::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_frames->stop();
}
