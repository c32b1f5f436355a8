#pragma once
// Entry and display of one distance: a unit button on the left and a single-line edit on its
// right. The value is held in the project's unit; the edit shows it converted into the unit
// chosen from the button's menu (the distance units of the suite's units file), with the
// unit's abbreviation behind it. When the host opens another project the control re-reads the
// units, decimals and project unit: the value keeps its length in the new project's unit, and
// the unit shown follows the project's unless the user or host picked another one.

#include "QelMfc0/QelMfc0Export.h"
#include "QelMfc0/controls/ButtonEditComposite.h"

#include <QList>
#include <QString>

class QELMFC0_EXPORT DistanceCtrl : public ButtonEditComposite
{
    Q_OBJECT
    Q_PROPERTY(double distance READ Distance WRITE SetDistance NOTIFY distanceChanged)
    Q_PROPERTY(QString unit READ DistUnit WRITE SetDistUnit NOTIFY unitChanged)
    Q_PROPERTY(int unitIndex READ CurrentUnit WRITE SetCurrentUnit NOTIFY unitIndexChanged)
    Q_PROPERTY(int decimals READ Decimals NOTIFY decimalsChanged)

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
    // unit (which becomes the current unit when the file lists it). Ready for use at once;
    // Create/CreateFromStatic place it like a dialog control, CreateFromStatic with the
    // placeholder's text as the button caption.
    explicit DistanceCtrl(QWidget* parent = nullptr);
    ~DistanceCtrl() override;

    // Stores `value` (project unit) and shows it, converted into the current unit with its
    // abbreviation when `convert`, else as it is. Sends no text or unit signal. Throws
    // std::invalid_argument, changing nothing, when `convert` and there is no current unit.
    void SetDistance(double value, bool convert);
    // The same, converted when there is a current unit (never throws); NaN (no value) empties
    // the control.
    void SetDistance(double value);
    // The stored value and true; false (value untouched) when the control is empty. The edit's
    // text is never parsed: typing does not change the stored value.
    bool GetDistance(double& value) const;
    // The stored value; NaN when the control is empty.
    double Distance() const;
    // For hosts that take typed distances: the edit's text read as a number, optionally followed
    // by a unit's abbreviation or key ("2 km", "2000", "6,5 ft"; without one, the current
    // unit), converted into the project's unit. False (value untouched) for empty or unreadable
    // text or an unknown unit. The control itself is not changed; SetDistance shows the value.
    bool ReadTypedDistance(double& value) const;
    // What is wrong with `text` as a typed distance; empty when it reads well or is empty. The
    // edit is marked with it while the user types.
    QString InputProblem(const QString& text) const;
    // The text the control shows for `value`: the decimals of the project, one space, and with
    // `convert` the value converted into the current unit and its abbreviation. Throws
    // std::invalid_argument when `convert` and the current unit index is outside the list.
    QString FormatDistance(double value, bool convert) const;
    // The project's distance decimals.
    int Decimals() const { return m_decimals; }

    // Makes the first unit with exactly that key current and shows the value again (converted)
    // when not empty; an unknown key changes nothing. Sends no unitChosen.
    void SetDistUnit(const QString& key);
    // The same with the unit at `index` of Units(); an index outside the list changes nothing.
    void SetCurrentUnit(int index);
    // The current unit's key; throws std::invalid_argument when there is no current unit.
    void GetDistUnit(QString& key) const;
    // The current unit's key, empty when there is none (never throws).
    QString DistUnit() const;
    // The distance units read at construction, in file order.
    const QList<Unit>& Units() const { return m_units; }
    // Index of the current unit in Units().
    int CurrentUnit() const { return m_current; }

    // Makes the edit read-only for good (SetReadOnly(false) of the base makes it editable);
    // the unit can still be chosen.
    using ButtonEditComposite::SetReadOnly;
    void SetReadOnly() { SetReadOnly(true); }

    // The unit button (child id kButtonId).
    QPushButton* UnitButton() const { return Button(); }
    // The edit (child id kEditId).
    QLineEdit* Edit() const { return EditAt(0); }
    // The unit menu as the button shows it: one checkable action per unit, data
    // kFirstUnitCommand + index, the current one checked. The caller owns it.
    QMenu* UnitMenu() const;
    // Does exactly what picking menu command `menuCommand` does; values that name no unit,
    // and the current unit, do nothing.
    void ChooseUnit(int menuCommand);

Q_SIGNALS:
    // The edit's text changed by typing (or by a host writing it); the control is no longer
    // empty (DIST_NOTIFY_CHANGED). The new text.
    void changed(const QString& text);
    // Another unit was chosen from the menu; the text already shows the value in it
    // (DIST_NOTIFY_UNIT). Its index in Units().
    void unitChosen(int index);
    // The edit lost the focus while the control holds a value (DIST_NOTIFY_COMMITTED); the
    // text as it stands, neither read nor re-formatted.
    void committed(const QString& text);
    // The stored value changed (NaN when the control became empty).
    void distanceChanged(double distance);
    // The current unit's key, or its index, changed.
    void unitChanged(const QString& key);
    void unitIndexChanged(int index);
    // The decimals changed with the project.
    void decimalsChanged(int decimals);

protected:
    QMenu* buttonMenu() const override;
    void menuCommand(int command) override;
    void onPlaceholderText(const QString& text) override;
    QString editProblem(int index, const QString& text) const override;
    void onEditTextChanged(int index) override;
    void onEditingLeft() override;
    void onProjectChanged() override;
    void announceChanges() override;

private:
    // What the signals last told, to tell only changes.
    struct Told
    {
        double distance = 0.0;
        QString unit;
        int unitIndex = 0;
        int decimals = 0;
    };

    void readUnits();
    void showValue(bool convert);
    const Unit* findTypedUnit(const QString& text) const;
    bool parseTyped(const QString& text, double& value, QString* problem) const;

    QList<Unit> m_units;
    int m_decimals = 2;
    int m_current = 0;
    double m_projectFactor = 1.0;
    double m_projectOffset = 0.0;
    QString m_projectKey;     // key of the project's distance unit
    double m_distance = 0.0;
    bool m_converted = true;  // the value was last shown converted into the current unit
    bool m_edited = false;    // the text was typed since the value was last shown
    Told m_told;
};
