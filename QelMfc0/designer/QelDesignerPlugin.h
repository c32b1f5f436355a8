#pragma once
// The Qt Designer plugin of the library: one entry per public control, so that a form can
// place each of them and a host can promote a placeholder to it.

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

class QelDesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit QelDesignerPlugin(QObject* parent = nullptr);

    // Every control's entry, in the order Designer lists them.
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};
