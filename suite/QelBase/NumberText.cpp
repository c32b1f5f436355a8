#include "NumberText.h"

#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace {

constexpr char16_t kMinusSign = 0x2212;
// Exponents are read up to this magnitude; beyond it every value over- or underflows anyway.
constexpr long long kExponentCap = 1'000'000'000;

int DigitValue(QChar c, int base)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (base == 16 && u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (base == 16 && u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}

qsizetype SkipDigits(QStringView text, qsizetype pos, int base = 10)
{
    while (pos < text.size() && DigitValue(text[pos], base) >= 0)
        ++pos;
    return pos;
}

// 1 for '+', -1 for '-' (and the minus sign when allowed), 0 for anything else.
int SignOf(QChar c, bool minusSign)
{
    switch (c.unicode()) {
    case u'+': return 1;
    case u'-': return -1;
    case kMinusSign: return minusSign ? -1 : 0;
    default: return 0;
    }
}

void AppendAscii(std::string& out, QStringView digits)
{
    for (QChar c : digits)
        out.push_back(char(c.unicode()));
}

// Power of ten of the first significant digit of intDigits.fracDigits (which is not all zeros).
long long LeadingPower(QStringView intDigits, QStringView fracDigits)
{
    for (qsizetype i = 0; i < intDigits.size(); ++i) {
        if (intDigits[i] != u'0')
            return (long long)(intDigits.size() - i) - 1;
    }
    for (qsizetype i = 0; i < fracDigits.size(); ++i) {
        if (fracDigits[i] != u'0')
            return -(long long)i - 1;
    }
    return 0;
}

} // namespace

DecimalScan ScanDecimal(QStringView text, const DecimalSyntax& syntax)
{
    DecimalScan scan;
    const qsizetype n = text.size();
    qsizetype pos = 0;
    int sign = 1;
    if (syntax.sign && pos < n && SignOf(text[pos], syntax.minusSign) != 0)
        sign = SignOf(text[pos++], syntax.minusSign);

    const qsizetype intStart = pos;
    pos = SkipDigits(text, pos);
    const QStringView intDigits = text.sliced(intStart, pos - intStart);
    QStringView fracDigits;
    if (syntax.point != 0 && pos < n && text[pos] == QChar(syntax.point)) {
        const qsizetype fracEnd = SkipDigits(text, pos + 1);
        fracDigits = text.sliced(pos + 1, fracEnd - pos - 1);
        if (!intDigits.isEmpty() || !fracDigits.isEmpty()) {
            scan.hasPoint = true;
            pos = fracEnd;
        }
    }
    if (intDigits.isEmpty() && fracDigits.isEmpty())
        return {};

    long long exponent = 0;
    if (syntax.exponent && pos < n && (text[pos] == u'e' || text[pos] == u'E')) {
        qsizetype p = pos + 1;
        const int exponentSign = p < n ? SignOf(text[p], syntax.minusSign) : 0;
        if (exponentSign != 0)
            ++p;
        const qsizetype first = p;
        for (; p < n && DigitValue(text[p], 10) >= 0; ++p) {
            if (exponent < kExponentCap)
                exponent = exponent * 10 + DigitValue(text[p], 10);
        }
        if (p > first) {
            scan.hasExponent = true;
            exponent *= exponentSign < 0 ? -1 : 1;
            pos = p;
        }
    }
    scan.length = pos;

    std::string ascii;
    ascii.reserve(std::size_t(intDigits.size() + fracDigits.size()) + 16);
    AppendAscii(ascii, intDigits);
    if (!fracDigits.isEmpty()) {
        ascii.push_back('.');
        AppendAscii(ascii, fracDigits);
    }
    if (exponent != 0) {
        ascii.push_back('e');
        ascii += std::to_string(exponent);
    }
    double magnitude = 0.0;
    const auto result = std::from_chars(ascii.data(), ascii.data() + ascii.size(), magnitude,
                                        std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        // Only the far ends of the range get here: the first digit's place tells which end.
        scan.outOfRange = true;
        magnitude = LeadingPower(intDigits, fracDigits) + exponent > 0
            ? std::numeric_limits<double>::infinity()
            : 0.0;
    }
    scan.value = sign < 0 ? -magnitude : magnitude;
    return scan;
}

bool TextToDouble(QStringView text, double& value)
{
    text = text.trimmed();
    DecimalSyntax syntax;
    syntax.minusSign = true;
    const DecimalScan scan = ScanDecimal(text, syntax);
    if (scan.length == 0 || scan.length != text.size() || scan.outOfRange)
        return false;
    value = scan.value;
    return true;
}

bool TextToInt64(QStringView text, qint64& value)
{
    text = text.trimmed();
    const int sign = text.isEmpty() ? 0 : SignOf(text.front(), false);
    if (sign != 0)
        text = text.sliced(1);
    int base = 10;
    if (text.size() > 2 && text[0] == u'0' && (text[1] == u'x' || text[1] == u'X')) {
        base = 16;
        text = text.sliced(2);
    }
    if (text.isEmpty() || SkipDigits(text, 0, base) != text.size())
        return false;
    std::string ascii;
    AppendAscii(ascii, text);
    unsigned long long magnitude = 0;
    const auto result = std::from_chars(ascii.data(), ascii.data() + ascii.size(), magnitude, base);
    if (result.ec != std::errc())
        return false;
    constexpr unsigned long long kMaxMagnitude = std::numeric_limits<qint64>::max();
    if (sign < 0) {
        if (magnitude > kMaxMagnitude + 1)
            return false;
        value = magnitude == kMaxMagnitude + 1 ? std::numeric_limits<qint64>::min()
                                               : -qint64(magnitude);
    } else {
        if (magnitude > kMaxMagnitude)
            return false;
        value = qint64(magnitude);
    }
    return true;
}

bool TextToInt(QStringView text, int& value)
{
    qint64 wide = 0;
    if (!TextToInt64(text, wide) || wide < std::numeric_limits<int>::min()
        || wide > std::numeric_limits<int>::max())
        return false;
    value = int(wide);
    return true;
}

double LeadingNumber(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    const DecimalScan scan = ScanDecimal(text.sliced(start));
    return scan.outOfRange ? 0.0 : scan.value;
}
