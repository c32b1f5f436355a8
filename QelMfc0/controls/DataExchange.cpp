#include "QelMfc0/controls/DataExchange.h"

#include <QelBase/GeoText.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QVariant>
#include <QWidget>

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

} // namespace

namespace DataExchange {

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
