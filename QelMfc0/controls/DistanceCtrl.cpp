#include <QelMfc0/controls/DistanceCtrl.h>

#include <QelMfc0/controls/InputMarker.h>
#include <QelMfc0/controls/PlaceholderReplacement.h>
#include <QelMfc0/controls/ProjectFollower.h>

#include <QelBase/DisplayScale.h>
#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelBase/QelUnitCnv.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/UnitDefinition.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <cmath>
#include <stdexcept>

namespace {

// Unit kinds of the converter: the project's unit, and distances.
constexpr int kSystemUnitKind = 1;
constexpr int kDistanceUnitKind = 3;
// Button column width and the edit's left edge, at 96 DPI.
constexpr int kButtonWidth = 54;
constexpr int kEditLeft = 56;

// Turns notification off for a scope and puts the previous state back, also on a throw.
class NotifyOff
{
public:
    explicit NotifyOff(bool& flag) : m_flag(flag), m_saved(flag) { m_flag = false; }
    ~NotifyOff() { m_flag = m_saved; }
    NotifyOff(const NotifyOff&) = delete;
    NotifyOff& operator=(const NotifyOff&) = delete;

private:
    bool& m_flag;
    bool m_saved;
};

} // namespace

DistanceCtrl::DistanceCtrl(QWidget* parent)
    : QWidget(parent)
{
    m_button = new QPushButton(this);
    m_button->setObjectName(QStringLiteral("unitButton"));
    m_button->setProperty("id", kButtonId);
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setAutoDefault(false);
    m_edit = new QLineEdit(this);
    m_edit->setObjectName(QStringLiteral("distanceEdit"));
    m_edit->setProperty("id", kEditId);
    m_edit->installEventFilter(this);
    m_marker = new InputMarker(m_edit);
    setFocusProxy(m_button);
    setFocusPolicy(m_button->focusPolicy());

    connect(m_button, &QPushButton::clicked, this, &DistanceCtrl::onButtonClicked);
    connect(m_edit, &QLineEdit::textChanged, this, &DistanceCtrl::onTextChanged);

    readUnits();
    layoutChildren();
    m_notify = true;
    ProjectFollower::Follow(this, nullptr, [this] { onProjectChanged(); });
}

DistanceCtrl::~DistanceCtrl() = default;

void DistanceCtrl::readUnits()
{
    const DataSearch& search = DataSearch::GetDataSearch();
    const CQelUnitCnv defaultUnits;
    const ProjectDefinition* project = search.GetProjectDefinition();
    const CQelUnitCnv& projectUnits = project ? project->GetUnitCnv() : defaultUnits;

    int decimals = m_decimals;
    if (project && project->GetDistanceDecimals(decimals))
        m_decimals = decimals;
    QString name, projectKey, mnemonic;
    double factor = 1.0, offset = 0.0;
    if (projectUnits.GetUnit(kSystemUnitKind, factor, offset, name, projectKey, mnemonic)) {
        m_projectFactor = factor;
        m_projectOffset = offset;
        m_projectKey = projectKey;
    }

    UnitDefinition file;
    const QString path = search.GetFullPath(DataSearch::TYPE_UNITS);
    if (path.isEmpty() || !file.FileOpen(path, FileObject::OPEN_READ))
        return;
    Unit unit;
    bool more = file.GetFirstGroupItem(UnitDefinition::GROUP_DISTANCE, unit.key, unit.menuText,
                                       unit.factor, unit.offset, unit.abbreviation);
    while (more) {
        if (unit.key == projectKey)
            m_current = int(m_units.size());
        m_units.append(unit);
        more = file.GetNextGroupItem(unit.key, unit.menuText, unit.factor, unit.offset,
                                     unit.abbreviation);
    }
}

bool DistanceCtrl::Create(const QRect& rect, QWidget* parent, int id)
{
    if (!parent)
        return false;
    setParent(parent);
    setGeometry(rect);
    finishCreate(id);
    show();
    return true;
}

bool DistanceCtrl::CreateFromStatic(QWidget* placeholder)
{
    bool idOk = false;
    const int id = placeholder ? placeholder->property("id").toInt(&idOk) : 0;
    bool ok = false;
    const QString caption = ReplacePlaceholder(placeholder, this, &ok);
    if (!ok)
        return false;
    // The edit follows the button in the tab chain, wherever the control was put.
    QWidget::setTabOrder(m_button, m_edit);
    m_button->setText(caption);
    finishCreate(idOk ? id : 0);
    return true;
}

bool DistanceCtrl::CreateFromStatic(const QString& objectName, QWidget* parent)
{
    QWidget* placeholder = FindPlaceholder(parent, objectName);
    return placeholder && CreateFromStatic(placeholder);
}

void DistanceCtrl::finishCreate(int id)
{
    m_id = id;
    layoutChildren();
    m_notify = true;
}

void DistanceCtrl::onProjectChanged()
{
    const CQelUnitCnv converter;
    const double internal =
        converter.ToInternalUnit(kDistanceUnitKind, m_distance, m_projectFactor, m_projectOffset);
    const QString chosenKey = DistUnit();
    const bool followsProject = chosenKey.isEmpty() || chosenKey == m_projectKey;

    m_units.clear();
    m_current = 0;
    m_projectFactor = 1.0;
    m_projectOffset = 0.0;
    m_projectKey.clear();
    readUnits();
    if (!followsProject) {
        for (int i = 0; i < m_units.size(); ++i) {
            if (m_units[i].key == chosenKey) {
                m_current = i;
                break;
            }
        }
    }
    m_distance = converter.ToExternalUnit(kDistanceUnitKind, internal, m_projectFactor, m_projectOffset);
    // What the user typed stays as typed; a value the control showed is shown again.
    if (!m_empty && !m_edited)
        showValue(m_converted && !m_units.isEmpty());
    m_marker->SetProblem(InputProblem(m_edit->text()));
}

int DistanceCtrl::Id() const
{
    return m_id;
}

void DistanceCtrl::SetDistance(double value, bool convert)
{
    const QString text = FormatDistance(value, convert);
    m_distance = value;
    m_empty = false;
    m_converted = convert;
    NotifyOff quiet(m_notify);
    m_edit->setText(text);
    m_edited = false;
}

bool DistanceCtrl::GetDistance(double& value) const
{
    if (m_empty)
        return false;
    value = m_distance;
    return true;
}

const DistanceCtrl::Unit* DistanceCtrl::findTypedUnit(const QString& text) const
{
    // Exactly as listed first, then without regard to case.
    for (const Qt::CaseSensitivity cs : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const Unit& unit : m_units) {
            if (unit.abbreviation.compare(text, cs) == 0 || unit.key.compare(text, cs) == 0)
                return &unit;
        }
    }
    return nullptr;
}

bool DistanceCtrl::parseTyped(const QString& text, double& value, QString* problem) const
{
    QString s = text.trimmed();
    if (s.isEmpty())
        return false;
    // ',' is the decimal point of a text without '.'.
    if (!s.contains(u'.'))
        s.replace(u',', u'.');
    DecimalSyntax syntax;
    syntax.minusSign = true;
    const DecimalScan number = ScanDecimal(s, syntax);
    if (number.length == 0 || number.outOfRange || !std::isfinite(number.value)) {
        if (problem)
            *problem = tr("This text cannot be read as a distance.");
        return false;
    }
    const QString unitText = s.mid(number.length).trimmed();
    const Unit* unit = nullptr;
    if (unitText.isEmpty()) {
        unit = m_current >= 0 && m_current < m_units.size() ? &m_units[m_current] : nullptr;
    } else {
        unit = findTypedUnit(unitText);
        if (!unit) {
            if (problem)
                *problem = tr("\"%1\" is not a distance unit of the units list.").arg(unitText);
            return false;
        }
    }
    if (!unit) {
        // Without units (no units file) a bare number is taken in the project's unit.
        value = number.value;
        return true;
    }
    const CQelUnitCnv converter;
    const double internal = converter.ToInternalUnit(kDistanceUnitKind, number.value, unit->factor, unit->offset);
    const double converted = converter.ToExternalUnit(kDistanceUnitKind, internal, m_projectFactor, m_projectOffset);
    if (!std::isfinite(converted)) {
        if (problem)
            *problem = tr("This distance is too large.");
        return false;
    }
    value = converted;
    return true;
}

bool DistanceCtrl::ReadTypedDistance(double& value) const
{
    return parseTyped(m_edit->text(), value, nullptr);
}

QString DistanceCtrl::InputProblem(const QString& text) const
{
    if (text.trimmed().isEmpty())
        return QString();
    QString problem;
    double value = 0.0;
    return parseTyped(text, value, &problem) ? QString() : problem;
}

bool DistanceCtrl::IsInputMarked() const
{
    return m_marker->IsMarked();
}

QString DistanceCtrl::FormatDistance(double value, bool convert) const
{
    double shown = value;
    const Unit* unit = nullptr;
    if (convert) {
        if (m_current < 0 || m_current >= m_units.size())
            throw std::invalid_argument("DistanceCtrl: no current distance unit");
        unit = &m_units[m_current];
        const CQelUnitCnv converter;
        const double internal =
            converter.ToInternalUnit(kDistanceUnitKind, value, m_projectFactor, m_projectOffset);
        shown = converter.ToExternalUnit(kDistanceUnitKind, internal, unit->factor, unit->offset);
    }
    QString text = FormatDouble(shown, m_decimals, 0) + QLatin1Char(' ');
    if (unit)
        text += unit->abbreviation;
    return text;
}

void DistanceCtrl::SetDistUnit(const QString& key)
{
    for (int i = 0; i < m_units.size(); ++i) {
        if (m_units[i].key == key) {
            m_current = i;
            if (!m_empty)
                showValue(true);
            return;
        }
    }
}

void DistanceCtrl::GetDistUnit(QString& key) const
{
    if (m_current < 0 || m_current >= m_units.size())
        throw std::invalid_argument("DistanceCtrl: no current distance unit");
    key = m_units[m_current].key;
}

QString DistanceCtrl::DistUnit() const
{
    return m_current >= 0 && m_current < m_units.size() ? m_units[m_current].key : QString();
}

const QList<DistanceCtrl::Unit>& DistanceCtrl::Units() const
{
    return m_units;
}

int DistanceCtrl::CurrentUnit() const
{
    return m_current;
}

void DistanceCtrl::Clear()
{
    NotifyOff quiet(m_notify);
    m_edit->clear();
    m_empty = true;
    m_edited = false;
}

void DistanceCtrl::SetReadOnly()
{
    m_edit->setReadOnly(true);
}

void DistanceCtrl::SetFontBox(const QFont* font)
{
    m_edit->setFont(font ? *font : QApplication::font(m_edit));
}

void DistanceCtrl::SetFontButton(const QFont* font)
{
    m_button->setFont(font ? *font : QApplication::font(m_button));
}

QPushButton* DistanceCtrl::UnitButton() const
{
    return m_button;
}

QLineEdit* DistanceCtrl::Edit() const
{
    return m_edit;
}

QMenu* DistanceCtrl::UnitMenu() const
{
    auto* menu = new QMenu(const_cast<DistanceCtrl*>(this));
    for (int i = 0; i < m_units.size(); ++i) {
        QAction* action = menu->addAction(m_units[i].menuText);
        action->setData(kFirstUnitCommand + i);
        action->setCheckable(true);
        action->setChecked(i == m_current);
    }
    return menu;
}

void DistanceCtrl::ChooseUnit(int menuCommand)
{
    const qint64 index = qint64(menuCommand) - kFirstUnitCommand;
    if (index < 0 || index >= m_units.size() || index == m_current)
        return;
    NotifyOff quiet(m_notify);
    m_current = int(index);
    if (!m_empty)
        showValue(true);
    emit unitChosen();
}

QSize DistanceCtrl::sizeHint() const
{
    const QSize edit = m_edit->sizeHint();
    return {DpiCor(kEditLeft) + edit.width(), qMax(edit.height(), m_button->sizeHint().height())};
}

QSize DistanceCtrl::minimumSizeHint() const
{
    const QSize edit = m_edit->minimumSizeHint();
    return {DpiCor(kEditLeft) + edit.width(), edit.height()};
}

void DistanceCtrl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutChildren();
}

bool DistanceCtrl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_edit && event->type() == QEvent::FocusOut && m_notify && !m_empty) {
        // A popup (the edit's own context menu) takes the focus only for a moment.
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            emit committed();
    }
    return QWidget::eventFilter(watched, event);
}

void DistanceCtrl::layoutChildren()
{
    const int width = this->width();
    const int height = this->height();
    const int buttonWidth = qMin(DpiCor(kButtonWidth), width);
    const int editLeft = qMin(DpiCor(kEditLeft), width);
    m_button->setGeometry(0, 0, buttonWidth, height);
    m_edit->setGeometry(editLeft, 0, width - editLeft, height);
}

void DistanceCtrl::showValue(bool convert)
{
    NotifyOff quiet(m_notify);
    m_edit->setText(FormatDistance(m_distance, convert));
    m_converted = convert;
    m_edited = false;
}

void DistanceCtrl::onTextChanged()
{
    m_marker->SetProblem(InputProblem(m_edit->text()));
    if (!m_notify)
        return;
    m_empty = false;
    m_edited = true;
    emit changed();
}

void DistanceCtrl::onButtonClicked()
{
    try {
        const QPointer<DistanceCtrl> self(this);
        const QPointer<QMenu> menu(UnitMenu());
        const QAction* chosen =
            menu->exec(m_button->mapToGlobal(m_button->rect().bottomLeft() + QPoint(0, 1)));
        // The host may have closed the dialog, taking the control and its menu along.
        if (!self || !menu)
            return;
        const int command = chosen ? chosen->data().toInt() : 0;
        delete menu;
        ChooseUnit(command);
    } catch (const std::exception&) {
        // A menu that cannot be built or applied leaves the control as it is.
    }
}
