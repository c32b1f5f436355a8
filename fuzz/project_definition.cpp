// The project file reader (ProjectDefinition::Load, which takes a path: the input is written to
// Project.qpd in a scratch project folder). Checked: every setting is within its documented
// range, and saving the project and loading it again gives the same settings.
#include "FuzzSupport.h"

#include <QelBase/UnitCategories.h>
#include <QelConfigure/ProjectDefinition.h>

#include <QDir>
#include <QFile>

namespace {

struct Settings
{
    QString name, crs, multiMedia;
    bool hasCoordSys = false, hasMultiMedia = false;
    int decimals[5] = {};
    unsigned geogsFlags = 0, feetFlags = 0;
    int coordFormat = 0;
    QStringList units;
    QList<QPair<QString, QString>> options;

    bool operator==(const Settings&) const = default;
};

Settings Read(const ProjectDefinition& project)
{
    Settings s;
    s.name = project.GetProjectName();
    s.crs = project.GetCrsDefinition();
    s.hasCoordSys = project.GetGeoCoordSys() != nullptr;
    s.hasMultiMedia = project.GetMultiMediaFilePath(s.multiMedia);
    project.GetGridDecimals(s.decimals[0]);
    project.GetGeogsDecimals(s.decimals[1]);
    project.GetDistanceDecimals(s.decimals[2]);
    project.GetDepthDecimals(s.decimals[3]);
    project.GetBearingDecimals(s.decimals[4]);
    project.GetGeogsFlags(s.geogsFlags);
    project.GetFeetsFlags(s.feetFlags);
    s.coordFormat = project.GetCoordFormat();
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        s.units << project.GetUnitCnv().GetUnitKey(kind);
    s.options = project.GetEntries(QStringLiteral("Options"));
    return s;
}

QString ProjectFile()
{
    QDir(fuzz::ScratchFolder()).mkpath(QStringLiteral("Survey"));
    return fuzz::ScratchFolder() + QStringLiteral("/Survey/Project.qpd");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString path = ProjectFile();
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(reinterpret_cast<const char*>(data), qint64(size)) == qint64(size));
    file.close();

    ProjectDefinition project;
    FUZZ_CHECK(project.Load(path));
    const Settings loaded = Read(project);
    FUZZ_CHECK(!loaded.name.isEmpty() && loaded.name == loaded.name.trimmed());
    for (int decimals : loaded.decimals)
        FUZZ_CHECK(decimals >= 0 && decimals <= 12, "%d decimals", decimals);
    FUZZ_CHECK(loaded.geogsFlags == 1 || loaded.geogsFlags == 3 || loaded.geogsFlags == 7);
    FUZZ_CHECK(loaded.coordFormat == 1 || loaded.coordFormat == 2);
    FUZZ_CHECK(!loaded.hasCoordSys || !loaded.crs.isEmpty());
    for (const QString& unit : loaded.units)
        FUZZ_CHECK(!unit.isEmpty());

    FUZZ_CHECK(project.FileSave());
    ProjectDefinition reloaded;
    FUZZ_CHECK(reloaded.Load(path));
    const Settings again = Read(reloaded);
    FUZZ_CHECK(again.name == loaded.name && again.crs == loaded.crs && again.hasCoordSys == loaded.hasCoordSys,
               "project [%s] crs [%s] became [%s] [%s]", fuzz::Show(loaded.name).constData(),
               fuzz::Show(loaded.crs).constData(), fuzz::Show(again.name).constData(), fuzz::Show(again.crs).constData());
    FUZZ_CHECK(again.multiMedia == loaded.multiMedia && again.hasMultiMedia == loaded.hasMultiMedia,
               "multimedia [%s] became [%s]", fuzz::Show(loaded.multiMedia).constData(),
               fuzz::Show(again.multiMedia).constData());
    FUZZ_CHECK(again.units == loaded.units, "units change on saving");
    FUZZ_CHECK(again == loaded, "settings change on saving");
    return 0;
}
