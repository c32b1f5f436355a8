#pragma once
// Checks the indicator widgets share: a property notifies once with its new value, not for the
// same value nor through another property's signal; and repainting on a colour mode change.
#include <QelMfc0/colour/ColorControl.h>

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QVariant>
#include <QWidget>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <vector>

struct PropertyCase
{
    const char* name;
    QVariant value;
};

inline void ExpectNotifyingProperties(QObject& object, std::initializer_list<PropertyCase> cases)
{
    const QMetaObject* meta = object.metaObject();
    for (const PropertyCase& c : cases) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(c.name));
        ASSERT_TRUE(property.isValid() && property.hasNotifySignal()) << c.name;
        ASSERT_NE(object.property(c.name), c.value) << c.name << " starts at the value it is set to";
        std::vector<std::pair<QMetaProperty, std::unique_ptr<QSignalSpy>>> spies;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            if (meta->property(i).hasNotifySignal())
                spies.emplace_back(meta->property(i), std::make_unique<QSignalSpy>(&object, meta->property(i).notifySignal()));

        EXPECT_TRUE(object.setProperty(c.name, c.value)) << c.name;
        EXPECT_EQ(object.property(c.name), c.value) << c.name;
        object.setProperty(c.name, c.value);
        for (const auto& [other, spy] : spies) {
            const bool own = other.propertyIndex() == property.propertyIndex();
            ASSERT_EQ(spy->count(), own ? 1 : 0) << c.name << " notified through " << other.name();
            if (own) {
                EXPECT_EQ(spy->at(0).at(0), c.value) << c.name;
            }
        }
    }
}

// The widget as it paints itself, into a 96-dpi image of its size.
inline QImage Rendered(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

// True when the shown widget paints again after the colour mode switched (and back).
inline bool RepaintsOnModeChange(QWidget& widget)
{
    struct PaintCounter : QObject
    {
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        return false;
    QCoreApplication::processEvents();
    widget.installEventFilter(&counter);
    ColorControl& colours = ColorControl::Instance();
    colours.SetLightMode(ColorConverter::normal, false);
    colours.SetLightMode(ColorConverter::night, false);
    const bool repainted = QTest::qWaitFor([&] { return counter.paints > 0; });
    colours.SetLightMode(ColorConverter::normal, false);
    widget.removeEventFilter(&counter);
    return repainted;
}
