#pragma once
// Images of values coloured by a colour table, through ColorTableLookup: every pixel takes
// exactly the colour ColorTable::GetColor gives its value, NaN values the lookup's no-data
// colour.

#include "QelMfc0/QelMfc0Export.h"
#include <QImage>
#include <QtGlobal>

class ColorTableLookup;

class QELMFC0_EXPORT ColorTableImage
{
public:
    // A Format_ARGB32 image of a grid of `width` x `height` floats, rows `stride` floats apart
    // (at least `width`); a null image for no values, a size that is not positive or a short
    // stride, or when the image cannot be allocated.
    static QImage FromGrid(const float* values, int width, int height, qsizetype stride,
                           const ColorTableLookup& lookup);
    // A Format_ARGB32 image of an 8-bit image whose pixels are values 0..255: the byte of a
    // Format_Grayscale8 pixel, the grey (qGray) of an Format_Indexed8 pixel's palette colour
    // (the index itself where the palette has no colour); other formats are converted to Format_Grayscale8 first.
    // A null image for a null image.
    static QImage FromGrey(const QImage& image, const ColorTableLookup& lookup);
};
