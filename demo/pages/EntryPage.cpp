#include "pages/EntryPage.h"

#include "pages/PlanView.h"
#include "DialogPlacement.h"
#include "ReadOnlyLook.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelGeoCoordSys.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QelMfc0/controls/ProjectFollower.h>
#include <QelMfc0/dialogs/measure/MeasureBrgDistDlg.h>
#include <QelMfc0/dialogs/measure/MeasureDlg.h>
#include <QelMfc0/dialogs/measure/MeasureRelativeDlg.h>

#include <stdexcept>

namespace {
// A placeholder label in a form, replaced by its control once the form is built.
QLabel* Placeholder(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setMinimumHeight(46);
    return label;
}
} // namespace

EntryPage::EntryPage(QWidget* parent)
    : QWidget(parent)
    , m_chartCrs(QelGeoCoordSys::Create(QStringLiteral("EPSG:32631")))
{
    OpenSizes();
    ProjectFollower::Follow(this, [this] { SaveSizes(); }, [this] { OpenSizes(); });

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(BuildEntryControls(), 0);

    auto* right = new QVBoxLayout;
    auto* planBox = new QGroupBox(tr("Survey area (click two points to measure)"), this);
    m_planBox = planBox;
    auto* planLayout = new QVBoxLayout(planBox);
    m_plan = new PlanView(planBox);
    planLayout->addWidget(m_plan, 1);
    m_status = new QLabel(tr("No point picked yet."), planBox);
    planLayout->addWidget(m_status);
    right->addWidget(planBox, 1);

    m_buttons = new QWidget(this);
    auto* buttons = new QHBoxLayout(m_buttons);
    buttons->setContentsMargins(0, 0, 0, 0);
    auto add = [&](const QString& text, auto slot) {
        auto* button = new QPushButton(text, m_buttons);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
    };
    add(tr("Measure..."), [this] { OpenMeasure(false); });
    add(tr("Measure 3-D..."), [this] { OpenMeasure(true); });
    add(tr("Line relative..."), [this] { OpenLineRelative(); });
    add(tr("Vessel bearing..."), [this] { OpenVesselBearing(); });
    right->addWidget(m_buttons);
    layout->addLayout(right, 1);

    connect(m_plan, &PlanView::picked, this, &EntryPage::Pick);
    connect(m_plan, &PlanView::vesselMoved, this, [this](const Point& vessel) {
        if (m_relative)
            m_relative->SetCurrentPos(ToProjectGrid(vessel));
        if (m_vessel)
            m_vessel->SetFromPos(ToProjectGrid(vessel));
    });
}

EntryPage::~EntryPage()
{
    delete m_measure;
    delete m_relative;
    delete m_vessel;
    SaveSizes();
}

void EntryPage::OpenSizes()
{
    // The dialogs keep the file object; only its contents change with the project.
    m_sizes.FileClose();
    if (const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition())
        m_sizes.FileOpen(project->GetProjectFolder() + QStringLiteral("/DialogSizes.ini"), FileObject::OPEN_CREATE);
}

void EntryPage::SaveSizes()
{
    if (!m_sizes.GetPathName().isEmpty())
        m_sizes.FileSave();
}

Point EntryPage::ToProjectGrid(const Point& chart) const
{
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    const QelGeoCoordSysBase* grid = project ? project->GetGeoCoordSys() : nullptr;
    double latitude = 0.0, longitude = 0.0;
    Point result = chart;
    if (grid && m_chartCrs && m_chartCrs->GridToGeo(chart.x, chart.y, latitude, longitude))
        grid->GeoToGrid(latitude, longitude, result.x, result.y);
    return result;
}

QWidget* EntryPage::BuildEntryControls()
{
    auto* box = new QGroupBox(tr("Entry controls"), this);
    auto* form = new QFormLayout(box);
    struct Variant {
        const char* label;
        bool geogOnly, gridOnly, readOnly;
    };
    const Variant variants[] = {
        { QT_TR_NOOP("Position:"), false, false, false },
        { QT_TR_NOOP("Geographic only:"), true, false, false },
        { QT_TR_NOOP("Grid only:"), false, true, false },
        { QT_TR_NOOP("Read-only:"), false, false, true },
    };
    for (const Variant& v : variants) {
        QLabel* placeholder = Placeholder(tr("To be replaced with CCoordinateCtrl"), box);
        form->addRow(tr(v.label), placeholder);
        auto* control = new CCoordinateCtrl(v.geogOnly, v.gridOnly);
        control->CreateFromStatic(placeholder);
        // A position near the survey area; a grid-only control has no coordinate system to
        // convert with, so it gets the grid form itself.
        if (v.gridOnly)
            control->SetXY(500571.88, 5762891.96);
        else
            control->SetLatLon(52.0 + 1.0 / 60.0, 3.0 + 0.5 / 60.0);
        control->SetReadOnly(v.readOnly);
        control->setMinimumWidth(260);
    }
    for (bool readOnly : { false, true }) {
        QLabel* placeholder = Placeholder(tr("Distance"), box);
        placeholder->setMinimumHeight(24);
        form->addRow(readOnly ? tr("Read-only distance:") : tr("Distance:"), placeholder);
        auto* control = new DistanceCtrl;
        control->CreateFromStatic(placeholder);
        // One nautical mile in the project's unit; without a unit the library refuses the
        // conversion, and the control then shows the plain number.
        try {
            control->SetDistance(1852.0, true);
        } catch (const std::invalid_argument&) {
            control->SetDistance(1852.0, false);
        }
        if (readOnly) {
            control->SetReadOnly();
        } else {
            // The page takes what the user types ("2000", "2 km") when the edit is left, and
            // shows it as the control reads it; unreadable text stays marked as it is.
            connect(control, &DistanceCtrl::committed, control, [control] {
                double value = 0.0;
                if (control->ReadTypedDistance(value))
                    control->SetDistance(value, !control->Units().isEmpty());
            });
        }
    }
    ReadOnlyLook::Follow(box);
    return box;
}

CMeasureDlg* EntryPage::OpenMeasure(bool threeD)
{
    delete m_measure;
    m_measure = new CMeasureDlg(this, &m_attributes, threeD);
    m_measure->SetPrsConfiguration(&m_sizes);
    m_measure->show();
    PlaceDialog(m_measure);
    Feed();
    return m_measure;
}

MeasureRelativeDlg* EntryPage::OpenLineRelative()
{
    const bool opened = !m_relative;
    if (opened) {
        m_relative = new MeasureRelativeDlg(this, &m_attributes);
        m_relative->SetPrsConfiguration(&m_sizes);
    }
    m_relative->show();
    if (opened)
        PlaceDialog(m_relative);
    m_relative->SetStartPos(ToProjectGrid(m_plan->RunLineStart()));
    m_relative->SetEndPos(ToProjectGrid(m_plan->RunLineEnd()));
    m_relative->SetCurrentPos(ToProjectGrid(m_plan->VesselPosition()));
    return m_relative;
}

CMeasureBrgDistDlg* EntryPage::OpenVesselBearing()
{
    const bool opened = !m_vessel;
    if (opened) {
        m_vessel = new CMeasureBrgDistDlg(this, &m_attributes);
        m_vessel->SetPrsConfiguration(&m_sizes);
    }
    m_vessel->show();
    if (opened)
        PlaceDialog(m_vessel);
    m_vessel->SetFromPos(ToProjectGrid(m_plan->VesselPosition()));
    if (m_pickCount > 0)
        m_vessel->SetToPos(ToProjectGrid(m_picks[m_pickCount - 1]));
    return m_vessel;
}

void EntryPage::SetPlacementArea(const QRect& area)
{
    m_placementArea = area;
}

void EntryPage::PlaceDialog(QWidget* dialog)
{
    // The library opens each dialog at this page's top-left corner, where they would cover one
    // another and the entry controls. Move it beside the main window, clear of the plan and the
    // buttons that feed it and of the other measuring dialogs.
    const auto global = [](const QWidget* w) { return QRect(w->mapToGlobal(QPoint(0, 0)), w->size()); };
    // The frame's decoration, which a window manager may not have reported yet.
    const auto frame = [](const QWidget* w) {
        const QRect f = w->frameGeometry();
        return f.size() == w->size() ? w->geometry().adjusted(-4, -30, 4, 4) : f;
    };
    QList<QRect> keepClear = { global(m_planBox), global(m_buttons) };
    for (const QWidget* other : { static_cast<QWidget*>(m_measure), static_cast<QWidget*>(m_relative), static_cast<QWidget*>(m_vessel) })
        if (other && other != dialog && other->isVisible())
            keepClear << frame(other);
    QRect area = m_placementArea;
    if (!area.isValid() && window()->screen())
        area = window()->screen()->availableGeometry();
    const QRect outer = frame(dialog);
    const QPoint at = DialogPlacement::FreeSpot(outer.size(), frame(window()), keepClear, area);
    dialog->move(at); // a window's position is that of its frame
}

void EntryPage::Pick(const Point& position)
{
    if (m_pickCount == 2 || m_pickCount == 0) {
        m_picks[0] = position;
        m_pickCount = 1;
    } else {
        m_picks[1] = position;
        m_pickCount = 2;
    }
    m_plan->SetPicks(m_picks[0], m_picks[1], m_pickCount);
    m_status->setText(m_pickCount == 1 ? tr("From: E %1  N %2  (click the second point)").arg(position.x, 0, 'f', 1).arg(position.y, 0, 'f', 1)
                                       : tr("To: E %1  N %2   (%3)").arg(position.x, 0, 'f', 1).arg(position.y, 0, 'f', 1).arg(m_plan->MeasuredText()));
    Feed();
    if (m_vessel)
        m_vessel->SetToPos(ToProjectGrid(position));
}

void EntryPage::Feed()
{
    if (!m_measure)
        return;
    if (m_pickCount == 1) {
        m_measure->Clear();
        m_measure->SetFromPos(ToProjectGrid(m_picks[0]));
    } else if (m_pickCount == 2) {
        m_measure->SetFromPos(ToProjectGrid(m_picks[0]));
        m_measure->SetToPos(ToProjectGrid(m_picks[1]));
    }
}
