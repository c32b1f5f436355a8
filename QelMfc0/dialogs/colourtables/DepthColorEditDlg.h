#pragma once
// The "Color Table Entry" dialog: the colour and the value of one entry of a colour table. The
// value is a depth (or, in scale mode, a map scale shown as "1 : x"). The entry -1 stands for the
// low colour, which has no value: its value field is disabled. A fixed value text shows a value
// the user cannot change (label "Value:", field disabled); only the colour is edited then.
// OK refuses a value that is not a number, with a message.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>
#include <QelConfigure/BaseDlg.h>

class ColorWell;
class QLabel;
class QLineEdit;

class QELMFC0_EXPORT CDepthColorEditDlg : public BaseDlg
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6516;
    // Dialog ids of the controls; the widgets carry them as object names ("6627", ...).
    static constexpr int kColorId = 6627;      // colour well
    static constexpr int kValueId = 6626;      // value edit
    static constexpr int kValueLabelId = 6625; // "Minimum Value:" or "Value:"
    // Entry indexes with a meaning of their own.
    static constexpr int kLowColorIndex = -1; // the low colour ("Below")
    static constexpr int kNewEntryIndex = -2; // an entry to add

    explicit CDepthColorEditDlg(QWidget* parent = nullptr);
    ~CDepthColorEditDlg() override;

    // The value shown and, after OK, the value typed (unchanged with a fixed value text).
    void SetValue(double value);
    double GetValue() const;
    // The colour shown and, after OK, the colour chosen.
    void SetColor(COLORREF color);
    COLORREF GetColor() const;
    // Values are map scales, shown and typed as "1 : x".
    void SetScaleMode(bool scaleMode);
    bool GetScaleMode() const;
    // The entry edited: an index, kLowColorIndex (value field disabled) or kNewEntryIndex.
    void SetIndex(int index);
    int GetIndex() const;
    // The label of the value field (by default "Minimum Value:").
    void SetLabelText(const QString& text);
    QString GetLabelText() const;
    // A value text the user cannot change; empty (the default) to edit the value.
    void SetFixedValueText(const QString& text);
    QString GetFixedValueText() const;

    // The controls, for hosts and tests.
    ColorWell* Well() const { return m_well; }
    QLineEdit* ValueEdit() const { return m_valueEdit; }
    QLabel* ValueLabel() const { return m_valueLabel; }

    // Shows the members in the controls, or reads them back (false when the value is no number).
    bool DoDataExchange(bool save);

public Q_SLOTS:
    // Reads the controls and closes; with a value that is no number, says so and stays open.
    void accept() override;

protected:
    // Puts the members into the controls and enables the value field as the entry needs.
    void OnInitDialog();
    void showEvent(QShowEvent* event) override;

private:
    double m_value = 0.0;
    QString m_label;
    bool m_scaleMode = false;
    int m_index = -1;
    COLORREF m_color = 0;
    QString m_fixedValueText;

    ColorWell* m_well = nullptr;
    QLabel* m_valueLabel = nullptr;
    QLineEdit* m_valueEdit = nullptr;
};
