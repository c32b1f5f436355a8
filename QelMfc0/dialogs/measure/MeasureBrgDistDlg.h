#pragma once
// The modeless "Measure Relative Vessel" dialog: the bearing and the true distance (divided by
// the projection's line scale factor) from one position to another, in one row.
//
// The dialog is complete after construction; Enter and Escape never close it.

#include "QelMfc0/QelMfc0Export.h"
#include <QelMfc0/dialogs/measure/MeasureDlgBase.h>

class QELMFC0_EXPORT CMeasureBrgDistDlg : public MeasureDlgBase
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6570;
    // Dialog ids (object names) of the "Bearing:" label, the bearing text and the distance
    // control (DistanceCtrl).
    static constexpr int kBearingLabelId = 6677, kBearingId = 6674, kDistanceId = 6673;

    // A dialog over `parent` (placed at its top-left corner) that remembers the user's unit
    // in `attributes` (not owned, may be null).
    explicit CMeasureBrgDistDlg(QWidget* parent = nullptr, CAttributeMap* attributes = nullptr);
    ~CMeasureBrgDistDlg() override;

    // Sets the from / to position; with both set, shows the bearing and distance between them.
    void SetFromPos(const Point& from);
    void SetToPos(const Point& to);
    // Forgets both positions, empties the fields and re-applies the remembered unit.
    void Clear();

    // The distance control, for hosts and tests.
    DistanceCtrl* DistanceControl() const { return m_distanceCtrl; }
    // The bearing text.
    QString BearingText() const;

protected:
    void Recompute() override;

private:
    QLineEdit* m_bearing = nullptr;
    DistanceCtrl* m_distanceCtrl = nullptr;
};
