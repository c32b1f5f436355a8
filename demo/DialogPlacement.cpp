#include "DialogPlacement.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kGap = 8;
constexpr int kStep = 16;

qint64 Covered(const QRect& spot, const QList<QRect>& keepClear)
{
    qint64 covered = 0;
    for (const QRect& r : keepClear) {
        const QRect both = spot.intersected(r);
        if (!both.isEmpty())
            covered += qint64(both.width()) * both.height();
    }
    return covered;
}

} // namespace

QPoint DialogPlacement::FreeSpot(const QSize& size, const QRect& main, const QList<QRect>& keepClear, const QRect& area)
{
    QList<QPoint> candidates;
    // Beside the main window: right, then left, sliding down its edge.
    for (int y = main.top(); y <= main.bottom(); y += kStep) {
        candidates << QPoint(main.right() + 1 + kGap, y);
    }
    for (int y = main.top(); y <= main.bottom(); y += kStep)
        candidates << QPoint(main.left() - kGap - size.width(), y);
    // Below and above it, sliding along.
    for (int x = main.left(); x <= main.right(); x += kStep)
        candidates << QPoint(x, main.bottom() + 1 + kGap);
    for (int x = main.left(); x <= main.right(); x += kStep)
        candidates << QPoint(x, main.top() - kGap - size.height());
    // Anywhere on the screen (over parts of the main window that do not feed the window too),
    // nearest to the main window's top-left corner first.
    QList<QPoint> anywhere;
    for (int y = area.top(); y + size.height() <= area.bottom() + 1; y += kStep)
        for (int x = area.left(); x + size.width() <= area.right() + 1; x += kStep)
            anywhere << QPoint(x, y);
    std::stable_sort(anywhere.begin(), anywhere.end(), [&main](const QPoint& a, const QPoint& b) {
        return (a - main.topLeft()).manhattanLength() < (b - main.topLeft()).manhattanLength();
    });
    candidates += anywhere;

    QPoint best = candidates.isEmpty() ? area.topLeft() : candidates.first();
    qint64 leastCovered = std::numeric_limits<qint64>::max();
    for (const QPoint& at : std::as_const(candidates)) {
        const QRect spot(at, size);
        if (area.isValid() && !area.contains(spot))
            continue;
        const qint64 covered = Covered(spot, keepClear);
        if (covered == 0)
            return at;
        if (covered < leastCovered) {
            leastCovered = covered;
            best = at;
        }
    }
    return best;
}
