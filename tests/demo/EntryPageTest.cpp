// The gallery's entry page: the plan on one scale with its measurement, and the measuring
// dialogs opening clear of each other and of what feeds them.
#include "common/TestProject.h"
#include "pages/EntryPage.h"
#include "pages/PlanView.h"

#include <QApplication>
#include <QGroupBox>
#include <QPushButton>
#include <QelMfc0/dialogs/measure/MeasureBrgDistDlg.h>
#include <QelMfc0/dialogs/measure/MeasureDlg.h>
#include <QelMfc0/dialogs/measure/MeasureRelativeDlg.h>
#include <cmath>
#include <gtest/gtest.h>

namespace {

void Settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

QRect Global(const QWidget* w)
{
    return QRect(w->mapToGlobal(QPoint(0, 0)), w->size());
}

TEST(PlanView, OneScaleBothWaysInAnyShape)
{
    TestProject project;
    for (const QSize size : { QSize(600, 300), QSize(300, 600) }) {
        SCOPED_TRACE(size.width());
        PlanView plan;
        plan.resize(size);
        const Point origin(498000.0, 5759000.0);
        const QPointF o = plan.ToPixel(origin);
        const QPointF east = plan.ToPixel(Point(origin.x + 1000.0, origin.y)) - o;
        const QPointF north = plan.ToPixel(Point(origin.x, origin.y + 1000.0)) - o;
        EXPECT_NEAR(east.x(), -north.y(), 1e-9);
        EXPECT_NEAR(east.y(), 0.0, 1e-9);
        EXPECT_NEAR(north.x(), 0.0, 1e-9);
        // A line 3 km east and 1 km north runs at a bearing of 71.57 degrees on the screen too.
        const QPointF line = plan.ToPixel(Point(origin.x + 3000.0, origin.y + 1000.0)) - o;
        EXPECT_NEAR(std::atan2(line.x(), -line.y()) * 180.0 / M_PI, 71.565, 0.01);
        const Point back = plan.ToGrid(plan.ToPixel(origin));
        EXPECT_NEAR(std::hypot(back.x - origin.x, back.y - origin.y), 0.0, 1e-6);
        // The whole area shows: its corners are inside the widget.
        for (const Point corner : { Point(496000.0, 5757000.0), Point(504000.0, 5765000.0) })
            EXPECT_TRUE(QRectF(plan.rect()).contains(plan.ToPixel(corner)));
    }
}

TEST(PlanView, ShowsDistanceAndBearingOfTwoPicks)
{
    TestProject project;
    PlanView plan;
    plan.resize(500, 400);
    const Point from(498000.0, 5759000.0), to(501000.0, 5760000.0);
    plan.SetPicks(from, to, 1);
    EXPECT_TRUE(plan.MeasuredText().isEmpty());
    plan.SetPicks(from, to, 2);
    const QString text = plan.MeasuredText();
    EXPECT_TRUE(text.contains(QLatin1String("3162.28 m"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("71.6°"))) << text.toStdString();
}

TEST(EntryPage, MeasuringDialogsOpenClearOfEachOtherAndOfWhatFeedsThem)
{
    TestProject project;
    EntryPage page;
    page.resize(1000, 640);
    page.move(200, 150);
    page.show();
    page.SetPlacementArea(QRect(0, 0, 1920, 1080));
    Settle();
    page.Pick(Point(498200.0, 5759300.0, -8.4));
    page.Pick(Point(500400.0, 5760500.0, -14.9));
    QList<QWidget*> dialogs = { page.OpenMeasure(true), page.OpenLineRelative(), page.OpenVesselBearing() };
    Settle();

    QList<QRect> feeding;
    for (QGroupBox* box : page.findChildren<QGroupBox*>())
        if (box->findChild<PlanView*>())
            feeding << Global(box);
    for (QPushButton* button : page.findChildren<QPushButton*>())
        if (button->isVisible() && button->window() == &page)
            feeding << Global(button);
    ASSERT_GE(feeding.size(), 5);

    for (int i = 0; i < dialogs.size(); ++i) {
        const QRect at = dialogs[i]->geometry();
        EXPECT_TRUE(QRect(0, 0, 1920, 1080).contains(at)) << i;
        for (const QRect& r : std::as_const(feeding))
            EXPECT_FALSE(at.intersects(r)) << "dialog " << i << " covers a control that feeds it";
        for (int j = i + 1; j < dialogs.size(); ++j)
            EXPECT_FALSE(at.intersects(dialogs[j]->geometry())) << i << " and " << j;
    }
}

} // namespace
