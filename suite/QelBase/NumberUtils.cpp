#include "NumberUtils.h"

#include <QtMath>

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

// ---------------------------------------------------------------------------------------
// DecimalNumber

bool DecimalNumber::SetDouble(double value)
{
    m_digits.clear();
    m_exponent = 0;
    m_negative = false;
    if (!std::isfinite(value))
        return false;

    // Shortest round-trip form, e.g. "-2.675e+00".
    char buffer[64];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value,
                                         std::chars_format::scientific);
    if (ec != std::errc())
        return false;

    const char* p = buffer;
    if (p < end && *p == '-') {
        m_negative = true;
        ++p;
    }
    int fractionDigits = 0;
    bool afterPoint = false;
    for (; p < end && *p != 'e'; ++p) {
        if (*p == '.') {
            afterPoint = true;
            continue;
        }
        m_digits.push_back(*p);
        if (afterPoint)
            ++fractionDigits;
    }
    int exponent = 0;
    if (p < end && *p == 'e') {
        ++p;
        if (p < end && *p == '+')
            ++p;
        std::from_chars(p, end, exponent);
    }
    m_exponent = exponent - fractionDigits;
    Normalize();
    return true;
}

double DecimalNumber::ToDouble() const
{
    if (IsZero())
        return 0.0;
    std::string text = m_negative ? "-" : "";
    text += m_digits;
    text += 'e';
    text += std::to_string(m_exponent);
    double value = 0.0;
    const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec == std::errc::result_out_of_range) {
        // Below the smallest subnormal reads as zero; above the largest double as the limit.
        if (m_exponent < 0)
            return 0.0;
        const double limit = std::numeric_limits<double>::max();
        return m_negative ? -limit : limit;
    }
    return ec == std::errc() ? value : 0.0;
}

void DecimalNumber::Normalize()
{
    std::size_t first = 0;
    while (first < m_digits.size() && m_digits[first] == '0')
        ++first;
    m_digits.erase(0, first);
    while (!m_digits.empty() && m_digits.back() == '0') {
        m_digits.pop_back();
        ++m_exponent;
    }
    if (m_digits.empty()) {
        m_exponent = 0;
        m_negative = false;
    }
}

void DecimalNumber::Multiply(unsigned factor)
{
    if (IsZero())
        return;
    if (factor == 0) {
        m_digits.clear();
        Normalize();
        return;
    }
    unsigned long long carry = 0;
    for (auto it = m_digits.rbegin(); it != m_digits.rend(); ++it) {
        const unsigned long long product = (unsigned long long)(*it - '0') * factor + carry;
        *it = char('0' + product % 10);
        carry = product / 10;
    }
    std::string head;
    while (carry > 0) {
        head.insert(head.begin(), char('0' + carry % 10));
        carry /= 10;
    }
    m_digits.insert(0, head);
    Normalize();
}

void DecimalNumber::RoundToDecimals(int decimals)
{
    if (IsZero() || decimals < 0)
        return;
    // Number of digits that lie at or above the place 10^-decimals.
    const long long keep = (long long)m_digits.size() + m_exponent + decimals;
    if (keep >= (long long)m_digits.size())
        return;
    if (keep < 0) {
        // Everything lies below half a unit of the last kept place.
        m_digits.clear();
        Normalize();
        return;
    }
    const bool roundUp = m_digits[std::size_t(keep)] >= '5';
    m_digits.resize(std::size_t(keep));
    m_exponent = -decimals;
    if (roundUp) {
        int i = int(m_digits.size()) - 1;
        for (; i >= 0 && m_digits[std::size_t(i)] == '9'; --i)
            m_digits[std::size_t(i)] = '0';
        if (i >= 0)
            ++m_digits[std::size_t(i)];
        else
            m_digits.insert(m_digits.begin(), '1');
    }
    Normalize();
}

unsigned DecimalNumber::TakeRemainder(unsigned divisor)
{
    if (divisor == 0)
        return 0;
    std::string integer = IntegerDigits().toStdString();
    std::string quotient;
    unsigned long long remainder = 0;
    for (char c : integer) {
        remainder = remainder * 10 + unsigned(c - '0');
        quotient.push_back(char('0' + remainder / divisor));
        remainder %= divisor;
    }
    const bool negative = m_negative;
    m_digits = quotient;
    m_exponent = 0;
    m_negative = negative;
    Normalize();
    return unsigned(remainder);
}

QString DecimalNumber::IntegerDigits(int minDigits) const
{
    QString text;
    const long long size = (long long)m_digits.size();
    if (m_exponent >= 0 && !IsZero()) {
        text = QString::fromLatin1(m_digits.data(), qsizetype(size));
        text.append(QString(qsizetype(m_exponent), QLatin1Char('0')));
    } else if (size + m_exponent > 0) {
        text = QString::fromLatin1(m_digits.data(), qsizetype(size + m_exponent));
    }
    if (text.isEmpty())
        text = QStringLiteral("0");
    if (text.size() < minDigits)
        text.prepend(QString(minDigits - text.size(), QLatin1Char('0')));
    return text;
}

QString DecimalNumber::FractionDigits(int decimals) const
{
    if (decimals <= 0)
        return {};
    QString text(decimals, QLatin1Char('0'));
    if (m_exponent >= 0)
        return text;
    // Digit k (from the left) stands at the place 10^(size - 1 - k + exponent); the first
    // fraction place is 10^-1.
    const long long size = (long long)m_digits.size();
    for (long long k = 0; k < size; ++k) {
        const long long place = -(size - 1 - k + m_exponent); // 1 = first decimal
        if (place >= 1 && place <= decimals)
            text[qsizetype(place - 1)] = QLatin1Char(m_digits[std::size_t(k)]);
    }
    return text;
}

QString DecimalNumber::ToFixed(int decimals, int minIntegerDigits) const
{
    QString text = IntegerDigits(minIntegerDigits);
    if (decimals > 0) {
        text.append(QLatin1Char('.'));
        text.append(FractionDigits(decimals));
    }
    return text;
}

// ---------------------------------------------------------------------------------------
// Free functions

void XYToPolar(double dx, double dy, double& bearing, double& distance)
{
    bearing = 0.0;
    distance = 0.0;
    if (!std::isfinite(dx) || !std::isfinite(dy))
        return;
    distance = std::hypot(dx, dy);
    if (distance == 0.0)
        return;

    // The axes and the diagonals are exact; everything else goes through atan2.
    const double ax = std::fabs(dx);
    const double ay = std::fabs(dy);
    if (dx == 0.0)
        bearing = dy > 0.0 ? 0.0 : 180.0;
    else if (dy == 0.0)
        bearing = dx > 0.0 ? 90.0 : 270.0;
    else if (ax == ay)
        bearing = dx > 0.0 ? (dy > 0.0 ? 45.0 : 135.0) : (dy > 0.0 ? 315.0 : 225.0);
    else
        bearing = qRadiansToDegrees(std::atan2(dx, dy));
    if (bearing < 0.0)
        bearing += 360.0;
    // A tiny negative angle lands on 360 after the addition: that is north.
    if (bearing >= 360.0)
        bearing = 0.0;
}

double Double125(double value)
{
    if (!std::isfinite(value) || value <= 0.0)
        return 0.0;
    DecimalNumber number;
    number.SetDouble(value);
    // value = d.ddd x 10^decade; compare the digits with the midpoints 1.5, 3.5 and 7.5
    // exactly, so that 0.15 (which the user typed as a tie) goes up to 0.2.
    const std::string& digits = number.Digits();
    int decade = number.Exponent() + int(digits.size()) - 1;
    auto below = [&digits](const char* midpoint) {
        std::string a = digits;
        std::string b = midpoint;
        const std::size_t n = std::max(a.size(), b.size());
        a.resize(n, '0');
        b.resize(n, '0');
        return a < b;
    };
    int step = 10;
    if (below("15"))
        step = 1;
    else if (below("35"))
        step = 2;
    else if (below("75"))
        step = 5;
    if (step == 10) {
        step = 1;
        ++decade;
    }
    const std::string text = std::to_string(step) + 'e' + std::to_string(decade);
    double result = 0.0;
    const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (ec != std::errc()) {
        // Only the far ends of the double range get here: above 7.5e307 the member would
        // be 1e308's successor, and among subnormals the member may not exist.
        return decade > 0 ? 1e308 : value;
    }
    return result;
}

long RoundDouble(double value)
{
    if (std::isnan(value))
        return 0;
    const double rounded = std::round(value); // halves away from zero
    // -min is a power of two and therefore exact as a double; max may not be.
    const double limit = -double(std::numeric_limits<long>::min());
    if (rounded >= limit)
        return std::numeric_limits<long>::max();
    if (rounded < -limit)
        return std::numeric_limits<long>::min();
    return long(rounded);
}

double RoundToDecimals(double value, int decimals)
{
    if (!std::isfinite(value))
        return 0.0;
    DecimalNumber number;
    number.SetDouble(value);
    number.RoundToDecimals(std::clamp(decimals, 0, 15));
    return number.ToDouble();
}

double Epsilon(double magnitude)
{
    if (std::isnan(magnitude))
        return 1e-9;
    return std::max(std::fabs(magnitude), 1.0) * 1e-9;
}
