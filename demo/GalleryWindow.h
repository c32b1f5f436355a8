#pragma once
// QelGallery's main window: a page list on the left, the chosen page on the right, the colour
// mode of the whole application in the tool bar, and a Project menu that opens another project
// of the projects folder while controls and dialogs stay open.

#include <QMainWindow>
#include <QelMfc0/colour/ColorConverter.h>

class EntryPage;
class QAction;
class QComboBox;
class QLabel;
class QDir;
class QListWidget;
class QStackedWidget;

class GalleryWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);
    ~GalleryWindow() override;

    // Number of pages and switching between them (also Ctrl+1 .. Ctrl+9 and the Pages menu).
    int PageCount() const;
    void ShowPage(int index);
    int CurrentPage() const;
    // The slug (file name stem) of page `index`.
    QString PageSlug(int index) const;
    // Switches the application's colour mode, as the tool bar's selector does.
    void SetColourMode(ColorConverter::mode mode);
    // Writes a PNG of every page in every colour mode into `folder`, plus an open menu, a
    // message box and a file dialog in night mode; false when a file could not be written.
    bool WriteScreenshots(const QString& folder);

    // Opens `name` from the projects folder, as the Project menu does; false when it cannot.
    bool OpenProject(const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    void FillProjectMenu();
    void FitPageList();
    // The current colour mode in the tool bar's selector and as the checked menu entry.
    void ShowColourMode();
    void ShowProjectInStatusBar();
    bool WriteNightPopups(const QString& folder);
    static void PickTwoPoints(EntryPage* page);
    bool WriteMeasureDialogs(EntryPage* page, const QDir& dir, const QString& stem, const QString& modeName);

    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    QComboBox* m_modeSelector = nullptr;
    QMenu* m_fileMenu = nullptr;
    QMenu* m_projectMenu = nullptr;
    QLabel* m_projectLabel = nullptr;
    QList<QAction*> m_pageActions;
    QList<QAction*> m_modeActions;
    QStringList m_slugs;
};
