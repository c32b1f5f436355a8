#include <QelConfigure/QelGeoCoordSys.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <thread>
#include <vector>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kRad = std::numbers::pi / 180.0;

// WGS 84 / GRS 80 ellipsoid values for the independent reference formulas below.
constexpr double kA = 6378137.0;
constexpr double kF = 1.0 / 298.257223563;
constexpr double kE2 = kF * (2.0 - kF);
constexpr double kEp2 = kE2 / (1.0 - kE2);

// Transverse Mercator point scale as the classic series gives it (k0 times the bracket),
// with A = dLambda cos(phi), T = tan^2(phi), C = e'^2 cos^2(phi).
double TmSeriesScale(double k0, double latDeg, double dLonDeg)
{
    const double phi = latDeg * kRad;
    const double a = dLonDeg * kRad * std::cos(phi);
    const double t = std::tan(phi) * std::tan(phi);
    const double c = kEp2 * std::cos(phi) * std::cos(phi);
    return k0
        * (1.0 + (1.0 + c) * a * a / 2.0
           + (5.0 - 4.0 * t + 42.0 * c + 13.0 * c * c - 28.0 * kEp2) * std::pow(a, 4) / 24.0
           + (61.0 - 148.0 * t + 16.0 * t * t) * std::pow(a, 6) / 720.0);
}

std::unique_ptr<QelGeoCoordSys> Make(const char* definition)
{
    QString error;
    auto cs = QelGeoCoordSys::Create(QString::fromLatin1(definition), &error);
    EXPECT_TRUE(cs) << definition << ": " << error.toStdString();
    return cs;
}

} // namespace

TEST(QelGeoCoordSys, KnownGridCoordinatesAndRoundTrips)
{
    struct Case { const char* crs; double lat, lon, x, y, tolX, tolY; };
    const Case cases[] = {
        {"EPSG:32631", 0.0, 3.0, 500000.0, 0.0, 1e-6, 1e-6},
        {"EPSG:32631", 52.0, 3.0, 500000.0, 5761038.212, 1e-3, 1e-3},
        // Northing-first axis order still gives easting as x.
        {"EPSG:31467", 50.0, 9.0, 3500000.0, 5540279.542, 1e-3, 1e-2},
        // Arizona East: false easting 213360 m = 700000 international feet on the central meridian.
        {"EPSG:2222", 33.0, -(110.0 + 10.0 / 60.0), 700000.0, kNaN, 1e-3, 0},
        // Amersfoort / RD New + NAP height: the horizontal part is used.
        {"EPSG:7415", 52.15616055555555, 5.38763888888889, 155000.0, 463000.0, 1e-2, 1e-2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.crs);
        auto cs = Make(c.crs);
        ASSERT_TRUE(cs);
        double x = 0.0, y = 0.0, lat = 0.0, lon = 0.0;
        ASSERT_TRUE(cs->GeoToGrid(c.lat, c.lon, x, y));
        EXPECT_TRUE(std::isnan(c.x) || std::abs(x - c.x) <= c.tolX) << x;
        EXPECT_TRUE(std::isnan(c.y) || std::abs(y - c.y) <= c.tolY) << y;
        ASSERT_TRUE(cs->GridToGeo(x, y, lat, lon));
        EXPECT_NEAR(lat, c.lat, 1e-9);
        EXPECT_NEAR(lon, c.lon, 1e-9);
    }
}

TEST(QelGeoCoordSys, UtmScaleFactorFollowsTransverseMercatorSeries)
{
    auto utm = Make("EPSG:32631");
    ASSERT_TRUE(utm);
    struct Case { double lat, lon; };
    const Case cases[] = {{75.0, 3.0}, {52.0, 5.0}, {-20.0, 4.5}};
    for (const Case& c : cases) {
        double x = 0.0, y = 0.0;
        ASSERT_TRUE(utm->GeoToGrid(c.lat, c.lon, x, y));
        const double expected = TmSeriesScale(0.9996, c.lat, c.lon - 3.0);
        EXPECT_NEAR(utm->GetPointScaleFactor(x, y), expected, 1e-7) << c.lat << " " << c.lon;
    }
}

TEST(QelGeoCoordSys, FeetAndNorthingFirstCrsScaleOnTheirCentralMeridians)
{
    struct Case { const char* crs; double lat, lon, k0; bool satellite; double unit; };
    const Case cases[] = {
        {"EPSG:2222", 33.0, -(110.0 + 10.0 / 60.0), 0.9999, false, 0.3048},
        {"EPSG:31467", 50.0, 9.0, 1.0, false, 1.0},
        {"EPSG:25831", 45.0, 3.0, 0.9996, false, 1.0}, // ETRS89 is not the satellite datum
        {"+proj=utm +zone=31 +datum=WGS84 +units=m", 45.0, 3.0, 0.9996, true, 1.0},
    };
    for (const Case& c : cases) {
        auto cs = Make(c.crs);
        ASSERT_TRUE(cs);
        double x = 0.0, y = 0.0;
        ASSERT_TRUE(cs->GeoToGrid(c.lat, c.lon, x, y)) << c.crs;
        EXPECT_NEAR(cs->GetPointScaleFactor(x, y), c.k0, 1e-7) << c.crs;
        EXPECT_EQ(cs->IsSatelliteLatLon(), c.satellite) << c.crs;
        EXPECT_NEAR(cs->GetLinearUnitFactor(), c.unit, 1e-12) << c.crs;
    }
}

TEST(QelGeoCoordSys, LineScaleFactorCorrectsGridDistance)
{
    auto utm = Make("EPSG:32631");
    ASSERT_TRUE(utm);
    double x = 0.0, y = 0.0;
    ASSERT_TRUE(utm->GeoToGrid(52.0, 3.0, x, y));

    // A zero-length line scales like its point.
    EXPECT_DOUBLE_EQ(utm->GetScaleFactor(x, y, x, y), utm->GetPointScaleFactor(x, y));

    // East-west line across the central meridian: the surveyor's line formula
    // k0 (1 + (e1^2 + e1 e2 + e2^2) / (6 R^2)) with e measured from the meridian, R = sqrt(M N).
    const double s = std::sin(52.0 * kRad);
    const double w2 = 1.0 - kE2 * s * s;
    const double r2 = (kA * (1.0 - kE2) / (w2 * std::sqrt(w2))) * (kA / std::sqrt(w2));
    const double e1 = -100000.0 / 0.9996, e2 = 60000.0 / 0.9996;
    const double expected = 0.9996 * (1.0 + (e1 * e1 + e1 * e2 + e2 * e2) / (6.0 * r2));
    EXPECT_NEAR(utm->GetScaleFactor(x - 100000.0, y, x + 60000.0, y), expected, 1e-6);
}

TEST(QelGeoCoordSys, RejectsUnusableDefinitions)
{
    const char* bad[] = {"", "EPSG:999999", "nonsense", "EPSG:4326", "EPSG:4978", "EPSG:5709"};
    for (const char* definition : bad) {
        QString error;
        EXPECT_FALSE(QelGeoCoordSys::Create(QString::fromLatin1(definition), &error)) << definition;
        EXPECT_FALSE(error.isEmpty()) << definition;
    }
}

TEST(QelGeoCoordSys, BadInputNeverConverts)
{
    auto utm = Make("EPSG:32631");
    ASSERT_TRUE(utm);
    double x = 7.0, y = 8.0;
    EXPECT_FALSE(utm->GeoToGrid(kNaN, 3.0, x, y));
    EXPECT_FALSE(utm->GeoToGrid(91.0, 3.0, x, y));
    EXPECT_FALSE(utm->GridToGeo(500000.0, 1e12, x, y));
    EXPECT_EQ(std::pair(x, y), std::pair(7.0, 8.0));

    EXPECT_EQ(utm->GetPointScaleFactor(kNaN, 0.0), 0.0);
    EXPECT_EQ(utm->GetScaleFactor(500000.0, 0.0, kNaN, 0.0), 0.0);
}

TEST(QelGeoCoordSys, ConcurrentUseGivesTheSameResults)
{
    auto utm = Make("EPSG:32631");
    ASSERT_TRUE(utm);
    double refX = 0.0, refY = 0.0;
    ASSERT_TRUE(utm->GeoToGrid(53.25, 2.5, refX, refY));
    const double refK = utm->GetPointScaleFactor(refX, refY);

    std::vector<int> mismatches(4, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 200; ++i) {
                double x = 0.0, y = 0.0;
                if (!utm->GeoToGrid(53.25, 2.5, x, y) || x != refX || y != refY
                    || utm->GetPointScaleFactor(x, y) != refK)
                    ++mismatches[t];
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    for (int m : mismatches)
        EXPECT_EQ(m, 0);
}
