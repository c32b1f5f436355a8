#pragma once
// The base of the suite's dialogs: a dialog identified by its template number, with an optional
// size grip, a hook called after every resize, and the largest font that fits a control.

#include <QDialog>

class BaseDlg : public QDialog
{
    Q_OBJECT
public:
    // A dialog of template `templateId` (the suite's dialog number) over `parent`.
    BaseDlg(int templateId, QWidget* parent = nullptr);
    ~BaseDlg() override;

    int TemplateId() const;
    // Shows or hides the size grip in the bottom-right corner.
    void EnableSizeGrip(bool enable = true);
    // The largest point size (at least 6, at most 72) at which the text of `control` (its text,
    // or "0" when it has none) fits the control's height; 0 when `control` is null or too small.
    int GetFontSizeFromDlg(const QWidget* control) const;

protected:
    // Called after every resize, once the layout has placed the children.
    virtual void OnSize();
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_templateId;
};
