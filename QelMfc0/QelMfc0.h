#pragma once
// Start-up and shutdown of the QelMfc0 library inside a host application.
//
// The library attaches itself when the host's QCoreApplication starts; a host may also call
// QelMfc0Attach() itself; once attached, further calls do nothing.
//
// By default attaching installs the library's translator for the user's locale, and colour
// modes switched with the theme flag restyle the whole application (palette and style). A
// host that keeps its own style or manages its own translators says so before its
// QApplication is constructed (or before calling QelMfc0Attach):
//
//     QelMfc0AttachOptions options;
//     options.installTranslator = false;   // the host loads QelMfc0LoadTranslation itself
//     options.applyModeStyle = false;      // the host's palette and style stay untouched
//     QelMfc0SetAttachOptions(options);
//
// The library's own controls follow the colour mode either way: they convert their colours
// when they paint.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QtGlobal>

class QLocale;
class QTranslator;

// The library's version, one byte per field from the major number down: 5.5.1.0.
constexpr quint32 kQelMfc0Version = 0x05050100;

// The library's source module name, as given to the suite's version check.
inline constexpr char kQelMfc0SourceName[] = "QelMfc0";

// What attaching the library may change in the host application beyond the library itself.
struct QelMfc0AttachOptions {
    // Install the library's translator for the user's locale (removed again at detach).
    bool installTranslator = true;
    // Let colour modes switched with the theme flag set the application's palette and style.
    bool applyModeStyle = true;
};

// Sets the options for the next attach and for later colour-mode switches. Declining the
// translator after attaching removes it; declining the style restores the host's own at once.
QELMFC0_EXPORT void QelMfc0SetAttachOptions(const QelMfc0AttachOptions& options);
// The options in force.
QELMFC0_EXPORT QelMfc0AttachOptions QelMfc0CurrentAttachOptions();

// Loads the library's translation for `locale` into a translator the host owns and installs
// itself. False when no translation for that locale is shipped.
QELMFC0_EXPORT bool QelMfc0LoadTranslation(QTranslator& translator, const QLocale& locale);

// Confirms the library's version with the suite, registers its resources, installs its
// language translator (unless declined) and its display-scale source. False when the version check refuses the
// library: it is then unusable and QelMfc0LastError() says why.
QELMFC0_EXPORT bool QelMfc0Attach();

// Removes the translator and forgets the attachment (called automatically at application exit).
QELMFC0_EXPORT void QelMfc0Detach();

// True between a successful attach and the detach.
QELMFC0_EXPORT bool IsQelMfc0Attached();

// The reason why the last attach failed; empty after a successful one.
QELMFC0_EXPORT QString QelMfc0LastError();

// The build stamp given to the version check: compiler date, a blank, compiler time.
QELMFC0_EXPORT QString QelMfc0BuildStamp();
