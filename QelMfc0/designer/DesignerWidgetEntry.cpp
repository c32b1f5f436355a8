#include "DesignerWidgetEntry.h"

#include <QIcon>
#include <QLoggingCategory>
#include <QWidget>
#include <exception>

namespace {
Q_LOGGING_CATEGORY(lcQelDesigner, "qel.designer")
}

DesignerWidgetEntry::DesignerWidgetEntry(const QString& className, const QString& includeFile, const QString& toolTip,
                                         Factory factory, QObject* parent)
    : QObject(parent)
    , m_className(className)
    , m_includeFile(includeFile)
    , m_toolTip(toolTip)
    , m_factory(std::move(factory))
{
}

QString DesignerWidgetEntry::group() const
{
    return QStringLiteral("QelMfc0 survey controls");
}

QIcon DesignerWidgetEntry::icon() const
{
    return QIcon();
}

QString DesignerWidgetEntry::domXml() const
{
    // The object name is the class name with a lower-case first letter, less a leading "C".
    QString objectName = m_className;
    if (objectName.size() > 1 && objectName.at(0) == QLatin1Char('C') && objectName.at(1).isUpper())
        objectName.remove(0, 1);
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"%1\" name=\"%2\"/>\n"
                          "</ui>\n")
        .arg(m_className, objectName);
}

QWidget* DesignerWidgetEntry::createWidget(QWidget* parent)
{
    // Designer is the host here: an exception from a constructor must not take it down.
    try {
        return m_factory(parent);
    } catch (const std::exception& e) {
        qCWarning(lcQelDesigner) << m_className << "could not be created:" << e.what();
    } catch (...) {
        qCWarning(lcQelDesigner) << m_className << "could not be created";
    }
    return nullptr;
}

void DesignerWidgetEntry::initialize(QDesignerFormEditorInterface*)
{
    m_initialized = true;
}
