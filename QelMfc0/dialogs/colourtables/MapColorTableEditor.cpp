#include "QelMfc0/dialogs/colourtables/MapColorTableEditor.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/QelString.h>
#include <QelConfigure/DataDefinition.h>
#include <QelConfigure/DataInfo.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/ColorGridFill.h>
#include <QelMfc0/dialogs/colourtables/DepthColorEditDlg.h>

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>

namespace {

Q_LOGGING_CATEGORY(lcMapEditor, "qel.colourtables.map")

// Runs a handler so that no exception reaches the event loop; a failure is logged.
template <class Handler>
void Guarded(Handler&& handler)
{
    try {
        handler();
    } catch (const std::exception& error) {
        qCWarning(lcMapEditor) << "map colour table editor:" << error.what();
    } catch (...) {
        qCWarning(lcMapEditor) << "map colour table editor: unknown failure";
    }
}

// More texts than a table holds are not looked for.
constexpr int kMaxTexts = 4096;

} // namespace

MapColorTableEditor::MapColorTableEditor(const QString& tableName, QWidget* parent)
    : BaseDlg(kTemplateId, parent)
    , m_tableName(tableName)
    , m_file(DataSearch::TYPE_COLOR_TABLE)
{
    if (!(m_file.FileOpen(FileObject::OPEN_READ, tableName) && m_table.FileOpen(m_file.GetFileObject())))
        m_table = ColorTable();
    m_tablePath = m_file.GetPathName();
    BuildLayout();
    OnInitDialog();
}

MapColorTableEditor::~MapColorTableEditor() = default;

void MapColorTableEditor::BuildLayout()
{
    m_grid = new CColorGridCtrl(this);
    m_grid->setObjectName(QString::number(IDC_COLOR_GRID));
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setMinimumSize(DpiCor(160), DpiCor(120));
    m_grid->installEventFilter(this);

    auto* ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("1"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("2"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* main = new QVBoxLayout(this);
    main->addWidget(m_grid, 1);
    main->addLayout(buttons);
    EnableSizeGrip(true);

    connect(ok, &QPushButton::clicked, this, [this] { Guarded([this] { OnOK(); }); });
    connect(cancel, &QPushButton::clicked, this, &MapColorTableEditor::reject);
    connect(m_grid, &CColorGridCtrl::rowDoubleClicked, this,
            [this](int row) { Guarded([this, row] { OnDblclkColorGrid(row); }); });
}

void MapColorTableEditor::ReadItem()
{
    // "MAP,group,item,format": the fields after the first name the item.
    QString attribs;
    DataSearch::GetDataSearch().GetFileSubTypeAttribs(DataSearch::TYPE_COLOR_TABLE, m_tableName, attribs);
    CQelString fields(attribs, QLatin1Char(','));
    fields.Erase(0);
    CDataInfo info;
    if (!info.SetFromString(fields.Join(QLatin1Char(','))))
        return;
    info.GetInfo(m_group, m_item, m_format);
}

void MapColorTableEditor::CompleteTable()
{
    const int count = int(m_texts.size());
    const int n = m_table.NumEntries();
    if (count == 0)
        return;
    if (n == 0) {
        m_table.SetRange(0.0, double(count - 1), 1.0, RGB(255, 0, 0), RGB(0, 255, 0));
        return;
    }
    // Red entries at the next indexes; a value already present is passed over, as many times
    // as there are entries at most.
    for (int value = n; m_table.NumEntries() < count && value < n + count; ++value) {
        if (m_table.AddEntry(double(value), RGB(255, 0, 0), false, QString()) < 0)
            break;
    }
}

void MapColorTableEditor::OnInitDialog()
{
    ReadItem();
    setWindowTitle(tr("Map Color Table") + QStringLiteral(" - ") + m_tableName);
    if (m_format == kMapTextFormat) {
        const DataDefinition& definition = DataDefinition::GetDataDefinition();
        QString text;
        for (int index = 0; index < kMaxTexts && definition.GetGroupItemMapTxt(m_group, m_item, index, text); ++index)
            m_texts << text;
        CompleteTable();
    }
    FillColorTree();
    // Tall enough for every text at the usual row height, as far as the screen allows.
    const int rows = std::max(int(m_texts.size()), 8);
    const int wanted = sizeHint().height() - m_grid->sizeHint().height()
        + rows * m_grid->GetDefaultRowHeight() + 2 * m_grid->frameWidth();
    const QScreen* screen = this->screen();
    const int room = screen ? screen->availableGeometry().height() * 4 / 5 : wanted;
    int textWidth = 0;
    for (const QString& text : std::as_const(m_texts))
        textWidth = std::max(textWidth, m_grid->fontMetrics().horizontalAdvance(text));
    m_grid->setMinimumWidth(std::max(m_grid->minimumWidth(), textWidth + DpiCor(30)));
    resize(std::max(sizeHint().width(), minimumSizeHint().width()),
           std::max(minimumSizeHint().height(), std::min(wanted, room)));
}

void MapColorTableEditor::FillColorTree()
{
    const int count = int(m_texts.size());
    const int selected = m_grid->GetSelectedRow();
    m_grid->setUpdatesEnabled(false);
    m_grid->DeleteAllItems();
    m_grid->SetFixedRowCount(0);
    m_grid->SetFixedColumnCount(0);
    m_grid->SetGridLines(false);
    m_grid->SetColumnCount(1);
    m_grid->SetRowCount(count);
    for (int row = 0; row < count; ++row)
        ColorGridFill::SetColorRow(m_grid, row, m_texts[row], m_table.EntryColor(row));
    FitRows();
    if (selected >= 0 && selected < count)
        m_grid->SetSelectedRow(selected);
    m_grid->setUpdatesEnabled(true);
}

std::vector<int> MapColorTableEditor::StretchedRowHeights(int clientHeight, int count)
{
    std::vector<int> heights;
    if (count <= 0 || clientHeight < 0)
        return heights;
    const float h = float(clientHeight) / float(count);
    // The last boundary is the client height itself, so no pixel is lost to rounding.
    const auto boundary = [&](int i) { return i >= count ? clientHeight : int(float(i) * h); };
    heights.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
        heights.push_back(boundary(i + 1) - boundary(i));
    return heights;
}

void MapColorTableEditor::FitRows()
{
    const int count = m_grid->GetRowCount();
    if (count == 0)
        return;
    // The grid's client area without scroll bars.
    const int client = m_grid->maximumViewportSize().height();
    const int standard = m_grid->GetDefaultRowHeight();
    if (qint64(count) * standard > client) {
        for (int row = 0; row < count; ++row)
            m_grid->SetRowHeight(row, standard);
        return;
    }
    const std::vector<int> heights = StretchedRowHeights(client, count);
    for (int row = 0; row < count; ++row)
        m_grid->SetRowHeight(row, heights[size_t(row)]);
}

void MapColorTableEditor::OnDblclkColorGrid(int row)
{
    if (row < 0 || row >= int(m_texts.size()) || row >= m_table.NumEntries())
        return;
    CDepthColorEditDlg dialog(this);
    dialog.SetIndex(row);
    dialog.SetValue(m_table.EntryValue(row));
    dialog.SetColor(m_table.EntryColor(row));
    dialog.SetFixedValueText(m_texts[row]);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_table.SetEntryColor(row, dialog.GetColor());
    FillColorTree();
}

void MapColorTableEditor::OnOK()
{
    m_file.FileClose();
    const bool saved = m_table.FileSave(m_file.GetFileObject())
        && m_file.FileSave(FileObject::OPEN_CREATE, m_tablePath);
    if (!saved) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The color table could not be saved as %1.").arg(QDir::toNativeSeparators(m_tablePath)));
        return;
    }
    accept();
}

bool MapColorTableEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid && event->type() == QEvent::Resize)
        FitRows();
    return BaseDlg::eventFilter(watched, event);
}
