#include "QelMfc0/colour/ColorTableImage.h"

#include <QelBase/ColorTableLookup.h>
#include <array>

QImage ColorTableImage::FromGrid(const float* values, int width, int height, qsizetype stride,
                                 const ColorTableLookup& lookup)
{
    if (!values || width <= 0 || height <= 0 || stride < width)
        return {};
    QImage image(width, height, QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    lookup.ColourGrid(values, width, height, stride, reinterpret_cast<quint32*>(image.bits()),
                      image.bytesPerLine() / qsizetype(sizeof(quint32)));
    return image;
}

QImage ColorTableImage::FromGrey(const QImage& image, const ColorTableLookup& lookup)
{
    if (image.isNull())
        return {};
    const QImage grey = image.format() == QImage::Format_Grayscale8 || image.format() == QImage::Format_Indexed8
                            ? image
                            : image.convertToFormat(QImage::Format_Grayscale8);
    if (grey.isNull())
        return {};
    // The colour of each byte, once: the value of a byte is its grey.
    std::array<float, 256> greys {};
    for (int b = 0; b < 256; ++b)
        greys[size_t(b)] = float(b);
    if (grey.format() == QImage::Format_Indexed8) {
        const QList<QRgb> palette = grey.colorTable();
        for (int b = 0; b < int(palette.size()) && b < 256; ++b)
            greys[size_t(b)] = float(qGray(palette[b]));
    }
    std::array<quint32, 256> colours {};
    lookup.Colour(greys.data(), qsizetype(greys.size()), colours.data());

    QImage out(grey.width(), grey.height(), QImage::Format_ARGB32);
    if (out.isNull())
        return {};
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* in = grey.constScanLine(y);
        auto* line = reinterpret_cast<quint32*>(out.scanLine(y));
        for (int x = 0; x < grey.width(); ++x)
            line[x] = colours[in[x]];
    }
    return out;
}
