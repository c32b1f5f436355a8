#pragma once
// Definitions of the attributes a suite knows: type, description and the control attributes
// that tell a control how to show the value ("FMT_DISTANCE,0,100,1": a format code, then
// items the control reads, comma-separated).
//
// In a sectioned file (section "AttributeDefinitions" by default) each definition is one entry
//   Name = type; description; control attributes
// with type one of none, string, int, double, bool, color, doublepair (any case). Description
// and control attributes may be left out; the control attributes are the text after the last ';'.

#include "QelAttributes/QelAttributesExport.h"
#include "AttribValue.h"

#include <QHash>
#include <shared_mutex>
#include <QString>

#include <memory>
#include <vector>

class FileObject;

struct QELATTRIBUTES_EXPORT CAttribDefRec
{
    QString name;
    CAttribValue::Type type = CAttribValue::Type::None;
    QString description;
    QString ctlAttribs;

    // The control attributes, empty when the definition has none.
    const QString& GetCtlAttribs() const { return ctlAttribs; }
};

class QELATTRIBUTES_EXPORT CAttribDefMap
{
public:
    // The process's one map of definitions. All operations may be called from any thread.
    static CAttribDefMap& GetAttribDefMap();

    CAttribDefMap() = default;
    CAttribDefMap(const CAttribDefMap&) = delete;
    CAttribDefMap& operator=(const CAttribDefMap&) = delete;

    // Adds a definition, replacing one of the same name (names are case-sensitive); a record
    // without a name is ignored.
    void Add(const CAttribDefRec& rec);
    // The definition of `name`, nullptr when unknown. The record stays valid until Clear, even
    // when the name is defined again.
    const CAttribDefRec* Find(const QString& name) const;
    // Adds the definitions of a section; entries with an unknown type are skipped. False when
    // the section gives no definition.
    bool Load(const FileObject& file, const QString& section = QStringLiteral("AttributeDefinitions"));
    // The control attributes of the definition of `key`; false and empty when unknown.
    bool GetCtlAttribs(const QString& key, QString& list) const;
    // Number of names defined.
    int Count() const;
    // Forgets every definition (records found earlier become invalid).
    void Clear();

    // The type named in a definition ("double" -> Double); false for an unknown word.
    static bool TypeFromName(const QString& word, CAttribValue::Type& type);

private:
    mutable std::shared_mutex m_lock;
    QHash<QString, const CAttribDefRec*> m_byName;
    std::vector<std::unique_ptr<CAttribDefRec>> m_records;
};
