#pragma once
// Dialog data exchange between a dialog's members and its controls. `save` true reads the
// control into the value, false writes the value into the control. A null control does
// nothing; unreadable text never fails the dialog, except where a function returns false.

#include "QelMfc0/QelMfc0Export.h"

class QAbstractButton;
class QLineEdit;
class QWidget;

namespace DataExchange {

// A geographic angle: saving parses the edit's text as StringToGeo does (unreadable text
// gives 0.0); loading writes FormatGeogs(value, flags, decimals, latitude or longitude).
QELMFC0_EXPORT void DDX_Geo(bool save, QLineEdit* edit, double& value, int decimals, unsigned flags, bool latitude);

// A flag in an edit-like control (a QLineEdit, or any widget with a "text" or "plainText"
// property). Saving: the trimmed text is true when it starts with "true" in any case, else
// when its leading integer is non-zero. Loading: the text "true" or "false".
QELMFC0_EXPORT void DDX_bool(bool save, QWidget* control, bool& value);

// Kinds of value for DDX_FmtDoubleGradient; other kinds are taken as depths.
enum GradientKind : int {
    GRADIENT_DEPTH = 1, // a depth, or any value of a colour table: the project's depth decimals
};

// A value of a colour gradient in an edit. Loading writes the value with
// `decimals` decimals (negative: the open project's depth decimals, 2 without a project); in
// `scaleMode` the value is a map scale shown as "1 : <1 / value>", "1 : ∞" for 0. Saving reads
// the text as TextToDouble does; in scale mode "1 : x", "1:x" or a plain x mean 1 / x and
// "∞" (with or without "1 :") means 0; a scale "1 : 0" is no number. Returns false, leaving `value` untouched, when the
// text is not such a number (the caller asks for a number); loading always returns true.
QELMFC0_EXPORT bool DDX_FmtDoubleGradient(bool save, QLineEdit* edit, double& value, int kind, int decimals,
                                          bool scaleMode);

// A check box: loading checks or unchecks it; saving is true exactly when it is checked
// (a partially checked tri-state box reads as false).
QELMFC0_EXPORT void DDX_Check(bool save, QAbstractButton* checkBox, bool& value);

} // namespace DataExchange
