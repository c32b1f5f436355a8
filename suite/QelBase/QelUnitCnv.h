#pragma once
// Unit conversion of the suite: for each unit kind (UnitCategories.h) the converter holds the
// unit values are shown in, and converts between it and the kind's internal unit.
//
// A unit is described by factor and offset: internal = value * factor + offset.
// Internal units by kind:
//   lengths (System, Distance, Depth, Height, KP, Paper)  metre
//   Speed, Velocity, Water/Wind Speed                     metre per second
//   Volume, Fuel Volume                                   cubic metre
//   Production, Fuel Delivery                             cubic metre per second
//   Density                                               kilogram per cubic metre
//   Pressure                                              pascal
//   Power                                                 watt
//   Revolutions                                           revolutions per minute
//   Weight                                                kilogram
//   Delivery                                              kilogram per second
//   Force                                                 newton
//   Acceleration                                          metre per second squared
//   Angular, Pitch, Roll, Datum Transformation Rotation   degree
//   Angular Rate                                          degree per second
//   Area                                                  square metre
//   Temperature                                           degree Celsius
//   Percent                                               percent
//   No Units                                              the value itself

#include "QelBase/QelBaseExport.h"
#include <QList>
#include <QString>

#include <array>

#include "UnitCategories.h"

class FileObject;

// One unit of the catalogue. `key` is the ASCII name used in files ("ft"), `name` the readable
// name in the user's language ("International foot"), `mnemonic` the abbreviation shown behind
// values ("ft").
struct QELBASE_EXPORT UnitInfo
{
    QString key;
    QString name;
    QString mnemonic;
    double factor = 1.0;
    double offset = 0.0;
};

class QELBASE_EXPORT CQelUnitCnv
{
public:
    // Every kind on its default unit (lengths in metres, speed in m/sec, weight in tonnes,
    // force in kgf, angles in degrees, temperature in degrees Celsius, ...).
    CQelUnitCnv();

    // The units known for a kind, the default unit first; empty for a kind out of range.
    static QList<UnitInfo> KnownUnits(int kind);
    // Looks up a unit of a kind by its key (case-sensitive: "M" is not "m").
    static bool FindUnit(int kind, const QString& key, UnitInfo& out);
    // The default unit of a kind; false for a kind out of range.
    static bool DefaultUnit(int kind, UnitInfo& out);

    // Shows the kind in the unit `key`; false and unchanged for an unknown kind or key.
    bool SetUnit(int kind, const QString& key);
    // The converter's unit of a kind; false for a kind out of range.
    bool GetUnit(int kind, double& factor, double& offset, QString& name, QString& key,
                 QString& mnemonic) const;
    // The converter's unit of a kind as a whole; false for a kind out of range.
    bool GetUnitInfo(int kind, UnitInfo& out) const;
    // Abbreviation and key of the converter's unit of a kind; empty for a kind out of range.
    QString GetUnitMnem(int kind) const;
    QString GetUnitKey(int kind) const;

    // A value in the converter's unit of the kind to the internal unit, and back. A kind out of
    // range leaves the value as it is.
    double ToInternalUnit(int kind, double value) const;
    double ToExternalUnit(int kind, double value) const;
    // value * factor + offset, and (value - offset) / factor; a zero or non-finite factor
    // counts as 1.0 (a non-finite offset as 0.0).
    double ToInternalUnit(int kind, double value, double factor, double offset) const;
    double ToExternalUnit(int kind, double value, double factor, double offset) const;
    // An internal value in the converter's unit of the kind (same as ToExternalUnit); with 1.0
    // it gives the number of display units per internal unit.
    double ConvertUnit(int kind, double value) const;
    // A value from the unit `fromKey` to the unit `toKey` of a kind; 0.0 and *ok false when
    // the kind or either key is unknown.
    double ConvertUnit(int kind, double value, const QString& fromKey, const QString& toKey,
                       bool* ok = nullptr) const;

    // The unit kind of a format code of the suite (case-insensitive, blanks trimmed), 0 when
    // unknown. The codes are "FMT_" followed by the kind: FMT_SYSTEM 1, FMT_SPEED 2,
    // FMT_DISTANCE 3, FMT_DEPTH 4, FMT_VOLUME 5, FMT_DENSITY 6, FMT_VELOCITY 7,
    // FMT_PRODUCTION 8, FMT_HEIGHT 9, FMT_PRESSURE 10, FMT_POWER 11, FMT_REVOLUTIONS 12,
    // FMT_WEIGHT 13, FMT_PITCH 14, FMT_ROLL 15, FMT_ACCELERATION 16, FMT_ANGULAR_RATE 17,
    // FMT_DELIVERY 18, FMT_ANGLE / FMT_ANGULAR / FMT_BEARING / FMT_HEADING 19, FMT_AREA 20,
    // FMT_TEMPERATURE 21, FMT_PAPER 22, FMT_FORCE 23, FMT_KP 24, FMT_FUEL_DELIVERY 25,
    // FMT_FUEL_VOLUME 26, FMT_WATER_WIND_SPEED 27, FMT_DATUM_ROTATION 28, FMT_PERCENT 29;
    // FMT_NONE and anything else 0.
    int ConvertFMTtoUNIT(const QString& formatCode) const;

    // Takes the units of a section: keys are category names ("Distance Units = ft") or kind
    // numbers ("3 = ft"); unknown kinds and units are skipped, unlisted kinds keep their unit.
    // False when the section gives no usable entry.
    bool Load(const FileObject& file, const QString& section = QStringLiteral("Units"));
    // Writes the unit of every kind under its category name. Entries of the section that name a
    // kind by number, and repeats of a category name, are removed so that it reads back as saved.
    void Save(FileObject& file, const QString& section = QStringLiteral("Units")) const;

private:
    std::array<UnitInfo, kUnitKindCount> m_units;
};
