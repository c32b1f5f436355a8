#include "QelFormatter.h"

#include "DataSearch.h"
#include "ProjectDefinition.h"

#include <QelBase/GeoText.h>
#include <QelBase/NumberUtils.h>
#include <QelBase/QelUnitCnv.h>

#include <cmath>

namespace {
constexpr int kDefaultDecimals = 2;
}

QelFormatter::QelFormatter(const ProjectDefinition* project)
    : m_project(project)
{
}

const ProjectDefinition* QelFormatter::project() const
{
    return m_project ? m_project : DataSearch::GetDataSearch().GetProjectDefinition();
}

QString QelFormatter::FormatBearing(double degrees) const
{
    if (!std::isfinite(degrees))
        return QString();
    int decimals = kDefaultDecimals;
    if (const ProjectDefinition* p = project())
        p->GetBearingDecimals(decimals);
    double bearing = std::fmod(degrees, 360.0);
    if (bearing < 0.0)
        bearing += 360.0;
    bearing = RoundToDecimals(bearing, decimals);
    if (bearing >= 360.0)
        bearing -= 360.0;
    return FormatDouble(bearing, decimals) + QStringLiteral("°");
}

QString QelFormatter::FormatDepth(double metres, bool withUnit, bool showSign) const
{
    int decimals = kDefaultDecimals;
    if (const ProjectDefinition* p = project())
        p->GetDepthDecimals(decimals);
    return formatLength(UNIT_DEPTH, decimals, metres, withUnit, showSign);
}

QString QelFormatter::FormatDistance(double metres, bool withUnit) const
{
    int decimals = kDefaultDecimals;
    if (const ProjectDefinition* p = project())
        p->GetDistanceDecimals(decimals);
    return formatLength(UNIT_DISTANCE, decimals, metres, withUnit, false);
}

QString QelFormatter::formatLength(int kind, int decimals, double metres, bool withUnit,
                                   bool showSign) const
{
    if (!std::isfinite(metres))
        return QString();
    const ProjectDefinition* p = project();
    const CQelUnitCnv defaults;
    const CQelUnitCnv& units = p ? p->GetUnitCnv() : defaults;
    const double value = units.ToExternalUnit(kind, metres);
    if (!std::isfinite(value))
        return QString();

    unsigned feetFlags = 0;
    if (p && units.GetUnitKey(kind) == QLatin1String("ft"))
        p->GetFeetsFlags(feetFlags);
    QString text = FormatDouble(value, decimals, feetFlags);
    if (showSign && value > 0.0 && RoundToDecimals(value, decimals) > 0.0)
        text.prepend(QLatin1Char('+'));
    // Feet and inches carry their own marks.
    if (withUnit && feetFlags == 0) {
        const QString mnemonic = units.GetUnitMnem(kind);
        if (!mnemonic.isEmpty())
            text += QLatin1Char(' ') + mnemonic;
    }
    return text;
}
