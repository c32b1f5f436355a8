#include "QelGeoCoordSys.h"

#include <QCoreApplication>
#include <proj.h>

#include <cmath>
#include <mutex>
#include <numbers>

namespace {

constexpr double kDegToRad = std::numbers::pi / 180.0;
// Half step of the numerical derivatives, in degrees (about 1 m on the ground): small enough for
// a truncation error far below 1e-9, large enough that PROJ's rounding stays below 1e-9 too.
constexpr double kStepDeg = 1e-5;
// Round-trip tolerances that tell a real conversion from a projection used outside its domain.
constexpr double kGeoTolDeg = 1e-6;
constexpr double kGridTolAbs = 1e-3;

struct PjDeleter
{
    void operator()(PJ* pj) const { proj_destroy(pj); }
};
using PjPtr = std::unique_ptr<PJ, PjDeleter>;

bool IsFinite(const PJ_COORD& c)
{
    return std::isfinite(c.xy.x) && std::isfinite(c.xy.y) && std::abs(c.xy.x) < 1e30
        && std::abs(c.xy.y) < 1e30;
}

QString ContextError(PJ_CONTEXT* ctx, const QString& fallback)
{
    const int err = proj_context_errno(ctx);
    if (err == 0)
        return fallback;
    const char* text = proj_context_errno_string(ctx, err);
    return text ? fallback + QStringLiteral(": ") + QString::fromUtf8(text) : fallback;
}

bool NameIsWgs84(const char* name)
{
    if (!name)
        return false;
    QString n = QString::fromUtf8(name).toUpper();
    n.remove(QLatin1Char(' ')).remove(QLatin1Char('_'));
    return n.startsWith(QLatin1String("WORLDGEODETICSYSTEM1984")) || n == QLatin1String("WGS84")
        || n == QLatin1String("DWGS1984") || n == QLatin1String("WGS1984");
}

// Radians per unit of the first axis of a CRS's coordinate system (metres per unit for linear
// axes); 0 when it cannot be read.
double AxisUnitFactor(PJ_CONTEXT* ctx, const PJ* crs)
{
    PjPtr cs(proj_crs_get_coordinate_system(ctx, crs));
    if (!cs || proj_cs_get_axis_count(ctx, cs.get()) < 2)
        return 0.0;
    double factor = 0.0;
    if (!proj_cs_get_axis_info(ctx, cs.get(), 0, nullptr, nullptr, nullptr, &factor, nullptr,
                               nullptr, nullptr))
        return 0.0;
    return factor;
}

} // namespace

struct QelGeoCoordSys::Impl
{
    PJ_CONTEXT* ctx = nullptr;
    PJ* transform = nullptr; // base geographic CRS -> projected CRS, (lon, lat) -> (east, north)
    QString definition;
    QString name;
    double a = 0.0;           // semi-major axis, metres
    double e2 = 0.0;          // first eccentricity squared
    double linearFactor = 1.0; // metres per grid unit
    double angularScale = 1.0; // base CRS angular units per degree
    bool satellite = false;
    mutable std::mutex mutex;

    ~Impl()
    {
        if (transform)
            proj_destroy(transform);
        if (ctx)
            proj_context_destroy(ctx);
    }

    bool Forward(double lat, double lon, double& x, double& y) const
    {
        proj_errno_reset(transform);
        const PJ_COORD r = proj_trans(transform, PJ_FWD,
                                      proj_coord(lon * angularScale, lat * angularScale, 0.0, 0.0));
        if (proj_errno(transform) != 0 || !IsFinite(r))
            return false;
        x = r.xy.x;
        y = r.xy.y;
        return true;
    }

    bool Inverse(double x, double y, double& lat, double& lon) const
    {
        proj_errno_reset(transform);
        const PJ_COORD r = proj_trans(transform, PJ_INV, proj_coord(x, y, 0.0, 0.0));
        if (proj_errno(transform) != 0 || !IsFinite(r))
            return false;
        lon = r.xy.x / angularScale;
        lat = r.xy.y / angularScale;
        return std::abs(lat) <= 90.0 + 1e-9;
    }

    static bool SameGeo(double lat1, double lon1, double lat2, double lon2)
    {
        const double dLon = std::remainder(lon1 - lon2, 360.0) * std::cos(lat1 * kDegToRad);
        return std::abs(lat1 - lat2) <= kGeoTolDeg && std::abs(dLon) <= kGeoTolDeg;
    }

    static bool SameGrid(double v1, double v2)
    {
        return std::abs(v1 - v2) <= kGridTolAbs + 1e-9 * std::abs(v1);
    }

    bool GeoToGrid(double lat, double lon, double& x, double& y) const
    {
        if (!std::isfinite(lat) || !std::isfinite(lon) || std::abs(lat) > 90.0)
            return false;
        double gx = 0.0, gy = 0.0, backLat = 0.0, backLon = 0.0;
        if (!Forward(lat, lon, gx, gy) || !Inverse(gx, gy, backLat, backLon)
            || !SameGeo(lat, lon, backLat, backLon))
            return false;
        x = gx;
        y = gy;
        return true;
    }

    bool GridToGeo(double x, double y, double& lat, double& lon) const
    {
        if (!std::isfinite(x) || !std::isfinite(y))
            return false;
        double gLat = 0.0, gLon = 0.0, backX = 0.0, backY = 0.0;
        if (!Inverse(x, y, gLat, gLon) || !Forward(gLat, gLon, backX, backY)
            || !SameGrid(x, backX) || !SameGrid(y, backY))
            return false;
        lat = gLat;
        lon = gLon;
        return true;
    }

    // Grid length in metres between the projections of two geographic positions.
    bool GridMetres(double lat1, double lon1, double lat2, double lon2, double& metres) const
    {
        double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
        if (!Forward(lat1, lon1, x1, y1) || !Forward(lat2, lon2, x2, y2))
            return false;
        metres = std::hypot(x2 - x1, y2 - y1) * linearFactor;
        return true;
    }

    double PointScale(double x, double y) const
    {
        double lat = 0.0, lon = 0.0;
        if (!GridToGeo(x, y, lat, lon))
            return 0.0;
        const double sinLat = std::sin(lat * kDegToRad);
        const double cosLat = std::cos(lat * kDegToRad);
        const double w2 = 1.0 - e2 * sinLat * sinLat;
        double grid = 0.0;
        if (cosLat > 1e-6) {
            // Along the parallel: true length N cos(phi) dlambda.
            const double n = a / std::sqrt(w2);
            if (!GridMetres(lat, lon - kStepDeg, lat, lon + kStepDeg, grid))
                return 0.0;
            return grid / (n * cosLat * 2.0 * kStepDeg * kDegToRad);
        }
        // At a pole the parallel shrinks to a point: take the meridian scale, M dphi.
        const double m = a * (1.0 - e2) / (w2 * std::sqrt(w2));
        const double lat1 = std::max(-90.0, lat - kStepDeg);
        const double lat2 = std::min(90.0, lat + kStepDeg);
        if (!GridMetres(lat1, lon, lat2, lon, grid))
            return 0.0;
        return grid / (m * (lat2 - lat1) * kDegToRad);
    }
};

QelGeoCoordSys::QelGeoCoordSys(std::unique_ptr<Impl> impl)
    : d(std::move(impl))
{
}

QelGeoCoordSys::~QelGeoCoordSys() = default;

std::unique_ptr<QelGeoCoordSys> QelGeoCoordSys::Create(const QString& definition, QString* error)
{
    auto fail = [error](const QString& why) {
        if (error)
            *error = why;
        return std::unique_ptr<QelGeoCoordSys>();
    };
    const QString text = definition.trimmed();
    if (text.isEmpty())
        return fail(QCoreApplication::translate("QelGeoCoordSys", "Empty coordinate system definition"));

    auto impl = std::make_unique<Impl>();
    impl->definition = definition;
    impl->ctx = proj_context_create();
    if (!impl->ctx)
        return fail(QCoreApplication::translate("QelGeoCoordSys", "Cannot create a PROJ context"));
    PJ_CONTEXT* ctx = impl->ctx;
    proj_log_level(ctx, PJ_LOG_NONE);

    QByteArray utf8 = text.toUtf8();
    if (utf8.startsWith('+') && !utf8.contains("type=crs"))
        utf8 += " +type=crs";
    PjPtr crs(proj_create(ctx, utf8.constData()));
    if (!crs)
        return fail(ContextError(ctx, QCoreApplication::translate("QelGeoCoordSys", "Unknown coordinate system \"%1\"").arg(text)));

    // A CRS with attached datum shifts or a vertical part: use its horizontal projected CRS.
    if (proj_get_type(crs.get()) == PJ_TYPE_BOUND_CRS)
        crs.reset(proj_get_source_crs(ctx, crs.get()));
    if (crs && proj_get_type(crs.get()) == PJ_TYPE_COMPOUND_CRS)
        crs.reset(proj_crs_get_sub_crs(ctx, crs.get(), 0));
    if (crs && proj_get_type(crs.get()) == PJ_TYPE_BOUND_CRS)
        crs.reset(proj_get_source_crs(ctx, crs.get()));
    if (!crs || proj_get_type(crs.get()) != PJ_TYPE_PROJECTED_CRS)
        return fail(QCoreApplication::translate("QelGeoCoordSys", "\"%1\" is not a projected coordinate system").arg(text));
    if (const char* name = proj_get_name(crs.get()))
        impl->name = QString::fromUtf8(name);

    PjPtr base(proj_crs_get_geodetic_crs(ctx, crs.get()));
    PjPtr ellipsoid(base ? proj_get_ellipsoid(ctx, base.get()) : nullptr);
    double a = 0.0, b = 0.0, rf = 0.0;
    int rfComputed = 0;
    if (!ellipsoid
        || !proj_ellipsoid_get_parameters(ctx, ellipsoid.get(), &a, &b, &rfComputed, &rf)
        || !(a > 0.0))
        return fail(QCoreApplication::translate("QelGeoCoordSys", "\"%1\" has no usable ellipsoid").arg(text));
    impl->a = a;
    if (rf > 0.0) {
        const double f = 1.0 / rf;
        impl->e2 = f * (2.0 - f);
    } else {
        impl->e2 = 0.0; // sphere
    }

    impl->linearFactor = AxisUnitFactor(ctx, crs.get());
    const double radPerUnit = AxisUnitFactor(ctx, base.get());
    if (!(impl->linearFactor > 0.0) || !(radPerUnit > 0.0))
        return fail(QCoreApplication::translate("QelGeoCoordSys", "\"%1\" has unreadable axis units").arg(text));
    impl->angularScale = kDegToRad / radPerUnit;
    if (std::abs(impl->angularScale - 1.0) < 1e-12)
        impl->angularScale = 1.0;

    PjPtr datum(proj_crs_get_datum(ctx, base.get()));
    PjPtr ensemble(proj_crs_get_datum_ensemble(ctx, base.get()));
    impl->satellite = (datum && NameIsWgs84(proj_get_name(datum.get())))
        || (ensemble && NameIsWgs84(proj_get_name(ensemble.get())));

    PjPtr op(proj_create_crs_to_crs_from_pj(ctx, base.get(), crs.get(), nullptr, nullptr));
    if (!op)
        return fail(ContextError(ctx, QCoreApplication::translate("QelGeoCoordSys", "No conversion for \"%1\"").arg(text)));
    impl->transform = proj_normalize_for_visualization(ctx, op.get());
    if (!impl->transform)
        return fail(ContextError(ctx, QCoreApplication::translate("QelGeoCoordSys", "No conversion for \"%1\"").arg(text)));

    if (error)
        error->clear();
    return std::unique_ptr<QelGeoCoordSys>(new QelGeoCoordSys(std::move(impl)));
}

bool QelGeoCoordSys::IsSatelliteLatLon() const
{
    return d->satellite;
}

bool QelGeoCoordSys::GeoToGrid(double latitude, double longitude, double& x, double& y) const
{
    std::lock_guard lock(d->mutex);
    return d->GeoToGrid(latitude, longitude, x, y);
}

bool QelGeoCoordSys::GridToGeo(double x, double y, double& latitude, double& longitude) const
{
    std::lock_guard lock(d->mutex);
    return d->GridToGeo(x, y, latitude, longitude);
}

double QelGeoCoordSys::GetPointScaleFactor(double x, double y) const
{
    std::lock_guard lock(d->mutex);
    return d->PointScale(x, y);
}

double QelGeoCoordSys::GetScaleFactor(double x1, double y1, double x2, double y2) const
{
    std::lock_guard lock(d->mutex);
    const double k1 = d->PointScale(x1, y1);
    const double k2 = d->PointScale(x2, y2);
    const double km = d->PointScale(0.5 * (x1 + x2), 0.5 * (y1 + y2));
    if (k1 <= 0.0 || k2 <= 0.0 || km <= 0.0)
        return 0.0;
    return (k1 + 4.0 * km + k2) / 6.0;
}

QString QelGeoCoordSys::GetDefinition() const
{
    return d->definition;
}

QString QelGeoCoordSys::GetName() const
{
    return d->name;
}

double QelGeoCoordSys::GetLinearUnitFactor() const
{
    return d->linearFactor;
}
