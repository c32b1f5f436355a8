#include "StartUp.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QSocketNotifier>
#include <QTranslator>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/UnitDefinition.h>

#include <cstring>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace {

const QString kTranslations = QStringLiteral(":/QelGallery/translations");

// The language part of a locale name: "nl" of "nl_BE", "nl-NL" or "NL".
QString LanguageOf(const QString& name)
{
    return name.section(QLatin1Char('_'), 0, 0).section(QLatin1Char('-'), 0, 0).toLower();
}

#if defined(Q_OS_UNIX)
int g_signalPipe[2] = { -1, -1 };

void OnTerminationSignal(int)
{
    // Only async-signal-safe work here: the event loop reads the byte and quits.
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(g_signalPipe[0], &byte, 1);
}
#endif

} // namespace

namespace StartUp {

bool ChooseHeadlessPlatform(int argc, char** argv)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    bool windowless = false;
    for (int i = 1; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strcmp(arg, "-platform") == 0 || std::strcmp(arg, "--platform") == 0)
            return true; // the user chose one
        if (std::strcmp(arg, "--screenshot") == 0 || std::strncmp(arg, "--screenshot=", 13) == 0
            || std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "--help-all") == 0
            || std::strcmp(arg, "-h") == 0 || std::strcmp(arg, "-?") == 0)
            windowless = true;
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    const bool display = true; // Windows and macOS always have their own
#endif
    if (windowless && !display)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return windowless || display;
}

QString RequestedLanguage(int argc, char** argv)
{
    QString language;
    for (int i = 1; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strcmp(arg, "--language") == 0 && i + 1 < argc)
            language = QString::fromLocal8Bit(argv[++i]);
        else if (std::strncmp(arg, "--language=", 11) == 0)
            language = QString::fromLocal8Bit(arg + 11);
    }
    return language;
}

QStringList AvailableLanguages()
{
    QStringList languages { QStringLiteral("en") };
    const QString prefix = QStringLiteral("QelGallery_");
    for (const QString& file : QDir(kTranslations).entryList({ prefix + QStringLiteral("*.qm") }, QDir::Files, QDir::Name))
        languages << file.mid(prefix.size()).chopped(3);
    return languages;
}

bool IsAvailableLanguage(const QString& language)
{
    return !language.isEmpty() && AvailableLanguages().contains(LanguageOf(language));
}

QString TranslateBeforeStart(const char* text)
{
    QTranslator gallery;
    QString translated;
    if (gallery.load(QLocale(), QStringLiteral("QelGallery"), QStringLiteral("_"), kTranslations))
        translated = gallery.translate("QelGallery", text);
    return translated.isEmpty() ? QString::fromUtf8(text) : translated;
}

void InstallTranslators(QCoreApplication* app)
{
    const QLocale locale;
    auto* qt = new QTranslator(app);
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    auto* gallery = new QTranslator(app);
    if (gallery->load(locale, QStringLiteral("QelGallery"), QStringLiteral("_"), kTranslations))
        QCoreApplication::installTranslator(gallery);
}

void QuitOnTerminationSignals(QCoreApplication* app)
{
#if defined(Q_OS_UNIX)
    if (g_signalPipe[0] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM, 0, g_signalPipe) != 0)
        return;
    auto* notifier = new QSocketNotifier(g_signalPipe[1], QSocketNotifier::Read, app);
    QObject::connect(notifier, &QSocketNotifier::activated, app, [app] {
        char byte = 0;
        [[maybe_unused]] const ssize_t read = ::read(g_signalPipe[1], &byte, 1);
        app->quit();
    });
    struct sigaction action {};
    action.sa_handler = OnTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : { SIGINT, SIGTERM, SIGHUP })
        ::sigaction(signal, &action, nullptr);
#else
    Q_UNUSED(app);
#endif
}

QString OpenProjectProblem()
{
    const DataSearch& search = DataSearch::GetDataSearch();
    const ProjectDefinition* project = search.GetProjectDefinition();
    if (!project)
        return QCoreApplication::translate("StartUp", "no project is open");
    const QString path = search.GetFullPath(DataSearch::TYPE_UNITS);
    UnitDefinition units;
    if (path.isEmpty() || !QFileInfo(path).isFile() || !units.FileOpen(path, FileObject::OPEN_READ))
        return QCoreApplication::translate("StartUp", "the unit file %1 is missing or cannot be read").arg(QDir::toNativeSeparators(path));
    const QList<UnitDefinition::Item> distances = units.GetGroupItems(UnitDefinition::GROUP_DISTANCE);
    if (distances.isEmpty())
        return QCoreApplication::translate("StartUp", "the unit file %1 lists no distance units").arg(QDir::toNativeSeparators(path));
    // Distances are shown in the project's own unit, which the unit file must offer.
    const QString key = project->GetUnitCnv().GetUnitKey(UNIT_SYSTEM);
    for (const UnitDefinition::Item& item : distances)
        if (item.key == key)
            return QString();
    return QCoreApplication::translate("StartUp", "the unit file %1 does not offer the project's unit \"%2\"").arg(QDir::toNativeSeparators(path), key);
}

} // namespace StartUp
