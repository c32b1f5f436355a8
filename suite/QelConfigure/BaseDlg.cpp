#include "QelConfigure/BaseDlg.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>

#include <algorithm>
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

QString BaseDlg::TextOf(const QWidget* control)
{
    const QVariant value = control ? control->property("text") : QVariant();
    const QString text = value.metaType().id() == QMetaType::QString ? value.toString() : QString();
    return text.isEmpty() ? QStringLiteral("0") : text;
}

QSize BaseDlg::TextRoom(const QWidget* control)
{
    if (!control)
        return {};
    QRect room = control->contentsRect();
    if (const auto* edit = qobject_cast<const QLineEdit*>(control)) {
        // Where the line edit lays out its text: the style's contents, less the text margins and
        // the edit's own two pixels left and right.
        QStyleOptionFrame option;
        option.initFrom(edit);
        option.rect = edit->contentsRect();
        option.lineWidth = edit->hasFrame() ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit) : 0;
        room = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit)
                   .marginsRemoved(edit->textMargins())
                   .adjusted(2, 0, -2, 0);
    } else if (const auto* button = qobject_cast<const QPushButton*>(control)) {
        QStyleOptionButton option;
        option.initFrom(button);
        option.features = button->isFlat() ? QStyleOptionButton::Flat : QStyleOptionButton::None;
        const int margin = button->style()->pixelMetric(QStyle::PM_ButtonMargin, &option, button);
        // The label is drawn in the style's contents, less the button margin on either side.
        room = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button)
                   .adjusted(margin / 2, 0, -margin / 2, 0);
    } else if (const auto* label = qobject_cast<const QLabel*>(control)) {
        const int margin = std::max(label->margin(), 0);
        room = room.adjusted(margin, margin, -margin, -margin);
    }
    return room.size().expandedTo(QSize(0, 0));
}

bool BaseDlg::TextFits(const QString& text, const QFont& font, const QSize& room)
{
    const QFontMetricsF metrics(font);
    const QStringList lines = text.split(QLatin1Char('\n'));
    qreal width = 0.0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const qreal height = lines.size() == 1 ? metrics.height() : metrics.lineSpacing() * lines.size();
    return width <= room.width() && height <= room.height();
}

int BaseDlg::GetFontSizeFromDlg(const QWidget* control) const
{
    if (!control)
        return 0;
    const QString text = TextOf(control);
    const QSize room = TextRoom(control);
    QFont font = control->font();
    const auto fits = [&](int size) {
        font.setPointSize(size);
        return TextFits(text, font, room);
    };
    // The sizes that fit form a run from the smallest up: find its end by halving.
    constexpr int kSmallest = 6, kLargest = 72;
    if (!fits(kSmallest))
        return 0;
    int good = kSmallest, bad = kLargest + 1;
    while (bad - good > 1) {
        const int middle = (good + bad) / 2;
        (fits(middle) ? good : bad) = middle;
    }
    return good;
}

void BaseDlg::OnSize() {}

void BaseDlg::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (layout())
        layout()->activate();
    OnSize();
}
