#pragma once
// A widget that shows one up/down depth gauge (UpDownIndicator) over its whole area, for hosts
// that place it in a layout or from Qt Designer rather than drawing the gauge into a view of
// their own.
//
// Every setting is a property that notifies with the new value, and only when the value
// really changes. The pane, text, pointer and label colours follow the display's colour mode
// (converted when painting; the widget repaints when the mode changes); the three band colours
// are drawn as they are. A click on the reset button, when shown, is reported by resetClicked().
//
// Axis and band are named apart: axisMinimum/axisMaximum are the values at the two ends of the
// gauge, bandMinimum/bandMaximum the limits of the band drawn in the inside colour.

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/controls/indicators/UpDownIndicator.h>

#include <QColor>
#include <QString>
#include <QWidget>

class CAttributeMap;

class QELMFC0_EXPORT UpDownIndicatorWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double reference READ reference WRITE setReference NOTIFY referenceChanged)
    Q_PROPERTY(bool valid READ isValid NOTIFY validChanged)
    Q_PROPERTY(double axisMinimum READ axisMinimum WRITE setAxisMinimum NOTIFY axisMinimumChanged)
    Q_PROPERTY(double axisMaximum READ axisMaximum WRITE setAxisMaximum NOTIFY axisMaximumChanged)
    Q_PROPERTY(bool bandVisible READ isBandVisible WRITE setBandVisible NOTIFY bandVisibleChanged)
    Q_PROPERTY(double bandMinimum READ bandMinimum WRITE setBandMinimum NOTIFY bandMinimumChanged)
    Q_PROPERTY(double bandMaximum READ bandMaximum WRITE setBandMaximum NOTIFY bandMaximumChanged)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)
    Q_PROPERTY(QString itemName READ itemName WRITE setItemName NOTIFY itemNameChanged)
    Q_PROPERTY(bool resetButtonVisible READ isResetButtonVisible WRITE setResetButtonVisible NOTIFY resetButtonVisibleChanged)
    Q_PROPERTY(QColor paneColor READ paneColor WRITE setPaneColor NOTIFY paneColorChanged)
    Q_PROPERTY(QColor aboveColor READ aboveColor WRITE setAboveColor NOTIFY aboveColorChanged)
    Q_PROPERTY(QColor insideColor READ insideColor WRITE setInsideColor NOTIFY insideColorChanged)
    Q_PROPERTY(QColor belowColor READ belowColor WRITE setBelowColor NOTIFY belowColorChanged)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor NOTIFY textColorChanged)
    Q_PROPERTY(QColor pointerColor READ pointerColor WRITE setPointerColor NOTIFY pointerColorChanged)
    Q_PROPERTY(QColor labelColor READ labelColor WRITE setLabelColor NOTIFY labelColorChanged)

public:
    // A vertical gauge over -10..10 with the gauge's default colours, not valid until a value
    // or reference is set.
    explicit UpDownIndicatorWidget(QWidget* parent = nullptr);
    ~UpDownIndicatorWidget() override;

    // The current value; setting it makes the gauge valid.
    double value() const { return m_indicator.GetDeltaValue(); }
    void setValue(double value);
    // The reference the bar starts from; setting it makes the gauge valid.
    double reference() const { return m_indicator.GetRefValue(); }
    void setReference(double reference);
    // True once a value or reference was set, until clear().
    bool isValid() const { return m_indicator.IsValid(); }

    // The values at the ends of the axis.
    double axisMinimum() const;
    void setAxisMinimum(double value);
    double axisMaximum() const;
    void setAxisMaximum(double value);

    // The band between two marker lines, drawn in the inside colour when visible.
    bool isBandVisible() const { return m_indicator.GetMarkerMode() != UpDownIndicator::MARKERS_NONE; }
    void setBandVisible(bool visible);
    double bandMinimum() const;
    void setBandMinimum(double value);
    double bandMaximum() const;
    void setBandMaximum(double value);

    // Vertical (larger values higher, the default) or horizontal (larger values to the right).
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);
    // The text of the name strip.
    QString itemName() const { return m_indicator.GetItemName(); }
    void setItemName(const QString& name);
    // The round reset button in the top-left corner.
    bool isResetButtonVisible() const { return m_indicator.IsResetButtonShown(); }
    void setResetButtonVisible(bool visible);

    // Colours: pane, bar above the reference, inside the band, below the reference, texts and
    // lines, the pointer's fill, and the name strip and reference label.
    QColor paneColor() const { return Color(&UpDownIndicator::Colors::pane); }
    void setPaneColor(const QColor& color);
    QColor aboveColor() const { return Color(&UpDownIndicator::Colors::above); }
    void setAboveColor(const QColor& color);
    QColor insideColor() const { return Color(&UpDownIndicator::Colors::inside); }
    void setInsideColor(const QColor& color);
    QColor belowColor() const { return Color(&UpDownIndicator::Colors::below); }
    void setBelowColor(const QColor& color);
    QColor textColor() const { return Color(&UpDownIndicator::Colors::text); }
    void setTextColor(const QColor& color);
    QColor pointerColor() const { return Color(&UpDownIndicator::Colors::background); }
    void setPointerColor(const QColor& color);
    QColor labelColor() const { return Color(&UpDownIndicator::Colors::labelBackground); }
    void setLabelColor(const QColor& color);

    // Takes the gauge's settings from the host's attributes (colours, font, axis range, markers,
    // orientation), as UpDownIndicator::LoadAttributes does; each changed property notifies.
    void loadAttributes(const CAttributeMap& attributes);
    // The gauge as drawn, for hosts that draw it elsewhere too.
    const UpDownIndicator& indicator() const { return m_indicator; }

    // Room for the gauge with every text whole: the value, reference and axis ends, the name
    // and the reset button; longer along the axis for the size hint.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    // Makes the gauge not valid: only the pane shows until a value or reference is set again.
    void clear();

Q_SIGNALS:
    void valueChanged(double value);
    void referenceChanged(double reference);
    void validChanged(bool valid);
    void axisMinimumChanged(double value);
    void axisMaximumChanged(double value);
    void bandVisibleChanged(bool visible);
    void bandMinimumChanged(double value);
    void bandMaximumChanged(double value);
    void orientationChanged(Qt::Orientation orientation);
    void itemNameChanged(const QString& name);
    void resetButtonVisibleChanged(bool visible);
    void paneColorChanged(const QColor& color);
    void aboveColorChanged(const QColor& color);
    void insideColorChanged(const QColor& color);
    void belowColorChanged(const QColor& color);
    void textColorChanged(const QColor& color);
    void pointerColorChanged(const QColor& color);
    void labelColorChanged(const QColor& color);
    // The reset button was clicked (pressed and released on it with the left button).
    void resetClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    using ColorMember = COLORREF UpDownIndicator::Colors::*;
    QColor Color(ColorMember which) const;
    void SetColor(ColorMember which, const QColor& color, void (UpDownIndicatorWidget::*changed)(const QColor&));
    void SetReading(void (UpDownIndicator::*set)(double), double before, double value,
                    void (UpDownIndicatorWidget::*changed)(double));
    void SetValid(bool wasValid);
    void SetBand(double minValue, double maxValue);
    void SetAxis(double minValue, double maxValue);
    void TextsChanged();

    UpDownIndicator m_indicator;
    bool m_pressedOnButton = false;
    QSize m_hint; // the minimum size hint last given to the layout
};
