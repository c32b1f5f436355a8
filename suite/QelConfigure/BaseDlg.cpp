#include "QelConfigure/BaseDlg.h"

#include <QFontMetricsF>
#include <QLayout>
#include <QResizeEvent>
#include <QVariant>

BaseDlg::BaseDlg(int templateId, QWidget* parent)
    : QDialog(parent)
    , m_templateId(templateId)
{
}

BaseDlg::~BaseDlg() = default;

int BaseDlg::TemplateId() const { return m_templateId; }

void BaseDlg::EnableSizeGrip(bool enable)
{
    setSizeGripEnabled(enable);
}

int BaseDlg::GetFontSizeFromDlg(const QWidget* control) const
{
    if (!control)
        return 0;
    const QVariant value = control->property("text");
    QString text = value.metaType().id() == QMetaType::QString ? value.toString() : QString();
    if (text.isEmpty())
        text = QStringLiteral("0");
    const int lines = int(text.count(QLatin1Char('\n'))) + 1;
    const qreal available = control->contentsRect().height();
    QFont font = control->font();
    int best = 0;
    for (int size = 6; size <= 72; ++size) {
        font.setPointSize(size);
        if (QFontMetricsF(font).lineSpacing() * lines > available)
            break;
        best = size;
    }
    return best;
}

void BaseDlg::OnSize() {}

void BaseDlg::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (layout())
        layout()->activate();
    OnSize();
}
