// The number reader: whole-text reads, the leading number of a typed field and the scanner under
// both, checked against each other, against the C library's strtod/strtoll (this process keeps
// the "C" locale) and against the number writer of sectioned files.
#include "FuzzSupport.h"

#include <QelBase/FileObject.h>
#include <QelBase/NumberText.h>

#include <cerrno>
#include <climits>
#include <cmath>
#include <cstring>
#include <string>

namespace {

bool Same(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

bool IsAscii(const QString& text)
{
    for (QChar c : text) {
        if (c.unicode() == 0 || c.unicode() > 127)
            return false;
    }
    return true;
}

bool OnlyBlanks(const char* text)
{
    for (; *text; ++text) {
        if (!std::strchr(" \t\n\v\f\r", *text))
            return false;
    }
    return true;
}

// The text after blanks and a sign starts like a decimal number (not "0x", "inf" or "nan",
// which strtod reads and the suite does not).
bool StartsDecimal(const char* text)
{
    while (*text && std::strchr(" \t\n\v\f\r", *text))
        ++text;
    if (*text == '+' || *text == '-')
        ++text;
    if (text[0] == '0' && (text[1] == 'x' || text[1] == 'X'))
        return false;
    return (*text >= '0' && *text <= '9') || *text == '.';
}

// Only blanks, a sign and decimal digits.
bool PlainInteger(const char* text)
{
    while (*text && std::strchr(" \t\n\v\f\r", *text))
        ++text;
    if (*text == '+' || *text == '-')
        ++text;
    if (!(*text >= '0' && *text <= '9'))
        return false;
    while (*text >= '0' && *text <= '9')
        ++text;
    return OnlyBlanks(text);
}

void CheckScan(const QString& text, const DecimalSyntax& syntax)
{
    const DecimalScan scan = ScanDecimal(text, syntax);
    FUZZ_CHECK(scan.length >= 0 && scan.length <= text.size());
    FUZZ_CHECK(!std::isnan(scan.value));
    if (scan.length == 0) {
        FUZZ_CHECK(Same(scan.value, 0.0) && !scan.hasPoint && !scan.hasExponent && !scan.outOfRange);
        return;
    }
    FUZZ_CHECK(!scan.hasPoint || syntax.point != 0);
    FUZZ_CHECK(!scan.hasExponent || syntax.exponent);
    FUZZ_CHECK(std::isinf(scan.value) ? scan.outOfRange : (!scan.outOfRange || scan.value == 0.0));
    const QChar first = text[0];
    const bool signed_ = first == u'+' || first == u'-' || (syntax.minusSign && first == QChar(0x2212));
    FUZZ_CHECK(syntax.sign || !signed_, "a sign was taken although the syntax has none");
    if (signed_ && first != u'+')
        FUZZ_CHECK(std::signbit(scan.value), "a negative number without its sign");
    // The number read is a number of its own: reading just it gives the same result.
    const DecimalScan again = ScanDecimal(QStringView(text).left(scan.length), syntax);
    FUZZ_CHECK(again.length == scan.length && Same(again.value, scan.value)
                   && again.hasPoint == scan.hasPoint && again.hasExponent == scan.hasExponent,
               "[%s] read %lld characters, but only %lld of them", fuzz::Show(text).constData(),
               (long long)scan.length, (long long)again.length);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::Text(data, size);
    const QByteArray ascii = text.toUtf8();

    // Whole-text doubles.
    double whole = 0.5;
    const bool isDouble = TextToDouble(text, whole);
    FUZZ_CHECK(isDouble ? std::isfinite(whole) : Same(whole, 0.5));
    if (isDouble && !text.contains(QChar(0x2212)))
        FUZZ_CHECK(Same(LeadingNumber(text), whole), "a number read whole and as a field differ");
    if (IsAscii(text)) {
        char* end = nullptr;
        errno = 0;
        const double c = std::strtod(ascii.constData(), &end);
        const bool underflow = errno == ERANGE && c == 0.0;
        const bool readAll = end != ascii.constData() && OnlyBlanks(end);
        if (isDouble)
            FUZZ_CHECK(readAll && Same(c, whole), "[%s]: %.17g, strtod %.17g", ascii.constData(), whole, c);
        else if (readAll && StartsDecimal(ascii.constData()))
            FUZZ_CHECK(underflow || std::isinf(c), "[%s] refused, strtod reads %.17g", ascii.constData(), c);

        // The leading number of a field is what strtod reads in front, within the range.
        const double leading = LeadingNumber(text);
        if (end != ascii.constData() && StartsDecimal(ascii.constData())) {
            const bool outOfRange = errno == ERANGE && (c == 0.0 || std::isinf(c));
            FUZZ_CHECK(Same(leading, outOfRange ? 0.0 : c), "[%s]: %.17g, strtod %.17g",
                       ascii.constData(), leading, c);
        } else {
            // No number, or "0x...", of which only the 0 is decimal.
            FUZZ_CHECK(leading == 0.0, "[%s]: %.17g from no number", ascii.constData(), leading);
        }
    }

    // Whole-text integers.
    qint64 wide = 3;
    int narrow = 3;
    const bool isInt64 = TextToInt64(text, wide);
    const bool isInt = TextToInt(text, narrow);
    FUZZ_CHECK(isInt == (isInt64 && wide >= INT_MIN && wide <= INT_MAX));
    FUZZ_CHECK(isInt ? narrow == wide : narrow == 3);
    if (isInt64) {
        qint64 back = 0;
        FUZZ_CHECK(TextToInt64(QString::number(wide), back) && back == wide);
    }
    if (IsAscii(text) && PlainInteger(ascii.constData())) {
        errno = 0;
        const long long c = std::strtoll(ascii.constData(), nullptr, 10);
        FUZZ_CHECK(isInt64 == (errno != ERANGE), "[%s]", ascii.constData());
        FUZZ_CHECK(!isInt64 || wide == c, "[%s]: %lld, strtoll %lld", ascii.constData(), (long long)wide, c);
    }

    // The scanner in the forms the readers use.
    for (int form = 0; form < 4; ++form) {
        DecimalSyntax syntax;
        syntax.sign = form != 1;
        syntax.minusSign = form == 1 || form == 3;
        syntax.exponent = form != 2;
        syntax.point = form == 1 ? u',' : form == 2 ? char16_t(0) : u'.';
        CheckScan(text, syntax);
    }

    // The writer of sectioned files gives text that reads back to the same double.
    if (size >= sizeof(double)) {
        double value = 0.0;
        std::memcpy(&value, data, sizeof value);
        if (std::isfinite(value)) {
            double back = 0.0;
            const QString written = FileObject::DoubleText(value);
            FUZZ_CHECK(TextToDouble(written, back) && Same(back, value), "%.17g written as %s",
                       value, written.toUtf8().constData());
        }
    }
    return 0;
}
