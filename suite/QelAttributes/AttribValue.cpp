#include "AttribValue.h"

#include "QelDouble.h"

#include <QelBase/FileObject.h>
#include <QelBase/NumberText.h>

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

enum Index { kNone, kString, kInt, kDouble, kBool, kColor, kPair };

int roundToInt(double v)
{
    if (std::isnan(v))
        return 0;
    if (v >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (v <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(std::lround(v));
}

COLORREF roundToColor(double v)
{
    if (std::isnan(v) || v <= 0.0)
        return 0;
    if (v >= 4294967295.0)
        return 0xFFFFFFFFu;
    return COLORREF(std::llround(v));
}

QString colorText(COLORREF c)
{
    const COLORREF top = c >> 24;
    QString text = QStringLiteral("#");
    if (top != 0)
        text += QStringLiteral("%1").arg(top, 2, 16, QLatin1Char('0'));
    text += QStringLiteral("%1%2%3")
                .arg(GetRValue(c), 2, 16, QLatin1Char('0'))
                .arg(GetGValue(c), 2, 16, QLatin1Char('0'))
                .arg(GetBValue(c), 2, 16, QLatin1Char('0'));
    return text.toUpper();
}

// "#RRGGBB" or "#TTRRGGBB".
bool parseColorText(QStringView text, COLORREF& out)
{
    text = text.trimmed();
    if (!text.startsWith(u'#') || (text.size() != 7 && text.size() != 9))
        return false;
    const QStringView digits = text.mid(1);
    for (QChar ch : digits) {
        if (!ch.isDigit() && !(ch.toLower() >= u'a' && ch.toLower() <= u'f'))
            return false;
    }
    bool ok = false;
    const quint32 v = digits.toUInt(&ok, 16);
    if (!ok)
        return false;
    const COLORREF top = digits.size() == 8 ? (v >> 24) : 0;
    out = (top << 24) | RGB(int((v >> 16) & 0xFF), int((v >> 8) & 0xFF), int(v & 0xFF));
    return true;
}

bool parsePair(QStringView text, double& first, double& second)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    const QStringList parts = text.toString().split(separators, Qt::SkipEmptyParts);
    double a = 0.0;
    double b = 0.0;
    if (parts.size() != 2 || !FileObject::ParseDouble(parts[0], a)
        || !FileObject::ParseDouble(parts[1], b))
        return false;
    first = a;
    second = b;
    return true;
}

// A number read from text: an int form first, then a double form.
bool parseNumber(QStringView text, double& out)
{
    int i = 0;
    if (FileObject::ParseInt(text, i)) {
        out = i;
        return true;
    }
    return FileObject::ParseDouble(text, out);
}

QString oneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

} // namespace

CAttribValue::Type CAttribValue::GetType() const
{
    return Type(m_value.index());
}

bool CAttribValue::TryGetString(QString& out) const
{
    switch (m_value.index()) {
    case kString: out = std::get<kString>(m_value); return true;
    case kInt: out = QString::number(std::get<kInt>(m_value)); return true;
    case kDouble: out = FileObject::DoubleText(std::get<kDouble>(m_value)); return true;
    case kBool: out = std::get<kBool>(m_value) ? QStringLiteral("1") : QStringLiteral("0"); return true;
    case kColor: out = colorText(std::get<kColor>(m_value)); return true;
    case kPair: {
        const auto& p = std::get<kPair>(m_value);
        out = FileObject::DoubleText(p.first) + QLatin1Char(' ') + FileObject::DoubleText(p.second);
        return true;
    }
    default: return false;
    }
}

bool CAttribValue::TryGetDouble(double& out) const
{
    switch (m_value.index()) {
    case kString: return parseNumber(std::get<kString>(m_value), out);
    case kInt: out = std::get<kInt>(m_value); return true;
    case kDouble: out = std::get<kDouble>(m_value); return true;
    case kBool: out = std::get<kBool>(m_value) ? 1.0 : 0.0; return true;
    case kColor: out = std::get<kColor>(m_value); return true;
    case kPair: out = std::get<kPair>(m_value).first; return true;
    default: return false;
    }
}

bool CAttribValue::TryGetInt(int& out) const
{
    switch (m_value.index()) {
    case kInt: out = std::get<kInt>(m_value); return true;
    case kBool: out = std::get<kBool>(m_value) ? 1 : 0; return true;
    case kColor: out = int(std::get<kColor>(m_value)); return true;
    case kString:
        if (FileObject::ParseInt(std::get<kString>(m_value), out))
            return true;
        [[fallthrough]];
    default: {
        double d = 0.0;
        if (!TryGetDouble(d) || std::isnan(d))
            return false;
        out = roundToInt(d);
        return true;
    }
    }
}

bool CAttribValue::TryGetBool(bool& out) const
{
    if (m_value.index() == kBool) {
        out = std::get<kBool>(m_value);
        return true;
    }
    if (m_value.index() == kString && FileObject::ParseBool(std::get<kString>(m_value), out))
        return true;
    double d = 0.0;
    if (!TryGetDouble(d))
        return false;
    out = d != 0.0 && !std::isnan(d);
    return true;
}

bool CAttribValue::TryGetColor(COLORREF& out) const
{
    switch (m_value.index()) {
    case kColor: out = std::get<kColor>(m_value); return true;
    case kInt: out = COLORREF(std::get<kInt>(m_value)); return true;
    case kString: {
        const QString& text = std::get<kString>(m_value);
        if (parseColorText(text, out))
            return true;
        qint64 v = 0;
        if (TextToInt64(text, v) && v >= 0 && v <= 0xFFFFFFFFLL) {
            out = COLORREF(v);
            return true;
        }
        double d = 0.0;
        if (!FileObject::ParseDouble(text, d))
            return false;
        out = roundToColor(d);
        return true;
    }
    default: {
        double d = 0.0;
        if (!TryGetDouble(d) || std::isnan(d))
            return false;
        out = roundToColor(d);
        return true;
    }
    }
}

bool CAttribValue::TryGetDoublePair(double& first, double& second) const
{
    if (m_value.index() == kPair) {
        first = std::get<kPair>(m_value).first;
        second = std::get<kPair>(m_value).second;
        return true;
    }
    if (m_value.index() == kString && parsePair(std::get<kString>(m_value), first, second))
        return true;
    double d = 0.0;
    if (!TryGetDouble(d))
        return false;
    first = d;
    second = 0.0;
    return true;
}

QString CAttribValue::GetString() const
{
    QString v;
    TryGetString(v);
    return v;
}

int CAttribValue::GetInt() const
{
    int v = 0;
    TryGetInt(v);
    return v;
}

double CAttribValue::GetDouble() const
{
    double v = 0.0;
    TryGetDouble(v);
    return v;
}

bool CAttribValue::GetBool() const
{
    bool v = false;
    TryGetBool(v);
    return v;
}

COLORREF CAttribValue::GetColor() const
{
    COLORREF v = 0;
    TryGetColor(v);
    return v;
}

void CAttribValue::GetDoublePair(double& first, double& second) const
{
    double a = 0.0;
    double b = 0.0;
    TryGetDoublePair(a, b);
    first = a;
    second = b;
}

void CAttribValue::SetString(const QString& value)
{
    m_value.emplace<kString>(oneLine(value));
}

void CAttribValue::SetInt(int value)
{
    m_value.emplace<kInt>(value);
}

void CAttribValue::SetDouble(double value)
{
    m_value.emplace<kDouble>(value);
}

void CAttribValue::SetBool(bool value)
{
    m_value.emplace<kBool>(value);
}

void CAttribValue::SetColor(COLORREF value)
{
    m_value.emplace<kColor>(value);
}

void CAttribValue::SetDoublePair(double first, double second)
{
    m_value.emplace<kPair>(first, second);
}

void CAttribValue::SetValue(const CQelDouble& value)
{
    SetDouble(value.Get());
}

void CAttribValue::Clear()
{
    m_value.emplace<kNone>();
}

QString CAttribValue::ToText() const
{
    static const char kLetters[] = {'n', 's', 'i', 'd', 'b', 'c', 'p'};
    return QString(QLatin1Char(kLetters[m_value.index()])) + QLatin1Char(':') + GetString();
}

bool CAttribValue::FromText(const QString& text, CAttribValue& out)
{
    if (text.size() < 2 || text[1] != QLatin1Char(':'))
        return false;
    const QStringView body = QStringView(text).mid(2);
    CAttribValue v;
    switch (text[0].toLower().unicode()) {
    case u'n':
        if (!body.trimmed().isEmpty())
            return false;
        break;
    case u's': v.SetString(body.toString()); break;
    case u'i': {
        int i = 0;
        if (!FileObject::ParseInt(body, i))
            return false;
        v.SetInt(i);
        break;
    }
    case u'd': {
        double d = 0.0;
        if (!FileObject::ParseDouble(body, d))
            return false;
        v.SetDouble(d);
        break;
    }
    case u'b': {
        bool b = false;
        if (!FileObject::ParseBool(body, b))
            return false;
        v.SetBool(b);
        break;
    }
    case u'c': {
        COLORREF c = 0;
        if (!parseColorText(body, c))
            return false;
        v.SetColor(c);
        break;
    }
    case u'p': {
        double a = 0.0;
        double b = 0.0;
        if (!parsePair(body, a, b))
            return false;
        v.SetDoublePair(a, b);
        break;
    }
    default: return false;
    }
    out = v;
    return true;
}

bool CAttribValue::operator==(const CAttribValue& other) const
{
    return m_value == other.m_value;
}
