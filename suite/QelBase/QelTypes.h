#pragma once
// Value types shared by every library of the suite.

#include <QtGlobal>

// A colour as the suite stores it in files and arithmetic: 0x00BBGGRR.
using COLORREF = quint32;

// Builds a COLORREF from its red, green and blue components (0..255 each).
constexpr COLORREF RGB(int r, int g, int b)
{
    return COLORREF(quint8(r)) | (COLORREF(quint8(g)) << 8) | (COLORREF(quint8(b)) << 16);
}
constexpr int GetRValue(COLORREF c) { return int(c & 0xFF); }
constexpr int GetGValue(COLORREF c) { return int((c >> 8) & 0xFF); }
constexpr int GetBValue(COLORREF c) { return int((c >> 16) & 0xFF); }
