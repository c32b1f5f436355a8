#include "AttribDefMap.h"

#include <QelBase/FileObject.h>

#include <mutex>

CAttribDefMap& CAttribDefMap::GetAttribDefMap()
{
    static CAttribDefMap map;
    return map;
}

void CAttribDefMap::Add(const CAttribDefRec& rec)
{
    if (rec.name.isEmpty())
        return;
    auto copy = std::make_unique<CAttribDefRec>(rec);
    std::unique_lock lock(m_lock);
    m_byName.insert(copy->name, copy.get());
    m_records.push_back(std::move(copy));
}

const CAttribDefRec* CAttribDefMap::Find(const QString& name) const
{
    std::shared_lock lock(m_lock);
    return m_byName.value(name, nullptr);
}

int CAttribDefMap::Count() const
{
    std::shared_lock lock(m_lock);
    return int(m_byName.size());
}

void CAttribDefMap::Clear()
{
    std::unique_lock lock(m_lock);
    m_byName.clear();
    m_records.clear();
}

bool CAttribDefMap::TypeFromName(const QString& word, CAttribValue::Type& type)
{
    using Type = CAttribValue::Type;
    static const struct { const char* name; Type type; } kNames[] = {
        {"none", Type::None}, {"string", Type::String}, {"int", Type::Int},
        {"double", Type::Double}, {"bool", Type::Bool}, {"color", Type::Color},
        {"doublepair", Type::DoublePair},
    };
    const QString wanted = word.trimmed();
    for (const auto& entry : kNames) {
        if (wanted.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0) {
            type = entry.type;
            return true;
        }
    }
    return false;
}

bool CAttribDefMap::Load(const FileObject& file, const QString& section)
{
    bool any = false;
    const auto entries = file.GetEntries(section);
    for (const auto& [name, text] : entries) {
        const QStringList parts = text.split(QLatin1Char(';'));
        CAttribDefRec rec;
        rec.name = name;
        if (!TypeFromName(parts.first(), rec.type))
            continue;
        if (parts.size() == 2) {
            rec.description = parts[1].trimmed();
        } else if (parts.size() > 2) {
            rec.description = parts.mid(1, parts.size() - 2).join(QLatin1Char(';')).trimmed();
            rec.ctlAttribs = parts.last().trimmed();
        }
        Add(rec);
        any = true;
    }
    return any;
}

bool CAttribDefMap::GetCtlAttribs(const QString& key, QString& list) const
{
    std::shared_lock lock(m_lock);
    const CAttribDefRec* rec = m_byName.value(key, nullptr);
    list = rec ? rec->ctlAttribs : QString();
    return rec && !list.isEmpty();
}
