#pragma once
// Texts of bearings, depths and distances in a project's units and decimals.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>

class ProjectDefinition;
class CQelUnitCnv;

class QELCONFIGURE_EXPORT QelFormatter
{
public:
    // Formats for `project`; null: the project open in DataSearch at each call, or the
    // defaults (metres, 2 decimals) when none is open.
    explicit QelFormatter(const ProjectDefinition* project = nullptr);

    // A bearing in degrees with the bearing decimals and "°", in [0, 360) after rounding
    // (359.999 at 2 decimals is "0.00°", -90 is "270.00°"). Empty for NaN or infinity.
    QString FormatBearing(double degrees) const;
    // A depth given in metres in the project's depth unit with the depth decimals; withUnit
    // appends a blank and the unit's abbreviation, showSign puts '+' before positive values.
    // Feet flags of the project apply when the depth unit is "ft". Empty for NaN or infinity.
    QString FormatDepth(double metres, bool withUnit = true, bool showSign = false) const;
    // A distance given in metres in the project's distance unit with the distance decimals.
    QString FormatDistance(double metres, bool withUnit = true) const;

private:
    const ProjectDefinition* project() const;
    QString formatLength(int kind, int decimals, double metres, bool withUnit,
                         bool showSign) const;

    const ProjectDefinition* m_project;
};
