#include <QelMfc0/drawing/FontInfo.h>

#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>

#include <algorithm>

FontInfo::FontInfo(const QString& name, int size, bool bold, bool italic, COLORREF color)
    : m_name(name), m_size(size), m_bold(bold), m_italic(italic), m_color(color)
{
}

bool FontInfo::operator==(const FontInfo& other) const
{
    return m_name == other.m_name && m_size == other.m_size && m_bold == other.m_bold
        && m_italic == other.m_italic && m_color == other.m_color;
}

void FontInfo::SetFontInfo(const QString& name, int size, bool bold, bool italic, COLORREF color)
{
    m_name = name;
    m_size = size;
    m_bold = bold;
    m_italic = italic;
    m_color = color;
}

void FontInfo::GetFontInfo(QString& name, int& size, bool& bold, bool& italic,
                           COLORREF& color) const
{
    name = m_name;
    size = m_size;
    bold = m_bold;
    italic = m_italic;
    color = m_color;
}

void FontInfo::LoadAttributes(const CAttributeMap& attributes)
{
    // Each value goes through a local so that a failed read cannot touch the field.
    QString name;
    if (attributes.GetAttribValue(ATTR_FONTNAME, name))
        m_name = name;
    int size = 0;
    if (attributes.GetAttribValue(ATTR_FONTSIZE, size))
        m_size = size;
    bool bold = false;
    if (attributes.GetAttribValue(ATTR_FONTBOLD, bold))
        m_bold = bold;
    bool italic = false;
    if (attributes.GetAttribValue(ATTR_FONTITALIC, italic))
        m_italic = italic;
    COLORREF color = 0;
    if (attributes.GetAttribColor(ATTR_TEXTCOLOR, color))
        m_color = color;
}

QFont FontInfo::ToQFont() const
{
    QFont font(m_name);
    font.setPointSize(std::max(1, m_size));
    font.setWeight(m_bold ? QFont::Bold : QFont::Normal);
    font.setItalic(m_italic);
    return font;
}
