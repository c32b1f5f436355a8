// The colour well: its colour, the dialog it opens, and its swatch in the colour modes.
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/ColorWell.h>

#include <common/TestProject.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace {

// Answers every colour dialog of one test with `answer` (invalid: cancel) and records the call.
class DialogScope
{
public:
    explicit DialogScope(QColor answer)
    {
        ColorWell::SetDialogHook([this, answer](const QColor& initial, const QString&, QWidget*,
                                                QColor& chosen) {
            ++calls;
            seenInitial = initial;
            chosen = answer;
            return answer.isValid();
        });
    }
    ~DialogScope() { ColorWell::SetDialogHook({}); }
    int calls = 0;
    QColor seenInitial;
};

struct PaintCounter : QObject
{
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

COLORREF CentrePixel(ColorWell& well)
{
    const QImage image = well.grab().toImage();
    return toColorref(image.pixelColor(image.width() / 2, image.height() / 2));
}

} // namespace

TEST(ColorWell, AClickWithAChosenColourSetsItAndTellsOnceCancelTellsNothing)
{
    ColorWell well;
    well.SetColor(RGB(10, 20, 30));
    QSignalSpy changed(&well, &ColorWell::colorChanged);
    QSignalSpy picked(&well, &ColorWell::colorPicked);

    const struct { const char* what; QColor answer; int changes; int picks; COLORREF after; } cases[] = {
        {"cancelled", QColor(), 0, 0, RGB(10, 20, 30)},
        {"another colour", QColor(200, 100, 50, 40), 1, 1, RGB(200, 100, 50)},
        {"the same colour", QColor(200, 100, 50), 0, 1, RGB(200, 100, 50)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        changed.clear();
        picked.clear();
        const COLORREF before = well.GetColor();
        DialogScope dialog(c.answer);
        QTest::mouseClick(&well, Qt::LeftButton);
        EXPECT_EQ(dialog.calls, 1);
        EXPECT_EQ(dialog.seenInitial, toQColor(before));
        EXPECT_EQ(well.GetColor(), c.after);
        ASSERT_EQ(changed.count(), c.changes);
        ASSERT_EQ(picked.count(), c.picks);
        if (c.changes) {
            EXPECT_EQ(changed.at(0).at(0).value<QColor>(), toQColor(c.after));
        }
        if (c.picks) {
            EXPECT_EQ(picked.at(0).at(0).value<COLORREF>(), c.after);
        }
    }
}

TEST(ColorWell, CallsTellRealChangesOnlyAndNeverPick)
{
    ColorWell well;
    QSignalSpy changed(&well, &ColorWell::colorChanged);
    QSignalSpy picked(&well, &ColorWell::colorPicked);
    well.SetColor(0x00123456);
    well.SetColor(0xFF123456); // the high byte is not part of the colour
    well.setColor(QColor(0x56, 0x34, 0x12));
    well.setColor(QColor()); // not a colour: ignored
    EXPECT_TRUE(well.setProperty("color", QColor(1, 2, 3)));
    EXPECT_EQ(well.GetColor(), RGB(1, 2, 3));
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(picked.count(), 0);
}

TEST(ColorWell, TheSwatchShowsTheColourOfTheModeAndFollowsItsChange)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    ColorControl& colors = ColorControl::Instance();
    colors.SetLightMode(ColorConverter::normal, false);
    ColorWell well;
    well.resize(well.sizeHint());
    const COLORREF colour = RGB(40, 160, 220);
    well.SetColor(colour);
    EXPECT_EQ(CentrePixel(well), colour);

    // Shown on screen, the well repaints by itself when the mode changes.
    well.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&well));
    PaintCounter paints;
    well.installEventFilter(&paints);
    QTest::qWait(50); // paints of the showing settle
    paints.count = 0;
    colors.SetLightMode(ColorConverter::night, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
    const COLORREF night = colors.GetColor(colour, false);
    const COLORREF shown = CentrePixel(well);
    colors.SetLightMode(ColorConverter::normal, false);
    EXPECT_NE(night, colour);
    EXPECT_EQ(shown, night);
    EXPECT_EQ(well.GetColor(), colour); // the colour itself is never converted
    EXPECT_EQ(CentrePixel(well), colour);
}
