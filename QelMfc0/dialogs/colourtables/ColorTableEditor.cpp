#include "QelMfc0/dialogs/colourtables/ColorTableEditor.h"

#include <QelBase/DisplayScale.h>
#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileTypeCombo.h>
#include <QelConfigure/FileTypeDialog.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/controls/DataExchange.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/ColorGridFill.h>
#include <QelMfc0/dialogs/colourtables/DepthColorEditDlg.h>

#include <QButtonGroup>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QLoggingCategory>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcColorTableEditor, "qel.colourtables")

// A handler of the dialog run so that no exception reaches the event loop: a failure (such as
// memory running out for a huge range) is logged, and the dialog stays as the handler left it.
template <class Handler>
auto Guarded(CColorTableEditor* editor, Handler handler)
{
    return [editor, handler] {
        try {
            (editor->*handler)();
        } catch (const std::exception& error) {
            qCWarning(lcColorTableEditor) << "colour table editor:" << error.what();
        } catch (...) {
            qCWarning(lcColorTableEditor) << "colour table editor: unknown failure";
        }
    };
}

using ColorGridFill::DepthDecimals;

// A strip of the colours between blue and red as a range makes them, in hue or in red, green
// and blue, drawn in the colours of the current colour mode.
QIcon RampIcon(bool rgb)
{
    QImage image(DpiCor(32), DpiCor(12), QImage::Format_RGB32);
    const ColorControl& colours = ColorControl::Instance();
    for (int x = 0; x < image.width(); ++x) {
        const double t = image.width() > 1 ? double(x) / (image.width() - 1) : 0.0;
        const COLORREF colour = rgb ? RGB(int(std::lround(255 * t)), 0, int(std::lround(255 * (1.0 - t))))
                                    : ColorTable::HSVtoRGB(240.0 * (1.0 - t), 1.0, 1.0);
        const QRgb drawn = toQColor(colours.GetColor(colour, false)).rgb();
        for (int y = 0; y < image.height(); ++y)
            image.setPixel(x, y, drawn);
    }
    return QIcon(QPixmap::fromImage(image));
}

} // namespace

CColorTableEditor::CColorTableEditor(const QString& tableName, QWidget* parent, bool allowFileSelection,
                                     bool scaleMode)
    : BaseDlg(kTemplateId, parent)
    , m_scaleMode(scaleMode)
    , m_allowFileSelection(allowFileSelection)
    , m_tableName(tableName)
    , m_file(DataSearch::TYPE_COLOR_TABLE)
{
    setWindowTitle(tr("Color Table"));
    OpenTable(m_tableName);
    BuildLayout();
    OnInitDialog();
}

CColorTableEditor::~CColorTableEditor() = default;

QPushButton* CColorTableEditor::MakeButton(int id, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString::number(id));
    return button;
}

QLineEdit* CColorTableEditor::MakeEdit(int id)
{
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QString::number(id));
    // Room for a scale with its decimals without scrolling the text.
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("1 : 000000.00")) + DpiCor(12));
    return edit;
}

void CColorTableEditor::BuildLayout()
{
    // The grid, the rotation buttons and the overview switch on the left.
    m_grid = new CColorGridCtrl(this);
    m_grid->setObjectName(QString::number(IDC_COLOR_GRID));
    m_grid->setMinimumSize(m_grid->fontMetrics().horizontalAdvance(QStringLiteral("-00000.00 *")) + DpiCor(30),
                           DpiCor(120));
    m_grid->installEventFilter(this);
    QPushButton* up = MakeButton(IDC_COLOR_UP, tr("Up"));
    QPushButton* down = MakeButton(IDC_COLOR_DOWN, tr("Down"));
    m_overviewButton = MakeButton(IDC_OVERVIEW, QStringLiteral("<<"));
    auto* rotation = new QHBoxLayout;
    rotation->addWidget(up);
    rotation->addWidget(down);
    auto* left = new QVBoxLayout;
    left->addWidget(m_grid, 1);
    left->addLayout(rotation);
    left->addWidget(m_overviewButton);

    // The file.
    m_sidePanel = new QWidget(this);
    auto* nameLabel = new QLabel(tr("Name:"), m_sidePanel);
    m_fileCombo = new FileTypeCombo(DataSearch::TYPE_COLOR_TABLE, m_sidePanel);
    m_fileCombo->setObjectName(QString::number(IDC_FILE_COMBO));
    m_fileCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_fileCombo->setMinimumContentsLength(12);
    nameLabel->setBuddy(m_fileCombo);
    m_saveAs = MakeButton(IDC_SAVE_AS, tr("Save As"));
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(nameLabel);
    fileRow->addWidget(m_fileCombo, 1);
    fileRow->addWidget(m_saveAs);

    // Generation of a range: its two ends, number of colours or step, interpolation.
    const auto endGroup = [this](int id, const QString& title, ColorWell*& well, QLineEdit*& edit, int wellId,
                                 int editId) {
        auto* group = new QGroupBox(title, this);
        group->setObjectName(QString::number(id));
        well = new ColorWell(group);
        well->setObjectName(QString::number(wellId));
        edit = MakeEdit(editId);
        auto* row = new QHBoxLayout(group);
        row->addWidget(well);
        row->addWidget(edit, 1);
        return group;
    };
    QGroupBox* maxGroup = endGroup(IDC_MAXIMUM_GROUP, tr("Maximum"), m_maxWell, m_maxEdit, IDC_MAX_COLOR, IDC_MAX_DEPTH);
    QGroupBox* minGroup = endGroup(IDC_MINIMUM_GROUP, tr("Minimum"), m_minWell, m_minEdit, IDC_MIN_COLOR, IDC_MIN_DEPTH);
    m_maxWell->setAccessibleName(tr("max color"));
    m_minWell->setAccessibleName(tr("min color"));

    m_numColorsRadio = new QRadioButton(tr("Number of colors:"), this);
    m_numColorsRadio->setObjectName(QString::number(IDC_NUMCOLORS_RADIO));
    m_stepRadio = new QRadioButton(tr("Step size:"), this);
    m_stepRadio->setObjectName(QString::number(IDC_STEPSIZE_RADIO));
    auto* countGroup = new QButtonGroup(this);
    countGroup->addButton(m_numColorsRadio, 0);
    countGroup->addButton(m_stepRadio, 1);
    m_numColorsEdit = MakeEdit(IDC_NUMCOLORS);
    m_stepEdit = MakeEdit(IDC_STEPSIZE);

    auto* modeLabel = new QLabel(tr("Mode:"), this);
    modeLabel->setObjectName(QString::number(IDC_MODE_LABEL));
    m_hueRadio = new QRadioButton(this);
    m_hueRadio->setObjectName(QString::number(IDC_HUE_RADIO));
    m_hueRadio->setToolTip(tr("Colors between the ends in hue"));
    m_hueRadio->setAccessibleName(m_hueRadio->toolTip());
    m_rgbRadio = new QRadioButton(this);
    m_rgbRadio->setObjectName(QString::number(IDC_RGB_RADIO));
    m_rgbRadio->setToolTip(tr("Colors between the ends in red, green and blue"));
    m_rgbRadio->setAccessibleName(m_rgbRadio->toolTip());
    const auto setModeIcons = [this] {
        m_hueRadio->setIcon(RampIcon(false));
        m_rgbRadio->setIcon(RampIcon(true));
        m_hueRadio->setIconSize(QSize(DpiCor(32), DpiCor(12)));
        m_rgbRadio->setIconSize(QSize(DpiCor(32), DpiCor(12)));
    };
    setModeIcons();
    connect(&ColorControl::Instance(), &ColorControl::lightModeChanged, this, setModeIcons);
    auto* modeGroup = new QButtonGroup(this);
    modeGroup->addButton(m_hueRadio, 0);
    modeGroup->addButton(m_rgbRadio, 1);
    auto* modeRow = new QHBoxLayout;
    modeRow->addWidget(modeLabel);
    modeRow->addWidget(m_hueRadio);
    modeRow->addWidget(m_rgbRadio);
    modeRow->addStretch(1);

    QPushButton* replace = MakeButton(IDC_REPLACE, tr("Replace"));
    QPushButton* addRange = MakeButton(IDC_ADD_RANGE, tr("Add"));
    auto* generateRow = new QHBoxLayout;
    generateRow->addWidget(replace);
    generateRow->addWidget(addRange);

    auto* generate = new QGroupBox(tr("Generate range"), this);
    generate->setObjectName(QString::number(IDC_GENERATE_GROUP));
    auto* generateLayout = new QGridLayout(generate);
    generateLayout->addWidget(maxGroup, 0, 0, 1, 2);
    generateLayout->addWidget(minGroup, 1, 0, 1, 2);
    generateLayout->addWidget(m_numColorsRadio, 2, 0);
    generateLayout->addWidget(m_numColorsEdit, 2, 1);
    generateLayout->addWidget(m_stepRadio, 3, 0);
    generateLayout->addWidget(m_stepEdit, 3, 1);
    generateLayout->addLayout(modeRow, 4, 0, 1, 2);
    generateLayout->addLayout(generateRow, 5, 0, 1, 2);
    generateLayout->setColumnStretch(1, 1);

    // Presets of the range colours.
    auto* presets = new QGroupBox(tr("Range colors"), this);
    presets->setObjectName(QString::number(IDC_RANGE_COLORS_GROUP));
    auto* presetLayout = new QGridLayout(presets);
    QPushButton* greys = MakeButton(IDC_GREYS, tr("Greys"));
    QPushButton* hues = MakeButton(IDC_HUES, tr("Hues"));
    QPushButton* rust = MakeButton(IDC_RUST, tr("Rust"));
    QPushButton* reverse = MakeButton(IDC_REVERSE, tr("Reverse"));
    presetLayout->addWidget(greys, 0, 0);
    presetLayout->addWidget(hues, 0, 1);
    presetLayout->addWidget(rust, 1, 0);
    presetLayout->addWidget(reverse, 1, 1);

    // Single entries.
    QPushButton* edit = MakeButton(IDC_EDIT, tr("Edit"));
    QPushButton* add = MakeButton(IDC_ADD, tr("Add"));
    QPushButton* remove = MakeButton(IDC_REMOVE, tr("Remove"));
    QPushButton* clear = MakeButton(IDC_CLEAR, tr("Clear"));
    auto* entries = new QGridLayout;
    entries->addWidget(edit, 0, 0);
    entries->addWidget(add, 0, 1);
    entries->addWidget(remove, 1, 0);
    entries->addWidget(clear, 1, 1);

    QPushButton* ok = MakeButton(1, tr("OK"));
    QPushButton* cancel = MakeButton(2, tr("Cancel"));
    QPushButton* apply = MakeButton(IDC_APPLY, tr("Apply"));
    ok->setDefault(true);
    auto* closeRow = new QHBoxLayout;
    closeRow->addStretch(1);
    closeRow->addWidget(ok);
    closeRow->addWidget(cancel);
    closeRow->addWidget(apply);

    auto* side = new QVBoxLayout(m_sidePanel);
    side->setContentsMargins(0, 0, 0, 0);
    side->addLayout(fileRow);
    side->addWidget(generate);
    side->addWidget(presets);
    side->addLayout(entries);
    side->addStretch(1);
    side->addLayout(closeRow);

    auto* main = new QHBoxLayout(this);
    main->addLayout(left, 1);
    main->addWidget(m_sidePanel, 0);
    EnableSizeGrip(true);

    connect(up, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnColorUp));
    connect(down, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnColorDown));
    connect(m_grid, &CColorGridCtrl::rowDoubleClicked, this, [this](int row) {
        try {
            OnDblclkColorGrid(row);
        } catch (const std::exception& error) {
            qCWarning(lcColorTableEditor) << "colour table editor:" << error.what();
        } catch (...) {
            qCWarning(lcColorTableEditor) << "colour table editor: unknown failure";
        }
    });
    connect(apply, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnApply));
    connect(ok, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnOK));
    connect(cancel, &QPushButton::clicked, this, &CColorTableEditor::reject);
    connect(m_overviewButton, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnOverview));
    connect(m_numColorsRadio, &QRadioButton::clicked, this, Guarded(this, &CColorTableEditor::OnNumcolorsRadio));
    connect(m_stepRadio, &QRadioButton::clicked, this, Guarded(this, &CColorTableEditor::OnStepsizeRadio));
    connect(m_numColorsEdit, &QLineEdit::editingFinished, this,
            Guarded(this, &CColorTableEditor::OnKillfocusNumcolors));
    connect(m_stepEdit, &QLineEdit::editingFinished, this, Guarded(this, &CColorTableEditor::OnKillfocusStepsize));
    connect(m_minEdit, &QLineEdit::editingFinished, this, Guarded(this, &CColorTableEditor::OnKillfocusDepth));
    connect(m_maxEdit, &QLineEdit::editingFinished, this, Guarded(this, &CColorTableEditor::OnKillfocusDepth));
    connect(m_hueRadio, &QRadioButton::clicked, this, Guarded(this, &CColorTableEditor::OnHueRadio));
    connect(m_rgbRadio, &QRadioButton::clicked, this, Guarded(this, &CColorTableEditor::OnRgbRadio));
    connect(replace, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnGenerateButton));
    connect(addRange, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnAddButton));
    connect(edit, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnEdit));
    connect(add, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnAdd));
    connect(remove, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnDelete));
    connect(clear, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnClear));
    connect(greys, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnGreysButton));
    connect(hues, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnHuesButton));
    connect(rust, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnRustButton));
    connect(reverse, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnReverseButton));
    connect(m_saveAs, &QPushButton::clicked, this, Guarded(this, &CColorTableEditor::OnBnClickedSaveAsCol));
}

void CColorTableEditor::OnInitDialog()
{
    if (!m_allowFileSelection) {
        m_fileCombo->setEnabled(false);
        m_saveAs->hide();
    }
    m_fileCombo->SetSelected(m_tableName);
    // Followed only now: selecting the name the dialog started with is no change of file.
    connect(m_fileCombo, &FileTypeCombo::selectedNameChanged, this,
            Guarded(this, &CColorTableEditor::OnCbnSelchangeSelectFileCombo));
    InitColorParams();
    if (m_countOrStep == 0)
        OnNumcolorsRadio();
    else
        OnStepsizeRadio();
    FillColorTree(false);
}

// ---- the table's file

void CColorTableEditor::OpenTable(const QString& name)
{
    m_table = ColorTable();
    m_loaded = m_file.FileOpen(FileObject::OPEN_READ, name) && m_table.FileOpen(m_file.GetFileObject());
    if (!m_loaded)
        m_table = ColorTable();
    m_tablePath = m_file.GetPathName();
}

bool CColorTableEditor::SaveTable(const QString& path)
{
    m_file.FileClose();
    if (!m_table.FileSave(m_file.GetFileObject()))
        return false;
    return m_file.FileSave(FileObject::OPEN_CREATE, path);
}

void CColorTableEditor::OnCbnSelchangeSelectFileCombo()
{
    QString name;
    if (!m_fileCombo->GetSelected(name) || name == m_tableName)
        return;
    m_tableName = name;
    OpenTable(name);
    m_nameChanged = true;
    InitColorParams();
    FillColorTree(false);
}

void CColorTableEditor::OnBnClickedSaveAsCol()
{
    FileTypeDialog dialog(DataSearch::TYPE_COLOR_TABLE, true, this);
    if (!dialog.Go())
        return;
    const QString title = dialog.GetFileTitle();
    const QString path = dialog.GetPathName();
    if (title.isEmpty())
        return;
    if (!SaveTable(path)) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The color table could not be saved as %1.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    m_tableName = title;
    m_tablePath = path;
    m_nameChanged = true;
    m_fileCombo->Refresh();
    m_fileCombo->SetSelected(title);
}

bool CColorTableEditor::OnApply()
{
    if (!ReadControls())
        return false;
    const bool saved = SaveTable(m_tablePath);
    if (m_nameChanged) {
        m_nameChanged = false;
        Q_EMIT tableNameChanged(m_tableName);
    }
    if (!saved) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The color table could not be saved as %1.").arg(QDir::toNativeSeparators(m_tablePath)));
    }
    return saved;
}

void CColorTableEditor::OnOK()
{
    if (OnApply())
        accept();
}

// ---- the generation fields

QLineEdit* CColorTableEditor::ReadFields(std::initializer_list<QLineEdit*> fields)
{
    using namespace DataExchange;
    double minValue = m_minValue, maxValue = m_maxValue, step = m_stepSize;
    int count = m_numColors;
    for (QLineEdit* field : fields) {
        bool read = true;
        if (field == m_minEdit)
            read = DDX_FmtDoubleGradient(true, field, minValue, GRADIENT_DEPTH, -1, m_scaleMode);
        else if (field == m_maxEdit)
            read = DDX_FmtDoubleGradient(true, field, maxValue, GRADIENT_DEPTH, -1, m_scaleMode);
        else if (field == m_stepEdit)
            read = DDX_FmtDoubleGradient(true, field, step, GRADIENT_DEPTH, -1, m_scaleMode);
        else if (field == m_numColorsEdit)
            read = TextToInt(field->text().trimmed(), count);
        if (!read)
            return field;
    }
    m_minValue = minValue;
    m_maxValue = maxValue;
    m_stepSize = step;
    m_numColors = count;
    return nullptr;
}

QLineEdit* CColorTableEditor::DoDataExchange(bool save)
{
    using namespace DataExchange;
    if (save) {
        // A disabled field holds what the dialog wrote last: unreadable text there is not the
        // user's to correct, and it keeps its member.
        for (QLineEdit* field : {m_minEdit, m_maxEdit, m_numColorsEdit, m_stepEdit}) {
            QLineEdit* bad = ReadFields({field});
            if (bad && bad->isEnabled())
                return bad;
        }
        m_countOrStep = m_stepRadio->isChecked() ? 1 : 0;
        m_colorMode = m_rgbRadio->isChecked() ? 1 : 0;
        m_minColor = m_minWell->GetColor();
        m_maxColor = m_maxWell->GetColor();
        return nullptr;
    }
    DDX_FmtDoubleGradient(false, m_minEdit, m_minValue, GRADIENT_DEPTH, -1, m_scaleMode);
    DDX_FmtDoubleGradient(false, m_maxEdit, m_maxValue, GRADIENT_DEPTH, -1, m_scaleMode);
    ShowCountAndStep();
    m_numColorsRadio->setChecked(m_countOrStep == 0);
    m_stepRadio->setChecked(m_countOrStep != 0);
    m_hueRadio->setChecked(m_colorMode == 0);
    m_rgbRadio->setChecked(m_colorMode != 0);
    m_minWell->SetColor(m_minColor);
    m_maxWell->SetColor(m_maxColor);
    return nullptr;
}

void CColorTableEditor::ShowCountAndStep()
{
    m_numColorsEdit->setText(QString::number(m_numColors));
    DataExchange::DDX_FmtDoubleGradient(false, m_stepEdit, m_stepSize, DataExchange::GRADIENT_DEPTH, -1, m_scaleMode);
}

void CColorTableEditor::RefuseNumber(QLineEdit* field)
{
    QMessageBox::warning(this, windowTitle(),
                         field == m_numColorsEdit ? tr("Please enter a whole number.") : tr("Please enter a number."));
    field->setFocus();
    field->selectAll();
}

bool CColorTableEditor::ReadControls()
{
    if (QLineEdit* bad = DoDataExchange(true)) {
        RefuseNumber(bad);
        return false;
    }
    return true;
}

void CColorTableEditor::InitColorParams()
{
    const int n = m_table.NumEntries();
    if (n == 1) {
        m_minValue = m_maxValue = m_table.EntryValue(0);
        m_numColors = 2;
        m_stepSize = 0.0;
        m_minColor = m_table.LowColor();
        m_maxColor = m_table.EntryColor(0);
    } else if (n >= 2) {
        m_minValue = m_table.EntryValue(0);
        m_maxValue = m_table.EntryValue(n - 1);
        m_numColors = n + 1;
        m_stepSize = (m_maxValue - m_minValue) / (n - 1);
        m_minColor = m_table.LowColor();
        m_maxColor = m_table.EntryColor(n - 1);
    }
    DoDataExchange(false);
}

void CColorTableEditor::OnNumcolorsRadio()
{
    m_countOrStep = 0;
    m_numColorsEdit->setEnabled(true);
    m_stepEdit->setEnabled(false);
}

void CColorTableEditor::OnStepsizeRadio()
{
    m_countOrStep = 1;
    m_numColorsEdit->setEnabled(false);
    m_stepEdit->setEnabled(true);
}

void CColorTableEditor::OnKillfocusNumcolors()
{
    // Text that is no number is left for Replace, Add or Apply to refuse.
    if (ReadFields({m_minEdit, m_maxEdit, m_numColorsEdit}))
        return;
    const double range = std::fabs(m_maxValue - m_minValue);
    if (range == 0.0) {
        m_numColors = 2;
        m_stepSize = 0.0;
    } else {
        m_numColors = std::max(m_numColors, 3);
        m_stepSize = range / (m_numColors - 2);
    }
    ShowCountAndStep();
}

void CColorTableEditor::OnKillfocusStepsize()
{
    if (ReadFields({m_minEdit, m_maxEdit, m_stepEdit}))
        return;
    if (!(m_stepSize > 0.0)) {
        OnKillfocusNumcolors();
        return;
    }
    const double range = std::fabs(m_maxValue - m_minValue);
    // Held within an int: a count beyond what a table holds is refused when generating.
    m_numColors = range == 0.0 ? 2 : int(std::min(std::ceil(range / m_stepSize) + 2.0, 1e9));
    ShowCountAndStep();
}

void CColorTableEditor::OnKillfocusDepth()
{
    if (m_countOrStep == 0)
        OnKillfocusNumcolors();
    else
        OnKillfocusStepsize();
}

void CColorTableEditor::OnHueRadio()
{
    m_colorMode = m_rgbRadio->isChecked() ? 1 : 0;
}

void CColorTableEditor::OnRgbRadio()
{
    m_colorMode = m_rgbRadio->isChecked() ? 1 : 0;
}

// ---- ranges and presets

void CColorTableEditor::GenerateRange(bool rgb, bool add)
{
    if (!ReadControls())
        return;
    if (m_minValue > m_maxValue) {
        std::swap(m_minValue, m_maxValue);
        std::swap(m_minColor, m_maxColor);
    }
    if (m_countOrStep == 0 && m_numColors < 2) {
        QMessageBox::warning(this, windowTitle(), tr("Please enter a number of colors of at least 2."));
        m_numColorsEdit->setFocus();
        return;
    }
    if (m_countOrStep != 0 && !(m_stepSize > 0.0)) {
        QMessageBox::warning(this, windowTitle(), tr("Please enter a step size above 0."));
        m_stepEdit->setFocus();
        return;
    }
    constexpr COLORREF black = RGB(0, 0, 0);
    const double lo = m_minValue, hi = m_maxValue;
    bool made = false;
    const auto generate = [&](auto countOrStep) {
        if (m_rust)
            return add ? m_table.AddRange3(lo, hi, countOrStep, black, m_minColor, m_maxColor)
                       : m_table.SetRangeRGB3(lo, hi, countOrStep, black, m_minColor, m_maxColor);
        if (add)
            return m_table.AddRange(lo, hi, countOrStep, m_minColor, m_maxColor, rgb);
        return rgb ? m_table.SetRangeRGB(lo, hi, countOrStep, m_minColor, m_maxColor)
                   : m_table.SetRange(lo, hi, countOrStep, m_minColor, m_maxColor);
    };
    made = m_countOrStep == 0 ? generate(m_numColors) : generate(m_stepSize);
    FillColorTree(false);
    DoDataExchange(false);
    if (!made) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The colors cannot be generated: the table would hold more than %1 colors.")
                                 .arg(ColorTable::kMaxEntries));
    }
}

void CColorTableEditor::GenerateColorTable(bool rgb)
{
    GenerateRange(rgb, false);
}

void CColorTableEditor::AddColorTable(bool rgb)
{
    GenerateRange(rgb, true);
}

void CColorTableEditor::OnGenerateButton()
{
    GenerateColorTable(m_rgbRadio->isChecked());
}

void CColorTableEditor::OnAddButton()
{
    AddColorTable(m_rgbRadio->isChecked());
}

void CColorTableEditor::OnGreysButton()
{
    if (!ReadControls())
        return;
    m_minColor = RGB(0, 0, 0);
    m_maxColor = RGB(255, 255, 255);
    m_rust = false;
    DoDataExchange(false);
}

void CColorTableEditor::OnHuesButton()
{
    if (!ReadControls())
        return;
    m_minColor = RGB(255, 0, 0);
    m_maxColor = RGB(255, 0, 255);
    m_rust = false;
    DoDataExchange(false);
}

void CColorTableEditor::OnRustButton()
{
    if (!ReadControls())
        return;
    m_minColor = RGB(161, 45, 4);
    m_maxColor = RGB(255, 255, 0);
    m_rust = true;
    DoDataExchange(false);
}

void CColorTableEditor::OnReverseButton()
{
    if (!ReadControls())
        return;
    std::swap(m_minColor, m_maxColor);
    DoDataExchange(false);
}

// ---- single entries

void CColorTableEditor::OnAdd()
{
    CDepthColorEditDlg dialog(this);
    dialog.SetIndex(CDepthColorEditDlg::kNewEntryIndex);
    dialog.SetColor(m_table.LowColor());
    dialog.SetScaleMode(m_scaleMode);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (m_table.NumEntries() == 0)
        m_table.SetLowColor(dialog.GetColor());
    m_table.InsertEntry(dialog.GetValue(), dialog.GetColor(), true);
    InitColorParams();
    FillColorTree(false);
}

void CColorTableEditor::OnEdit()
{
    const int n = m_table.NumEntries();
    const int row = m_grid->GetSelectedRow();
    // The overview's rows are samples of the range, not entries.
    if (m_overview || n == 0 || row < 0 || row > n)
        return;
    const int index = n - row - 1;
    CDepthColorEditDlg dialog(this);
    dialog.SetIndex(index);
    dialog.SetScaleMode(m_scaleMode);
    if (index < 0) {
        dialog.SetColor(m_table.LowColor());
        if (dialog.exec() != QDialog::Accepted)
            return;
        m_table.SetLowColor(dialog.GetColor());
        m_minColor = dialog.GetColor();
    } else {
        dialog.SetValue(m_table.EntryValue(index));
        dialog.SetColor(m_table.EntryColor(index));
        if (dialog.exec() != QDialog::Accepted)
            return;
        m_table.RemoveEntry(index);
        m_table.InsertEntry(dialog.GetValue(), dialog.GetColor(), true);
    }
    InitColorParams();
    FillColorTree(false);
}

void CColorTableEditor::OnDblclkColorGrid(int row)
{
    Q_UNUSED(row) // the double-click selected it
    if (!m_overview)
        OnEdit();
}

void CColorTableEditor::OnDelete()
{
    const int n = m_table.NumEntries();
    if (m_overview)
        return;
    if (n < 2) {
        m_table.ClearEntries(true);
    } else {
        const int row = m_grid->GetSelectedRow();
        if (row < 0 || row > n)
            return;
        const int index = n - row - 1;
        if (index < 0) {
            m_table.SetLowColor(m_table.EntryColor(0));
            m_table.RemoveEntry(0);
        } else {
            m_table.RemoveEntry(index);
        }
    }
    InitColorParams();
    FillColorTree(false);
}

void CColorTableEditor::OnClear()
{
    m_table.ClearEntries(true);
    FillColorTree(false);
}

// ---- rotation

std::vector<COLORREF> CColorTableEditor::RotateColors(const std::vector<COLORREF>& colors,
                                                      const std::vector<bool>& locked, int shift, bool down)
{
    std::vector<size_t> open;
    for (size_t slot = 0; slot < colors.size(); ++slot) {
        if (slot >= locked.size() || !locked[slot])
            open.push_back(slot);
    }
    std::vector<COLORREF> rotated = colors;
    const long long count = static_cast<long long>(open.size());
    if (count < 2)
        return rotated;
    const long long step = ((static_cast<long long>(shift) % count) + count) % count;
    for (long long k = 0; k < count; ++k) {
        const long long source = down ? (k + step) % count : (k - step + count) % count;
        rotated[open[size_t(k)]] = colors[open[size_t(source)]];
    }
    return rotated;
}

void CColorTableEditor::Rotate(bool down)
{
    m_savedScroll = m_grid->GetScrollPos();
    const int n = m_table.NumEntries();
    if (n - m_table.NumLocked() < 2)
        return;
    // Slots 0 .. n - 1 are the entries, slot n the low colour.
    std::vector<COLORREF> colors(size_t(n) + 1);
    std::vector<bool> locked(size_t(n) + 1, false);
    for (int i = 0; i < n; ++i) {
        colors[size_t(i)] = m_table.EntryColor(i);
        locked[size_t(i)] = m_table.EntryLocked(i);
    }
    colors[size_t(n)] = m_table.LowColor();
    const int shift = m_overview && m_rowsShown > 0 ? std::max(1, (n + 1) / m_rowsShown) : 1;
    const std::vector<COLORREF> rotated = RotateColors(colors, locked, shift, down);
    m_table.SetLowColor(rotated[size_t(n)]);
    for (int i = 0; i < n; ++i) {
        if (!locked[size_t(i)])
            m_table.SetEntryColor(i, rotated[size_t(i)]);
    }
    InitColorParams();
    FillColorTree(true);
}

void CColorTableEditor::OnColorUp()
{
    Rotate(false);
}

void CColorTableEditor::OnColorDown()
{
    Rotate(true);
}

// ---- the grid

QString CColorTableEditor::ValueText(double value, int decimals) const
{
    if (!m_scaleMode)
        return FormatDouble(value, decimals);
    if (value == 0.0)
        return QStringLiteral("1 : ") + QChar(char16_t(0x221E));
    return QStringLiteral("1 : ") + FormatDouble(1.0 / value, decimals);
}

double CColorTableEditor::CalculateValue(int row, int rows) const
{
    const int n = m_table.NumEntries();
    const int count = rows != 0 ? rows : n + 1;
    const double first = m_table.EntryValue(0);
    if (count == 1)
        return first;
    return first + (m_table.EntryValue(n - 1) - first) * row / count;
}

void CColorTableEditor::FillColorTree(bool keepScroll)
{
    const int n = m_table.NumEntries();
    int rows = n + 1;
    const int decimals = DepthDecimals();
    const int selected = m_grid->GetSelectedRow();

    m_grid->setUpdatesEnabled(false);
    m_grid->DeleteAllItems();
    m_grid->SetFixedRowCount(0);
    m_grid->SetFixedColumnCount(0);
    m_grid->SetGridLines(false);
    m_grid->SetColumnCount(1);
    m_rowsShown = 0;
    if (n == 0) {
        m_grid->setUpdatesEnabled(true);
        return;
    }
    const bool sampled = m_overview && rows > kOverviewRows;
    if (sampled)
        rows = kOverviewRows;
    m_rowsShown = rows;
    m_grid->SetRowCount(rows);

    const double first = m_table.EntryValue(0);
    const double last = m_table.EntryValue(n - 1);
    for (int row = 0; row < rows - 1; ++row) {
        QString text;
        COLORREF colour = 0;
        if (!sampled) {
            const int index = rows - row - 2;
            text = ValueText(m_table.EntryValue(index), decimals);
            if (m_table.EntryLocked(index))
                text += QStringLiteral(" *");
            colour = m_table.EntryColor(index);
        } else {
            const double value = first + (last - first) * (kOverviewRows - 1 - row) / double(kOverviewRows - 1);
            text = ValueText(value, decimals);
            colour = m_table.GetColor(value);
        }
        ColorGridFill::SetColorRow(m_grid, row, text, colour);
    }
    ColorGridFill::SetColorRow(m_grid, rows - 1, tr("Below"), m_table.LowColor());
    FitGridToClient();
    if (selected >= 0 && selected < rows)
        m_grid->SetSelectedRow(selected);
    if (keepScroll)
        m_grid->SetScrollPos(m_savedScroll);
    m_grid->setUpdatesEnabled(true);
}

void CColorTableEditor::FitGridToClient()
{
    ColorGridFill::FitToClient(m_grid);
}

void CColorTableEditor::OnOverview()
{
    if (!m_overview) {
        m_fullWidth = width();
        const int compact = width() - m_sidePanel->width() - layout()->spacing();
        m_sidePanel->hide();
        m_overviewButton->setText(QStringLiteral(">>"));
        m_overview = true;
        layout()->activate();
        resize(std::max(compact, minimumSizeHint().width()), height());
    } else {
        m_sidePanel->show();
        m_overviewButton->setText(QStringLiteral("<<"));
        m_overview = false;
        layout()->activate();
        resize(std::max(m_fullWidth, minimumSizeHint().width()), height());
    }
    FillColorTree(false);
}

bool CColorTableEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid && event->type() == QEvent::Resize)
        FitGridToClient();
    return BaseDlg::eventFilter(watched, event);
}
