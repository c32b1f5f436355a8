#include "QelMfc0/dialogs/colourtables/BCColorTableEditor.h"

#include <QelAttributes/AttribDefMap.h>
#include <QelBase/DisplayScale.h>
#include <QelBase/GeoText.h>
#include <QelBase/QelString.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/dialogs/colourtables/BCColorEditDlg.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/ColorGridFill.h>

#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <exception>

namespace {

Q_LOGGING_CATEGORY(lcBCEditor, "qel.colourtables.bottomclasses")

// Runs a handler so that no exception reaches the event loop; a failure is logged.
template <class Handler>
void Guarded(Handler&& handler)
{
    try {
        handler();
    } catch (const std::exception& error) {
        qCWarning(lcBCEditor) << "bottom-class table editor:" << error.what();
    } catch (...) {
        qCWarning(lcBCEditor) << "bottom-class table editor: unknown failure";
    }
}

struct DefaultType {
    double value;
    COLORREF color;
};

// Type 0 is the low colour (below -0.7); types 1 .. 19 are entries.
constexpr std::array<DefaultType, BCColorTableEditor::kTypes> kDefaults = {{
    {0.0, 0xFF0000}, {-0.7, 0xF3180C}, {-0.3, 0xE63219}, {0.0, 0xD94C26}, {1.0, 0xCC6633},
    {1.5, 0xBF8040}, {2.0, 0xB3984C}, {2.5, 0xA6B259}, {3.0, 0x99CC66}, {3.5, 0x8CE673},
    {4.0, 0x7FFF80}, {4.5, 0x73E78C}, {5.0, 0x66CD99}, {5.5, 0x59B3A6}, {6.0, 0x4C99B3},
    {6.5, 0x3F7FC0}, {7.0, 0x3367CC}, {7.5, 0x264DD9}, {8.0, 0x1933E6}, {8.5, 0x0C19F3},
}};

} // namespace

double BCColorTableEditor::DefaultValue(int type)
{
    return type > 0 && type < kTypes ? kDefaults[size_t(type)].value : 0.0;
}

COLORREF BCColorTableEditor::DefaultColor(int type)
{
    return type >= 0 && type < kTypes ? kDefaults[size_t(type)].color : 0;
}

BCColorTableEditor::BCColorTableEditor(const QString& tableName, QWidget* parent)
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

BCColorTableEditor::~BCColorTableEditor() = default;

void BCColorTableEditor::BuildLayout()
{
    m_grid = new CColorGridCtrl(this);
    m_grid->setObjectName(QString::number(IDC_COLOR_GRID));
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setMinimumSize(m_grid->fontMetrics().horizontalAdvance(QStringLiteral("Medium coarse gravel")) + DpiCor(30),
                           DpiCor(120));

    auto* defaults = new QPushButton(tr("Default"), this);
    defaults->setObjectName(QString::number(IDC_DEFAULT));
    auto* ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("1"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("2"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(defaults);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* main = new QVBoxLayout(this);
    main->addWidget(m_grid, 1);
    main->addLayout(buttons);
    EnableSizeGrip(true);

    connect(defaults, &QPushButton::clicked, this, [this] { Guarded([this] { OnDefault(); }); });
    connect(ok, &QPushButton::clicked, this, [this] { Guarded([this] { OnOK(); }); });
    connect(cancel, &QPushButton::clicked, this, &BCColorTableEditor::reject);
    connect(m_grid, &CColorGridCtrl::rowDoubleClicked, this,
            [this](int row) { Guarded([this, row] { OnDblclkColorGrid(row); }); });
}

void BCColorTableEditor::OnInitDialog()
{
    UpdateBCColorTable();
    setWindowTitle(tr("BC Color Table") + QStringLiteral(" - ") + m_tableName);
    FillColorTree();
    // Tall enough for every type at the usual row height, as far as the screen allows.
    const int rows = std::max(m_grid->GetRowCount(), kTypes);
    const int wanted = sizeHint().height() - m_grid->sizeHint().height()
        + rows * m_grid->GetDefaultRowHeight() + 2 * m_grid->frameWidth();
    const QScreen* screen = this->screen();
    const int room = screen ? screen->availableGeometry().height() * 4 / 5 : wanted;
    resize(std::max(sizeHint().width(), minimumSizeHint().width()), std::max(minimumSizeHint().height(), std::min(wanted, room)));
}

bool BCColorTableEditor::UpdateBCColorTable()
{
    QString list;
    CAttribDefMap::GetAttribDefMap().GetCtlAttribs(QStringLiteral("BottomTypes"), list);
    const CQelString names(list, QLatin1Char(','));
    if (names.Size() < kTypes)
        return true;
    if (m_table.NumEntries() >= kEntries) {
        while (m_table.NumEntries() > kEntries)
            m_table.RemoveEntry(m_table.NumEntries() - 1);
        return true;
    }
    if (m_table.NumEntries() == 0) {
        m_table.SetLowColor(kDefaults[0].color);
        m_table.SetLowColorName(names[0]);
    }
    m_table.AddEntry(kDefaults[1].value, kDefaults[1].color, true, names[1]);
    // Each further type is added only while the table is short of it, counted at that moment.
    for (int type = 2; type < kTypes; ++type) {
        if (m_table.NumEntries() < type)
            m_table.AddEntry(kDefaults[size_t(type)].value, kDefaults[size_t(type)].color, true, names[type]);
    }
    return true;
}

void BCColorTableEditor::FillColorTree()
{
    const int n = m_table.NumEntries();
    const int selected = m_grid->GetSelectedRow();
    const int scroll = m_grid->GetScrollPos();
    m_grid->setUpdatesEnabled(false);
    m_grid->DeleteAllItems();
    m_grid->SetFixedRowCount(0);
    m_grid->SetFixedColumnCount(0);
    m_grid->SetGridLines(false);
    m_grid->SetColumnCount(1);
    m_grid->SetRowCount(n + 1);
    ColorGridFill::SetColorRow(m_grid, 0, m_table.LowColorName(), m_table.LowColor());
    for (int index = 0; index < n; ++index)
        ColorGridFill::SetColorRow(m_grid, index + 1, m_table.EntryName(index), m_table.EntryColor(index));
    if (selected >= 0 && selected <= n)
        m_grid->SetSelectedRow(selected);
    m_grid->SetScrollPos(scroll);
    m_grid->setUpdatesEnabled(true);
}

QString BCColorTableEditor::ValueText(int index) const
{
    if (index < 0 || index >= m_table.NumEntries())
        return QString();
    return FormatDouble(m_table.EntryValue(index), ColorGridFill::DepthDecimals());
}

void BCColorTableEditor::OnDblclkColorGrid(int row)
{
    const int n = m_table.NumEntries();
    if (row < 0 || row > n)
        return;
    const int index = row - 1; // -1: the low colour
    BCColorEditDlg dialog(this);
    dialog.SetColor(index < 0 ? m_table.LowColor() : m_table.EntryColor(index));
    dialog.SetName(m_grid->GetItemText(row, 0));
    // The values of the type: from its own (none for the low colour) up to the next type's.
    dialog.SetRangeTexts(ValueText(index), ValueText(index + 1));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const bool renamed = dialog.GetName() != m_grid->GetItemText(row, 0);
    if (index < 0) {
        m_table.SetLowColor(dialog.GetColor());
        if (renamed)
            m_table.SetLowColorName(dialog.GetName());
    } else {
        m_table.SetEntryColor(index, dialog.GetColor());
        if (renamed)
            m_table.SetEntryName(index, dialog.GetName());
    }
    FillColorTree();
}

void BCColorTableEditor::OnDefault()
{
    m_table.ClearEntries(true);
    UpdateBCColorTable();
    FillColorTree();
}

bool BCColorTableEditor::SaveTable()
{
    m_file.FileClose();
    if (!m_table.FileSave(m_file.GetFileObject()))
        return false;
    return m_file.FileSave(FileObject::OPEN_CREATE, m_tablePath);
}

bool BCColorTableEditor::CheckAndSave()
{
    UpdateBCColorTable();
    FillColorTree();
    return SaveTable();
}

bool BCColorTableEditor::GenDefBkkColorTable()
{
    m_table.SetRange(-50.0, -24.0, 256, RGB(0, 0, 0), RGB(255, 255, 255));
    FillColorTree();
    SaveTable();
    return true;
}

void BCColorTableEditor::OnOK()
{
    if (!SaveTable()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The color table could not be saved as %1.").arg(QDir::toNativeSeparators(m_tablePath)));
        return;
    }
    accept();
}
