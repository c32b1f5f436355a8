#pragma once
// The system colours of the user interface by name: the 28 named system colours with their
// indexes, and the colour each one has.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QelBase/QelTypes.h>
#include <array>
#include <map>
#include <utility>

class QELMFC0_EXPORT WindowsColorMap
{
public:
    struct SystemColor {
        const char* name;
        int index;
    };
    // The 28 names with their system-colour indexes (index 25 has no name).
    static const std::array<SystemColor, 28>& Names();
    // The index of a name, matched exactly (case-sensitive); -1 for an unknown name.
    static int IndexOf(const QString& name);
    // The name of an index; empty for an index without one.
    static QString NameOf(int index);

    WindowsColorMap();
    virtual ~WindowsColorMap();

    // Sets the colour of a named system colour; false (and nothing set) for an unknown name.
    bool Set(const QString& name, COLORREF color);
    // The colour of a name or of an index; false when the map holds none.
    bool Get(const QString& name, COLORREF& color) const;
    bool GetByIndex(int index, COLORREF& color) const;
    void Clear();
    int Count() const;
    bool IsEmpty() const;
    // Name -> (index, colour), ordered by name.
    const std::map<QString, std::pair<int, COLORREF>>& Entries() const;

private:
    std::map<QString, std::pair<int, COLORREF>> m_colors;
};
