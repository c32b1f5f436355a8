#pragma once
// The modeless "Measure Relative Vessel" dialog: the bearing and the true distance (divided by
// the projection's line scale factor) from one position to another, in one row.
//
// The dialog is complete after construction; Enter and Escape never close it.


#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/Point.h>
#include <QelMfc0/dialogs/measure/MeasureDlgBase.h>

class CAttributeMap;
class DistanceCtrl;
class FileObject;
class QLabel;
class QLineEdit;

class QELMFC0_EXPORT CMeasureBrgDistDlg : public MeasureDlgBase
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6570;
    static constexpr int kBearingLabelId = 6677;  // "Bearing:"
    static constexpr int kBearingId = 6674;
    static constexpr int kDistanceId = 6673;      // distance (DistanceCtrl)

    // A dialog over `parent` (placed at its top-left corner) that remembers the user's unit
    // in `attributes` (not owned, may be null).
    explicit CMeasureBrgDistDlg(QWidget* parent = nullptr, CAttributeMap* attributes = nullptr);
    ~CMeasureBrgDistDlg() override;

    // Sets the from / to position; with both set, shows the bearing and distance between them.
    void SetFromPos(const Point& from);
    void SetToPos(const Point& to);
    // Forgets both positions, empties the fields and re-applies the remembered unit.
    void Clear();
    // Shows the distance in the unit with that key, recomputes and remembers the key.
    void SetDistUnit(const QString& key);

    // The distance control, for hosts and tests.
    DistanceCtrl* DistanceControl() const { return m_distanceCtrl; }
    // The bearing text.
    QString BearingText() const;

protected:
    void ChangeFontSize() override;

private:
    void InitDialog();
    void Recompute();
    void OnDistUnitChange();
    void OnProjectClosing();
    void OnProjectChanged();

    QLabel* m_bearingLabel = nullptr;
    QLineEdit* m_bearing = nullptr;
    DistanceCtrl* m_distanceCtrl = nullptr;
    Point m_from;
    Point m_to;
    MeasureSupport::CarriedPoint m_carriedFrom; // during a project switch
    MeasureSupport::CarriedPoint m_carriedTo;
    bool m_fromSet = false;
    bool m_toSet = false;
};
