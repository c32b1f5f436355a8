#include "GeoText.h"

#include "NumberText.h"
#include "NumberUtils.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QChar kDegree(0x00B0);
constexpr QChar kMinusSign(0x2212);

bool IsAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool IsSign(QChar c)
{
    return c == QLatin1Char('+') || c == QLatin1Char('-') || c == kMinusSign;
}

// Marks that stand for minutes or feet: apostrophe, prime, right single quote, acute.
bool IsSingleMark(QChar c)
{
    return c == QLatin1Char('\'') || c == QChar(0x2032) || c == QChar(0x2019)
        || c == QChar(0x00B4);
}

// Marks that stand for seconds or inches: double quote, double prime, right double quote.
bool IsDoubleMark(QChar c)
{
    return c == QLatin1Char('"') || c == QChar(0x2033) || c == QChar(0x201D);
}

// A glyph that separates the fields of a typed angle: any single character that is no
// digit, letter, sign, blank or decimal point, and the ordinal sign some keyboards give
// for a degree (it counts as a letter otherwise). The comma is a decimal point in much of
// Europe, so it never separates fields: "56,5" must not quietly read as 56 deg 5 min.
bool IsGeoSeparator(QChar c)
{
    if (c == QChar(0x00BA))
        return true;
    return !c.isLetterOrNumber() && !c.isSpace() && !IsSign(c) && c != QLatin1Char('.')
        && c != QLatin1Char(',');
}

int HemisphereSign(QChar c)
{
    switch (c.toUpper().unicode()) {
    case 'N':
    case 'E':
        return 1;
    case 'S':
    case 'W':
        return -1;
    default:
        return 0;
    }
}

// Reads one unsigned decimal number of ASCII digits with an optional decimal point at pos:
// "7", "7.25", ".5", "7.". Leaves pos after it; false when there is none or its value is out
// of the range of a double.
bool ReadNumber(const QString& s, qsizetype& pos, QChar point, double& value, bool& hasPoint)
{
    DecimalSyntax syntax;
    syntax.sign = false;
    syntax.exponent = false;
    syntax.point = point.unicode();
    const DecimalScan scan = ScanDecimal(QStringView(s).sliced(pos), syntax);
    pos += scan.length;
    value = scan.value;
    hasPoint = scan.hasPoint;
    return scan.length > 0 && !scan.outOfRange;
}

void SkipSpaces(const QString& s, qsizetype& pos)
{
    while (pos < s.size() && s[pos].isSpace())
        ++pos;
}

struct GeoField
{
    double value = 0.0;
    bool hasPoint = false;
};

// The fields, sign and hemisphere of a typed angle; false when the text has no such form.
bool ScanGeo(const QString& s, std::vector<GeoField>& fields, int& sign, QChar& letter)
{
    qsizetype pos = 0;
    const qsizetype n = s.size();
    sign = 0;
    letter = QChar();
    if (n == 0)
        return false;
    // ',' is the decimal point of a text without '.'.
    const QChar point = s.contains(QLatin1Char('.')) ? QLatin1Char('.') : QLatin1Char(',');

    if (IsSign(s[0])) {
        sign = s[0] == QLatin1Char('+') ? 1 : -1;
        ++pos;
    } else if (HemisphereSign(s[0]) != 0) {
        letter = s[0];
        ++pos;
    }
    SkipSpaces(s, pos);

    for (;;) {
        GeoField field;
        if (fields.size() == 3 || !ReadNumber(s, pos, point, field.value, field.hasPoint))
            return false;
        fields.push_back(field);

        const qsizetype afterNumber = pos;
        SkipSpaces(s, pos);
        if (pos == n)
            return true;
        QChar c = s[pos];
        if (IsAsciiDigit(c) && pos > afterNumber)
            continue; // blank separated fields
        if (IsGeoSeparator(c)) {
            // One separator glyph (a doubled single mark counts as a seconds mark).
            ++pos;
            if (IsSingleMark(c) && pos < n && IsSingleMark(s[pos]))
                ++pos;
            SkipSpaces(s, pos);
            if (pos == n)
                return true;
            c = s[pos];
            if (IsAsciiDigit(c) || c == QLatin1Char('.'))
                continue;
        }
        // Only a closing hemisphere letter may follow, and only when none came first.
        if (HemisphereSign(c) == 0 || !letter.isNull())
            return false;
        letter = c;
        ++pos;
        SkipSpaces(s, pos);
        return pos == n;
    }
}

// Appends the fixed-point text and marks of the geographic fields.
void AppendGeoFields(QString& text, const QString& degrees, const QString& minutes,
                     const QString& seconds, const QString& fraction, unsigned flags,
                     bool symbols)
{
    const QString last = fraction.isEmpty() ? QString() : QLatin1Char('.') + fraction;
    if (flags == GeogsFlags::DEGREES) {
        text += degrees + last;
        if (symbols)
            text += kDegree;
        return;
    }
    text += degrees;
    text += symbols ? QString(kDegree) : QStringLiteral(" ");
    if (flags == GeogsFlags::MINUTES) {
        text += minutes + last;
        if (symbols)
            text += QLatin1Char('\'');
        return;
    }
    text += minutes;
    text += symbols ? QLatin1Char('\'') : QLatin1Char(' ');
    text += seconds + last;
    if (symbols)
        text += QLatin1Char('"');
}

QString TwoDigits(unsigned value)
{
    return QString::number(value).rightJustified(2, QLatin1Char('0'));
}

} // namespace

QString FormatDouble(double value, int decimals, unsigned feetFlags)
{
    DecimalNumber number;
    if (!number.SetDouble(value))
        return {};
    decimals = std::clamp(decimals, 0, 15);

    if (!(feetFlags & FeetFlags::FEET_INCHES)) {
        number.RoundToDecimals(decimals);
        const QString digits = number.ToFixed(decimals);
        return number.IsNegative() ? QLatin1Char('-') + digits : digits;
    }

    // Round once in inches, then carry whole feet out of them: 11.99999 ft is 12' 00.00".
    const bool negative = number.IsNegative();
    number.SetAbsolute();
    number.Multiply(12);
    number.RoundToDecimals(decimals);
    const bool showSign = negative && !number.IsZero();
    const QString fraction = number.FractionDigits(decimals);
    const unsigned inches = number.TakeRemainder(12);
    QString text = showSign ? QStringLiteral("-") : QString();
    text += number.IntegerDigits();
    text += QStringLiteral("' ");
    text += TwoDigits(inches);
    if (decimals > 0)
        text += QLatin1Char('.') + fraction;
    text += QLatin1Char('"');
    return text;
}

bool FormatGeogs(double value, unsigned flags, int decimals, int kind, QString& text,
                 bool hemisphereLetter, bool symbols)
{
    text.clear();
    if (flags != GeogsFlags::DEGREES && flags != GeogsFlags::MINUTES
        && flags != GeogsFlags::SECONDS)
        return false;
    DecimalNumber number;
    if (!number.SetDouble(value))
        return false;
    decimals = std::clamp(decimals, 0, 12);

    // Round once in the smallest unit shown, then split: 59.9996" carries into the minute.
    const bool negative = number.IsNegative();
    number.SetAbsolute();
    number.Multiply(flags == GeogsFlags::SECONDS ? 3600 : flags == GeogsFlags::MINUTES ? 60 : 1);
    number.RoundToDecimals(decimals);
    const bool southOrWest = negative && !number.IsZero();

    const QString fraction = number.FractionDigits(decimals);
    QString seconds;
    QString minutes;
    if (flags == GeogsFlags::SECONDS)
        seconds = TwoDigits(number.TakeRemainder(60));
    if (flags != GeogsFlags::DEGREES)
        minutes = TwoDigits(number.TakeRemainder(60));
    const int degreeDigits = kind == GeogsKind::LATITUDE ? 2 : kind == GeogsKind::LONGITUDE ? 3 : 1;
    const QString degrees = number.IntegerDigits(degreeDigits);

    const bool geographic = kind == GeogsKind::LATITUDE || kind == GeogsKind::LONGITUDE;
    const bool letter = hemisphereLetter && geographic;
    if (southOrWest && !letter)
        text += QLatin1Char('-');
    AppendGeoFields(text, degrees, minutes, seconds, fraction, flags, symbols);
    if (letter) {
        text += QLatin1Char(' ');
        if (kind == GeogsKind::LATITUDE)
            text += southOrWest ? QLatin1Char('S') : QLatin1Char('N');
        else
            text += southOrWest ? QLatin1Char('W') : QLatin1Char('E');
    }
    return true;
}

bool StringToGeo(const QString& text, double& value)
{
    value = 0.0;
    std::vector<GeoField> fields;
    int sign = 0;
    QChar letter;
    if (!ScanGeo(text.trimmed(), fields, sign, letter))
        return false;
    if (sign != 0 && !letter.isNull())
        return false;
    // Only the last field may carry decimals.
    for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
        if (fields[i].hasPoint)
            return false;
    }
    double parts[3] = {0.0, 0.0, 0.0};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        parts[i] = fields[i].value; // finite: ScanGeo refuses numbers out of range
        if (i > 0 && parts[i] >= 60.0)
            return false;
    }
    // Minutes and seconds first, so that they keep their precision next to the degrees.
    double result = parts[0] + (parts[1] * 60.0 + parts[2]) / 3600.0;
    if (!std::isfinite(result))
        return false;
    if (sign < 0 || (!letter.isNull() && HemisphereSign(letter) < 0))
        result = -result;
    value = result + 0.0; // no negative zero
    return true;
}

double StringToValue(const QString& text, bool* ok)
{
    if (ok)
        *ok = false;
    const QString s = text.trimmed();
    const qsizetype n = s.size();
    qsizetype pos = 0;
    double sign = 1.0;
    if (pos < n && IsSign(s[pos])) {
        sign = s[pos] == QLatin1Char('+') ? 1.0 : -1.0;
        ++pos;
        SkipSpaces(s, pos);
    }
    // ',' is the decimal point of a text without '.'.
    const QChar point = s.contains(QLatin1Char('.')) ? QLatin1Char('.') : QLatin1Char(',');
    // An exponent needs a digit after the 'e' (and its sign); else the 'e' starts a unit.
    DecimalSyntax syntax;
    syntax.sign = false;
    syntax.minusSign = true;
    syntax.point = point.unicode();
    const DecimalScan scan = ScanDecimal(QStringView(s).sliced(pos), syntax);
    if (scan.length == 0 || scan.outOfRange)
        return 0.0;
    pos += scan.length;
    const bool hasPoint = scan.hasPoint;
    const bool hasExponent = scan.hasExponent;
    double magnitude = scan.value;

    SkipSpaces(s, pos);
    qsizetype rest = pos;
    // Feet and inches: 12' 06.5", 12'6.5'', 3' 2".
    if (!hasExponent && rest < n && IsSingleMark(s[rest])
        && !(rest + 1 < n && IsSingleMark(s[rest + 1]))) {
        ++rest;
        SkipSpaces(s, rest);
        if (rest < n) {
            bool inchPoint = false;
            double inches = 0.0;
            if (hasPoint || !ReadNumber(s, rest, point, inches, inchPoint) || inches >= 12.0)
                return 0.0;
            SkipSpaces(s, rest);
            if (rest < n && IsDoubleMark(s[rest]))
                ++rest;
            else if (rest + 1 < n && IsSingleMark(s[rest]) && IsSingleMark(s[rest + 1]))
                rest += 2;
            SkipSpaces(s, rest);
            if (rest != n)
                return 0.0;
            magnitude += inches / 12.0;
        }
        if (ok)
            *ok = true;
        return sign * magnitude + 0.0;
    }

    // Otherwise an optional unit abbreviation, which is ignored.
    for (; rest < n; ++rest) {
        const QChar c = s[rest];
        if (!c.isLetter() && c != kDegree && c != QChar(0x00BA) && !IsSingleMark(c)
            && !IsDoubleMark(c))
            return 0.0;
    }
    if (ok)
        *ok = true;
    return sign * magnitude + 0.0;
}
