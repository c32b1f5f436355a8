#include "QelMfc0/dialogs/measure/MeasureRelativeDlg.h"

#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"

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
    BuildLayout();
    for (int i = 0; i < 3; ++i) {
        m_coord[i] = AddPositionControl(kCoordIds[i]);
        m_dist[i] = AddDistanceControl(kDistIds[i]);
    }
    SetTemplateSize({ kWidth, kHeight }, { 200, 60 });
    FinishSetup({ { &m_from, [this](const Point& p) { SetStartPos(p); } },
                  { &m_to, [this](const Point& p) { SetEndPos(p); } },
                  { &m_current, [this](const Point& p) { SetCurrentPos(p); } } });
}

MeasureRelativeDlg::~MeasureRelativeDlg() = default;

void MeasureRelativeDlg::BuildLayout()
{
    QGridLayout* grid = MakeGrid();
    const QString labels[] = { tr("Line start:"), tr("Current position:"), tr("Line end:") };
    const QString captions[] = { tr("Start"), tr("Offtrack"), tr("End") };
    for (int column = 0; column < 3; ++column) {
        grid->addWidget(AddLabel(kLabelIds[column], labels[column]), 0, column);
        grid->addWidget(MeasureSupport::MakePlaceholder(this, kCoordIds[column]), 1, column, 2, 1);
        grid->addWidget(MeasureSupport::MakePlaceholder(this, kDistIds[column], captions[column]), 3, column);
        grid->setColumnStretch(column, 1);
    }
    for (int row = 0; row < 4; ++row)
        grid->setRowStretch(row, 1);
}

void MeasureRelativeDlg::SetStartPos(const Point& start)
{
    m_from.Set(start);
    m_coord[0]->SetXY(start.x, start.y);
    ChangeFontSize();
}

void MeasureRelativeDlg::SetEndPos(const Point& end)
{
    m_to.Set(end);
    m_coord[2]->SetXY(end.x, end.y);
    ChangeFontSize();
}

void MeasureRelativeDlg::SetCurrentPos(const Point& current)
{
    m_current.Set(current);
    m_coord[1]->SetXY(current.x, current.y);

    const Point& start = m_from.point;
    const Point& end = m_to.point;
    const Point line = end - start;
    double bearing = 0.0;
    double length = 0.0;
    XYToPolar(line.x, line.y, bearing, length);
    // Turned so that the line runs along +y: x is across the track, y along it.
    const Point along = (current - start).Rotated(-bearing);
    const double k = MeasureSupport::LineScaleFactor(start.x, start.y, end.x, end.y);

    MeasureSupport::ShowDistance(m_dist[0], along.y / k, true);
    MeasureSupport::ShowDistance(m_dist[1], std::fabs(along.x) / k, true);
    MeasureSupport::ShowDistance(m_dist[2], length / k - along.y / k, true);
    ChangeFontSize();
}

void MeasureRelativeDlg::Clear()
{
    ReapplyRememberedChoices();
}
