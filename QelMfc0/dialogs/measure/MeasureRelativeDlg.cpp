#include "QelMfc0/dialogs/measure/MeasureRelativeDlg.h"

#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/NumberUtils.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

namespace {

// Template size in pixels at 96 DPI.
constexpr int kWidth = 470;
constexpr int kHeight = 100;

constexpr int kCoordIds[] = { MeasureRelativeDlg::kStartCoordId, MeasureRelativeDlg::kCurrentCoordId,
                              MeasureRelativeDlg::kEndCoordId };
constexpr int kLabelIds[] = { MeasureRelativeDlg::kStartLabelId, MeasureRelativeDlg::kCurrentLabelId,
                              MeasureRelativeDlg::kEndLabelId };
constexpr int kDistIds[] = { MeasureRelativeDlg::kFromStartId, MeasureRelativeDlg::kOffTrackId,
                             MeasureRelativeDlg::kToEndId };

} // namespace

MeasureRelativeDlg::MeasureRelativeDlg(QWidget* parent, CAttributeMap* attributes)
    : MeasureDlgBase(kTemplateId, parent, attributes, QStringLiteral("MeasureRelativeDlg"))
{
    setWindowTitle(tr("Measure Line Relative"));
    EnableSizeGrip(true);
    InitDialog();
}

MeasureRelativeDlg::~MeasureRelativeDlg() = default;

void MeasureRelativeDlg::BuildLayout()
{
    using MS = MeasureSupport;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(DpiCor(4), DpiCor(4), DpiCor(4), DpiCor(4));
    grid->setSpacing(DpiCor(3));
    const QString labels[] = { tr("Line start:"), tr("Current position:"), tr("Line end:") };
    const QString captions[] = { tr("Start"), tr("Offtrack"), tr("End") };
    for (int column = 0; column < 3; ++column) {
        m_labels[column] = MS::MakeLabel(this, kLabelIds[column], labels[column]);
        grid->addWidget(m_labels[column], 0, column);
        grid->addWidget(MS::MakePlaceholder(this, kCoordIds[column]), 1, column, 2, 1);
        grid->addWidget(MS::MakePlaceholder(this, kDistIds[column], captions[column]), 3, column);
        grid->setColumnStretch(column, 1);
    }
    for (int row = 0; row < 4; ++row)
        grid->setRowStretch(row, 1);
}

void MeasureRelativeDlg::InitDialog()
{
    BuildLayout();
    for (int i = 0; i < 3; ++i) {
        auto* coord = new CCoordinateCtrl(false, false);
        if (!coord->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(kCoordIds[i]))))
            coord->Create(QRect(), this, kCoordIds[i]);
        coord->SetReadOnly(true);
        coord->SetTooltipActive(false);
        connect(coord, &CCoordinateCtrl::formatChosen, this, [this, coord] { OnCoordFormatChange(coord); });
        m_coord[i] = coord;

        auto* dist = new DistanceCtrl();
        if (!dist->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(kDistIds[i]))))
            dist->Create(QRect(), this, kDistIds[i]);
        dist->SetReadOnly();
        connect(dist, &DistanceCtrl::unitChosen, this, [this, dist] { OnDistUnitChange(dist); });
        m_dist[i] = dist;
    }
    resize(DpiCor(kWidth), DpiCor(kHeight));
    setMinimumSize(DpiCor(200), DpiCor(60));
    m_support.MoveToParentCorner();

    QString key;
    if (m_support.StoredDistUnit(key))
        ApplyDistUnit(key);
    ApplyCoordFormat(m_support.StoredCoordFormat());
    // Followed after the controls, which take in the new project before the dialog refills them.
    ProjectFollower::Follow(this, [this] { OnProjectClosing(); }, [this] { OnProjectChanged(); });
}

void MeasureRelativeDlg::OnProjectClosing()
{
    m_carried = { MeasureSupport::CarryOut(m_start), MeasureSupport::CarryOut(m_current),
                  MeasureSupport::CarryOut(m_end) };
}

void MeasureRelativeDlg::OnProjectChanged()
{
    Clear();
    if (m_startSet)
        SetStartPos(MeasureSupport::CarryIn(m_carried[0]));
    if (m_endSet)
        SetEndPos(MeasureSupport::CarryIn(m_carried[2]));
    if (m_currentSet)
        SetCurrentPos(MeasureSupport::CarryIn(m_carried[1]));
}

void MeasureRelativeDlg::SetStartPos(const Point& start)
{
    m_start = start;
    m_startSet = true;
    m_coord[0]->SetXY(start.x, start.y);
    ChangeFontSize();
}

void MeasureRelativeDlg::SetEndPos(const Point& end)
{
    m_end = end;
    m_endSet = true;
    m_coord[2]->SetXY(end.x, end.y);
    ChangeFontSize();
}

void MeasureRelativeDlg::SetCurrentPos(const Point& current)
{
    m_current = current;
    m_currentSet = true;
    m_coord[1]->SetXY(current.x, current.y);

    const Point line = m_end - m_start;
    double bearing = 0.0;
    double length = 0.0;
    XYToPolar(line.x, line.y, bearing, length);
    // Turned so that the line runs along +y: x is across the track, y along it.
    const Point along = (current - m_start).Rotated(-bearing);
    const double k = MeasureSupport::LineScaleFactor(m_start.x, m_start.y, m_end.x, m_end.y);

    MeasureSupport::ShowDistance(m_dist[0], along.y / k, true);
    MeasureSupport::ShowDistance(m_dist[1], std::fabs(along.x) / k, true);
    MeasureSupport::ShowDistance(m_dist[2], length / k - along.y / k, true);
    ChangeFontSize();
}

void MeasureRelativeDlg::ApplyDistUnit(const QString& key)
{
    for (DistanceCtrl* dist : m_dist)
        dist->SetDistUnit(key);
}

void MeasureRelativeDlg::ApplyCoordFormat(int format)
{
    if (format < 0)
        return;
    for (CCoordinateCtrl* coord : m_coord)
        coord->SetFormatType(CCoordinateCtrl::format_type(format));
}

void MeasureRelativeDlg::SetDistUnit(const QString& key)
{
    ApplyDistUnit(key);
    m_support.StoreDistUnit(key);
}

void MeasureRelativeDlg::SetCoordFormat(int format)
{
    if (format < 0)
        return;
    ApplyCoordFormat(format);
    m_support.StoreCoordFormat(format);
}

void MeasureRelativeDlg::Clear()
{
    if (!m_support.Attributes())
        return;
    QString key;
    if (m_support.StoredDistUnit(key))
        ApplyDistUnit(key);
    ApplyCoordFormat(m_support.StoredCoordFormat());
}

void MeasureRelativeDlg::OnCoordFormatChange(CCoordinateCtrl* source)
{
    SetCoordFormat(source->FormatType());
}

void MeasureRelativeDlg::OnDistUnitChange(DistanceCtrl* source)
{
    // A control without units has no key to spread; nothing leaves this handler.
    const QString key = source->DistUnit();
    if (!key.isEmpty())
        SetDistUnit(key);
}

void MeasureRelativeDlg::ChangeFontSize()
{
    if (!m_coord[0] || !m_dist[0])
        return;
    FontGroups groups;
    for (int i = 0; i < 3; ++i) {
        groups.labels << m_labels[i];
        groups.positions << m_coord[i];
        groups.distances << m_dist[i];
    }
    FitFonts(groups);
}
