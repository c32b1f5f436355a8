#pragma once
// Start-up and shutdown of the QelMfc0 library inside a host application.
//
// The library attaches itself when the host's QCoreApplication starts; a host may also call
// QelMfc0Attach() itself; once attached, further calls do nothing.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QtGlobal>

// The library's version, one byte per field from the major number down: 5.5.1.0.
constexpr quint32 kQelMfc0Version = 0x05050100;

// The library's source module name, as given to the suite's version check.
inline constexpr char kQelMfc0SourceName[] = "QelMfc0";

// Confirms the library's version with the suite, registers its resources, installs its
// language translator and its display-scale source. False when the version check refuses the
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
