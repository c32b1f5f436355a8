#include "DataInfo.h"

#include <QelBase/QelString.h>

#include <limits>

CDataInfo::CDataInfo() = default;

CDataInfo::CDataInfo(int group, int item, int format)
    : m_group(group)
    , m_item(item)
    , m_format(format)
{
}

bool CDataInfo::ReadWholeNumber(QStringView text, int& value)
{
    const QStringView digits = text.trimmed();
    if (digits.isEmpty())
        return false;
    qint64 number = 0;
    for (const QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
        number = number * 10 + (c.unicode() - u'0');
        if (number > std::numeric_limits<int>::max())
            return false;
    }
    value = int(number);
    return true;
}

bool CDataInfo::SetFromString(const QString& text)
{
    const CQelString fields(text, QLatin1Char(','));
    if (fields.Size() != 3)
        return false;
    int parts[3] = {0, 0, 0};
    for (int i = 0; i < 3; ++i)
        if (!ReadWholeNumber(fields[i], parts[i]))
            return false;
    m_group = parts[0];
    m_item = parts[1];
    m_format = parts[2];
    return true;
}

QString CDataInfo::ToString() const
{
    return QStringLiteral("%1,%2,%3").arg(m_group).arg(m_item).arg(m_format);
}

void CDataInfo::GetInfo(int& group, int& item, int& format) const
{
    group = m_group;
    item = m_item;
    format = m_format;
}

int CDataInfo::Group() const
{
    return m_group;
}

int CDataInfo::Item() const
{
    return m_item;
}

int CDataInfo::Format() const
{
    return m_format;
}

bool CDataInfo::IsValid() const
{
    return m_group >= 0 && m_item >= 0 && m_format >= 0;
}
