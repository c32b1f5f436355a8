// QelGallery: shows every control and dialog of the QelMfc0 library on a sample project.
//
// The texts follow the system's language, or the one given with --language (en, nl).
//
// Exit codes: 0 done, 1 a screenshot could not be written, 2 the library, the embedded project,
// the chosen project or the chosen language cannot be used (one line on stderr says why), 3 an
// unexpected error.
// The unpacked embedded project is removed on every one of these exits and on SIGINT/SIGTERM.
#include "DefaultProject.h"
#include "GalleryWindow.h"
#include "StartUp.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTextStream>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelIniFile_IO.h>
#include <QelMfc0/QelMfc0.h>

#include <exception>
#include <memory>

namespace {

int Fail(const QString& line, int code = 2)
{
    QTextStream(stderr) << "QelGallery: " << line << Qt::endl;
    return code;
}

// Leaves DataSearch without a project and without settings in the unpacked folder, so that
// nothing is written there once it is being removed.
struct ProjectCloser {
    ~ProjectCloser()
    {
        DataSearch& search = DataSearch::GetDataSearch();
        search.Close();
        search.SetIniFile(nullptr);
    }
};

int Run(QApplication& app, const QCommandLineParser& parser, const QCommandLineOption& screenshot,
        const QCommandLineOption& projects, const QCommandLineOption& project)
{
    if (!IsQelMfc0Attached())
        return Fail(QCoreApplication::translate("QelGallery", "the QelMfc0 library did not start: %1").arg(QelMfc0LastError()));

    // From here on a termination signal ends the event loop, and with it the run, cleanly: the
    // unpacked project is removed even when the signal comes while the pages are built. A
    // screenshot run has no event loop to end and keeps the default handling.
    if (!parser.isSet(screenshot))
        StartUp::QuitOnTerminationSignals(&app);

    // Declared first, removed last: the window and the project are gone before the folder.
    std::unique_ptr<DefaultProject> embedded;
    QString projectsFolder;
    if (parser.isSet(projects)) {
        projectsFolder = parser.value(projects);
    } else {
        embedded = std::make_unique<DefaultProject>();
        if (!embedded->IsValid())
            return Fail(QCoreApplication::translate("QelGallery", "the embedded sample project could not be unpacked into %1").arg(QDir::toNativeSeparators(QDir::tempPath())));
        projectsFolder = embedded->ProjectsFolder();
    }
    ProjectCloser closer;
    DataSearch& search = DataSearch::GetDataSearch();
    // The embedded project is a throw-away copy: keep it out of the user's suite settings.
    if (embedded)
        search.SetIniFile(std::make_unique<QelIniFile_IO>(projectsFolder + QStringLiteral("/QelSuite.ini")));

    const QString name = parser.value(project);
    if (!search.Open(projectsFolder, name)) {
        if (!embedded)
            return Fail(QCoreApplication::translate("QelGallery", "cannot open project \"%1\": %2 is missing or cannot be read")
                            .arg(name, QDir::toNativeSeparators(projectsFolder + QLatin1Char('/') + name + QStringLiteral("/Project.qpd"))));
        QStringList names;
        for (const QString& folder : QDir(projectsFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            if (QFileInfo::exists(projectsFolder + QLatin1Char('/') + folder + QStringLiteral("/Project.qpd")))
                names << folder;
        return Fail(QCoreApplication::translate("QelGallery", "cannot open project \"%1\": the embedded projects are %2; use --projects DIR for others")
                        .arg(name, names.join(QStringLiteral(", "))));
    }
    const QString problem = StartUp::OpenProjectProblem();
    if (!problem.isEmpty())
        return Fail(QCoreApplication::translate("QelGallery", "cannot show project \"%1\": %2").arg(name, problem));

    GalleryWindow window;
    window.show();
    if (parser.isSet(screenshot)) {
        if (!window.WriteScreenshots(parser.value(screenshot)))
            return Fail(QCoreApplication::translate("QelGallery", "could not write the screenshots into %1").arg(QDir::toNativeSeparators(parser.value(screenshot))), 1);
        return 0;
    }
    return app.exec();
}

} // namespace

int main(int argc, char** argv)
{
    // The language is settled before the application object exists: the library installs its
    // translator for the default locale while the application starts.
    const QString requested = StartUp::RequestedLanguage(argc, argv);
    const QString languages = StartUp::AvailableLanguages().join(QStringLiteral(", "));
    if (!requested.isEmpty() && !StartUp::IsAvailableLanguage(requested))
        return Fail(StartUp::TranslateBeforeStart(QT_TRANSLATE_NOOP("QelGallery", "unknown language \"%1\"; the gallery speaks %2"))
                        .arg(requested, languages));
    if (!requested.isEmpty())
        QLocale::setDefault(QLocale(requested));
    if (!StartUp::ChooseHeadlessPlatform(argc, argv))
        return Fail(StartUp::TranslateBeforeStart(
            QT_TRANSLATE_NOOP("QelGallery", "no display to show the window on (DISPLAY and WAYLAND_DISPLAY are not set); "
                                            "--screenshot DIR writes the pages as PNG files without one")));
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Qel"));
    QCoreApplication::setApplicationName(QStringLiteral("QelGallery"));
    QApplication::setFont(QFont(QStringLiteral("Arial"), 9));
    StartUp::InstallTranslators(&app);

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("QelGallery", "Shows the controls of the QelMfc0 library."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QCoreApplication::translate("QelGallery", "Write a PNG of every page in every colour mode into <dir> and exit."), QStringLiteral("dir"));
    const QCommandLineOption projects(QStringLiteral("projects"), QCoreApplication::translate("QelGallery", "Open a projects folder instead of the embedded one."), QStringLiteral("dir"));
    const QCommandLineOption project(QStringLiteral("project"), QCoreApplication::translate("QelGallery", "Name of the project to open."), QStringLiteral("name"), DefaultProject::ProjectName());
    const QCommandLineOption language(QStringLiteral("language"), QCoreApplication::translate("QelGallery", "Show the texts in this language (%1) instead of the system's.").arg(languages), QStringLiteral("name"));
    parser.addOptions({ screenshot, projects, project, language });
    parser.process(app);
    if (parser.isSet(language) && !StartUp::IsAvailableLanguage(parser.value(language)))
        return Fail(QCoreApplication::translate("QelGallery", "unknown language \"%1\"; the gallery speaks %2").arg(parser.value(language), languages));

    try {
        return Run(app, parser, screenshot, projects, project);
    } catch (const std::exception& error) {
        return Fail(QCoreApplication::translate("QelGallery", "stopped by an unexpected error: %1").arg(QString::fromLocal8Bit(error.what())), 3);
    } catch (...) {
        return Fail(QCoreApplication::translate("QelGallery", "stopped by an unexpected error"), 3);
    }
}
