#pragma once
// A brush made from one of the library's numbered fill styles.

#include "QelMfc0/QelMfc0Export.h"
#include <QBrush>

// Brush whose fill is chosen by a style number:
//   0 hollow, 1 solid, 2 backward diagonal "/", 3 forward diagonal "\",
//   4 diagonal cross, 5 horizontal, 6 vertical, 7 cross.
// The hatch directions are those of Qt::BDiagPattern ("/" lines rising to the right)
// and Qt::FDiagPattern ("\" lines falling to the right); both match the classic
// backward/forward diagonal hatches, so the numbers map one to one.
class QELMFC0_EXPORT QelBrush : public QBrush
{
public:
    // A brush with no fill (Qt::NoBrush) until CreateQelBrush succeeds.
    QelBrush();

    // Makes this a brush of the numbered style in the COLORREF colour. Returns non-zero on
    // success; an unknown style leaves the brush as it was and returns 0.
    int CreateQelBrush(int style, int color);

    // The Qt brush style of a style number, or false when the number is unknown.
    static bool StyleFor(int style, Qt::BrushStyle& qtStyle);
};
