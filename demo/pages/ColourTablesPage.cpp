#include "pages/ColourTablesPage.h"

#include "DialogPlacement.h"
#include "pages/ColourLegend.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QelBase/ColorTableLookup.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileTypeCombo.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ColorTableImage.h>
#include <QelMfc0/controls/ProjectFollower.h>
#include <QelMfc0/dialogs/colourtables/BCColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/ColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/DredgeDiffColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/MapColorTableEditor.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <exception>

namespace {
// The picture: the coloured grid, scaled to the room it has, keeping its shape.
class GridPicture : public QWidget {
public:
    explicit GridPicture(const QImage& image, QWidget* parent)
        : QWidget(parent)
        , m_image(image)
    {
        setMinimumSize(BathymetryGrid::kColumns / 2, BathymetryGrid::kRows / 2);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    // Where the picture is drawn, in the widget's coordinates.
    QRect PictureRect() const
    {
        QRect area(QPoint(), QSize(BathymetryGrid::kColumns, BathymetryGrid::kRows).scaled(size(), Qt::KeepAspectRatio));
        area.moveCenter(rect().center());
        return area;
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (m_image.isNull())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(PictureRect(), m_image);
    }

private:
    const QImage& m_image; // the page's
};
} // namespace

ColourTablesPage::ColourTablesPage(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* choice = new QHBoxLayout;
    auto* label = new QLabel(tr("&Colour table:"), this);
    m_tables = new FileTypeCombo(DataSearch::TYPE_COLOR_TABLE, this);
    m_tables->setObjectName(QStringLiteral("tableCombo"));
    m_tables->setMinimumContentsLength(12);
    // The depth table of the sample project first.
    SelectTable(QStringLiteral("Depth"));
    label->setBuddy(m_tables);
    m_edit = new QPushButton(tr("&Edit table..."), this);
    m_edit->setObjectName(QStringLiteral("editTable"));
    choice->addWidget(label);
    choice->addWidget(m_tables);
    choice->addWidget(m_edit);
    choice->addStretch(1);
    const struct {
        SpecialEditor kind;
        QString text;
        const char* name;
    } specials[] = {
        { SpecialEditor::DredgeDifferences, tr("&Dredging differences..."), "dredgeDiffEditor" },
        { SpecialEditor::BottomClasses, tr("Botto&m classes..."), "bottomClassEditor" },
        { SpecialEditor::MapColours, tr("Ma&p colours..."), "mapColourEditor" },
    };
    for (const auto& special : specials) {
        auto* button = new QPushButton(special.text, this);
        button->setObjectName(QLatin1String(special.name));
        connect(button, &QPushButton::clicked, this, [this, kind = special.kind] { EditSpecial(kind); });
        choice->addWidget(button);
    }
    layout->addLayout(choice);

    auto* view = new QHBoxLayout;
    m_picture = new GridPicture(m_image, this);
    m_picture->setObjectName(QStringLiteral("colouredGrid"));
    m_legend = new ColourLegend(this);
    m_legend->setObjectName(QStringLiteral("legend"));
    view->addWidget(m_picture, 1);
    view->addWidget(m_legend, 0, Qt::AlignTop);
    layout->addLayout(view, 1);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("colouringStatus"));
    layout->addWidget(m_status);

    // A save of the table's file (the editor's Apply, or any other program) shows at once;
    // a save comes as a few changes in a row, read once they are over.
    m_reload = new QTimer(this);
    m_reload->setSingleShot(true);
    m_reload->setInterval(100);
    connect(m_reload, &QTimer::timeout, this, [this] {
        m_tables->Refresh();
        LoadTable();
    });
    m_watcher = new QFileSystemWatcher(this);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, m_reload, qOverload<>(&QTimer::start));
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, m_reload, qOverload<>(&QTimer::start));

    connect(m_tables, &FileTypeCombo::selectedNameChanged, this, &ColourTablesPage::LoadTable);
    connect(m_edit, &QPushButton::clicked, this, &ColourTablesPage::EditTable);
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { Colour(); }, this);
    // The combo follows the project itself; the table is read again even when its name stays,
    // and the key shows the new project's depth unit and decimals.
    ProjectFollower::Follow(this, {}, [this] {
        m_loadedPath.clear();
        LoadTable();
    });
    LoadTable();
}

ColourTablesPage::~ColourTablesPage() = default;

bool ColourTablesPage::SelectTable(const QString& name)
{
    return m_tables->findText(name, Qt::MatchFixedString) >= 0 && m_tables->SetSelected(name);
}

QString ColourTablesPage::TableName() const
{
    return m_tables->selectedName();
}

const BathymetryGrid& ColourTablesPage::Grid() const
{
    if (!m_grid)
        m_grid = std::make_unique<const BathymetryGrid>();
    return *m_grid;
}

QRect ColourTablesPage::GridRect() const
{
    const QRect area = static_cast<const GridPicture*>(m_picture)->PictureRect();
    return area.translated(m_picture->mapTo(this, QPoint()));
}

void ColourTablesPage::LoadTable()
{
    try {
        const QString name = TableName();
        const QString path = name.isEmpty() ? QString() : DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name);
        ColorTable table;
        FileObject file;
        const bool read = !path.isEmpty() && file.FileOpen(path) && table.FileOpen(file);
        WatchTableFile();
        if (path == m_loadedPath && table == m_table && !m_colourWhenShown && !m_image.isNull())
            return;
        m_table = table;
        m_loadedPath = path;
        m_problem.clear();
        if (name.isEmpty()) {
            QString folder;
            DataSearch::GetDataSearch().GetDataPathInfo(DataSearch::PATH_COLOR_TABLES, folder);
            m_problem = tr("No colour tables in %1").arg(QDir::toNativeSeparators(folder));
        } else if (!read) {
            m_problem = tr("The colour table %1 could not be read: every cell is shown in the low colour.").arg(name);
        }
        m_legend->SetTable(m_table);
        m_legend->setVisible(!name.isEmpty());
        m_edit->setEnabled(!name.isEmpty());
        Colour();
    } catch (const std::exception& e) {
        qWarning("Colour tables page: %s", e.what());
    }
}

void ColourTablesPage::Colour()
{
    // The gallery makes every page at its start: the grid is computed and coloured when seen.
    if (!isVisible()) {
        m_colourWhenShown = true;
        return;
    }
    m_colourWhenShown = false;
    try {
        if (m_loadedPath.isEmpty()) {
            m_image = QImage();
            m_picture->update();
            m_status->setText(m_problem);
            return;
        }
        // The table as the mode shows it; the file's table stays as it is.
        ColorTable shown = m_table;
        ColorControl::Instance().RemapColorTable(shown);
        // No-data cells transparent: the page shows through.
        const BathymetryGrid& grid = Grid();
        QElapsedTimer clock;
        clock.start();
        m_image = ColorTableImage::FromGrid(grid.Values(), grid.Columns(), grid.Rows(), grid.Columns(),
                                            ColorTableLookup(shown, ColorTableLookup::kNoData));
        const double milliseconds = double(clock.nsecsElapsed()) / 1.0e6;
        m_picture->update();
        const QLocale locale;
        m_status->setText(m_problem.isEmpty() ? tr("Coloured %1 cells in %2 ms").arg(locale.toString(qlonglong(grid.CellCount())), locale.toString(milliseconds, 'f', 1))
                                              : m_problem);
    } catch (const std::exception& e) {
        qWarning("Colour tables page: %s", e.what());
    }
}

void ColourTablesPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_colourWhenShown)
        Colour();
}

void ColourTablesPage::WatchTableFile()
{
    if (!m_watcher->files().isEmpty())
        m_watcher->removePaths(m_watcher->files());
    if (!m_watcher->directories().isEmpty())
        m_watcher->removePaths(m_watcher->directories());
    QString folder;
    if (DataSearch::GetDataSearch().GetDataPathInfo(DataSearch::PATH_COLOR_TABLES, folder) && QFileInfo(folder).isDir())
        m_watcher->addPath(folder);
    const QString name = TableName();
    if (!name.isEmpty()) {
        const QString path = DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name);
        if (QFileInfo::exists(path))
            m_watcher->addPath(path);
    }
}

void ColourTablesPage::EditTable()
{
    if (CColorTableEditor* editor = OpenEditor()) {
        editor->exec();
        delete editor;
    }
}

CColorTableEditor* ColourTablesPage::OpenEditor()
{
    const QString name = TableName();
    if (name.isEmpty())
        return nullptr;
    auto* editor = new CColorTableEditor(name, this, true, false);
    // Apply wrote another file (one chosen in the editor, or the table saved as another): show it.
    connect(editor, &CColorTableEditor::tableNameChanged, this, [this](const QString& saved) {
        m_tables->Refresh();
        SelectTable(saved);
    });
    // Whatever the editor wrote shows once it closes.
    connect(editor, &QDialog::finished, this, [this] {
        m_tables->Refresh();
        LoadTable();
    });
    Place(editor);
    return editor;
}

QString ColourTablesPage::SpecialTableName(SpecialEditor kind)
{
    switch (kind) {
    case SpecialEditor::DredgeDifferences:
        return QStringLiteral("DredgeDiff");
    case SpecialEditor::BottomClasses:
        return QStringLiteral("BottomClasses");
    case SpecialEditor::MapColours:
        return QStringLiteral("SeabedClasses");
    }
    return {};
}

QString ColourTablesPage::SpecialSlug(SpecialEditor kind)
{
    switch (kind) {
    case SpecialEditor::DredgeDifferences:
        return QStringLiteral("dredgediff");
    case SpecialEditor::BottomClasses:
        return QStringLiteral("bottomclasses");
    case SpecialEditor::MapColours:
        return QStringLiteral("mapcolours");
    }
    return {};
}

void ColourTablesPage::EditSpecial(SpecialEditor kind)
{
    try {
        if (QDialog* editor = OpenSpecialEditor(kind)) {
            editor->exec();
            delete editor;
        }
    } catch (const std::exception& e) {
        qWarning("Colour tables page: %s", e.what());
    }
}

QDialog* ColourTablesPage::OpenSpecialEditor(SpecialEditor kind)
{
    const QString name = SpecialTableName(kind);
    QDialog* editor = nullptr;
    switch (kind) {
    case SpecialEditor::DredgeDifferences: {
        auto* dredge = new DredgeDiffColorTableEditor(name, this, true);
        connect(dredge, &DredgeDiffColorTableEditor::tableNameChanged, this, [this] {
            m_tables->Refresh();
            LoadTable();
        });
        editor = dredge;
        break;
    }
    case SpecialEditor::BottomClasses:
        editor = new BCColorTableEditor(name, this);
        break;
    case SpecialEditor::MapColours:
        editor = new MapColorTableEditor(name, this);
        break;
    }
    if (!editor)
        return nullptr;
    // Whatever the editor wrote shows once it closes.
    connect(editor, &QDialog::finished, this, [this] {
        m_tables->Refresh();
        LoadTable();
    });
    Place(editor);
    return editor;
}

void ColourTablesPage::Place(QDialog* editor)
{
    // A dialog that chose its own size (room for every row) keeps it.
    if (!editor->testAttribute(Qt::WA_Resized))
        editor->adjustSize();
    if (const QScreen* screen = window()->screen()) {
        const auto global = [](const QWidget* w, const QRect& r) { return QRect(w->mapToGlobal(r.topLeft()), r.size()); };
        const QSize frame = editor->size() + QSize(8, 34); // the decoration, not known before it shows
        editor->move(DialogPlacement::FreeSpot(frame, window()->frameGeometry(),
                                               { global(this, GridRect()), global(m_legend, m_legend->rect()) },
                                               screen->availableGeometry()));
    }
}
