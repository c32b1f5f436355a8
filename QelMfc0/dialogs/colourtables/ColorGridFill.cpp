#include "QelMfc0/dialogs/colourtables/ColorGridFill.h"

#include <QelBase/ColorTable.h>
#include <QelBase/DisplayScale.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>

#include <QStyle>

#include <algorithm>
#include <cmath>

namespace ColorGridFill {

int DepthDecimals()
{
    int decimals = 2;
    if (const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition())
        project->GetDepthDecimals(decimals);
    return std::clamp(decimals, 0, 15);
}

void SetColorRow(CColorGridCtrl* grid, int row, const QString& text, COLORREF colour)
{
    grid->SetItem(row, 0, text, kCellFormat);
    grid->SetItemBkColour(row, 0, colour);
    grid->SetItemFgColour(row, 0, ColorTable::GetContrastColor(colour));
}

void FitToClient(CColorGridCtrl* grid, int rowsWithoutScrollBar)
{
    const int rows = grid->GetRowCount();
    if (grid->GetColumnCount() == 0 || rows == 0)
        return;
    // The grid's client area without scroll bars.
    const QSize client = grid->maximumViewportSize();
    // The "Below" row fills the rest of the grid.
    int others = 0;
    for (int row = 0; row < rows - 1; ++row)
        others += grid->GetRowHeight(row);
    const int room = client.height() - int(std::lround(DpiCor(5.0))) - others;
    grid->SetRowHeight(rows - 1, std::max(DpiCor(19), room));
    const bool scrolls = rows > rowsWithoutScrollBar || room < DpiCor(19);
    const int scrollBar = std::max(DpiCor(20), grid->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, grid));
    grid->SetColumnWidth(0, std::max(1, client.width() - (scrolls ? scrollBar : DpiCor(5))));
}

} // namespace ColorGridFill
