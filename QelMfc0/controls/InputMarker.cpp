#include "QelMfc0/controls/InputMarker.h"

#include "QelMfc0/ColorRef.h"
#include "QelMfc0/colour/ColorControl.h"

#include <QelSubscriber/SubscriptionManager.h>

#include <QLineEdit>
#include <QPalette>

InputMarker::InputMarker(QLineEdit* edit)
    : QObject(edit)
    , m_edit(edit)
{
    // A marked edit takes the warning colours of the new mode.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) {
        if (IsMarked())
            apply();
    }, this);
}

void InputMarker::SetProblem(const QString& problem)
{
    if (problem == m_problem)
        return;
    const bool wasMarked = IsMarked();
    m_problem = problem;
    if (IsMarked() || wasMarked)
        apply();
}

void InputMarker::SetToolTip(const QString& toolTip)
{
    m_toolTip = toolTip;
    apply();
}

void InputMarker::apply()
{
    if (!m_edit)
        return;
    if (IsMarked()) {
        const ColorControl& colors = ColorControl::Instance();
        QPalette palette = m_edit->palette();
        palette.setColor(QPalette::Text, toQColor(colors.GetColor(kWarningText, false)));
        palette.setColor(QPalette::Base, toQColor(colors.GetColor(kWarningBackground, false)));
        m_edit->setPalette(palette);
        const QString problem = m_problem.toHtmlEscaped();
        m_edit->setToolTip(m_toolTip.isEmpty() ? problem : problem + QStringLiteral("<br><br>") + m_toolTip);
    } else {
        // An empty palette inherits the dialog's, and with it the colour mode's.
        m_edit->setPalette(QPalette());
        m_edit->setToolTip(m_toolTip);
    }
}
