// The gallery's colour-table page: the depth grid in the colours of the chosen table, as the
// colour mode shows them, following saves of the table's file, and a key whose labels fit.
#include "pages/ColourLegend.h"
#include "pages/ColourTablesPage.h"
#include "common/TestProject.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/dialogs/colourtables/ColorTableEditor.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

// Four bands wide enough that the channel bottom, the shoal top and the scour hole each lie
// well inside one of them.
ColorTable Bands(COLORREF low, COLORREF deep, COLORREF middle, COLORREF shallow)
{
    ColorTable table;
    table.SetLowColor(low);
    table.InsertEntry(-30.0, deep, true);
    table.InsertEntry(-15.0, middle, true);
    table.InsertEntry(-5.0, shallow, true);
    return table;
}

bool WriteTable(const QString& name, const ColorTable& table)
{
    FileObject file;
    return table.FileSave(file) && file.FileSave(DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_TABLE, name));
}

void Settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

class ColourTablesPageTest : public ::testing::Test {
protected:
    ColourTablesPageTest()
    {
        EXPECT_TRUE(m_project.IsOpen());
        EXPECT_TRUE(WriteTable(QStringLiteral("Bands"), m_bands));
        EXPECT_TRUE(WriteTable(QStringLiteral("Shades"), m_shades));
        ColorTable ramp;
        EXPECT_TRUE(ramp.SetRange(-25.0, -2.0, 256, RGB(0, 0, 128), RGB(255, 255, 200)));
        EXPECT_TRUE(WriteTable(QStringLiteral("Ramp"), ramp));
        m_page = std::make_unique<ColourTablesPage>();
        m_page->resize(900, 560);
        m_page->show();
        Settle();
    }
    ~ColourTablesPageTest() override { ColorControl::Instance().SetLightMode(ColorConverter::normal, true); }

    // The page's pixel over the middle of a grid cell.
    QColor PixelOf(const QImage& shot, QPoint cell) const
    {
        const QRectF area = m_page->GridRect();
        const double scale = area.width() / m_page->Grid().Columns();
        return shot.pixelColor(QPointF(area.left() + (cell.x() + 0.5) * scale, area.top() + (cell.y() + 0.5) * scale).toPoint());
    }

    TestProject m_project;
    const ColorTable m_bands = Bands(RGB(200, 0, 0), RGB(0, 0, 200), RGB(0, 160, 0), RGB(230, 230, 0));
    const ColorTable m_shades = Bands(RGB(0, 0, 0), RGB(40, 60, 80), RGB(120, 130, 140), RGB(250, 240, 200));
    std::unique_ptr<ColourTablesPage> m_page; // made once the tables are written
};

TEST_F(ColourTablesPageTest, ShowsTheGridInTheChosenTablesColoursAndNoDataAsBackground)
{
    const QPoint cells[] = { BathymetryGrid::ChannelCell(), BathymetryGrid::ShoalCell(), BathymetryGrid::ScourCell() };
    const std::pair<QString, const ColorTable*> tables[] = { { QStringLiteral("Bands"), &m_bands }, { QStringLiteral("Shades"), &m_shades } };
    for (const auto& [name, table] : tables) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_TRUE(m_page->SelectTable(name));
        Settle();
        const QImage shot = m_page->grab().toImage();
        for (const QPoint& cell : cells)
            EXPECT_EQ(PixelOf(shot, cell), toQColor(table->GetColor(m_page->Grid().Depth(cell.x(), cell.y()))))
                << cell.x() << "," << cell.y();
        EXPECT_EQ(PixelOf(shot, BathymetryGrid::GapCell()), m_page->palette().color(QPalette::Window));
    }
}

TEST_F(ColourTablesPageTest, AfterAProjectSwitchShowsThatProjectsTableOfTheSameName)
{
    ASSERT_TRUE(m_page->SelectTable(QStringLiteral("Bands")));
    Settle();
    const QString common = m_project.ProjectsFolder() + QStringLiteral("/OtherCommon");
    ASSERT_TRUE(QDir().mkpath(common + QStringLiteral("/ColorTables")));
    FileObject file;
    ASSERT_TRUE(Bands(RGB(200, 0, 0), RGB(0, 200, 200), RGB(0, 160, 0), RGB(230, 230, 0)).FileSave(file));
    ASSERT_TRUE(file.FileSave(common + QStringLiteral("/ColorTables/Bands.ctb")));
    ASSERT_TRUE(DataSearch::GetDataSearch().Open(m_project.ProjectsFolder(), QStringLiteral("NorthSea"), common));
    Settle();
    EXPECT_EQ(m_page->TableName(), QStringLiteral("Bands"));
    EXPECT_EQ(PixelOf(m_page->grab().toImage(), BathymetryGrid::ChannelCell()), QColor(0, 200, 200));
}

TEST_F(ColourTablesPageTest, TheEditorsApplyShowsOnThePictureWhileTheEditorIsOpen)
{
    ASSERT_TRUE(m_page->SelectTable(QStringLiteral("Bands")));
    Settle();
    const auto channelIsGrey = [&] {
        const QColor c = PixelOf(m_page->grab().toImage(), BathymetryGrid::ChannelCell());
        return c.red() == c.green() && c.green() == c.blue();
    };
    ASSERT_FALSE(channelIsGrey());
    bool greyBeforeClosing = false;
    QTimer::singleShot(0, [&] {
        auto* editor = qobject_cast<CColorTableEditor*>(QApplication::activeModalWidget());
        ASSERT_NE(editor, nullptr);
        // A grey ramp over the table's values, applied.
        for (int id : { CColorTableEditor::IDC_GREYS, CColorTableEditor::IDC_REPLACE, CColorTableEditor::IDC_APPLY })
            editor->findChild<QPushButton*>(QString::number(id))->click();
        greyBeforeClosing = QTest::qWaitFor(channelIsGrey, 5000);
        editor->reject();
    });
    m_page->EditTable();
    EXPECT_TRUE(greyBeforeClosing);
}

TEST_F(ColourTablesPageTest, NightModeDimsTheGridAndItsKeyAsTheModeConvertsColours)
{
    ASSERT_TRUE(m_page->SelectTable(QStringLiteral("Bands")));
    ColorControl& colors = ColorControl::Instance();
    colors.SetLightMode(ColorConverter::night, true);
    Settle();
    const QImage shot = m_page->grab().toImage();
    // The picture is scaled by the mode's factors (no substitutions: a table's colours are data).
    for (const QPoint& cell : { BathymetryGrid::ChannelCell(), BathymetryGrid::ShoalCell() })
        EXPECT_EQ(PixelOf(shot, cell), toQColor(colors.GetColor(m_bands.GetColor(m_page->Grid().Depth(cell.x(), cell.y())), true)));
    // The key's top box: the highest entry as the mode draws that colour.
    const auto* legend = m_page->findChild<ColourLegend*>();
    ASSERT_NE(legend, nullptr);
    const QRect box = legend->Rows().front().box.translated(legend->mapTo(m_page.get(), QPoint()));
    EXPECT_EQ(shot.pixelColor(box.center()), toQColor(colors.GetColor(RGB(230, 230, 0), true))) << "as the picture";
}

TEST_F(ColourTablesPageTest, KeyOfABigTableSamplesItsEntriesAndEveryLabelFits)
{
    m_project.Project()->SetDepthDecimals(3);
    ASSERT_TRUE(m_page->SelectTable(QStringLiteral("Ramp")));
    Settle();

    const auto* legend = m_page->findChild<ColourLegend*>();
    ASSERT_NE(legend, nullptr);
    const std::vector<ColourLegend::Row> rows = legend->Rows();
    ASSERT_EQ(rows.size(), size_t(ColourLegend::kMaxRows + 1));
    EXPECT_EQ(rows.front().label, QelFormatter().FormatDepth(-2.0));
    EXPECT_EQ(rows[rows.size() - 2].label, QelFormatter().FormatDepth(-25.0));
    EXPECT_TRUE(rows.front().label.endsWith(QStringLiteral(".000 m"))) << rows.front().label.toStdString();
    const QFontMetrics metrics = legend->fontMetrics();
    for (const ColourLegend::Row& row : rows) {
        EXPECT_TRUE(legend->rect().contains(row.text)) << row.label.toStdString();
        EXPECT_LE(metrics.horizontalAdvance(row.label), row.text.width()) << row.label.toStdString();
        EXPECT_LE(metrics.height(), row.text.height());
    }
}

} // namespace
