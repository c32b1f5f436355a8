#include "QelMfc0/dialogs/measure/MeasureDlgBase.h"

#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"

#include <QelBase/DisplayScale.h>

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace {

// The largest size at which `text` fits `room`; kSmallestPointSize when none does.
int LargestFittingSize(const QString& text, const QSize& room, int smallest)
{
    QFont font = MeasureSupport::ScaledFont(smallest);
    const auto fits = [&](int size) {
        font.setPointSize(size);
        return BaseDlg::TextFits(text, font, room);
    };
    if (!fits(smallest))
        return smallest;
    int good = smallest, bad = 73;
    while (bad - good > 1) {
        const int middle = (good + bad) / 2;
        (fits(middle) ? good : bad) = middle;
    }
    return good;
}

// What `widget` needs around a text of `text` size: its padding now, with the margins that
// ReserveTextMargins keeps (a fifth of the height above and below) grown along.
QSize NeededSize(const QWidget* widget, const QSize& text)
{
    const QSize padding = widget->size() - BaseDlg::TextRoom(widget);
    const QMargins margins = widget->contentsMargins();
    if (!widget->property(MeasureSupport::kTextMarginsProperty).toBool())
        return text + padding;
    const int fixed = padding.height() - margins.top() - margins.bottom();
    // h - fixed - 2 * (h / 5) >= text height
    const int height = int(std::ceil((text.height() + fixed) * 5.0 / 3.0)) + 2;
    return {text.width() + padding.width(), height};
}

QSize TextSize(const QString& text, int pointSize)
{
    const QFontMetricsF metrics(MeasureSupport::ScaledFont(pointSize));
    const QStringList lines = text.split(QLatin1Char('\n'));
    qreal width = 0.0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const qreal height = lines.size() == 1 ? metrics.height() : metrics.lineSpacing() * lines.size();
    return {int(std::ceil(width)) + 1, int(std::ceil(height))};
}

} // namespace

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

void MeasureDlgBase::FitFonts(const FontGroups& groups)
{
    QList<QWidget*> values = groups.values;
    for (CCoordinateCtrl* position : groups.positions)
        values << position->Edit1() << position->Edit2();
    for (DistanceCtrl* distance : groups.distances)
        values << distance->Edit();
    for (QWidget* widget : groups.labels + groups.values)
        MeasureSupport::ReserveTextMargins(widget);

    const auto fitted = [this](const QList<QWidget*>& group) {
        int size = 72;
        for (const QWidget* widget : group) {
            if (widget && widget->isVisibleTo(this))
                size = std::min(size, LargestFittingSize(TextOf(widget), TextRoom(widget), kSmallestPointSize));
        }
        return size;
    };
    const int labelSize = fitted(groups.labels);
    const QFont labelFont = MeasureSupport::ScaledFont(labelSize);
    const QFont valueFont = MeasureSupport::ScaledFont(fitted(values));
    // Fonts are set only when they change: the values change many times a second.
    const auto setFont = [](QWidget* widget, const QFont& font) {
        if (widget->font() != font)
            widget->setFont(font);
    };
    for (QWidget* widget : groups.labels)
        setFont(widget, labelFont);
    for (QWidget* widget : groups.values)
        setFont(widget, valueFont);
    // The format and unit buttons keep their fixed width: their captions take the label font,
    // or a smaller one where the caption would not fit it.
    const auto buttonFont = [&](QWidget* button) {
        return MeasureSupport::ScaledFont(std::min(labelSize, fitted({button})));
    };
    for (CCoordinateCtrl* position : groups.positions) {
        const QFont font = buttonFont(position->FormatButton());
        if (position->FormatButton()->font() != font)
            position->SetFontButton(&font);
        if (position->Edit1()->font() != valueFont)
            position->SetFontBox(&valueFont);
    }
    for (DistanceCtrl* distance : groups.distances) {
        const QFont font = buttonFont(distance->UnitButton());
        if (distance->UnitButton()->font() != font)
            distance->SetFontButton(&font);
        if (distance->Edit()->font() != valueFont)
            distance->SetFontBox(&valueFont);
    }

    // Room for every text at the smallest size: the layout keeps the dialog at least this large.
    for (QWidget* widget : groups.labels + groups.values)
        widget->setMinimumSize(NeededSize(widget, TextSize(TextOf(widget), kSmallestPointSize)));
    const int editLeft = DpiCor(56);
    const auto composite = [&](QWidget* control, const QList<QWidget*>& edits, QWidget* button) {
        QSize edit;
        for (const QWidget* e : edits)
            edit = edit.expandedTo(NeededSize(e, TextSize(TextOf(e), kSmallestPointSize)));
        const QSize caption = NeededSize(button, TextSize(TextOf(button), kSmallestPointSize));
        const int height = std::max(int(edits.size()) * edit.height() + 2 * (int(edits.size()) - 1), caption.height());
        control->setMinimumSize(editLeft + edit.width(), height);
    };
    for (CCoordinateCtrl* position : groups.positions)
        composite(position, {position->Edit1(), position->Edit2()}, position->FormatButton());
    for (DistanceCtrl* distance : groups.distances)
        composite(distance, {distance->Edit()}, distance->UnitButton());
}

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
