#pragma once
// Puts a composite control where a placeholder widget of a dialog stands: same parent,
// geometry, layout slot, object name and place in the tab order; the placeholder is deleted.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>

class QWidget;

// Moves `control` into the placeholder's place and deletes the placeholder. Returns the
// placeholder's text (label or button text, empty for other widgets); false in *ok (when given)
// and nothing done when either widget is null or the placeholder has no parent.
QELMFC0_EXPORT QString ReplacePlaceholder(QWidget* placeholder, QWidget* control, bool* ok = nullptr);

// The child of `parent` (at any depth) with that object name; null when there is none.
QELMFC0_EXPORT QWidget* FindPlaceholder(QWidget* parent, const QString& objectName);
