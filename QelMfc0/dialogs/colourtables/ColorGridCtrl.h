#pragma once
// A grid of coloured cells, as the colour-table editors show their tables: each cell has a text,
// a text format and a background and text colour. The colours are kept as COLORREF and drawn
// in the colours the current colour mode gives for them; the grid repaints when the mode
// changes. Black or white text (a contrast colour) that the mode would make hard to read on the
// cell's drawn background is drawn in the mode's other one of the two. A text that does not fit its cell ends in an ellipsis (with FormatEndEllipsis)
// instead of losing characters unseen. Rows are selected whole, one at a time.
//
// Fixed rows and columns (the first ones) are drawn in the window's button colours and cannot
// be selected; they scroll with the others.

#include "QelMfc0/QelMfc0Export.h"
#include <QTableWidget>
#include <QelBase/QelTypes.h>

class QELMFC0_EXPORT CColorGridCtrl : public QTableWidget
{
    Q_OBJECT
    // The selected row, -1 when none is.
    Q_PROPERTY(int selectedRow READ GetSelectedRow WRITE SetSelectedRow NOTIFY selectedRowChanged)
    // Whether lines are drawn between the cells.
    Q_PROPERTY(bool gridLines READ GetGridLines WRITE SetGridLines NOTIFY gridLinesChanged)
public:
    // Text formats of a cell; the values of the Windows DT_ flags they stand for.
    enum CellFormat : unsigned {
        FormatLeft = 0x0,
        FormatCenter = 0x1,
        FormatRight = 0x2,
        FormatTop = 0x0,
        FormatVCenter = 0x4,
        FormatBottom = 0x8,
        FormatSingleLine = 0x20, // otherwise the text wraps at word boundaries
        FormatEndEllipsis = 0x8000,
    };
    // A cell colour that follows the palette (base and text, or button colours when fixed).
    static constexpr COLORREF kDefaultColour = 0xFF000000;

    explicit CColorGridCtrl(QWidget* parent = nullptr);
    ~CColorGridCtrl() override;

    // Removes every row and column.
    void DeleteAllItems();
    // Number of fixed rows / columns at the top / left.
    void SetFixedRowCount(int count);
    void SetFixedColumnCount(int count);
    int GetFixedRowCount() const;
    int GetFixedColumnCount() const;
    // Lines between the cells on or off.
    void SetGridLines(bool lines);
    bool GetGridLines() const;
    // Number of columns and rows; new rows get the default height.
    void SetColumnCount(int count);
    void SetRowCount(int count);
    int GetColumnCount() const;
    int GetRowCount() const;
    // Width of a column and height of a row, in pixels; false for one out of range.
    bool SetColumnWidth(int column, int width);
    bool SetRowHeight(int row, int height);
    int GetColumnWidth(int column) const;
    // Height of a row; 0 for one out of range.
    int GetRowHeight(int row) const;
    // The height a new row gets: the font's line height and a little room.
    int GetDefaultRowHeight() const;

    // Text and format (CellFormat flags) of a cell; false for a cell out of range.
    bool SetItem(int row, int column, const QString& text, unsigned format);
    bool SetItemText(int row, int column, const QString& text);
    bool SetItemFormat(int row, int column, unsigned format);
    QString GetItemText(int row, int column) const;
    unsigned GetItemFormat(int row, int column) const;
    // Background and text colour of a cell (kDefaultColour: the palette's); false when out of range.
    bool SetItemBkColour(int row, int column, COLORREF color);
    bool SetItemFgColour(int row, int column, COLORREF color);
    COLORREF GetItemBkColour(int row, int column) const;
    COLORREF GetItemFgColour(int row, int column) const;

    // The selected row, -1 when none; selecting -1 or a fixed or missing row clears the selection.
    int GetSelectedRow() const;
    void SetSelectedRow(int row);

    // Position of the vertical scroll bar, to be put back after the grid was filled again.
    int GetScrollPos() const;
    void SetScrollPos(int position);

Q_SIGNALS:
    // Another row (or none, -1) is selected.
    void selectedRowChanged(int row);
    // The grid lines were switched on or off.
    void gridLinesChanged(bool lines);
    // A cell of `row` was double-clicked.
    void rowDoubleClicked(int row);

private:
    QTableWidgetItem* cell(int row, int column) const;
    void setCellData(int row, int column, int role, const QVariant& value);
    void applyFixedFlags(int rowsBefore, int columnsBefore);
    void noteSelection();

    int m_fixedRows = 0;
    int m_fixedColumns = 0;
    int m_selectedRow = -1;
};
