#include "QelMfc0/dialogs/colourtables/DepthColorEditDlg.h"

#include <QelBase/DisplayScale.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/controls/DataExchange.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShowEvent>

CDepthColorEditDlg::CDepthColorEditDlg(QWidget* parent)
    : BaseDlg(kTemplateId, parent)
    , m_label(tr("Minimum Value:"))
{
    setWindowTitle(tr("Color Table Entry"));

    auto* colorLabel = new QLabel(tr("Color:"), this);
    m_well = new ColorWell(this);
    m_well->setObjectName(QString::number(kColorId));
    colorLabel->setBuddy(m_well);

    m_valueLabel = new QLabel(m_label, this);
    m_valueLabel->setObjectName(QString::number(kValueLabelId));
    m_valueEdit = new QLineEdit(this);
    m_valueEdit->setObjectName(QString::number(kValueId));
    m_valueLabel->setBuddy(m_valueEdit);
    // Room for a scale with its decimals without scrolling the text.
    m_valueEdit->setMinimumWidth(m_valueEdit->fontMetrics().horizontalAdvance(QStringLiteral("1 : 0000000.000"))
                                 + DpiCor(12));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &CDepthColorEditDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CDepthColorEditDlg::reject);

    auto* grid = new QGridLayout(this);
    grid->addWidget(colorLabel, 0, 0);
    grid->addWidget(m_well, 0, 1);
    grid->addWidget(m_valueLabel, 1, 0);
    grid->addWidget(m_valueEdit, 1, 1);
    grid->setRowStretch(2, 1);
    grid->addWidget(buttons, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

CDepthColorEditDlg::~CDepthColorEditDlg() = default;

void CDepthColorEditDlg::SetValue(double value) { m_value = value; }
double CDepthColorEditDlg::GetValue() const { return m_value; }
void CDepthColorEditDlg::SetColor(COLORREF color) { m_color = color; }
COLORREF CDepthColorEditDlg::GetColor() const { return m_color; }
void CDepthColorEditDlg::SetScaleMode(bool scaleMode) { m_scaleMode = scaleMode; }
bool CDepthColorEditDlg::GetScaleMode() const { return m_scaleMode; }
void CDepthColorEditDlg::SetIndex(int index) { m_index = index; }
int CDepthColorEditDlg::GetIndex() const { return m_index; }
void CDepthColorEditDlg::SetLabelText(const QString& text) { m_label = text; }
QString CDepthColorEditDlg::GetLabelText() const { return m_label; }
void CDepthColorEditDlg::SetFixedValueText(const QString& text) { m_fixedValueText = text; }
QString CDepthColorEditDlg::GetFixedValueText() const { return m_fixedValueText; }

bool CDepthColorEditDlg::DoDataExchange(bool save)
{
    if (save) {
        m_color = m_well->GetColor();
        m_label = m_valueLabel->text();
        // Neither the low colour nor a fixed value has a value to read.
        if (m_index == kLowColorIndex || !m_fixedValueText.isEmpty())
            return true;
        return DataExchange::DDX_FmtDoubleGradient(true, m_valueEdit, m_value, DataExchange::GRADIENT_DEPTH, -1,
                                                   m_scaleMode);
    }
    m_well->SetColor(m_color);
    m_valueLabel->setText(m_label);
    if (m_fixedValueText.isEmpty())
        DataExchange::DDX_FmtDoubleGradient(false, m_valueEdit, m_value, DataExchange::GRADIENT_DEPTH, -1, m_scaleMode);
    else
        m_valueEdit->setText(m_fixedValueText);
    return true;
}

void CDepthColorEditDlg::OnInitDialog()
{
    if (!m_fixedValueText.isEmpty())
        m_label = tr("Value:");
    DoDataExchange(false);
    m_valueEdit->setEnabled(m_index != kLowColorIndex && m_fixedValueText.isEmpty());
    if (m_index == kLowColorIndex)
        m_valueEdit->clear();
}

void CDepthColorEditDlg::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        OnInitDialog();
    BaseDlg::showEvent(event);
}

void CDepthColorEditDlg::accept()
{
    if (!DoDataExchange(true)) {
        QMessageBox::warning(this, windowTitle(), tr("Please enter a number."));
        m_valueEdit->setFocus();
        m_valueEdit->selectAll();
        return;
    }
    BaseDlg::accept();
}
