#pragma once
// The interface through which the suite converts between a project's geographic and grid
// coordinates and corrects grid distances by the projection's scale factor.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>

class QELCONFIGURE_EXPORT QelGeoCoordSysBase
{
public:
    virtual ~QelGeoCoordSysBase();

    // True when the geographic coordinates are on the satellite positioning datum (WGS 84).
    virtual bool IsSatelliteLatLon() const = 0;
    // Latitude/longitude in degrees to grid x (easting) and y (northing) in the grid's own unit;
    // false (outputs untouched) for NaN or a position the projection cannot take.
    virtual bool GeoToGrid(double latitude, double longitude, double& x, double& y) const = 0;
    // Grid x (easting) and y (northing) to latitude/longitude in degrees; false on bad input.
    virtual bool GridToGeo(double x, double y, double& latitude, double& longitude) const = 0;
    // Scale factor (grid length over true ellipsoidal length) at a grid position; 0.0 on bad input.
    virtual double GetPointScaleFactor(double x, double y) const = 0;
    // Line scale factor between two grid positions (Simpson's rule over the ends and the middle);
    // a grid distance divided by it is the true distance. 0.0 on bad input.
    virtual double GetScaleFactor(double x1, double y1, double x2, double y2) const = 0;
    // The definition text the coordinate system was made from.
    virtual QString GetDefinition() const = 0;
};
