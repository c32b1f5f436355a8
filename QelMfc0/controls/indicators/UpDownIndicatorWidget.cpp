#include <QelMfc0/controls/indicators/UpDownIndicatorWidget.h>

#include <QelMfc0/controls/indicators/IndicatorWidgetSupport.h>

#include <QelBase/DisplayScale.h>
#include <QelConfigure/QelFormatter.h>

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace IndicatorWidgetSupport;

UpDownIndicatorWidget::UpDownIndicatorWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    RepaintOnModeChange(this);
    m_hint = minimumSizeHint();
}

UpDownIndicatorWidget::~UpDownIndicatorWidget() = default;

void UpDownIndicatorWidget::setValue(double value)
{
    SetReading(&UpDownIndicator::SetDeltaValue, this->value(), value, &UpDownIndicatorWidget::valueChanged);
}

void UpDownIndicatorWidget::setReference(double reference)
{
    SetReading(&UpDownIndicator::SetRefValue, this->reference(), reference,
               &UpDownIndicatorWidget::referenceChanged);
}

void UpDownIndicatorWidget::SetReading(void (UpDownIndicator::*set)(double), double before, double value,
                                       void (UpDownIndicatorWidget::*changed)(double))
{
    // Setting a reading makes the gauge valid even when the number stays the same.
    const bool wasValid = isValid();
    (m_indicator.*set)(value);
    Change(this, before, value, [] {}, changed);
    SetValid(wasValid);
}

void UpDownIndicatorWidget::clear()
{
    const bool wasValid = isValid();
    m_indicator.Clear();
    SetValid(wasValid);
}

void UpDownIndicatorWidget::SetValid(bool wasValid)
{
    if (isValid() != wasValid) {
        update();
        Q_EMIT validChanged(isValid());
    }
    TextsChanged();
}

double UpDownIndicatorWidget::axisMinimum() const
{
    double minValue = 0.0, maxValue = 0.0;
    m_indicator.GetAxisRange(minValue, maxValue);
    return minValue;
}

double UpDownIndicatorWidget::axisMaximum() const
{
    double minValue = 0.0, maxValue = 0.0;
    m_indicator.GetAxisRange(minValue, maxValue);
    return maxValue;
}

void UpDownIndicatorWidget::SetAxis(double minValue, double maxValue)
{
    m_indicator.SetAxisRange(minValue, maxValue);
    TextsChanged();
}

void UpDownIndicatorWidget::setAxisMinimum(double value)
{
    Change(this, axisMinimum(), value, [&] { SetAxis(value, axisMaximum()); },
           &UpDownIndicatorWidget::axisMinimumChanged);
}

void UpDownIndicatorWidget::setAxisMaximum(double value)
{
    Change(this, axisMaximum(), value, [&] { SetAxis(axisMinimum(), value); },
           &UpDownIndicatorWidget::axisMaximumChanged);
}

double UpDownIndicatorWidget::bandMinimum() const
{
    double minValue = 0.0, maxValue = 0.0;
    m_indicator.GetMinMaxMarker(minValue, maxValue);
    return minValue;
}

double UpDownIndicatorWidget::bandMaximum() const
{
    double minValue = 0.0, maxValue = 0.0;
    m_indicator.GetMinMaxMarker(minValue, maxValue);
    return maxValue;
}

void UpDownIndicatorWidget::SetBand(double minValue, double maxValue)
{
    // The gauge takes band limits from the program in its program mode only; markers loaded
    // from attributes keep their mode.
    const int mode = m_indicator.GetMarkerMode();
    m_indicator.SetMarkerMode(UpDownIndicator::MARKERS_PROGRAM);
    m_indicator.SetMinMaxMarker(minValue, maxValue);
    m_indicator.SetMarkerMode(mode);
}

void UpDownIndicatorWidget::setBandVisible(bool visible)
{
    Change(this, isBandVisible(), visible,
           [&] { m_indicator.SetMarkerMode(visible ? UpDownIndicator::MARKERS_PROGRAM : UpDownIndicator::MARKERS_NONE); },
           &UpDownIndicatorWidget::bandVisibleChanged);
}

void UpDownIndicatorWidget::setBandMinimum(double value)
{
    Change(this, bandMinimum(), value, [&] { SetBand(value, bandMaximum()); },
           &UpDownIndicatorWidget::bandMinimumChanged);
}

void UpDownIndicatorWidget::setBandMaximum(double value)
{
    Change(this, bandMaximum(), value, [&] { SetBand(bandMinimum(), value); },
           &UpDownIndicatorWidget::bandMaximumChanged);
}

Qt::Orientation UpDownIndicatorWidget::orientation() const
{
    return m_indicator.IsHorizontalMode() ? Qt::Horizontal : Qt::Vertical;
}

void UpDownIndicatorWidget::setOrientation(Qt::Orientation orientation)
{
    Change(this, this->orientation(), orientation,
           [&] {
               m_indicator.SetHorizontalMode(orientation == Qt::Horizontal);
               TextsChanged();
           },
           &UpDownIndicatorWidget::orientationChanged);
}

void UpDownIndicatorWidget::setItemName(const QString& name)
{
    Change(this, itemName(), name,
           [&] {
               m_indicator.SetItemName(name);
               TextsChanged();
           },
           &UpDownIndicatorWidget::itemNameChanged);
}

void UpDownIndicatorWidget::setResetButtonVisible(bool visible)
{
    Change(this, isResetButtonVisible(), visible,
           [&] {
               m_indicator.ShowResetButton(visible);
               TextsChanged();
           },
           &UpDownIndicatorWidget::resetButtonVisibleChanged);
}

QColor UpDownIndicatorWidget::Color(ColorMember which) const
{
    return toQColor(m_indicator.GetColors().*which);
}

void UpDownIndicatorWidget::SetColor(ColorMember which, const QColor& color,
                                     void (UpDownIndicatorWidget::*changed)(const QColor&))
{
    UpDownIndicator::Colors colors = m_indicator.GetColors();
    colors.*which = toColorref(color);
    Change(this, Color(which), Drawn(color), [&] { m_indicator.SetColors(colors); }, changed);
}

void UpDownIndicatorWidget::setPaneColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::pane, color, &UpDownIndicatorWidget::paneColorChanged);
}

void UpDownIndicatorWidget::setAboveColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::above, color, &UpDownIndicatorWidget::aboveColorChanged);
}

void UpDownIndicatorWidget::setInsideColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::inside, color, &UpDownIndicatorWidget::insideColorChanged);
}

void UpDownIndicatorWidget::setBelowColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::below, color, &UpDownIndicatorWidget::belowColorChanged);
}

void UpDownIndicatorWidget::setTextColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::text, color, &UpDownIndicatorWidget::textColorChanged);
}

void UpDownIndicatorWidget::setPointerColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::background, color, &UpDownIndicatorWidget::pointerColorChanged);
}

void UpDownIndicatorWidget::setLabelColor(const QColor& color)
{
    SetColor(&UpDownIndicator::Colors::labelBackground, color, &UpDownIndicatorWidget::labelColorChanged);
}

void UpDownIndicatorWidget::loadAttributes(const CAttributeMap& attributes)
{
    // Loaded into a copy, then taken over setting by setting so that each change notifies.
    UpDownIndicator loaded = m_indicator;
    loaded.LoadAttributes(attributes);
    m_indicator.SetFont(loaded.GetFont());
    const UpDownIndicator::Colors& colors = loaded.GetColors();
    setPaneColor(toQColor(colors.pane));
    setAboveColor(toQColor(colors.above));
    setInsideColor(toQColor(colors.inside));
    setBelowColor(toQColor(colors.below));
    setTextColor(toQColor(colors.text));
    setPointerColor(toQColor(colors.background));
    setLabelColor(toQColor(colors.labelBackground));
    double minValue = 0.0, maxValue = 0.0;
    loaded.GetAxisRange(minValue, maxValue);
    setAxisMinimum(minValue);
    setAxisMaximum(maxValue);
    loaded.GetMinMaxMarker(minValue, maxValue);
    setBandMinimum(minValue);
    setBandMaximum(maxValue);
    const bool wasVisible = isBandVisible();
    m_indicator.SetMarkerMode(loaded.GetMarkerMode());
    if (isBandVisible() != wasVisible)
        Q_EMIT bandVisibleChanged(isBandVisible());
    setOrientation(loaded.IsHorizontalMode() ? Qt::Horizontal : Qt::Vertical);
    TextsChanged();
    update();
}

QSize UpDownIndicatorWidget::minimumSizeHint() const
{
    const QFont font = m_indicator.GetFont().ToQFont();
    QFont nameFont = font;
    nameFont.setItalic(true);
    const QFontMetrics metrics(font, this);
    const QFontMetrics nameMetrics(nameFont, this);
    const int m = m_indicator.GetPointerSize();

    // The widest number the gauge may show: a value or reference, or a value at an axis end.
    const QelFormatter formatter;
    int numbers = 0;
    for (const double v : { value(), reference(), axisMinimum(), axisMaximum() })
        numbers = std::max(numbers, metrics.horizontalAdvance(formatter.FormatDepth(v, false)));
    const int name = itemName().isEmpty() ? 0 : nameMetrics.horizontalAdvance(itemName()) + 3;
    const int button = isResetButtonVisible() ? DpiCor(28) : 0;

    // Across the axis: axis line, tip, gap, the value text (its width where it runs across the
    // axis, its height where it runs along) and the name strip. Along the axis: the pointer's
    // box around its text, the name and the button.
    const bool horizontal = orientation() == Qt::Horizontal;
    const int textAcross = horizontal ? metrics.height() : numbers;
    const int box = horizontal ? numbers + 6 : 2 * std::max(m, metrics.height() / 2 + 1);
    const int across = std::max(1 + m + 5 + textAcross + 1 + nameMetrics.height(), button);
    const int along = std::max({ box + 2, name, button });
    return horizontal ? QSize(along, across) : QSize(across, along);
}

QSize UpDownIndicatorWidget::sizeHint() const
{
    const QSize minimum = minimumSizeHint();
    const int along = DpiCor(200);
    return orientation() == Qt::Horizontal ? minimum.expandedTo({ along, 0 })
                                            : minimum.expandedTo({ 0, along });
}

void UpDownIndicatorWidget::TextsChanged()
{
    RefreshSizeHint(this, m_hint);
}

void UpDownIndicatorWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_indicator.Draw(&painter, rect());
}

void UpDownIndicatorWidget::mousePressEvent(QMouseEvent* event)
{
    m_pressedOnButton = event->button() == Qt::LeftButton && m_indicator.CheckResetBtn(event->position().toPoint());
    QWidget::mousePressEvent(event);
}

void UpDownIndicatorWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const bool clicked = m_pressedOnButton && event->button() == Qt::LeftButton
        && m_indicator.CheckResetBtn(event->position().toPoint());
    m_pressedOnButton = false;
    QWidget::mouseReleaseEvent(event);
    if (clicked)
        Q_EMIT resetClicked();
}
