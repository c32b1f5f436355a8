#pragma once
// The text attributes of the message view: face, point size, style flags and colour.

#include "QelBase/QelBaseExport.h"
#include <QString>
#include <QelBase/QelTypes.h>

// Message-text attribute record; every field has its library-wide default.
struct QELBASE_EXPORT MSGTEXTATTRIBS
{
    QString faceName = QStringLiteral("Arial");  // font face name
    int pointSize = 10;                           // size in points
    bool italic = false;                          // italic face
    bool bold = false;                            // bold weight
    COLORREF color = 0;                           // text colour, 0x00BBGGRR
};
