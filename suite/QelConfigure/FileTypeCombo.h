#pragma once
// A combo box of the files of one data type in its data folder (names without extension,
// sorted without regard to case). It fills itself when made and again on Refresh() and on
// every project change, keeping the selected name when it still exists.

#include "QelConfigure/QelConfigureExport.h"
#include <QComboBox>
#include <QStringList>

class QELCONFIGURE_EXPORT FileTypeCombo : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString selectedName READ selectedName WRITE SetSelected NOTIFY selectedNameChanged)
public:
    // A combo of the files of data type `fileType` (DataSearch::FileType).
    explicit FileTypeCombo(int fileType, QWidget* parent = nullptr);
    ~FileTypeCombo() override;

    // Selects `name` (compared without regard to case); a name that has no file yet is added
    // to the list so that it can be shown. False for an empty name.
    bool SetSelected(const QString& name);
    // The selected name; false and empty when nothing is selected.
    bool GetSelected(QString& name) const;
    QString selectedName() const;
    // Reads the folder again.
    void Refresh();
    int GetFileType() const;

Q_SIGNALS:
    // The user or a call selected another name.
    void selectedNameChanged(const QString& name);

private:
    // The names of the type's files, sorted.
    QStringList FileNames() const;
    // Lists the files again and selects `keep` when listed, else the first name; silent.
    void fill(const QString& keep);
    // Index of `name`, the same case preferred; -1 when not listed.
    int findName(const QString& name) const;
    // Emits selectedNameChanged when the selection differs from the one last told.
    void announce();

    int m_fileType;
    QString m_told;          // the selection last announced
    bool m_filling = false;  // the list is being rebuilt: index changes are not the user's
};
