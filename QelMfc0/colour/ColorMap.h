#pragma once
// The colour substitutions and system colours of a colour mode, read from its colour-map file.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QStringList>
#include <QelBase/QelTypes.h>
#include <QelMfc0/colour/WindowsColorMap.h>
#include <array>
#include <utility>
#include <vector>

class FileObject;

class QELMFC0_EXPORT ColorMap
{
public:
    static inline const QString kQelColorsSection = QStringLiteral("QEL_COLORS");
    static inline const QString kWinColorsSection = QStringLiteral("WIN_COLORS");

    // No substitutions; the system colours as the application shows them now (in the colour
    // mode in force, if any); no file colours.
    ColorMap();
    virtual ~ColorMap();

    // Reads the "QEL_COLORS" substitutions (decimal COLORREF = decimal COLORREF; the first of
    // a repeated key wins) and the "WIN_COLORS" system colours (name = red green blue, each
    // modulo 256; the last of a repeated name wins). A value may end with a "; comment".
    // Malformed entries are skipped one by one; they, and text read only in part, are listed
    // by GetErrors.
    void Load(const FileObject& file);
    // Forgets the substitutions, the file's system colours and the errors.
    void Clear();
    // What the last Load skipped or read only in part, one line per entry:
    // "[SECTION] key = value: what is wrong", the last part in the user's language.
    const QStringList& GetErrors() const;

    // The value of a colour-map entry without a trailing comment (from the first ';' or '#')
    // and without the blanks around it.
    static QString StripComment(const QString& value);
    // An error line of the form GetErrors lists.
    static QString EntryError(const QString& section, const QString& key, const QString& value,
                              const QString& problem);

    // The substitute of exactly `color` (all 32 bits compared); false when there is none.
    bool Find(COLORREF color, COLORREF& substitute) const
    {
        if (!MayContain(color))
            return false;
        return FindSorted(color, substitute);
    }
    // Number of substitutions and all of them, ordered by the colour they replace.
    int Count() const;
    const std::vector<std::pair<COLORREF, COLORREF>>& Substitutions() const;

    // The system colours when the map was made, and those the loaded file asks for.
    const WindowsColorMap& GetSystemColors() const;
    const WindowsColorMap& GetFileColors() const;

private:
    // A quick "certainly not substituted" test: one bit per hash of the colour.
    static quint32 FilterSlot(COLORREF color) { return ((color * 0x9E3779B1u) >> 16) & 0xFFFFu; }
    bool MayContain(COLORREF color) const
    {
        const quint32 slot = FilterSlot(color);
        return (m_filter[slot >> 6] >> (slot & 63)) & 1u;
    }
    bool FindSorted(COLORREF color, COLORREF& substitute) const;
    void RebuildFilter();

    std::vector<std::pair<COLORREF, COLORREF>> m_substitutions;
    std::array<quint64, 1024> m_filter {};
    WindowsColorMap m_systemColors;
    WindowsColorMap m_fileColors;
    QStringList m_errors;
};
