#pragma once
// Gallery page of the colour modes: what the current mode does to colours, images and the
// system colours of the application.

#include <QImage>
#include <QWidget>

class ColourModesPage : public QWidget {
    Q_OBJECT
public:
    explicit ColourModesPage(QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture; // the unconverted picture; converted at paint time
};
