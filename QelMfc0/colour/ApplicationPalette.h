#pragma once
// The application's look in a colour mode: a palette built from the mode's system colours,
// applied to every window (menus, tool tips and scroll bars included), and the user's own
// palette and style put back at the end.
//
// System colour        -> palette roles (all colour groups unless noted)
//   window             -> Base, AlternateBase
//   windowtext         -> Text, WindowText
//   btnface            -> Window, Button
//   btntext            -> ButtonText
//   btnhighlight       -> Light;   3dlight -> Midlight
//   btnshadow          -> Mid, Dark;   3ddkshadow -> Shadow
//   graytext           -> PlaceholderText; Text, WindowText, ButtonText of the Disabled group
//   highlight          -> Highlight;   highlighttext -> HighlightedText
//   infobk             -> ToolTipBase; infotext -> ToolTipText (also the tool tips' own palette)
//   hotlight           -> Link, LinkVisited
//   menu / menutext    -> Window, Base, Button / WindowText, Text, ButtonText of QMenu, QMenuBar
//   scrollbar          -> Window, Base of QScrollBar (the groove)
//   appworkspace       -> Dark and Window of QMdiArea (the workspace behind MDI windows)
//   background, captions, borders, windowframe, gradients: drawn by the window system, not by
//   the application; kept in the table for the host.
// A mode whose table is empty shows the user's own palette and style. Any other palette is
// shown with ModeStyle: Fusion, which draws every element from the palette (platform styles
// draw menus and scroll bars in the system's own colours), with its icons converted too.

#include "QelMfc0/QelMfc0Export.h"
#include <QPalette>
#include <QString>
#include <QelMfc0/colour/WindowsColorMap.h>
#include <functional>

class QImage;

class QELMFC0_EXPORT ApplicationPalette
{
public:
    // The application's palette before the first colour mode was applied (captured on first use
    // of this class).
    static QPalette OriginalPalette();
    // The system colours of a palette, by the mapping above.
    static WindowsColorMap SystemColorsOf(const QPalette& palette);
    // The system colours the application shows now: those of its palette, with menus, scroll
    // bars and the MDI workspace taken from their own class palettes. In a colour mode these
    // are the mode's colours; before any, the user's own.
    static WindowsColorMap CurrentSystemColors();
    // `base` with the roles of the colours that `colors` holds replaced, by the mapping above.
    static QPalette BuildPalette(const QPalette& base, const WindowsColorMap& colors);
    // The palette of a widget class ("QMenu", "QMenuBar", "QScrollBar", "QMdiArea") within `palette`.
    static QPalette ClassPalette(const QPalette& palette, const WindowsColorMap& colors, const char* className);

    // Shows the application in the system colours `colors` (the original look when empty), with
    // the style's icons passed through `iconFilter`. Nothing when the host declined the style
    // (QelMfc0AttachOptions::applyModeStyle).
    static void Apply(const WindowsColorMap& colors, const std::function<void(QImage&)>& iconFilter);
    // Puts the user's own palette and style back; nothing when they were never replaced.
    static void RestoreOriginal();
};
