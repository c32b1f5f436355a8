#include "VersionControl/VersionControl.h"

#include <QLoggingCategory>
#include <mutex>
#include <atomic>

namespace {
Q_LOGGING_CATEGORY(lcVersion, "qel.version")

std::atomic<quint32> g_suiteVersion { PackVersion(5, 5, 0, 0) };
std::mutex g_errorMutex;
QString g_lastError;

QString VersionText(quint32 v)
{
    return QStringLiteral("%1.%2.%3.%4").arg(v >> 24).arg((v >> 16) & 0xFF).arg((v >> 8) & 0xFF).arg(v & 0xFF);
}

bool Refuse(const QString& reason)
{
    qCWarning(lcVersion).noquote() << reason;
    std::lock_guard lock(g_errorMutex);
    g_lastError = reason;
    return false;
}
} // namespace

quint32 SuiteVersion() { return g_suiteVersion.load(); }
void SetSuiteVersion(quint32 version) { g_suiteVersion.store(version); }

bool CheckDllVersion(quint32 version, const QString& sourceName, const QString& buildStamp)
{
    const quint32 suite = SuiteVersion();
    if (sourceName.trimmed().isEmpty())
        return Refuse(QStringLiteral("version check: module without a name refused"));
    if (buildStamp.trimmed().isEmpty())
        return Refuse(QStringLiteral("version check: module %1 has no build stamp").arg(sourceName));
    if ((version >> 16) != (suite >> 16))
        return Refuse(QStringLiteral("version check: module %1 %2 does not belong to suite release %3")
                          .arg(sourceName, VersionText(version), VersionText(suite)));
    if ((version & 0xFFFF) < (suite & 0xFFFF))
        return Refuse(QStringLiteral("version check: module %1 %2 is older than the oldest accepted build %3")
                          .arg(sourceName, VersionText(version), VersionText(suite)));
    std::lock_guard lock(g_errorMutex);
    g_lastError.clear();
    return true;
}

QString LastVersionError()
{
    std::lock_guard lock(g_errorMutex);
    return g_lastError;
}
