#pragma once
// The "Color Table" dialog: edits a colour table kept in a named colour-table file (data type
// 25), for depths or, in scale mode, map scales. The table shows as a one-column colour grid,
// the highest value on top and a last "Below" row for the low colour. Beside it: ranges
// generated between a minimum and a maximum value and colour (by number of colours or by step,
// in hue or in red, green and blue), colour presets, single entries edited in the "Color Table
// Entry" dialog, rotation of the colours, a compact overview, and the choice of the file.
// Entries added or edited one by one are locked (marked " *"): ranges added later and the
// rotation of the colours pass them by.
//
// The table is written to its file only by "Apply", "OK" and "Save As"; "Cancel" leaves the
// file as it was, and a write that fails leaves the old file whole, says so and keeps the
// dialog open. When the file shown is another one than at the last Apply, Apply announces
// the new name (tableNameChanged). Typed text that is not a number is refused with a message.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/ColorTable.h>
#include <QelConfigure/BaseDlg.h>
#include <QelConfigure/SmartFileImpl.h>

#include <initializer_list>
#include <vector>

class CColorGridCtrl;
class ColorWell;
class FileTypeCombo;
class QAbstractButton;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

class QELMFC0_EXPORT CColorTableEditor : public BaseDlg
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6515;
    // The message number that announced a new table name to the parent (tableNameChanged now).
    static constexpr int kTableNameChangedMessage = 0x8084;
    // Rows the overview shows, the "Below" row included.
    static constexpr int kOverviewRows = 14;

    // Dialog ids of the controls; the widgets carry them as object names ("6740", ...).
    enum ControlId : int {
        IDC_COLOR_UP = 6740,
        IDC_COLOR_DOWN = 6741,
        IDC_COLOR_GRID = 6743,
        IDC_APPLY = 6744,
        IDC_OVERVIEW = 6737,
        IDC_GENERATE_GROUP = 6736,
        IDC_MAXIMUM_GROUP = 6762,
        IDC_MINIMUM_GROUP = 6763,
        IDC_NUMCOLORS_RADIO = 6628,
        IDC_STEPSIZE_RADIO = 6742,
        IDC_NUMCOLORS = 6630,
        IDC_STEPSIZE = 6629,
        IDC_MIN_DEPTH = 6738,
        IDC_MAX_DEPTH = 6739,
        IDC_MODE_LABEL = 6817,
        IDC_HUE_RADIO = 6814,
        IDC_RGB_RADIO = 6815,
        IDC_REPLACE = 6756,
        IDC_ADD_RANGE = 6771,
        IDC_EDIT = 6621,
        IDC_ADD = 6620,
        IDC_REMOVE = 6622,
        IDC_CLEAR = 6716,
        IDC_RANGE_COLORS_GROUP = 6759,
        IDC_GREYS = 6745,
        IDC_HUES = 6746,
        IDC_RUST = 6854,
        IDC_REVERSE = 6748,
        IDC_FILE_COMBO = 6852,
        IDC_SAVE_AS = 6853,
        IDC_MIN_COLOR = 6631,
        IDC_MAX_COLOR = 6632,
    };

    // Edits the colour table `tableName` (a name of the colour-table folder, or a path), read
    // now; a file that cannot be read gives an empty table. `allowFileSelection` offers the
    // choice of another file and "Save As"; `scaleMode` takes the values as map scales.
    CColorTableEditor(const QString& tableName, QWidget* parent = nullptr, bool allowFileSelection = true,
                      bool scaleMode = false);
    ~CColorTableEditor() override;

    // The table as edited so far.
    const ColorTable& Table() const { return m_table; }
    // The name of the table's file.
    QString TableName() const { return m_tableName; }
    // True when the file was read when it was opened last.
    bool IsLoaded() const { return m_loaded; }
    bool IsScaleMode() const { return m_scaleMode; }
    bool IsOverview() const { return m_overview; }
    // The colour grid, for hosts and tests.
    CColorGridCtrl* Grid() const { return m_grid; }

    // The colours of the slots (entries and low colour) after `shift` steps of rotation among the
    // unlocked slots: moving down, each unlocked slot takes the colour of the unlocked slot
    // `shift` places after it (cyclically), moving up the one `shift` places before it. Locked
    // slots keep their colours. `locked` has one flag per colour.
    static std::vector<COLORREF> RotateColors(const std::vector<COLORREF>& colors, const std::vector<bool>& locked,
                                              int shift, bool down);

Q_SIGNALS:
    // On Apply, when the dialog shows another file than before (chosen in the combo or saved
    // under another name): the file's name.
    void tableNameChanged(const QString& name);

protected:
    // Shows the members in the controls (save false) or reads them back (save true). Reading
    // stops at the first field that is not a number: that field is returned (else null).
    QLineEdit* DoDataExchange(bool save);
    // Sets the controls up from the table and the constructor's choices.
    void OnInitDialog();
    // Applies and, when the file was written, closes.
    void OnOK();

    // "Up" / "Down": rotate the colours of the unlocked entries and the low colour by one slot
    // (in the overview by as many entries as a row stands for), keeping the scroll position.
    void OnColorUp();
    void OnColorDown();
    // A double-click on a row edits it (not in the overview).
    void OnDblclkColorGrid(int row);
    // Writes the table to its file and announces a new name; false (with a message) when a field
    // is no number or the file could not be written.
    bool OnApply();
    // "<<" / ">>": the grid alone with a sample of 14 rows, or the whole dialog again.
    void OnOverview();
    // The radios of number of colours and step size: enable the field of the choice.
    void OnNumcolorsRadio();
    void OnStepsizeRadio();
    // A field left: the step follows a new number of colours, the number a new step, and either
    // (by the choice) new ends of the range.
    void OnKillfocusNumcolors();
    void OnKillfocusStepsize();
    void OnKillfocusDepth();
    // The mode radios (hue, or red, green and blue): take the choice.
    void OnHueRadio();
    void OnRgbRadio();
    // "Replace" / "Add" of the range group.
    void OnGenerateButton();
    void OnAddButton();
    // Single entries: edit the selected row, add an entry, remove the selected row, clear all.
    void OnEdit();
    void OnAdd();
    void OnDelete();
    void OnClear();
    // Presets of the range colours, and the swap of the two ends.
    void OnGreysButton();
    void OnHuesButton();
    void OnRustButton();
    void OnReverseButton();
    // Another file chosen in the combo: its table is read (edits of the other one are dropped).
    void OnCbnSelchangeSelectFileCombo();
    // "Save As": the table written under a name chosen in a file dialog, which it then keeps.
    void OnBnClickedSaveAsCol();

    // Loads the generation fields from the table and shows them.
    void InitColorParams();
    // Fills the grid from the table; `keepScroll` puts back the saved scroll position.
    void FillColorTree(bool keepScroll);
    // Replaces / adds to the table a range generated from the fields ("Replace" / "Add").
    void GenerateColorTable(bool rgb);
    void AddColorTable(bool rgb);
    // The value at `row` of `rows` rows (0: one row per entry and the low colour) between the
    // first and the last entry.
    double CalculateValue(int row, int rows) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLayout();
    QPushButton* MakeButton(int id, const QString& text);
    QLineEdit* MakeEdit(int id);
    // Reads the controls; with a field that is no number, says so, focuses it and returns false.
    bool ReadControls();
    // Reads the given fields into the members, all or none: the first field that is no number
    // (nothing is taken then), else null.
    QLineEdit* ReadFields(std::initializer_list<QLineEdit*> fields);
    void ShowCountAndStep();
    void GenerateRange(bool rgb, bool add);
    void Rotate(bool down);
    void OpenTable(const QString& name);
    // Writes the table to `path`: the file's contents are replaced by the table.
    bool SaveTable(const QString& path);
    void FitGridToClient();
    QString ValueText(double value, int decimals) const;
    void RefuseNumber(QLineEdit* field);

    // Generation fields.
    double m_minValue = -10.0;
    double m_maxValue = 0.0;
    int m_countOrStep = 0;  // 0 by number of colours, 1 by step size
    int m_colorMode = 0;    // 0 hue, 1 red, green and blue
    double m_stepSize = 0.0;
    int m_numColors = 256;
    bool m_rust = false;
    COLORREF m_minColor = RGB(0, 0, 255);
    COLORREF m_maxColor = RGB(255, 0, 0);

    bool m_scaleMode;
    bool m_allowFileSelection;
    QString m_tableName;
    QString m_tablePath;
    bool m_nameChanged = false;
    bool m_loaded = false;
    SmartFileImpl m_file;
    ColorTable m_table;
    int m_rowsShown = 0;
    bool m_overview = false;
    int m_fullWidth = 0;
    int m_savedScroll = 0;

    CColorGridCtrl* m_grid = nullptr;
    QWidget* m_sidePanel = nullptr;
    FileTypeCombo* m_fileCombo = nullptr;
    QPushButton* m_saveAs = nullptr;
    QPushButton* m_overviewButton = nullptr;
    ColorWell* m_minWell = nullptr;
    ColorWell* m_maxWell = nullptr;
    QLineEdit* m_minEdit = nullptr;
    QLineEdit* m_maxEdit = nullptr;
    QLineEdit* m_numColorsEdit = nullptr;
    QLineEdit* m_stepEdit = nullptr;
    QRadioButton* m_numColorsRadio = nullptr;
    QRadioButton* m_stepRadio = nullptr;
    QRadioButton* m_hueRadio = nullptr;
    QRadioButton* m_rgbRadio = nullptr;
};
