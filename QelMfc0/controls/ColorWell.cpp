#include <QelMfc0/controls/ColorWell.h>

#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/indicators/IndicatorWidgetSupport.h>

#include <QApplication>
#include <QColorDialog>
#include <QLoggingCategory>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include <exception>

namespace {
Q_LOGGING_CATEGORY(lcColorWell, "qel.colorwell")

ColorWell::DialogHook& Hook()
{
    static ColorWell::DialogHook hook;
    return hook;
}

// The unused high byte of a COLORREF is not part of the colour.
constexpr COLORREF kColorBits = 0x00FFFFFF;
// Blank between the button's contents rectangle and the swatch.
constexpr int kSwatchMargin = 2;
} // namespace

ColorWell::ColorWell(QWidget* parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    setAccessibleName(tr("Color"));
    connect(this, &QPushButton::clicked, this, [this] { ChooseColor(); });
    IndicatorWidgetSupport::RepaintOnModeChange(this);
}

ColorWell::~ColorWell() = default;

COLORREF ColorWell::GetColor() const
{
    return m_color;
}

void ColorWell::SetColor(COLORREF color)
{
    color &= kColorBits;
    if (color == m_color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged(toQColor(m_color));
}

QColor ColorWell::color() const
{
    return toQColor(m_color);
}

void ColorWell::setColor(const QColor& color)
{
    if (color.isValid())
        SetColor(toColorref(color));
}

void ColorWell::SetDialogHook(DialogHook hook)
{
    Hook() = std::move(hook);
}

QColor ColorWell::runDialog()
{
    const QColor initial = toQColor(m_color);
    const QString title = tr("Color");
    // A copy, so that a hook may replace itself while it runs.
    if (const DialogHook hook = Hook()) {
        QColor chosen;
        return hook(initial, title, this, chosen) ? chosen : QColor();
    }
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return QColor();
    // Qt's own dialog, so that it shows in the application's (colour mode's) palette.
    QColorDialog dialog(initial, this);
    dialog.setWindowTitle(title);
    dialog.setOption(QColorDialog::DontUseNativeDialog, true);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedColor() : QColor();
}

bool ColorWell::ChooseColor()
{
    QColor chosen;
    try {
        chosen = runDialog();
    } catch (const std::exception& error) {
        qCWarning(lcColorWell) << "the colour dialog failed:" << error.what();
        return false;
    } catch (...) {
        qCWarning(lcColorWell) << "the colour dialog failed";
        return false;
    }
    if (!chosen.isValid())
        return false;
    SetColor(toColorref(chosen));
    Q_EMIT colorPicked(m_color);
    return true;
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton button;
    initStyleOption(&button);
    button.text.clear();
    button.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, button);

    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &button, this);
    const QRect swatch = contents.adjusted(kSwatchMargin, kSwatchMargin, -kSwatchMargin, -kSwatchMargin);
    if (swatch.width() < 1 || swatch.height() < 1)
        return;
    const ColorControl& colors = ColorControl::Instance();
    COLORREF shown = colors.GetColor(m_color, false);
    if (!isEnabled())
        shown = colors.GetGrayColor(shown);
    painter.fillRect(swatch, toQColor(shown));

    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = swatch;
    frame.state |= QStyle::State_Sunken;
    frame.lineWidth = 1;
    frame.midLineWidth = 0;
    frame.frameShape = QFrame::Box;
    painter.drawPrimitive(QStyle::PE_Frame, frame);
}

QSize ColorWell::sizeHint() const
{
    // 40 x 22 at the usual font, growing with the font's height.
    const int height = qMax(22, fontMetrics().height() + 8);
    return {qMax(40, height * 40 / 22), height};
}
