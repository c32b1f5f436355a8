#pragma once
// The style of the application in a colour mode: Fusion, which draws every element from the
// palette, with the style's own icons (message boxes, file dialogs, tool buttons) converted
// for the mode like the library's images.

#include "QelMfc0/QelMfc0Export.h"
#include <QProxyStyle>
#include <functional>

class QELMFC0_EXPORT ModeStyle : public QProxyStyle
{
    Q_OBJECT
public:
    using ImageFilter = std::function<void(QImage&)>;

    // Fusion with every standard icon and pixmap passed through `filter`, each pixel once.
    explicit ModeStyle(ImageFilter filter);

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;

private:
    QPixmap Filtered(const QPixmap& pixmap) const;

    ImageFilter m_filter;
    mutable int m_makingIcon = 0; // inside standardIcon (UI thread only)
};
