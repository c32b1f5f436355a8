#pragma once
// A point font made from a face, size and style, corrected for the display's scaling.

#include "QelMfc0/QelMfc0Export.h"
#include <QFont>
#include <QString>

class FontInfo;
class QPaintDevice;
struct MSGTEXTATTRIBS;

// Font created from a face name and a point size; remembers a height in logical pixels
// that callers use for layout.
class QELMFC0_EXPORT PECFont : public QFont
{
public:
    // The largest point size Create accepts.
    static constexpr int kMaxPointSize = 32767;

    // The application's default font; Height() is 0 until Create succeeds.
    PECFont();

    // Makes this a point font of the face and size, bold weight 700 else 400, italic as given,
    // resolved for the device when one is given. With dpiCorrect the stored height is
    // DpiCor(size) and the point size is size; without, the height is size and the point size
    // is the display-neutral DpiRevCor(size × 10) / 10. Returns false, changing nothing, for an
    // empty face or a size outside 1..kMaxPointSize.
    bool Create(const QString& face, int size, bool italic, bool bold, const QPaintDevice* dc,
                bool dpiCorrect);
    // The same from a font description, always display-corrected.
    bool Create(const FontInfo& info, const QPaintDevice* dc);
    // The same from a message-text attribute record, always display-corrected.
    bool Create(const MSGTEXTATTRIBS& attribs, const QPaintDevice* dc);

    // The height stored by the last successful Create; 0 before.
    int Height() const { return m_height; }

private:
    int m_height = 0;
};
