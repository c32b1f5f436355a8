#pragma once
// A projected coordinate reference system over PROJ: geographic <-> grid conversion and
// scale factors. Latitude/longitude are in the CRS's own geographic base CRS, in degrees;
// grid coordinates are (easting, northing) in the CRS's own linear unit, whatever the axis
// order of the CRS. Every operation is thread-safe (one PROJ context per object, locked).

#include "QelConfigure/QelConfigureExport.h"
#include <QelConfigure/QelGeoCoordSysBase.h>

#include <memory>

class QELCONFIGURE_EXPORT QelGeoCoordSys : public QelGeoCoordSysBase
{
public:
    // Makes a coordinate system from any PROJ definition of a projected CRS ("EPSG:32631",
    // WKT, PROJJSON, or a PROJ string; "+type=crs" is added to a PROJ string lacking it).
    // Null with a reason in *error for an unknown definition or a CRS that is not projected.
    static std::unique_ptr<QelGeoCoordSys> Create(const QString& definition, QString* error = nullptr);
    ~QelGeoCoordSys() override;

    QelGeoCoordSys(const QelGeoCoordSys&) = delete;
    QelGeoCoordSys& operator=(const QelGeoCoordSys&) = delete;

    // True when the geodetic datum of the base CRS is WGS 84 (any realization or the ensemble).
    bool IsSatelliteLatLon() const override;
    // Degrees to (easting, northing); false for NaN, |latitude| > 90 or outside the projection.
    bool GeoToGrid(double latitude, double longitude, double& x, double& y) const override;
    // (easting, northing) to degrees; false for NaN or a position outside the projection.
    bool GridToGeo(double x, double y, double& latitude, double& longitude) const override;
    // Point scale factor: the scale along the parallel, from numerical derivatives of the forward
    // projection and the ellipsoid's prime-vertical radius (equal to the meridian scale for the
    // conformal projections used in surveying). 0.0 on bad input.
    double GetPointScaleFactor(double x, double y) const override;
    // (k1 + 4 kmid + k2) / 6 over the two ends and the middle of the line; 0.0 on bad input.
    double GetScaleFactor(double x1, double y1, double x2, double y2) const override;
    QString GetDefinition() const override;

    // Name of the CRS as PROJ reports it (e.g. "WGS 84 / UTM zone 31N").
    QString GetName() const;
    // Metres per grid unit (1 for metres, 0.3048 for international feet).
    double GetLinearUnitFactor() const;

private:
    struct Impl;
    explicit QelGeoCoordSys(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> d;
};
