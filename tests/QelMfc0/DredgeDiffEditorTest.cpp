// The dredging-difference table editor driven through its fields, wells and buttons: when the
// table is regenerated and Apply offered, what Apply writes, fixed limits, and the colours at
// the limits.
#include <common/TestProject.h>

#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/DredgeDiffColorTableEditor.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Editor = DredgeDiffColorTableEditor;

class DredgeDiffEditorTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_project.IsOpen()); }
    void TearDown() override { ColorWell::SetDialogHook({}); }

    static QString PathOf(const QString& name)
    {
        return DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name);
    }
    static void WriteTable(const QString& name, double underLimit, double overLimit)
    {
        ColorTable table;
        table.SetUnderDredgeLimit(underLimit);
        table.SetOverDredgeLimit(overLimit);
        table.GenerateDredgeDiffColorTable();
        FileObject file;
        ASSERT_TRUE(table.FileSave(file));
        ASSERT_TRUE(file.FileSave(PathOf(name)));
    }
    static ColorTable ReadTable(const QString& name)
    {
        FileObject file;
        ColorTable table;
        EXPECT_TRUE(file.FileOpen(PathOf(name)));
        EXPECT_TRUE(table.FileOpen(file));
        return table;
    }
    // Types `text` over the field's contents and leaves the field.
    static void Type(const Editor& editor, int id, const QString& text)
    {
        auto* edit = editor.findChild<QLineEdit*>(QString::number(id));
        ASSERT_TRUE(edit) << id;
        edit->selectAll();
        QTest::keyClicks(edit, text);
        Q_EMIT edit->editingFinished(); // as when the field loses focus
    }
    static QPushButton* Button(const Editor& editor, int id)
    {
        return editor.findChild<QPushButton*>(QString::number(id));
    }
    // The row of the grid showing `text`, -1 when none does.
    static int RowOf(const Editor& editor, const QString& text)
    {
        for (int row = 0; row < editor.Grid()->GetRowCount(); ++row) {
            if (editor.Grid()->GetItemText(row, 0) == text)
                return row;
        }
        return -1;
    }

    TestProject m_project;
};

} // namespace

TEST_F(DredgeDiffEditorTest, OnlyARealChangeRegeneratesAndOffersApply)
{
    // Default ramps of 5 colours: 4 over-dredge entries, 5 in tolerance, 5 under-dredge, "Below".
    const struct { int id; const char* typed; bool changes; int rows; const char* shown; } cases[] = {
        {Editor::IDC_UNDER_COUNT, "5", false, 15, "5"},
        {Editor::IDC_UNDER_COUNT, " 05 ", false, 15, "5"},
        {Editor::IDC_UNDER_COUNT, "7", true, 17, "7"},
        {Editor::IDC_OVER_COUNT, "0", true, 11, "1"},      // held at one colour
        {Editor::IDC_INTOL_COUNT, "9999", true, 266, "256"}, // and at 256
        {Editor::IDC_UNDER_LIMIT, "0.50", false, 15, "0.50"},
        {Editor::IDC_UNDER_LIMIT, "0.9", true, 15, "0.9"},
        {Editor::IDC_UNDER_LIMIT, "0.504", true, 15, "0.504"}, // finer than the decimals shown
    };
    for (const auto& c : cases) {
        Editor editor(QStringLiteral("Fresh"));
        ASSERT_FALSE(Button(editor, Editor::IDC_APPLY)->isEnabled());
        const QString before = editor.Grid()->GetItemText(0, 0);
        Type(editor, c.id, QString::fromUtf8(c.typed));
        EXPECT_EQ(Button(editor, Editor::IDC_APPLY)->isEnabled(), c.changes) << c.typed;
        EXPECT_EQ(Button(editor, 1)->isEnabled(), c.changes) << c.typed;
        EXPECT_EQ(editor.Grid()->GetRowCount(), c.rows) << c.typed;
        EXPECT_EQ(editor.findChild<QLineEdit*>(QString::number(c.id))->text(), QString::fromUtf8(c.shown));
        if (c.id == Editor::IDC_UNDER_LIMIT && c.changes) {
            EXPECT_NE(editor.Grid()->GetItemText(0, 0), before); // the top value moved up
        }
    }
}

TEST_F(DredgeDiffEditorTest, EveryColourChangeRegeneratesAndOffersApply)
{
    constexpr COLORREF kPicked = RGB(12, 34, 56);
    ColorWell::SetDialogHook([](const QColor&, const QString&, QWidget*, QColor& chosen) {
        chosen = toQColor(kPicked);
        return true;
    });
    const struct { int id; bool max; int ramp; } cases[] = {
        {Editor::IDC_MAX_UNDER, true, 0},  {Editor::IDC_MIN_UNDER, false, 0}, {Editor::IDC_MAX_INTOL, true, 1},
        {Editor::IDC_MIN_INTOL, false, 1}, {Editor::IDC_MAX_OVER, true, 2},   {Editor::IDC_MIN_OVER, false, 2},
    };
    for (const auto& c : cases) {
        Editor editor(QStringLiteral("Fresh"));
        auto* well = editor.findChild<ColorWell*>(QString::number(c.id));
        ASSERT_TRUE(well);
        QTest::mouseClick(well, Qt::LeftButton);
        EXPECT_TRUE(Button(editor, Editor::IDC_APPLY)->isEnabled()) << c.id;
        COLORREF minColor = 0, maxColor = 0;
        unsigned count = 0;
        if (c.ramp == 0)
            editor.Table().GetUnderDredgeColorRange(minColor, maxColor, count);
        else if (c.ramp == 1)
            editor.Table().GetInTolColorRange(minColor, maxColor, count);
        else
            editor.Table().GetOverDredgeColorRange(minColor, maxColor, count);
        EXPECT_EQ(c.max ? maxColor : minColor, kPicked) << c.id;
        // Regenerated: each ramp's ends are entries (or, for the max over colour, the low colour).
        const auto& entries = editor.Table().Entries();
        EXPECT_TRUE(editor.Table().LowColor() == kPicked
                    || std::any_of(entries.begin(), entries.end(), [](const auto& e) { return e.color == kPicked; }))
            << c.id;
    }
}

TEST_F(DredgeDiffEditorTest, ApplyWritesADredgeTableAndAnnouncesItsName)
{
    Editor editor(QStringLiteral("Fresh"));
    EXPECT_FALSE(editor.IsLoaded());
    QSignalSpy names(&editor, &Editor::tableNameChanged);
    Type(editor, Editor::IDC_INTOL_COUNT, QStringLiteral("4"));
    Type(editor, Editor::IDC_OVER_LIMIT, QStringLiteral("-0.305"));
    QTest::mouseClick(Button(editor, Editor::IDC_APPLY), Qt::LeftButton);
    ASSERT_EQ(names.count(), 1);
    EXPECT_EQ(names.at(0).at(0).toString(), QStringLiteral("Fresh"));
    EXPECT_FALSE(Button(editor, Editor::IDC_APPLY)->isEnabled());

    const ColorTable table = ReadTable(QStringLiteral("Fresh"));
    EXPECT_TRUE(table.IsDredgeDiffColTab());
    EXPECT_TRUE(table.GetSyncWithDesignModel());
    COLORREF minColor = 0, maxColor = 0;
    unsigned count = 0;
    table.GetInTolColorRange(minColor, maxColor, count);
    EXPECT_EQ(count, 4u);
    EXPECT_EQ(minColor, RGB(255, 255, 0));
    EXPECT_EQ(maxColor, RGB(0, 255, 0));
    table.GetUnderDredgeColorRange(minColor, maxColor, count);
    EXPECT_EQ(count, 5u);
    EXPECT_EQ(maxColor, 0x808080u);
    double under = 0.0, over = 0.0;
    table.GetUnderDredgeLimit(under);
    table.GetOverDredgeLimit(over);
    EXPECT_EQ(under, 0.5);
    EXPECT_EQ(over, -0.305); // not the two decimals shown
    EXPECT_EQ(table.Entries(), editor.Table().Entries());
}

TEST_F(DredgeDiffEditorTest, ACountThatIsNoWholeNumberIsRefused)
{
    Editor editor(QStringLiteral("Fresh"));
    QSignalSpy names(&editor, &Editor::tableNameChanged);
    const ColorTable before = editor.Table();
    Type(editor, Editor::IDC_UNDER_COUNT, QStringLiteral("2.5"));
    EXPECT_TRUE(editor.Table() == before);
    QString message;
    QTimer::singleShot(0, [&message] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            message = box->text();
            box->accept();
        }
    });
    QTest::mouseClick(Button(editor, Editor::IDC_APPLY), Qt::LeftButton);
    EXPECT_EQ(message, QStringLiteral("Please enter a whole number of colors from 1 to 256."));
    EXPECT_EQ(names.count(), 0);
    EXPECT_FALSE(QFile::exists(PathOf(QStringLiteral("Fresh"))));
}

TEST_F(DredgeDiffEditorTest, FixedLimitsCannotBeEditedAndKeepTheTables)
{
    WriteTable(QStringLiteral("Fixed"), 0.3, -0.2);
    Editor editor(QStringLiteral("Fixed"), nullptr, false);
    EXPECT_TRUE(editor.IsLoaded());
    for (int id : {Editor::IDC_UNDER_LIMIT, Editor::IDC_OVER_LIMIT})
        EXPECT_FALSE(editor.findChild<QLineEdit*>(QString::number(id))->isEnabled()) << id;
    EXPECT_TRUE(editor.findChild<QLabel*>(QString::number(Editor::IDC_SYNC_TEXT))->isHidden());
    Type(editor, Editor::IDC_UNDER_COUNT, QStringLiteral("3"));
    QTest::mouseClick(Button(editor, Editor::IDC_APPLY), Qt::LeftButton);
    double under = 0.0, over = 0.0;
    const ColorTable table = ReadTable(QStringLiteral("Fixed"));
    table.GetUnderDredgeLimit(under);
    table.GetOverDredgeLimit(over);
    EXPECT_EQ(under, 0.3);
    EXPECT_EQ(over, -0.2);
}

TEST_F(DredgeDiffEditorTest, ValuesAtTheLimitsTakeTheRampAboveThem)
{
    // Limits 0.5 and -0.5 with the default ramps: steps of 0.2.
    Editor editor(QStringLiteral("Fresh"));
    const struct { const char* row; COLORREF colour; } cases[] = {
        {"1.30", 0x808080},           // max under, the farthest up
        {"0.50", 0xC0C0C0},           // exactly at the under-dredge limit: min under
        {"0.30", RGB(0, 255, 0)},     // max in tolerance, one step below
        {"-0.50", RGB(255, 255, 0)},  // exactly at the over-dredge limit: min in tolerance
        {"-0.70", RGB(200, 0, 0)},    // min over, one step below
        {"Below", RGB(255, 0, 0)},    // max over, the farthest down
    };
    for (const auto& c : cases) {
        const int row = RowOf(editor, QString::fromUtf8(c.row));
        ASSERT_GE(row, 0) << c.row;
        EXPECT_EQ(editor.Grid()->GetItemBkColour(row, 0), c.colour) << c.row;
    }
    EXPECT_EQ(editor.Table().GetColor(0.5), 0xC0C0C0u);
    EXPECT_EQ(editor.Table().GetColor(-0.5), RGB(255, 255, 0));
    EXPECT_EQ(editor.Grid()->GetRowCount(), 15);
}
