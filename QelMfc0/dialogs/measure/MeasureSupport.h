#pragma once
// What the three measuring dialogs share: the unit and coordinate format the user chose last
// (kept in the host's attribute map), the window size kept in a configuration file, the place
// at the parent's corner, the swallowing of Enter and Escape, and the scaled "Arial" fonts.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/Point.h>

#include <QPoint>
#include <QString>

class CAttribValue;
class CAttributeMap;
class DistanceCtrl;
class FileObject;
class QEvent;
class QFont;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QWidget;

class QELMFC0_EXPORT MeasureSupport
{
public:
    // A position of the host taken across a project switch: read in the closing project's
    // terms (latitude/longitude on its coordinate system, height in metres) and given back in
    // the terms of the project that replaces it.
    struct CarriedPoint
    {
        Point grid;               // as it was given, in the closing project's grid units
        double latitude = 0.0;
        double longitude = 0.0;
        bool geographic = false;  // the closing project placed it on the earth
        double heightMetres = 0.0;
    };
    // Takes `point` out of the open project (call it while the old project is still open).
    static CarriedPoint CarryOut(const Point& point);
    // The carried position in the open project: the same place on earth when both projects
    // have a coordinate system that takes it, else the grid numbers as they were; the height
    // in the project's unit.
    static Point CarryIn(const CarriedPoint& carried);

    // Attribute keys shared by the measuring dialogs.
    static const QString kDistUnitKey;     // "MeasureDistUnit": key of a DistanceCtrl unit
    static const QString kCoordFormatKey;  // "MeasureCoordFormat": a CCoordinateCtrl::format_type
    // Configuration keys of the window size (pixels at 96 DPI).
    static const QString kWidthKey;        // "iWidth"
    static const QString kHeightKey;       // "iHeight"

    // Support for `dialog`, remembering choices in `attributes` (not owned, may be null) and
    // its size under `section`. Notes the top-left corner of `parent` (screen coordinates;
    // (0, 0) without a parent).
    MeasureSupport(QWidget* dialog, QWidget* parent, CAttributeMap* attributes,
                   const QString& section);

    // The host's attribute map, null when none was given.
    CAttributeMap* Attributes() const { return m_attributes; }
    // The section name of the window size.
    const QString& Section() const { return m_section; }
    // The parent's top-left corner noted at construction.
    QPoint ParentCorner() const { return m_parentCorner; }

    // The remembered unit key; false when there is no map or no value under the key.
    bool StoredDistUnit(QString& key) const;
    // The remembered coordinate format; -1 when there is no map or no value under the key.
    int StoredCoordFormat() const;
    // Remembers a unit key / a coordinate format; nothing without a map.
    void StoreDistUnit(const QString& key) const;
    void StoreCoordFormat(int format) const;

    // Keeps `file` (not owned, may be null) and, when it holds a non-square size under the
    // section, resizes the dialog to it (DPI-corrected) without moving it.
    void SetPrsConfiguration(FileObject* file);
    // The configuration file given last, null when none.
    FileObject* PrsConfiguration() const { return m_file; }
    // Writes the dialog's current size (back to 96 DPI) into the configuration file, if any.
    void SaveSize() const;
    // Moves the dialog to the parent's corner noted at construction.
    void MoveToParentCorner() const;

    // True for Enter, Return and Escape, the keys that would close a dialog.
    static bool IsClosingKey(const QKeyEvent* event);
    // The library's scaled font: "Arial" at `pointSize` points.
    static QFont ScaledFont(int pointSize);
    // Keeps a fifth of the height of a label or value field free above and below its text, so
    // that the font fitted to its contents leaves the text room to breathe (and to fit the
    // width of the dialog's columns). Call before asking for the fitting font size.
    static void ReserveTextMargins(QWidget* widget);
    // The property ReserveTextMargins sets on the widgets it keeps margins for.
    static constexpr const char* kTextMarginsProperty = "qelTextMargins";
    // An angle in degrees with the bearing formatter's decimals and sign: the formatter's text
    // for the magnitude, with '-' in front of negative angles (slopes and elevations go below
    // the horizontal, they do not wrap around to 359). Empty for NaN or infinity.
    static QString FormatSignedAngle(double degrees);
    // The scale correction to divide grid distances by: the open project's line scale factor
    // between (x1, y1) and (x2, y2); 1.0 when the project has no coordinate system or the
    // factor is not usable (0.0, negative or not finite).
    static double LineScaleFactor(double x1, double y1, double x2, double y2);
    // Shows `value` (project unit) in the control, converted into its unit when `convert`;
    // without any unit (no units file) the value is shown unconverted instead of failing.
    static void ShowDistance(DistanceCtrl* control, double value, bool convert);

    // Children of a measuring dialog, named after their dialog id so that FindPlaceholder and
    // findChild reach them. A label with `text`; a read-only value field; a placeholder for a
    // composite control (carrying the id in its "id" property and `text` for its caption).
    // Labels and fields ignore their size hints: the dialog's layout alone sizes them, so the
    // fonts that follow the dialog's size never feed back into it.
    static QLabel* MakeLabel(QWidget* dialog, int id, const QString& text);
    static QLineEdit* MakeField(QWidget* dialog, int id);
    static QLabel* MakePlaceholder(QWidget* dialog, int id, const QString& text = QString());
    // The object name of dialog id `id`.
    static QString IdName(int id);

private:
    // The map's value under `key`, made when missing; null without a map.
    CAttribValue* ValueToStore(const QString& key) const;

    QWidget* m_dialog;
    CAttributeMap* m_attributes;
    QString m_section;
    QPoint m_parentCorner;
    FileObject* m_file = nullptr;
};
