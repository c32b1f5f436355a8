#include "GalleryWindow.h"

#include "GalleryPages.h"
#include "pages/ColourTablesPage.h"
#include "pages/EntryPage.h"

#include <QActionGroup>
#include <QApplication>
#include <QEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QSaveFile>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <memory>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/ProjectFollower.h>
#include <QelMfc0/dialogs/colourtables/ColorTableEditor.h>
#include <QelMfc0/dialogs/measure/MeasureBrgDistDlg.h>
#include <QelMfc0/dialogs/measure/MeasureDlg.h>
#include <QelMfc0/dialogs/measure/MeasureRelativeDlg.h>
#include <QelSubscriber/SubscriptionManager.h>

namespace {
const ColorConverter::mode kModes[] = { ColorConverter::normal, ColorConverter::night, ColorConverter::twilight,
                                        ColorConverter::bright };

// File-name stems of the colour modes, the same in every language.
QString ModeSlug(ColorConverter::mode mode)
{
    switch (mode) {
    case ColorConverter::normal: return QStringLiteral("normal");
    case ColorConverter::night: return QStringLiteral("night");
    case ColorConverter::twilight: return QStringLiteral("twilight");
    case ColorConverter::bright: return QStringLiteral("bright");
    default: return QStringLiteral("unknown");
    }
}

// A picture as a PNG file, written whole or not at all.
bool SavePng(const QPixmap& picture, const QString& path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
}

void Settle()
{
    // Palette changes and posted notifications are delivered through the event loop.
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}
} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("QelGallery"));
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    m_pageList = new QListWidget(central);
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_pages = new QStackedWidget(central);
    layout->addWidget(m_pageList);
    layout->addWidget(m_pages, 1);
    setCentralWidget(central);

    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_projectMenu = menuBar()->addMenu(tr("P&roject"));
    connect(m_projectMenu, &QMenu::aboutToShow, this, &GalleryWindow::FillProjectMenu);
    FillProjectMenu();
    QMenu* pagesMenu = menuBar()->addMenu(tr("&Pages"));
    auto* pageGroup = new QActionGroup(this);
    for (const GalleryPage& page : GalleryPages()) {
        const int index = m_pages->count();
        m_pageList->addItem(page.title);
        // Each page scrolls when the window is smaller than the page would like to be.
        auto* scroller = new QScrollArea(m_pages);
        scroller->setWidgetResizable(true);
        scroller->setFrameShape(QFrame::NoFrame);
        scroller->setWidget(page.create(scroller));
        m_pages->addWidget(scroller);
        m_slugs << page.slug;
        QAction* action = pagesMenu->addAction(page.title, this, [this, index] { ShowPage(index); });
        action->setCheckable(true);
        action->setActionGroup(pageGroup);
        if (index < 9)
            action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + index)));
        m_pageActions << action;
    }
    connect(m_pageList, &QListWidget::currentRowChanged, this, [this](int row) {
        m_pages->setCurrentIndex(row);
        if (row >= 0 && row < m_pageActions.size())
            m_pageActions[row]->setChecked(true);
    });
    m_pageList->setCurrentRow(0);
    FitPageList();

    // The colour mode of the whole application.
    QToolBar* toolBar = addToolBar(tr("Display"));
    toolBar->setObjectName(QStringLiteral("displayToolBar"));
    toolBar->addWidget(new QLabel(tr(" Colour mode: "), toolBar));
    m_modeSelector = new QComboBox(toolBar);
    QMenu* modeMenu = m_fileMenu->addMenu(tr("Colour &mode"));
    auto* modeGroup = new QActionGroup(this);
    for (ColorConverter::mode mode : kModes) {
        m_modeSelector->addItem(ColorControl::GetColorModeString(mode), int(mode));
        QAction* action = modeMenu->addAction(ColorControl::GetColorModeString(mode), this, [this, mode] { SetColourMode(mode); });
        action->setCheckable(true);
        action->setActionGroup(modeGroup);
        action->setData(int(mode));
        m_modeActions << action;
    }
    toolBar->addWidget(m_modeSelector);
    connect(m_modeSelector, &QComboBox::activated, this,
            [this](int index) { SetColourMode(ColorConverter::mode(m_modeSelector->itemData(index).toInt())); });
    ShowColourMode();
    // The mode may also change elsewhere (a pending theme switch completing): follow it.
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { ShowColourMode(); }, this);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tr("&Quit"), QKeySequence::Quit, qApp, &QApplication::quit);

    // A Windows theme switch completes in the background; the host checks on it periodically.
    ColorControl& colors = ColorControl::Instance();
    colors.SaveDefaultTheme();
    colors.SaveDefaultWallPaper();
    auto* themeTimer = new QTimer(this);
    connect(themeTimer, &QTimer::timeout, this, [] { ColorControl::Instance().TimerCheck(); });
    themeTimer->start(1000);

    // The project stays in the status bar's permanent part, where menu hints do not replace it.
    m_projectLabel = new QLabel(statusBar());
    m_projectLabel->setObjectName(QStringLiteral("projectLabel"));
    m_projectLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addPermanentWidget(m_projectLabel, 1);
    ShowProjectInStatusBar();
    ProjectFollower::Follow(this, nullptr, [this] { ShowProjectInStatusBar(); });
    resize(1180, 800);
}

void GalleryWindow::FitPageList()
{
    // Wide enough for the longest title in the current font, with the frame and a margin.
    m_pageList->setFixedWidth(m_pageList->sizeHintForColumn(0) + 2 * m_pageList->frameWidth() + 12);
}

void GalleryWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitPageList();
}

void GalleryWindow::ShowColourMode()
{
    const int mode = int(ColorControl::Instance().GetLightMode());
    const int index = m_modeSelector->findData(mode);
    if (index >= 0)
        m_modeSelector->setCurrentIndex(index);
    for (QAction* action : std::as_const(m_modeActions))
        action->setChecked(action->data().toInt() == mode);
}

int GalleryWindow::CurrentPage() const { return m_pages->currentIndex(); }

void GalleryWindow::FillProjectMenu()
{
    m_projectMenu->clear();
    const DataSearch& search = DataSearch::GetDataSearch();
    QStringList names;
    if (!search.GetProjects(names)) {
        m_projectMenu->addAction(tr("No projects in the projects folder"))->setEnabled(false);
        return;
    }
    const QString current = search.GetProjectName();
    for (const QString& name : std::as_const(names)) {
        QAction* action = m_projectMenu->addAction(name, this, [this, name] { OpenProject(name); });
        action->setCheckable(true);
        action->setChecked(name == current);
    }
}

bool GalleryWindow::OpenProject(const QString& name)
{
    DataSearch& search = DataSearch::GetDataSearch();
    QString folder;
    if (search.GetDataPathInfo(DataSearch::PATH_PROJECTS, folder) && search.Open(folder, name))
        return true;
    QMessageBox::warning(this, tr("QelGallery"), tr("The project \"%1\" could not be opened.").arg(name));
    return false;
}

void GalleryWindow::ShowProjectInStatusBar()
{
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    const QString text = project ? tr("Project: %1").arg(QDir::toNativeSeparators(project->GetProjectFolder())) : tr("No project open");
    m_projectLabel->setText(text);
    m_projectLabel->setToolTip(text);
}

GalleryWindow::~GalleryWindow()
{
    ColorControl::Instance().RestoreOriginalWindowsTheme();
}

int GalleryWindow::PageCount() const { return m_pages->count(); }

void GalleryWindow::ShowPage(int index)
{
    m_pageList->setCurrentRow(index);
}

QString GalleryWindow::PageSlug(int index) const { return m_slugs.value(index); }

void GalleryWindow::SetColourMode(ColorConverter::mode mode)
{
    ColorControl::Instance().SetLightMode(mode, true);
    ShowColourMode();
}

bool GalleryWindow::WriteScreenshots(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return false;
    const QDir dir(folder);
    bool ok = true;
    for (ColorConverter::mode mode : kModes) {
        SetColourMode(mode);
        Settle();
        const QString modeName = ModeSlug(mode);
        for (int i = 0; i < PageCount(); ++i) {
            ShowPage(i);
            auto* entry = m_pages->widget(i)->findChild<EntryPage*>();
            if (entry)
                PickTwoPoints(entry);
            Settle();
            const QString file = QStringLiteral("%1-%2-%3.png").arg(i + 1, 2, 10, QLatin1Char('0')).arg(PageSlug(i), modeName);
            ok = SavePng(grab(), dir.filePath(file)) && ok;
            const QString stem = QStringLiteral("%1-%2").arg(i + 1, 2, 10, QLatin1Char('0')).arg(PageSlug(i));
            if (entry)
                ok = WriteMeasureDialogs(entry, dir, stem, modeName) && ok;
            if (auto* tables = m_pages->widget(i)->findChild<ColourTablesPage*>()) {
                if (std::unique_ptr<CColorTableEditor> editor { tables->OpenEditor() }) {
                    editor->show();
                    Settle();
                    ok = SavePng(editor->grab(), dir.filePath(QStringLiteral("%1-editor-%2.png").arg(stem, modeName))) && ok;
                }
                for (ColourTablesPage::SpecialEditor kind : ColourTablesPage::kSpecialEditors) {
                    if (std::unique_ptr<QDialog> special { tables->OpenSpecialEditor(kind) }) {
                        special->show();
                        Settle();
                        const QString name = QStringLiteral("%1-%2-%3.png").arg(stem, ColourTablesPage::SpecialSlug(kind), modeName);
                        ok = SavePng(special->grab(), dir.filePath(name)) && ok;
                    }
                }
            }
        }
        if (mode == ColorConverter::night)
            ok = WriteNightPopups(folder) && ok;
    }
    SetColourMode(ColorConverter::normal);
    return ok;
}

void GalleryWindow::PickTwoPoints(EntryPage* page)
{
    // Two picked points 2.5 km apart on the plan, a little deeper at the second.
    page->Pick(Point(498200.0, 5759300.0, -8.4));
    page->Pick(Point(500400.0, 5760500.0, -14.9));
}

bool GalleryWindow::WriteMeasureDialogs(EntryPage* page, const QDir& dir, const QString& stem, const QString& modeName)
{
    PickTwoPoints(page);
    bool ok = true;
    const auto shoot = [&](QWidget* dialog, const char* name) {
        Settle();
        ok = SavePng(dialog->grab(), dir.filePath(QStringLiteral("%1-%2-%3.png").arg(stem, QLatin1String(name), modeName))) && ok;
        dialog->hide();
    };
    shoot(page->OpenMeasure(true), "measure3d");
    shoot(page->OpenLineRelative(), "linerelative");
    shoot(page->OpenVesselBearing(), "vesselbearing");
    return ok;
}

bool GalleryWindow::WriteNightPopups(const QString& folder)
{
    const QDir dir(folder);
    ShowPage(0);
    Settle();
    // The open File menu drawn over the window where it pops up.
    QPixmap shot = grab();
    const QPoint menuAt = menuBar()->mapTo(this, menuBar()->actionGeometry(m_fileMenu->menuAction()).bottomLeft());
    m_fileMenu->popup(mapToGlobal(menuAt));
    Settle();
    {
        QPainter painter(&shot);
        painter.drawPixmap(menuAt, m_fileMenu->grab());
    }
    m_fileMenu->hide();
    bool ok = SavePng(shot, dir.filePath(QStringLiteral("night-menu.png")));

    QMessageBox box(QMessageBox::Warning, tr("QelGallery"), tr("The survey line has not been saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("Save the changes before closing?"));
    box.show();
    Settle();
    ok = SavePng(box.grab(), dir.filePath(QStringLiteral("night-messagebox.png"))) && ok;
    box.hide();

    QFileDialog dialog(this, tr("Open survey file"), DataSearch::GetDataSearch().GetProjectDefinition()
                                                         ? DataSearch::GetDataSearch().GetProjectDefinition()->GetProjectFolder()
                                                         : QDir::tempPath());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.resize(760, 460);
    dialog.show();
    Settle();
    ok = SavePng(dialog.grab(), dir.filePath(QStringLiteral("night-filedialog.png"))) && ok;
    dialog.hide();
    return ok;
}
