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

inline constexpr std::array<const char*, kUnitKindCount> kUnitCategoryNames = {
    "No Units", "System Units", "Speed Units", "Distance Units", "Depth Units",
    "Volume Units", "Density Units", "Velocity Units", "Production Units", "Height Units",
    "Pressure Units", "Power Units", "Revolutions Units", "Weight Units", "Pitch Units",
    "Roll Units", "Acceleration Units", "Angular Rate Units", "Delivery Units", "Angular Units",
    "Area Units", "Temperature Units", "Paper Units", "Force Units", "KP Units",
    "Fuel Delivery Units", "Fuel Volume Units", "Water/Wind Speed Units",
    "Datum Transformation Rotation Units", "Percent Units"};

// The category name of a unit kind ("Distance Units" for 3); empty for a kind out of range.
QELBASE_EXPORT QString UnitCategoryName(int kind);

// The unit kind of a category name (case-insensitive, blanks around it ignored); -1 when unknown.
QELBASE_EXPORT int UnitKindFromName(const QString& name);
