#pragma once
// A text split into fields at a separator character ("Mud,Sand,Gravel" at ','), with the
// fields' blanks trimmed. An empty text has no fields; "a,,b" has three, the middle one empty.

#include "QelBase/QelBaseExport.h"
#include <QString>
#include <QStringList>

class QELBASE_EXPORT CQelString
{
public:
    CQelString();
    // The fields of `text` split at `separator`.
    CQelString(const QString& text, QChar separator);

    // Number of fields.
    int Size() const;
    // Field `index`; empty for an index out of range.
    QString operator[](int index) const;
    // Removes field `index`; false when out of range.
    bool Erase(int index);
    // The fields joined with `separator`.
    QString Join(QChar separator) const;
    const QStringList& Fields() const;

private:
    QStringList m_fields;
};
