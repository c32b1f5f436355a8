#include "QelUnitCnv.h"

#include "FileObject.h"
#include "NumberText.h"

#include <cmath>
#include <numbers>

namespace {

using UnitList = QList<UnitInfo>;

UnitInfo unit(const char* key, const char* name, const QString& mnemonic, double factor,
              double offset = 0.0)
{
    return UnitInfo{QString::fromLatin1(key), QString::fromLatin1(name), mnemonic, factor, offset};
}

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

constexpr double kFoot = 0.3048;
constexpr double kUsFoot = 1200.0 / 3937.0;
constexpr double kYard = 0.9144;
constexpr double kInch = 0.0254;
constexpr double kMile = 1609.344;
constexpr double kNauticalMile = 1852.0;
constexpr double kPound = 0.45359237;
constexpr double kGravity = 9.80665;
constexpr double kGallonUS = 0.003785411784;
constexpr double kGallonUK = 0.00454609;
constexpr double kRadian = 180.0 / std::numbers::pi;

// The first unit of each list is the kind's default.
UnitList lengths(const char* first)
{
    UnitList all{
        unit("m", "Metre", latin("m"), 1.0),
        unit("km", "Kilometre", latin("km"), 1000.0),
        unit("cm", "Centimetre", latin("cm"), 0.01),
        unit("mm", "Millimetre", latin("mm"), 0.001),
        unit("ft", "International foot", latin("ft"), kFoot),
        unit("ftUS", "US survey foot", latin("ftUS"), kUsFoot),
        unit("in", "Inch", latin("in"), kInch),
        unit("yd", "Yard", latin("yd"), kYard),
        unit("fathom", "Fathom", latin("fm"), 1.8288),
        unit("NM", "Nautical mile", latin("NM"), kNauticalMile),
        unit("mi", "Statute mile", latin("mi"), kMile),
    };
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (all[i].key == QLatin1String(first))
            all.move(i, 0);
    }
    return all;
}

UnitList speeds(const char* first)
{
    UnitList all{
        unit("m/sec", "Metres per second", latin("m/sec"), 1.0),
        unit("km/h", "Kilometres per hour", latin("km/h"), 1000.0 / 3600.0),
        unit("kn", "Knot", latin("kn"), kNauticalMile / 3600.0),
        unit("mi/h", "Miles per hour", latin("mph"), kMile / 3600.0),
        unit("ft/sec", "Feet per second", latin("ft/sec"), kFoot),
    };
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (all[i].key == QLatin1String(first))
            all.move(i, 0);
    }
    return all;
}

UnitList volumes()
{
    return {
        unit("m3", "Cubic metre", QStringLiteral("m³"), 1.0),
        unit("l", "Litre", latin("l"), 0.001),
        unit("ft3", "Cubic foot", QStringLiteral("ft³"), kFoot * kFoot * kFoot),
        unit("yd3", "Cubic yard", QStringLiteral("yd³"), kYard * kYard * kYard),
        unit("galUS", "US gallon", latin("gal"), kGallonUS),
        unit("galUK", "Imperial gallon", latin("gal UK"), kGallonUK),
        unit("bbl", "Barrel", latin("bbl"), 42.0 * kGallonUS),
    };
}

UnitList angles()
{
    return {
        unit("deg", "Degree", QStringLiteral("°"), 1.0),
        unit("rad", "Radian", latin("rad"), kRadian),
        unit("gon", "Gon", latin("gon"), 0.9),
        unit("mil", "Mil (6400 per circle)", latin("mil"), 360.0 / 6400.0),
    };
}

QList<UnitList> buildCatalogue()
{
    QList<UnitList> c(kUnitKindCount);
    c[UNIT_NONE] = {unit("none", "No unit", QString(), 1.0)};
    c[UNIT_SYSTEM] = lengths("m");
    c[UNIT_SPEED] = speeds("m/sec");
    c[UNIT_DISTANCE] = lengths("m");
    c[UNIT_DEPTH] = lengths("m");
    c[UNIT_VOLUME] = volumes();
    c[UNIT_DENSITY] = {
        unit("t/m3", "Tonnes per cubic metre", QStringLiteral("t/m³"), 1000.0),
        unit("kg/m3", "Kilograms per cubic metre", QStringLiteral("kg/m³"), 1.0),
        unit("g/cm3", "Grams per cubic centimetre", QStringLiteral("g/cm³"), 1000.0),
        unit("kg/l", "Kilograms per litre", latin("kg/l"), 1000.0),
        unit("lb/ft3", "Pounds per cubic foot", QStringLiteral("lb/ft³"),
             kPound / (kFoot * kFoot * kFoot)),
        unit("lb/galUS", "Pounds per US gallon", latin("lb/gal"), kPound / kGallonUS),
    };
    c[UNIT_VELOCITY] = speeds("m/sec");
    c[UNIT_PRODUCTION] = {
        unit("m3/h", "Cubic metres per hour", QStringLiteral("m³/h"), 1.0 / 3600.0),
        unit("m3/min", "Cubic metres per minute", QStringLiteral("m³/min"), 1.0 / 60.0),
        unit("m3/s", "Cubic metres per second", QStringLiteral("m³/s"), 1.0),
        unit("yd3/h", "Cubic yards per hour", QStringLiteral("yd³/h"),
             kYard * kYard * kYard / 3600.0),
    };
    c[UNIT_HEIGHT] = lengths("m");
    c[UNIT_PRESSURE] = {
        unit("bar", "Bar", latin("bar"), 1e5),
        unit("mbar", "Millibar", latin("mbar"), 100.0),
        unit("Pa", "Pascal", latin("Pa"), 1.0),
        unit("kPa", "Kilopascal", latin("kPa"), 1e3),
        unit("MPa", "Megapascal", latin("MPa"), 1e6),
        unit("psi", "Pound-force per square inch", latin("psi"), kPound * kGravity / (kInch * kInch)),
        unit("atm", "Standard atmosphere", latin("atm"), 101325.0),
        unit("kgf/cm2", "Kilogram-force per square centimetre", QStringLiteral("kgf/cm²"),
             kGravity * 1e4),
    };
    c[UNIT_POWER] = {
        unit("kW", "Kilowatt", latin("kW"), 1e3),
        unit("W", "Watt", latin("W"), 1.0),
        unit("MW", "Megawatt", latin("MW"), 1e6),
        unit("hp", "Horsepower (mechanical)", latin("hp"), 550.0 * kFoot * kPound * kGravity),
        unit("PS", "Metric horsepower", latin("PS"), 75.0 * kGravity),
    };
    c[UNIT_REVOLUTIONS] = {
        unit("rpm", "Revolutions per minute", latin("rpm"), 1.0),
        unit("rps", "Revolutions per second", latin("rev/s"), 60.0),
    };
    c[UNIT_WEIGHT] = {
        unit("T", "Tonne", latin("T"), 1000.0),
        unit("kg", "Kilogram", latin("kg"), 1.0),
        unit("lb", "Pound", latin("lb"), kPound),
        unit("LT", "Long ton", latin("LT"), 2240.0 * kPound),
        unit("ST", "Short ton", latin("ST"), 2000.0 * kPound),
    };
    c[UNIT_PITCH] = angles();
    c[UNIT_ROLL] = angles();
    c[UNIT_ACCELERATION] = {
        unit("m/s2", "Metres per second squared", QStringLiteral("m/s²"), 1.0),
        unit("g", "Standard gravity", latin("g"), kGravity),
        unit("ft/s2", "Feet per second squared", QStringLiteral("ft/s²"), kFoot),
        unit("Gal", "Gal", latin("Gal"), 0.01),
        unit("mGal", "Milligal", latin("mGal"), 1e-5),
    };
    c[UNIT_ANGULAR_RATE] = {
        unit("deg/min", "Degrees per minute", QStringLiteral("°/min"), 1.0 / 60.0),
        unit("deg/s", "Degrees per second", QStringLiteral("°/s"), 1.0),
        unit("rad/s", "Radians per second", latin("rad/s"), kRadian),
    };
    c[UNIT_DELIVERY] = {
        unit("t/h", "Tonnes per hour", latin("t/h"), 1000.0 / 3600.0),
        unit("kg/s", "Kilograms per second", latin("kg/s"), 1.0),
        unit("kg/h", "Kilograms per hour", latin("kg/h"), 1.0 / 3600.0),
        unit("t/min", "Tonnes per minute", latin("t/min"), 1000.0 / 60.0),
    };
    c[UNIT_ANGULAR] = angles();
    c[UNIT_AREA] = {
        unit("m2", "Square metre", QStringLiteral("m²"), 1.0),
        unit("km2", "Square kilometre", QStringLiteral("km²"), 1e6),
        unit("ha", "Hectare", latin("ha"), 1e4),
        unit("ft2", "Square foot", QStringLiteral("ft²"), kFoot * kFoot),
        unit("ftUS2", "Square US survey foot", QStringLiteral("ftUS²"), kUsFoot * kUsFoot),
        unit("yd2", "Square yard", QStringLiteral("yd²"), kYard * kYard),
        unit("acre", "Acre", latin("acre"), 4046.8564224),
        unit("NM2", "Square nautical mile", QStringLiteral("NM²"), kNauticalMile * kNauticalMile),
    };
    c[UNIT_TEMPERATURE] = {
        unit("degC", "Degree Celsius", QStringLiteral("°C"), 1.0),
        unit("degF", "Degree Fahrenheit", QStringLiteral("°F"), 5.0 / 9.0, -160.0 / 9.0),
        unit("K", "Kelvin", latin("K"), 1.0, -273.15),
    };
    c[UNIT_PAPER] = {
        unit("mm", "Millimetre", latin("mm"), 0.001),
        unit("cm", "Centimetre", latin("cm"), 0.01),
        unit("in", "Inch", latin("in"), kInch),
    };
    c[UNIT_FORCE] = {
        unit("kgf", "Kilogram-force", latin("kgf"), kGravity),
        unit("N", "Newton", latin("N"), 1.0),
        unit("kN", "Kilonewton", latin("kN"), 1e3),
        unit("T", "Tonne-force", latin("T"), 1000.0 * kGravity),
        unit("lbf", "Pound-force", latin("lbf"), kPound * kGravity),
    };
    c[UNIT_KP] = {
        unit("km", "Kilometre", latin("km"), 1000.0),
        unit("m", "Metre", latin("m"), 1.0),
    };
    c[UNIT_FUEL_DELIVERY] = {
        unit("l/h", "Litres per hour", latin("l/h"), 0.001 / 3600.0),
        unit("l/min", "Litres per minute", latin("l/min"), 0.001 / 60.0),
        unit("m3/h", "Cubic metres per hour", QStringLiteral("m³/h"), 1.0 / 3600.0),
        unit("galUS/h", "US gallons per hour", latin("gal/h"), kGallonUS / 3600.0),
    };
    c[UNIT_FUEL_VOLUME] = volumes();
    c[UNIT_WATER_WIND_SPEED] = speeds("kn");
    c[UNIT_DATUM_ROTATION] = {
        unit("arcsec", "Arc-second", latin("\""), 1.0 / 3600.0),
        unit("deg", "Degree", QStringLiteral("°"), 1.0),
        unit("rad", "Radian", latin("rad"), kRadian),
        unit("microrad", "Microradian", QStringLiteral("µrad"), kRadian * 1e-6),
    };
    c[UNIT_PERCENT] = {
        unit("%", "Percent", latin("%"), 1.0),
        unit("permille", "Per mille", QStringLiteral("‰"), 0.1),
        unit("fraction", "Fraction", QString(), 100.0),
    };
    return c;
}

const QList<UnitList>& catalogue()
{
    static const QList<UnitList> units = buildCatalogue();
    return units;
}

bool validKind(int kind)
{
    return kind >= 0 && kind < kUnitKindCount;
}

double usableFactor(double factor)
{
    return (factor == 0.0 || !std::isfinite(factor)) ? 1.0 : factor;
}

double usableOffset(double offset)
{
    return std::isfinite(offset) ? offset : 0.0;
}

struct FormatCode
{
    const char* code;
    int kind;
};

constexpr FormatCode kFormatCodes[] = {
    {"FMT_NONE", UNIT_NONE},
    {"FMT_SYSTEM", UNIT_SYSTEM},
    {"FMT_SPEED", UNIT_SPEED},
    {"FMT_DISTANCE", UNIT_DISTANCE},
    {"FMT_DEPTH", UNIT_DEPTH},
    {"FMT_VOLUME", UNIT_VOLUME},
    {"FMT_DENSITY", UNIT_DENSITY},
    {"FMT_VELOCITY", UNIT_VELOCITY},
    {"FMT_PRODUCTION", UNIT_PRODUCTION},
    {"FMT_HEIGHT", UNIT_HEIGHT},
    {"FMT_PRESSURE", UNIT_PRESSURE},
    {"FMT_POWER", UNIT_POWER},
    {"FMT_REVOLUTIONS", UNIT_REVOLUTIONS},
    {"FMT_WEIGHT", UNIT_WEIGHT},
    {"FMT_PITCH", UNIT_PITCH},
    {"FMT_ROLL", UNIT_ROLL},
    {"FMT_ACCELERATION", UNIT_ACCELERATION},
    {"FMT_ANGULAR_RATE", UNIT_ANGULAR_RATE},
    {"FMT_DELIVERY", UNIT_DELIVERY},
    {"FMT_ANGLE", UNIT_ANGULAR},
    {"FMT_ANGULAR", UNIT_ANGULAR},
    {"FMT_BEARING", UNIT_ANGULAR},
    {"FMT_HEADING", UNIT_ANGULAR},
    {"FMT_AREA", UNIT_AREA},
    {"FMT_TEMPERATURE", UNIT_TEMPERATURE},
    {"FMT_PAPER", UNIT_PAPER},
    {"FMT_FORCE", UNIT_FORCE},
    {"FMT_KP", UNIT_KP},
    {"FMT_FUEL_DELIVERY", UNIT_FUEL_DELIVERY},
    {"FMT_FUEL_VOLUME", UNIT_FUEL_VOLUME},
    {"FMT_WATER_WIND_SPEED", UNIT_WATER_WIND_SPEED},
    {"FMT_DATUM_ROTATION", UNIT_DATUM_ROTATION},
    {"FMT_PERCENT", UNIT_PERCENT},
};

} // namespace

CQelUnitCnv::CQelUnitCnv()
{
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        m_units[size_t(kind)] = catalogue()[kind].first();
}

QList<UnitInfo> CQelUnitCnv::KnownUnits(int kind)
{
    return validKind(kind) ? catalogue()[kind] : QList<UnitInfo>();
}

bool CQelUnitCnv::FindUnit(int kind, const QString& key, UnitInfo& out)
{
    if (!validKind(kind))
        return false;
    const QString wanted = key.trimmed();
    for (const UnitInfo& info : catalogue()[kind]) {
        if (info.key == wanted) {
            out = info;
            return true;
        }
    }
    return false;
}

bool CQelUnitCnv::DefaultUnit(int kind, UnitInfo& out)
{
    if (!validKind(kind))
        return false;
    out = catalogue()[kind].first();
    return true;
}

bool CQelUnitCnv::SetUnit(int kind, const QString& key)
{
    UnitInfo info;
    if (!FindUnit(kind, key, info))
        return false;
    m_units[size_t(kind)] = info;
    return true;
}

bool CQelUnitCnv::GetUnit(int kind, double& factor, double& offset, QString& name, QString& key,
                          QString& mnemonic) const
{
    if (!validKind(kind))
        return false;
    const UnitInfo& info = m_units[size_t(kind)];
    factor = info.factor;
    offset = info.offset;
    name = info.name;
    key = info.key;
    mnemonic = info.mnemonic;
    return true;
}

bool CQelUnitCnv::GetUnitInfo(int kind, UnitInfo& out) const
{
    if (!validKind(kind))
        return false;
    out = m_units[size_t(kind)];
    return true;
}

QString CQelUnitCnv::GetUnitMnem(int kind) const
{
    return validKind(kind) ? m_units[size_t(kind)].mnemonic : QString();
}

QString CQelUnitCnv::GetUnitKey(int kind) const
{
    return validKind(kind) ? m_units[size_t(kind)].key : QString();
}

double CQelUnitCnv::ToInternalUnit(int kind, double value) const
{
    if (!validKind(kind))
        return value;
    const UnitInfo& info = m_units[size_t(kind)];
    return ToInternalUnit(kind, value, info.factor, info.offset);
}

double CQelUnitCnv::ToExternalUnit(int kind, double value) const
{
    if (!validKind(kind))
        return value;
    const UnitInfo& info = m_units[size_t(kind)];
    return ToExternalUnit(kind, value, info.factor, info.offset);
}

double CQelUnitCnv::ToInternalUnit(int, double value, double factor, double offset) const
{
    // One rounding for the product and the sum.
    return std::fma(value, usableFactor(factor), usableOffset(offset));
}

double CQelUnitCnv::ToExternalUnit(int, double value, double factor, double offset) const
{
    return (value - usableOffset(offset)) / usableFactor(factor);
}

double CQelUnitCnv::ConvertUnit(int kind, double value) const
{
    return ToExternalUnit(kind, value);
}

double CQelUnitCnv::ConvertUnit(int kind, double value, const QString& fromKey,
                                const QString& toKey, bool* ok) const
{
    UnitInfo from;
    UnitInfo to;
    const bool found = FindUnit(kind, fromKey, from) && FindUnit(kind, toKey, to);
    if (ok)
        *ok = found;
    if (!found)
        return 0.0;
    if (from.key == to.key)
        return value;
    return ToExternalUnit(kind, ToInternalUnit(kind, value, from.factor, from.offset), to.factor,
                          to.offset);
}

int CQelUnitCnv::ConvertFMTtoUNIT(const QString& formatCode) const
{
    const QString code = formatCode.trimmed();
    for (const FormatCode& entry : kFormatCodes) {
        if (code.compare(QLatin1String(entry.code), Qt::CaseInsensitive) == 0)
            return entry.kind;
    }
    return UNIT_NONE;
}

bool CQelUnitCnv::Load(const FileObject& file, const QString& section)
{
    bool any = false;
    const auto entries = file.GetEntries(section);
    for (const auto& [name, key] : entries) {
        int kind = UnitKindFromName(name);
        if (kind < 0) {
            if (!TextToInt(name, kind))
                continue;
        }
        any = SetUnit(kind, key) || any;
    }
    return any;
}

void CQelUnitCnv::Save(FileObject& file, const QString& section) const
{
    // Load takes the last entry that names a kind, by category name or by number: such entries
    // would override what is written here, so each kind keeps one entry, under its name.
    for (const auto& entry : file.GetEntries(section)) {
        int number = 0;
        if (TextToInt(entry.first, number))
            file.RemoveEntry(section, entry.first);
    }
    for (int kind = 0; kind < kUnitKindCount; ++kind) {
        const QString name = UnitCategoryName(kind);
        if (file.GetValues(section, name).size() > 1)
            file.RemoveEntry(section, name);
        file.SetString(section, name, m_units[size_t(kind)].key);
    }
}
