#include "QelMfc0/dialogs/colourtables/DredgeDiffColorTableEditor.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/controls/DataExchange.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/ColorGridFill.h>

#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>

namespace {

Q_LOGGING_CATEGORY(lcDredgeDiffEditor, "qel.colourtables")

// A handler run so that no exception reaches the event loop: a failure is logged, and the
// dialog stays as the handler left it.
template <class Handler>
void Guarded(Handler&& handler)
{
    try {
        handler();
    } catch (const std::exception& error) {
        qCWarning(lcDredgeDiffEditor) << "dredge difference table editor:" << error.what();
    } catch (...) {
        qCWarning(lcDredgeDiffEditor) << "dredge difference table editor: unknown failure";
    }
}

} // namespace

DredgeDiffColorTableEditor::DredgeDiffColorTableEditor(const QString& tableName, QWidget* parent,
                                                       bool limitsEditable)
    : QDialog(parent)
    , m_limitsEditable(limitsEditable)
    , m_tableName(tableName)
    , m_file(DataSearch::TYPE_COLOR_TABLE)
{
    setWindowTitle(tr("Dredge Differential Color Table"));
    m_loaded = m_file.FileOpen(FileObject::OPEN_READ, m_tableName) && m_table.FileOpen(m_file.GetFileObject());
    if (!m_loaded)
        m_table = ColorTable();
    BuildLayout();
    OnInitDialog();
}

DredgeDiffColorTableEditor::~DredgeDiffColorTableEditor() = default;

QLineEdit* DredgeDiffColorTableEditor::MakeEdit(int id)
{
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QString::number(id));
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("-00000.000")) + DpiCor(12));
    return edit;
}

ColorWell* DredgeDiffColorTableEditor::MakeWell(int id, const QString& caption, QLabel*& label)
{
    auto* well = new ColorWell(this);
    well->setObjectName(QString::number(id));
    well->setAccessibleName(caption);
    label = new QLabel(caption, this);
    label->setBuddy(well);
    return well;
}

void DredgeDiffColorTableEditor::BuildLayout()
{
    m_grid = new CColorGridCtrl(this);
    m_grid->setObjectName(QString::number(IDC_GRID));
    m_grid->setMinimumSize(m_grid->fontMetrics().horizontalAdvance(QStringLiteral("-00000.000 *")) + DpiCor(30),
                           DpiCor(200));
    m_grid->installEventFilter(this);

    // A group of one ramp: its number of colours, and its max and min colour.
    const auto rampGroup = [this](const QString& title, int countId, QLineEdit*& count, int maxId,
                                  const QString& maxCaption, ColorWell*& maxWell, int minId,
                                  const QString& minCaption, ColorWell*& minWell) {
        auto* group = new QGroupBox(title, this);
        auto* countLabel = new QLabel(tr("Number of Colors"), group);
        count = MakeEdit(countId);
        count->setToolTip(tr("A whole number from %1 to %2").arg(kMinRampColors).arg(kMaxRampColors));
        countLabel->setBuddy(count);
        QLabel* maxLabel = nullptr;
        QLabel* minLabel = nullptr;
        maxWell = MakeWell(maxId, maxCaption, maxLabel);
        minWell = MakeWell(minId, minCaption, minLabel);
        auto* layout = new QGridLayout(group);
        layout->addWidget(countLabel, 0, 0, 1, 2);
        layout->addWidget(count, 0, 2, 1, 2);
        layout->addWidget(maxWell, 1, 0);
        layout->addWidget(maxLabel, 1, 1);
        layout->addWidget(minWell, 1, 2);
        layout->addWidget(minLabel, 1, 3);
        layout->setColumnStretch(1, 1);
        layout->setColumnStretch(3, 1);
        return group;
    };
    QGroupBox* under = rampGroup(tr("Colors above Underdredge limit"), IDC_UNDER_COUNT, m_underCountEdit,
                                 IDC_MAX_UNDER, tr("Max Under"), m_maxUnderWell, IDC_MIN_UNDER, tr("Min Under"),
                                 m_minUnderWell);
    QGroupBox* inTol = rampGroup(tr("Colors in between limits"), IDC_INTOL_COUNT, m_inTolCountEdit, IDC_MAX_INTOL,
                                 tr("Max InTol"), m_maxInTolWell, IDC_MIN_INTOL, tr("Min InTol"), m_minInTolWell);
    QGroupBox* over = rampGroup(tr("Colors below Overdredge limit"), IDC_OVER_COUNT, m_overCountEdit, IDC_MAX_OVER,
                                tr("Max Over"), m_maxOverWell, IDC_MIN_OVER, tr("Min Over"), m_minOverWell);

    // A limit between the groups of the ramps it separates.
    const auto limitRow = [this](const QString& caption, int id, QLineEdit*& edit) {
        auto* row = new QHBoxLayout;
        auto* label = new QLabel(caption, this);
        edit = MakeEdit(id);
        label->setBuddy(edit);
        row->addWidget(label, 1);
        row->addWidget(edit);
        return row;
    };
    QHBoxLayout* underLimit = limitRow(tr("Underdredge limit"), IDC_UNDER_LIMIT, m_underLimitEdit);
    QHBoxLayout* overLimit = limitRow(tr("Overdredge limit"), IDC_OVER_LIMIT, m_overLimitEdit);

    m_syncText = new QLabel(tr("When used during Real-time operation, Underdredge limit and Overdredge limit "
                               "will be automatically synchronized with Design model settings"),
                            this);
    m_syncText->setObjectName(QString::number(IDC_SYNC_TEXT));
    m_syncText->setWordWrap(true);

    m_ok = new QPushButton(tr("OK"), this);
    m_ok->setObjectName(QStringLiteral("1"));
    m_ok->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("2"));
    m_apply = new QPushButton(tr("Apply"), this);
    m_apply->setObjectName(QString::number(IDC_APPLY));
    auto* closeRow = new QHBoxLayout;
    closeRow->addStretch(1);
    closeRow->addWidget(m_ok);
    closeRow->addWidget(cancel);
    closeRow->addWidget(m_apply);

    auto* side = new QVBoxLayout;
    side->addWidget(under);
    side->addLayout(underLimit);
    side->addWidget(inTol);
    side->addLayout(overLimit);
    side->addWidget(over);
    side->addWidget(m_syncText);
    side->addStretch(1);
    side->addLayout(closeRow);

    auto* main = new QHBoxLayout(this);
    main->addWidget(m_grid, 1);
    main->addLayout(side, 0);
    setSizeGripEnabled(true);

    for (QLineEdit* edit : {m_underCountEdit, m_inTolCountEdit, m_overCountEdit, m_underLimitEdit, m_overLimitEdit}) {
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { Guarded([&] { OnFieldEdited(edit); }); });
    }
    for (ColorWell* well : {m_maxUnderWell, m_minUnderWell, m_maxInTolWell, m_minInTolWell, m_maxOverWell,
                            m_minOverWell}) {
        connect(well, &ColorWell::colorChanged, this, [this] { Guarded([&] { OnColorChanged(); }); });
    }
    connect(m_apply, &QPushButton::clicked, this, [this] { Guarded([&] { OnApply(); }); });
    connect(m_ok, &QPushButton::clicked, this, [this] { Guarded([&] { OnOK(); }); });
    connect(cancel, &QPushButton::clicked, this, &DredgeDiffColorTableEditor::reject);
}

void DredgeDiffColorTableEditor::OnInitDialog()
{
    unsigned count = 0;
    m_table.GetUnderDredgeColorRange(m_minUnderColor, m_maxUnderColor, count);
    m_underCount = int(count);
    m_table.GetInTolColorRange(m_minInTolColor, m_maxInTolColor, count);
    m_inTolCount = int(count);
    m_table.GetOverDredgeColorRange(m_minOverColor, m_maxOverColor, count);
    m_overCount = int(count);
    m_table.GetUnderDredgeLimit(m_underLimit);
    m_table.GetOverDredgeLimit(m_overLimit);
    DoDataExchange(false);
    FillColorTree();
    m_apply->setEnabled(false);
    m_ok->setEnabled(false);
    if (!m_limitsEditable) {
        m_underLimitEdit->setEnabled(false);
        m_overLimitEdit->setEnabled(false);
        m_syncText->hide();
    }
}

// ---- the fields

bool DredgeDiffColorTableEditor::ReadField(QLineEdit* field)
{
    using namespace DataExchange;
    if (field == m_underLimitEdit)
        return DDX_FmtDoubleGradient(true, field, m_underLimit, GRADIENT_DEPTH, -1, false);
    if (field == m_overLimitEdit)
        return DDX_FmtDoubleGradient(true, field, m_overLimit, GRADIENT_DEPTH, -1, false);
    // A number of colours: a whole number, held within what a ramp takes.
    qint64 typed = 0;
    if (!TextToInt64(field->text().trimmed(), typed))
        return false;
    const int count = int(std::clamp<qint64>(typed, kMinRampColors, kMaxRampColors));
    if (field == m_underCountEdit)
        m_underCount = count;
    else if (field == m_inTolCountEdit)
        m_inTolCount = count;
    else if (field == m_overCountEdit)
        m_overCount = count;
    return true;
}

void DredgeDiffColorTableEditor::ShowField(QLineEdit* field)
{
    using namespace DataExchange;
    if (field == m_underLimitEdit)
        DDX_FmtDoubleGradient(false, field, m_underLimit, GRADIENT_DEPTH, -1, false);
    else if (field == m_overLimitEdit)
        DDX_FmtDoubleGradient(false, field, m_overLimit, GRADIENT_DEPTH, -1, false);
    else if (field == m_underCountEdit)
        field->setText(QString::number(m_underCount));
    else if (field == m_inTolCountEdit)
        field->setText(QString::number(m_inTolCount));
    else if (field == m_overCountEdit)
        field->setText(QString::number(m_overCount));
}

QLineEdit* DredgeDiffColorTableEditor::DoDataExchange(bool save)
{
    const auto fields = {m_underCountEdit, m_inTolCountEdit, m_overCountEdit, m_underLimitEdit, m_overLimitEdit};
    if (!save) {
        m_showing = true;
        for (QLineEdit* field : fields)
            ShowField(field);
        m_maxUnderWell->SetColor(m_maxUnderColor);
        m_minUnderWell->SetColor(m_minUnderColor);
        m_maxInTolWell->SetColor(m_maxInTolColor);
        m_minInTolWell->SetColor(m_minInTolColor);
        m_maxOverWell->SetColor(m_maxOverColor);
        m_minOverWell->SetColor(m_minOverColor);
        m_showing = false;
        return nullptr;
    }
    // All or nothing: the first field that is no number leaves every member as it was. A field
    // the user has not typed in holds the member as the dialog wrote it (perhaps rounded), and a
    // disabled limit the table's: those members stay.
    const int counts[] = {m_underCount, m_inTolCount, m_overCount};
    const double limits[] = {m_underLimit, m_overLimit};
    for (QLineEdit* field : fields) {
        if (field->isEnabled() && field->isModified() && !ReadField(field)) {
            m_underCount = counts[0];
            m_inTolCount = counts[1];
            m_overCount = counts[2];
            m_underLimit = limits[0];
            m_overLimit = limits[1];
            return field;
        }
    }
    m_maxUnderColor = m_maxUnderWell->GetColor();
    m_minUnderColor = m_minUnderWell->GetColor();
    m_maxInTolColor = m_maxInTolWell->GetColor();
    m_minInTolColor = m_minInTolWell->GetColor();
    m_maxOverColor = m_maxOverWell->GetColor();
    m_minOverColor = m_minOverWell->GetColor();
    return nullptr;
}

void DredgeDiffColorTableEditor::RefuseNumber(QLineEdit* field)
{
    const bool count = field != m_underLimitEdit && field != m_overLimitEdit;
    QMessageBox::warning(this, windowTitle(),
                         count ? tr("Please enter a whole number of colors from %1 to %2.")
                                     .arg(kMinRampColors)
                                     .arg(kMaxRampColors)
                               : tr("Please enter a number."));
    field->setFocus();
    field->selectAll();
}

void DredgeDiffColorTableEditor::OnFieldEdited(QLineEdit* field)
{
    // Only typing counts: a field left as the dialog wrote it holds no change.
    if (!field->isModified())
        return;
    const int counts[] = {m_underCount, m_inTolCount, m_overCount};
    const double limits[] = {m_underLimit, m_overLimit};
    if (!ReadField(field)) {
        // Left for Apply and OK to refuse, which are offered so that the user learns why.
        m_apply->setEnabled(true);
        m_ok->setEnabled(true);
        return;
    }
    const bool changed = counts[0] != m_underCount || counts[1] != m_inTolCount || counts[2] != m_overCount
        || limits[0] != m_underLimit || limits[1] != m_overLimit;
    // A count as it is taken, held within its bounds; a limit keeps the text as typed.
    if (field != m_underLimitEdit && field != m_overLimitEdit)
        ShowField(field);
    if (changed)
        Changed();
}

void DredgeDiffColorTableEditor::OnColorChanged()
{
    if (!m_showing)
        Changed();
}

void DredgeDiffColorTableEditor::Changed()
{
    // Other fields may hold text that is no number yet: the members they had stay in use.
    m_maxUnderColor = m_maxUnderWell->GetColor();
    m_minUnderColor = m_minUnderWell->GetColor();
    m_maxInTolColor = m_maxInTolWell->GetColor();
    m_minInTolColor = m_minInTolWell->GetColor();
    m_maxOverColor = m_maxOverWell->GetColor();
    m_minOverColor = m_minOverWell->GetColor();
    GenerateColorTable();
    m_apply->setEnabled(true);
    m_ok->setEnabled(true);
}

// ---- the table

void DredgeDiffColorTableEditor::GenerateColorTable()
{
    m_table.SetUnderDredgeColorRange(m_minUnderColor, m_maxUnderColor, unsigned(m_underCount));
    m_table.SetInTolColorRange(m_minInTolColor, m_maxInTolColor, unsigned(m_inTolCount));
    m_table.SetOverDredgeColorRange(m_minOverColor, m_maxOverColor, unsigned(m_overCount));
    m_table.SetUnderDredgeLimit(m_underLimit);
    m_table.SetOverDredgeLimit(m_overLimit);
    m_table.SetSyncWithDesignModel(true);
    m_table.GenerateDredgeDiffColorTable();
    FillColorTree();
}

bool DredgeDiffColorTableEditor::SaveTable()
{
    m_file.FileClose();
    if (!m_table.FileSave(m_file.GetFileObject()))
        return false;
    return m_file.FileSave(FileObject::OPEN_CREATE);
}

bool DredgeDiffColorTableEditor::OnApply()
{
    if (QLineEdit* bad = DoDataExchange(true)) {
        RefuseNumber(bad);
        return false;
    }
    GenerateColorTable();
    // The fields as they were taken.
    DoDataExchange(false);
    m_table.SetDredgeDiffColTab(true);
    const bool saved = SaveTable();
    Q_EMIT tableNameChanged(m_tableName);
    if (!saved) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The color table could not be saved as %1.")
                                 .arg(QDir::toNativeSeparators(m_file.GetPathName())));
        return false;
    }
    m_apply->setEnabled(false);
    return true;
}

void DredgeDiffColorTableEditor::OnOK()
{
    if (OnApply())
        accept();
}

// ---- the grid

void DredgeDiffColorTableEditor::FillColorTree()
{
    m_table.GenerateDredgeDiffColorTable();
    const int n = m_table.NumEntries();
    const int rows = n + 1;
    const int decimals = ColorGridFill::DepthDecimals();

    m_grid->setUpdatesEnabled(false);
    m_grid->DeleteAllItems();
    m_grid->SetFixedRowCount(0);
    m_grid->SetFixedColumnCount(0);
    m_grid->SetGridLines(false);
    m_grid->SetColumnCount(1);
    if (n == 0) {
        m_grid->setUpdatesEnabled(true);
        return;
    }
    m_grid->SetRowCount(rows);
    for (int row = 0; row < rows - 1; ++row) {
        const int index = rows - row - 2;
        QString text = FormatDouble(m_table.EntryValue(index), decimals);
        if (m_table.EntryLocked(index))
            text += QStringLiteral(" *");
        ColorGridFill::SetColorRow(m_grid, row, text, m_table.EntryColor(index));
    }
    ColorGridFill::SetColorRow(m_grid, rows - 1, tr("Below"), m_table.LowColor());
    FitGridToClient();
    m_grid->setUpdatesEnabled(true);
}

void DredgeDiffColorTableEditor::FitGridToClient()
{
    ColorGridFill::FitToClient(m_grid, kRowsWithoutScrollBar);
}

bool DredgeDiffColorTableEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid && event->type() == QEvent::Resize)
        FitGridToClient();
    return QDialog::eventFilter(watched, event);
}
