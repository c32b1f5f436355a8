#pragma once
// ButtonEditComposite: the body shared by the library's entry controls. A push button on the
// left (it opens the control's menu) and one or more line edits stacked on its right, built in
// the constructor, laid out, fonted, focused and marked together. It places itself like a
// dialog control (Create, or CreateFromStatic over a placeholder), reports that the focus left
// its edits, keeps read-only and empty state, marks unreadable text and follows project
// switches; a control built on it adds what it shows and how it reads it.

#include "QelMfc0/QelMfc0Export.h"
#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

#include <initializer_list>
#include <type_traits>

class InputMarker;
class QFont;
class QLineEdit;
class QMenu;
class QPushButton;

class QELMFC0_EXPORT ButtonEditComposite : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool readOnly READ IsReadOnly WRITE SetReadOnly NOTIFY readOnlyChanged)

public:
    ~ButtonEditComposite() override;

    // Places the control in `parent` (null keeps its parent) at `rect` with dialog id `id`, and
    // shows it when it has a parent. False when it was placed already.
    bool Create(const QRect& rect, QWidget* parent, int id = 0);
    // Takes the placeholder's place: parent, geometry, layout slot, tab order (the children
    // follow the button), object name, hidden state; its integer property "id", when set,
    // becomes Id(), and its text labels the control. The placeholder is deleted. False (nothing
    // changed) for a null or parentless placeholder, or when the control was placed already.
    bool CreateFromStatic(QWidget* placeholder);
    // The same with the child of `parent` (at any depth) named `objectName`; false when there is none.
    bool CreateFromStatic(const QString& objectName, QWidget* parent);
    // True once Create or CreateFromStatic placed the control. The control works without them.
    bool IsCreated() const { return m_created; }
    // The dialog id given to Create or taken from the placeholder (0 when none).
    int Id() const { return m_id; }

    // True while the control holds no value.
    bool IsEmpty() const { return m_empty; }
    // Empties the edits; the control then holds no value. Sends no text or commit signal.
    void Clear();

    // Makes the edits read-only or editable; the button keeps working.
    void SetReadOnly(bool readOnly);
    bool IsReadOnly() const { return m_readOnly; }

    // Font of the edits; null lets them take the control's font again (the parent's by default).
    void SetFontBox(const QFont* font);
    // Font of the button; null lets it take the control's font again.
    void SetFontButton(const QFont* font);

    // The button.
    QPushButton* Button() const { return m_button; }
    // Number of edits, and the edit at `index` (0 at the top; null outside).
    int EditCount() const { return int(m_edits.size()); }
    QLineEdit* EditAt(int index) const { return m_edits.value(index); }
    // True while an edit shows text marked as unreadable.
    bool IsInputMarked() const;

    // Button column plus an edit's preferred width; the edits' stacked height, at least the button's.
    QSize sizeHint() const override;
    // Button column plus an edit's minimum width; the edits' stacked minimum height.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The read-only state changed.
    void readOnlyChanged(bool readOnly);

protected:
    // Object name and dialog id (the integer property "id") of a child.
    struct ChildName
    {
        const char* objectName;
        int id;
    };
    // Builds the button and the edits (top to bottom), focus to the button first, then the
    // edits in order; follows project switches through onProjectClosing/onProjectChanged.
    ButtonEditComposite(ChildName button, std::initializer_list<ChildName> edits, QWidget* parent);

    // Turns the text notifications off for a scope (the control's own writes to the edits) and
    // puts the previous state back, also on a throw.
    class Quiet
    {
    public:
        explicit Quiet(ButtonEditComposite& control) : m_flag(control.m_notify), m_saved(m_flag) { m_flag = false; }
        ~Quiet() { m_flag = m_saved; }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;

    private:
        bool& m_flag;
        bool m_saved;
    };

    // Whether the edits' text changes are the user's or the host's (not the control's own).
    bool IsNotifying() const { return m_notify; }
    void SetEmpty(bool empty) { m_empty = empty; }
    // The warning mark of the edit at `index`.
    InputMarker* MarkerAt(int index) const { return m_markers.value(index); }
    // Marks every edit with what editProblem says of its text.
    void CheckInput();
    // True when both are the same number, or both are not a number.
    static bool SameValue(double a, double b);
    // When `now` differs from what was told last, remembers it and sends `signal` with it.
    template <class Control, class T, class Arg>
    static void Tell(Control* control, T& told, const T& now, void (Control::*signal)(Arg))
    {
        bool same = false;
        if constexpr (std::is_floating_point_v<T>)
            same = SameValue(told, now);
        else
            same = told == now;
        if (!same) {
            told = now;
            (control->*signal)(now);
        }
    }

    // The button's popup menu, its actions' data the commands; the caller owns it. None by default.
    virtual QMenu* buttonMenu() const;
    // Applies a command picked from buttonMenu() (never 0).
    virtual void menuCommand(int command);
    // What is wrong with `text` in the edit at `index`; empty when nothing is.
    virtual QString editProblem(int index, const QString& text) const;
    // The text of the edit at `index` was changed by the user or the host (after marking).
    virtual void onEditTextChanged(int index);
    // The focus left the edits for a widget outside them while the control holds a value.
    virtual void onEditingLeft();
    // SetReadOnly was called (also when the state stays).
    virtual void onReadOnlySet(bool readOnly);
    // The text of the placeholder replaced by CreateFromStatic; by default the accessible name.
    virtual void onPlaceholderText(const QString& text);
    // The open project is about to be replaced or closed (still current), and the new one (or
    // none) is current.
    virtual void onProjectClosing();
    virtual void onProjectChanged();
    // Sends the change signals of the state that changed since they were last sent; called
    // after Clear and each of the reactions above.
    virtual void announceChanges();

    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layoutChildren();
    void chainTabOrder();
    void textChanged(int index);
    void openButtonMenu();

    QPushButton* m_button = nullptr;
    QList<QLineEdit*> m_edits;
    QList<InputMarker*> m_markers;
    bool m_notify = false;
    bool m_empty = true;
    bool m_readOnly = false;
    bool m_created = false;
    int m_id = 0;
};
