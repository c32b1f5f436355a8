#pragma once
// Number services: bearings from grid differences, the 1-2-5 step series, rounding and
// tolerant comparison, and exact decimal rounding of doubles.

#include "QelBase/QelBaseExport.h"
#include <QString>

#include <algorithm>
#include <cmath>
#include <string>

// Bearing (degrees clockwise from grid north +y, in [0, 360), never 360) and distance
// of the grid difference (dx, dy). A zero or non-finite difference gives 0 and 0.
QELBASE_EXPORT void XYToPolar(double dx, double dy, double& bearing, double& distance);

// The nearest member of the 1-2-5 series (... 0.1, 0.2, 0.5, 1, 2, 5, 10 ...) to a positive
// finite value, nearest in linear distance within its decade, ties going up; else 0.0.
QELBASE_EXPORT double Double125(double value);

// Rounds half away from zero to a long, clamped to the range of long; NaN gives 0.
QELBASE_EXPORT long RoundDouble(double value);

// Rounds half away from zero to decimals (clamped to 0..15) on the value's shortest
// decimal form, so 2.675 gives 2.68; a non-finite value gives 0.0.
QELBASE_EXPORT double RoundToDecimals(double value, int decimals);

// Tolerance for comparing two doubles of this magnitude: max(|magnitude|, 1) * 1e-9.
QELBASE_EXPORT double Epsilon(double magnitude);

// True when a and b differ by no more than the tolerance for the larger magnitude.
inline bool AlmostEqual(double a, double b)
{
    if (a == b)
        return true;
    return std::fabs(a - b) <= Epsilon(std::max(std::fabs(a), std::fabs(b)));
}

// A finite double held as its shortest round-trip decimal digits, for rounding, scaling
// and fixed-point text without binary artefacts (0.1 * 3600 is exactly 360 here).
class QELBASE_EXPORT DecimalNumber
{
public:
    // Zero.
    DecimalNumber() = default;
    // The shortest decimal that reads back as value; false (and zero) for NaN or infinity.
    bool SetDouble(double value);
    // The nearest double.
    double ToDouble() const;

    // True for zero (zero never carries a sign).
    bool IsZero() const { return m_digits.empty(); }
    // True for values below zero.
    bool IsNegative() const { return m_negative; }
    // Drops the sign.
    void SetAbsolute() { m_negative = false; }
    // Multiplies exactly by a small whole factor.
    void Multiply(unsigned factor);
    // Rounds half away from zero to decimals (>= 0) places.
    void RoundToDecimals(int decimals);
    // Returns the integer part modulo divisor (> 0) and keeps the integer part divided by
    // it; the fraction is dropped. Used to split seconds into minutes and degrees.
    unsigned TakeRemainder(unsigned divisor);

    // The integer part of the magnitude, zero padded to at least minDigits digits.
    QString IntegerDigits(int minDigits = 1) const;
    // The first decimals digits after the decimal point, zero padded.
    QString FractionDigits(int decimals) const;
    // Magnitude as fixed-point text: integer digits, then '.' and decimals digits when
    // decimals > 0. No sign; call RoundToDecimals first to avoid truncation.
    QString ToFixed(int decimals, int minIntegerDigits = 1) const;

    // Significant digits without leading or trailing zeros ("" for zero).
    const std::string& Digits() const { return m_digits; }
    // Power of ten of the last significant digit: value = Digits() * 10^Exponent().
    int Exponent() const { return m_exponent; }

private:
    void Normalize();

    std::string m_digits;
    int m_exponent = 0;
    bool m_negative = false;
};
