#pragma once
// The default project embedded in QelGallery, unpacked into a temporary folder at start.

#include <QString>
#include <QTemporaryDir>

class DefaultProject {
public:
    // Unpacks the embedded projects folder; IsValid() tells whether that worked.
    DefaultProject();
    bool IsValid() const;
    // The unpacked projects folder (it holds "Common" and the project folders).
    QString ProjectsFolder() const;
    // The name of the project the gallery opens.
    static QString ProjectName();

private:
    QTemporaryDir m_folder;
    bool m_valid = false;
};
