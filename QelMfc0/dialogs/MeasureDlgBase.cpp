#include "QelMfc0/dialogs/MeasureDlgBase.h"

#include <QKeyEvent>

MeasureDlgBase::MeasureDlgBase(int templateId, QWidget* parent, CAttributeMap* attributes, const QString& sizeSection)
    : BaseDlg(templateId, parent)
    , m_support(this, parent, attributes, sizeSection)
{
}

void MeasureDlgBase::SetPrsConfiguration(FileObject* file)
{
    m_support.SetPrsConfiguration(file);
}

void MeasureDlgBase::ChangeFontSize() {}

void MeasureDlgBase::OnSize()
{
    BaseDlg::OnSize();
    ChangeFontSize();
}

void MeasureDlgBase::keyPressEvent(QKeyEvent* event)
{
    // Enter and Escape never close a measuring dialog.
    if (MeasureSupport::IsClosingKey(event)) {
        event->accept();
        return;
    }
    BaseDlg::keyPressEvent(event);
}

void MeasureDlgBase::hideEvent(QHideEvent* event)
{
    m_support.SaveSize();
    BaseDlg::hideEvent(event);
}
