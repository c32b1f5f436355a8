#pragma once
// The "Dredge Differential Color Table" dialog: edits a dredging-difference colour table kept in
// a named colour-table file (data type 25). The table is not edited entry by entry: it is
// generated from three colour ramps (above the under-dredge limit, between the limits, below
// the over-dredge limit), each a number of colours between a max and a min colour, and from the
// two limits. The grid shows the generated table, highest value on top, with a last "Below" row.
//
// Every change of a number or a colour regenerates the table at once and enables "Apply" and
// "OK"; typing a number that is already there changes nothing. A number of colors is a whole
// number held between 1 and 256 (a number outside is shown as the one used). "Apply" writes the
// table to its file, marked as a dredging-difference table whose limits follow the design
// model's during real-time work, and announces the table's name (tableNameChanged); "Cancel"
// leaves the file as it was. Typed text that is no number is refused with a message.

#include "QelMfc0/QelMfc0Export.h"
#include <QDialog>
#include <QelBase/ColorTable.h>
#include <QelConfigure/SmartFileImpl.h>

class CColorGridCtrl;
class ColorWell;
class QLabel;
class QLineEdit;
class QPushButton;

class QELMFC0_EXPORT DredgeDiffColorTableEditor : public QDialog
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6576;
    // The message number that announced the table's name to the parent (tableNameChanged now).
    static constexpr int kTableNameChangedMessage = 0x8084;
    // Rows above which the grid's column leaves room for the vertical scroll bar.
    static constexpr int kRowsWithoutScrollBar = 15;
    // The bounds a number of colors of a ramp is held within.
    static constexpr int kMinRampColors = 1;
    static constexpr int kMaxRampColors = 256;

    // Dialog ids of the controls; the widgets carry them as object names ("6862", ...).
    enum ControlId : int {
        IDC_GRID = 6855,
        IDC_UNDER_COUNT = 6862,
        IDC_INTOL_COUNT = 6863,
        IDC_OVER_COUNT = 6864,
        IDC_UNDER_LIMIT = 6865,
        IDC_OVER_LIMIT = 6866,
        IDC_MAX_UNDER = 6856,
        IDC_MIN_UNDER = 6857,
        IDC_MAX_INTOL = 6858,
        IDC_MIN_INTOL = 6859,
        IDC_MAX_OVER = 6860,
        IDC_MIN_OVER = 6861,
        IDC_APPLY = 6870,
        IDC_SYNC_TEXT = 6879,
    };

    // Edits the table `tableName` (a name of the colour-table folder, or a path), read now; a
    // file that cannot be read gives the default ramps and limits. `limitsEditable` false
    // leaves the two limits as the table has them (and drops the note on their synchronisation).
    explicit DredgeDiffColorTableEditor(const QString& tableName, QWidget* parent = nullptr,
                                        bool limitsEditable = true);
    ~DredgeDiffColorTableEditor() override;

    // The class's meta-object, and that of the object's own class.
    static const QMetaObject* GetThisClass() { return &staticMetaObject; }
    const QMetaObject* GetRuntimeClass() const { return metaObject(); }

    // The table as generated so far.
    const ColorTable& Table() const { return m_table; }
    // The name of the table's file.
    QString TableName() const { return m_tableName; }
    // True when the file was read when the dialog opened.
    bool IsLoaded() const { return m_loaded; }
    // The colour grid, for hosts and tests.
    CColorGridCtrl* Grid() const { return m_grid; }

Q_SIGNALS:
    // On every Apply: the name of the table's file.
    void tableNameChanged(const QString& name);

protected:
    // Shows the members in the controls (save false) or reads them back (save true). Reading
    // takes nothing when a field is not a number and returns that field (else null).
    QLineEdit* DoDataExchange(bool save);
    // Takes the ramps and limits from the table, shows them and the table; Apply and OK off.
    void OnInitDialog();
    // Generates the table from the controls, marks it as a dredging-difference table, writes it
    // and announces its name; false (with a message) when a field is no number or the write failed.
    bool OnApply();
    // Applies and, when the file was written, closes.
    void OnOK();
    // Sets the table's ramps and limits from the members and generates it; fills the grid.
    void GenerateColorTable();
    // Regenerates the table and fills the grid from it.
    void FillColorTree();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLayout();
    QLineEdit* MakeEdit(int id);
    ColorWell* MakeWell(int id, const QString& caption, QLabel*& label);
    // A field left or confirmed: regenerates when the field's value changed.
    void OnFieldEdited(QLineEdit* field);
    // A well's colour changed (not while the dialog shows its members).
    void OnColorChanged();
    // Regenerates and enables Apply and OK.
    void Changed();
    // Reads `field` into its member; false when its text is no number (the member is kept).
    bool ReadField(QLineEdit* field);
    void ShowField(QLineEdit* field);
    void RefuseNumber(QLineEdit* field);
    bool SaveTable();
    void FitGridToClient();

    int m_underCount = 5;
    int m_inTolCount = 5;
    int m_overCount = 5;
    double m_underLimit = 0.5;
    double m_overLimit = -0.5;
    COLORREF m_maxUnderColor = 0x808080;
    COLORREF m_minUnderColor = 0xC0C0C0;
    COLORREF m_maxInTolColor = 0x00FF00;
    COLORREF m_minInTolColor = 0x00FFFF;
    COLORREF m_maxOverColor = 0x0000FF;
    COLORREF m_minOverColor = 0x0000C8;
    bool m_limitsEditable;

    QString m_tableName;
    bool m_loaded = false;
    bool m_showing = false; // the members are being shown: well signals are no user change
    SmartFileImpl m_file;
    ColorTable m_table;

    CColorGridCtrl* m_grid = nullptr;
    QLineEdit* m_underCountEdit = nullptr;
    QLineEdit* m_inTolCountEdit = nullptr;
    QLineEdit* m_overCountEdit = nullptr;
    QLineEdit* m_underLimitEdit = nullptr;
    QLineEdit* m_overLimitEdit = nullptr;
    ColorWell* m_maxUnderWell = nullptr;
    ColorWell* m_minUnderWell = nullptr;
    ColorWell* m_maxInTolWell = nullptr;
    ColorWell* m_minInTolWell = nullptr;
    ColorWell* m_maxOverWell = nullptr;
    ColorWell* m_minOverWell = nullptr;
    QLabel* m_syncText = nullptr;
    QPushButton* m_apply = nullptr;
    QPushButton* m_ok = nullptr;
};
