#include "UnitDefinition.h"

#include <QelBase/NumberText.h>

UnitDefinition::UnitDefinition() = default;

QString UnitDefinition::GroupSection(int group)
{
    return QStringLiteral("Group%1").arg(group);
}

bool UnitDefinition::ParseItem(const QString& key, const QString& value, Item& item)
{
    const QStringList fields = value.split(QLatin1Char(';'));
    if (fields.size() != 4)
        return false;
    Item parsed;
    parsed.key = key.trimmed();
    parsed.menuText = fields[0].trimmed();
    parsed.abbreviation = fields[3].trimmed();
    if (parsed.key.isEmpty() || parsed.menuText.isEmpty() || parsed.abbreviation.isEmpty()
        || !TextToDouble(fields[1], parsed.factor) || parsed.factor == 0.0
        || !TextToDouble(fields[2], parsed.offset))
        return false;
    item = parsed;
    return true;
}

QList<UnitDefinition::Item> UnitDefinition::GetGroupItems(int group) const
{
    QList<Item> items;
    const auto entries = GetEntries(GroupSection(group));
    for (const auto& entry : entries) {
        Item item;
        if (ParseItem(entry.first, entry.second, item))
            items.append(item);
    }
    return items;
}

bool UnitDefinition::GetFirstGroupItem(int group, QString& key, QString& menuText, double& factor,
                                       double& offset, QString& abbreviation)
{
    m_items = GetGroupItems(group);
    m_next = 0;
    return takeNext(key, menuText, factor, offset, abbreviation);
}

bool UnitDefinition::GetNextGroupItem(QString& key, QString& menuText, double& factor,
                                      double& offset, QString& abbreviation)
{
    return takeNext(key, menuText, factor, offset, abbreviation);
}

bool UnitDefinition::takeNext(QString& key, QString& menuText, double& factor, double& offset,
                              QString& abbreviation)
{
    if (m_next >= m_items.size())
        return false;
    const Item& item = m_items[m_next++];
    key = item.key;
    menuText = item.menuText;
    factor = item.factor;
    offset = item.offset;
    abbreviation = item.abbreviation;
    return true;
}
