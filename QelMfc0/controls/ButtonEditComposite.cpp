#include "QelMfc0/controls/ButtonEditComposite.h"

#include "QelMfc0/controls/InputMarker.h"
#include "QelMfc0/controls/PlaceholderReplacement.h"
#include "QelMfc0/controls/ProjectFollower.h"

#include <QelBase/DisplayScale.h>

#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <exception>

namespace {

Q_LOGGING_CATEGORY(lcEntry, "qel.entry")

// The button's width, the edits' left edge and the gap between stacked edits, at 96 DPI.
constexpr int kButtonWidth = 54;
constexpr int kEditLeft = 56;
constexpr int kEditGap = 2;

// Runs a reaction to a user's action; what it throws is logged, never passed to the event loop.
template <class F>
void guarded(const char* what, F&& reaction)
{
    try {
        reaction();
    } catch (const std::exception& error) {
        qCWarning(lcEntry) << what << "failed:" << error.what();
    } catch (...) {
        qCWarning(lcEntry) << what << "failed";
    }
}

} // namespace

ButtonEditComposite::ButtonEditComposite(ChildName button, std::initializer_list<ChildName> edits, QWidget* parent)
    : QWidget(parent)
{
    m_button = new QPushButton(this);
    m_button->setObjectName(QLatin1String(button.objectName));
    m_button->setProperty("id", button.id);
    m_button->setAutoDefault(false);
    connect(m_button, &QPushButton::clicked, this, &ButtonEditComposite::openButtonMenu);
    for (const ChildName& name : edits) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QLatin1String(name.objectName));
        edit->setProperty("id", name.id);
        edit->installEventFilter(this);
        const int index = int(m_edits.size());
        connect(edit, &QLineEdit::textChanged, this, [this, index] { textChanged(index); });
        m_edits.append(edit);
        m_markers.append(new InputMarker(edit));
    }
    // Focus given to the control goes to the button; Tab then walks the button and the edits.
    setFocusPolicy(m_button->focusPolicy());
    setFocusProxy(m_button);
    chainTabOrder();
    layoutChildren();
    m_notify = true;
    ProjectFollower::Follow(this, [this] { onProjectClosing(); }, [this] {
        onProjectChanged();
        announceChanges();
    });
}

ButtonEditComposite::~ButtonEditComposite()
{
    // The children outlive this part of the control: their focus and text changes while they
    // are destroyed must not reach it.
    m_notify = false;
    for (QLineEdit* edit : std::as_const(m_edits)) {
        edit->removeEventFilter(this);
        disconnect(edit, nullptr, this, nullptr);
    }
    disconnect(m_button, nullptr, this, nullptr);
}

bool ButtonEditComposite::Create(const QRect& rect, QWidget* parent, int id)
{
    if (m_created)
        return false;
    if (parent && parent != parentWidget())
        setParent(parent);
    setGeometry(rect);
    m_id = id;
    m_created = true;
    if (parentWidget())
        show();
    return true;
}

bool ButtonEditComposite::CreateFromStatic(QWidget* placeholder)
{
    if (m_created || !placeholder || !placeholder->parentWidget())
        return false;
    bool idOk = false;
    const int id = placeholder->property("id").toInt(&idOk);
    bool ok = false;
    const QString text = ReplacePlaceholder(placeholder, this, &ok);
    if (!ok)
        return false;
    // The children follow the button in the tab chain, wherever the control was put.
    chainTabOrder();
    m_id = idOk ? id : 0;
    m_created = true;
    onPlaceholderText(text);
    return true;
}

bool ButtonEditComposite::CreateFromStatic(const QString& objectName, QWidget* parent)
{
    QWidget* placeholder = FindPlaceholder(parent, objectName);
    return placeholder && CreateFromStatic(placeholder);
}

void ButtonEditComposite::Clear()
{
    {
        Quiet quiet(*this);
        for (QLineEdit* edit : std::as_const(m_edits))
            edit->clear();
    }
    m_empty = true;
    announceChanges();
}

void ButtonEditComposite::SetReadOnly(bool readOnly)
{
    for (QLineEdit* edit : std::as_const(m_edits))
        edit->setReadOnly(readOnly);
    const bool changed = readOnly != m_readOnly;
    m_readOnly = readOnly;
    onReadOnlySet(readOnly);
    if (changed)
        emit readOnlyChanged(readOnly);
}

void ButtonEditComposite::SetFontBox(const QFont* font)
{
    // A default font unsets the edit's own, so that it inherits the control's again.
    for (QLineEdit* edit : std::as_const(m_edits))
        edit->setFont(font ? *font : QFont());
}

void ButtonEditComposite::SetFontButton(const QFont* font)
{
    m_button->setFont(font ? *font : QFont());
}

bool ButtonEditComposite::IsInputMarked() const
{
    return std::any_of(m_markers.begin(), m_markers.end(), [](const InputMarker* m) { return m->IsMarked(); });
}

QSize ButtonEditComposite::sizeHint() const
{
    const QSize edit = m_edits.isEmpty() ? QSize() : m_edits.first()->sizeHint();
    const int stacked = int(m_edits.size()) * (edit.height() + kEditGap) - kEditGap;
    return {DpiCor(kEditLeft) + edit.width(), std::max(stacked, m_button->sizeHint().height())};
}

QSize ButtonEditComposite::minimumSizeHint() const
{
    const QSize edit = m_edits.isEmpty() ? QSize() : m_edits.first()->minimumSizeHint();
    return {DpiCor(kEditLeft) + edit.width(), int(m_edits.size()) * (edit.height() + kEditGap) - kEditGap};
}

void ButtonEditComposite::CheckInput()
{
    for (int i = 0; i < m_edits.size(); ++i)
        m_markers[i]->SetProblem(editProblem(i, m_edits[i]->text()));
}

bool ButtonEditComposite::SameValue(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

QMenu* ButtonEditComposite::buttonMenu() const
{
    return nullptr;
}

void ButtonEditComposite::menuCommand(int) {}

QString ButtonEditComposite::editProblem(int, const QString&) const
{
    return {};
}

void ButtonEditComposite::onEditTextChanged(int) {}

void ButtonEditComposite::onEditingLeft() {}

void ButtonEditComposite::onReadOnlySet(bool) {}

void ButtonEditComposite::onPlaceholderText(const QString& text)
{
    if (!text.isEmpty())
        setAccessibleName(text);
}

void ButtonEditComposite::onProjectClosing() {}

void ButtonEditComposite::onProjectChanged() {}

void ButtonEditComposite::announceChanges() {}

void ButtonEditComposite::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutChildren();
}

bool ButtonEditComposite::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && m_notify && !m_empty
        && m_edits.contains(qobject_cast<QLineEdit*>(watched))) {
        // Moving between the edits stays inside the control, and a popup (an edit's context
        // menu) takes the focus only for a moment. The application's focus widget is already
        // the one that receives the focus.
        const bool popup = static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
        if (!popup && !m_edits.contains(qobject_cast<QLineEdit*>(QApplication::focusWidget())))
            guarded("committing the entry", [this] {
                onEditingLeft();
                announceChanges();
            });
    }
    return QWidget::eventFilter(watched, event);
}

void ButtonEditComposite::layoutChildren()
{
    const int width = this->width();
    const int height = this->height();
    const int left = std::min(DpiCor(kEditLeft), width);
    m_button->setGeometry(0, 0, std::min(DpiCor(kButtonWidth), width), height);
    // Equal rows, the gap split between the edits on either side of it.
    const int count = int(m_edits.size());
    for (int i = 0; i < count; ++i) {
        const int top = i == 0 ? 0 : i * height / count + kEditGap / 2;
        const int bottom = i == count - 1 ? height : (i + 1) * height / count - kEditGap / 2;
        m_edits[i]->setGeometry(left, top, width - left, std::max(bottom - top, 0));
    }
}

void ButtonEditComposite::chainTabOrder()
{
    QWidget* previous = m_button;
    for (QLineEdit* edit : std::as_const(m_edits)) {
        QWidget::setTabOrder(previous, edit);
        previous = edit;
    }
}

void ButtonEditComposite::textChanged(int index)
{
    guarded("reading the entry", [this, index] {
        m_markers[index]->SetProblem(editProblem(index, m_edits[index]->text()));
        if (m_notify) {
            onEditTextChanged(index);
            announceChanges();
        }
    });
}

void ButtonEditComposite::openButtonMenu()
{
    guarded("the button's menu", [this] {
        const QPointer<ButtonEditComposite> self(this);
        const QPointer<QMenu> menu(buttonMenu());
        if (!menu)
            return;
        const QAction* chosen = menu->exec(m_button->mapToGlobal(QPoint(0, m_button->height())));
        // The host may have closed the dialog, taking the control and its menu along.
        if (!self || !menu)
            return;
        const int command = chosen ? chosen->data().toInt() : 0;
        delete menu.data();
        if (command != 0)
            menuCommand(command);
    });
}
