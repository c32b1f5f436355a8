#pragma once
// The "Map Color Table" dialog: the colour table of a data item whose values stand for texts
// (format 30 of the data definition), kept in a named colour-table file (data type 25). Which
// item a table colours is the file's sub-type ("MAP,group,item,format"). The table has one
// entry per text, value = the text's index: a table without entries gets a ramp from red to
// green, one with fewer entries gets red ones added. The grid shows one row per text, in
// index order, stretched evenly over the grid when all rows fit; a double-click edits the
// colour of a text. A table of another item format shows nothing. OK writes the file; a write
// that fails says so and keeps the dialog open (the old file stays whole).

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/ColorTable.h>
#include <QelConfigure/BaseDlg.h>
#include <QelConfigure/SmartFileImpl.h>

#include <QStringList>

#include <vector>

class CColorGridCtrl;

class QELMFC0_EXPORT MapColorTableEditor : public BaseDlg
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6548;
    // Dialog id of the colour grid; the widget carries it as its object name.
    static constexpr int IDC_COLOR_GRID = 6743;
    // The item format whose values have texts.
    static constexpr int kMapTextFormat = 30;

    // Edits the map colour table `tableName` (a name of the colour-table folder, or a path),
    // read now; a file that cannot be read gives an empty table.
    explicit MapColorTableEditor(const QString& tableName, QWidget* parent = nullptr);
    ~MapColorTableEditor() override;

    // Heights of `count` rows spread evenly over `clientHeight` pixels: row i gets
    // trunc((i + 1) h) - trunc(i h) with h = clientHeight / count, so they add up to it.
    static std::vector<int> StretchedRowHeights(int clientHeight, int count);

    // The table as edited so far, its name, the item's texts, and the colour grid.
    const ColorTable& Table() const { return m_table; }
    QString TableName() const { return m_tableName; }
    QStringList Texts() const { return m_texts; }
    CColorGridCtrl* Grid() const { return m_grid; }
    // The item the table colours: group, item number and format (-1 each when not known).
    int Group() const { return m_group; }
    int Item() const { return m_item; }
    int Format() const { return m_format; }

protected:
    // Finds the item of the table, titles the dialog, completes the table and fills the grid.
    void OnInitDialog();
    // Writes the table and closes; with a failed write, says so and stays open.
    void OnOK();
    // A double-click on `row` edits that text's colour.
    void OnDblclkColorGrid(int row);
    // Fills the grid: one row per text with its entry's colours.
    void FillColorTree();
    // Stretches the rows over the grid when all of them fit at their default height.
    void FitRows();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLayout();
    void ReadItem();
    void CompleteTable();

    QString m_tableName;
    QString m_tablePath;
    SmartFileImpl m_file;
    ColorTable m_table;
    int m_group = -1;
    int m_item = -1;
    int m_format = -1;
    QStringList m_texts;
    CColorGridCtrl* m_grid = nullptr;
};
