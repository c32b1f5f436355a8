#include "QelMfc0/dialogs/measure/MeasureBrgDistDlg.h"

#include "QelMfc0/controls/DistanceCtrl.h"

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

    QGridLayout* grid = MakeGrid();
    grid->addWidget(AddLabel(kBearingLabelId, tr("Bearing:")), 0, 0);
    m_bearing = AddField(kBearingId);
    grid->addWidget(m_bearing, 0, 1);
    grid->addWidget(MeasureSupport::MakePlaceholder(this, kDistanceId, tr("Distance")), 0, 2);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 5);
    grid->setRowStretch(0, 1);

    m_distanceCtrl = AddDistanceControl(kDistanceId);
    SetTemplateSize({ kWidth, kHeight }, { 160, 24 });
    FinishSetup({ { &m_from, [this](const Point& p) { SetFromPos(p); } },
                  { &m_to, [this](const Point& p) { SetToPos(p); } } });
}

CMeasureBrgDistDlg::~CMeasureBrgDistDlg() = default;

void CMeasureBrgDistDlg::SetFromPos(const Point& from)
{
    m_from.Set(from);
    Recompute();
}

void CMeasureBrgDistDlg::SetToPos(const Point& to)
{
    m_to.Set(to);
    Recompute();
}

void CMeasureBrgDistDlg::Recompute()
{
    double bearing = 0.0;
    double distance = 0.0;
    if (!MeasureLine(bearing, distance, true))
        return;
    MeasureSupport::ShowDistance(m_distanceCtrl, distance, true);
    m_bearing->setText(QelFormatter().FormatBearing(bearing));
    ChangeFontSize();
}

void CMeasureBrgDistDlg::Clear()
{
    m_from.set = false;
    m_to.set = false;
    m_bearing->clear();
    m_distanceCtrl->Clear();
    ReapplyRememberedChoices();
}

QString CMeasureBrgDistDlg::BearingText() const
{
    return m_bearing->text();
}
