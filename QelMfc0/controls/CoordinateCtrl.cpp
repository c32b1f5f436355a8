#include "QelMfc0/controls/CoordinateCtrl.h"

#include "QelMfc0/StringTable.h"
#include "QelMfc0/controls/InputMarker.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelGeoCoordSysBase.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

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
    : QWidget(parent)
    , m_geogOnly(geogOnly)
    , m_gridOnly(gridOnly)
    , m_useCoordSys(!geogOnly && !gridOnly)
{
    readProjectSettings();
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    int coordFormat = ProjectDefinition::COORD_GRID;
    if (geogOnly)
        coordFormat = ProjectDefinition::COORD_GEOGRAPHIC;
    else if (!gridOnly && project)
        coordFormat = project->GetCoordinateFormat();
    applyProjectCoordFormat(coordFormat);
    ProjectFollower::Follow(this, [this] { onProjectClosing(); }, [this] { onProjectChanged(); });
}

CCoordinateCtrl::~CCoordinateCtrl()
{
    // The edits must not report their destruction as a focus change to a half-destroyed control.
    m_notify = false;
    if (m_edit1)
        m_edit1->removeEventFilter(this);
    if (m_edit2)
        m_edit2->removeEventFilter(this);
}

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
    if (!m_empty)
        readPosition();
}

void CCoordinateCtrl::onProjectChanged()
{
    readProjectSettings();
    if (m_button)
        m_button->setText(FormatLabel(m_format));
    if (m_empty) {
        checkInput();
        return;
    }
    if (const QelGeoCoordSysBase* system = coordSys()) {
        // Both forms agreed in the old project: keep the place on earth. Without a coordinate
        // system there, the form the control showed is kept and the other one derived.
        if (m_hadCoordSys || isGeographic(m_format))
            system->GeoToGrid(m_latitude, m_longitude, m_x, m_y);
        else
            system->GridToGeo(m_x, m_y, m_latitude, m_longitude);
    }
    m_valid = true;
    showPosition();
    checkInput();
}

void CCoordinateCtrl::applyGeogsFlags()
{
    switch (m_geogsFlags) {
    case GeogsFlags::DEGREES: m_format = fmt_degrees; break;
    case GeogsFlags::MINUTES: m_format = fmt_minutes; break;
    case GeogsFlags::SECONDS: m_format = fmt_seconds; break;
    default: break;
    }
}

void CCoordinateCtrl::applyProjectCoordFormat(int projectCoordFormat)
{
    if (projectCoordFormat == ProjectDefinition::COORD_GRID)
        m_format = fmt_grid;
    else if (projectCoordFormat == ProjectDefinition::COORD_GEOGRAPHIC)
        applyGeogsFlags();
}

bool CCoordinateCtrl::Create(const QRect& rect, QWidget* parent, int id)
{
    if (m_created)
        return false;
    m_notify = false;
    m_id = id;
    if (parent && parent != parentWidget())
        setParent(parent);
    setGeometry(rect);

    const QFont font = parentFont();
    m_button = new QPushButton(FormatLabel(m_format), this);
    m_button->setObjectName(QStringLiteral("formatButton"));
    m_button->setFont(font);
    m_button->setAutoDefault(false);
    connect(m_button, &QPushButton::clicked, this, &CCoordinateCtrl::onButtonClicked);

    m_edit1 = new QLineEdit(this);
    m_edit1->setObjectName(QStringLiteral("edit1"));
    m_edit2 = new QLineEdit(this);
    m_edit2->setObjectName(QStringLiteral("edit2"));
    for (QLineEdit* edit : {m_edit1, m_edit2}) {
        edit->setFont(font);
        edit->setReadOnly(m_readOnly);
        edit->setToolTipDuration(30000);
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textChanged, this, &CCoordinateCtrl::onTextChanged);
    }
    m_marker1 = new InputMarker(m_edit1);
    m_marker2 = new InputMarker(m_edit2);
    // Focus given to the control goes to the format button; Tab then walks button, edit 1, edit 2.
    setFocusPolicy(Qt::TabFocus);
    setFocusProxy(m_button);
    QWidget::setTabOrder(m_button, m_edit1);
    QWidget::setTabOrder(m_edit1, m_edit2);

    m_created = true;
    layoutChildren();
    applyTooltipRule();
    if (!m_empty)
        showPosition();
    if (parentWidget())
        QWidget::show();
    m_notify = true;
    return true;
}

bool CCoordinateCtrl::CreateFromStatic(QWidget* placeholder)
{
    if (m_created || !placeholder || !placeholder->parentWidget())
        return false;
    bool idOk = false;
    const int id = placeholder->property("id").toInt(&idOk);
    if (!Create(placeholder->geometry(), placeholder->parentWidget(), idOk ? id : 0))
        return false;
    bool ok = false;
    const QString text = ReplacePlaceholder(placeholder, this, &ok);
    if (ok) {
        // The children follow the button in the tab chain, wherever it was placed.
        QWidget::setTabOrder(m_button, m_edit1);
        QWidget::setTabOrder(m_edit1, m_edit2);
        if (!text.isEmpty())
            setAccessibleName(text);
    }
    return ok;
}

bool CCoordinateCtrl::CreateFromStatic(const QString& objectName, QWidget* parent)
{
    QWidget* placeholder = FindPlaceholder(parent, objectName);
    return placeholder && CreateFromStatic(placeholder);
}

void CCoordinateCtrl::SetGeogOnly()
{
    m_geogOnly = true;
    m_gridOnly = false;
    applyGeogsFlags();
}

void CCoordinateCtrl::SetGridOnly()
{
    m_geogOnly = false;
    m_gridOnly = true;
    m_format = fmt_grid;
}

void CCoordinateCtrl::SetGeogGrid()
{
    m_geogOnly = false;
    m_gridOnly = false;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    applyProjectCoordFormat(project ? int(project->GetCoordinateFormat()) : int(ProjectDefinition::COORD_GRID));
    m_useCoordSys = true;
}

void CCoordinateCtrl::SetCoordinateFormat(int projectCoordFormat)
{
    applyProjectCoordFormat(projectCoordFormat);
}

void CCoordinateCtrl::SetLatLon(double latitude, double longitude)
{
    m_latitude = latitude;
    m_longitude = longitude;
    if (const QelGeoCoordSysBase* system = coordSys())
        system->GeoToGrid(latitude, longitude, m_x, m_y);
    m_valid = true;
    m_empty = false;
    showPosition();
}

void CCoordinateCtrl::SetXY(double x, double y)
{
    m_x = x;
    m_y = y;
    if (const QelGeoCoordSysBase* system = coordSys())
        system->GridToGeo(x, y, m_latitude, m_longitude);
    m_valid = true;
    m_empty = false;
    showPosition();
}

bool CCoordinateCtrl::GetLatLon(double& latitude, double& longitude)
{
    if (m_empty)
        return false;
    readPosition();
    latitude = m_latitude;
    longitude = m_longitude;
    return true;
}

bool CCoordinateCtrl::GetXY(double& x, double& y)
{
    if (m_empty)
        return false;
    readPosition();
    x = m_x;
    y = m_y;
    return true;
}

void CCoordinateCtrl::GetCoordinateAsText(QString& first, QString& second) const
{
    first = m_edit1 ? m_edit1->text() : QString();
    second = m_edit2 ? m_edit2->text() : QString();
}

void CCoordinateCtrl::FormatXY(double x, double y, QString& first, QString& second) const
{
    if (m_format == fmt_grid) {
        first = FormatDouble(x, Decimals(m_format), m_feetFlags);
        second = FormatDouble(y, Decimals(m_format), m_feetFlags);
    } else if (isGeographic(m_format)) {
        double latitude = 0.0;
        double longitude = 0.0;
        if (const QelGeoCoordSysBase* system = coordSys())
            system->GridToGeo(x, y, latitude, longitude);
        const unsigned flags = geogsFlagsOf(m_format);
        const int decimals = Decimals(m_format);
        FormatGeogs(latitude, flags, decimals, GeogsKind::LATITUDE, first, true, true);
        FormatGeogs(longitude, flags, decimals, GeogsKind::LONGITUDE, second, true, true);
    }
}

void CCoordinateCtrl::Clear()
{
    m_notify = false;
    if (m_edit1)
        m_edit1->clear();
    if (m_edit2)
        m_edit2->clear();
    m_empty = true;
    m_notify = true;
}

void CCoordinateCtrl::SetFormatType(format_type format)
{
    if (format == m_format)
        return;
    m_notify = false;
    if (!m_empty)
        readPosition();
    m_format = format;
    if (m_button)
        m_button->setText(FormatLabel(m_format));
    if (m_edit1)
        m_edit1->clear();
    if (m_edit2)
        m_edit2->clear();
    applyTooltipRule();
    if (!m_empty)
        showPosition();
    m_notify = true;
}

void CCoordinateCtrl::SetReadOnly(bool readOnly)
{
    if (m_edit1)
        m_edit1->setReadOnly(readOnly);
    if (m_edit2)
        m_edit2->setReadOnly(readOnly);
    m_readOnly = readOnly;
    SetTooltipActive(!readOnly);
}

void CCoordinateCtrl::SetTooltipActive(bool active)
{
    m_tooltipActive = active;
    updateTooltips();
}

void CCoordinateCtrl::SelectEditBox1()
{
    if (!m_edit1)
        return;
    m_edit1->setFocus(Qt::OtherFocusReason);
    m_edit1->selectAll(); // leaves the cursor at the end, in view
}

void CCoordinateCtrl::SetFontBox(const QFont* font)
{
    const QFont chosen = font ? *font : parentFont();
    if (m_edit1)
        m_edit1->setFont(chosen);
    if (m_edit2)
        m_edit2->setFont(chosen);
}

void CCoordinateCtrl::SetFontButton(const QFont* font)
{
    if (m_button)
        m_button->setFont(font ? *font : parentFont());
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
    emit formatChosen();
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

QSize CCoordinateCtrl::sizeHint() const
{
    const QSize edit = m_edit1 ? m_edit1->sizeHint() : QLineEdit().sizeHint();
    return {DpiCor(56) + edit.width(), 2 * edit.height() + 2};
}

QSize CCoordinateCtrl::minimumSizeHint() const
{
    const QSize edit = m_edit1 ? m_edit1->minimumSizeHint() : QLineEdit().minimumSizeHint();
    return {DpiCor(56) + edit.width(), 2 * edit.height() + 2};
}

void CCoordinateCtrl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutChildren();
}

bool CCoordinateCtrl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && (watched == m_edit1 || watched == m_edit2)) {
        // The application's focus widget is already the one that receives the focus.
        commit();
    }
    return QWidget::eventFilter(watched, event);
}

void CCoordinateCtrl::layoutChildren()
{
    if (!m_created)
        return;
    const int width = this->width();
    const int height = this->height();
    const int buttonRight = DpiCor(54);
    const int editLeft = DpiCor(56);
    const int middle = height / 2;
    const int editWidth = std::max(width - editLeft, 0);
    m_button->setGeometry(0, 0, std::max(buttonRight, 0), height);
    m_edit1->setGeometry(editLeft, 0, editWidth, std::max(middle - 1, 0));
    m_edit2->setGeometry(editLeft, middle + 1, editWidth, std::max(height - (middle + 1), 0));
}

void CCoordinateCtrl::applyTooltipRule()
{
    SetTooltipActive(!m_readOnly && m_format != fmt_grid);
}

void CCoordinateCtrl::updateTooltips()
{
    if (!m_edit1 || !m_edit2)
        return;
    const auto tip = [this](bool latitude) {
        if (!m_tooltipActive)
            return QString();
        QString lines = ExampleLines(latitude);
        lines.replace(u'\n', QStringLiteral("<br>"));
        return QStringLiteral("<b>%1</b><br>%2")
            .arg(LoadQelString(QelStrings::EXAMPLES_TITLE).toHtmlEscaped(), lines);
    };
    m_marker1->SetToolTip(tip(true));
    m_marker2->SetToolTip(tip(false));
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

bool CCoordinateCtrl::IsInputMarked() const
{
    return (m_marker1 && m_marker1->IsMarked()) || (m_marker2 && m_marker2->IsMarked());
}

void CCoordinateCtrl::checkInput()
{
    if (!m_created)
        return;
    m_marker1->SetProblem(InputProblem(true, m_edit1->text()));
    m_marker2->SetProblem(InputProblem(false, m_edit2->text()));
}

void CCoordinateCtrl::onTextChanged()
{
    checkInput();
    if (!m_notify)
        return;
    m_valid = false;
    emit changed();
}

void CCoordinateCtrl::onButtonClicked()
{
    const QPointer<CCoordinateCtrl> guard(this);
    QPointer<QMenu> menu = FormatMenu();
    const QAction* chosen = menu->exec(m_button->mapToGlobal(QPoint(0, m_button->height())));
    const int command = chosen ? chosen->data().toInt() : 0;
    delete menu.data();
    if (guard && command)
        ChooseFormat(command);
}

void CCoordinateCtrl::commit()
{
    if (!m_notify || m_empty)
        return;
    const QWidget* focus = QApplication::focusWidget();
    if (focus == m_edit1 || focus == m_edit2)
        return;
    readPosition();
    showPosition();
    emit committed();
}

void CCoordinateCtrl::showPosition()
{
    if (!m_created)
        return;
    m_notify = false;
    if (isGeographic(m_format)) {
        const unsigned flags = geogsFlagsOf(m_format);
        const int decimals = Decimals(m_format);
        QString text;
        FormatGeogs(m_latitude, flags, decimals, GeogsKind::LATITUDE, text, true, true);
        m_edit1->setText(text);
        FormatGeogs(m_longitude, flags, decimals, GeogsKind::LONGITUDE, text, true, true);
        m_edit2->setText(text);
    } else if (m_format == fmt_grid) {
        m_edit1->setText(FormatDouble(m_x, Decimals(m_format), m_feetFlags));
        m_edit2->setText(FormatDouble(m_y, Decimals(m_format), m_feetFlags));
    }
    m_notify = true;
}

void CCoordinateCtrl::readPosition()
{
    if (m_valid || !m_created)
        return;
    if (isGeographic(m_format)) {
        double latitude = 0.0;
        double longitude = 0.0;
        StringToGeo(m_edit1->text(), latitude);
        StringToGeo(m_edit2->text(), longitude);
        m_latitude = latitude;
        m_longitude = longitude;
        if (const QelGeoCoordSysBase* system = coordSys())
            system->GeoToGrid(m_latitude, m_longitude, m_x, m_y);
    } else if (m_format == fmt_grid) {
        const auto parse = [this](const QString& text) {
            return m_feetFlags != 0 ? StringToValue(text) : LeadingNumber(text);
        };
        m_x = parse(m_edit1->text());
        m_y = parse(m_edit2->text());
        if (const QelGeoCoordSysBase* system = coordSys())
            system->GridToGeo(m_x, m_y, m_latitude, m_longitude);
    }
    m_valid = true;
}

bool CCoordinateCtrl::isGeographic(format_type format) const
{
    return format == fmt_seconds || format == fmt_minutes || format == fmt_degrees;
}

QFont CCoordinateCtrl::parentFont() const
{
    return parentWidget() ? parentWidget()->font() : QApplication::font();
}
