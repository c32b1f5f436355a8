#include "QelString.h"

CQelString::CQelString() = default;

CQelString::CQelString(const QString& text, QChar separator)
{
    if (text.isEmpty())
        return;
    const QStringList parts = text.split(separator);
    m_fields.reserve(parts.size());
    for (const QString& part : parts)
        m_fields.append(part.trimmed());
}

int CQelString::Size() const
{
    return int(m_fields.size());
}

QString CQelString::operator[](int index) const
{
    return index >= 0 && index < m_fields.size() ? m_fields[index] : QString();
}

bool CQelString::Erase(int index)
{
    if (index < 0 || index >= m_fields.size())
        return false;
    m_fields.removeAt(index);
    return true;
}

QString CQelString::Join(QChar separator) const
{
    return m_fields.join(separator);
}

const QStringList& CQelString::Fields() const
{
    return m_fields;
}
