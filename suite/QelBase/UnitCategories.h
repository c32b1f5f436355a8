#pragma once
// The unit kinds of the suite and their category names. The kind is the index the unit
// converter (CQelUnitCnv) takes; the names are the keys of the units section of a project.

#include "QelBase/QelBaseExport.h"
#include <QString>

#include <array>

constexpr int kUnitKindCount = 30;

enum UnitKind : int {
    UNIT_NONE = 0, UNIT_SYSTEM = 1, UNIT_SPEED = 2, UNIT_DISTANCE = 3, UNIT_DEPTH = 4,
    UNIT_VOLUME = 5, UNIT_DENSITY = 6, UNIT_VELOCITY = 7, UNIT_PRODUCTION = 8, UNIT_HEIGHT = 9,
    UNIT_PRESSURE = 10, UNIT_POWER = 11, UNIT_REVOLUTIONS = 12, UNIT_WEIGHT = 13, UNIT_PITCH = 14,
    UNIT_ROLL = 15, UNIT_ACCELERATION = 16, UNIT_ANGULAR_RATE = 17, UNIT_DELIVERY = 18,
    UNIT_ANGULAR = 19, UNIT_AREA = 20, UNIT_TEMPERATURE = 21, UNIT_PAPER = 22, UNIT_FORCE = 23,
    UNIT_KP = 24, UNIT_FUEL_DELIVERY = 25, UNIT_FUEL_VOLUME = 26, UNIT_WATER_WIND_SPEED = 27,
    UNIT_DATUM_ROTATION = 28, UNIT_PERCENT = 29
};

// The category names, which are also the keys of a project's units section; QT_TRANSLATE_NOOP
// marks them for translation where they are shown (UnitCategoryDisplayName).
inline constexpr std::array<const char*, kUnitKindCount> kUnitCategoryNames = {
    QT_TRANSLATE_NOOP("UnitCategories", "No Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "System Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Speed Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Distance Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Depth Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Volume Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Density Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Velocity Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Production Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Height Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Pressure Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Power Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Revolutions Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Weight Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Pitch Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Roll Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Acceleration Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Angular Rate Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Delivery Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Angular Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Area Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Temperature Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Paper Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Force Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "KP Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Fuel Delivery Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Fuel Volume Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Water/Wind Speed Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Datum Transformation Rotation Units"),
    QT_TRANSLATE_NOOP("UnitCategories", "Percent Units")};

// The category name of a unit kind ("Distance Units" for 3), as the files write it; empty for a
// kind out of range.
QELBASE_EXPORT QString UnitCategoryName(int kind);

// The category name of a unit kind in the user's language, for display; empty out of range.
QELBASE_EXPORT QString UnitCategoryDisplayName(int kind);

// The unit kind of a category name (case-insensitive, blanks around it ignored); -1 when unknown.
QELBASE_EXPORT int UnitKindFromName(const QString& name);
