#include <QelMfc0/drawing/PECFont.h>

#include <QelBase/DisplayScale.h>
#include <QelBase/MsgTextAttribs.h>
#include <QelMfc0/drawing/FontInfo.h>

#include <QPaintDevice>

PECFont::PECFont() = default;

bool PECFont::Create(const QString& face, int size, bool italic, bool bold,
                     const QPaintDevice* dc, bool dpiCorrect)
{
    if (face.isEmpty() || size <= 0 || size > kMaxPointSize)
        return false;

    // Sizes are kept in tenths of a point, as the stored font descriptions do.
    const int tenths = dpiCorrect ? size * 10 : DpiRevCor(size * 10);
    if (tenths <= 0)
        return false;

    QFont font(face);
    font.setPointSizeF(tenths / 10.0);
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    font.setItalic(italic);
    font.setUnderline(false);
    font.setStrikeOut(false);
    // A point font for the given device: its metrics follow that device's resolution.
    QFont::operator=(dc ? QFont(font, dc) : font);
    m_height = dpiCorrect ? DpiCor(size) : size;
    return true;
}

bool PECFont::Create(const FontInfo& info, const QPaintDevice* dc)
{
    return Create(info.GetName(), info.GetSize(), info.GetItalic(), info.GetBold(), dc, true);
}

bool PECFont::Create(const MSGTEXTATTRIBS& attribs, const QPaintDevice* dc)
{
    return Create(attribs.faceName, attribs.pointSize, attribs.italic, attribs.bold, dc, true);
}
