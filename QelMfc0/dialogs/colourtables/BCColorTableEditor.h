#pragma once
// The "BC Color Table" dialog: the colour table of a bottom classification, kept in a named
// colour-table file (data type 25). Each of the suite's 20 bottom types (the control attributes
// of "BottomTypes" in the attribute definitions) has a fixed, locked entry named after it; type
// 0 is the low colour. A table with fewer entries is filled up from the default colours, one
// with more is cut back to 19 entries. The grid shows the low colour first, then the entries
// in ascending order, each by its name; a double-click edits a colour and its name, "Default"
// puts the default table back. OK writes the file; a write that fails says so and keeps the
// dialog open (the old file stays whole).

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/ColorTable.h>
#include <QelConfigure/BaseDlg.h>
#include <QelConfigure/SmartFileImpl.h>

class CColorGridCtrl;

class QELMFC0_EXPORT BCColorTableEditor : public BaseDlg
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6574;
    // Dialog ids of the controls; the widgets carry them as object names ("6743", ...).
    enum ControlId : int {
        IDC_COLOR_GRID = 6743,
        IDC_DEFAULT = 6845,
    };
    // The number of bottom types (the low colour and kEntries entries).
    static constexpr int kTypes = 20;
    static constexpr int kEntries = kTypes - 1;
    // The default value and colour of type `type` (1 .. kEntries; 0 is the low colour).
    static double DefaultValue(int type);
    static COLORREF DefaultColor(int type);

    // Edits the bottom-classification table `tableName` (a name of the colour-table folder, or
    // a path), read now; a file that cannot be read gives an empty table.
    explicit BCColorTableEditor(const QString& tableName, QWidget* parent = nullptr);
    ~BCColorTableEditor() override;

    // Brings the table to the bottom types and writes it to its file; false when it could not
    // be written.
    bool CheckAndSave();
    // Replaces the table by a ramp of 256 greys from black at -50 to white at -24 (a default
    // backscatter table) and writes it; true in any case.
    bool GenDefBkkColorTable();

    // The table as edited so far, its name, and the colour grid (hosts and tests).
    const ColorTable& Table() const { return m_table; }
    QString TableName() const { return m_tableName; }
    CColorGridCtrl* Grid() const { return m_grid; }

protected:
    // Brings the table to the bottom types, titles the dialog and fills the grid.
    void OnInitDialog();
    // Writes the table and closes; with a failed write, says so and stays open.
    void OnOK();
    // "Default": every entry removed and the default table built again.
    void OnDefault();
    // A double-click on `row` edits that type's colour and name.
    void OnDblclkColorGrid(int row);
    // With 20 bottom types known: cuts a table of more than 19 entries back to 19, or fills a
    // smaller one up with the defaults (locked, named after their types). True in any case.
    bool UpdateBCColorTable();
    // Fills the grid from the table: the low colour, then the entries in ascending order.
    void FillColorTree();

private:
    void BuildLayout();
    bool SaveTable();
    QString ValueText(int index) const;

    QString m_tableName;
    QString m_tablePath;
    SmartFileImpl m_file;
    ColorTable m_table;
    CColorGridCtrl* m_grid = nullptr;
};
