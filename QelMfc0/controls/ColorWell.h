#pragma once
// A colour well: a button showing a colour swatch that opens a colour dialog when clicked.
// The swatch is drawn in the colour the current colour mode gives for the colour, and
// repaints when the mode changes; the colour itself (a COLORREF) is never converted.

#include "QelMfc0/QelMfc0Export.h"
#include <QPushButton>
#include <QelBase/QelTypes.h>

#include <functional>

class QELMFC0_EXPORT ColorWell : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
public:
    explicit ColorWell(QWidget* parent = nullptr);
    ~ColorWell() override;

    // The colour as 0x00BBGGRR; setting it does not emit colorChanged unless it changed.
    COLORREF GetColor() const;
    void SetColor(COLORREF color);
    // The same colour as a QColor (always opaque).
    QColor color() const;
    void setColor(const QColor& color);

    // Opens the colour dialog (the button's click does this); true when the user chose a colour.
    bool ChooseColor();

    // Shows the colour dialog instead of Qt's for every colour well (hosts and tests): gets the
    // current colour, the title and the well; true with `chosen` set when a colour was chosen.
    using DialogHook = std::function<bool(const QColor& initial, const QString& title,
                                          QWidget* parent, QColor& chosen)>;
    // Installs the hook (empty: Qt's colour dialog again).
    static void SetDialogHook(DialogHook hook);

    // About 40 x 22 at the usual font, growing with the font's height.
    QSize sizeHint() const override;

Q_SIGNALS:
    // The colour changed, by the user or a call; carries the new colour.
    void colorChanged(const QColor& color);
    // The user picked a colour in the dialog (only then), as 0x00BBGGRR.
    void colorPicked(COLORREF color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // The colour dialog, through the hook when one is installed; invalid when cancelled.
    QColor runDialog();

    COLORREF m_color = 0;
};
