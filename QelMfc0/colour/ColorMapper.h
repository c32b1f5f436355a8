#pragma once
// Darkens a colour to half its brightness.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>

class QELMFC0_EXPORT ColorMapper
{
public:
    // Each channel halved (integer shift), the top byte dropped: 0x00FF8001 -> 0x007F4000.
    COLORREF Map(COLORREF color) const
    {
        return (color >> 1) & 0x007F7F7Fu;
    }
};
