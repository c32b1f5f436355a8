#include "GalleryWindow.h"

#include "GalleryPages.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("QelGallery"));
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    m_pageList = new QListWidget(central);
    m_pageList->setFixedWidth(170);
    m_pages = new QStackedWidget(central);
    layout->addWidget(m_pageList);
    layout->addWidget(m_pages, 1);
    setCentralWidget(central);

    QMenu* pagesMenu = menuBar()->addMenu(tr("&Pages"));
    for (const GalleryPage& page : GalleryPages()) {
        m_pageList->addItem(page.title);
        m_pages->addWidget(page.create(m_pages));
        m_slugs << page.slug;
        const int index = m_pages->count() - 1;
        pagesMenu->addAction(page.title, this, [this, index] { ShowPage(index); });
    }
    QMenu* fileMenu = menuBar()->insertMenu(pagesMenu->menuAction(), new QMenu(tr("&File"), this))->menu();
    fileMenu->addAction(tr("&Quit"), QKeySequence::Quit, qApp, &QApplication::quit);

    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_pageList->setCurrentRow(0);

    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    statusBar()->showMessage(project ? tr("Project: %1").arg(project->GetProjectFolder()) : tr("No project open"));
    resize(1180, 760);
}

int GalleryWindow::PageCount() const { return m_pages->count(); }

void GalleryWindow::ShowPage(int index)
{
    m_pageList->setCurrentRow(index);
}

QString GalleryWindow::PageSlug(int index) const { return m_slugs.value(index); }

bool GalleryWindow::WriteScreenshots(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return false;
    bool ok = true;
    for (int i = 0; i < PageCount(); ++i) {
        ShowPage(i);
        QApplication::processEvents();
        const QString file = QDir(folder).filePath(QStringLiteral("%1-%2.png").arg(i + 1, 2, 10, QLatin1Char('0')).arg(PageSlug(i)));
        ok = grab().save(file) && ok;
    }
    return ok;
}
