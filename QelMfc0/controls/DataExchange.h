#pragma once
// Dialog data exchange between a dialog's members and its controls. `save` true reads the
// control into the value, false writes the value into the control. A null control does
// nothing; unreadable text never fails the dialog.

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

// A check box: loading checks or unchecks it; saving is true exactly when it is checked
// (a partially checked tri-state box reads as false).
QELMFC0_EXPORT void DDX_Check(bool save, QAbstractButton* checkBox, bool& value);

} // namespace DataExchange
