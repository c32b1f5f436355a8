#include "QelMfc0/colour/ApplicationPalette.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/colour/ModeStyle.h>
#include <initializer_list>

namespace {
struct RoleMapping {
    const char* name;
    std::initializer_list<QPalette::ColorRole> roles;
};

// Roles set in every colour group.
const RoleMapping kApplicationRoles[] = {
    { "window", { QPalette::Base, QPalette::AlternateBase } },
    { "windowtext", { QPalette::Text, QPalette::WindowText } },
    { "btnface", { QPalette::Window, QPalette::Button } },
    { "btntext", { QPalette::ButtonText } },
    { "btnhighlight", { QPalette::Light } },
    { "3dlight", { QPalette::Midlight } },
    { "btnshadow", { QPalette::Mid, QPalette::Dark } },
    { "3ddkshadow", { QPalette::Shadow } },
    { "graytext", { QPalette::PlaceholderText } },
    { "highlight", { QPalette::Highlight } },
    { "highlighttext", { QPalette::HighlightedText } },
    { "infobk", { QPalette::ToolTipBase } },
    { "infotext", { QPalette::ToolTipText } },
    { "hotlight", { QPalette::Link, QPalette::LinkVisited } },
};

const QPalette::ColorGroup kGroups[] = { QPalette::Active, QPalette::Inactive, QPalette::Disabled };

struct Saved {
    bool captured = false;
    QPalette palette;
    QString styleName;
    bool applied = false;
};

Saved& Original()
{
    static Saved saved;
    if (!saved.captured && qobject_cast<QApplication*>(QCoreApplication::instance())) {
        saved.palette = QApplication::palette();
        saved.styleName = QApplication::style() ? QApplication::style()->name() : QString();
        saved.captured = true;
    }
    return saved;
}

void SetRole(QPalette& palette, QPalette::ColorRole role, const QColor& color)
{
    for (QPalette::ColorGroup group : kGroups)
        palette.setColor(group, role, color);
}

bool Lookup(const WindowsColorMap& colors, const char* name, QColor& color)
{
    COLORREF c = 0;
    if (!colors.Get(QString::fromLatin1(name), c))
        return false;
    color = toQColor(c);
    return true;
}

void RestoreOwnStyle()
{
    const Saved& saved = Original();
    if (!qobject_cast<ModeStyle*>(QApplication::style()))
        return;
    QStyle* style = QStyleFactory::create(saved.styleName);
    if (!style)
        style = QStyleFactory::create(QStringLiteral("Fusion"));
    if (style)
        QApplication::setStyle(style);
}

void SetPalettes(const QPalette& palette, const WindowsColorMap& colors)
{
    QApplication::setPalette(palette);
    for (const char* className : { "QMenu", "QMenuBar", "QScrollBar", "QMdiArea" })
        QApplication::setPalette(ApplicationPalette::ClassPalette(palette, colors, className), className);
    QToolTip::setPalette(palette);
}
} // namespace

QPalette ApplicationPalette::OriginalPalette()
{
    const Saved& saved = Original();
    return saved.captured ? saved.palette : QPalette();
}

WindowsColorMap ApplicationPalette::SystemColorsOf(const QPalette& palette)
{
    WindowsColorMap colors;
    auto put = [&](const char* name, QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) {
        colors.Set(QString::fromLatin1(name), toColorref(palette.color(group, role)));
    };
    for (const RoleMapping& mapping : kApplicationRoles)
        put(mapping.name, *mapping.roles.begin());
    put("graytext", QPalette::Text, QPalette::Disabled);
    put("menu", QPalette::Window);
    put("menutext", QPalette::WindowText);
    put("scrollbar", QPalette::Base);
    put("appworkspace", QPalette::Dark);
    put("background", QPalette::Dark);
    put("activecaption", QPalette::Highlight);
    put("gradientactivecaption", QPalette::Highlight);
    put("captiontext", QPalette::HighlightedText);
    put("inactivecaption", QPalette::Window, QPalette::Inactive);
    put("gradientinactivecaption", QPalette::Window, QPalette::Inactive);
    put("inactivecaptiontext", QPalette::WindowText, QPalette::Inactive);
    put("activeborder", QPalette::Window);
    put("inactiveborder", QPalette::Window, QPalette::Inactive);
    put("windowframe", QPalette::Shadow);
    return colors;
}

WindowsColorMap ApplicationPalette::CurrentSystemColors()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return SystemColorsOf(QPalette());
    Original(); // the user's own palette is captured before any mode can replace it
    WindowsColorMap colors = SystemColorsOf(QApplication::palette());
    const auto put = [&](const char* name, const char* className, QPalette::ColorRole role) {
        colors.Set(QString::fromLatin1(name), toColorref(QApplication::palette(className).color(QPalette::Active, role)));
    };
    put("menu", "QMenu", QPalette::Window);
    put("menutext", "QMenu", QPalette::WindowText);
    put("scrollbar", "QScrollBar", QPalette::Base);
    put("appworkspace", "QMdiArea", QPalette::Dark);
    return colors;
}

QPalette ApplicationPalette::BuildPalette(const QPalette& base, const WindowsColorMap& colors)
{
    QPalette palette = base;
    QColor color;
    for (const RoleMapping& mapping : kApplicationRoles)
        if (Lookup(colors, mapping.name, color))
            for (QPalette::ColorRole role : mapping.roles)
                SetRole(palette, role, color);

    // Disabled texts: the table's grey text, else halfway between text and background, so that
    // a dark palette never keeps a bright disabled text.
    QColor disabled;
    if (!Lookup(colors, "graytext", disabled)) {
        const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
        const QColor back = palette.color(QPalette::Active, QPalette::Window);
        disabled = QColor((text.red() + back.red()) / 2, (text.green() + back.green()) / 2, (text.blue() + back.blue()) / 2);
    }
    for (QPalette::ColorRole role : { QPalette::Text, QPalette::WindowText, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

QPalette ApplicationPalette::ClassPalette(const QPalette& palette, const WindowsColorMap& colors, const char* className)
{
    QPalette result = palette;
    QColor color;
    const QByteArray name(className);
    if (name == "QMenu" || name == "QMenuBar") {
        if (Lookup(colors, "menu", color))
            for (QPalette::ColorRole role : { QPalette::Window, QPalette::Base, QPalette::Button })
                SetRole(result, role, color);
        if (Lookup(colors, "menutext", color))
            for (QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
                for (QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive })
                    result.setColor(group, role, color);
    } else if (name == "QScrollBar") {
        if (Lookup(colors, "scrollbar", color))
            for (QPalette::ColorRole role : { QPalette::Window, QPalette::Base })
                SetRole(result, role, color);
    } else if (name == "QMdiArea") {
        if (Lookup(colors, "appworkspace", color))
            for (QPalette::ColorRole role : { QPalette::Dark, QPalette::Window })
                SetRole(result, role, color);
    }
    return result;
}

void ApplicationPalette::Apply(const WindowsColorMap& colors, const std::function<void(QImage&)>& iconFilter)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    Saved& saved = Original();
    if (!QelMfc0CurrentAttachOptions().applyModeStyle)
        return;
    if (colors.IsEmpty()) {
        if (saved.applied)
            RestoreOriginal();
        return;
    }
    // Style first: a new style polishes the widgets with its own palette, which ours replaces.
    QApplication::setStyle(new ModeStyle(iconFilter));
    SetPalettes(BuildPalette(saved.palette, colors), colors);
    saved.applied = true;
}

void ApplicationPalette::RestoreOriginal()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    Saved& saved = Original();
    if (!saved.applied)
        return;
    RestoreOwnStyle();
    SetPalettes(saved.palette, WindowsColorMap());
    saved.applied = false;
}
