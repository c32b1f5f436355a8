#include "QelMfc0/dialogs/colourtables/ColorGridCtrl.h"

#include <QelBase/DisplayScale.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kBkColourRole = Qt::UserRole + 1;
constexpr int kFgColourRole = Qt::UserRole + 2;
constexpr int kFormatRole = Qt::UserRole + 3;

COLORREF colourOf(const QVariant& value)
{
    return value.isValid() ? value.value<COLORREF>() : CColorGridCtrl::kDefaultColour;
}

double Luminance(COLORREF colour)
{
    return 0.2126 * GetRValue(colour) + 0.7152 * GetGValue(colour) + 0.0722 * GetBValue(colour);
}

// The colour to draw text of colour `text` in on a background drawn as `drawnBackground`. Black
// and white are the contrast colours: when the mode dims the one chosen on the background
// (night paper white turns near black) so that the other one reads at least twice as well,
// the other one is drawn.
COLORREF ReadableText(COLORREF text, COLORREF drawnBackground)
{
    const ColorControl& colours = ColorControl::Instance();
    const COLORREF drawn = colours.GetColor(text, false);
    text &= 0xFFFFFF;
    if (text != RGB(0, 0, 0) && text != RGB(255, 255, 255))
        return drawn;
    const COLORREF other = colours.GetColor(text == 0 ? RGB(255, 255, 255) : RGB(0, 0, 0), false);
    const double background = Luminance(drawnBackground);
    const double contrast = std::fabs(Luminance(drawn) - background);
    return std::fabs(Luminance(other) - background) > 2.0 * contrast ? other : drawn;
}

// Draws a cell: its colours as the colour mode shows them, its text placed by its format and
// ended by an ellipsis when it does not fit, and a frame in the highlight colour when its row is
// selected (the cell keeps its own colour).
class ColourCellDelegate : public QStyledItemDelegate
{
public:
    explicit ColourCellDelegate(CColorGridCtrl* grid)
        : QStyledItemDelegate(grid)
        , m_grid(grid)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool fixed = index.row() < m_grid->GetFixedRowCount() || index.column() < m_grid->GetFixedColumnCount();
        const QPalette& palette = option.palette;
        const ColorControl& colours = ColorControl::Instance();
        const COLORREF bk = colourOf(index.data(kBkColourRole));
        const COLORREF fg = colourOf(index.data(kFgColourRole));
        const QColor background = bk == CColorGridCtrl::kDefaultColour
            ? palette.color(fixed ? QPalette::Button : QPalette::Base)
            : toQColor(colours.GetColor(bk, false));
        const QColor foreground = fg == CColorGridCtrl::kDefaultColour
            ? palette.color(fixed ? QPalette::ButtonText : QPalette::Text)
            : toQColor(ReadableText(fg, bk == CColorGridCtrl::kDefaultColour ? toColorref(background) : colours.GetColor(bk, false)));

        painter->save();
        painter->fillRect(option.rect, background);

        const unsigned format = index.data(kFormatRole).isValid() ? index.data(kFormatRole).toUInt() : 0u;
        const int margin = DpiCor(2);
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        int flags = (format & CColorGridCtrl::FormatCenter) ? Qt::AlignHCenter
            : (format & CColorGridCtrl::FormatRight)        ? Qt::AlignRight
                                                            : Qt::AlignLeft;
        flags |= (format & CColorGridCtrl::FormatBottom) ? Qt::AlignBottom
            : (format & CColorGridCtrl::FormatVCenter)   ? Qt::AlignVCenter
                                                         : Qt::AlignTop;
        QString text = index.data(Qt::DisplayRole).toString();
        painter->setFont(option.font);
        painter->setPen(foreground);
        if (format & CColorGridCtrl::FormatSingleLine) {
            text.replace(QLatin1Char('\n'), QLatin1Char(' '));
            if (format & CColorGridCtrl::FormatEndEllipsis)
                text = option.fontMetrics.elidedText(text, Qt::ElideRight, room.width());
        } else {
            flags |= Qt::TextWordWrap;
        }
        painter->setClipRect(option.rect);
        painter->drawText(room, flags, text);

        if (option.state & QStyle::State_Selected) {
            const int width = std::max(2, DpiCor(2));
            QPen pen(palette.color(QPalette::Highlight), width);
            pen.setJoinStyle(Qt::MiterJoin);
            painter->setPen(pen);
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(QRectF(option.rect).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
        }
        painter->restore();
    }

private:
    CColorGridCtrl* m_grid;
};

} // namespace

CColorGridCtrl::CColorGridCtrl(QWidget* parent)
    : QTableWidget(parent)
{
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(GetDefaultRowHeight());
    horizontalHeader()->setMinimumSectionSize(1);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrap(false);
    setShowGrid(false);
    setItemDelegate(new ColourCellDelegate(this));

    connect(this, &QTableWidget::itemSelectionChanged, this, &CColorGridCtrl::noteSelection);
    connect(this, &QTableWidget::cellDoubleClicked, this, [this](int row, int) { Q_EMIT rowDoubleClicked(row); });
    connect(&ColorControl::Instance(), &ColorControl::lightModeChanged, this, [this] { viewport()->update(); });
}

CColorGridCtrl::~CColorGridCtrl() = default;

void CColorGridCtrl::DeleteAllItems()
{
    clear();
    setRowCount(0);
    setColumnCount(0);
    noteSelection();
}

void CColorGridCtrl::SetFixedRowCount(int count)
{
    const int before = m_fixedRows;
    m_fixedRows = std::max(0, count);
    applyFixedFlags(before, m_fixedColumns);
}

void CColorGridCtrl::SetFixedColumnCount(int count)
{
    const int before = m_fixedColumns;
    m_fixedColumns = std::max(0, count);
    applyFixedFlags(m_fixedRows, before);
}

int CColorGridCtrl::GetFixedRowCount() const { return m_fixedRows; }

int CColorGridCtrl::GetFixedColumnCount() const { return m_fixedColumns; }

void CColorGridCtrl::SetGridLines(bool lines)
{
    if (lines == showGrid())
        return;
    setShowGrid(lines);
    Q_EMIT gridLinesChanged(lines);
}

bool CColorGridCtrl::GetGridLines() const { return showGrid(); }

void CColorGridCtrl::SetColumnCount(int count)
{
    setColumnCount(std::max(0, count));
}

void CColorGridCtrl::SetRowCount(int count)
{
    verticalHeader()->setDefaultSectionSize(GetDefaultRowHeight());
    setRowCount(std::max(0, count));
    noteSelection();
}

int CColorGridCtrl::GetColumnCount() const { return columnCount(); }

int CColorGridCtrl::GetRowCount() const { return rowCount(); }

bool CColorGridCtrl::SetColumnWidth(int column, int width)
{
    if (column < 0 || column >= columnCount())
        return false;
    setColumnWidth(column, std::max(0, width));
    return true;
}

bool CColorGridCtrl::SetRowHeight(int row, int height)
{
    if (row < 0 || row >= rowCount())
        return false;
    setRowHeight(row, std::max(1, height));
    return true;
}

int CColorGridCtrl::GetColumnWidth(int column) const
{
    return column >= 0 && column < columnCount() ? columnWidth(column) : 0;
}

int CColorGridCtrl::GetRowHeight(int row) const
{
    return row >= 0 && row < rowCount() ? rowHeight(row) : 0;
}

int CColorGridCtrl::GetDefaultRowHeight() const
{
    return fontMetrics().height() + DpiCor(4);
}

QTableWidgetItem* CColorGridCtrl::cell(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    QTableWidgetItem* it = item(row, column);
    if (!it) {
        it = new QTableWidgetItem;
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        if (row < m_fixedRows || column < m_fixedColumns)
            flags &= ~Qt::ItemIsSelectable;
        it->setFlags(flags);
        const_cast<CColorGridCtrl*>(this)->setItem(row, column, it);
    }
    return it;
}

void CColorGridCtrl::setCellData(int row, int column, int role, const QVariant& value)
{
    if (QTableWidgetItem* it = cell(row, column))
        it->setData(role, value);
}

bool CColorGridCtrl::SetItem(int row, int column, const QString& text, unsigned format)
{
    QTableWidgetItem* it = cell(row, column);
    if (!it)
        return false;
    it->setText(text);
    it->setData(kFormatRole, format);
    return true;
}

bool CColorGridCtrl::SetItemText(int row, int column, const QString& text)
{
    QTableWidgetItem* it = cell(row, column);
    if (!it)
        return false;
    it->setText(text);
    return true;
}

bool CColorGridCtrl::SetItemFormat(int row, int column, unsigned format)
{
    QTableWidgetItem* it = cell(row, column);
    if (!it)
        return false;
    it->setData(kFormatRole, format);
    return true;
}

QString CColorGridCtrl::GetItemText(int row, int column) const
{
    const QTableWidgetItem* it = item(row, column);
    return it ? it->text() : QString();
}

unsigned CColorGridCtrl::GetItemFormat(int row, int column) const
{
    const QTableWidgetItem* it = item(row, column);
    return it ? it->data(kFormatRole).toUInt() : 0u;
}

bool CColorGridCtrl::SetItemBkColour(int row, int column, COLORREF color)
{
    QTableWidgetItem* it = cell(row, column);
    if (!it)
        return false;
    it->setData(kBkColourRole, QVariant::fromValue(color));
    return true;
}

bool CColorGridCtrl::SetItemFgColour(int row, int column, COLORREF color)
{
    QTableWidgetItem* it = cell(row, column);
    if (!it)
        return false;
    it->setData(kFgColourRole, QVariant::fromValue(color));
    return true;
}

COLORREF CColorGridCtrl::GetItemBkColour(int row, int column) const
{
    const QTableWidgetItem* it = item(row, column);
    return it ? colourOf(it->data(kBkColourRole)) : kDefaultColour;
}

COLORREF CColorGridCtrl::GetItemFgColour(int row, int column) const
{
    const QTableWidgetItem* it = item(row, column);
    return it ? colourOf(it->data(kFgColourRole)) : kDefaultColour;
}

int CColorGridCtrl::GetSelectedRow() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void CColorGridCtrl::SetSelectedRow(int row)
{
    if (row < m_fixedRows || row >= rowCount() || columnCount() == 0) {
        clearSelection();
        setCurrentIndex(QModelIndex());
    } else {
        setCurrentCell(row, std::min(m_fixedColumns, columnCount() - 1), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    noteSelection();
}

int CColorGridCtrl::GetScrollPos() const
{
    return verticalScrollBar()->value();
}

void CColorGridCtrl::SetScrollPos(int position)
{
    // The scroll range follows the rows only once the delayed layout ran.
    executeDelayedItemsLayout();
    updateGeometries();
    verticalScrollBar()->setValue(position);
}

void CColorGridCtrl::applyFixedFlags(int rowsBefore, int columnsBefore)
{
    // Only cells in the fixed rows or columns of before or now can change.
    const int rows = std::min(rowCount(), std::max(rowsBefore, m_fixedRows));
    const int columns = std::min(columnCount(), std::max(columnsBefore, m_fixedColumns));
    const auto apply = [this](int row, int column) {
        if (QTableWidgetItem* it = item(row, column)) {
            const bool fixed = row < m_fixedRows || column < m_fixedColumns;
            it->setFlags(fixed ? it->flags() & ~Qt::ItemIsSelectable : it->flags() | Qt::ItemIsSelectable);
        }
    };
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columnCount(); ++column)
            apply(row, column);
    for (int row = rows; row < rowCount(); ++row)
        for (int column = 0; column < columns; ++column)
            apply(row, column);
    noteSelection();
}

void CColorGridCtrl::noteSelection()
{
    const int row = GetSelectedRow();
    if (row == m_selectedRow)
        return;
    m_selectedRow = row;
    Q_EMIT selectedRowChanged(row);
}
