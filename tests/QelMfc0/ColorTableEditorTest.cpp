// The colour table editor driven through its buttons: single entries, ranges, the overview,
// rotation, scale texts, and what reaches the table's file.
#include <common/TestProject.h>

#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileDialogRequest.h>
#include <QelConfigure/FileTypeCombo.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/controls/DataExchange.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/ColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/DepthColorEditDlg.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr COLORREF kGreen = RGB(0, 200, 0);

class ColorTableEditorTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_project.IsOpen()); }

    static QString PathOf(const QString& name)
    {
        return DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name);
    }
    // Writes a table of unlocked entries at `values`, coloured by their position.
    static void WriteTable(const QString& name, const std::vector<double>& values)
    {
        ColorTable table;
        for (size_t i = 0; i < values.size(); ++i)
            table.InsertEntry(values[i], RGB(10 * int(i), 0, 0), false);
        table.SetLowColor(RGB(1, 2, 3));
        FileObject file;
        ASSERT_TRUE(table.FileSave(file));
        ASSERT_TRUE(file.FileSave(PathOf(name)));
    }
    static QByteArray FileBytes(const QString& name)
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void Click(const CColorTableEditor& editor, int id)
    {
        auto* button = editor.findChild<QPushButton*>(QString::number(id));
        ASSERT_TRUE(button) << id;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    static QLineEdit* Edit(const CColorTableEditor& editor, int id)
    {
        return editor.findChild<QLineEdit*>(QString::number(id));
    }
    // Handles the next modal dialog (entry dialog or message box) once it shows.
    static void OnNextModal(std::function<void(QWidget*)> act)
    {
        QTimer::singleShot(0, [act] {
            QWidget* modal = QApplication::activeModalWidget();
            ASSERT_TRUE(modal);
            act(modal);
        });
    }
    // The text of the next message box, which is then closed.
    QString* CatchMessage()
    {
        m_message.clear();
        OnNextModal([this](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            ASSERT_TRUE(box);
            m_message = box->text();
            box->accept();
        });
        return &m_message;
    }
    static QStringList GridTexts(const CColorTableEditor& editor)
    {
        QStringList texts;
        for (int row = 0; row < editor.Grid()->GetRowCount(); ++row)
            texts << editor.Grid()->GetItemText(row, 0);
        return texts;
    }

    TestProject m_project;
    QString m_message;
};

} // namespace

TEST_F(ColorTableEditorTest, AddToAnEmptyTableSetsTheLowColourToo)
{
    CColorTableEditor editor(QStringLiteral("Fresh"));
    EXPECT_FALSE(editor.IsLoaded());
    EXPECT_EQ(editor.Grid()->GetRowCount(), 0);
    OnNextModal([](QWidget* modal) {
        auto* entry = qobject_cast<CDepthColorEditDlg*>(modal);
        ASSERT_TRUE(entry);
        entry->ValueEdit()->setText(QStringLiteral("-3.5"));
        entry->Well()->SetColor(kGreen);
        entry->accept();
    });
    Click(editor, CColorTableEditor::IDC_ADD);
    ASSERT_EQ(editor.Table().NumEntries(), 1);
    EXPECT_EQ(editor.Table().EntryValue(0), -3.5);
    EXPECT_EQ(editor.Table().EntryColor(0), kGreen);
    EXPECT_EQ(editor.Table().LowColor(), kGreen);
    EXPECT_EQ(GridTexts(editor), QStringList({QStringLiteral("-3.50 *"), QStringLiteral("Below")}));
}

TEST_F(ColorTableEditorTest, RemoveClearsALoneEntryAndPromotesEntryZeroForTheBelowRow)
{
    WriteTable(QStringLiteral("One"), {1.0});
    CColorTableEditor lone(QStringLiteral("One"));
    Click(lone, CColorTableEditor::IDC_REMOVE);
    EXPECT_EQ(lone.Table().NumEntries(), 0);
    EXPECT_EQ(lone.Grid()->GetRowCount(), 0);

    WriteTable(QStringLiteral("Three"), {1.0, 2.0, 3.0});
    CColorTableEditor editor(QStringLiteral("Three"));
    const COLORREF first = editor.Table().EntryColor(0);
    editor.Grid()->SetSelectedRow(3); // "Below"
    Click(editor, CColorTableEditor::IDC_REMOVE);
    ASSERT_EQ(editor.Table().NumEntries(), 2);
    EXPECT_EQ(editor.Table().LowColor(), first);
    EXPECT_EQ(editor.Table().EntryValue(0), 2.0);
}

TEST_F(ColorTableEditorTest, ReplaceSwapsEndsGivenTheWrongWayRound)
{
    CColorTableEditor editor(QStringLiteral("Fresh"));
    Edit(editor, CColorTableEditor::IDC_MIN_DEPTH)->setText(QStringLiteral("5"));
    Edit(editor, CColorTableEditor::IDC_MAX_DEPTH)->setText(QStringLiteral("-5"));
    Edit(editor, CColorTableEditor::IDC_NUMCOLORS)->setText(QStringLiteral("11"));
    Click(editor, CColorTableEditor::IDC_REPLACE);
    const ColorTable& table = editor.Table();
    ASSERT_EQ(table.NumEntries(), 10);
    EXPECT_EQ(table.EntryValue(0), -5.0);
    EXPECT_EQ(table.EntryValue(9), 5.0);
    EXPECT_EQ(table.LowColor(), RGB(255, 0, 0)); // the max colour went to the low end
    EXPECT_EQ(table.EntryColor(9), RGB(0, 0, 255));
    EXPECT_EQ(Edit(editor, CColorTableEditor::IDC_MIN_DEPTH)->text(), QStringLiteral("-5.00"));
}

TEST_F(ColorTableEditorTest, NumberAndStepFollowEachOther)
{
    const struct { bool byStep; const char* typed; int otherId; const char* expected; } cases[] = {
        {true, "2", CColorTableEditor::IDC_NUMCOLORS, "7"},
        {true, "3", CColorTableEditor::IDC_NUMCOLORS, "6"},
        {false, "3", CColorTableEditor::IDC_STEPSIZE, "10.00"},
        {false, "1", CColorTableEditor::IDC_NUMCOLORS, "3"}, // at least 3 over a range
    };
    for (const auto& c : cases) {
        CColorTableEditor editor(QStringLiteral("Fresh")); // -10 .. 0
        if (c.byStep)
            editor.findChild<QAbstractButton*>(QString::number(CColorTableEditor::IDC_STEPSIZE_RADIO))->click();
        QLineEdit* typed = Edit(editor, c.byStep ? CColorTableEditor::IDC_STEPSIZE : CColorTableEditor::IDC_NUMCOLORS);
        typed->setText(QString::fromUtf8(c.typed));
        Q_EMIT typed->editingFinished(); // as when the field loses focus
        EXPECT_EQ(Edit(editor, c.otherId)->text(), QString::fromUtf8(c.expected)) << c.typed;
    }
}

TEST_F(ColorTableEditorTest, TextThatIsNoNumberIsRefusedAndChangesNothing)
{
    WriteTable(QStringLiteral("Three"), {1.0, 2.0, 3.0});
    const QByteArray before = FileBytes(QStringLiteral("Three"));
    CColorTableEditor editor(QStringLiteral("Three"));
    const ColorTable table = editor.Table();
    for (int button : {CColorTableEditor::IDC_REPLACE, CColorTableEditor::IDC_ADD_RANGE, CColorTableEditor::IDC_APPLY}) {
        Edit(editor, CColorTableEditor::IDC_MAX_DEPTH)->setText(QStringLiteral("deep"));
        const QString* message = CatchMessage();
        Click(editor, button);
        EXPECT_EQ(*message, QStringLiteral("Please enter a number.")) << button;
        EXPECT_TRUE(editor.Table() == table) << button;
    }
    EXPECT_EQ(FileBytes(QStringLiteral("Three")), before);
}

TEST_F(ColorTableEditorTest, GradientFieldsReadAndWriteScales)
{
    const struct { const char* text; bool scale; bool read; double value; } cases[] = {
        {"1 : 500", true, true, 0.002}, {"1:500", true, true, 0.002}, {"500", true, true, 0.002},
        {"1 : ∞", true, true, 0.0},     {"∞", true, true, 0.0},       {"1 : 0", true, false, 0.0},
        {"2 : 5", true, false, 0.0},    {"-2.5", false, true, -2.5},  {"2,5", false, false, 0.0},
    };
    QLineEdit edit;
    for (const auto& c : cases) {
        edit.setText(QString::fromUtf8(c.text));
        double value = 42.0;
        EXPECT_EQ(DataExchange::DDX_FmtDoubleGradient(true, &edit, value, 1, -1, c.scale), c.read) << c.text;
        EXPECT_DOUBLE_EQ(value, c.read ? c.value : 42.0) << c.text;
    }

    // In the grid: 0 is an infinite scale, and the project's decimals apply.
    m_project.Project()->SetDepthDecimals(0);
    WriteTable(QStringLiteral("Scales"), {0.0, 0.001, 0.5});
    CColorTableEditor editor(QStringLiteral("Scales"), nullptr, true, true);
    EXPECT_EQ(GridTexts(editor), QStringList({QStringLiteral("1 : 2"), QStringLiteral("1 : 1000"),
                                              QStringLiteral("1 : ∞"), QStringLiteral("Below")}));
}

TEST_F(ColorTableEditorTest, OverviewSamplesTwentyEntriesInFourteenRows)
{
    std::vector<double> values;
    for (int i = 0; i < 20; ++i)
        values.push_back(i * 0.5);
    WriteTable(QStringLiteral("Twenty"), values);
    CColorTableEditor editor(QStringLiteral("Twenty"));
    editor.show();
    Click(editor, CColorTableEditor::IDC_OVERVIEW);
    ASSERT_TRUE(editor.IsOverview());
    ASSERT_EQ(editor.Grid()->GetRowCount(), CColorTableEditor::kOverviewRows);
    EXPECT_EQ(editor.Grid()->GetItemText(0, 0), QStringLiteral("9.50"));
    EXPECT_EQ(editor.Grid()->GetItemText(13, 0), QStringLiteral("Below"));
    Click(editor, CColorTableEditor::IDC_OVERVIEW);
    EXPECT_EQ(editor.Grid()->GetRowCount(), 21);
}

TEST_F(ColorTableEditorTest, RotationPassesLockedSlotsAndNeedsTwoUnlockedEntries)
{
    const COLORREF a = 1, b = 2, c = 3, d = 4;
    const struct { std::vector<bool> locked; int shift; bool down; std::vector<COLORREF> expected; } cases[] = {
        {{false, true, false, false}, 1, true, {c, b, d, a}},
        {{false, true, false, false}, 1, false, {d, b, a, c}},
        {{false, false, false, false}, 2, true, {c, d, a, b}},
        {{true, false, true, false}, 1, true, {a, d, c, b}},
        {{true, true, true, false}, 1, true, {a, b, c, d}},
    };
    for (const auto& k : cases)
        EXPECT_EQ(CColorTableEditor::RotateColors({a, b, c, d}, k.locked, k.shift, k.down), k.expected);

    // One unlocked entry of two: the buttons leave the table alone.
    ColorTable table;
    table.InsertEntry(1.0, RGB(1, 0, 0), true);
    table.InsertEntry(2.0, RGB(2, 0, 0), false);
    FileObject file;
    ASSERT_TRUE(table.FileSave(file));
    ASSERT_TRUE(file.FileSave(PathOf(QStringLiteral("Locked"))));
    CColorTableEditor editor(QStringLiteral("Locked"));
    const ColorTable before = editor.Table();
    Click(editor, CColorTableEditor::IDC_COLOR_UP);
    Click(editor, CColorTableEditor::IDC_COLOR_DOWN);
    EXPECT_TRUE(editor.Table() == before);
    EXPECT_EQ(editor.Grid()->GetItemText(1, 0), QStringLiteral("1.00 *"));
}

TEST_F(ColorTableEditorTest, ApplyWritesAndAnnouncesOnlyAnotherName)
{
    WriteTable(QStringLiteral("Alpha"), {1.0, 2.0});
    WriteTable(QStringLiteral("Beta"), {5.0});
    CColorTableEditor editor(QStringLiteral("Alpha"));
    QSignalSpy named(&editor, &CColorTableEditor::tableNameChanged);
    Click(editor, CColorTableEditor::IDC_CLEAR);
    Click(editor, CColorTableEditor::IDC_APPLY);
    ColorTable written;
    FileObject file;
    ASSERT_TRUE(file.FileOpen(PathOf(QStringLiteral("Alpha"))));
    written.FileOpen(file);
    EXPECT_EQ(written.NumEntries(), 0);
    EXPECT_EQ(named.count(), 0);

    editor.findChild<FileTypeCombo*>()->SetSelected(QStringLiteral("Beta"));
    EXPECT_EQ(editor.Table().EntryValue(0), 5.0);
    Click(editor, CColorTableEditor::IDC_APPLY);
    Click(editor, CColorTableEditor::IDC_APPLY);
    ASSERT_EQ(named.count(), 1);
    EXPECT_EQ(named.at(0).at(0).toString(), QStringLiteral("Beta"));
}

TEST_F(ColorTableEditorTest, FailedSaveAsAndCancelLeaveTheFileAlone)
{
    WriteTable(QStringLiteral("Alpha"), {1.0, 2.0});
    const QByteArray before = FileBytes(QStringLiteral("Alpha"));
    // A folder that cannot exist: its parent is a file.
    const QString impossible = PathOf(QStringLiteral("Alpha")) + QStringLiteral("/Copy.ctb");
    SetFileDialogHook([impossible](const FileDialogRequest&, QStringList& chosen) {
        chosen = {impossible};
        return true;
    });
    {
        CColorTableEditor editor(QStringLiteral("Alpha"));
        QSignalSpy named(&editor, &CColorTableEditor::tableNameChanged);
        Click(editor, CColorTableEditor::IDC_CLEAR);
        const QString* message = CatchMessage();
        Click(editor, CColorTableEditor::IDC_SAVE_AS);
        EXPECT_TRUE(message->contains(QStringLiteral("could not be saved"))) << message->toStdString();
        EXPECT_EQ(editor.TableName(), QStringLiteral("Alpha"));
        Click(editor, 2); // Cancel
        EXPECT_EQ(named.count(), 0);
    }
    SetFileDialogHook({});
    EXPECT_EQ(FileBytes(QStringLiteral("Alpha")), before);
}


TEST_F(ColorTableEditorTest, GridCellsFollowTheColourModeAndStayReadable)
{
    CColorGridCtrl grid;
    grid.resize(120, 60);
    grid.SetColumnCount(1);
    grid.SetRowCount(1);
    grid.SetColumnWidth(0, 100);
    grid.SetItem(0, 0, QStringLiteral("-8888.88"), CColorGridCtrl::FormatCenter | CColorGridCtrl::FormatSingleLine);
    const COLORREF background = RGB(120, 0, 0);
    grid.SetItemBkColour(0, 0, background);
    grid.SetItemFgColour(0, 0, ColorTable::GetContrastColor(background));
    ColorControl& colours = ColorControl::Instance();
    for (ColorConverter::mode mode : {ColorConverter::night, ColorConverter::normal}) {
        colours.SetLightMode(mode, false);
        const QImage image = grid.viewport()->grab().toImage();
        const COLORREF drawnBackground = colours.GetColor(background, false);
        ASSERT_EQ(drawnBackground != background, mode == ColorConverter::night);
        EXPECT_EQ(toColorref(image.pixelColor(2, 2)), drawnBackground) << mode;
        // The brightest text pixel stands out from the background in every mode.
        int brightest = 0;
        for (int x = 0; x < 100; ++x)
            for (int y = 0; y < grid.GetRowHeight(0); ++y)
                brightest = std::max(brightest, qGray(image.pixel(x, y)));
        EXPECT_GT(brightest - qGray(toQColor(drawnBackground).rgb()), 40) << mode;
    }
}
