#pragma once
// Read-only text fields that look read-only: the field is filled with the window colour of the
// current palette instead of the base colour of editable fields, in every colour mode.

class QWidget;

namespace ReadOnlyLook {

// Keeps every line edit inside `root` in the look of its read-only state, as that state and
// the palette change.
void Follow(QWidget* root);

} // namespace ReadOnlyLook
