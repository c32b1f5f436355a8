#pragma once
// A plain font description: face, size in points, weight, slant and colour.

#include "QelMfc0/QelMfc0Export.h"
#include <QFont>
#include <QString>
#include <QelBase/QelTypes.h>

class CAttributeMap;

// Value type describing a text font; compared field by field (the name case-sensitively).
class QELMFC0_EXPORT FontInfo
{
public:
    // "Arial", 10 points, regular, upright, black.
    FontInfo() = default;
    // A description with every field given.
    FontInfo(const QString& name, int size, bool bold, bool italic, COLORREF color);
    FontInfo(const FontInfo&) = default;
    FontInfo(FontInfo&&) noexcept = default;
    FontInfo& operator=(const FontInfo&) = default;
    FontInfo& operator=(FontInfo&&) noexcept = default;

    // True when name, size, bold, italic and colour all agree.
    bool operator==(const FontInfo& other) const;
    // True when any field differs.
    bool operator!=(const FontInfo& other) const { return !(*this == other); }

    // Sets all five fields at once.
    void SetFontInfo(const QString& name, int size, bool bold, bool italic, COLORREF color);
    // Reads all five fields at once.
    void GetFontInfo(QString& name, int& size, bool& bold, bool& italic, COLORREF& color) const;

    // Face name.
    void SetName(const QString& name) { m_name = name; }
    QString GetName() const { return m_name; }
    // Size in points.
    void SetSize(int size) { m_size = size; }
    int GetSize() const { return m_size; }
    // Bold weight.
    void SetBold(bool bold) { m_bold = bold; }
    bool GetBold() const { return m_bold; }
    // Italic slant.
    void SetItalic(bool italic) { m_italic = italic; }
    bool GetItalic() const { return m_italic; }
    // Text colour (0x00BBGGRR).
    void SetColor(COLORREF color) { m_color = color; }
    COLORREF GetColor() const { return m_color; }

    // Reads ATTR_FONTNAME, ATTR_FONTSIZE, ATTR_FONTBOLD, ATTR_FONTITALIC and ATTR_TEXTCOLOR in
    // that order; a missing attribute leaves its field as it was.
    void LoadAttributes(const CAttributeMap& attributes);

    // A Qt font of this face, point size, weight and slant (a size below 1 point gives 1).
    QFont ToQFont() const;

private:
    QString m_name = QStringLiteral("Arial");
    int m_size = 10;
    bool m_bold = false;
    bool m_italic = false;
    COLORREF m_color = 0;
};
