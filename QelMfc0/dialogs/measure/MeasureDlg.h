#pragma once
// The modeless "Measure" dialog: the host feeds it a from and a to position (as the user clicks
// or moves on a chart or profile) and it shows both positions, their distance and bearing and,
// in three-D mode, both altitudes and the elevation angle or the height difference.
//
// The dialog is complete after construction (the controls replace their placeholders there);
// Enter and Escape never close it, the window's close button does.

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/dialogs/measure/MeasureDlgBase.h>

class QELMFC0_EXPORT CMeasureDlg : public MeasureDlgBase
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6523;
    // Dialog ids of the controls; the widgets carry them as object names ("6668", ...).
    static constexpr int kFromCoordId = 6668;     // from position (CCoordinateCtrl)
    static constexpr int kDistanceId = 6673;      // distance (DistanceCtrl)
    static constexpr int kFromLabelId = 6669;     // "From:"
    static constexpr int kToLabelId = 6667;       // "To:"
    static constexpr int kBearingLabelId = 6677;  // "Bearing:" or "Slope:"
    static constexpr int kBearingId = 6674;
    static constexpr int kAltitudeLabelId = 6818; // "Altitude:"
    static constexpr int kFromAltitudeId = 6819;
    static constexpr int kToAltitudeId = 6820;
    static constexpr int kElevationLabelId = 6821; // "Elevation:" or "Z Diff."
    static constexpr int kElevationId = 6822;     // elevation angle or height difference
    static constexpr int kToFirstId = 6823;       // to position, first coordinate
    static constexpr int kToSecondId = 6824;      // to position, second coordinate
    // Pixels (at 96 DPI) the dialog loses when the altitude row is hidden.
    static constexpr int kAltitudeRowHeight = 22;

    // A dialog over `parent` (placed at its top-left corner) that remembers the user's unit
    // and format in `attributes` (not owned, may be null). `threeD` shows altitudes and the
    // elevation; not `selectable` fixes the grid format and the unit (shown unconverted);
    // `noScaleCorrection` shows grid distances as they are.
    explicit CMeasureDlg(QWidget* parent = nullptr, CAttributeMap* attributes = nullptr,
                         bool threeD = false, bool selectable = true,
                         bool noScaleCorrection = false);
    ~CMeasureDlg() override;

    // Sets the from position: shown in the from control with its altitude; recomputes.
    void SetFromPos(const Point& from);
    // Sets the to position: shown in the from control's format with its altitude; recomputes.
    void SetToPos(const Point& to);
    // Grid bearing (degrees) and grid distance from the from to the to position, without
    // scale correction or height, whatever the dialog's mode.
    void GetDistanceAndBearing(double& distance, double& bearing) const;
    // Forgets both positions, empties every field and re-applies the remembered unit and format.
    void Clear();
    // Shows positions in `format` (a CCoordinateCtrl::format_type) and remembers it; negative
    // values are ignored. A grid-only dialog takes it too: only its format menu is restricted.
    using MeasureDlgBase::SetCoordFormat;
    // True: the from control shows and offers the grid only; false: grid and geographic.
    void SetGridOnly(bool gridOnly);
    // Slope mode: the bearing field shows the angle from the horizontal (label "Slope:").
    void SetSlope(bool slope);
    // Three-D: the elevation field shows the height difference (label "Z Diff.").
    void SetShowZdiff(bool showZdiff);

    // The controls, for hosts and tests.
    CCoordinateCtrl* FromControl() const { return m_fromCtrl; }
    DistanceCtrl* DistanceControl() const { return m_distanceCtrl; }
    // The text of a value field (6819, 6820, 6674, 6822, 6823, 6824); empty for other ids.
    QString FieldText(int id) const;

    bool IsThreeD() const { return m_threeD; }
    bool IsSlope() const { return m_slope; }
    bool IsShowZdiff() const { return m_showZdiff; }
    bool IsGridOnly() const { return m_gridOnly; }
    bool IsSelectable() const { return m_selectable; }

protected:
    void Recompute() override;
    void CoordFormatApplied() override;
    int RememberedCoordFormat() const override;

private:
    void BuildLayout();
    void FormatToTexts();
    QLineEdit* Field(int id) const;
    QLabel* Label(int id) const;

    CCoordinateCtrl* m_fromCtrl = nullptr;
    DistanceCtrl* m_distanceCtrl = nullptr;
    bool m_threeD;
    bool m_slope = false;
    bool m_showZdiff = false;
    bool m_gridOnly = false;
    bool m_selectable;
    bool m_noScaleCorrection;
};
