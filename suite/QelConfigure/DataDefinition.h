#pragma once
// The suite's data definition: the groups of data items the applications record (soundings,
// seabed, dredging, ...), each item with a name, a format and, for items of texts
// (FORMAT_MAP_TEXT), the texts its values 0, 1, 2, ... stand for. Read from the common file
// "DataDefinition.def" (docs/formats.md), looked up again at every call after a project change.

#include "QelConfigure/QelConfigureExport.h"
#include <QString>
#include <QStringList>
#include <map>
#include <utility>

class FileObject;

class QELCONFIGURE_EXPORT DataDefinition
{
public:
    // Formats of data items.
    enum Format : int {
        FORMAT_INT = 1,
        FORMAT_DOUBLE = 2,
        FORMAT_STRING = 3,
        FORMAT_DEPTH = 10,
        FORMAT_MAP_TEXT = 30, // whole numbers that stand for texts
    };

    struct Item {
        QString name;
        int format = 0;
        QStringList texts; // FORMAT_MAP_TEXT: the text of value i at i
    };

    DataDefinition();
    ~DataDefinition();

    // The definition of the open project's common files (read on first use and after every
    // project change; empty when there is no file).
    static DataDefinition& GetDataDefinition();

    // Replaces the definition with that of a data-definition file; false when the file has no
    // group. Entries that do not read are skipped and listed in Errors().
    bool Load(const FileObject& file);
    // Forgets every group.
    void Clear();

    // The format of an item; false when the item is not defined.
    bool GetGroupItemFormat(int group, int item, int& format) const;
    // The text of value `index` of an item of texts; false for another item or an index out of
    // range.
    bool GetGroupItemMapTxt(int group, int item, int index, QString& text) const;
    // The name of an item, empty when it is not defined; the name of a group likewise.
    QString GetGroupItemName(int group, int item) const;
    QString GetGroupName(int group) const;
    // What the last Load skipped or repaired, one line each.
    QStringList Errors() const;

private:
    std::map<int, QString> m_groups;
    std::map<std::pair<int, int>, Item> m_items;
    QStringList m_errors;
    bool m_loaded = false;
};
