#include "pages/LibraryPage.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelGeoCoordSysBase.h>
#include <QelMfc0/controls/ProjectFollower.h>
#include <QelMfc0/AppIdentifiers.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/QelMfc0Functions.h>

#include <algorithm>

namespace {
QString VersionText()
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(kQelMfc0Version >> 24).arg((kQelMfc0Version >> 16) & 0xFF)
        .arg((kQelMfc0Version >> 8) & 0xFF).arg(kQelMfc0Version & 0xFF);
}

QGroupBox* ModuleBox(QWidget* parent)
{
    auto* box = new QGroupBox(LibraryPage::tr("Library"), parent);
    auto* form = new QFormLayout(box);
    form->addRow(LibraryPage::tr("Version:"), new QLabel(VersionText()));
    form->addRow(LibraryPage::tr("Attached:"), new QLabel(IsQelMfc0Attached() ? LibraryPage::tr("yes") : LibraryPage::tr("no: %1").arg(QelMfc0LastError())));
    form->addRow(LibraryPage::tr("Build:"), new QLabel(QelMfc0BuildStamp()));
    return box;
}

// The open project's folder, coordinate system, unit and decimals, in `form`.
void FillProjectRows(QFormLayout* form)
{
    while (form->rowCount() > 0)
        form->removeRow(0);
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    if (!project) {
        form->addRow(new QLabel(LibraryPage::tr("No project is open.")));
        return;
    }
    QString folder;
    DataSearch::GetDataSearch().GetDataPathInfo(DataSearch::PATH_PROJECT, folder);
    int grid = 0, geo = 0, dist = 0, depth = 0;
    project->GetGridDecimals(grid);
    project->GetGeogsDecimals(geo);
    project->GetDistanceDecimals(dist);
    project->GetDepthDecimals(depth);
    const QelGeoCoordSysBase* crs = project->GetGeoCoordSys();
    form->addRow(LibraryPage::tr("Folder:"), new QLabel(folder));
    form->addRow(LibraryPage::tr("Coordinate system:"), new QLabel(crs ? crs->GetDefinition() : LibraryPage::tr("none")));
    form->addRow(LibraryPage::tr("Distance unit:"), new QLabel(project->GetUnitCnv().GetUnitMnem(UNIT_DISTANCE)));
    form->addRow(LibraryPage::tr("Decimals grid / geo / distance / depth:"),
                 new QLabel(QStringLiteral("%1 / %2 / %3 / %4").arg(grid).arg(geo).arg(dist).arg(depth)));
}

// The project box; its rows follow when another project is opened.
QGroupBox* ProjectBox(QWidget* parent)
{
    auto* box = new QGroupBox(LibraryPage::tr("Project"), parent);
    auto* form = new QFormLayout(box);
    FillProjectRows(form);
    ProjectFollower::Follow(box, nullptr, [form] { FillProjectRows(form); });
    return box;
}

// A list at least as wide as its longest item, whatever the font of the moment.
class NameListWidget : public QListWidget {
public:
    using QListWidget::QListWidget;
    QSize minimumSizeHint() const override
    {
        QSize hint = QListWidget::minimumSizeHint();
        const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        hint.setWidth(std::max(hint.width(), sizeHintForColumn(0) + 2 * frameWidth() + scrollBar + 4));
        return hint;
    }
    QSize sizeHint() const override { return QSize(minimumSizeHint().width(), QListWidget::sizeHint().height()); }
};

QListWidget* NameList(QWidget* parent, const QStringList& names)
{
    auto* list = new NameListWidget(parent);
    list->addItems(names);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}
} // namespace

LibraryPage::LibraryPage(QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->addWidget(ModuleBox(this), 0, 0);
    grid->addWidget(ProjectBox(this), 1, 0);

    // A dialog-like box whose labels carry unit placeholders, filled in by SetDialogUnits: the
    // texts as a dialog holds them on the left, as shown on the right. They are filled in again
    // when another project is opened.
    auto* units = new QGroupBox(tr("Unit placeholders"), this);
    auto* unitsLayout = new QHBoxLayout(units);
    auto* templates = new QWidget(units);
    auto* templateLayout = new QVBoxLayout(templates);
    auto* holder = new QWidget(units);
    holder->setObjectName(QStringLiteral("filledInTexts"));
    auto* holderLayout = new QVBoxLayout(holder);
    const QStringList texts = {
        tr("Draught [%D]"), tr("Speed [%S], heading [%A]"), tr("Load [%T], force [%F]"), tr("Grid [%W]"),
        tr("Once per text: %D, then %D"), tr("Not a placeholder: %X"),
    };
    QList<QLabel*> shown;
    for (const QString& text : texts) {
        auto* original = new QLabel(text, templates);
        original->setTextFormat(Qt::PlainText);
        templateLayout->addWidget(original);
        shown << new QLabel(text, holder);
        shown.back()->setTextFormat(Qt::PlainText);
        holderLayout->addWidget(shown.back());
    }
    const auto fill = [holder, shown, texts] {
        for (int i = 0; i < shown.size(); ++i)
            shown[i]->setText(texts[i]);
        SetDialogUnits(holder);
    };
    fill();
    ProjectFollower::Follow(holder, nullptr, fill);
    unitsLayout->addWidget(templates);
    unitsLayout->addWidget(new QLabel(QStringLiteral("\u2192"), units));
    unitsLayout->addWidget(holder, 1);
    grid->addWidget(units, 2, 0);

    auto* dialogs = new QGroupBox(tr("File dialogs"), this);
    auto* dialogLayout = new QVBoxLayout(dialogs);
    struct MediaButton { const char* text; MultiMediaType type; int open; };
    for (const MediaButton& b : { MediaButton { QT_TR_NOOP("Open image (JPEG, bitmap)..."), MM_IMAGE, 1 },
                                  MediaButton { QT_TR_NOOP("Open TIFF..."), MM_TIFF, 1 },
                                  MediaButton { QT_TR_NOOP("Save video as..."), MM_VIDEO, 0 },
                                  MediaButton { QT_TR_NOOP("Import image..."), MM_IMPORT_IMAGE, 1 } }) {
        auto* button = new QPushButton(tr(b.text), dialogs);
        connect(button, &QPushButton::clicked, this, [this, b] {
            QString path;
            ShowResult(ShowMultimediaFileDlg(path, this, b.type, b.open) ? path : tr("cancelled"));
        });
        dialogLayout->addWidget(button);
    }
    auto* multi = new QPushButton(tr("Select data files..."), dialogs);
    connect(multi, &QPushButton::clicked, this, [this] {
        QStringList files;
        ShowResult(ShowMultiSelectionFileDlg(files, tr("All files") + QStringLiteral(" (*.*)|*.*||"), this) ? files.join(QLatin1Char('\n')) : tr("cancelled"));
    });
    dialogLayout->addWidget(multi);
    auto* projectFile = new QPushButton(tr("Open project file..."), dialogs);
    connect(projectFile, &QPushButton::clicked, this, [this] {
        QString path;
        ShowResult(StartFileTypeDlg(13, path, false, this) ? path : tr("cancelled"));
    });
    dialogLayout->addWidget(projectFile);
    m_result = new QLabel(tr("Choose a file to see its path here."), dialogs);
    m_result->setWordWrap(true);
    dialogLayout->addWidget(m_result);
    dialogLayout->addStretch();
    grid->addWidget(dialogs, 0, 1, 3, 1);

    QStringList identifiers;
    for (QLatin1StringView id : kApplicationIdentifiers)
        identifiers << QString(id);
    QStringList categories;
    for (int kind = 0; kind < kUnitKindCount; ++kind)
        categories << QStringLiteral("%1  %2").arg(kind, 2).arg(UnitCategoryDisplayName(kind));
    auto* idBox = new QGroupBox(tr("Application identifiers"), this);
    (new QVBoxLayout(idBox))->addWidget(NameList(idBox, identifiers));
    auto* catBox = new QGroupBox(tr("Unit categories"), this);
    (new QVBoxLayout(catBox))->addWidget(NameList(catBox, categories));
    // The two lists share a column, so that the page fits beside the page list.
    auto* lists = new QVBoxLayout;
    lists->addWidget(idBox, 1);
    lists->addWidget(catBox, 1);
    grid->addLayout(lists, 0, 2, 3, 1);
    grid->setColumnStretch(1, 1);
}

void LibraryPage::ShowResult(const QString& text)
{
    m_result->setText(text);
}
