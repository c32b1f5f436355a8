#include "QelMfc0/dialogs/measure/MeasureSupport.h"

#include "QelMfc0/controls/DistanceCtrl.h"

#include <QelAttributes/AttributeMap.h>
#include <QelBase/DisplayScale.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelFormatter.h>

#include <QFont>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <cmath>
#include <stdexcept>

const QString MeasureSupport::kDistUnitKey = QStringLiteral("MeasureDistUnit");
const QString MeasureSupport::kCoordFormatKey = QStringLiteral("MeasureCoordFormat");
const QString MeasureSupport::kWidthKey = QStringLiteral("iWidth");
const QString MeasureSupport::kHeightKey = QStringLiteral("iHeight");

namespace {

QPoint TopLeftOf(const QWidget* parent)
{
    if (!parent)
        return {};
    return parent->isWindow() ? parent->frameGeometry().topLeft() : parent->mapToGlobal(QPoint(0, 0));
}

QelGeoCoordSysBase* ProjectCoordSys()
{
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    return project ? project->GetGeoCoordSys() : nullptr;
}

// Unit kind of the project's grid and height values.
constexpr int kSystemUnitKind = 1;

} // namespace

MeasureSupport::CarriedPoint MeasureSupport::CarryOut(const Point& point)
{
    CarriedPoint carried;
    carried.grid = point;
    carried.heightMetres = point.z;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    if (!project)
        return carried;
    carried.heightMetres = project->GetUnitCnv().ToInternalUnit(kSystemUnitKind, point.z);
    if (const QelGeoCoordSysBase* coordSys = project->GetGeoCoordSys())
        carried.geographic = coordSys->GridToGeo(point.x, point.y, carried.latitude, carried.longitude);
    return carried;
}

Point MeasureSupport::CarryIn(const CarriedPoint& carried)
{
    Point point = carried.grid;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    if (!project)
        return point;
    point.z = project->GetUnitCnv().ToExternalUnit(kSystemUnitKind, carried.heightMetres);
    const QelGeoCoordSysBase* coordSys = project->GetGeoCoordSys();
    double x = 0.0;
    double y = 0.0;
    if (carried.geographic && coordSys && coordSys->GeoToGrid(carried.latitude, carried.longitude, x, y)) {
        point.x = x;
        point.y = y;
    }
    return point;
}

MeasureSupport::MeasureSupport(QWidget* dialog, QWidget* parent, CAttributeMap* attributes,
                               const QString& section)
    : m_dialog(dialog)
    , m_attributes(attributes)
    , m_section(section)
    , m_parentCorner(TopLeftOf(parent))
{
}

bool MeasureSupport::StoredDistUnit(QString& key) const
{
    const CAttribValue* value = m_attributes ? m_attributes->FindValue(kDistUnitKey, 0) : nullptr;
    if (!value || value->GetType() == CAttribValue::Type::None)
        return false;
    key = value->GetString();
    return true;
}

int MeasureSupport::StoredCoordFormat() const
{
    const CAttribValue* value = m_attributes ? m_attributes->FindValue(kCoordFormatKey, 0) : nullptr;
    int format = -1;
    if (value && !value->TryGetInt(format))
        format = -1;
    return format;
}

CAttribValue* MeasureSupport::ValueToStore(const QString& key) const
{
    if (!m_attributes)
        return nullptr;
    CAttribValue* value = m_attributes->FindValue(key, 0);
    return value ? value : m_attributes->FindCreate(key, 0);
}

void MeasureSupport::StoreDistUnit(const QString& key) const
{
    if (CAttribValue* value = ValueToStore(kDistUnitKey))
        value->SetString(key);
}

void MeasureSupport::StoreCoordFormat(int format) const
{
    if (CAttribValue* value = ValueToStore(kCoordFormatKey))
        value->SetInt(format);
}

void MeasureSupport::SetPrsConfiguration(FileObject* file)
{
    m_file = file;
    if (!m_file || !m_dialog)
        return;
    int width = 0;
    int height = 0;
    if (!m_file->GetInt(m_section, kWidthKey, width))
        width = 0;
    if (!m_file->GetInt(m_section, kHeightKey, height))
        height = 0;
    // A square size (0 x 0 included) is never restored.
    if (width != height)
        m_dialog->resize(DpiCor(width), DpiCor(height));
}

void MeasureSupport::SaveSize() const
{
    if (!m_file || !m_dialog)
        return;
    m_file->SetInt(m_section, kWidthKey, DpiRevCor(m_dialog->width()));
    m_file->SetInt(m_section, kHeightKey, DpiRevCor(m_dialog->height()));
}

void MeasureSupport::MoveToParentCorner() const
{
    if (m_dialog)
        m_dialog->move(m_parentCorner);
}

bool MeasureSupport::IsClosingKey(const QKeyEvent* event)
{
    if (!event)
        return false;
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Escape:
        return true;
    default:
        return false;
    }
}

QFont MeasureSupport::ScaledFont(int pointSize)
{
    return QFont(QStringLiteral("Arial"), pointSize);
}

void MeasureSupport::ReserveTextMargins(QWidget* widget)
{
    if (!widget)
        return;
    widget->setProperty(kTextMarginsProperty, true);
    const int margin = widget->height() / 5;
    const QMargins margins(0, margin, 0, margin);
    if (widget->contentsMargins() != margins)
        widget->setContentsMargins(margins);
}

QString MeasureSupport::FormatSignedAngle(double degrees)
{
    if (!std::isfinite(degrees))
        return QString();
    const QelFormatter formatter;
    const QString magnitude = formatter.FormatBearing(std::fabs(degrees));
    // A value that rounds to zero carries no sign.
    if (degrees >= 0.0 || formatter.FormatBearing(0.0) == magnitude)
        return magnitude;
    return QLatin1Char('-') + magnitude;
}

double MeasureSupport::LineScaleFactor(double x1, double y1, double x2, double y2)
{
    const QelGeoCoordSysBase* coordSys = ProjectCoordSys();
    if (!coordSys)
        return 1.0;
    const double k = coordSys->GetScaleFactor(x1, y1, x2, y2);
    return std::isfinite(k) && k > 0.0 ? k : 1.0;
}

void MeasureSupport::ShowDistance(DistanceCtrl* control, double value, bool convert)
{
    if (!control)
        return;
    try {
        control->SetDistance(value, convert);
    } catch (const std::invalid_argument&) {
        control->SetDistance(value, false);
    }
}

QString MeasureSupport::IdName(int id)
{
    return QString::number(id);
}

QLabel* MeasureSupport::MakeLabel(QWidget* dialog, int id, const QString& text)
{
    auto* label = new QLabel(text, dialog);
    label->setObjectName(IdName(id));
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

QLineEdit* MeasureSupport::MakeField(QWidget* dialog, int id)
{
    auto* field = new QLineEdit(dialog);
    field->setObjectName(IdName(id));
    field->setReadOnly(true);
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return field;
}

QLabel* MeasureSupport::MakePlaceholder(QWidget* dialog, int id, const QString& text)
{
    auto* placeholder = new QLabel(text, dialog);
    placeholder->setObjectName(IdName(id));
    placeholder->setProperty("id", id);
    placeholder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return placeholder;
}
