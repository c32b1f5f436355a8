#pragma once
// One typed attribute value: nothing, a string, an int, a double, a bool, a colour or a pair of
// doubles. Every getter converts from the stored type; text that does not read gives 0, false
// or an empty string.
//
// Text form (ToText / FromText), one letter for the type, a colon, the value:
//   n:            nothing            i:12          int (decimal, or 0x hexadecimal)
//   s:any text    string             d:0.5         double ('.' decimal point)
//   b:1           bool (1/0)         c:#RRGGBB     colour (c:#TTRRGGBB when the top byte is set)
//   p:1 2         pair of doubles (blank or comma between them)
// Strings are kept on one line: a newline becomes a blank.

#include "QelAttributes/QelAttributesExport.h"
#include <QelBase/QelTypes.h>

#include <QString>

#include <utility>
#include <variant>

class CQelDouble;

class QELATTRIBUTES_EXPORT CAttribValue
{
public:
    enum class Type { None, String, Int, Double, Bool, Color, DoublePair };

    // A value of type None.
    CAttribValue() = default;

    // The type stored.
    Type GetType() const;

    // The value as a string: numbers in their shortest C-locale text, a bool as "1"/"0", a
    // colour as "#RRGGBB", a pair as "first second"; empty for None.
    QString GetString() const;
    // The value as an int: doubles rounded to the nearest int (clamped), strings parsed.
    int GetInt() const;
    // The value as a double: strings parsed in the C locale, a pair gives its first value.
    double GetDouble() const;
    // The value as a bool: numbers are true when not zero, strings read as 1/0, true/false,
    // yes/no, on/off or a number.
    bool GetBool() const;
    // The value as a colour: numbers taken as 0x00BBGGRR, strings as "#RRGGBB" or a number.
    COLORREF GetColor() const;
    // The value as a pair: a single number gives (number, 0); strings hold two numbers.
    void GetDoublePair(double& first, double& second) const;

    // The same conversions, reporting whether the value could be read: false for None and for
    // text that does not parse, leaving the out values untouched.
    bool TryGetString(QString& out) const;
    bool TryGetInt(int& out) const;
    bool TryGetDouble(double& out) const;
    bool TryGetBool(bool& out) const;
    bool TryGetColor(COLORREF& out) const;
    bool TryGetDoublePair(double& first, double& second) const;

    // Setters store the value and its type.
    void SetString(const QString& value);
    void SetInt(int value);
    void SetDouble(double value);
    void SetBool(bool value);
    void SetColor(COLORREF value);
    void SetDoublePair(double first, double second);
    void SetValue(const CQelDouble& value);
    // Back to type None.
    void Clear();

    // The typed text form described above.
    QString ToText() const;
    // Reads the typed text form; false (and `out` untouched) for an unknown type letter or a
    // value that does not parse.
    static bool FromText(const QString& text, CAttribValue& out);

    // Same type and same stored value.
    bool operator==(const CAttribValue& other) const;

private:
    std::variant<std::monostate, QString, int, double, bool, COLORREF, std::pair<double, double>>
        m_value;
};
