// Replacement of unit placeholders in dialog texts by the project's unit mnemonics.
#include "QelMfc0/QelMfc0Functions.h"

#include <QVariant>
#include <QWidget>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <array>

namespace {
struct Placeholder {
    const char* text;
    int unitKind;
    const char* fallback;
};

// In the order they are replaced; the fallback is used when no project is open.
constexpr std::array<Placeholder, 6> kPlaceholders = { {
    { "%W", UNIT_SYSTEM, "m" },
    { "%F", UNIT_FORCE, "kgf" },
    { "%T", UNIT_WEIGHT, "T" },
    { "%S", UNIT_SPEED, "m/sec" },
    { "%D", UNIT_DISTANCE, "m" },
    { "%A", UNIT_ANGULAR, "\u00B0" },
} };

// The property that holds a widget's visible text: "text" for labels, buttons and edits,
// "title" for group boxes.
const char* TextProperty(const QWidget* widget)
{
    if (widget->property("text").metaType().id() == QMetaType::QString)
        return "text";
    if (widget->property("title").metaType().id() == QMetaType::QString)
        return "title";
    return nullptr;
}
} // namespace

void SetDialogUnits(QWidget* dialog)
{
    if (!dialog)
        return;
    std::array<QString, kPlaceholders.size()> mnemonics;
    const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition();
    for (size_t i = 0; i < kPlaceholders.size(); ++i)
        mnemonics[i] = project ? project->GetUnitCnv().GetUnitMnem(kPlaceholders[i].unitKind)
                               : QString::fromUtf8(kPlaceholders[i].fallback);

    // Direct children only: texts of grandchildren are left alone.
    for (QObject* child : dialog->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        const char* property = widget ? TextProperty(widget) : nullptr;
        if (!property)
            continue;
        const QString original = widget->property(property).toString();
        QString text = original;
        for (size_t i = 0; i < kPlaceholders.size(); ++i) {
            const qsizetype at = text.indexOf(QLatin1String(kPlaceholders[i].text));
            if (at >= 0)
                text.replace(at, 2, mnemonics[i]);
        }
        if (text != original)
            widget->setProperty(property, text);
    }
}
