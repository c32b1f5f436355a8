#pragma once
// Gallery page of coordinate and distance entry and of the measuring dialogs: every variant of
// the entry controls, and a plan view whose clicks feed the measuring dialogs. The plan view
// is a chart on WGS 84 / UTM zone 31N; positions go to the library in the open project's grid,
// and everything on the page follows when another project is opened.

#include <QWidget>
#include <QelAttributes/AttributeMap.h>
#include <QelBase/FileObject.h>
#include <QelBase/Point.h>
#include <QPointer>
#include <QRect>

#include <memory>

class QelGeoCoordSys;

class CMeasureBrgDistDlg;
class CMeasureDlg;
class MeasureRelativeDlg;
class PlanView;
class QLabel;

class EntryPage : public QWidget {
    Q_OBJECT
public:
    explicit EntryPage(QWidget* parent = nullptr);
    ~EntryPage() override;

    // Opens the measuring dialogs (as the page's buttons do); for screenshots.
    CMeasureDlg* OpenMeasure(bool threeD);
    MeasureRelativeDlg* OpenLineRelative();
    CMeasureBrgDistDlg* OpenVesselBearing();
    // Picks a chart position as a click on the plan view does.
    void Pick(const Point& position);
    // A chart position in the open project's grid (unchanged without a coordinate system).
    Point ToProjectGrid(const Point& chart) const;
    // The area measuring dialogs are placed in when they open; by default the available area
    // of the screen the page is on.
    void SetPlacementArea(const QRect& area);

private:
    QWidget* BuildEntryControls();
    void Feed();
    // Moves a dialog that has just opened clear of the plan, the buttons and the other dialogs.
    void PlaceDialog(QWidget* dialog);
    void OpenSizes();
    void SaveSizes();

    PlanView* m_plan = nullptr;
    QWidget* m_planBox = nullptr;
    QWidget* m_buttons = nullptr;
    QRect m_placementArea;
    QLabel* m_status = nullptr;
    CAttributeMap m_attributes;     // the host's remembered choices
    FileObject m_sizes;             // the host's window sizes, kept in the open project's folder
    std::unique_ptr<QelGeoCoordSys> m_chartCrs; // the plan view's grid
    Point m_picks[2];
    int m_pickCount = 0;
    QPointer<CMeasureDlg> m_measure;
    QPointer<MeasureRelativeDlg> m_relative;
    QPointer<CMeasureBrgDistDlg> m_vessel;
};
