#include "pages/ColourLegend.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <algorithm>
#include <cmath>

namespace {
constexpr int kMargin = 4;
constexpr int kBoxWidth = 28;
constexpr int kGap = 6;
} // namespace

ColourLegend::ColourLegend(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    // Mode colours are asked for at paint time: a mode change only has to repaint.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
}

void ColourLegend::SetTable(const ColorTable& table)
{
    m_table = table;
    updateGeometry();
    update();
}

std::vector<ColourLegend::Row> ColourLegend::Rows() const
{
    // The entries shown, highest value first, then the low colour.
    std::vector<Row> rows;
    const QelFormatter format; // the open project's depth unit and decimals
    const int entries = m_table.NumEntries();
    const int shown = std::min(entries, kMaxRows);
    std::vector<double> values;
    for (int k = shown - 1; k >= 0; --k) {
        const int index = shown == entries ? k : int(std::lround(double(k) * (entries - 1) / (shown - 1)));
        values.push_back(m_table.EntryValue(index));
        rows.push_back({ {}, {}, format.FormatDepth(values.back()), m_table.EntryColor(index) });
    }
    // Values the depth decimals cannot tell apart (a table of map scales, say) are shown as
    // plain numbers with the digits they need.
    const bool apart = std::adjacent_find(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.label == b.label; }) == rows.end();
    if (!apart) {
        const QLocale locale;
        for (size_t i = 0; i < values.size(); ++i)
            rows[i].label = locale.toString(values[i], 'g', 6);
    }
    rows.push_back({ {}, {}, tr("Below"), m_table.LowColor() });

    const QFontMetrics metrics = fontMetrics();
    const int height = std::max(metrics.height() + 4, 18);
    int textWidth = 0;
    for (const Row& row : rows)
        textWidth = std::max(textWidth, metrics.horizontalAdvance(row.label));
    for (size_t i = 0; i < rows.size(); ++i) {
        const int top = kMargin + int(i) * height;
        rows[i].box = QRect(kMargin, top, kBoxWidth, height);
        rows[i].text = QRect(kMargin + kBoxWidth + kGap, top, textWidth + 2, height);
    }
    // The "Below" box stands a little apart from the entries.
    if (rows.size() > 1) {
        rows.back().box.translate(0, kGap);
        rows.back().text.translate(0, kGap);
    }
    return rows;
}

QSize ColourLegend::sizeHint() const
{
    QRect bounds;
    for (const Row& row : Rows())
        bounds |= row.box | row.text;
    return { bounds.right() + 1 + kMargin, bounds.bottom() + 1 + kMargin };
}

QSize ColourLegend::minimumSizeHint() const
{
    return sizeHint();
}

void ColourLegend::paintEvent(QPaintEvent*)
{
    const ColorControl& colors = ColorControl::Instance();
    QPainter painter(this);
    const QColor ink = palette().color(QPalette::WindowText);
    QColor frame = ink;
    frame.setAlpha(110);
    const std::vector<Row> rows = Rows();
    for (const Row& row : rows) {
        // Scaled as the picture is (ColorControl::RemapColorTable): key and picture agree.
        painter.fillRect(row.box, toQColor(colors.GetColor(row.color, true)));
        painter.setPen(frame);
        painter.drawRect(row.box.adjusted(0, 0, -1, -1));
        painter.setPen(ink);
        // Depths right-aligned so that their decimals line up; "Below" starts at its box.
        const Qt::Alignment align = &row == &rows.back() ? Qt::AlignLeft : Qt::AlignRight;
        painter.drawText(row.text, align | Qt::AlignVCenter, row.label);
    }
}

void ColourLegend::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}
