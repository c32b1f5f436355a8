#pragma once
// A private copy of the embedded sample project for one test: copied into a temporary folder,
// opened in DataSearch (with settings in a temporary file), closed again on destruction.

#include <QString>
#include <QTemporaryDir>

class ProjectDefinition;

class TestProject
{
public:
    // Copies the sample projects and opens "NorthSea".
    TestProject();
    // Leaves DataSearch with no project open and its settings back to the default.
    ~TestProject();
    TestProject(const TestProject&) = delete;
    TestProject& operator=(const TestProject&) = delete;

    // The folder holding the projects (and "Common").
    QString ProjectsFolder() const { return m_dir.path() + QStringLiteral("/projects"); }
    // The folder of the "NorthSea" project.
    QString ProjectFolder() const { return ProjectsFolder() + QStringLiteral("/NorthSea"); }
    // The common files folder.
    QString CommonFolder() const { return ProjectsFolder() + QStringLiteral("/Common"); }
    // True when the copy was made and DataSearch opened it.
    bool IsOpen() const { return m_open; }
    // The open project's definition (DataSearch's), null when not open.
    ProjectDefinition* Project() const;
    // The settings file the test's DataSearch uses.
    QString SettingsFile() const { return m_dir.path() + QStringLiteral("/settings.ini"); }

private:
    QTemporaryDir m_dir;
    bool m_open = false;
};
