// The bottom-classification and map colour-table editors: how they complete a table, what
// their grids show, double-click editing, and what reaches the table's file.
#include <common/TestProject.h>

#include <QelAttributes/AttribDefMap.h>
#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataDefinition.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/ColorWell.h>
#include <QelMfc0/dialogs/colourtables/BCColorEditDlg.h>
#include <QelMfc0/dialogs/colourtables/BCColorTableEditor.h>
#include <QelMfc0/dialogs/colourtables/ColorGridCtrl.h>
#include <QelMfc0/dialogs/colourtables/DepthColorEditDlg.h>
#include <QelMfc0/dialogs/colourtables/MapColorTableEditor.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <numeric>

namespace {

constexpr COLORREF kGreen = RGB(0, 200, 0);
constexpr COLORREF kLow = RGB(1, 2, 3);

class SpecialColorTableEditorTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_project.IsOpen());
        m_hadTypes = CAttribDefMap::GetAttribDefMap().GetCtlAttribs(QStringLiteral("BottomTypes"), m_types);
        SetBottomTypes(20);
        // Seabed item 3,1 has four texts; 3,2 is a number.
        WriteCommon(QStringLiteral("DataDefinition.def"),
                    "[Group 3]\nName = Seabed\nItem 1 = Bottom class; 30; Mud; Sand; Gravel; Rock\n"
                    "Item 2 = Backscatter; 2\n");
        WriteCommon(QStringLiteral("FileSubTypes.def"),
                    "[25]\nSeabed = MAP,3,1,30\nBackscatter = MAP,3,2,2\nBottom = BC\n");
        FileObject definition;
        ASSERT_TRUE(definition.FileOpen(m_project.CommonFolder() + QStringLiteral("/DataDefinition.def")));
        ASSERT_TRUE(DataDefinition::GetDataDefinition().Load(definition));
    }
    void TearDown() override
    {
        if (m_hadTypes)
            CAttribDefMap::GetAttribDefMap().Add({QStringLiteral("BottomTypes"), CAttribValue::Type::String, {}, m_types});
        else
            SetBottomTypes(0);
    }

    // Names "T0", "T1", ... of `count` bottom types.
    static void SetBottomTypes(int count)
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names << QStringLiteral("T%1").arg(i);
        CAttribDefMap::GetAttribDefMap().Add(
            {QStringLiteral("BottomTypes"), CAttribValue::Type::String, {}, names.join(QLatin1Char(','))});
    }
    void WriteCommon(const QString& name, const char* text) const
    {
        QFile file(m_project.CommonFolder() + QLatin1Char('/') + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }
    static QString PathOf(const QString& name)
    {
        return DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name);
    }
    // Writes a table of unlocked, unnamed entries at `values` and the low colour kLow.
    static void WriteTable(const QString& name, const std::vector<double>& values)
    {
        ColorTable table;
        for (size_t i = 0; i < values.size(); ++i)
            table.InsertEntry(values[i], RGB(10 * int(i), 0, 0), false);
        table.SetLowColor(kLow);
        FileObject file;
        ASSERT_TRUE(table.FileSave(file));
        ASSERT_TRUE(file.FileSave(PathOf(name)));
    }
    static ColorTable ReadTable(const QString& name)
    {
        FileObject file;
        ColorTable table;
        EXPECT_TRUE(file.FileOpen(PathOf(name)) && table.FileOpen(file)) << name.toStdString();
        return table;
    }
    static std::vector<double> Values(const ColorTable& table)
    {
        std::vector<double> values;
        for (int i = 0; i < table.NumEntries(); ++i)
            values.push_back(table.EntryValue(i));
        return values;
    }
    static QStringList GridTexts(const CColorGridCtrl* grid)
    {
        QStringList texts;
        for (int row = 0; row < grid->GetRowCount(); ++row)
            texts << grid->GetItemText(row, 0);
        return texts;
    }
    // Double-clicks `row` of the shown grid and lets `act` handle the entry dialog.
    template <class Dialog>
    static void EditRow(CColorGridCtrl* grid, int row, std::function<void(Dialog*)> act)
    {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(dialog);
        });
        grid->scrollToItem(grid->item(row, 0));
        const QRect cell = grid->visualItemRect(grid->item(row, 0));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
    }

    TestProject m_project;
    bool m_hadTypes = false;
    QString m_types;
};

} // namespace

TEST_F(SpecialColorTableEditorTest, BottomClassTableIsCutBackOrFilledUpToNineteenEntries)
{
    std::vector<double> hundred(10), twentyFive(25), defaultsOneToTen;
    std::iota(hundred.begin(), hundred.end(), 100.0);
    std::iota(twentyFive.begin(), twentyFive.end(), 0.0);
    for (int type = 1; type <= 10; ++type)
        defaultsOneToTen.push_back(BCColorTableEditor::DefaultValue(type));
    const std::vector<double> allDefaults = {-0.7, -0.3, 0.0, 1.0, 1.5, 2.0, 2.5, 3.0, 3.5, 4.0,
                                             4.5,  5.0,  5.5, 6.0, 6.5, 7.0, 7.5, 8.0, 8.5};
    const struct {
        const char* name;
        std::vector<double> values;
        int types;
        std::vector<double> expected;
        COLORREF low;
    } cases[] = {
        {"TwentyFive", twentyFive, 20, std::vector<double>(twentyFive.begin(), twentyFive.begin() + 19), kLow},
        // -0.7 first (11 entries), then the types 12 .. 19 one by one.
        {"TenAbove", hundred, 20,
         {-0.7, 5.0, 5.5, 6.0, 6.5, 7.0, 7.5, 8.0, 8.5, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109}, kLow},
        // -0.7 replaces the entry there, so the count stays 10 and the types 11 .. 19 follow.
        {"TenAtDefaults", defaultsOneToTen, 20, allDefaults, kLow},
        {"TooFewNames", hundred, 19, hundred, kLow},
        {"Missing", {}, 20, allDefaults, RGB(0, 0, 255)},
    };
    for (const auto& c : cases) {
        const QString name = QString::fromUtf8(c.name);
        if (!c.values.empty())
            WriteTable(name, c.values);
        SetBottomTypes(c.types);
        BCColorTableEditor editor(name);
        EXPECT_EQ(Values(editor.Table()), c.expected) << c.name;
        EXPECT_EQ(editor.Table().LowColor(), c.low) << c.name;
        EXPECT_EQ(editor.Grid()->GetRowCount(), int(c.expected.size()) + 1) << c.name;
        EXPECT_TRUE(editor.windowTitle().endsWith(QStringLiteral(" - ") + name)) << c.name;
    }
}

TEST_F(SpecialColorTableEditorTest, DefaultBottomClassTableIsLockedNamedAndListedLowColourFirst)
{
    for (const bool viaButton : {false, true}) {
        if (viaButton)
            WriteTable(QStringLiteral("Bottom"), {100.0, 200.0});
        BCColorTableEditor editor(QStringLiteral("Bottom"));
        if (viaButton) {
            ASSERT_EQ(editor.Table().NumEntries(), 19); // filled up, the two old ones kept
            QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("6845")), Qt::LeftButton);
        }
        const ColorTable& table = editor.Table();
        ASSERT_EQ(table.NumEntries(), 19);
        EXPECT_EQ(table.NumLocked(), 19);
        EXPECT_EQ(table.LowColorName(), QStringLiteral("T0"));
        const struct { int index; COLORREF color; } spots[] = {{0, 0xF3180C}, {9, 0x7FFF80}, {18, 0x0C19F3}};
        for (const auto& s : spots)
            EXPECT_EQ(table.EntryColor(s.index), s.color) << s.index;
        const QStringList texts = GridTexts(editor.Grid());
        ASSERT_EQ(texts.size(), 20);
        EXPECT_EQ(texts.first(), QStringLiteral("T0"));
        EXPECT_EQ(texts[1], QStringLiteral("T1"));
        EXPECT_EQ(texts.last(), QStringLiteral("T19"));
        EXPECT_EQ(editor.Grid()->GetItemBkColour(0, 0), RGB(0, 0, 255));
    }
}

TEST_F(SpecialColorTableEditorTest, DoubleClickEditsColourAndNameOfATypeAndShowsItsRange)
{
    const struct { int row; const char* typed; const char* minimum; const char* maximum; } cases[] = {
        {0, "Clay", "", "-0.70"},
        {5, "t5", "1.50", "2.00"}, // another case is another name
        {5, "T5", "1.50", "2.00"},
        {19, "  Rock ", "8.50", ""},
    };
    for (const auto& c : cases) {
        BCColorTableEditor editor(QStringLiteral("Bottom"));
        editor.show();
        QString minimum, maximum;
        EditRow<BCColorEditDlg>(editor.Grid(), c.row, [&](BCColorEditDlg* dialog) {
            minimum = dialog->MinimumEdit()->text();
            maximum = dialog->MaximumEdit()->text();
            EXPECT_TRUE(dialog->MinimumEdit()->isReadOnly());
            dialog->NameEdit()->setText(QString::fromUtf8(c.typed));
            dialog->Well()->SetColor(kGreen);
            dialog->accept();
        });
        EXPECT_EQ(minimum, QString::fromUtf8(c.minimum)) << c.row;
        EXPECT_EQ(maximum, QString::fromUtf8(c.maximum)) << c.row;
        const int index = c.row - 1;
        const ColorTable& table = editor.Table();
        EXPECT_EQ(index < 0 ? table.LowColor() : table.EntryColor(index), kGreen) << c.row;
        const QString name = QString::fromUtf8(c.typed).trimmed();
        EXPECT_EQ(index < 0 ? table.LowColorName() : table.EntryName(index), name) << c.row;
        EXPECT_EQ(editor.Grid()->GetItemText(c.row, 0), name) << c.row;
    }
}

TEST_F(SpecialColorTableEditorTest, CheckAndSaveReportsAFileThatCannotBeWritten)
{
    BCColorTableEditor editor(QStringLiteral("Bottom"));
    ASSERT_TRUE(editor.CheckAndSave());
    EXPECT_EQ(ReadTable(QStringLiteral("Bottom")), editor.Table());

    // The table's file is a folder.
    ASSERT_TRUE(QDir().mkpath(PathOf(QStringLiteral("Blocked"))));
    BCColorTableEditor blocked(QStringLiteral("Blocked"));
    EXPECT_EQ(blocked.Table().NumEntries(), 19);
    EXPECT_FALSE(blocked.CheckAndSave());
    EXPECT_TRUE(blocked.GenDefBkkColorTable());
    // OK says so and keeps the dialog open.
    blocked.show();
    QString message;
    QTimer::singleShot(0, [&message] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        message = box->text();
        box->accept();
    });
    QTest::mouseClick(blocked.findChild<QPushButton*>(QStringLiteral("1")), Qt::LeftButton);
    EXPECT_TRUE(message.startsWith(QStringLiteral("The color table could not be saved"))) << message.toStdString();
    EXPECT_TRUE(blocked.isVisible());
}

TEST_F(SpecialColorTableEditorTest, DefaultBackscatterTableIsAGreyRampThatIsSaved)
{
    BCColorTableEditor editor(QStringLiteral("Backscatter"));
    ASSERT_TRUE(editor.GenDefBkkColorTable());
    const ColorTable saved = ReadTable(QStringLiteral("Backscatter"));
    ASSERT_EQ(saved.NumEntries(), 255);
    EXPECT_EQ(saved.LowColor(), RGB(0, 0, 0));
    EXPECT_EQ(saved.EntryValue(0), -50.0);
    EXPECT_EQ(saved.EntryValue(254), -24.0);
    EXPECT_EQ(saved.EntryColor(254), RGB(255, 255, 255));
    EXPECT_EQ(GetRValue(saved.EntryColor(127)), GetBValue(saved.EntryColor(127)));
}

TEST_F(SpecialColorTableEditorTest, MapTableGetsOneEntryPerTextOfItsItem)
{
    const struct {
        const char* name;
        std::vector<double> existing;
        std::vector<double> expected;
        int rows;
    } cases[] = {
        {"Seabed", {}, {0, 1, 2, 3}, 4},
        {"Seabed", {0, 1}, {0, 1, 2, 3}, 4},
        {"Backscatter", {}, {}, 0},     // not an item of texts
        {"Backscatter", {5}, {5}, 0},
        {"Unlisted", {}, {}, 0},        // no sub-type
    };
    for (const auto& c : cases) {
        const QString name = QString::fromUtf8(c.name);
        QFile::remove(PathOf(name));
        if (!c.existing.empty())
            WriteTable(name, c.existing);
        MapColorTableEditor editor(name);
        const ColorTable& table = editor.Table();
        EXPECT_EQ(Values(table), c.expected) << c.name;
        EXPECT_EQ(GridTexts(editor.Grid()).size(), c.rows) << c.name;
        EXPECT_TRUE(editor.windowTitle().endsWith(QStringLiteral(" - ") + name)) << c.name;
        if (c.rows == 0)
            continue;
        EXPECT_EQ(GridTexts(editor.Grid()),
                  QStringList({QStringLiteral("Mud"), QStringLiteral("Sand"), QStringLiteral("Gravel"),
                               QStringLiteral("Rock")}));
        if (c.existing.empty()) {
            // A ramp from red to green.
            EXPECT_GT(GetRValue(table.EntryColor(0)), GetGValue(table.EntryColor(0)));
            EXPECT_EQ(table.EntryColor(3), RGB(0, 255, 0));
        } else {
            EXPECT_EQ(table.EntryColor(2), RGB(255, 0, 0));
            EXPECT_EQ(table.EntryColor(3), RGB(255, 0, 0));
            EXPECT_FALSE(table.EntryLocked(3));
        }
    }
}

TEST_F(SpecialColorTableEditorTest, MapRowsAreStretchedOverTheGridWhenTheyFit)
{
    const struct { int client; int count; } cases[] = {{100, 3}, {250, 7}, {1000, 13}, {7, 4}};
    for (const auto& c : cases) {
        const std::vector<int> heights = MapColorTableEditor::StretchedRowHeights(c.client, c.count);
        ASSERT_EQ(int(heights.size()), c.count);
        EXPECT_EQ(std::accumulate(heights.begin(), heights.end(), 0), c.client) << c.client << "/" << c.count;
        const auto [low, high] = std::minmax_element(heights.begin(), heights.end());
        EXPECT_LE(*high - *low, 1) << c.client << "/" << c.count;
    }

    MapColorTableEditor editor(QStringLiteral("Seabed"));
    editor.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&editor));
    CColorGridCtrl* grid = editor.Grid();
    for (const int height : {400, 331, 120}) {
        editor.resize(editor.width(), height);
        QApplication::processEvents();
        const int client = grid->maximumViewportSize().height();
        int sum = 0;
        for (int row = 0; row < grid->GetRowCount(); ++row)
            sum += grid->GetRowHeight(row);
        if (4 * grid->GetDefaultRowHeight() <= client)
            EXPECT_EQ(sum, client) << height;
        else
            EXPECT_EQ(sum, 4 * grid->GetDefaultRowHeight()) << height;
    }
}

TEST_F(SpecialColorTableEditorTest, MapDoubleClickSetsOnlyTheColourAndOkSaves)
{
    MapColorTableEditor editor(QStringLiteral("Seabed"));
    editor.show();
    const double value = editor.Table().EntryValue(2);
    EditRow<CDepthColorEditDlg>(editor.Grid(), 2, [](CDepthColorEditDlg* dialog) {
        EXPECT_EQ(dialog->ValueEdit()->text(), QStringLiteral("Gravel"));
        EXPECT_FALSE(dialog->ValueEdit()->isEnabled());
        dialog->Well()->SetColor(kGreen);
        dialog->accept();
    });
    const ColorTable& table = editor.Table();
    ASSERT_EQ(table.NumEntries(), 4);
    EXPECT_EQ(table.EntryColor(2), kGreen);
    EXPECT_EQ(table.EntryValue(2), value);
    EXPECT_EQ(editor.Grid()->GetItemText(2, 0), QStringLiteral("Gravel"));

    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("1")), Qt::LeftButton);
    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_EQ(ReadTable(QStringLiteral("Seabed")), table);
}
