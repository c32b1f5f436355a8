#pragma once
// What the indicator widgets share: a property change that repaints and notifies only when the
// value really changes, colour properties as QColor over the indicators' COLORREF, and the
// repaint when the display's colour mode changes. For the library's own sources.

#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QColor>
#include <QString>
#include <QWidget>

#include <cmath>

namespace IndicatorWidgetSupport {

// True when the two settings are the same (NaN is the same as NaN, so it notifies once).
inline bool Same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}
// Colours are the same when they draw the same (alpha is not drawn).
inline bool Same(const QColor& a, const QColor& b)
{
    return toColorref(a) == toColorref(b);
}
template <class T>
bool Same(const T& a, const T& b)
{
    return a == b;
}

// The colour a property gives back for `color`: opaque, as the indicator draws it.
inline QColor Drawn(const QColor& color)
{
    return toQColor(toColorref(color));
}

// When `value` differs from `current`: `apply()` takes it, `widget` repaints and emits
// `changed(value)`. Returns whether anything changed.
template <class W, class T, class Apply, class Signal>
bool Change(W* widget, const T& current, const T& value, Apply apply, Signal changed)
{
    if (Same(current, value))
        return false;
    apply();
    widget->update();
    Q_EMIT(widget->*changed)(value);
    return true;
}

// Tells the layout when the widget's minimum size hint changed (texts grew or shrank);
// `last` keeps the hint given before.
inline void RefreshSizeHint(QWidget* widget, QSize& last)
{
    const QSize hint = widget->minimumSizeHint();
    if (hint != last) {
        last = hint;
        widget->updateGeometry();
    }
}

// Repaints `widget` whenever the display's colour mode changes (its colours are converted
// when it paints).
inline void RepaintOnModeChange(QWidget* widget)
{
    QObject::connect(&ColorControl::Instance(), &ColorControl::lightModeChanged, widget,
                     [widget] { widget->update(); });
}

} // namespace IndicatorWidgetSupport
