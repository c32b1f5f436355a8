#pragma once
// Filling the one-column colour grid of the colour-table editors: a row per colour, its value in
// the project's depth decimals, and a last "Below" row that fills the rest of the grid.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QelBase/QelTypes.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>

#include <climits>

namespace ColorGridFill {

// The text format of a colour row: centred, at the bottom, on one line, an ellipsis when cut.
inline constexpr unsigned kCellFormat = CColorGridCtrl::FormatCenter | CColorGridCtrl::FormatBottom
    | CColorGridCtrl::FormatSingleLine | CColorGridCtrl::FormatEndEllipsis;

// The open project's depth decimals (0 to 15); 2 without a project.
QELMFC0_EXPORT int DepthDecimals();

// Shows `text` in row `row` on `colour`, in the colour's contrast colour.
QELMFC0_EXPORT void SetColorRow(CColorGridCtrl* grid, int row, const QString& text, COLORREF colour);

// Lets the last row fill the grid's client height and the column its width. Room is left for
// the vertical scroll bar when the rows do not fit, and when there are more than
// `rowsWithoutScrollBar` rows.
QELMFC0_EXPORT void FitToClient(CColorGridCtrl* grid, int rowsWithoutScrollBar = INT_MAX);

} // namespace ColorGridFill
