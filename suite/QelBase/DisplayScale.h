#pragma once
// The display scale: the screen's logical DPI over 96 (1.0 unless told otherwise).
// QelBase has no GUI: the library installs a provider that asks the screen. All of it
// may be called from any thread.

#include "QelBase/QelBaseExport.h"

// Returns the current scale (logical DPI / 96).
using DpiScaleProvider = double (*)();

// Installs the function that reports the scale; nullptr restores a scale of 1.0.
QELBASE_EXPORT void SetDpiScaleProvider(DpiScaleProvider provider);
// Fixes the scale, overriding the provider; <= 0 or non-finite goes back to the provider.
QELBASE_EXPORT void SetDpiScale(double scale);
// The fixed scale if set, else the provider's answer when positive and finite, else 1.0.
QELBASE_EXPORT double GetDpiScale();

// Pixels at 96 DPI to pixels on this screen, rounded half away from zero (like MulDiv).
QELBASE_EXPORT int DpiCor(int pixels);
// Pixels at 96 DPI to pixels on this screen, unrounded; non-finite gives 0.0.
QELBASE_EXPORT double DpiCor(double pixels);
// Pixels on this screen back to 96 DPI, rounded half away from zero (like MulDiv).
QELBASE_EXPORT int DpiRevCor(int pixels);
// Pixels on this screen back to 96 DPI, unrounded; non-finite gives 0.0.
QELBASE_EXPORT double DpiRevCor(double pixels);
