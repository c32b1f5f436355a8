#include "QelMfc0/controls/DataExchange.h"

#include <QelBase/GeoText.h>
#include <QelBase/NumberText.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

// Whether the leading integer of `text` (blanks, an optional sign, digits) is non-zero, as the
// C library's atoi would see it; no digits count as zero.
bool leadingIntegerIsNonZero(const QString& text)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    if (i < text.size() && (text.at(i) == u'+' || text.at(i) == u'-'))
        ++i;
    for (; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c < u'0' || c > u'9')
            return false;
        if (c != u'0')
            return true;
    }
    return false;
}

// The property that holds the text of an edit-like widget (QLineEdit, QLabel, QPlainTextEdit,
// QTextEdit and the like); null when it has none.
const char* textProperty(const QWidget* control)
{
    for (const char* name : {"text", "plainText"}) {
        const QVariant value = control->property(name);
        if (value.isValid() && value.metaType().id() == QMetaType::QString)
            return name;
    }
    return nullptr;
}

constexpr QChar kInfinity(char16_t(0x221E));

// The open project's depth decimals; 2 without a project.
int projectDepthDecimals()
{
    int decimals = 2;
    if (const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition())
        project->GetDepthDecimals(decimals);
    return decimals;
}

// A map scale typed as "1 : x", "1:x", a plain x, or infinity ("∞", "1 : ∞") as the
// value 1 / x (0 for infinity); false for anything else and for x = 0.
bool readScale(QStringView text, double& value)
{
    const qsizetype colon = text.indexOf(u':');
    if (colon >= 0) {
        if (text.first(colon).trimmed() != QStringView(u"1"))
            return false;
        text = text.sliced(colon + 1).trimmed();
    }
    if (text == QStringView(&kInfinity, 1)) {
        value = 0.0;
        return true;
    }
    double denominator = 0.0;
    if (!TextToDouble(text, denominator) || denominator == 0.0)
        return false;
    const double scale = 1.0 / denominator;
    if (!std::isfinite(scale))
        return false;
    value = scale;
    return true;
}

} // namespace

namespace DataExchange {

bool DDX_FmtDoubleGradient(bool save, QLineEdit* edit, double& value, int kind, int decimals, bool scaleMode)
{
    Q_UNUSED(kind) // every kind is formatted as a depth
    if (!edit)
        return true;
    if (save) {
        const QString text = edit->text().trimmed();
        return scaleMode ? readScale(text, value) : TextToDouble(text, value);
    }
    const int places = std::clamp(decimals < 0 ? projectDepthDecimals() : decimals, 0, 15);
    if (!scaleMode)
        edit->setText(FormatDouble(value, places));
    else if (value == 0.0)
        edit->setText(QStringLiteral("1 : ") + kInfinity);
    else
        edit->setText(QStringLiteral("1 : ") + FormatDouble(1.0 / value, places));
    return true;
}

void DDX_Geo(bool save, QLineEdit* edit, double& value, int decimals, unsigned flags, bool latitude)
{
    if (!edit)
        return;
    if (save) {
        double parsed = 0.0;
        StringToGeo(edit->text(), parsed);
        value = parsed;
        return;
    }
    QString text;
    FormatGeogs(value, flags, decimals, latitude ? GeogsKind::LATITUDE : GeogsKind::LONGITUDE, text,
                true, true);
    edit->setText(text);
}

void DDX_bool(bool save, QWidget* control, bool& value)
{
    const char* property = control ? textProperty(control) : nullptr;
    if (!property)
        return;
    if (save) {
        const QString text = control->property(property).toString().trimmed();
        value = text.left(4).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
                || leadingIntegerIsNonZero(text);
    } else {
        control->setProperty(property, value ? QStringLiteral("true") : QStringLiteral("false"));
    }
}

void DDX_Check(bool save, QAbstractButton* checkBox, bool& value)
{
    if (!checkBox)
        return;
    auto* box = qobject_cast<QCheckBox*>(checkBox);
    if (save) {
        value = box ? box->checkState() == Qt::Checked : checkBox->isChecked();
        return;
    }
    if (box)
        box->setCheckState(value ? Qt::Checked : Qt::Unchecked);
    else
        checkBox->setChecked(value);
}

} // namespace DataExchange
