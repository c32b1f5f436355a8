#include "QelMfc0/dialogs/measure/MeasureDlgBase.h"

#include "QelMfc0/controls/CoordinateCtrl.h"
#include "QelMfc0/controls/DistanceCtrl.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/NumberUtils.h>

#include <QFontMetricsF>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
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

QGridLayout* MeasureDlgBase::MakeGrid()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(DpiCor(4), DpiCor(4), DpiCor(4), DpiCor(4));
    grid->setSpacing(DpiCor(3));
    return grid;
}

QLabel* MeasureDlgBase::AddLabel(int id, const QString& text)
{
    QLabel* label = MeasureSupport::MakeLabel(this, id, text);
    m_widgets.labels << label;
    return label;
}

QLineEdit* MeasureDlgBase::AddField(int id)
{
    QLineEdit* field = MeasureSupport::MakeField(this, id);
    m_widgets.values << field;
    return field;
}

CCoordinateCtrl* MeasureDlgBase::AddPositionControl(int id)
{
    auto* control = new CCoordinateCtrl(false, false);
    if (!control->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(id))))
        control->Create(QRect(), this, id);
    control->SetReadOnly(true);
    control->SetTooltipActive(false);
    // A format chosen on one control is shown on all of them and remembered.
    connect(control, &CCoordinateCtrl::formatChosen, this, [this, control] { SetCoordFormat(control->FormatType()); });
    m_widgets.positions << control;
    return control;
}

DistanceCtrl* MeasureDlgBase::AddDistanceControl(int id)
{
    auto* control = new DistanceCtrl();
    if (!control->CreateFromStatic(FindPlaceholder(this, MeasureSupport::IdName(id))))
        control->Create(QRect(), this, id);
    control->SetReadOnly();
    // A unit chosen on one control is shown on all of them and remembered; a control without
    // units has no key to spread.
    connect(control, &DistanceCtrl::unitChosen, this, [this, control] {
        const QString key = control->DistUnit();
        if (!key.isEmpty())
            SetDistUnit(key);
    });
    m_widgets.distances << control;
    return control;
}

void MeasureDlgBase::SetTemplateSize(const QSize& size, const QSize& minimum)
{
    resize(DpiCor(size.width()), DpiCor(size.height()));
    setMinimumSize(DpiCor(minimum.width()), DpiCor(minimum.height()));
}

void MeasureDlgBase::FinishSetup(std::vector<CarriedPosition> positions)
{
    m_setUp = true;
    m_support.MoveToParentCorner();
    ApplyRememberedChoices();
    m_carried = std::move(positions);
    // Followed after the controls, which take in the new project before the dialog refills them.
    ProjectFollower::Follow(this, [this] { CarryOut(); }, [this] { CarryIn(); });
}

void MeasureDlgBase::CarryOut()
{
    for (const CarriedPosition& position : m_carried)
        position.first->carried = MeasureSupport::CarryOut(position.first->point);
}

void MeasureDlgBase::CarryIn()
{
    ApplyRememberedChoices();
    for (const CarriedPosition& position : m_carried) {
        if (position.first->set)
            position.second(MeasureSupport::CarryIn(position.first->carried));
    }
}

void MeasureDlgBase::ApplyDistUnit(const QString& key)
{
    for (DistanceCtrl* control : m_widgets.distances)
        control->SetDistUnit(key);
}

void MeasureDlgBase::ApplyCoordFormat(int format)
{
    for (CCoordinateCtrl* control : m_widgets.positions)
        control->SetFormatType(CCoordinateCtrl::format_type(format));
}

void MeasureDlgBase::SetDistUnit(const QString& key)
{
    ApplyDistUnit(key);
    Recompute();
    m_support.StoreDistUnit(key);
}

void MeasureDlgBase::SetCoordFormat(int format)
{
    if (format < 0)
        return;
    ApplyCoordFormat(format);
    CoordFormatApplied();
    m_support.StoreCoordFormat(format);
}

int MeasureDlgBase::RememberedCoordFormat() const
{
    return m_support.StoredCoordFormat();
}

void MeasureDlgBase::ApplyRememberedChoices()
{
    QString key;
    if (m_support.StoredDistUnit(key))
        ApplyDistUnit(key);
    // Only a format the controls know; a stored value from elsewhere is left alone.
    const int format = RememberedCoordFormat();
    if (format >= CCoordinateCtrl::fmt_seconds && format <= CCoordinateCtrl::fmt_grid)
        ApplyCoordFormat(format);
}

void MeasureDlgBase::ReapplyRememberedChoices()
{
    if (!m_support.Attributes())
        return;
    QString key;
    if (m_support.StoredDistUnit(key))
        SetDistUnit(key);
    if (!m_widgets.positions.isEmpty())
        SetCoordFormat(RememberedCoordFormat());
}

bool MeasureDlgBase::MeasureLine(double& bearing, double& distance, bool trueDistance) const
{
    if (!m_from.set || !m_to.set)
        return false;
    const Point d = m_to.point - m_from.point;
    XYToPolar(d.x, d.y, bearing, distance);
    if (trueDistance)
        distance /= MeasureSupport::LineScaleFactor(m_from.point.x, m_from.point.y, m_to.point.x, m_to.point.y);
    return true;
}

void MeasureDlgBase::ChangeFontSize()
{
    if (m_setUp)
        FitFonts(m_widgets);
}

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
