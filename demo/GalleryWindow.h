#pragma once
// QelGallery's main window: a page list on the left, the chosen page on the right.

#include <QMainWindow>

class QListWidget;
class QStackedWidget;

class GalleryWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    // Number of pages and switching between them.
    int PageCount() const;
    void ShowPage(int index);
    // The slug (file name stem) of page `index`.
    QString PageSlug(int index) const;
    // Writes a PNG of every page into `folder`; false when a file could not be written.
    bool WriteScreenshots(const QString& folder);

private:
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    QStringList m_slugs;
};
