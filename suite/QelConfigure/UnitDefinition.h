#pragma once
// The units file of the suite (file kind 8): the units offered in unit menus, by group.
// Groups are sections named "Group<N>"; each entry is
//     key = menu text; factor; offset; abbreviation
// with internal = value * factor + offset (factor in internal units per unit, e.g. metres).
// Groups: 1 speed, 2 distance, 3 angle, 4 volume, 5 area, 6 temperature.

#include "QelConfigure/QelConfigureExport.h"
#include <QelBase/FileObject.h>

#include <QList>

class QELCONFIGURE_EXPORT UnitDefinition : public FileObject
{
public:
    // Well-known groups of the units file.
    enum Group : int { GROUP_SPEED = 1, GROUP_DISTANCE = 2, GROUP_ANGLE = 3, GROUP_VOLUME = 4,
                 GROUP_AREA = 5, GROUP_TEMPERATURE = 6 };

    // One unit of a group.
    struct Item
    {
        QString key;
        QString menuText;
        double factor = 1.0;
        double offset = 0.0;
        QString abbreviation;
    };

    UnitDefinition();

    // The section name of a group: "Group2" for 2.
    static QString GroupSection(int group);
    // Parses one entry; false for a malformed one (missing field, empty key, menu text or
    // abbreviation, a factor that is zero or not a finite number, a non-finite offset).
    static bool ParseItem(const QString& key, const QString& value, Item& item);

    // Starts reading a group: the first well-formed item; false (outputs untouched) when the
    // group has none. Malformed entries are skipped.
    bool GetFirstGroupItem(int group, QString& key, QString& menuText, double& factor,
                           double& offset, QString& abbreviation);
    // The next well-formed item of the group; false at the end.
    bool GetNextGroupItem(QString& key, QString& menuText, double& factor, double& offset,
                          QString& abbreviation);
    // Every well-formed item of a group, in file order.
    QList<Item> GetGroupItems(int group) const;

private:
    bool takeNext(QString& key, QString& menuText, double& factor, double& offset,
                  QString& abbreviation);

    QList<Item> m_items;
    qsizetype m_next = 0;
};
