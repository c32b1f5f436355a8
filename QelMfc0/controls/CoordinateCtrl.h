#pragma once
// CCoordinateCtrl: entry of one position as geographic latitude/longitude or as grid X/Y.
// A format button on the left (its menu picks the display format) and two stacked edits on
// the right: latitude or X above, longitude or Y below. With the project's coordinate system
// the control keeps both forms of the position and converts between them, so switching the
// format never loses the value. Decimals, flags and feet display come from the open project
// (DataSearch) and follow it when the host opens another project; the coordinate system is
// looked up in the open project whenever it is used.

#include "QelMfc0/QelMfc0Export.h"
#include "QelMfc0/controls/ButtonEditComposite.h"

#include <QString>

class QelGeoCoordSysBase;

class QELMFC0_EXPORT CCoordinateCtrl : public ButtonEditComposite
{
    Q_OBJECT
    Q_PROPERTY(format_type format READ FormatType WRITE SetFormatType NOTIFY formatChanged)
    Q_PROPERTY(double gridX READ GridX WRITE SetGridX NOTIFY gridPositionChanged)
    Q_PROPERTY(double gridY READ GridY WRITE SetGridY NOTIFY gridPositionChanged)
    Q_PROPERTY(double latitude READ Latitude WRITE SetLatitude NOTIFY geoPositionChanged)
    Q_PROPERTY(double longitude READ Longitude WRITE SetLongitude NOTIFY geoPositionChanged)
    Q_PROPERTY(bool geographicOnly READ IsGeogOnly WRITE SetGeogOnly NOTIFY geographicOnlyChanged)
    Q_PROPERTY(bool gridOnly READ IsGridOnly WRITE SetGridOnly NOTIFY gridOnlyChanged)
    Q_PROPERTY(int decimals READ Decimals NOTIFY decimalsChanged)
    Q_PROPERTY(bool tooltipActive READ IsTooltipActive WRITE SetTooltipActive NOTIFY tooltipActiveChanged)

public:
    // Display formats; the values are kept in attribute maps.
    // A value outside the table is allowed (nothing is shown), so the type is fixed.
    enum format_type : int { fmt_seconds = 0, fmt_minutes = 1, fmt_degrees = 2, fmt_grid = 3 };
    Q_ENUM(format_type)

    // Notification codes of the signals changed(), formatChosen() and committed().
    static constexpr int COORD_NOTIFY_CHANGED = 1, COORD_NOTIFY_FORMAT = 2, COORD_NOTIFY_COMMITTED = 3;
    // Identifiers of the format button and the two edits.
    static constexpr int kButtonId = 6501, kEdit1Id = 6502, kEdit2Id = 6503;
    // The format menu and its commands (the action data of FormatMenu()'s actions).
    static constexpr int kFormatMenuId = 6500;
    static constexpr int kCmdDegrees = 34400, kCmdMinutes = 34401, kCmdSeconds = 34402, kCmdGrid = 34403;

    // Reads decimals, geographic and feet flags, the unit and the initial format from the open
    // project; uses the project's coordinate system only when neither flag is given. Ready for
    // use at once (Create or CreateFromStatic only place it). When the host opens another
    // project the control re-reads the settings and shows its position again: the same place
    // on earth when both projects have a coordinate system, else the numbers it showed.
    explicit CCoordinateCtrl(bool geogOnly = false, bool gridOnly = false, QWidget* parent = nullptr);
    // Both kinds of coordinates, through the project's coordinate system (as promoted from a form).
    explicit CCoordinateCtrl(QWidget* parent);
    ~CCoordinateCtrl() override;

    // Mode setters, meant for before the control holds a position; a position it holds is kept
    // and shown in the resulting format. Geographic only (format from the project's geographic
    // flags, no X/Y in the menu); false goes back to both kinds (SetGeogGrid) when it was on.
    void SetGeogOnly(bool geogOnly = true);
    bool IsGeogOnly() const { return m_geogOnly; }
    // Grid only: format fmt_grid, no Lat/Lon in the menu; false goes back to both kinds when it was on.
    void SetGridOnly(bool gridOnly = true);
    bool IsGridOnly() const { return m_gridOnly; }
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
    // One coordinate of the position as the edits give it (typed text read); NaN when empty.
    double GridX() const;
    double GridY() const;
    double Latitude() const;
    double Longitude() const;
    // Replaces one coordinate, keeping the other of the pair (0.0 when empty), as SetXY/SetLatLon;
    // NaN (no position) empties the control.
    void SetGridX(double x);
    void SetGridY(double y);
    void SetLatitude(double latitude);
    void SetLongitude(double longitude);
    // The two edits' raw texts.
    void GetCoordinateAsText(QString& first, QString& second) const;
    // Formats a grid position as the control would show it in its current format; the control
    // is not changed. With a format outside the table the strings are left as they are.
    void FormatXY(double x, double y, QString& first, QString& second) const;

    // The current display format.
    format_type FormatType() const { return m_format; }
    // Switches the display format, keeping the position; formatChanged but no formatChosen.
    void SetFormatType(format_type format);

    // SetReadOnly also switches the examples tooltip: on exactly when editable, in any format.
    // Switches the examples tooltip of the edits on or off (until the next format or read-only
    // change applies the usual rule: on when editable and not in fmt_grid).
    void SetTooltipActive(bool active);
    // True while the examples tooltip is on.
    bool IsTooltipActive() const { return m_tooltipActive; }

    // Focus to edit 1 with all its text selected.
    void SelectEditBox1();

    // The children, for hosts and tests.
    QPushButton* FormatButton() const { return Button(); }
    QLineEdit* Edit1() const { return EditAt(0); }
    QLineEdit* Edit2() const { return EditAt(1); }
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
    // Decimals shown in the current format.
    int Decimals() const { return Decimals(m_format); }
    // What is wrong with `text` as the first (latitude or X) or second (longitude or Y)
    // coordinate of the current format: unreadable, or a latitude beyond 90 or longitude beyond
    // 180 degrees; empty when it reads well or is empty. The edits are marked with it.
    QString InputProblem(bool first, const QString& text) const;

Q_SIGNALS:
    // Text of an edit changed by the user or the host (COORD_NOTIFY_CHANGED); the two texts.
    void changed(const QString& first, const QString& second);
    // A format was picked from the menu (COORD_NOTIFY_FORMAT), also the current one.
    void formatChosen(CCoordinateCtrl::format_type format);
    // The focus left the control after an edit; the text was read and normalised
    // (COORD_NOTIFY_COMMITTED). The position in the format's terms: latitude and longitude
    // in a geographic format, else X and Y.
    void committed(double first, double second);
    // The display format changed.
    void formatChanged(CCoordinateCtrl::format_type format);
    // The grid position, or the geographic one, changed (NaN when the control became empty).
    void gridPositionChanged(double x, double y);
    void geoPositionChanged(double latitude, double longitude);
    // The mode flags changed.
    void geographicOnlyChanged(bool geographicOnly);
    void gridOnlyChanged(bool gridOnly);
    // The decimals shown changed (format or project).
    void decimalsChanged(int decimals);
    // The examples tooltip was switched on or off.
    void tooltipActiveChanged(bool active);

protected:
    void onProjectClosing() override;
    void onProjectChanged() override;
    void onReadOnlySet(bool readOnly) override;
    QMenu* buttonMenu() const override;
    void menuCommand(int command) override;
    QString editProblem(int index, const QString& text) const override;
    void onEditTextChanged(int index) override;
    void onEditingLeft() override;
    void announceChanges() override;

private:
    struct Position
    {
        double x = 0.0;
        double y = 0.0;
        double latitude = 0.0;
        double longitude = 0.0;
    };
    // What the signals last told, to tell only changes.
    struct Told
    {
        Position position;
        format_type format = fmt_grid;
        int decimals = 0;
        bool geogOnly = false;
        bool gridOnly = false;
    };

    void readProjectSettings();
    const QelGeoCoordSysBase* coordSys() const; // the open project's, when the control uses one
    format_type geogsFlagsFormat() const; // the current format when the flags name none
    format_type projectFormat(int projectCoordFormat) const; // the current one for other values
    void completePosition(bool fromGeographic); // the other form through the coordinate system
    void setOnly(bool geographic, bool on); // SetGeogOnly, SetGridOnly
    void setPosition(bool geographic, double first, double second); // SetLatLon, SetXY
    bool getPosition(bool geographic, double& first, double& second); // GetLatLon, GetXY
    void setCoordinate(bool geographic, int index, double value); // SetGridX .. SetLongitude
    void applyTooltipRule();
    void updateTooltips();
    bool formatPosition(const Position& position, QString& first, QString& second) const;
    void showPosition(); // writes the stored position to the edits
    Position parsedPosition() const; // the stored position brought up to date with the edits
    void readPosition(); // stores parsedPosition()
    Position heldPosition() const; // parsedPosition(), NaN when empty
    bool isGeographic(format_type format) const;

    format_type m_format = fmt_grid;
    int m_gridDecimals = 0;
    int m_geogsDecimals = 0;
    unsigned m_geogsFlags = 7;
    bool m_geogOnly = false;
    bool m_gridOnly = false;
    bool m_useCoordSys = false; // converts through the open project's coordinate system
    bool m_hadCoordSys = false; // the closing project had one (during a project switch)
    Position m_position;
    bool m_valid = false;
    bool m_tooltipActive = false;
    unsigned m_feetFlags = 0;
    Told m_told;
};
