#pragma once
// The "Color Table Entry" dialog of a bottom-classification table: the colour and the name of
// one bottom type. The range of values the type stands for is shown read-only: from the entry's
// value up to the next entry's value; the low colour has no minimum, the highest entry no
// maximum (those fields stay empty). The name is taken as typed, without surrounding blanks.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>
#include <QelConfigure/BaseDlg.h>

class ColorWell;
class QLineEdit;

class QELMFC0_EXPORT BCColorEditDlg : public BaseDlg
{
    Q_OBJECT
public:
    static constexpr int kTemplateId = 6573;
    // Dialog ids of the controls; the widgets carry them as object names ("6848", ...).
    static constexpr int kMinimumId = 6848; // minimum value (read-only)
    static constexpr int kMaximumId = 6849; // maximum value (read-only)
    static constexpr int kNameId = 6850;    // the type's name
    static constexpr int kColorId = 6851;   // colour well

    explicit BCColorEditDlg(QWidget* parent = nullptr);
    ~BCColorEditDlg() override;

    // The colour shown and, after OK, the colour chosen.
    void SetColor(COLORREF color);
    COLORREF GetColor() const;
    // The name shown and, after OK, the name typed (trimmed).
    void SetName(const QString& name);
    QString GetName() const;
    // The texts of the value range shown; empty for an open end.
    void SetRangeTexts(const QString& minimum, const QString& maximum);

    // The controls, for hosts and tests.
    ColorWell* Well() const { return m_well; }
    QLineEdit* NameEdit() const { return m_nameEdit; }
    QLineEdit* MinimumEdit() const { return m_minEdit; }
    QLineEdit* MaximumEdit() const { return m_maxEdit; }

    // Shows the members in the controls (save false) or reads colour and name back (save true).
    void DoDataExchange(bool save);

public Q_SLOTS:
    // Reads the controls and closes.
    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    COLORREF m_color = 0;
    QString m_name;
    QString m_minText;
    QString m_maxText;

    ColorWell* m_well = nullptr;
    QLineEdit* m_nameEdit = nullptr;
    QLineEdit* m_minEdit = nullptr;
    QLineEdit* m_maxEdit = nullptr;
};
