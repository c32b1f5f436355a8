// QelGallery: shows every control and dialog of the QelMfc0 library on a sample project.
#include "DefaultProject.h"
#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelIniFile_IO.h>
#include <QelMfc0/QelMfc0.h>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Qel"));
    QCoreApplication::setApplicationName(QStringLiteral("QelGallery"));
    QApplication::setFont(QFont(QStringLiteral("Arial"), 9));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the controls of the QelMfc0 library."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Write a PNG of every page into <dir> and exit."), QStringLiteral("dir"));
    const QCommandLineOption projects(QStringLiteral("projects"), QStringLiteral("Open a projects folder instead of the embedded one."), QStringLiteral("dir"));
    const QCommandLineOption project(QStringLiteral("project"), QStringLiteral("Name of the project to open."), QStringLiteral("name"), DefaultProject::ProjectName());
    parser.addOptions({ screenshot, projects, project });
    parser.process(app);

    QTextStream err(stderr);
    if (!IsQelMfc0Attached()) {
        err << "QelMfc0 did not start: " << QelMfc0LastError() << '\n';
        return 2;
    }

    DefaultProject embedded;
    const QString projectsFolder = parser.isSet(projects) ? parser.value(projects) : embedded.ProjectsFolder();
    // The embedded project is a throw-away copy: keep it out of the user's suite settings.
    if (!parser.isSet(projects))
        DataSearch::GetDataSearch().SetIniFile(std::make_unique<QelIniFile_IO>(embedded.ProjectsFolder() + QStringLiteral("/QelSuite.ini")));
    if (!DataSearch::GetDataSearch().Open(projectsFolder, parser.value(project)))
        err << "could not open project " << parser.value(project) << " in " << projectsFolder << '\n';

    GalleryWindow window;
    window.show();
    if (parser.isSet(screenshot)) {
        const bool ok = window.WriteScreenshots(parser.value(screenshot));
        if (!ok)
            err << "could not write the screenshots into " << parser.value(screenshot) << '\n';
        return ok ? 0 : 1;
    }
    return app.exec();
}
