#include "QelMfc0/controls/PlaceholderReplacement.h"

#include <QLayout>
#include <QVariant>
#include <QWidget>

QString ReplacePlaceholder(QWidget* placeholder, QWidget* control, bool* ok)
{
    if (ok)
        *ok = false;
    QWidget* parent = placeholder ? placeholder->parentWidget() : nullptr;
    if (!parent || !control)
        return {};
    const QVariant textValue = placeholder->property("text");
    const QString text = textValue.metaType().id() == QMetaType::QString ? textValue.toString() : QString();

    // The widget before the placeholder in the tab chain, to put the control after it.
    QWidget* before = placeholder->previousInFocusChain();
    control->setParent(parent);
    control->setObjectName(placeholder->objectName());
    control->setGeometry(placeholder->geometry());
    control->setSizePolicy(placeholder->sizePolicy());
    control->setMinimumSize(placeholder->minimumSize());
    if (QLayout* layout = parent->layout())
        delete layout->replaceWidget(placeholder, control, Qt::FindChildrenRecursively);
    if (before && before != placeholder && before != parent && before->window() == parent->window())
        QWidget::setTabOrder(before, control);
    control->setHidden(placeholder->isHidden());
    delete placeholder;
    if (ok)
        *ok = true;
    return text;
}

QWidget* FindPlaceholder(QWidget* parent, const QString& objectName)
{
    return parent && !objectName.isEmpty() ? parent->findChild<QWidget*>(objectName) : nullptr;
}
