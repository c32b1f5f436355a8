#include "QelDesignerPlugin.h"

#include "DesignerWidgetEntry.h"
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>

namespace {
template <typename Widget>
DesignerWidgetEntry::Factory Make()
{
    return [](QWidget* parent) -> QWidget* { return new Widget(parent); };
}
} // namespace

QelDesignerPlugin::QelDesignerPlugin(QObject* parent)
    : QObject(parent)
{
    // Designer loads plugins into its own application, where the library does not attach itself
    // unless asked; attaching is harmless when it already did.
    QelMfc0Attach();
    m_widgets = {
        new DesignerWidgetEntry(QStringLiteral("CCoordinateCtrl"), QStringLiteral("QelMfc0/controls/CoordinateCtrl.h"),
                                tr("Position entry: a format button and two edits (lat/lon or X/Y)"),
                                [](QWidget* parent) -> QWidget* { return new CCoordinateCtrl(false, false, parent); }, this),
        new DesignerWidgetEntry(QStringLiteral("DistanceCtrl"), QStringLiteral("QelMfc0/controls/DistanceCtrl.h"),
                                tr("Distance entry: a unit button and an edit"), Make<DistanceCtrl>(), this),
    };
}
