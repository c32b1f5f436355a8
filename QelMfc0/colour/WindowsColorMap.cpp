#include "QelMfc0/colour/WindowsColorMap.h"

#include <algorithm>

const std::array<WindowsColorMap::SystemColor, 28>& WindowsColorMap::Names()
{
    static const std::array<SystemColor, 28> names = { {
        { "scrollbar", 0 },          { "background", 1 },         { "activecaption", 2 },
        { "inactivecaption", 3 },    { "menu", 4 },               { "window", 5 },
        { "windowframe", 6 },        { "menutext", 7 },           { "windowtext", 8 },
        { "captiontext", 9 },        { "activeborder", 10 },      { "inactiveborder", 11 },
        { "appworkspace", 12 },      { "highlight", 13 },         { "highlighttext", 14 },
        { "btnface", 15 },           { "btnshadow", 16 },         { "graytext", 17 },
        { "btntext", 18 },           { "inactivecaptiontext", 19 }, { "btnhighlight", 20 },
        { "3ddkshadow", 21 },        { "3dlight", 22 },           { "infotext", 23 },
        { "infobk", 24 },            { "hotlight", 26 },          { "gradientactivecaption", 27 },
        { "gradientinactivecaption", 28 },
    } };
    return names;
}

int WindowsColorMap::IndexOf(const QString& name)
{
    const auto& names = Names();
    const auto it = std::find_if(names.begin(), names.end(),
                                 [&](const SystemColor& c) { return name == QLatin1String(c.name); });
    return it == names.end() ? -1 : it->index;
}

QString WindowsColorMap::NameOf(int index)
{
    const auto& names = Names();
    const auto it = std::find_if(names.begin(), names.end(), [&](const SystemColor& c) { return c.index == index; });
    return it == names.end() ? QString() : QString::fromLatin1(it->name);
}

WindowsColorMap::WindowsColorMap() = default;
WindowsColorMap::~WindowsColorMap() = default;

bool WindowsColorMap::Set(const QString& name, COLORREF color)
{
    const int index = IndexOf(name);
    if (index < 0)
        return false;
    m_colors[name] = { index, color };
    return true;
}

bool WindowsColorMap::Get(const QString& name, COLORREF& color) const
{
    const auto it = m_colors.find(name);
    if (it == m_colors.end())
        return false;
    color = it->second.second;
    return true;
}

bool WindowsColorMap::GetByIndex(int index, COLORREF& color) const
{
    const QString name = NameOf(index);
    return !name.isEmpty() && Get(name, color);
}

void WindowsColorMap::Clear() { m_colors.clear(); }
int WindowsColorMap::Count() const { return int(m_colors.size()); }
bool WindowsColorMap::IsEmpty() const { return m_colors.empty(); }

const std::map<QString, std::pair<int, COLORREF>>& WindowsColorMap::Entries() const
{
    return m_colors;
}
