#include <QelMfc0/drawing/QelBrush.h>

#include <QelMfc0/ColorRef.h>

#include <array>

namespace {

// Indexed by the library's fill-style number.
constexpr std::array<Qt::BrushStyle, 8> kStyles = {
    Qt::NoBrush,          // 0 hollow
    Qt::SolidPattern,     // 1 solid
    Qt::BDiagPattern,     // 2 backward diagonal, "/"
    Qt::FDiagPattern,     // 3 forward diagonal, "\"
    Qt::DiagCrossPattern, // 4 diagonal cross
    Qt::HorPattern,       // 5 horizontal
    Qt::VerPattern,       // 6 vertical
    Qt::CrossPattern,     // 7 horizontal and vertical cross
};

} // namespace

QelBrush::QelBrush() = default;

bool QelBrush::StyleFor(int style, Qt::BrushStyle& qtStyle)
{
    if (style < 0 || style >= int(kStyles.size()))
        return false;
    qtStyle = kStyles[std::size_t(style)];
    return true;
}

int QelBrush::CreateQelBrush(int style, int color)
{
    Qt::BrushStyle qtStyle = Qt::NoBrush;
    if (!StyleFor(style, qtStyle))
        return 0;
    QBrush::operator=(QBrush(toQColor(COLORREF(color)), qtStyle));
    return 1;
}
