#include "QelMfc0/dialogs/measure/MeasureDlg.h"

#include "QelMfc0/StringTable.h"
#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/NumberUtils.h>
#include <QelConfigure/QelFormatter.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <numbers>

namespace {

// Template size in pixels at 96 DPI, with the altitude row.
constexpr int kWidth = 540;
constexpr int kHeight = 86;

// A bearing (0 to below 360) as the angle of a profile line from the horizontal: rising to
// either side is positive, falling negative.
double SlopeAngle(double bearing)
{
    if (bearing < 90.0)
        return 90.0 - bearing;
    if (bearing < 180.0)
        return -(bearing - 90.0);
    if (bearing < 270.0)
        return -(270.0 - bearing);
    return bearing - 270.0;
}

// The ids of the value fields, for emptying them all at once.
constexpr int kFieldIds[] = { CMeasureDlg::kFromAltitudeId, CMeasureDlg::kToAltitudeId,
                              CMeasureDlg::kBearingId, CMeasureDlg::kElevationId,
                              CMeasureDlg::kToFirstId, CMeasureDlg::kToSecondId };

} // namespace

CMeasureDlg::CMeasureDlg(QWidget* parent, CAttributeMap* attributes, bool threeD,
                         bool selectable, bool noScaleCorrection)
    : MeasureDlgBase(kTemplateId, parent, attributes, QStringLiteral("MeasureDlg"))
    , m_threeD(threeD)
    , m_selectable(selectable)
    , m_noScaleCorrection(noScaleCorrection)
{
    setWindowTitle(tr("Measure"));
    EnableSizeGrip(true);
    BuildLayout();

    // The position and distance controls take their placeholders' places; both only show.
    m_fromCtrl = AddPositionControl(kFromCoordId);
    m_distanceCtrl = AddDistanceControl(kDistanceId);
    SetSlope(m_slope);
    SetShowZdiff(m_showZdiff);

    SetTemplateSize({ kWidth, kHeight }, { 200, 40 });
    if (!m_threeD) {
        for (int id : { kAltitudeLabelId, kFromAltitudeId, kToAltitudeId, kElevationLabelId,
                        kElevationId }) {
            if (QWidget* w = findChild<QWidget*>(MeasureSupport::IdName(id)))
                w->hide();
        }
        resize(width(), height() - DpiCor(kAltitudeRowHeight));
    }

    if (!m_selectable) {
        SetGridOnly(true);
        m_fromCtrl->setEnabled(false);
        m_distanceCtrl->setEnabled(false);
    }
    FinishSetup({ { &m_from, [this](const Point& p) { SetFromPos(p); } },
                  { &m_to, [this](const Point& p) { SetToPos(p); } } });
}

CMeasureDlg::~CMeasureDlg() = default;

void CMeasureDlg::BuildLayout()
{
    QGridLayout* grid = MakeGrid();
    grid->addWidget(AddLabel(kFromLabelId, tr("From:")), 0, 0);
    grid->addWidget(MeasureSupport::MakePlaceholder(this, kFromCoordId), 0, 1, 2, 1);
    grid->addWidget(AddLabel(kToLabelId, tr("To:")), 0, 2);
    grid->addWidget(AddField(kToFirstId), 0, 3);
    grid->addWidget(AddField(kToSecondId), 1, 3);
    grid->addWidget(MeasureSupport::MakePlaceholder(this, kDistanceId, tr("Distance")), 0, 4, 1, 2);
    grid->addWidget(AddLabel(kBearingLabelId, tr("Bearing:")), 1, 4);
    grid->addWidget(AddField(kBearingId), 1, 5);

    grid->addWidget(AddLabel(kAltitudeLabelId, tr("Altitude:")), 2, 0);
    grid->addWidget(AddField(kFromAltitudeId), 2, 1);
    grid->addWidget(AddField(kToAltitudeId), 2, 3);
    grid->addWidget(AddLabel(kElevationLabelId, tr("Elevation:")), 2, 4);
    grid->addWidget(AddField(kElevationId), 2, 5);

    const int columnStretch[] = { 6, 15, 3, 10, 7, 9 };
    for (int column = 0; column < 6; ++column)
        grid->setColumnStretch(column, columnStretch[column]);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(2, m_threeD ? 1 : 0);
}

int CMeasureDlg::RememberedCoordFormat() const
{
    return m_gridOnly ? int(CCoordinateCtrl::fmt_grid) : MeasureDlgBase::RememberedCoordFormat();
}

QLineEdit* CMeasureDlg::Field(int id) const
{
    return findChild<QLineEdit*>(MeasureSupport::IdName(id), Qt::FindDirectChildrenOnly);
}

QLabel* CMeasureDlg::Label(int id) const
{
    return findChild<QLabel*>(MeasureSupport::IdName(id), Qt::FindDirectChildrenOnly);
}

QString CMeasureDlg::FieldText(int id) const
{
    const QLineEdit* field = Field(id);
    return field ? field->text() : QString();
}

void CMeasureDlg::SetFromPos(const Point& from)
{
    m_from.Set(from);
    // The control converts to latitude/longitude itself when it has a coordinate system.
    m_fromCtrl->SetXY(from.x, from.y);
    Field(kFromAltitudeId)->setText(QelFormatter().FormatDepth(from.z, true, true));
    Recompute();
    ChangeFontSize();
}

void CMeasureDlg::SetToPos(const Point& to)
{
    m_to.Set(to);
    FormatToTexts();
    Field(kToAltitudeId)->setText(QelFormatter().FormatDepth(to.z, true, true));
    Recompute();
    ChangeFontSize();
}

void CMeasureDlg::FormatToTexts()
{
    QString first;
    QString second;
    m_fromCtrl->FormatXY(m_to.point.x, m_to.point.y, first, second);
    Field(kToFirstId)->setText(first);
    Field(kToSecondId)->setText(second);
}

void CMeasureDlg::CoordFormatApplied()
{
    if (m_to.set)
        FormatToTexts();
}

void CMeasureDlg::GetDistanceAndBearing(double& distance, double& bearing) const
{
    const Point d = m_to.point - m_from.point;
    XYToPolar(d.x, d.y, bearing, distance);
}

void CMeasureDlg::Recompute()
{
    double bearing = 0.0;
    double horizontal = 0.0;
    if (!MeasureLine(bearing, horizontal, !m_noScaleCorrection))
        return;
    const Point d = m_to.point - m_from.point;
    const double angle = m_slope ? SlopeAngle(bearing) : bearing;
    const double distance = m_threeD ? std::sqrt(d.z * d.z + horizontal * horizontal) : horizontal;
    MeasureSupport::ShowDistance(m_distanceCtrl, distance, m_selectable);
    double elevation = 0.0;
    if (m_threeD && distance != 0.0)
        elevation = std::atan2(d.z, horizontal) * 180.0 / std::numbers::pi;

    const QelFormatter formatter;
    Field(kBearingId)->setText(m_slope ? MeasureSupport::FormatSignedAngle(angle)
                                       : formatter.FormatBearing(angle));
    Field(kElevationId)->setText(m_showZdiff ? formatter.FormatDepth(d.z, true, true)
                                             : MeasureSupport::FormatSignedAngle(elevation));
    ChangeFontSize();
}

void CMeasureDlg::Clear()
{
    m_fromCtrl->Clear();
    m_distanceCtrl->Clear();
    m_from.set = false;
    m_to.set = false;
    ReapplyRememberedChoices();
    for (int id : kFieldIds)
        Field(id)->clear();
}

void CMeasureDlg::SetGridOnly(bool gridOnly)
{
    if (gridOnly) {
        // The format first, so that the button label and the texts follow.
        m_fromCtrl->SetFormatType(CCoordinateCtrl::fmt_grid);
        m_fromCtrl->SetGridOnly();
    } else {
        const CCoordinateCtrl::format_type before = m_fromCtrl->FormatType();
        m_fromCtrl->SetGeogGrid();
        const CCoordinateCtrl::format_type after = m_fromCtrl->FormatType();
        if (after != before) {
            // The mode setter changes only the format: pass through the old one to redraw.
            m_fromCtrl->SetFormatType(before);
            m_fromCtrl->SetFormatType(after);
        }
    }
    m_gridOnly = gridOnly;
    if (m_to.set)
        FormatToTexts();
}

void CMeasureDlg::SetSlope(bool slope)
{
    m_slope = slope;
    Label(kBearingLabelId)->setText(slope ? LoadQelString(QelStrings::SLOPE_LABEL) : tr("Bearing:"));
    Recompute();
}

void CMeasureDlg::SetShowZdiff(bool showZdiff)
{
    m_showZdiff = showZdiff;
    Label(kElevationLabelId)->setText(showZdiff ? LoadQelString(QelStrings::ZDIFF_LABEL)
                                                : tr("Elevation:"));
    Recompute();
}
