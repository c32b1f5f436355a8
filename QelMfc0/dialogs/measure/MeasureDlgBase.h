#pragma once
// The behaviour the three measuring dialogs share as windows: modeless dialogs that Enter and
// Escape never close, placed at the parent's corner, whose size is kept in the host's
// configuration file and whose fonts follow their size.

#include "QelMfc0/QelMfc0Export.h"
#include <QelConfigure/BaseDlg.h>
#include <QelMfc0/dialogs/measure/MeasureSupport.h>

#include <QList>

class CAttributeMap;
class CCoordinateCtrl;
class DistanceCtrl;
class FileObject;

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

protected:
    // A dialog of template `templateId` over `parent`, remembering the user's choices in
    // `attributes` (not owned, may be null) and its size under `sizeSection`.
    MeasureDlgBase(int templateId, QWidget* parent, CAttributeMap* attributes, const QString& sizeSection);

    // Fits the fonts to the dialog's size; called after every resize and after new values.
    virtual void ChangeFontSize();

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

    void OnSize() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    MeasureSupport m_support;
};
