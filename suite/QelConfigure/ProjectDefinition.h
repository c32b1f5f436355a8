#pragma once
// The project file (data type 13, "Project.qpd" in the project folder): name, coordinate
// reference system, decimals, geographic and feet formats, units, folders and free options.
//
//   [Project]      Name, Crs (any PROJ definition of a projected CRS, e.g. EPSG:32631)
//   [Decimals]     Grid, Geographic, Distance, Depth, Bearing   (0..12, default 2 each)
//   [Geographic]   Flags  1 degrees, 3 degrees+minutes, 7 degrees+minutes+seconds (default 7)
//   [Feet]         Flags  1 = feet shown as feet and inches (default 0)
//   [Coordinates]  Format 1 grid, 2 geographic (default 1)
//   [Units]        the unit of each kind, read and written by CQelUnitCnv
//   [Folders]      MultiMedia: relative to the project folder, or absolute
//   [Options]      free-form options of the applications (e.g. AutoShowAlerts)
// Everything else in the file is kept as it is when the project is saved.

#include "QelConfigure/QelConfigureExport.h"
#include <QelBase/FileObject.h>
#include <QelBase/QelUnitCnv.h>
#include <QelConfigure/QelGeoCoordSysBase.h>

#include <memory>

class QELCONFIGURE_EXPORT ProjectDefinition : public FileObject
{
public:
    enum coord_format : int { COORD_GRID = 1, COORD_GEOGRAPHIC = 2 };

    // Save modes and flags the suite passes to FileSave; every value saves the whole file.
    static constexpr int SAVE_WHOLE_FILE = 0;
    static constexpr unsigned SAVE_SETTINGS_AND_OPTIONS = 4113;

    ProjectDefinition();
    ~ProjectDefinition() override;
    ProjectDefinition(const ProjectDefinition&) = delete;
    ProjectDefinition& operator=(const ProjectDefinition&) = delete;

    // Reads the project file; false for a missing or unreadable file (settings then default).
    bool Load(const QString& path);
    // Writes every setting into the file's sections and saves atomically to fileName (empty:
    // its own file). mode 0 = whole file, flags 4113 = settings and options; any value saves
    // the whole file. False when the write fails (the old file stays intact).
    bool FileSave(const QString& fileName, int mode, unsigned flags);
    // The same with the whole file.
    bool FileSave(const QString& fileName = QString());

    // The folder holding the project file (absolute), empty when none is loaded.
    QString GetProjectFolder() const;
    // The project's name ("Project" Name; the folder name when the file gives none).
    QString GetProjectName() const;
    void SetProjectName(const QString& name);

    // Display settings. Each getter always writes the value (the default when the file has
    // none) and returns true.
    bool GetGridDecimals(int& decimals) const;
    bool GetGeogsDecimals(int& decimals) const;
    bool GetDistanceDecimals(int& decimals) const;
    bool GetDepthDecimals(int& decimals) const;
    bool GetBearingDecimals(int& decimals) const;
    // Geographic format flags: 1, 3 or 7.
    bool GetGeogsFlags(unsigned& flags) const;
    // Feet flags for FormatDouble (1 = feet and inches).
    bool GetFeetsFlags(unsigned& flags) const;
    coord_format GetCoordFormat() const;
    // Same as GetCoordFormat.
    coord_format GetCoordinateFormat() const { return GetCoordFormat(); }

    // Setters; decimals are clamped to 0..12, geographic flags other than 1, 3, 7 become 7,
    // a coordinate format other than 1 or 2 becomes 1.
    void SetGridDecimals(int decimals);
    void SetGeogsDecimals(int decimals);
    void SetDistanceDecimals(int decimals);
    void SetDepthDecimals(int decimals);
    void SetBearingDecimals(int decimals);
    void SetGeogsFlags(unsigned flags);
    void SetFeetsFlags(unsigned flags);
    void SetCoordFormat(int format);

    // The project's unit converter (units of every kind).
    const CQelUnitCnv& GetUnitCnv() const;
    CQelUnitCnv& GetUnitCnv();

    // The project's coordinate system (owned); null when no or an unusable CRS is defined.
    QelGeoCoordSysBase* GetGeoCoordSys() const;
    // The CRS definition text as stored, possibly unusable; empty when none.
    QString GetCrsDefinition() const;
    // Takes a new CRS definition; empty removes the CRS. False (nothing changed) for a
    // definition that does not make a projected CRS.
    bool SetCrsDefinition(const QString& definition);

    // The multimedia folder as an absolute path; false and empty when none is set.
    bool GetMultiMediaFilePath(QString& path) const;
    // Sets the multimedia folder; stored relative to the project folder when inside it.
    // Empty clears it.
    void SetMultiMediaFilePath(const QString& path);

    // Free options of the "Options" section as text; false (value untouched) when missing.
    bool GetOption(const QString& key, QString& value) const;
    void SetOption(const QString& key, const QString& value);

private:
    void resetSettings();
    void readSettings();
    void writeSettings();

    QString m_name;
    QString m_crs;
    std::unique_ptr<QelGeoCoordSysBase> m_coordSys;
    int m_gridDecimals = 2;
    int m_geogsDecimals = 2;
    int m_distanceDecimals = 2;
    int m_depthDecimals = 2;
    int m_bearingDecimals = 2;
    unsigned m_geogsFlags = 7;
    unsigned m_feetFlags = 0;
    coord_format m_coordFormat = COORD_GRID;
    CQelUnitCnv m_units;
    QString m_multiMedia;
};
