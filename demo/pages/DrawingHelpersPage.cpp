#include "DrawingHelpersPage.h"

#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/GDISelector.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/drawing/PECFont.h>
#include <QelMfc0/drawing/QelBrush.h>
#include <QelMfc0/drawing/QelPen.h>
#include <QelSubscriber/SubscriptionManager.h>

#include <QCoreApplication>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int kMargin = 16;
constexpr int kCardWidth = 720;

// Day colours of the card; each is drawn in the colour mode's counterpart at paint time.
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kRule = RGB(128, 128, 128);
constexpr COLORREF kSampleInk = RGB(255, 0, 0);

QColor Mode(COLORREF color)
{
    return toQColor(ColorControl::Instance().GetColor(color, false));
}

// Every pixel of an image drawn in day colours, converted as the colour it shows.
void ToMode(QImage& image)
{
    const ColorControl& colors = ColorControl::Instance();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) == 0)
                continue;
            const QColor shown = toQColor(colors.GetColor(toColorref(QColor::fromRgb(line[x])), false));
            line[x] = qRgba(shown.red(), shown.green(), shown.blue(), qAlpha(line[x]));
        }
    }
}

const char* const kBrushNames[] = {
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "hollow"),     QT_TRANSLATE_NOOP("DrawingHelpersPage", "solid"),
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "diagonal /"), QT_TRANSLATE_NOOP("DrawingHelpersPage", "diagonal \\"),
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "diagonal cross"), QT_TRANSLATE_NOOP("DrawingHelpersPage", "horizontal"),
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "vertical"),   QT_TRANSLATE_NOOP("DrawingHelpersPage", "cross")};
const char* const kPenNames[] = {
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "0 solid"), QT_TRANSLATE_NOOP("DrawingHelpersPage", "1 dash"),
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "2 dot"), QT_TRANSLATE_NOOP("DrawingHelpersPage", "3 dash-dot"),
    QT_TRANSLATE_NOOP("DrawingHelpersPage", "4 dash-dot-dot")};

// A label font for the card: the library's default face at a point size.
PECFont labelFont(const QPaintDevice* dc, int size, bool bold = false)
{
    PECFont font;
    font.Create(QStringLiteral("Arial"), size, false, bold, dc, true);
    return font;
}

QString patternText(const QVector<qreal>& pattern)
{
    if (pattern.isEmpty())
        return QCoreApplication::translate("DrawingHelpersPage", "solid", "pen pattern");
    QStringList parts;
    for (qreal length : pattern)
        parts << QString::number(length);
    return parts.join(QLatin1Char(' '));
}

} // namespace

DrawingHelpersPage::DrawingHelpersPage(QWidget* parent)
    : QWidget(parent)
{
    // Mode colours are asked for at paint time; a mode change only has to repaint.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
}

QSize DrawingHelpersPage::minimumSizeHint() const
{
    return sizeHint();
}

QSize DrawingHelpersPage::sizeHint() const
{
    // The card is about 700 pixels high at 96 DPI; its text grows with the resolution.
    return {kCardWidth + 2 * kMargin, 700 * logicalDpiY() / 96};
}

void DrawingHelpersPage::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Mode(kPaper));
    GDISelector pen(&p, QPen(Mode(kInk)));
    int y = kMargin;
    {
        GDISelector title(&p, labelFont(this, 14, true));
        const QFontMetrics fm = p.fontMetrics();
        p.drawText(kMargin, y + fm.ascent(), tr("Drawing helpers"));
        y += fm.height() + 4;
    }
    {
        GDISelector note(&p, labelFont(this, 8));
        const QFontMetrics fm = p.fontMetrics();
        p.drawText(kMargin, y + fm.ascent(),
                   tr("Logical DPI %1 — pen widths scale by DPI / 96, dash lengths by the scaled width.")
                       .arg(logicalDpiY()));
        y += fm.height() + 8;
    }
    y = PaintBrushes(p, y);
    y = PaintPens(p, y);
    y = PaintFonts(p, y);
    y = PaintFontInfo(p, y);
    PaintStockObjects(p, y);
}

int DrawingHelpersPage::PaintHeading(QPainter& p, int top, const QString& text)
{
    GDISelector font(&p, labelFont(this, 10, true));
    const QFontMetrics fm = p.fontMetrics();
    const int base = top + fm.ascent();
    p.drawText(kMargin, base, text);
    GDISelector rule(&p, QPen(Mode(kRule), 0));
    p.drawLine(kMargin, top + fm.height() + 2, kMargin + kCardWidth, top + fm.height() + 2);
    return top + fm.height() + 8;
}

int DrawingHelpersPage::PaintBrushes(QPainter& p, int top)
{
    top = PaintHeading(p, top, tr("QelBrush::CreateQelBrush(style, colour)"));
    const COLORREF ink = ColorControl::Instance().GetColor(kInk, false);
    const int cell = kCardWidth / 8;
    const QSize swatch(cell - 16, 44);
    GDISelector font(&p, labelFont(this, 8));
    const QFontMetrics fm = p.fontMetrics();
    for (int style = 0; style < 8; ++style) {
        const QRect r(kMargin + style * cell, top, swatch.width(), swatch.height());
        QelBrush brush;
        brush.CreateQelBrush(style, int(ink));
        {
            GDISelector fill(&p, brush);
            GDISelector outline(&p, QPen(Mode(kInk), 0));
            p.drawRect(r.adjusted(0, 0, -1, -1));
        }
        const QRect label(r.left() - 4, r.bottom() + 4, cell - 8, fm.height());
        p.drawText(label, Qt::AlignHCenter | Qt::AlignTop,
                   QStringLiteral("%1 %2").arg(style).arg(tr(kBrushNames[style])));
    }
    return top + swatch.height() + 4 + fm.height() + 12;
}

int DrawingHelpersPage::PaintPens(QPainter& p, int top)
{
    top = PaintHeading(p, top, tr("QelPen::CreateQelPen(style, width, colour, device)"));
    const COLORREF ink = ColorControl::Instance().GetColor(kInk, false);
    const int widths[] = {1, 2, 4};
    const int labelWidth = 110;
    const int column = (kCardWidth - labelWidth) / 3;
    const int rowHeight = 30;

    GDISelector font(&p, labelFont(this, 8));
    const QFontMetrics fm = p.fontMetrics();
    for (int i = 0; i < 3; ++i)
        p.drawText(kMargin + labelWidth + i * column, top + fm.ascent(),
                   tr("width %1").arg(widths[i]));
    top += fm.height() + 4;

    for (int style = 0; style < 5; ++style) {
        const int mid = top + rowHeight / 2;
        p.drawText(kMargin, mid + fm.ascent() / 2 - 1, tr(kPenNames[style]));
        for (int i = 0; i < 3; ++i) {
            const QelPen pen(style, widths[i], ink, this);
            const int x0 = kMargin + labelWidth + i * column;
            {
                GDISelector line(&p, pen);
                p.drawLine(QPointF(x0, mid - 4), QPointF(x0 + column - 24, mid - 4));
            }
            GDISelector small(&p, QPen(Mode(kInk)));
            p.drawText(x0, mid + fm.height() - 2,
                       tr("%1 px: %2").arg(pen.width()).arg(patternText(pen.PixelDashPattern())));
        }
        top += rowHeight + 6;
    }
    return top + 8;
}

int DrawingHelpersPage::PaintFonts(QPainter& p, int top)
{
    top = PaintHeading(p, top, tr("PECFont::Create(face, size, italic, bold, device, dpiCorrect)"));
    const int sizes[] = {8, 10, 12, 16};
    const struct { bool bold; bool italic; const char* name; } styles[] = {
        {false, false, QT_TR_NOOP("regular")}, {true, false, QT_TR_NOOP("bold")},
        {false, true, QT_TR_NOOP("italic")}, {true, true, QT_TR_NOOP("bold italic")}};
    const int column = kCardWidth / 4;
    for (int size : sizes) {
        int rowHeight = 0;
        for (int i = 0; i < 4; ++i) {
            PECFont font;
            font.Create(QStringLiteral("Arial"), size, styles[i].italic, styles[i].bold, this, true);
            GDISelector select(&p, font);
            const QFontMetrics fm = p.fontMetrics();
            p.drawText(kMargin + i * column, top + fm.ascent(),
                       QStringLiteral("%1 pt %2").arg(size).arg(tr(styles[i].name)));
            rowHeight = std::max(rowHeight, fm.height());
        }
        top += rowHeight + 4;
    }
    PECFont plain;
    plain.Create(QStringLiteral("Arial"), 10, false, false, this, false);
    PECFont corrected;
    corrected.Create(QStringLiteral("Arial"), 10, false, false, this, true);
    GDISelector font(&p, labelFont(this, 8));
    const QFontMetrics fm = p.fontMetrics();
    p.drawText(kMargin, top + 4 + fm.ascent(),
               tr("Arial 10 corrected: Height() %1, %2 pt   —   uncorrected: Height() %3, %4 pt")
                   .arg(corrected.Height())
                   .arg(corrected.pointSizeF())
                   .arg(plain.Height())
                   .arg(plain.pointSizeF()));
    return top + 4 + fm.height() + 14;
}

int DrawingHelpersPage::PaintFontInfo(QPainter& p, int top)
{
    top = PaintHeading(p, top, tr("FontInfo::LoadAttributes(map) and PECFont::Create(FontInfo)"));

    // A host map that sets everything but the italic flag: that one keeps the record's value.
    CAttributeMap attributes;
    attributes.SetAttribValue(ATTR_FONTNAME, QStringLiteral("Courier New"));
    attributes.SetAttribValue(ATTR_FONTSIZE, 13);
    attributes.SetAttribValue(ATTR_FONTBOLD, true);
    attributes.SetAttribColor(ATTR_TEXTCOLOR, kSampleInk);
    FontInfo info;
    info.SetItalic(true);
    info.LoadAttributes(attributes);

    GDISelector font(&p, labelFont(this, 8));
    const QFontMetrics fm = p.fontMetrics();
    p.drawText(kMargin, top + fm.ascent(),
               tr("name \"%1\", size %2, bold %3, italic %4 (not in the map), colour 0x%5")
                   .arg(info.GetName())
                   .arg(info.GetSize())
                   .arg(info.GetBold() ? tr("yes") : tr("no"))
                   .arg(info.GetItalic() ? tr("yes") : tr("no"))
                   .arg(info.GetColor(), 8, 16, QLatin1Char('0')));
    top += fm.height() + 4;

    PECFont sample;
    sample.Create(info, this);
    GDISelector sampleFont(&p, sample);
    // The text colour is converted for the colour mode when it is drawn.
    GDISelector sampleInk(&p, QPen(toQColor(ColorControl::Instance().GetColor(info.GetColor(), false))));
    const QFontMetrics sm = p.fontMetrics();
    p.drawText(kMargin, top + sm.ascent(), tr("N 52°22'14.6\"  E 004°53'37.2\"  depth 12.34 m"));
    return top + sm.height() + 14;
}

int DrawingHelpersPage::PaintStockObjects(QPainter& p, int top)
{
    top = PaintHeading(p, top, tr("GDISelector(painter, StockObject::…)"));
    const struct { int brush; const char* name; } brushes[] = {
        {StockObject::WHITE_BRUSH, "WHITE_BRUSH"}, {StockObject::LTGRAY_BRUSH, "LTGRAY_BRUSH"},
        {StockObject::GRAY_BRUSH, "GRAY_BRUSH"},   {StockObject::DKGRAY_BRUSH, "DKGRAY_BRUSH"},
        {StockObject::BLACK_BRUSH, "BLACK_BRUSH"}, {StockObject::NULL_BRUSH, "NULL_BRUSH"}};
    const int cell = kCardWidth / 6;
    GDISelector font(&p, labelFont(this, 8));
    const QFontMetrics fm = p.fontMetrics();
    for (int i = 0; i < 6; ++i) {
        const QRect r(kMargin + i * cell, top, cell - 16, 28);
        {
            // Stock objects have fixed day colours: the swatch is drawn with them, then every
            // pixel is converted for the colour mode as the colour it shows.
            QImage swatch(r.size(), QImage::Format_ARGB32);
            swatch.fill(Qt::transparent);
            {
                QPainter sp(&swatch);
                GDISelector fill(&sp, brushes[i].brush);
                GDISelector outline(&sp, StockObject::BLACK_PEN);
                sp.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
            }
            ToMode(swatch);
            p.drawImage(r.topLeft(), swatch);
        }
        p.drawText(QRect(r.left(), r.bottom() + 4, cell - 8, fm.height()), Qt::AlignLeft,
                   QLatin1String(brushes[i].name));
    }
    return top + 28 + 4 + fm.height() + 8;
}

QWidget* CreateDrawingHelpersPage(QWidget* parent)
{
    return new DrawingHelpersPage(parent);
}
