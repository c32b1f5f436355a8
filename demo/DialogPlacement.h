#pragma once
// Where to open a tool window so that it covers neither the windows already open nor the parts
// of the main window that feed it.

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace DialogPlacement {

// The top-left corner (of the frame) for a window of frame size `size`, inside `area` (the
// screen's available area) and clear of every rectangle in `keepClear`. Tried in this order:
// beside `main` on its right, on its left, below it, above it, then anywhere in `area`, nearest
// to `main` first. When no place is clear, the place that covers the least of `keepClear`.
QPoint FreeSpot(const QSize& size, const QRect& main, const QList<QRect>& keepClear, const QRect& area);

} // namespace DialogPlacement
