#pragma once
// Value types shared by every library of the suite.
//
// COLORREF is a colour as the suite stores it in files and arithmetic: 0x00BBGGRR. On Windows
// the platform's own COLORREF, RGB and GetRValue/GetGValue/GetBValue are taken (from Qt's
// <qt_windows.h>, which includes <windows.h> without its min/max macros), so that a host that
// includes <windows.h> as well sees one definition of each. Elsewhere they are defined here,
// with the same layout and results.

#include <QtGlobal>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#else
using COLORREF = quint32;

#ifndef RGB
// Builds a COLORREF from its red, green and blue components (0..255 each).
constexpr COLORREF RGB(int r, int g, int b)
{
    return COLORREF(quint8(r)) | (COLORREF(quint8(g)) << 8) | (COLORREF(quint8(b)) << 16);
}
#endif
#ifndef GetRValue
// The red, green and blue components of a COLORREF.
constexpr int GetRValue(COLORREF c) { return int(c & 0xFF); }
constexpr int GetGValue(COLORREF c) { return int((c >> 8) & 0xFF); }
constexpr int GetBValue(COLORREF c) { return int((c >> 16) & 0xFF); }
#endif
#endif

static_assert(sizeof(COLORREF) == 4, "COLORREF is a 32-bit 0x00BBGGRR value");
