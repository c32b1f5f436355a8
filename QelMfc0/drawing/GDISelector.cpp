#include <QelMfc0/drawing/GDISelector.h>

#include <QGuiApplication>
#include <QPainter>

GDISelector::GDISelector(QPainter* painter, const QPen& pen)
    : m_painter(painter)
{
    Select(pen);
}

GDISelector::GDISelector(QPainter* painter, const QBrush& brush)
    : m_painter(painter)
{
    Select(brush);
}

GDISelector::GDISelector(QPainter* painter, const QFont& font)
    : m_painter(painter)
{
    Select(font);
}

GDISelector::GDISelector(QPainter* painter, int stockObject)
    : m_painter(painter)
{
    // Stock pens are one pixel wide whatever the painter's transformation (cosmetic).
    auto stockPen = [](const QColor& colour) {
        QPen pen(colour, 0);
        pen.setCosmetic(true);
        return pen;
    };
    switch (stockObject) {
    case StockObject::WHITE_BRUSH: Select(QBrush(QColor(255, 255, 255))); break;
    case StockObject::LTGRAY_BRUSH: Select(QBrush(QColor(192, 192, 192))); break;
    case StockObject::GRAY_BRUSH: Select(QBrush(QColor(128, 128, 128))); break;
    case StockObject::DKGRAY_BRUSH: Select(QBrush(QColor(64, 64, 64))); break;
    case StockObject::BLACK_BRUSH: Select(QBrush(QColor(0, 0, 0))); break;
    case StockObject::NULL_BRUSH: Select(QBrush(Qt::NoBrush)); break;
    case StockObject::WHITE_PEN: Select(stockPen(QColor(255, 255, 255))); break;
    case StockObject::BLACK_PEN: Select(stockPen(QColor(0, 0, 0))); break;
    case StockObject::NULL_PEN: Select(QPen(Qt::NoPen)); break;
    case StockObject::DEFAULT_GUI_FONT: Select(QGuiApplication::font()); break;
    default: break;
    }
}

GDISelector::~GDISelector()
{
    if (!Usable())
        return;
    switch (m_kind) {
    case Kind::Pen: m_painter->setPen(m_oldPen); break;
    case Kind::Brush: m_painter->setBrush(m_oldBrush); break;
    case Kind::Font: m_painter->setFont(m_oldFont); break;
    case Kind::None: break;
    }
}

bool GDISelector::Usable() const
{
    return m_painter && m_painter->isActive();
}

void GDISelector::Select(const QPen& pen)
{
    if (!Usable())
        return;
    m_oldPen = m_painter->pen();
    m_painter->setPen(pen);
    m_kind = Kind::Pen;
}

void GDISelector::Select(const QBrush& brush)
{
    if (!Usable())
        return;
    m_oldBrush = m_painter->brush();
    m_painter->setBrush(brush);
    m_kind = Kind::Brush;
}

void GDISelector::Select(const QFont& font)
{
    if (!Usable())
        return;
    m_oldFont = m_painter->font();
    m_painter->setFont(font);
    m_kind = Kind::Font;
}
