#include "QelMfc0/dialogs/measure/MeasureDlg.h"

#include "QelMfc0/StringTable.h"
#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

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
    InitDialog();
}

CMeasureDlg::~CMeasureDlg() = default;

void CMeasureDlg::BuildLayout()
{
    using MS = MeasureSupport;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(DpiCor(4), DpiCor(4), DpiCor(4), DpiCor(4));
    grid->setSpacing(DpiCor(3));

    grid->addWidget(MS::MakeLabel(this, kFromLabelId, tr("From:")), 0, 0);
    grid->addWidget(MS::MakePlaceholder(this, kFromCoordId), 0, 1, 2, 1);
    grid->addWidget(MS::MakeLabel(this, kToLabelId, tr("To:")), 0, 2);
    grid->addWidget(MS::MakeField(this, kToFirstId), 0, 3);
    grid->addWidget(MS::MakeField(this, kToSecondId), 1, 3);
    grid->addWidget(MS::MakePlaceholder(this, kDistanceId, tr("Distance")), 0, 4, 1, 2);
    grid->addWidget(MS::MakeLabel(this, kBearingLabelId, tr("Bearing:")), 1, 4);
    grid->addWidget(MS::MakeField(this, kBearingId), 1, 5);

    grid->addWidget(MS::MakeLabel(this, kAltitudeLabelId, tr("Altitude:")), 2, 0);
    grid->addWidget(MS::MakeField(this, kFromAltitudeId), 2, 1);
    grid->addWidget(MS::MakeField(this, kToAltitudeId), 2, 3);
    grid->addWidget(MS::MakeLabel(this, kElevationLabelId, tr("Elevation:")), 2, 4);
    grid->addWidget(MS::MakeField(this, kElevationId), 2, 5);

    const int columnStretch[] = { 6, 15, 3, 10, 7, 9 };
    for (int column = 0; column < 6; ++column)
        grid->setColumnStretch(column, columnStretch[column]);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(2, m_threeD ? 1 : 0);
}

void CMeasureDlg::InitDialog()
{
    BuildLayout();

    // The position and distance controls take their placeholders' places; both only show.
    m_fromCtrl = new CCoordinateCtrl(false, false);
    if (!m_fromCtrl->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(kFromCoordId))))
        m_fromCtrl->Create(QRect(), this, kFromCoordId);
    m_fromCtrl->SetReadOnly(true);
    m_fromCtrl->SetTooltipActive(false);
    m_distanceCtrl = new DistanceCtrl();
    if (!m_distanceCtrl->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(kDistanceId))))
        m_distanceCtrl->Create(QRect(), this, kDistanceId);
    m_distanceCtrl->SetReadOnly();
    connect(m_fromCtrl, &CCoordinateCtrl::formatChosen, this, &CMeasureDlg::OnFromCoordFormatChange);
    connect(m_distanceCtrl, &DistanceCtrl::unitChosen, this, &CMeasureDlg::OnDistUnitChange);

    SetSlope(m_slope);
    SetShowZdiff(m_showZdiff);

    resize(DpiCor(kWidth), DpiCor(kHeight));
    setMinimumSize(DpiCor(200), DpiCor(40));
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

    m_support.MoveToParentCorner();
    ApplyRememberedChoices();
    // Followed after the controls, which take in the new project before the dialog refills them.
    ProjectFollower::Follow(this, [this] { OnProjectClosing(); }, [this] { OnProjectChanged(); });
}

void CMeasureDlg::OnProjectClosing()
{
    m_carriedFrom = MeasureSupport::CarryOut(m_from);
    m_carriedTo = MeasureSupport::CarryOut(m_to);
}

void CMeasureDlg::OnProjectChanged()
{
    ApplyRememberedChoices();
    if (m_fromSet)
        SetFromPos(MeasureSupport::CarryIn(m_carriedFrom));
    if (m_toSet)
        SetToPos(MeasureSupport::CarryIn(m_carriedTo));
}

void CMeasureDlg::ApplyRememberedChoices()
{
    QString key;
    if (m_support.StoredDistUnit(key))
        m_distanceCtrl->SetDistUnit(key);
    const int format = m_gridOnly ? int(CCoordinateCtrl::fmt_grid) : m_support.StoredCoordFormat();
    if (format >= CCoordinateCtrl::fmt_seconds && format <= CCoordinateCtrl::fmt_grid)
        m_fromCtrl->SetFormatType(CCoordinateCtrl::format_type(format));
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
    m_from = from;
    m_fromSet = true;
    // The control converts to latitude/longitude itself when it has a coordinate system.
    m_fromCtrl->SetXY(from.x, from.y);
    Field(kFromAltitudeId)->setText(QelFormatter().FormatDepth(from.z, true, true));
    Recompute();
    ChangeFontSize();
}

void CMeasureDlg::SetToPos(const Point& to)
{
    m_to = to;
    m_toSet = true;
    FormatToTexts();
    Field(kToAltitudeId)->setText(QelFormatter().FormatDepth(to.z, true, true));
    Recompute();
    ChangeFontSize();
}

void CMeasureDlg::FormatToTexts()
{
    QString first;
    QString second;
    m_fromCtrl->FormatXY(m_to.x, m_to.y, first, second);
    Field(kToFirstId)->setText(first);
    Field(kToSecondId)->setText(second);
}

void CMeasureDlg::GetDistanceAndBearing(double& distance, double& bearing) const
{
    const Point d = m_to - m_from;
    XYToPolar(d.x, d.y, bearing, distance);
}

void CMeasureDlg::Recompute()
{
    if (!m_fromSet || !m_toSet)
        return;
    const Point d = m_to - m_from;
    double bearing = 0.0;
    double horizontal = 0.0;
    XYToPolar(d.x, d.y, bearing, horizontal);
    const double angle = m_slope ? SlopeAngle(bearing) : bearing;
    if (!m_noScaleCorrection)
        horizontal /= MeasureSupport::LineScaleFactor(m_from.x, m_from.y, m_to.x, m_to.y);

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
    m_fromSet = false;
    m_toSet = false;
    if (m_support.Attributes()) {
        QString key;
        if (m_support.StoredDistUnit(key))
            SetDistUnit(key);
        const int format = m_gridOnly ? int(CCoordinateCtrl::fmt_grid) : m_support.StoredCoordFormat();
        if (format >= 0)
            SetCoordFormat(format);
    }
    for (int id : kFieldIds)
        Field(id)->clear();
}

void CMeasureDlg::SetDistUnit(const QString& key)
{
    m_distanceCtrl->SetDistUnit(key);
    Recompute();
    m_support.StoreDistUnit(key);
}

void CMeasureDlg::SetCoordFormat(int format)
{
    if (format < 0)
        return;
    m_fromCtrl->SetFormatType(CCoordinateCtrl::format_type(format));
    if (m_toSet)
        FormatToTexts();
    m_support.StoreCoordFormat(format);
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
    if (m_toSet)
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

void CMeasureDlg::OnFromCoordFormatChange()
{
    SetCoordFormat(m_fromCtrl->FormatType());
}

void CMeasureDlg::OnDistUnitChange()
{
    const QString key = m_distanceCtrl->DistUnit();
    if (!key.isEmpty())
        SetDistUnit(key);
}

void CMeasureDlg::ChangeFontSize()
{
    if (!m_fromCtrl || !m_distanceCtrl)
        return;
    FontGroups groups;
    for (int id : { kFromLabelId, kBearingLabelId, kToLabelId, kElevationLabelId, kAltitudeLabelId })
        groups.labels << Label(id);
    for (int id : kFieldIds)
        groups.values << Field(id);
    groups.positions << m_fromCtrl;
    groups.distances << m_distanceCtrl;
    FitFonts(groups);
}
