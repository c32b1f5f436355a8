// QelGallery: shows every control and dialog of the QelMfc0 library on a sample project.
//
// Exit codes: 0 done, 1 a screenshot could not be written, 2 the library, the embedded project
// or the chosen project cannot be used (one line on stderr says why), 3 an unexpected error.
// The unpacked embedded project is removed on every one of these exits and on SIGINT/SIGTERM.
#include "DefaultProject.h"
#include "GalleryWindow.h"
#include "StartUp.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelIniFile_IO.h>
#include <QelMfc0/QelMfc0.h>

#include <exception>
#include <memory>

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("QelGallery", text);
}

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
        return Fail(Tr("the QelMfc0 library did not start: %1").arg(QelMfc0LastError()));

    // Declared first, removed last: the window and the project are gone before the folder.
    std::unique_ptr<DefaultProject> embedded;
    QString projectsFolder;
    if (parser.isSet(projects)) {
        projectsFolder = parser.value(projects);
    } else {
        embedded = std::make_unique<DefaultProject>();
        if (!embedded->IsValid())
            return Fail(Tr("the embedded sample project could not be unpacked into %1").arg(QDir::toNativeSeparators(QDir::tempPath())));
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
            return Fail(Tr("cannot open project \"%1\": %2 is missing or cannot be read")
                            .arg(name, QDir::toNativeSeparators(projectsFolder + QLatin1Char('/') + name + QStringLiteral("/Project.qpd"))));
        QStringList names;
        for (const QString& folder : QDir(projectsFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            if (QFileInfo::exists(projectsFolder + QLatin1Char('/') + folder + QStringLiteral("/Project.qpd")))
                names << folder;
        return Fail(Tr("cannot open project \"%1\": the embedded projects are %2; use --projects DIR for others")
                        .arg(name, names.join(QStringLiteral(", "))));
    }
    const QString problem = StartUp::OpenProjectProblem();
    if (!problem.isEmpty())
        return Fail(Tr("cannot show project \"%1\": %2").arg(name, problem));

    GalleryWindow window;
    window.show();
    if (parser.isSet(screenshot)) {
        if (!window.WriteScreenshots(parser.value(screenshot)))
            return Fail(Tr("could not write the screenshots into %1").arg(QDir::toNativeSeparators(parser.value(screenshot))), 1);
        return 0;
    }
    StartUp::QuitOnTerminationSignals(&app);
    return app.exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (!StartUp::ChooseHeadlessPlatform(argc, argv))
        return Fail(Tr("no display to show the window on (DISPLAY and WAYLAND_DISPLAY are not set); "
                       "--screenshot DIR writes the pages as PNG files without one"));
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Qel"));
    QCoreApplication::setApplicationName(QStringLiteral("QelGallery"));
    QApplication::setFont(QFont(QStringLiteral("Arial"), 9));

    QCommandLineParser parser;
    parser.setApplicationDescription(Tr("Shows the controls of the QelMfc0 library."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), Tr("Write a PNG of every page in every colour mode into <dir> and exit."), QStringLiteral("dir"));
    const QCommandLineOption projects(QStringLiteral("projects"), Tr("Open a projects folder instead of the embedded one."), QStringLiteral("dir"));
    const QCommandLineOption project(QStringLiteral("project"), Tr("Name of the project to open."), QStringLiteral("name"), DefaultProject::ProjectName());
    parser.addOptions({ screenshot, projects, project });
    parser.process(app);

    try {
        return Run(app, parser, screenshot, projects, project);
    } catch (const std::exception& error) {
        return Fail(Tr("stopped by an unexpected error: %1").arg(QString::fromLocal8Bit(error.what())), 3);
    } catch (...) {
        return Fail(Tr("stopped by an unexpected error"), 3);
    }
}
