#pragma once
// The modeless "Measure Line Relative" dialog: a line from a start to an end position and a
// current position, with the distance along the line from its start, the off-track distance
// and the distance left to the line's end (true distances: divided by the projection's line
// scale factor).
//
// The dialog is complete after construction; Enter and Escape never close it.

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/dialogs/measure/MeasureDlgBase.h>

#include <array>

class QELMFC0_EXPORT MeasureRelativeDlg : public MeasureDlgBase
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6546;
    // Dialog ids (object names) of the position controls and their labels.
    static constexpr int kStartCoordId = 6753;    // "Line start:"
    static constexpr int kCurrentCoordId = 6750;  // "Current position:"
    static constexpr int kEndCoordId = 6672;      // "Line end:"
    static constexpr int kStartLabelId = 6754;
    static constexpr int kCurrentLabelId = 6749;
    static constexpr int kEndLabelId = 6671;
    // Dialog ids (object names) of the distance controls.
    static constexpr int kFromStartId = 6755;     // along the line from its start
    static constexpr int kOffTrackId = 6675;      // "Offtrack"
    static constexpr int kToEndId = 6751;         // left to the line's end

    // A dialog over `parent` (placed at its top-left corner) that remembers the user's unit
    // and format in `attributes` (not owned, may be null).
    explicit MeasureRelativeDlg(QWidget* parent = nullptr, CAttributeMap* attributes = nullptr);
    ~MeasureRelativeDlg() override;

    // Sets the line's start / end and shows it.
    void SetStartPos(const Point& start);
    void SetEndPos(const Point& end);
    // Shows the current position and its three distances relative to the line: from the
    // start (negative before it), off-track (either side alike) and to the end (negative
    // past it).
    void SetCurrentPos(const Point& current);
    // Shows the three positions in `format` (a CCoordinateCtrl::format_type) and remembers
    // it; negative values are ignored.
    using MeasureDlgBase::SetCoordFormat;
    // Re-applies the remembered unit and format (the values shown stay).
    void Clear();

    // The controls, for hosts and tests.
    CCoordinateCtrl* StartControl() const { return m_coord[0]; }
    CCoordinateCtrl* CurrentControl() const { return m_coord[1]; }
    CCoordinateCtrl* EndControl() const { return m_coord[2]; }
    DistanceCtrl* FromStartControl() const { return m_dist[0]; }
    DistanceCtrl* OffTrackControl() const { return m_dist[1]; }
    DistanceCtrl* ToEndControl() const { return m_dist[2]; }

private:
    void BuildLayout();

    std::array<CCoordinateCtrl*, 3> m_coord {};   // start, current, end
    std::array<DistanceCtrl*, 3> m_dist {};       // from start, off-track, to end
    MeasuredPoint m_current;                      // the line's start and end are m_from and m_to
};
