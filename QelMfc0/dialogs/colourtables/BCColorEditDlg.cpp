#include "QelMfc0/dialogs/colourtables/BCColorEditDlg.h"

#include <QelBase/DisplayScale.h>
#include <QelMfc0/controls/ColorWell.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShowEvent>

BCColorEditDlg::BCColorEditDlg(QWidget* parent)
    : BaseDlg(kTemplateId, parent)
{
    setWindowTitle(tr("Color Table Entry"));

    const auto makeEdit = [this](int id, bool readOnly) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QString::number(id));
        edit->setReadOnly(readOnly);
        edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("-00000.000")) + DpiCor(12));
        return edit;
    };
    m_minEdit = makeEdit(kMinimumId, true);
    m_maxEdit = makeEdit(kMaximumId, true);
    m_nameEdit = makeEdit(kNameId, false);
    m_nameEdit->setMinimumWidth(m_nameEdit->fontMetrics().horizontalAdvance(QStringLiteral("Medium coarse gravel"))
                                + DpiCor(12));
    auto* minLabel = new QLabel(tr("Minimum value:"), this);
    auto* maxLabel = new QLabel(tr("Maximum value:"), this);
    auto* nameLabel = new QLabel(tr("Value:"), this);
    minLabel->setBuddy(m_minEdit);
    maxLabel->setBuddy(m_maxEdit);
    nameLabel->setBuddy(m_nameEdit);

    auto* colorLabel = new QLabel(tr("Color:"), this);
    m_well = new ColorWell(this);
    m_well->setObjectName(QString::number(kColorId));
    m_well->setAccessibleName(tr("Color"));
    colorLabel->setBuddy(m_well);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &BCColorEditDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &BCColorEditDlg::reject);

    auto* grid = new QGridLayout(this);
    grid->addWidget(minLabel, 0, 0);
    grid->addWidget(m_minEdit, 0, 1);
    grid->addWidget(maxLabel, 1, 0);
    grid->addWidget(m_maxEdit, 1, 1);
    grid->addWidget(nameLabel, 2, 0);
    grid->addWidget(m_nameEdit, 2, 1);
    grid->addWidget(colorLabel, 3, 0);
    grid->addWidget(m_well, 3, 1, Qt::AlignLeft);
    grid->setRowStretch(4, 1);
    grid->addWidget(buttons, 5, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    EnableSizeGrip(true);
    m_nameEdit->setFocus();
}

BCColorEditDlg::~BCColorEditDlg() = default;

void BCColorEditDlg::SetColor(COLORREF color) { m_color = color; }
COLORREF BCColorEditDlg::GetColor() const { return m_color; }
void BCColorEditDlg::SetName(const QString& name) { m_name = name; }
QString BCColorEditDlg::GetName() const { return m_name; }

void BCColorEditDlg::SetRangeTexts(const QString& minimum, const QString& maximum)
{
    m_minText = minimum;
    m_maxText = maximum;
}

void BCColorEditDlg::DoDataExchange(bool save)
{
    if (save) {
        m_color = m_well->GetColor();
        m_name = m_nameEdit->text().trimmed();
        return;
    }
    m_well->SetColor(m_color);
    m_nameEdit->setText(m_name);
    m_minEdit->setText(m_minText);
    m_maxEdit->setText(m_maxText);
}

void BCColorEditDlg::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        DoDataExchange(false);
        m_nameEdit->selectAll();
    }
    BaseDlg::showEvent(event);
}

void BCColorEditDlg::accept()
{
    DoDataExchange(true);
    BaseDlg::accept();
}
