#include "QelMfc0/dialogs/measure/MeasureBrgDistDlg.h"

#include "QelMfc0/controls/DistanceCtrl.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/NumberUtils.h>
#include <QelConfigure/QelFormatter.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
// Template size in pixels at 96 DPI.
constexpr int kWidth = 340;
constexpr int kHeight = 36;
} // namespace

CMeasureBrgDistDlg::CMeasureBrgDistDlg(QWidget* parent, CAttributeMap* attributes)
    : MeasureDlgBase(kTemplateId, parent, attributes, QStringLiteral("MeasureBrgDistDlg"))
{
    setWindowTitle(tr("Measure Relative Vessel"));
    EnableSizeGrip(true);
    InitDialog();
}

CMeasureBrgDistDlg::~CMeasureBrgDistDlg() = default;

void CMeasureBrgDistDlg::InitDialog()
{
    using MS = MeasureSupport;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(DpiCor(4), DpiCor(4), DpiCor(4), DpiCor(4));
    grid->setSpacing(DpiCor(3));
    m_bearingLabel = MS::MakeLabel(this, kBearingLabelId, tr("Bearing:"));
    m_bearing = MS::MakeField(this, kBearingId);
    grid->addWidget(m_bearingLabel, 0, 0);
    grid->addWidget(m_bearing, 0, 1);
    grid->addWidget(MS::MakePlaceholder(this, kDistanceId, tr("Distance")), 0, 2);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 5);
    grid->setRowStretch(0, 1);

    m_distanceCtrl = new DistanceCtrl();
    if (!m_distanceCtrl->CreateFromStatic(FindPlaceholder(this, MS::IdName(kDistanceId))))
        m_distanceCtrl->Create(QRect(), this, kDistanceId);
    m_distanceCtrl->SetReadOnly();
    connect(m_distanceCtrl, &DistanceCtrl::unitChosen, this, &CMeasureBrgDistDlg::OnDistUnitChange);

    resize(DpiCor(kWidth), DpiCor(kHeight));
    setMinimumSize(DpiCor(160), DpiCor(24));
    m_support.MoveToParentCorner();

    QString key;
    if (m_support.StoredDistUnit(key))
        m_distanceCtrl->SetDistUnit(key);
    // Followed after the distance control, which takes in the new project first.
    ProjectFollower::Follow(this, [this] { OnProjectClosing(); }, [this] { OnProjectChanged(); });
}

void CMeasureBrgDistDlg::OnProjectClosing()
{
    m_carriedFrom = MeasureSupport::CarryOut(m_from);
    m_carriedTo = MeasureSupport::CarryOut(m_to);
}

void CMeasureBrgDistDlg::OnProjectChanged()
{
    QString key;
    if (m_support.StoredDistUnit(key))
        m_distanceCtrl->SetDistUnit(key);
    m_from = MeasureSupport::CarryIn(m_carriedFrom);
    m_to = MeasureSupport::CarryIn(m_carriedTo);
    Recompute();
}

void CMeasureBrgDistDlg::SetFromPos(const Point& from)
{
    m_from = from;
    m_fromSet = true;
    Recompute();
}

void CMeasureBrgDistDlg::SetToPos(const Point& to)
{
    m_to = to;
    m_toSet = true;
    Recompute();
}

void CMeasureBrgDistDlg::Recompute()
{
    if (!m_fromSet || !m_toSet)
        return;
    const Point d = m_to - m_from;
    double bearing = 0.0;
    double distance = 0.0;
    XYToPolar(d.x, d.y, bearing, distance);
    distance /= MeasureSupport::LineScaleFactor(m_from.x, m_from.y, m_to.x, m_to.y);
    MeasureSupport::ShowDistance(m_distanceCtrl, distance, true);
    m_bearing->setText(QelFormatter().FormatBearing(bearing));
    ChangeFontSize();
}

void CMeasureBrgDistDlg::Clear()
{
    m_fromSet = false;
    m_toSet = false;
    m_bearing->clear();
    m_distanceCtrl->Clear();
    QString key;
    if (m_support.StoredDistUnit(key))
        SetDistUnit(key);
}

void CMeasureBrgDistDlg::SetDistUnit(const QString& key)
{
    m_distanceCtrl->SetDistUnit(key);
    Recompute();
    m_support.StoreDistUnit(key);
}

QString CMeasureBrgDistDlg::BearingText() const
{
    return m_bearing->text();
}

void CMeasureBrgDistDlg::OnDistUnitChange()
{
    const QString key = m_distanceCtrl->DistUnit();
    if (!key.isEmpty())
        SetDistUnit(key);
}

void CMeasureBrgDistDlg::ChangeFontSize()
{
    if (!m_distanceCtrl)
        return;
    FontGroups groups;
    groups.labels << m_bearingLabel;
    groups.values << m_bearing;
    groups.distances << m_distanceCtrl;
    FitFonts(groups);
}
