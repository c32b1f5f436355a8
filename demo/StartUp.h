#pragma once
// What QelGallery does before and around its window: choosing a platform when it runs without
// a display, quitting cleanly on a termination signal, and telling why a project cannot be
// used.

#include <QString>

class QCoreApplication;

namespace StartUp {

// Before the application object exists: picks Qt's offscreen platform for the runs that need
// no window on screen (--screenshot, --help), but only when no platform was chosen
// (QT_QPA_PLATFORM, -platform) and no display is reachable. False when the run needs a window
// and there is neither a display nor a chosen platform.
bool ChooseHeadlessPlatform(int argc, char** argv);

// SIGINT, SIGTERM and SIGHUP make `app` quit its event loop, so that main returns normally and
// everything it made (the unpacked project folder included) is cleaned up.
void QuitOnTerminationSignals(QCoreApplication* app);

// Why the open project cannot be shown (no project, no usable distance units), in one line;
// empty when it can.
QString OpenProjectProblem();

} // namespace StartUp
