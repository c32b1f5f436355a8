#pragma once
// Scope guard that selects a pen, brush or font into a painter and puts the previous one back.

#include "QelMfc0/QelMfc0Export.h"
#include <QBrush>
#include <QFont>
#include <QPen>

class QPainter;

// Numbers of the stock drawing objects a GDISelector can select.
namespace StockObject {
enum : int {
    WHITE_BRUSH = 0,       // solid white
    LTGRAY_BRUSH = 1,      // solid light grey (192, 192, 192)
    GRAY_BRUSH = 2,        // solid grey (128, 128, 128)
    DKGRAY_BRUSH = 3,      // solid dark grey (64, 64, 64)
    BLACK_BRUSH = 4,       // solid black
    NULL_BRUSH = 5,        // no fill
    WHITE_PEN = 6,         // 1-pixel white line
    BLACK_PEN = 7,         // 1-pixel black line
    NULL_PEN = 8,          // no outline
    DEFAULT_GUI_FONT = 17, // the application's user-interface font
};
}

// Selects one drawing object into an active painter for the lifetime of the guard and
// restores the object of the same kind that was there before. Guards nest; they must be
// destroyed in reverse order of creation (as scoped objects are) and before the painter.
class QELMFC0_EXPORT GDISelector
{
public:
    // Selects a pen; remembers the painter's pen.
    GDISelector(QPainter* painter, const QPen& pen);
    // Selects a brush; remembers the painter's brush.
    GDISelector(QPainter* painter, const QBrush& brush);
    // Selects a font; remembers the painter's font.
    GDISelector(QPainter* painter, const QFont& font);
    // Selects a stock object (see StockObject); an unknown number selects nothing.
    GDISelector(QPainter* painter, int stockObject);
    // Selects a pen of the style (Qt::NoPen for no outline), so the style does not turn into
    // a stock-object number.
    GDISelector(QPainter* painter, Qt::PenStyle style) : GDISelector(painter, QPen(style)) {}
    // Selects a brush of the style (Qt::NoBrush for no fill), for the same reason.
    GDISelector(QPainter* painter, Qt::BrushStyle style) : GDISelector(painter, QBrush(style)) {}
    // A bare colour names neither a pen nor a brush: pass QPen(colour) or QBrush(colour).
    GDISelector(QPainter* painter, Qt::GlobalColor colour) = delete;
    // Puts the remembered object back into the painter.
    ~GDISelector();

    GDISelector(const GDISelector&) = delete;
    GDISelector& operator=(const GDISelector&) = delete;

    // True when an object was selected (false for a null or inactive painter or an unknown
    // stock object).
    explicit operator bool() const { return m_kind != Kind::None; }

private:
    enum class Kind { None, Pen, Brush, Font };

    bool Usable() const;
    void Select(const QPen& pen);
    void Select(const QBrush& brush);
    void Select(const QFont& font);

    QPainter* m_painter = nullptr;
    Kind m_kind = Kind::None;
    QPen m_oldPen;
    QBrush m_oldBrush;
    QFont m_oldFont;
};
