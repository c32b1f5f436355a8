#include "UnitCategories.h"

#include <QCoreApplication>

QString UnitCategoryName(int kind)
{
    if (kind < 0 || kind >= kUnitKindCount)
        return QString();
    return QString::fromLatin1(kUnitCategoryNames[size_t(kind)]);
}

QString UnitCategoryDisplayName(int kind)
{
    if (kind < 0 || kind >= kUnitKindCount)
        return QString();
    return QCoreApplication::translate("UnitCategories", kUnitCategoryNames[size_t(kind)]);
}

int UnitKindFromName(const QString& name)
{
    const QString wanted = name.trimmed();
    for (int kind = 0; kind < kUnitKindCount; ++kind) {
        if (wanted.compare(QLatin1String(kUnitCategoryNames[size_t(kind)]), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return -1;
}
