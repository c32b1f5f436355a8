#pragma once
// The base of the suite's dialogs: a dialog identified by its template number, with an optional
// size grip, a hook called after every resize, and the largest font that fits a control.

#include "QelConfigure/QelConfigureExport.h"
#include <QDialog>

class QELCONFIGURE_EXPORT BaseDlg : public QDialog
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
    // or "0" when it has none; every line of it) fits the control's room for text in height and
    // width, so nothing of it is cut; 0 when `control` is null or too small even at 6 points.
    int GetFontSizeFromDlg(const QWidget* control) const;

    // The text `control` shows: its "text" property, or "0" when it has none.
    static QString TextOf(const QWidget* control);
    // The room for text inside `control`: its size less the frame, padding and contents margins
    // that its kind of widget (line edit, button, label) keeps around the text.
    static QSize TextRoom(const QWidget* control);
    // True when `text` in `font` fits `room` (each line's width; all lines' height).
    static bool TextFits(const QString& text, const QFont& font, const QSize& room);

protected:
    // Called after every resize, once the layout has placed the children.
    virtual void OnSize();
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_templateId;
};
