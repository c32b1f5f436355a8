#pragma once
// The behaviour the three measuring dialogs share as windows: modeless dialogs that Enter and
// Escape never close, placed at the parent's corner, whose size is kept in the host's
// configuration file and whose fonts follow their size.

#include <QelConfigure/BaseDlg.h>
#include <QelMfc0/dialogs/MeasureSupport.h>

class CAttributeMap;
class FileObject;

class MeasureDlgBase : public BaseDlg
{
    Q_OBJECT
public:
    // Keeps the configuration file of the window size (not owned, may be null) and applies a
    // stored size unless it is square; the size is written back when the dialog is hidden.
    void SetPrsConfiguration(FileObject* file);

protected:
    // A dialog of template `templateId` over `parent`, remembering the user's choices in
    // `attributes` (not owned, may be null) and its size under `sizeSection`.
    MeasureDlgBase(int templateId, QWidget* parent, CAttributeMap* attributes, const QString& sizeSection);

    // Fits the fonts to the dialog's size; called after every resize.
    virtual void ChangeFontSize();

    void OnSize() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    MeasureSupport m_support;
};
