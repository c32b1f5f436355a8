#pragma once
// Reading numbers from text, the same way in every reader of the suite: independent of the
// locale ('.' is the decimal point, never a group separator), ASCII digits only, and each
// value the correctly rounded double of its digits (std::from_chars underneath).
//
// The decimal form:
//     [sign] digits [point [digits]]   or   [sign] point digits
// then, where allowed, an exponent: 'e' or 'E', an optional sign and at least one digit. An
// 'e' without a digit after it is not part of the number: "2e" and "2e+" read as 2.
// The integer form: [sign] decimal digits, or [sign] "0x"/"0X" and hexadecimal digits.

#include "QelBase/QelBaseExport.h"
#include <QStringView>
#include <QtGlobal>

// What ScanDecimal accepts.
struct QELBASE_EXPORT DecimalSyntax
{
    bool sign = true;          // a leading '+' or '-'
    bool minusSign = false;    // U+2212 MINUS SIGN counts as '-' (leading and in the exponent)
    bool exponent = true;      // an exponent may follow the digits
    char16_t point = u'.';     // the decimal point; 0 for whole numbers only
};

// What ScanDecimal read.
struct QELBASE_EXPORT DecimalScan
{
    qsizetype length = 0;      // characters taken; 0 when no number starts the text
    double value = 0.0;        // the nearest double; +-infinity beyond the largest double,
                               // a signed zero below the smallest one
    bool outOfRange = false;   // non-zero digits whose value is no finite non-zero double
    bool hasPoint = false;     // a decimal point was taken
    bool hasExponent = false;  // an exponent was taken
};

// Reads the longest number of the form `syntax` describes at the very start of `text`
// (blanks are not skipped). Never fails: no number gives length 0 and value 0.0.
QELBASE_EXPORT DecimalScan ScanDecimal(QStringView text, const DecimalSyntax& syntax = {});

// Whole-text reads, as files need them: blanks may surround the number, nothing else may.
// Each returns false and leaves `value` untouched when the text is not such a number.
//
// A decimal number with an optional sign ('+', '-' or U+2212) and exponent within the range
// of a double: "1e999" and "1e-999" are refused, subnormal values are kept.
QELBASE_EXPORT bool TextToDouble(QStringView text, double& value);
// An integer (decimal or 0x hexadecimal, optional sign) within the range of the type.
QELBASE_EXPORT bool TextToInt(QStringView text, int& value);
QELBASE_EXPORT bool TextToInt64(QStringView text, qint64& value);

// The number a text starts with, as the C library's atof reads a typed field: leading blanks,
// an optional '+' or '-', then the longest decimal number (exponent included); whatever
// follows is ignored. A text without one, or a value beyond the range of a double (too large
// or too small), gives 0.0.
QELBASE_EXPORT double LeadingNumber(QStringView text);
