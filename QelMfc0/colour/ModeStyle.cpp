#include "QelMfc0/colour/ModeStyle.h"

#include <QIcon>
#include <QImage>
#include <QStyleFactory>

ModeStyle::ModeStyle(ImageFilter filter)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    , m_filter(std::move(filter))
{
}

QPixmap ModeStyle::Filtered(const QPixmap& pixmap) const
{
    if (pixmap.isNull() || !m_filter)
        return pixmap;
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    m_filter(image);
    QPixmap result = QPixmap::fromImage(image);
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    return result;
}

QIcon ModeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    // The base style builds many icons from standardPixmap() of this style: those pixmaps come
    // back unconverted while the icon is made, so that every pixel is converted exactly once.
    ++m_makingIcon;
    const QIcon original = QProxyStyle::standardIcon(icon, option, widget);
    QIcon converted;
    if (!original.isNull()) {
        QList<QSize> sizes = original.availableSizes();
        if (sizes.isEmpty())
            sizes = { QSize(16, 16), QSize(24, 24), QSize(32, 32), QSize(48, 48), QSize(64, 64) };
        for (const QSize& size : sizes)
            converted.addPixmap(Filtered(original.pixmap(size)));
    }
    --m_makingIcon;
    return original.isNull() ? original : converted;
}

QPixmap ModeStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    const QPixmap plain = QProxyStyle::standardPixmap(pixmap, option, widget);
    return m_makingIcon > 0 ? plain : Filtered(plain);
}
