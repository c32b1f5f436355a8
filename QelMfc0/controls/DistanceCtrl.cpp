#include <QelMfc0/controls/DistanceCtrl.h>

#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelBase/QelUnitCnv.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/UnitDefinition.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

// Unit kinds of the converter: the project's unit, and distances.
constexpr int kSystemUnitKind = 1;
constexpr int kDistanceUnitKind = 3;

} // namespace

DistanceCtrl::DistanceCtrl(QWidget* parent)
    : ButtonEditComposite({"unitButton", kButtonId}, {{"distanceEdit", kEditId}}, parent)
{
    readUnits();
    m_told = {Distance(), DistUnit(), m_current, m_decimals};
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
    if (!IsEmpty() && !m_edited)
        showValue(m_converted && !m_units.isEmpty());
    CheckInput();
}

void DistanceCtrl::SetDistance(double value, bool convert)
{
    const QString text = FormatDistance(value, convert);
    m_distance = value;
    SetEmpty(false);
    m_converted = convert;
    {
        Quiet quiet(*this);
        Edit()->setText(text);
    }
    m_edited = false;
    announceChanges();
}

void DistanceCtrl::SetDistance(double value)
{
    if (std::isnan(value)) {
        if (!IsEmpty())
            Clear();
        return;
    }
    SetDistance(value, m_current >= 0 && m_current < m_units.size());
}

bool DistanceCtrl::GetDistance(double& value) const
{
    if (IsEmpty())
        return false;
    value = m_distance;
    return true;
}

double DistanceCtrl::Distance() const
{
    return IsEmpty() ? std::numeric_limits<double>::quiet_NaN() : m_distance;
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
    return parseTyped(Edit()->text(), value, nullptr);
}

QString DistanceCtrl::InputProblem(const QString& text) const
{
    if (text.trimmed().isEmpty())
        return QString();
    QString problem;
    double value = 0.0;
    return parseTyped(text, value, &problem) ? QString() : problem;
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
            SetCurrentUnit(i);
            return;
        }
    }
}

void DistanceCtrl::SetCurrentUnit(int index)
{
    if (index < 0 || index >= m_units.size())
        return;
    m_current = index;
    if (!IsEmpty())
        showValue(true);
    announceChanges();
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
    {
        Quiet quiet(*this);
        m_current = int(index);
        if (!IsEmpty())
            showValue(true);
        emit unitChosen(m_current);
    }
    announceChanges();
}

QMenu* DistanceCtrl::buttonMenu() const
{
    return UnitMenu();
}

void DistanceCtrl::menuCommand(int command)
{
    ChooseUnit(command);
}

QString DistanceCtrl::editProblem(int, const QString& text) const
{
    return InputProblem(text);
}

void DistanceCtrl::onEditTextChanged(int)
{
    SetEmpty(false);
    m_edited = true;
    emit changed(Edit()->text());
}

void DistanceCtrl::onEditingLeft()
{
    emit committed(Edit()->text());
}

void DistanceCtrl::onPlaceholderText(const QString& text)
{
    ButtonEditComposite::onPlaceholderText(text);
    UnitButton()->setText(text);
}

void DistanceCtrl::showValue(bool convert)
{
    const QString text = FormatDistance(m_distance, convert);
    Quiet quiet(*this);
    Edit()->setText(text);
    m_converted = convert;
    m_edited = false;
}

void DistanceCtrl::announceChanges()
{
    Tell(this, m_told.distance, Distance(), &DistanceCtrl::distanceChanged);
    Tell(this, m_told.unit, DistUnit(), &DistanceCtrl::unitChanged);
    Tell(this, m_told.unitIndex, m_current, &DistanceCtrl::unitIndexChanged);
    Tell(this, m_told.decimals, m_decimals, &DistanceCtrl::decimalsChanged);
}
