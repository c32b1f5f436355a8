#include "ui_PromotedForm.h"
#include <QFileInfo>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QPushButton>
#include <QTest>
#include <QXmlStreamReader>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <QelMfc0/controls/DistanceCtrl.h>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <common/TestProject.h>
#include <gtest/gtest.h>

namespace {
// The class and object name of the widget that an entry's XML places on a form.
std::pair<QString, QString> PlacedWidget(const QString& xml)
{
    QXmlStreamReader reader(xml);
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("widget"))
            return { reader.attributes().value("class").toString(), reader.attributes().value("name").toString() };
    }
    return {};
}
} // namespace

TEST(DesignerPlugin, OffersEveryControlAndBuildsEachWithOnlyAParent)
{
    TestProject project;
    QPluginLoader loader(QStringLiteral(QEL_DESIGNER_PLUGIN));
    ASSERT_TRUE(loader.load()) << qPrintable(loader.errorString());
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    ASSERT_NE(collection, nullptr);

    QStringList names;
    QWidget form;
    for (QDesignerCustomWidgetInterface* entry : collection->customWidgets()) {
        names << entry->name();
        SCOPED_TRACE(entry->name().toStdString());
        EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QEL_SOURCE_DIR "/") + entry->includeFile()));
        EXPECT_FALSE(entry->toolTip().isEmpty());
        const auto [className, objectName] = PlacedWidget(entry->domXml());
        EXPECT_EQ(className, entry->name());
        EXPECT_FALSE(objectName.isEmpty());

        QWidget* widget = entry->createWidget(&form);
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(QString::fromLatin1(widget->metaObject()->className()), entry->name());
        EXPECT_EQ(widget->parentWidget(), &form);
        EXPECT_FALSE(widget->sizeHint().isEmpty());
        // Designer's property editor reads every property and writes back what it read.
        const QMetaObject* meta = widget->metaObject();
        for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            const QVariant value = property.read(widget);
            EXPECT_TRUE(value.isValid()) << property.name();
            if (property.isWritable()) {
                EXPECT_TRUE(property.write(widget, value)) << property.name();
            }
        }
    }
    EXPECT_EQ(names, QStringList({ "CCoordinateCtrl", "DistanceCtrl", "UpDownIndicatorWidget", "OffrackMeterWidget",
                                   "DistOnRlineMeterWidget", "ColorWell" }));
}

TEST(DesignerPlugin, APromotedPlaceholderIsAWorkingControl)
{
    TestProject project;
    QWidget window;
    Ui::PromotedForm ui;
    ui.setupUi(&window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    ASSERT_NE(ui.position->Edit1(), nullptr);
    ui.position->SetLatLon(52.0, 3.0);
    double x = 0.0, y = 0.0;
    EXPECT_TRUE(ui.position->GetXY(x, y));
    EXPECT_FALSE(ui.position->Edit1()->text().isEmpty());
    EXPECT_TRUE(ui.position->Edit1()->isVisible());
    EXPECT_GT(ui.position->width(), ui.position->FormatButton()->width());

    ui.distance->setFocus();
    ASSERT_NE(ui.distance->findChild<QLineEdit*>(), nullptr);
    QLineEdit* edit = ui.distance->findChild<QLineEdit*>();
    edit->selectAll();
    QTest::keyClicks(edit, "12.5");
    EXPECT_EQ(edit->text(), "12.5");
    EXPECT_TRUE(edit->isVisible());
}
