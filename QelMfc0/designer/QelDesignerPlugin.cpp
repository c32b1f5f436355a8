#include "QelDesignerPlugin.h"

#include "DesignerWidgetEntry.h"
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QelMfc0/controls/indicators/DistOnRlineMeterWidget.h>
#include <QelMfc0/controls/indicators/OffrackMeterWidget.h>
#include <QelMfc0/controls/indicators/UpDownIndicatorWidget.h>

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
                                Make<CCoordinateCtrl>(), this),
        new DesignerWidgetEntry(QStringLiteral("DistanceCtrl"), QStringLiteral("QelMfc0/controls/DistanceCtrl.h"),
                                tr("Distance entry: a unit button and an edit"), Make<DistanceCtrl>(), this),
        new DesignerWidgetEntry(QStringLiteral("UpDownIndicatorWidget"),
                                QStringLiteral("QelMfc0/controls/indicators/UpDownIndicatorWidget.h"),
                                tr("Depth gauge: a bar from the reference to the value, with an optional band"),
                                Make<UpDownIndicatorWidget>(), this),
        new DesignerWidgetEntry(QStringLiteral("OffrackMeterWidget"),
                                QStringLiteral("QelMfc0/controls/indicators/OffrackMeterWidget.h"),
                                tr("Off-track meter: the distance left or right of the run line"),
                                Make<OffrackMeterWidget>(), this),
        new DesignerWidgetEntry(QStringLiteral("DistOnRlineMeterWidget"),
                                QStringLiteral("QelMfc0/controls/indicators/DistOnRlineMeterWidget.h"),
                                tr("Distance along the run line"), Make<DistOnRlineMeterWidget>(), this),
        new DesignerWidgetEntry(QStringLiteral("ColorWell"), QStringLiteral("QelMfc0/controls/ColorWell.h"),
                                tr("Color well: a button showing a color that opens a color dialog"),
                                Make<ColorWell>(), this),
    };
}
