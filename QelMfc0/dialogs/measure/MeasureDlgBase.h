#pragma once
// What the three measuring dialogs share: modeless dialogs that Enter and Escape never close,
// placed at the parent's corner, whose size is kept in the host's configuration file and whose
// fonts follow their size; their read-only position and distance controls, on which a format
// or unit chosen spreads to all of them and is remembered in the host's attribute map; and the
// positions the host gave, carried across a project switch.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/Point.h>
#include <QelConfigure/BaseDlg.h>
#include <QelMfc0/dialogs/measure/MeasureSupport.h>

#include <QList>
#include <QSize>

#include <functional>
#include <utility>
#include <vector>

class CAttributeMap;
class CCoordinateCtrl;
class DistanceCtrl;
class FileObject;
class QGridLayout;
class QLabel;
class QLineEdit;

class QELMFC0_EXPORT MeasureDlgBase : public BaseDlg
{
    Q_OBJECT
public:
    // The smallest point size of the dialogs' fonts; a dialog cannot be made smaller than its
    // texts need at this size, so no digit or label is ever cut.
    static constexpr int kSmallestPointSize = 7;

    // Keeps the configuration file of the window size (not owned, may be null) and applies a
    // stored size unless it is square; the size is written back when the dialog is hidden.
    void SetPrsConfiguration(FileObject* file);

    // Shows distances in the unit with that key on every distance control, recomputes and
    // remembers the key.
    void SetDistUnit(const QString& key);

protected:
    // A dialog of template `templateId` over `parent`, remembering the user's choices in
    // `attributes` (not owned, may be null) and its size under `sizeSection`.
    MeasureDlgBase(int templateId, QWidget* parent, CAttributeMap* attributes, const QString& sizeSection);

    // A position the host gave, and the same taken out of the project during a switch.
    struct MeasuredPoint
    {
        Point point;
        bool set = false;
        MeasureSupport::CarriedPoint carried;
        void Set(const Point& p)
        {
            point = p;
            set = true;
        }
    };
    // The two positions a measurement starts from: from and to, or a line's start and end.
    MeasuredPoint m_from;
    MeasuredPoint m_to;

    // Set-up, in this order: the grid with the dialog's margins and spacing; its labels and
    // read-only value fields (named after their dialog id, fitted with the label and value
    // fonts); the position and distance controls over their placeholders (read-only, no
    // tooltips); the template's size; FinishSetup.
    QGridLayout* MakeGrid();
    QLabel* AddLabel(int id, const QString& text);
    QLineEdit* AddField(int id);
    CCoordinateCtrl* AddPositionControl(int id);
    DistanceCtrl* AddDistanceControl(int id);
    // The template's size and the smallest size, in pixels at 96 DPI.
    void SetTemplateSize(const QSize& size, const QSize& minimum);
    // A position and what gives it back to the dialog after a project switch.
    using CarriedPosition = std::pair<MeasuredPoint*, std::function<void(const Point&)>>;
    // Moves the dialog to the parent's corner, applies the remembered unit and format, and
    // follows the project: the positions that are set are carried into the new project and
    // given back in the order listed.
    void FinishSetup(std::vector<CarriedPosition> positions);

    // Shows positions in `format` (a CCoordinateCtrl::format_type) on every position control and
    // remembers it; negative values are ignored.
    void SetCoordFormat(int format);
    // The remembered unit and format applied to the controls, without storing them again.
    void ApplyRememberedChoices();
    // With an attribute map, the remembered unit and format applied through SetDistUnit and
    // SetCoordFormat (what Clear does).
    void ReapplyRememberedChoices();
    // The format the dialog takes from the attribute map; -1 when none is remembered.
    virtual int RememberedCoordFormat() const;
    // Shows the measurement again from the positions; called after a new unit.
    virtual void Recompute() {}
    // Called after a new format was applied to the position controls.
    virtual void CoordFormatApplied() {}
    // Bearing (degrees) and grid distance from m_from to m_to, divided by the projection's line
    // scale factor when `trueDistance`; false, leaving both alone, unless both are set.
    bool MeasureLine(double& bearing, double& distance, bool trueDistance) const;

    // Fits the fonts to the dialog's size; called after every resize and after new values.
    void ChangeFontSize();

    void OnSize() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    MeasureSupport m_support;

private:
    // The widgets of a dialog that share its two fonts: labels and unit/format buttons take the
    // label font, value fields and the controls' edits the value font.
    struct FontGroups
    {
        QList<QWidget*> labels;
        QList<QWidget*> values;
        QList<CCoordinateCtrl*> positions;
        QList<DistanceCtrl*> distances;
    };
    // Gives each group the largest "Arial" size at which every visible member shows its whole
    // text (never below kSmallestPointSize), and keeps every member, and so the dialog, at least
    // as large as its text needs at that smallest size.
    void FitFonts(const FontGroups& groups);
    void ApplyDistUnit(const QString& key);
    void ApplyCoordFormat(int format);
    void CarryOut();
    void CarryIn();

    FontGroups m_widgets;
    std::vector<CarriedPosition> m_carried;
    bool m_setUp = false;
};
