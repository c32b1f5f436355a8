#include "AttributeMap.h"

#include "QelDouble.h"

#include <QelBase/FileObject.h>

CAttribValue* CAttributeMap::FindValue(const QString& key, int index)
{
    const auto it = m_values.find(key);
    if (it == m_values.end() || index < 0 || index >= it->size())
        return nullptr;
    return &(*it)[index];
}

const CAttribValue* CAttributeMap::FindValue(const QString& key, int index) const
{
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd() || index < 0 || index >= it->size())
        return nullptr;
    return &it->at(index);
}

CAttribValue* CAttributeMap::FindCreate(const QString& key, int index)
{
    if (index < 0 || index > kMaxIndex)
        return nullptr;
    QList<CAttribValue>& list = m_values[key];
    if (list.size() <= index)
        list.resize(index + 1);
    return &list[index];
}

bool CAttributeMap::GetAttribValue(const QString& key, QString& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetString(v);
}

bool CAttributeMap::GetAttribValue(const QString& key, int& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetInt(v);
}

bool CAttributeMap::GetAttribValue(const QString& key, double& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetDouble(v);
}

bool CAttributeMap::GetAttribValue(const QString& key, bool& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetBool(v);
}

bool CAttributeMap::GetAttribValue(const QString& key, COLORREF& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetColor(v);
}

bool CAttributeMap::GetAttribValue(const QString& key, QPair<double, double>& v) const
{
    const CAttribValue* value = FindValue(key);
    return value && value->TryGetDoublePair(v.first, v.second);
}

bool CAttributeMap::GetAttribColor(const QString& key, COLORREF& v) const
{
    return GetAttribValue(key, v);
}

void CAttributeMap::SetAttribValue(const QString& key, const QString& value)
{
    FindCreate(key)->SetString(value);
}

void CAttributeMap::SetAttribValue(const QString& key, const char* value)
{
    FindCreate(key)->SetString(QString::fromUtf8(value));
}

void CAttributeMap::SetAttribValue(const QString& key, int value)
{
    FindCreate(key)->SetInt(value);
}

void CAttributeMap::SetAttribValue(const QString& key, double value)
{
    FindCreate(key)->SetDouble(value);
}

void CAttributeMap::SetAttribValue(const QString& key, bool value)
{
    FindCreate(key)->SetBool(value);
}

void CAttributeMap::SetAttribValue(const QString& key, const QPair<double, double>& value)
{
    FindCreate(key)->SetDoublePair(value.first, value.second);
}

void CAttributeMap::SetAttribValue(const QString& key, const CQelDouble& value)
{
    FindCreate(key)->SetValue(value);
}

void CAttributeMap::SetAttribColor(const QString& key, COLORREF value)
{
    FindCreate(key)->SetColor(value);
}

bool CAttributeMap::Remove(const QString& key)
{
    return m_values.remove(key) > 0;
}

QStringList CAttributeMap::Keys() const
{
    return m_values.keys();
}

int CAttributeMap::Count() const
{
    return int(m_values.size());
}

void CAttributeMap::Clear()
{
    m_values.clear();
}

bool CAttributeMap::Load(const FileObject& file, const QString& section)
{
    if (!file.HasSection(section))
        return false;
    QMap<QString, QList<CAttribValue>> loaded;
    const auto entries = file.GetEntries(section);
    for (const auto& [key, text] : entries) {
        CAttribValue value;
        if (!CAttribValue::FromText(text, value))
            value.SetString(text);
        loaded[key].append(value);
    }
    m_values = loaded;
    return true;
}

void CAttributeMap::Save(FileObject& file, const QString& section) const
{
    file.AddSection(section);   // an empty map still leaves its section
    const auto old = file.GetEntries(section);
    for (const auto& entry : old)
        file.RemoveEntry(section, entry.first);
    for (auto it = m_values.constBegin(); it != m_values.constEnd(); ++it) {
        for (const CAttribValue& value : it.value())
            file.AddEntry(section, it.key(), value.ToText());
    }
}

bool CAttributeMap::operator==(const CAttributeMap& other) const
{
    return m_values == other.m_values;
}
