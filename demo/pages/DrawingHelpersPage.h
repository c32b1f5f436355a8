#pragma once
// Gallery page: a reference card of the library's drawing helpers, painted with the helpers.

#include <QWidget>

// Paints every numbered brush and pen style, point fonts and a font description read from
// attributes, each labelled with the call that made it.
class DrawingHelpersPage : public QWidget
{
    Q_OBJECT

public:
    // A page for the gallery; it has no state of its own.
    explicit DrawingHelpersPage(QWidget* parent = nullptr);

    // Room for the whole card at the current display scale.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // Paints the card.
    void paintEvent(QPaintEvent* event) override;

private:
    int PaintBrushes(QPainter& p, int top);
    int PaintPens(QPainter& p, int top);
    int PaintFonts(QPainter& p, int top);
    int PaintFontInfo(QPainter& p, int top);
    int PaintStockObjects(QPainter& p, int top);
    int PaintHeading(QPainter& p, int top, const QString& text);
};

// The page factory the gallery uses.
QWidget* CreateDrawingHelpersPage(QWidget* parent);
