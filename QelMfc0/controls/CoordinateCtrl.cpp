#include "QelMfc0/controls/CoordinateCtrl.h"

#include "QelMfc0/StringTable.h"
#include "QelMfc0/controls/InputMarker.h"

#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelGeoCoordSysBase.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// FormatGeogs flags of a geographic display format.
unsigned geogsFlagsOf(CCoordinateCtrl::format_type format)
{
    switch (format) {
    case CCoordinateCtrl::fmt_seconds: return GeogsFlags::SECONDS;
    case CCoordinateCtrl::fmt_minutes: return GeogsFlags::MINUTES;
    case CCoordinateCtrl::fmt_degrees: return GeogsFlags::DEGREES;
    default: return 0;
    }
}

// The menu command of a format; a format outside the table checks the seconds command.
int commandOf(CCoordinateCtrl::format_type format)
{
    switch (format) {
    case CCoordinateCtrl::fmt_degrees: return CCoordinateCtrl::kCmdDegrees;
    case CCoordinateCtrl::fmt_minutes: return CCoordinateCtrl::kCmdMinutes;
    case CCoordinateCtrl::fmt_grid: return CCoordinateCtrl::kCmdGrid;
    default: return CCoordinateCtrl::kCmdSeconds;
    }
}

} // namespace

CCoordinateCtrl::CCoordinateCtrl(bool geogOnly, bool gridOnly, QWidget* parent)
    : ButtonEditComposite({"formatButton", kButtonId}, {{"edit1", kEdit1Id}, {"edit2", kEdit2Id}}, parent)
    , m_geogOnly(geogOnly)
    , m_gridOnly(gridOnly)
    , m_useCoordSys(!geogOnly && !gridOnly)
{
    Edit1()->setToolTipDuration(30000);
    Edit2()->setToolTipDuration(30000);
    readProjectSettings();
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    int coordFormat = ProjectDefinition::COORD_GRID;
    if (geogOnly)
        coordFormat = ProjectDefinition::COORD_GEOGRAPHIC;
    else if (!gridOnly && project)
        coordFormat = project->GetCoordinateFormat();
    m_format = projectFormat(coordFormat);
    FormatButton()->setText(FormatLabel(m_format));
    applyTooltipRule();
    m_told = {heldPosition(), m_format, Decimals(), m_geogOnly, m_gridOnly};
}

CCoordinateCtrl::CCoordinateCtrl(QWidget* parent)
    : CCoordinateCtrl(false, false, parent)
{
}

CCoordinateCtrl::~CCoordinateCtrl() = default;

void CCoordinateCtrl::readProjectSettings()
{
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    if (!project)
        return;
    project->GetGridDecimals(m_gridDecimals);
    project->GetGeogsDecimals(m_geogsDecimals);
    project->GetGeogsFlags(m_geogsFlags);
    project->GetFeetsFlags(m_feetFlags);
    if (project->GetUnitCnv().GetUnitMnem(1) != QLatin1String("ft"))
        m_feetFlags = 0;
}

const QelGeoCoordSysBase* CCoordinateCtrl::coordSys() const
{
    if (!m_useCoordSys)
        return nullptr;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    return project ? project->GetGeoCoordSys() : nullptr;
}

void CCoordinateCtrl::onProjectClosing()
{
    // Typed text is read in the terms it was typed in, while the old project is still open.
    m_hadCoordSys = coordSys() != nullptr;
    if (!IsEmpty())
        readPosition();
}

void CCoordinateCtrl::onProjectChanged()
{
    readProjectSettings();
    FormatButton()->setText(FormatLabel(m_format));
    if (!IsEmpty()) {
        // Both forms agreed in the old project: keep the place on earth. Without a coordinate
        // system there, the form the control showed is kept and the other one derived.
        completePosition(m_hadCoordSys || isGeographic(m_format));
        m_valid = true;
        showPosition();
    }
    CheckInput();
}

CCoordinateCtrl::format_type CCoordinateCtrl::geogsFlagsFormat() const
{
    switch (m_geogsFlags) {
    case GeogsFlags::DEGREES: return fmt_degrees;
    case GeogsFlags::MINUTES: return fmt_minutes;
    case GeogsFlags::SECONDS: return fmt_seconds;
    default: return m_format;
    }
}

CCoordinateCtrl::format_type CCoordinateCtrl::projectFormat(int projectCoordFormat) const
{
    if (projectCoordFormat == ProjectDefinition::COORD_GRID)
        return fmt_grid;
    return projectCoordFormat == ProjectDefinition::COORD_GEOGRAPHIC ? geogsFlagsFormat() : m_format;
}

void CCoordinateCtrl::completePosition(bool fromGeographic)
{
    const QelGeoCoordSysBase* system = coordSys();
    Position& p = m_position;
    if (system && fromGeographic)
        system->GeoToGrid(p.latitude, p.longitude, p.x, p.y);
    else if (system)
        system->GridToGeo(p.x, p.y, p.latitude, p.longitude);
}

void CCoordinateCtrl::SetGeogOnly(bool geogOnly)
{
    setOnly(true, geogOnly);
}

void CCoordinateCtrl::SetGridOnly(bool gridOnly)
{
    setOnly(false, gridOnly);
}

void CCoordinateCtrl::setOnly(bool geographic, bool on)
{
    if (!on) {
        // Leaving the mode the control is in gives both kinds; leaving another one nothing.
        if (geographic ? m_geogOnly : m_gridOnly)
            SetGeogGrid();
        return;
    }
    m_geogOnly = geographic;
    m_gridOnly = !geographic;
    SetFormatType(geographic ? geogsFlagsFormat() : fmt_grid);
    announceChanges();
}

void CCoordinateCtrl::SetGeogGrid()
{
    m_geogOnly = false;
    m_gridOnly = false;
    if (!m_useCoordSys && !IsEmpty()) {
        // The form the control shows gives the other one from now on.
        readPosition();
        m_useCoordSys = true;
        completePosition(isGeographic(m_format));
    }
    m_useCoordSys = true;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    SetFormatType(projectFormat(project ? int(project->GetCoordinateFormat()) : int(ProjectDefinition::COORD_GRID)));
    announceChanges();
}

void CCoordinateCtrl::SetCoordinateFormat(int projectCoordFormat)
{
    SetFormatType(projectFormat(projectCoordFormat));
}

void CCoordinateCtrl::SetLatLon(double latitude, double longitude)
{
    setPosition(true, latitude, longitude);
}

void CCoordinateCtrl::SetXY(double x, double y)
{
    setPosition(false, x, y);
}

void CCoordinateCtrl::setPosition(bool geographic, double first, double second)
{
    (geographic ? m_position.latitude : m_position.x) = first;
    (geographic ? m_position.longitude : m_position.y) = second;
    completePosition(geographic);
    m_valid = true;
    SetEmpty(false);
    showPosition();
    announceChanges();
}

bool CCoordinateCtrl::GetLatLon(double& latitude, double& longitude)
{
    return getPosition(true, latitude, longitude);
}

bool CCoordinateCtrl::GetXY(double& x, double& y)
{
    return getPosition(false, x, y);
}

bool CCoordinateCtrl::getPosition(bool geographic, double& first, double& second)
{
    if (IsEmpty())
        return false;
    readPosition();
    first = geographic ? m_position.latitude : m_position.x;
    second = geographic ? m_position.longitude : m_position.y;
    return true;
}

double CCoordinateCtrl::GridX() const
{
    return heldPosition().x;
}

double CCoordinateCtrl::GridY() const
{
    return heldPosition().y;
}

double CCoordinateCtrl::Latitude() const
{
    return heldPosition().latitude;
}

double CCoordinateCtrl::Longitude() const
{
    return heldPosition().longitude;
}

void CCoordinateCtrl::SetGridX(double x)
{
    setCoordinate(false, 0, x);
}

void CCoordinateCtrl::SetGridY(double y)
{
    setCoordinate(false, 1, y);
}

void CCoordinateCtrl::SetLatitude(double latitude)
{
    setCoordinate(true, 0, latitude);
}

void CCoordinateCtrl::SetLongitude(double longitude)
{
    setCoordinate(true, 1, longitude);
}

void CCoordinateCtrl::setCoordinate(bool geographic, int index, double value)
{
    if (std::isnan(value)) {
        if (!IsEmpty())
            Clear();
        return;
    }
    const Position held = heldPosition();
    double pair[2] = {0.0, 0.0};
    if (!IsEmpty()) {
        pair[0] = geographic ? held.latitude : held.x;
        pair[1] = geographic ? held.longitude : held.y;
    }
    pair[index] = value;
    setPosition(geographic, pair[0], pair[1]);
}

void CCoordinateCtrl::GetCoordinateAsText(QString& first, QString& second) const
{
    first = Edit1()->text();
    second = Edit2()->text();
}

void CCoordinateCtrl::FormatXY(double x, double y, QString& first, QString& second) const
{
    Position position;
    position.x = x;
    position.y = y;
    if (const QelGeoCoordSysBase* system = coordSys(); system && isGeographic(m_format))
        system->GridToGeo(x, y, position.latitude, position.longitude);
    formatPosition(position, first, second);
}

void CCoordinateCtrl::SetFormatType(format_type format)
{
    if (format == m_format)
        return;
    {
        Quiet quiet(*this);
        if (!IsEmpty())
            readPosition();
        m_format = format;
        FormatButton()->setText(FormatLabel(m_format));
        Edit1()->clear();
        Edit2()->clear();
        applyTooltipRule();
        if (!IsEmpty())
            showPosition();
    }
    announceChanges();
}

void CCoordinateCtrl::onReadOnlySet(bool readOnly)
{
    SetTooltipActive(!readOnly);
}

void CCoordinateCtrl::SetTooltipActive(bool active)
{
    const bool changed = active != m_tooltipActive;
    m_tooltipActive = active;
    updateTooltips();
    if (changed)
        emit tooltipActiveChanged(active);
}

void CCoordinateCtrl::SelectEditBox1()
{
    Edit1()->setFocus(Qt::OtherFocusReason);
    Edit1()->selectAll(); // leaves the cursor at the end, in view
}

QMenu* CCoordinateCtrl::FormatMenu() const
{
    auto* menu = new QMenu(tr("Coord"), const_cast<CCoordinateCtrl*>(this));
    const struct
    {
        int command;
        QString text;
    } items[] = {
        {kCmdDegrees, tr("Lat/Lon (°)")},
        {kCmdMinutes, tr("Lat/Lon (° ')")},
        {kCmdSeconds, tr("Lat/Lon (° ' \")")},
        {kCmdGrid, tr("X/Y")},
    };
    const int current = commandOf(m_format);
    for (const auto& item : items) {
        if (m_geogOnly ? item.command == kCmdGrid : m_gridOnly && item.command != kCmdGrid)
            continue;
        QAction* action = menu->addAction(item.text);
        action->setData(item.command);
        action->setCheckable(true);
        action->setChecked(item.command == current);
    }
    return menu;
}

void CCoordinateCtrl::ChooseFormat(int menuCommand)
{
    switch (menuCommand) {
    case kCmdDegrees: SetFormatType(fmt_degrees); break;
    case kCmdMinutes: SetFormatType(fmt_minutes); break;
    case kCmdSeconds: SetFormatType(fmt_seconds); break;
    case kCmdGrid: SetFormatType(fmt_grid); break;
    default: return;
    }
    emit formatChosen(m_format);
}

QMenu* CCoordinateCtrl::buttonMenu() const
{
    return FormatMenu();
}

void CCoordinateCtrl::menuCommand(int command)
{
    ChooseFormat(command);
}

QString CCoordinateCtrl::FormatLabel(format_type format) const
{
    if (isGeographic(format)) {
        const QelGeoCoordSysBase* system = coordSys();
        const bool satellite = system && system->IsSatelliteLatLon();
        return LoadQelString(satellite ? QelStrings::SAT_LATLON_LABEL : QelStrings::LATLON_LABEL);
    }
    return format == fmt_grid ? LoadQelString(QelStrings::XY_LABEL) : QString();
}

QString CCoordinateCtrl::ExampleLines(bool latitude)
{
    const QChar hemisphere = latitude ? u'N' : u'E';
    // The first line carries the one character U+B030 after "056" on purpose.
    return QStringLiteral("056") + QChar(0xB030) + QStringLiteral("'07.2\" ") + hemisphere
           + QStringLiteral("\n56 30 7.2 ") + hemisphere + QStringLiteral("\n56.502 ") + hemisphere;
}

int CCoordinateCtrl::Decimals(format_type format) const
{
    const int g = m_geogsDecimals;
    const unsigned f = m_geogsFlags;
    const auto atLeastZero = [](int value) { return std::max(value, 0); };
    switch (format) {
    case fmt_degrees:
        return f == 1 ? g : f == 3 ? g + 2 : f == 7 ? g + 4 : 0;
    case fmt_minutes:
        return f == 1 ? atLeastZero(g - 2) : f == 3 ? g : f == 7 ? g + 2 : 0;
    case fmt_seconds:
        return f == 1 ? atLeastZero(g - 4) : f == 3 ? atLeastZero(g - 2) : f == 7 ? g : 0;
    case fmt_grid:
        return m_gridDecimals;
    }
    return 0;
}

void CCoordinateCtrl::applyTooltipRule()
{
    SetTooltipActive(!IsReadOnly() && m_format != fmt_grid);
}

void CCoordinateCtrl::updateTooltips()
{
    const auto tip = [this](bool latitude) {
        if (!m_tooltipActive)
            return QString();
        QString lines = ExampleLines(latitude);
        lines.replace(u'\n', QStringLiteral("<br>"));
        return QStringLiteral("<b>%1</b><br>%2")
            .arg(LoadQelString(QelStrings::EXAMPLES_TITLE).toHtmlEscaped(), lines);
    };
    MarkerAt(0)->SetToolTip(tip(true));
    MarkerAt(1)->SetToolTip(tip(false));
}

QString CCoordinateCtrl::InputProblem(bool first, const QString& text) const
{
    if (text.trimmed().isEmpty())
        return QString();
    if (isGeographic(m_format)) {
        double value = 0.0;
        if (!StringToGeo(text, value))
            return first ? tr("This text cannot be read as a latitude; it counts as 0.")
                         : tr("This text cannot be read as a longitude; it counts as 0.");
        if (first && std::fabs(value) > 90.0)
            return tr("A latitude lies between 90° S and 90° N.");
        if (!first && std::fabs(value) > 180.0)
            return tr("A longitude lies between 180° W and 180° E.");
        return QString();
    }
    if (m_format != fmt_grid)
        return QString();
    bool readable = false;
    double value = 0.0;
    if (m_feetFlags != 0)
        StringToValue(text, &readable);
    else
        readable = TextToDouble(text, value);
    if (readable)
        return QString();
    return m_feetFlags != 0 ? tr("This text cannot be read as feet and inches; it counts as 0.")
                            : tr("This text cannot be read as a number; only the number it starts with counts.");
}

QString CCoordinateCtrl::editProblem(int index, const QString& text) const
{
    return InputProblem(index == 0, text);
}

void CCoordinateCtrl::onEditTextChanged(int)
{
    m_valid = false;
    emit changed(Edit1()->text(), Edit2()->text());
}

void CCoordinateCtrl::onEditingLeft()
{
    readPosition();
    showPosition();
    if (isGeographic(m_format))
        emit committed(m_position.latitude, m_position.longitude);
    else
        emit committed(m_position.x, m_position.y);
}

bool CCoordinateCtrl::formatPosition(const Position& position, QString& first, QString& second) const
{
    const int decimals = Decimals(m_format);
    if (isGeographic(m_format)) {
        const unsigned flags = geogsFlagsOf(m_format);
        FormatGeogs(position.latitude, flags, decimals, GeogsKind::LATITUDE, first, true, true);
        FormatGeogs(position.longitude, flags, decimals, GeogsKind::LONGITUDE, second, true, true);
        return true;
    }
    if (m_format != fmt_grid)
        return false;
    first = FormatDouble(position.x, decimals, m_feetFlags);
    second = FormatDouble(position.y, decimals, m_feetFlags);
    return true;
}

void CCoordinateCtrl::showPosition()
{
    QString first, second;
    if (!formatPosition(m_position, first, second))
        return;
    Quiet quiet(*this);
    Edit1()->setText(first);
    Edit2()->setText(second);
}

CCoordinateCtrl::Position CCoordinateCtrl::parsedPosition() const
{
    Position position = m_position;
    if (m_valid)
        return position;
    const QelGeoCoordSysBase* system = coordSys();
    if (isGeographic(m_format)) {
        position.latitude = 0.0;
        position.longitude = 0.0;
        StringToGeo(Edit1()->text(), position.latitude);
        StringToGeo(Edit2()->text(), position.longitude);
        if (system)
            system->GeoToGrid(position.latitude, position.longitude, position.x, position.y);
    } else if (m_format == fmt_grid) {
        const auto parse = [this](const QString& text) {
            return m_feetFlags != 0 ? StringToValue(text) : LeadingNumber(text);
        };
        position.x = parse(Edit1()->text());
        position.y = parse(Edit2()->text());
        if (system)
            system->GridToGeo(position.x, position.y, position.latitude, position.longitude);
    }
    return position;
}

void CCoordinateCtrl::readPosition()
{
    m_position = parsedPosition();
    m_valid = true;
}

CCoordinateCtrl::Position CCoordinateCtrl::heldPosition() const
{
    if (!IsEmpty())
        return parsedPosition();
    const double none = std::numeric_limits<double>::quiet_NaN();
    return {none, none, none, none};
}

void CCoordinateCtrl::announceChanges()
{
    const Position held = heldPosition();
    Position& told = m_told.position;
    if (!SameValue(held.x, told.x) || !SameValue(held.y, told.y)) {
        told.x = held.x;
        told.y = held.y;
        emit gridPositionChanged(held.x, held.y);
    }
    if (!SameValue(held.latitude, told.latitude) || !SameValue(held.longitude, told.longitude)) {
        told.latitude = held.latitude;
        told.longitude = held.longitude;
        emit geoPositionChanged(held.latitude, held.longitude);
    }
    Tell(this, m_told.format, m_format, &CCoordinateCtrl::formatChanged);
    Tell(this, m_told.decimals, Decimals(), &CCoordinateCtrl::decimalsChanged);
    Tell(this, m_told.geogOnly, m_geogOnly, &CCoordinateCtrl::geographicOnlyChanged);
    Tell(this, m_told.gridOnly, m_gridOnly, &CCoordinateCtrl::gridOnlyChanged);
}

bool CCoordinateCtrl::isGeographic(format_type format) const
{
    return format == fmt_seconds || format == fmt_minutes || format == fmt_degrees;
}
