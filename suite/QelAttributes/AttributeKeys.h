#pragma once
// Names of the attributes that several controls share in a host's attribute map.

#include <QString>

inline const QString ATTR_FONTNAME = QStringLiteral("FontName");
inline const QString ATTR_FONTSIZE = QStringLiteral("FontSize");
inline const QString ATTR_FONTBOLD = QStringLiteral("FontBold");
inline const QString ATTR_FONTITALIC = QStringLiteral("FontItalic");
inline const QString ATTR_TEXTCOLOR = QStringLiteral("TextColor");
inline const QString ATTR_PANECOLOR = QStringLiteral("PaneColor");
inline const QString ATTR_ABOVECOLOR = QStringLiteral("AboveColor");
inline const QString ATTR_BELOWCOLOR = QStringLiteral("BelowColor");
inline const QString ATTR_BCKGNDCOLOR = QStringLiteral("BackgroundColor");
inline const QString ATTR_YAXISRANGE = QStringLiteral("YAxisRange");
