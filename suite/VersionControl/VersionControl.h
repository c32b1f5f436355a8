#pragma once
// Version check of the suite's modules: a module refuses to load into a suite of another release.

#include "VersionControl/VersionControlExport.h"
#include <QString>
#include <QtGlobal>

// Packs a version one byte per field, major in the high byte: 5.5.1.0 -> 0x05050100.
constexpr quint32 PackVersion(int major, int minor, int build, int revision)
{
    return (quint32(quint8(major)) << 24) | (quint32(quint8(minor)) << 16)
         | (quint32(quint8(build)) << 8) | quint32(quint8(revision));
}

// The suite release the running process belongs to (major and minor count; build and revision
// give the oldest module build accepted). Default 5.5.0.0.
VERSIONCONTROL_EXPORT quint32 SuiteVersion();
VERSIONCONTROL_EXPORT void SetSuiteVersion(quint32 version);

// Confirms that a module built as `version` from `sourceName` at `buildStamp` ("date time") may
// run in this suite: same major and minor release, a build not older than the suite's minimum,
// a non-empty source name and build stamp. A refusal is logged with its reason.
VERSIONCONTROL_EXPORT bool CheckDllVersion(quint32 version, const QString& sourceName, const QString& buildStamp);

// The reason of the last refusal of CheckDllVersion, empty after a success.
VERSIONCONTROL_EXPORT QString LastVersionError();
