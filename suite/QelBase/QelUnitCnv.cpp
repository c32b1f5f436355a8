#include "QelUnitCnv.h"

#include "FileObject.h"
#include "NumberText.h"

#include <QCoreApplication>

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
        unit("m", QT_TRANSLATE_NOOP("CQelUnitCnv", "Metre"), latin("m"), 1.0),
        unit("km", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilometre"), latin("km"), 1000.0),
        unit("cm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Centimetre"), latin("cm"), 0.01),
        unit("mm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Millimetre"), latin("mm"), 0.001),
        unit("ft", QT_TRANSLATE_NOOP("CQelUnitCnv", "International foot"), latin("ft"), kFoot),
        unit("ftUS", QT_TRANSLATE_NOOP("CQelUnitCnv", "US survey foot"), latin("ftUS"), kUsFoot),
        unit("in", QT_TRANSLATE_NOOP("CQelUnitCnv", "Inch"), latin("in"), kInch),
        unit("yd", QT_TRANSLATE_NOOP("CQelUnitCnv", "Yard"), latin("yd"), kYard),
        unit("fathom", QT_TRANSLATE_NOOP("CQelUnitCnv", "Fathom"), latin("fm"), 1.8288),
        unit("NM", QT_TRANSLATE_NOOP("CQelUnitCnv", "Nautical mile"), latin("NM"), kNauticalMile),
        unit("mi", QT_TRANSLATE_NOOP("CQelUnitCnv", "Statute mile"), latin("mi"), kMile),
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
        unit("m/sec", QT_TRANSLATE_NOOP("CQelUnitCnv", "Metres per second"), latin("m/sec"), 1.0),
        unit("km/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilometres per hour"), latin("km/h"), 1000.0 / 3600.0),
        unit("kn", QT_TRANSLATE_NOOP("CQelUnitCnv", "Knot"), latin("kn"), kNauticalMile / 3600.0),
        unit("mi/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Miles per hour"), latin("mph"), kMile / 3600.0),
        unit("ft/sec", QT_TRANSLATE_NOOP("CQelUnitCnv", "Feet per second"), latin("ft/sec"), kFoot),
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
        unit("m3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic metre"), QStringLiteral("m³"), 1.0),
        unit("l", QT_TRANSLATE_NOOP("CQelUnitCnv", "Litre"), latin("l"), 0.001),
        unit("ft3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic foot"), QStringLiteral("ft³"), kFoot * kFoot * kFoot),
        unit("yd3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic yard"), QStringLiteral("yd³"), kYard * kYard * kYard),
        unit("galUS", QT_TRANSLATE_NOOP("CQelUnitCnv", "US gallon"), latin("gal"), kGallonUS),
        unit("galUK", QT_TRANSLATE_NOOP("CQelUnitCnv", "Imperial gallon"), latin("gal UK"), kGallonUK),
        unit("bbl", QT_TRANSLATE_NOOP("CQelUnitCnv", "Barrel"), latin("bbl"), 42.0 * kGallonUS),
    };
}

UnitList angles()
{
    return {
        unit("deg", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degree"), QStringLiteral("°"), 1.0),
        unit("rad", QT_TRANSLATE_NOOP("CQelUnitCnv", "Radian"), latin("rad"), kRadian),
        unit("gon", QT_TRANSLATE_NOOP("CQelUnitCnv", "Gon"), latin("gon"), 0.9),
        unit("mil", QT_TRANSLATE_NOOP("CQelUnitCnv", "Mil (6400 per circle)"), latin("mil"), 360.0 / 6400.0),
    };
}

QList<UnitList> buildCatalogue()
{
    QList<UnitList> c(kUnitKindCount);
    c[UNIT_NONE] = {unit("none", QT_TRANSLATE_NOOP("CQelUnitCnv", "No unit"), QString(), 1.0)};
    c[UNIT_SYSTEM] = lengths("m");
    c[UNIT_SPEED] = speeds("m/sec");
    c[UNIT_DISTANCE] = lengths("m");
    c[UNIT_DEPTH] = lengths("m");
    c[UNIT_VOLUME] = volumes();
    c[UNIT_DENSITY] = {
        unit("t/m3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Tonnes per cubic metre"), QStringLiteral("t/m³"), 1000.0),
        unit("kg/m3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilograms per cubic metre"), QStringLiteral("kg/m³"), 1.0),
        unit("g/cm3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Grams per cubic centimetre"), QStringLiteral("g/cm³"), 1000.0),
        unit("kg/l", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilograms per litre"), latin("kg/l"), 1000.0),
        unit("lb/ft3", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pounds per cubic foot"), QStringLiteral("lb/ft³"),
             kPound / (kFoot * kFoot * kFoot)),
        unit("lb/galUS", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pounds per US gallon"), latin("lb/gal"), kPound / kGallonUS),
    };
    c[UNIT_VELOCITY] = speeds("m/sec");
    c[UNIT_PRODUCTION] = {
        unit("m3/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic metres per hour"), QStringLiteral("m³/h"), 1.0 / 3600.0),
        unit("m3/min", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic metres per minute"), QStringLiteral("m³/min"), 1.0 / 60.0),
        unit("m3/s", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic metres per second"), QStringLiteral("m³/s"), 1.0),
        unit("yd3/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic yards per hour"), QStringLiteral("yd³/h"),
             kYard * kYard * kYard / 3600.0),
    };
    c[UNIT_HEIGHT] = lengths("m");
    c[UNIT_PRESSURE] = {
        unit("bar", QT_TRANSLATE_NOOP("CQelUnitCnv", "Bar"), latin("bar"), 1e5),
        unit("mbar", QT_TRANSLATE_NOOP("CQelUnitCnv", "Millibar"), latin("mbar"), 100.0),
        unit("Pa", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pascal"), latin("Pa"), 1.0),
        unit("kPa", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilopascal"), latin("kPa"), 1e3),
        unit("MPa", QT_TRANSLATE_NOOP("CQelUnitCnv", "Megapascal"), latin("MPa"), 1e6),
        unit("psi", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pound-force per square inch"), latin("psi"), kPound * kGravity / (kInch * kInch)),
        unit("atm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Standard atmosphere"), latin("atm"), 101325.0),
        unit("kgf/cm2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilogram-force per square centimetre"), QStringLiteral("kgf/cm²"),
             kGravity * 1e4),
    };
    c[UNIT_POWER] = {
        unit("kW", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilowatt"), latin("kW"), 1e3),
        unit("W", QT_TRANSLATE_NOOP("CQelUnitCnv", "Watt"), latin("W"), 1.0),
        unit("MW", QT_TRANSLATE_NOOP("CQelUnitCnv", "Megawatt"), latin("MW"), 1e6),
        unit("hp", QT_TRANSLATE_NOOP("CQelUnitCnv", "Horsepower (mechanical)"), latin("hp"), 550.0 * kFoot * kPound * kGravity),
        unit("PS", QT_TRANSLATE_NOOP("CQelUnitCnv", "Metric horsepower"), latin("PS"), 75.0 * kGravity),
    };
    c[UNIT_REVOLUTIONS] = {
        unit("rpm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Revolutions per minute"), latin("rpm"), 1.0),
        unit("rps", QT_TRANSLATE_NOOP("CQelUnitCnv", "Revolutions per second"), latin("rev/s"), 60.0),
    };
    c[UNIT_WEIGHT] = {
        unit("T", QT_TRANSLATE_NOOP("CQelUnitCnv", "Tonne"), latin("T"), 1000.0),
        unit("kg", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilogram"), latin("kg"), 1.0),
        unit("lb", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pound"), latin("lb"), kPound),
        unit("LT", QT_TRANSLATE_NOOP("CQelUnitCnv", "Long ton"), latin("LT"), 2240.0 * kPound),
        unit("ST", QT_TRANSLATE_NOOP("CQelUnitCnv", "Short ton"), latin("ST"), 2000.0 * kPound),
    };
    c[UNIT_PITCH] = angles();
    c[UNIT_ROLL] = angles();
    c[UNIT_ACCELERATION] = {
        unit("m/s2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Metres per second squared"), QStringLiteral("m/s²"), 1.0),
        unit("g", QT_TRANSLATE_NOOP("CQelUnitCnv", "Standard gravity"), latin("g"), kGravity),
        unit("ft/s2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Feet per second squared"), QStringLiteral("ft/s²"), kFoot),
        unit("Gal", QT_TRANSLATE_NOOP("CQelUnitCnv", "Gal"), latin("Gal"), 0.01),
        unit("mGal", QT_TRANSLATE_NOOP("CQelUnitCnv", "Milligal"), latin("mGal"), 1e-5),
    };
    c[UNIT_ANGULAR_RATE] = {
        unit("deg/min", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degrees per minute"), QStringLiteral("°/min"), 1.0 / 60.0),
        unit("deg/s", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degrees per second"), QStringLiteral("°/s"), 1.0),
        unit("rad/s", QT_TRANSLATE_NOOP("CQelUnitCnv", "Radians per second"), latin("rad/s"), kRadian),
    };
    c[UNIT_DELIVERY] = {
        unit("t/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Tonnes per hour"), latin("t/h"), 1000.0 / 3600.0),
        unit("kg/s", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilograms per second"), latin("kg/s"), 1.0),
        unit("kg/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilograms per hour"), latin("kg/h"), 1.0 / 3600.0),
        unit("t/min", QT_TRANSLATE_NOOP("CQelUnitCnv", "Tonnes per minute"), latin("t/min"), 1000.0 / 60.0),
    };
    c[UNIT_ANGULAR] = angles();
    c[UNIT_AREA] = {
        unit("m2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square metre"), QStringLiteral("m²"), 1.0),
        unit("km2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square kilometre"), QStringLiteral("km²"), 1e6),
        unit("ha", QT_TRANSLATE_NOOP("CQelUnitCnv", "Hectare"), latin("ha"), 1e4),
        unit("ft2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square foot"), QStringLiteral("ft²"), kFoot * kFoot),
        unit("ftUS2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square US survey foot"), QStringLiteral("ftUS²"), kUsFoot * kUsFoot),
        unit("yd2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square yard"), QStringLiteral("yd²"), kYard * kYard),
        unit("acre", QT_TRANSLATE_NOOP("CQelUnitCnv", "Acre"), latin("acre"), 4046.8564224),
        unit("NM2", QT_TRANSLATE_NOOP("CQelUnitCnv", "Square nautical mile"), QStringLiteral("NM²"), kNauticalMile * kNauticalMile),
    };
    c[UNIT_TEMPERATURE] = {
        unit("degC", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degree Celsius"), QStringLiteral("°C"), 1.0),
        unit("degF", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degree Fahrenheit"), QStringLiteral("°F"), 5.0 / 9.0, -160.0 / 9.0),
        unit("K", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kelvin"), latin("K"), 1.0, -273.15),
    };
    c[UNIT_PAPER] = {
        unit("mm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Millimetre"), latin("mm"), 0.001),
        unit("cm", QT_TRANSLATE_NOOP("CQelUnitCnv", "Centimetre"), latin("cm"), 0.01),
        unit("in", QT_TRANSLATE_NOOP("CQelUnitCnv", "Inch"), latin("in"), kInch),
    };
    c[UNIT_FORCE] = {
        unit("kgf", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilogram-force"), latin("kgf"), kGravity),
        unit("N", QT_TRANSLATE_NOOP("CQelUnitCnv", "Newton"), latin("N"), 1.0),
        unit("kN", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilonewton"), latin("kN"), 1e3),
        unit("T", QT_TRANSLATE_NOOP("CQelUnitCnv", "Tonne-force"), latin("T"), 1000.0 * kGravity),
        unit("lbf", QT_TRANSLATE_NOOP("CQelUnitCnv", "Pound-force"), latin("lbf"), kPound * kGravity),
    };
    c[UNIT_KP] = {
        unit("km", QT_TRANSLATE_NOOP("CQelUnitCnv", "Kilometre"), latin("km"), 1000.0),
        unit("m", QT_TRANSLATE_NOOP("CQelUnitCnv", "Metre"), latin("m"), 1.0),
    };
    c[UNIT_FUEL_DELIVERY] = {
        unit("l/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Litres per hour"), latin("l/h"), 0.001 / 3600.0),
        unit("l/min", QT_TRANSLATE_NOOP("CQelUnitCnv", "Litres per minute"), latin("l/min"), 0.001 / 60.0),
        unit("m3/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "Cubic metres per hour"), QStringLiteral("m³/h"), 1.0 / 3600.0),
        unit("galUS/h", QT_TRANSLATE_NOOP("CQelUnitCnv", "US gallons per hour"), latin("gal/h"), kGallonUS / 3600.0),
    };
    c[UNIT_FUEL_VOLUME] = volumes();
    c[UNIT_WATER_WIND_SPEED] = speeds("kn");
    c[UNIT_DATUM_ROTATION] = {
        unit("arcsec", QT_TRANSLATE_NOOP("CQelUnitCnv", "Arc-second"), latin("\""), 1.0 / 3600.0),
        unit("deg", QT_TRANSLATE_NOOP("CQelUnitCnv", "Degree"), QStringLiteral("°"), 1.0),
        unit("rad", QT_TRANSLATE_NOOP("CQelUnitCnv", "Radian"), latin("rad"), kRadian),
        unit("microrad", QT_TRANSLATE_NOOP("CQelUnitCnv", "Microradian"), QStringLiteral("µrad"), kRadian * 1e-6),
    };
    c[UNIT_PERCENT] = {
        unit("%", QT_TRANSLATE_NOOP("CQelUnitCnv", "Percent"), latin("%"), 1.0),
        unit("permille", QT_TRANSLATE_NOOP("CQelUnitCnv", "Per mille"), QStringLiteral("‰"), 0.1),
        unit("fraction", QT_TRANSLATE_NOOP("CQelUnitCnv", "Fraction"), QString(), 100.0),
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

// The catalogue keeps the English names; a unit handed out carries the name in the user's
// language.
UnitInfo shown(UnitInfo info)
{
    info.name = QCoreApplication::translate("CQelUnitCnv", info.name.toLatin1().constData());
    return info;
}

const UnitInfo* findInCatalogue(int kind, const QString& key)
{
    if (!validKind(kind))
        return nullptr;
    const QString wanted = key.trimmed();
    for (const UnitInfo& info : catalogue()[kind])
        if (info.key == wanted)
            return &info;
    return nullptr;
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
    QList<UnitInfo> units;
    if (validKind(kind))
        for (const UnitInfo& info : catalogue()[kind])
            units.append(shown(info));
    return units;
}

bool CQelUnitCnv::FindUnit(int kind, const QString& key, UnitInfo& out)
{
    const UnitInfo* info = findInCatalogue(kind, key);
    if (!info)
        return false;
    out = shown(*info);
    return true;
}

bool CQelUnitCnv::DefaultUnit(int kind, UnitInfo& out)
{
    if (!validKind(kind))
        return false;
    out = shown(catalogue()[kind].first());
    return true;
}

bool CQelUnitCnv::SetUnit(int kind, const QString& key)
{
    const UnitInfo* info = findInCatalogue(kind, key);
    if (!info)
        return false;
    m_units[size_t(kind)] = *info;
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
    name = shown(info).name;
    key = info.key;
    mnemonic = info.mnemonic;
    return true;
}

bool CQelUnitCnv::GetUnitInfo(int kind, UnitInfo& out) const
{
    if (!validKind(kind))
        return false;
    out = shown(m_units[size_t(kind)]);
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
