#include "pages/HelmsmanPage.h"

#include "VesselSimulator.h"

#include <QMouseEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QelSubscriber/SubscriptionManager.h>

namespace {
// The run line of the sample survey (WGS 84 / UTM 31N), as on the entry page's plan.
const Point kLineStart(497500.0, 5758500.0);
const Point kLineEnd(502800.0, 5763600.0);
}

HelmsmanPage::HelmsmanPage(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(640, 420);
    setMouseTracking(true);
    m_vessel = new VesselSimulator(kLineStart, kLineEnd, 10.0, this);
    connect(m_vessel, &VesselSimulator::updated, this, [this](const VesselState& state) {
        m_frame.Update(state);
        update();
    });
    // Let the instruments show a run in progress, with a minute of min/max tracking behind it.
    for (int i = 0; i < 600; ++i)
        m_vessel->Step();
    // Mode colours are asked for at paint time: a mode change only has to repaint.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
}

void HelmsmanPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_frame.Paint(&painter, rect().adjusted(10, 10, -10, -10));
}

bool HelmsmanPage::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const QString tip = m_frame.ToolTipAt(help->pos());
        if (tip.isEmpty()) {
            QToolTip::hideText();
            event->ignore();
        } else {
            QToolTip::showText(help->globalPos(), tip, this);
        }
        return true;
    }
    return QWidget::event(event);
}

void HelmsmanPage::mousePressEvent(QMouseEvent* event)
{
    if (m_frame.ClickAt(event->position().toPoint()))
        update();
}

void HelmsmanPage::showEvent(QShowEvent*)
{
    m_vessel->Start();
}

void HelmsmanPage::hideEvent(QHideEvent*)
{
    m_vessel->Stop();
}
