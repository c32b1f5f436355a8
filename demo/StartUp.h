#pragma once
// What QelGallery does before and around its window: choosing a platform when it runs without
// a display, choosing its language, quitting cleanly on a termination signal, and telling why a
// project cannot be used.

#include <QString>
#include <QStringList>

class QCoreApplication;

namespace StartUp {

// Before the application object exists: picks Qt's offscreen platform for the runs that need
// no window on screen (--screenshot, --help), but only when no platform was chosen
// (QT_QPA_PLATFORM, -platform) and no display is reachable. False when the run needs a window
// and there is neither a display nor a chosen platform.
bool ChooseHeadlessPlatform(int argc, char** argv);

// Before the application object exists: the language given with --language NAME or
// --language=NAME; empty when none is given. Nothing is checked here.
QString RequestedLanguage(int argc, char** argv);

// The languages the gallery speaks: "en" and the language of every translation it carries.
QStringList AvailableLanguages();

// True when `language` ("nl", "nl_BE", "en") names one of the available languages.
bool IsAvailableLanguage(const QString& language);

// A text of the QelGallery context in the default locale's language, for the messages given
// before the application object (and so any installed translator) exists.
QString TranslateBeforeStart(const char* text);

// Installs the host's translators for the default locale, as any host of the library does:
// Qt's own texts (when the system has their translation) and the gallery's. The library's
// translator is the library's business: it installs it itself when it attaches.
void InstallTranslators(QCoreApplication* app);

// SIGINT, SIGTERM and SIGHUP make `app` quit its event loop, so that main returns normally and
// everything it made (the unpacked project folder included) is cleaned up.
void QuitOnTerminationSignals(QCoreApplication* app);

// Why the open project cannot be shown (no project, no usable distance units), in one line;
// empty when it can.
QString OpenProjectProblem();

} // namespace StartUp
