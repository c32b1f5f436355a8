#pragma once
// Entry and display of one distance: a unit button on the left and a single-line edit on its
// right. The value is held in the project's unit; the edit shows it converted into the unit
// chosen from the button's menu (the distance units of the suite's units file), with the
// unit's abbreviation behind it. When the host opens another project the control re-reads the
// units, decimals and project unit: the value keeps its length in the new project's unit, and
// the unit shown follows the project's unless the user or host picked another one.

#include "QelMfc0/QelMfc0Export.h"
#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

class InputMarker;
class QFont;
class QLineEdit;
class QMenu;
class QPushButton;

class QELMFC0_EXPORT DistanceCtrl : public QWidget
{
    Q_OBJECT

public:
    // Notification codes, as the signals below are known to hosts that keep the numbers.
    static constexpr int DIST_NOTIFY_CHANGED = 1;    // changed()
    static constexpr int DIST_NOTIFY_UNIT = 2;       // unitChosen()
    static constexpr int DIST_NOTIFY_COMMITTED = 3;  // committed()
    // Child ids of the unit button and the edit; menu command of the first unit.
    static constexpr int kButtonId = 6504;
    static constexpr int kEditId = 6502;
    static constexpr int kFirstUnitCommand = 39000;

    // One distance unit of the units file: internal = value * factor + offset.
    struct Unit
    {
        QString key;
        QString abbreviation;
        double factor = 1.0;
        double offset = 0.0;
        QString menuText;
    };

    // Reads the distance units of the units file and the open project's distance decimals and
    // unit (which becomes the current unit when the file lists it). Usable at once as a child
    // of `parent`; Create/CreateFromStatic place it like a dialog control.
    explicit DistanceCtrl(QWidget* parent = nullptr);
    ~DistanceCtrl() override;

    // Puts the control into `parent` at `rect` with dialog id `id` and shows it; the children
    // take the parent's font. False when `parent` is null.
    bool Create(const QRect& rect, QWidget* parent, int id = 0);
    // Takes the placeholder's place (geometry, layout slot, tab order, object name), uses its
    // text as the button caption and its integer property "id", when set, as Id(), and deletes
    // it. False (placeholder kept) when it is null or has no parent.
    bool CreateFromStatic(QWidget* placeholder);
    // The same for the child of `parent` with that object name; false when there is none.
    bool CreateFromStatic(const QString& objectName, QWidget* parent);
    // The dialog id given to Create or taken from the placeholder (0 when none).
    int Id() const;

    // Stores `value` (project unit) and shows it, converted into the current unit with its
    // abbreviation when `convert`, else as it is. Sends nothing. Throws std::invalid_argument,
    // changing nothing, when `convert` and there is no current unit.
    void SetDistance(double value, bool convert);
    // The stored value and true; false (value untouched) when the control is empty. The edit's
    // text is never parsed: typing does not change the stored value.
    bool GetDistance(double& value) const;
    // For hosts that take typed distances: the edit's text read as a number, optionally followed
    // by a unit's abbreviation or key ("2 km", "2000", "6,5 ft"; without one, the current
    // unit), converted into the project's unit. False (value untouched) for empty or unreadable
    // text or an unknown unit. The control itself is not changed; SetDistance shows the value.
    bool ReadTypedDistance(double& value) const;
    // What is wrong with `text` as a typed distance; empty when it reads well or is empty. The
    // edit is marked with it while the user types.
    QString InputProblem(const QString& text) const;
    // True while the edit shows text marked as unreadable.
    bool IsInputMarked() const;
    // The text the control shows for `value`: the decimals of the project, one space, and with
    // `convert` the value converted into the current unit and its abbreviation. Throws
    // std::invalid_argument when `convert` and the current unit index is outside the list.
    QString FormatDistance(double value, bool convert) const;

    // Makes the first unit with exactly that key current and shows the value again (converted)
    // when not empty; an unknown key changes nothing. Sends nothing.
    void SetDistUnit(const QString& key);
    // The current unit's key; throws std::invalid_argument when there is no current unit.
    void GetDistUnit(QString& key) const;
    // The current unit's key, empty when there is none (never throws).
    QString DistUnit() const;
    // The distance units read at construction, in file order.
    const QList<Unit>& Units() const;
    // Index of the current unit in Units().
    int CurrentUnit() const;

    // Empties the edit and the control (no value). Sends nothing.
    void Clear();
    // Makes the edit read-only for good; the unit can still be chosen.
    void SetReadOnly();
    // Font of the edit; null goes back to the application's font for edits.
    void SetFontBox(const QFont* font);
    // Font of the unit button; null goes back to the application's font for buttons.
    void SetFontButton(const QFont* font);

    // The unit button (child id kButtonId).
    QPushButton* UnitButton() const;
    // The edit (child id kEditId).
    QLineEdit* Edit() const;
    // The unit menu as the button shows it: one checkable action per unit, data
    // kFirstUnitCommand + index, the current one checked. The caller owns it.
    QMenu* UnitMenu() const;
    // Does exactly what picking menu command `menuCommand` does; values that name no unit,
    // and the current unit, do nothing.
    void ChooseUnit(int menuCommand);

    // Button column and edit column at full height.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The edit's text changed by typing (or by a host writing it); the control is no longer empty.
    void changed();
    // Another unit was chosen from the menu; the text already shows the value in it.
    void unitChosen();
    // The edit lost the focus while the control holds a value.
    void committed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readUnits();
    void onProjectChanged();
    void layoutChildren();
    void finishCreate(int id);
    void showValue(bool convert);
    void onTextChanged();
    const Unit* findTypedUnit(const QString& text) const;
    bool parseTyped(const QString& text, double& value, QString* problem) const;
    void onButtonClicked();

    QPushButton* m_button = nullptr;
    QLineEdit* m_edit = nullptr;
    InputMarker* m_marker = nullptr;
    QList<Unit> m_units;
    int m_decimals = 2;
    int m_current = 0;
    double m_projectFactor = 1.0;
    double m_projectOffset = 0.0;
    QString m_projectKey;     // key of the project's distance unit
    double m_distance = 0.0;
    bool m_converted = true;  // the value was last shown converted into the current unit
    bool m_edited = false;    // the text was typed since the value was last shown
    bool m_empty = true;
    bool m_notify = false;
    int m_id = 0;
};
