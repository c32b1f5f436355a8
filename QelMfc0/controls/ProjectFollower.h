#pragma once
// Keeps an object in step with the open project. The suite announces a project switch in two
// steps (DataSearch): while the old project is still current, and once the new one (or none)
// is. A follower takes in what it shows while it can still read it in the old project's terms,
// and shows it again in the new project's terms afterwards.

#include "QelMfc0/QelMfc0Export.h"
#include <functional>

class QObject;

namespace ProjectFollower {

// Calls `closing` while the open project is about to be replaced or closed (still current
// then) and `changed` once the new one, or none, is current; on the UI thread, until `owner`
// is destroyed. An exception thrown by either is caught and logged, never passed on.
QELMFC0_EXPORT void Follow(QObject* owner, std::function<void()> closing, std::function<void()> changed);

} // namespace ProjectFollower
