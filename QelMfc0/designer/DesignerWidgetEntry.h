#pragma once
// One control of the library as Qt Designer lists it: class name, header, group, tool tip,
// the XML that places a new one on a form, and a factory that builds it with only a parent.

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>

class DesignerWidgetEntry : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    using Factory = std::function<QWidget*(QWidget* parent)>;

    // `className` as the host's code names it, `includeFile` as a host includes it.
    DesignerWidgetEntry(const QString& className, const QString& includeFile, const QString& toolTip,
                        Factory factory, QObject* parent = nullptr);

    QString name() const override { return m_className; }
    QString group() const override;
    QString toolTip() const override { return m_toolTip; }
    QString whatsThis() const override { return m_toolTip; }
    QString includeFile() const override { return m_includeFile; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    // A new control on a form, named after its class and sized by its own size hint.
    QString domXml() const override;
    // Builds the control with only its parent; null when its constructor failed.
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface* core) override;

private:
    QString m_className;
    QString m_includeFile;
    QString m_toolTip;
    Factory m_factory;
    bool m_initialized = false;
};
