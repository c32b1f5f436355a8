#pragma once
// CCoordinateCtrl: entry of one position as geographic latitude/longitude or as grid X/Y.
// A format button on the left (its menu picks the display format) and two stacked edits on
// the right: latitude or X above, longitude or Y below. With the project's coordinate system
// the control keeps both forms of the position and converts between them, so switching the
// format never loses the value. Decimals, flags and feet display come from the open project
// (DataSearch) and follow it when the host opens another project; the coordinate system is
// looked up in the open project whenever it is used.

#include "QelMfc0/QelMfc0Export.h"
#include <QRect>
#include <QString>
#include <QWidget>

class InputMarker;
class QFont;
class QLineEdit;
class QMenu;
class QPushButton;
class QelGeoCoordSysBase;

class QELMFC0_EXPORT CCoordinateCtrl : public QWidget
{
    Q_OBJECT
public:
    // Display formats; the values are kept in attribute maps.
    // A value outside the table is allowed (nothing is shown), so the type is fixed.
    enum format_type : int { fmt_seconds = 0, fmt_minutes = 1, fmt_degrees = 2, fmt_grid = 3 };

    // Notification codes of the signals changed(), formatChosen() and committed().
    static constexpr int COORD_NOTIFY_CHANGED = 1, COORD_NOTIFY_FORMAT = 2, COORD_NOTIFY_COMMITTED = 3;
    // Identifiers of the format button and the two edits.
    static constexpr int kButtonId = 6501, kEdit1Id = 6502, kEdit2Id = 6503;
    // The format menu and its commands (the action data of FormatMenu()'s actions).
    static constexpr int kFormatMenuId = 6500;
    static constexpr int kCmdDegrees = 34400, kCmdMinutes = 34401, kCmdSeconds = 34402, kCmdGrid = 34403;

    // Reads decimals, geographic and feet flags, the unit and the initial format from the open
    // project; uses the project's coordinate system only when neither flag is given. Not yet
    // created. When the host opens another project the control re-reads the settings and
    // shows its position again: the same place on earth when both projects have a coordinate
    // system, else the numbers it showed.
    explicit CCoordinateCtrl(bool geogOnly = false, bool gridOnly = false, QWidget* parent = nullptr);
    ~CCoordinateCtrl() override;

    // Builds the button and the two edits at `rect` of `parent` (shown when there is a parent),
    // fonts taken from the parent. False when already created.
    bool Create(const QRect& rect, QWidget* parent, int id = 0);
    // Takes the placeholder's place: parent, geometry, layout slot, tab order, object name; the
    // placeholder is deleted. Its integer property "id", when set, becomes Id(). False (nothing
    // changed) for a null or parentless placeholder or when already created.
    bool CreateFromStatic(QWidget* placeholder);
    // The same with the child of `parent` named `objectName`; false when there is none.
    bool CreateFromStatic(const QString& objectName, QWidget* parent);
    // True once Create or CreateFromStatic succeeded.
    bool IsCreated() const { return m_created; }
    // The identifier given to Create (0 when none).
    int Id() const { return m_id; }

    // Mode setters, meant for before Create: they change only the format and flags, never the
    // texts. Geographic only (format from the project's geographic flags, no X/Y in the menu).
    void SetGeogOnly();
    // Grid only: format fmt_grid, no Lat/Lon in the menu.
    void SetGridOnly();
    // Both kinds: format from the project's coordinate format, the project's coordinate system used.
    void SetGeogGrid();
    // 1 (grid) gives fmt_grid, 2 (geographic) the format of the geographic flags; others nothing.
    void SetCoordinateFormat(int projectCoordFormat);

    // Stores the position (converting to grid when there is a coordinate system) and shows it.
    void SetLatLon(double latitude, double longitude);
    // Stores the position (converting to lat/lon when there is a coordinate system) and shows it.
    void SetXY(double x, double y);
    // The position after reading typed text; false (arguments untouched) when empty.
    bool GetLatLon(double& latitude, double& longitude);
    // The grid position after reading typed text; false (arguments untouched) when empty.
    bool GetXY(double& x, double& y);
    // The two edits' raw texts (empty before Create).
    void GetCoordinateAsText(QString& first, QString& second) const;
    // Formats a grid position as the control would show it in its current format; the control
    // is not changed. With a format outside the table the strings are left as they are.
    void FormatXY(double x, double y, QString& first, QString& second) const;
    // Empties both edits; the control then holds no position.
    void Clear();
    // True when the control holds no position.
    bool IsEmpty() const { return m_empty; }

    // The current display format.
    format_type FormatType() const { return m_format; }
    // Switches the display format, keeping the position; sends no signal.
    void SetFormatType(format_type format);

    // Makes both edits read-only or editable; the examples tooltip is on exactly when editable.
    void SetReadOnly(bool readOnly);
    bool IsReadOnly() const { return m_readOnly; }
    // Switches the examples tooltip of the edits on or off (until the next format or read-only
    // change applies the usual rule: on when editable and not in fmt_grid).
    void SetTooltipActive(bool active);
    // True while the examples tooltip is on.
    bool IsTooltipActive() const { return m_tooltipActive; }

    // Focus to edit 1 with all its text selected.
    void SelectEditBox1();
    // Font of the two edits; null goes back to the parent's font.
    void SetFontBox(const QFont* font);
    // Font of the format button; null goes back to the parent's font.
    void SetFontButton(const QFont* font);

    // The children (null before Create), for hosts and tests.
    QPushButton* FormatButton() const { return m_button; }
    QLineEdit* Edit1() const { return m_edit1; }
    QLineEdit* Edit2() const { return m_edit2; }
    // The format menu as the button shows it: the allowed commands, the current one checked,
    // each action's data its command. The caller owns it.
    QMenu* FormatMenu() const;
    // Does what picking menu command 34400..34403 does: SetFormatType, then formatChosen()
    // (also when the format does not change). Other commands do nothing.
    void ChooseFormat(int menuCommand);

    // The button label of a format: "Lat/Lon" (or "Sat.\nLat/Lon" on a satellite datum),
    // "X/Y", empty for a format outside the table.
    QString FormatLabel(format_type format) const;
    // The three example lines of the tooltip of edit 1 (latitude) or edit 2 (longitude).
    static QString ExampleLines(bool latitude);
    // Decimals shown in `format` for the project's geographic decimals and flags.
    int Decimals(format_type format) const;
    // What is wrong with `text` as the first (latitude or X) or second (longitude or Y)
    // coordinate of the current format: unreadable, or a latitude beyond 90 or longitude beyond
    // 180 degrees; empty when it reads well or is empty. The edits are marked with it.
    QString InputProblem(bool first, const QString& text) const;
    // True while edit 1 or edit 2 shows text marked as unreadable.
    bool IsInputMarked() const;

    // Button column plus an edit's preferred width; two edits high (for layouts).
    QSize sizeHint() const override;
    // Button column plus an edit's minimum width; two edits high.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // Text of an edit changed by the user or the host (COORD_NOTIFY_CHANGED).
    void changed();
    // A format was picked from the menu (COORD_NOTIFY_FORMAT).
    void formatChosen();
    // The focus left the control after an edit; the text was read and normalised
    // (COORD_NOTIFY_COMMITTED).
    void committed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readProjectSettings();
    const QelGeoCoordSysBase* coordSys() const; // the open project's, when the control uses one
    void onProjectClosing();
    void onProjectChanged();
    void applyGeogsFlags();
    void applyProjectCoordFormat(int projectCoordFormat);
    void layoutChildren();
    void applyTooltipRule();
    void updateTooltips();
    void onTextChanged();
    void checkInput();
    void onButtonClicked();
    void commit();
    void showPosition(); // writes the stored position to the edits
    void readPosition(); // brings the stored position up to date with the edits
    bool isGeographic(format_type format) const;
    QFont parentFont() const;

    QPushButton* m_button = nullptr;
    QLineEdit* m_edit1 = nullptr;
    QLineEdit* m_edit2 = nullptr;
    InputMarker* m_marker1 = nullptr;
    InputMarker* m_marker2 = nullptr;
    format_type m_format = fmt_grid;
    int m_gridDecimals = 0;
    int m_geogsDecimals = 0;
    unsigned m_geogsFlags = 7;
    bool m_geogOnly = false;
    bool m_gridOnly = false;
    bool m_useCoordSys = false; // converts through the open project's coordinate system
    bool m_hadCoordSys = false; // the closing project had one (during a project switch)
    double m_x = 0.0;
    double m_y = 0.0;
    double m_latitude = 0.0;
    double m_longitude = 0.0;
    bool m_valid = false;
    bool m_empty = true;
    bool m_notify = false;
    bool m_readOnly = false;
    bool m_tooltipActive = false;
    unsigned m_feetFlags = 0;
    int m_id = 0;
    bool m_created = false;
};
