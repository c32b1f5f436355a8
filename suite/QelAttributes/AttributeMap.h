#pragma once
// The host's map of named, typed attribute values. Each key holds a list of values; index 0 is
// the usual one, further indexes hold tables (for example the steps of a scroll bar). Keys are
// case-sensitive.
//
// In a sectioned file every value is one entry "key = typed text" (see CAttribValue for the
// text form); the key is repeated for indexes above 0, in index order.

#include "QelAttributes/QelAttributesExport.h"
#include "AttribValue.h"

#include <QMap>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class FileObject;
class CQelDouble;

class QELATTRIBUTES_EXPORT CAttributeMap
{
public:
    // The highest index FindCreate grows a key to.
    static constexpr int kMaxIndex = 65535;

    // The value at `index` of `key`, nullptr when missing. The pointer stays valid until the
    // key's list of values changes (FindCreate on a higher index, Remove, Load, assignment).
    CAttribValue* FindValue(const QString& key, int index = 0);
    const CAttribValue* FindValue(const QString& key, int index = 0) const;
    // The value at `index` of `key`, creating it and any missing lower indexes as type None;
    // nullptr for an index below 0 or above kMaxIndex.
    CAttribValue* FindCreate(const QString& key, int index = 0);

    // Reads the value at index 0 of `key` converted to the type asked for; false and `v`
    // untouched when the key is missing, of type None or does not convert.
    bool GetAttribValue(const QString& key, QString& v) const;
    bool GetAttribValue(const QString& key, int& v) const;
    bool GetAttribValue(const QString& key, double& v) const;
    bool GetAttribValue(const QString& key, bool& v) const;
    bool GetAttribValue(const QString& key, COLORREF& v) const;
    bool GetAttribValue(const QString& key, QPair<double, double>& v) const;
    // The colour at index 0 of `key`, with the same rules.
    bool GetAttribColor(const QString& key, COLORREF& v) const;

    // Stores a value at index 0 of `key` (created when missing), with the value's type.
    void SetAttribValue(const QString& key, const QString& value);
    void SetAttribValue(const QString& key, const char* value);   // a string, not a bool
    void SetAttribValue(const QString& key, int value);
    void SetAttribValue(const QString& key, double value);
    void SetAttribValue(const QString& key, bool value);
    void SetAttribValue(const QString& key, const QPair<double, double>& value);
    void SetAttribValue(const QString& key, const CQelDouble& value);
    // Stores a colour at index 0 of `key`.
    void SetAttribColor(const QString& key, COLORREF value);

    // Removes the key with all its values; false when missing.
    bool Remove(const QString& key);
    // The keys in sorted order.
    QStringList Keys() const;
    // Number of keys.
    int Count() const;
    // Removes every key.
    void Clear();

    // Replaces the contents with the entries of `section`; an entry that is not in the typed
    // text form is kept as a string. False (and the map unchanged) when the section is missing.
    bool Load(const FileObject& file, const QString& section);
    // Replaces the entries of `section` by the map's values, keeping the section's place and
    // comments. Keys the file cannot hold (empty, with '=' or a leading '[', ';', '#') are left out.
    void Save(FileObject& file, const QString& section) const;

    bool operator==(const CAttributeMap& other) const;

private:
    QMap<QString, QList<CAttribValue>> m_values;
};
