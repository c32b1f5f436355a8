#include "pages/ColourModesPage.h"

#include <QPainter>
#include <QPainterPath>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ColorMapper.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace {
struct Swatch {
    const char* name;
    COLORREF color;
};

// Colours the suite's displays use most.
const Swatch kSwatches[] = {
    { QT_TRANSLATE_NOOP("ColourModesPage", "white"), RGB(255, 255, 255) }, { QT_TRANSLATE_NOOP("ColourModesPage", "light grey"), RGB(211, 211, 211) },
    { QT_TRANSLATE_NOOP("ColourModesPage", "grey"), RGB(128, 128, 128) }, { QT_TRANSLATE_NOOP("ColourModesPage", "black"), RGB(0, 0, 0) },
    { QT_TRANSLATE_NOOP("ColourModesPage", "red"), RGB(255, 0, 0) }, { QT_TRANSLATE_NOOP("ColourModesPage", "green"), RGB(0, 255, 0) },
    { QT_TRANSLATE_NOOP("ColourModesPage", "blue"), RGB(0, 0, 255) }, { QT_TRANSLATE_NOOP("ColourModesPage", "yellow"), RGB(255, 255, 0) },
    { QT_TRANSLATE_NOOP("ColourModesPage", "orange"), RGB(255, 128, 0) }, { QT_TRANSLATE_NOOP("ColourModesPage", "cyan"), RGB(0, 255, 255) },
    { QT_TRANSLATE_NOOP("ColourModesPage", "magenta"), RGB(255, 0, 255) }, { QT_TRANSLATE_NOOP("ColourModesPage", "sea blue"), RGB(60, 120, 190) },
};

// A small chart: sea depths in bands, a coastline, a run line and the vessel.
QImage MakePicture()
{
    QImage image(300, 180, QImage::Format_ARGB32);
    image.fill(QColor(250, 248, 235));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor bands[] = { QColor(200, 230, 250), QColor(160, 205, 240), QColor(120, 175, 225), QColor(80, 140, 205) };
    for (int i = 0; i < 4; ++i) {
        QPainterPath path;
        path.moveTo(0, 180);
        for (int x = 0; x <= 300; x += 10)
            path.lineTo(x, 40 + i * 32 + 14 * std::sin(x / 45.0 + i));
        path.lineTo(300, 180);
        p.fillPath(path, bands[i]);
    }
    p.setPen(QPen(QColor(40, 40, 40), 2));
    p.drawLine(20, 150, 280, 70);
    p.setPen(QPen(Qt::red, 1, Qt::DashLine));
    p.drawLine(20, 160, 280, 80);
    p.setBrush(QColor(255, 128, 0));
    p.setPen(Qt::black);
    p.drawEllipse(QPointF(150, 113), 7, 7);
    p.fillRect(QRect(250, 10, 40, 20), QColor(192, 192, 192)); // transparent key: never converted
    return image;
}
} // namespace

ColourModesPage::ColourModesPage(QWidget* parent)
    : QWidget(parent)
    , m_picture(MakePicture())
{
    // Mode colours are asked for at paint time; a mode change only has to repaint.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
}

QSize ColourModesPage::minimumSizeHint() const
{
    // The swatch rows, the pictures and a system-colour table of a few columns.
    return { 110 + int(std::size(kSwatches)) * 62 + 16, 72 + 4 * 30 + 30 + 230 + 10 + 10 * 24 };
}

void ColourModesPage::paintEvent(QPaintEvent*)
{
    const ColorControl& colors = ColorControl::Instance();
    QPainter p(this);
    p.setPen(palette().color(QPalette::WindowText));
    QFont title = font();
    title.setPointSizeF(title.pointSizeF() * 1.5);
    title.setBold(true);
    p.setFont(title);
    p.drawText(QPoint(16, 30), tr("Colour mode: %1").arg(ColorControl::GetColorModeString(colors.GetLightMode())));
    p.setFont(font());
    const ColorConverter& converter = colors.GetConverter();
    p.drawText(QPoint(16, 52), tr("factors red %1, green %2, blue %3; %4; %5 substitutions")
                                   .arg(converter.GetRedFactor()).arg(converter.GetGreenFactor()).arg(converter.GetBlueFactor())
                                   .arg(converter.GetInvert() ? tr("inverted") : tr("not inverted"))
                                   .arg(colors.GetColorMap().Count()));

    // In normal mode each swatch shows the colour as defined, as the mode draws it, the grey of
    // a disabled drawing and the halved colour; in the other modes only what the mode draws, so
    // that nothing bright stays on the screen at night.
    const bool reference = colors.GetLightMode() == ColorConverter::normal;
    const int top = 72;
    struct Row {
        const char* title;
        std::function<COLORREF(COLORREF)> convert;
    };
    std::vector<Row> rows = { { "GetColor", [&](COLORREF c) { return colors.GetColor(c, false); } } };
    if (reference) {
        rows.insert(rows.begin(), { QT_TR_NOOP("defined"), [](COLORREF c) { return c; } });
        rows.push_back({ "GetGrayColor", [&](COLORREF c) { return colors.GetGrayColor(c); } });
        rows.push_back({ "ColorMapper", [](COLORREF c) { return ColorMapper().Map(c); } });
    }
    for (size_t row = 0; row < rows.size(); ++row)
        p.drawText(QPoint(16, top + 12 + int(row) * 30), tr(rows[row].title));
    int x = 110;
    for (const Swatch& swatch : kSwatches) {
        for (size_t row = 0; row < rows.size(); ++row) {
            const QRect cell(x, top + int(row) * 30, 54, 24);
            p.fillRect(cell, toQColor(rows[row].convert(swatch.color)));
            p.setPen(palette().color(QPalette::Mid));
            p.drawRect(cell.adjusted(0, 0, -1, -1));
        }
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QRect(x - 4, top + int(rows.size()) * 30, 62, 16), Qt::AlignHCenter, tr(swatch.name));
        x += 62;
    }

    // The picture as the mode shows it (the key colour transparent), and in normal mode also as
    // defined and as a disabled image.
    std::vector<std::pair<const char*, QImage>> pictures;
    if (reference)
        pictures.emplace_back(QT_TR_NOOP("picture as defined"), m_picture);
    pictures.emplace_back("RemapBitmap", m_picture);
    colors.RemapBitmap(pictures.back().second);
    if (reference) {
        pictures.emplace_back("RemapBitmapGray", m_picture);
        colors.RemapBitmapGray(pictures.back().second);
    }
    const int pictureTop = top + int(rows.size()) * 30 + 30;
    for (size_t i = 0; i < pictures.size(); ++i) {
        QImage shown = pictures[i].second;
        shown.setAlphaChannel(QImage(shown.createMaskFromColor(0xFFC0C0C0, Qt::MaskOutColor).convertToFormat(QImage::Format_Grayscale8)));
        const QPoint at(16 + int(i) * 316, pictureTop + 18);
        p.drawText(at - QPoint(0, 6), tr(pictures[i].first));
        p.drawImage(at, shown);
    }

    // The system colours the mode's file asks for.
    const WindowsColorMap& fileColors = colors.GetColorMap().GetFileColors();
    const int tableTop = pictureTop + 230;
    p.drawText(QPoint(16, tableTop), fileColors.IsEmpty() ? tr("System colours: the user's own (the mode's file sets none)")
                                                          : tr("System colours of the mode:"));
    // As many columns as fit, each as wide as the longest name.
    int nameWidth = 0;
    for (const auto& [name, entry] : fileColors.Entries())
        nameWidth = std::max(nameWidth, p.fontMetrics().horizontalAdvance(name));
    const int column = 18 + 6 + nameWidth + 16;
    const int columns = std::max(1, (width() - 32) / column);
    int i = 0;
    for (const auto& [name, entry] : fileColors.Entries()) {
        const QRect cell(16 + (i % columns) * column, tableTop + 10 + (i / columns) * 24, 18, 18);
        p.fillRect(cell, toQColor(entry.second));
        p.drawRect(cell.adjusted(0, 0, -1, -1));
        p.drawText(cell.topRight() + QPoint(6, 14), name);
        ++i;
    }
}
