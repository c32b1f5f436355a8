#pragma once
// Text of numbers and geographic angles: fixed-point and feet-and-inches output, degrees
// with minutes and seconds, and the parsers for what users type. Independent of the
// locale: '.' is always the decimal point. The formats are listed in docs/formats.md.

#include "QelBase/QelBaseExport.h"
#include <QString>

namespace FeetFlags {
// The value is in feet and is shown as feet and inches: 12' 06.50".
constexpr unsigned FEET_INCHES = 1;
} // namespace FeetFlags

// Geographic format flags of FormatGeogs: bit 1 degrees, bit 2 minutes, bit 4 seconds.
namespace GeogsFlags {
constexpr unsigned DEGREES = 1;
constexpr unsigned MINUTES = 3;
constexpr unsigned SECONDS = 7;
} // namespace GeogsFlags

// Kinds of angle for FormatGeogs: any other kind is a plain angle.
namespace GeogsKind {
constexpr int LATITUDE = 10;
constexpr int LONGITUDE = 11;
} // namespace GeogsKind

// Fixed-point text with exactly decimals (0..15) decimals, rounded half away from zero,
// never "-0.00"; with FEET_INCHES feet as feet and inches. NaN/infinity give "".
QELBASE_EXPORT QString FormatDouble(double value, int decimals, unsigned feetFlags = 0);

// Writes an angle in degrees as degrees-minutes-seconds (flags 7), degrees and minutes (3)
// or degrees (1), decimals (0..12) on the last field, as a latitude (kind 10), longitude
// (11) or plain angle. Returns false and "" for other flags or a non-finite value.
QELBASE_EXPORT bool FormatGeogs(double value, unsigned flags, int decimals, int kind, QString& text,
                 bool hemisphereLetter = true, bool symbols = true);

// Reads an angle as FormatGeogs writes it or a surveyor types it (56°30'07.2" N,
// 56 30 7.2 N, 56 30.12, S 56.502, -3.25). Unreadable text gives 0.0 and false.
QELBASE_EXPORT bool StringToGeo(const QString& text, double& value);

// Reads a typed number (optional exponent, ',' as decimal point when there is no '.',
// an ignored trailing unit such as "m") or feet and inches (12' 06.5"). Unreadable text
// gives 0.0 and *ok = false.
QELBASE_EXPORT double StringToValue(const QString& text, bool* ok = nullptr);
