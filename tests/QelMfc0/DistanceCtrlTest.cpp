// The distance control: units file, project unit, unit menu, notifications, focus and placement.
#include <QelMfc0/controls/DistanceCtrl.h>

#include <QelBase/GeoText.h>
#include <QelBase/QelUnitCnv.h>
#include <QelConfigure/ProjectDefinition.h>
#include <common/TestProject.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <stdexcept>

namespace {

struct Spies
{
    explicit Spies(DistanceCtrl& c)
        : changed(&c, &DistanceCtrl::changed), unit(&c, &DistanceCtrl::unitChosen),
          committed(&c, &DistanceCtrl::committed) {}
    int total() const { return int(changed.count() + unit.count() + committed.count()); }
    QSignalSpy changed, unit, committed;
};

class DistanceCtrlTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(project.IsOpen()); }
    void WriteUnits(const QByteArray& group2)
    {
        QFile file(project.CommonFolder() + QStringLiteral("/Units.def"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("[Group2]\n" + group2);
    }
    TestProject project;
};

} // namespace

TEST_F(DistanceCtrlTest, ReadsTheDistanceGroupAndPreselectsTheProjectUnit)
{
    DistanceCtrl metres;
    QStringList keys;
    for (const DistanceCtrl::Unit& u : metres.Units())
        keys << u.key;
    EXPECT_EQ(keys.join(u','), QStringLiteral("m,km,cm,mm,ft,ftUS,yd,fathom,NM,mi"));
    EXPECT_EQ(metres.DistUnit(), QStringLiteral("m"));

    // The value is held in the project's unit: feet here, so 1 m is 1/0.3048 of it.
    project.Project()->GetUnitCnv().SetUnit(1, QStringLiteral("ft"));
    DistanceCtrl feet;
    feet.SetDistance(1.0 / 0.3048, true);
    EXPECT_EQ(feet.Edit()->text(), QStringLiteral("3.28 ft"));
    feet.SetDistUnit(QStringLiteral("m"));
    EXPECT_EQ(feet.Edit()->text(), QStringLiteral("1.00 m"));
}

TEST_F(DistanceCtrlTest, LaterEqualKeyWinsUnknownProjectUnitGivesTheFirstAndOffsetsApply)
{
    WriteUnits("km = Kilometres; 1000; 0; km\nm = Metres; 1; 0; m\nm = Metres again; 1; 10; mx\n"
               "bad = no fields\n");
    project.Project()->SetDistanceDecimals(3);
    DistanceCtrl ctrl;
    ASSERT_EQ(ctrl.Units().size(), 3);
    EXPECT_EQ(ctrl.CurrentUnit(), 2);
    ctrl.SetDistance(12.5, true);
    EXPECT_EQ(ctrl.Edit()->text(), QStringLiteral("2.500 mx"));

    project.Project()->GetUnitCnv().SetUnit(1, QStringLiteral("yd"));
    EXPECT_EQ(DistanceCtrl().CurrentUnit(), 0);
}

TEST_F(DistanceCtrlTest, UnitMenuChoosingAUnitAndUnconvertedText)
{
    DistanceCtrl ctrl;
    Spies spies(ctrl);
    ctrl.SetDistance(1852.0, true);
    EXPECT_TRUE(std::unique_ptr<QMenu>(ctrl.UnitMenu())->actions().value(0)->isChecked());
    for (const int command : {DistanceCtrl::kFirstUnitCommand, 38999, 39010, 0})
        ctrl.ChooseUnit(command);
    EXPECT_EQ(spies.total(), 0);
    EXPECT_EQ(ctrl.Edit()->text(), QStringLiteral("1852.00 m"));

    // Through the button, as the user does it.
    QTimer::singleShot(0, [] {
        if (auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            popup->setActiveAction(popup->actions().value(8));
            QTest::keyClick(popup, Qt::Key_Return);
        }
    });
    QTest::mouseClick(ctrl.UnitButton(), Qt::LeftButton);
    ASSERT_EQ(spies.unit.count(), 1);
    EXPECT_EQ(spies.unit.at(0).at(0).toInt(), 8);
    EXPECT_EQ(ctrl.Edit()->text(), QStringLiteral("1.00 NM"));
    ctrl.SetDistUnit(QStringLiteral("nm")); // keys are exact
    EXPECT_EQ(ctrl.DistUnit(), QStringLiteral("NM"));
    ctrl.SetDistance(-0.004, false); // unconverted: no unit shown
    EXPECT_EQ(ctrl.Edit()->text(), FormatDouble(-0.004, 2, 0) + u' ');

    ctrl.Clear(); // an empty control changes unit without showing anything
    ctrl.ChooseUnit(DistanceCtrl::kFirstUnitCommand + 1);
    EXPECT_EQ(spies.unit.count(), 2);
    EXPECT_TRUE(ctrl.Edit()->text().isEmpty());
}

TEST_F(DistanceCtrlTest, MissingUnitsFileGivesNoUnitsAndConvertingThrows)
{
    ASSERT_TRUE(QFile::remove(project.CommonFolder() + QStringLiteral("/Units.def")));
    DistanceCtrl ctrl;
    Spies spies(ctrl);
    EXPECT_TRUE(ctrl.Units().isEmpty());
    EXPECT_THROW(ctrl.SetDistance(1.0, true), std::invalid_argument);
    double value = 0.0;
    EXPECT_FALSE(ctrl.GetDistance(value)); // the failed set changed nothing
    ctrl.SetDistance(2.0, false);
    ctrl.ChooseUnit(DistanceCtrl::kFirstUnitCommand);
    QTimer::singleShot(0, [] {
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    });
    QTest::mouseClick(ctrl.UnitButton(), Qt::LeftButton);
    EXPECT_EQ(spies.total(), 0);
    EXPECT_EQ(ctrl.Edit()->text(), QStringLiteral("2.00 "));
}

TEST_F(DistanceCtrlTest, PlacementFocusAndCommitOnLeaving)
{
    QWidget dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* before = new QLineEdit(&dialog);
    layout->addWidget(before);
    layout->addWidget(new QLabel(QStringLiteral("Dist."), &dialog));
    layout->itemAt(1)->widget()->setObjectName(QStringLiteral("distance"));
    auto* after = new QLineEdit(&dialog);
    layout->addWidget(after);
    auto* ctrl = new DistanceCtrl;
    EXPECT_FALSE(ctrl->CreateFromStatic(QStringLiteral("nothing"), &dialog));
    ASSERT_TRUE(ctrl->CreateFromStatic(QStringLiteral("distance"), &dialog));
    EXPECT_EQ(ctrl->UnitButton()->text(), QStringLiteral("Dist."));
    EXPECT_EQ(layout->indexOf(ctrl), 1);

    dialog.show();
    dialog.activateWindow();
    QApplication::setActiveWindow(&dialog);

    before->setFocus();
    const QList<QWidget*> chain{before, ctrl->UnitButton(), ctrl->Edit(), after};
    for (qsizetype i = 1; i < chain.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), chain[i]);
    }

    Spies spies(*ctrl);
    ctrl->SetDistance(10.0, true);
    ctrl->Edit()->setFocus();
    ctrl->Edit()->selectAll();
    QTest::keyClicks(ctrl->Edit(), QStringLiteral("99"));
    after->setFocus();
    ASSERT_EQ(spies.committed.count(), 1);
    EXPECT_EQ(spies.committed.at(0).at(0).toString(), QStringLiteral("99"));
    EXPECT_EQ(spies.changed.count(), 2);
    EXPECT_EQ(ctrl->Edit()->text(), QStringLiteral("99")); // not re-read, not re-formatted
    double value = 0.0;
    EXPECT_TRUE(ctrl->GetDistance(value));
    EXPECT_EQ(value, 10.0);
}

TEST_F(DistanceCtrlTest, StateIsReadAndWrittenAsPropertiesThatNotifyOnlyChanges)
{
    DistanceCtrl ctrl;
    QSignalSpy distance(&ctrl, &DistanceCtrl::distanceChanged), unit(&ctrl, &DistanceCtrl::unitChanged),
        index(&ctrl, &DistanceCtrl::unitIndexChanged);
    EXPECT_FALSE(ctrl.setProperty("decimals", 5)) << "decimals come from the project";

    for (int i = 0; i < 2; ++i) {
        ctrl.setProperty("unit", QStringLiteral("km"));
        ctrl.setProperty("distance", 1500.0);
    }
    EXPECT_EQ(ctrl.Edit()->text(), QStringLiteral("1.50 km"));
    EXPECT_EQ(unit.count(), 1);
    EXPECT_EQ(index.count(), 1);
    EXPECT_EQ(distance.count(), 1);

    ctrl.setProperty("unitIndex", 8);
    EXPECT_EQ(ctrl.property("unit").toString(), QStringLiteral("NM"));
    ctrl.Clear();
    ASSERT_EQ(distance.count(), 2);
    EXPECT_TRUE(std::isnan(distance.last().at(0).toDouble()));

}

TEST_F(DistanceCtrlTest, APromotedControlHoldsItsValueOnceTypedInWithoutCreate)
{
    QWidget form;
    auto* layout = new QHBoxLayout(&form);
    auto* ctrl = new DistanceCtrl(&form);
    layout->addWidget(ctrl);
    layout->addWidget(new QLineEdit(&form));
    form.show();
    form.activateWindow();
    QApplication::setActiveWindow(&form);
    EXPECT_GE(ctrl->height(), ctrl->minimumSizeHint().height());
    EXPECT_EQ(ctrl->Edit()->height(), ctrl->height());

    QSignalSpy distance(ctrl, &DistanceCtrl::distanceChanged);
    ctrl->Edit()->setFocus();
    QTest::keyClicks(ctrl->Edit(), QStringLiteral("2 km"));
    // Typing makes the control hold its (unchanged) value: 0 until a host sets one.
    ASSERT_EQ(distance.count(), 1);
    EXPECT_EQ(distance.at(0).at(0).toDouble(), 0.0);
}
