#include <QelAttributes/AttribDefMap.h>
#include <QelBase/ColorTable.h>
#include <QelBase/FileObject.h>
#include <QelBase/QelString.h>
#include <QelConfigure/DataDefinition.h>
#include <QelConfigure/DataInfo.h>
#include <QelConfigure/DataSearch.h>

#include "common/TestProject.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

DataDefinition Loaded(const QString& text)
{
    FileObject file;
    file.LoadFromText(text);
    DataDefinition definition;
    definition.Load(file);
    return definition;
}

void Write(const QString& path, const QByteArray& text)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
}

} // namespace

TEST(DataDefinition, EntriesReadOrRepaired)
{
    struct Case {
        const char* entry;  // in [Group 3] after "Item 1 = Depth; 10"
        int item;           // the item the entry defines
        int format;         // its format after the load, 0: not defined
        int texts;          // texts it has
        const char* error;  // part of the error line, empty: none
    };
    const Case cases[] = {
        {"Item 2 = Class; 30; Mud; Sand;", 2, 30, 2, ""},
        {"item02 = Class ; 30 ;Mud", 2, 30, 1, ""},
        {"Item 2 = Class; 30; Mud;; Rock", 2, 30, 3, "value 1 has an empty text"},
        {"Item 2 = Class; 30", 2, 30, 0, "lists no texts"},
        {"Item 2 = Backscatter; 2; Low; High", 2, 2, 0, "[Group 3] Item 2 = Backscatter; 2; Low; High: texts belong"},
        {"Item 2 = Backscatter; 31", 2, 0, 0, "format is not"},
        {"Item 2 = Backscatter; -2", 2, 0, 0, "format is not"},
        {"Item 2 = Backscatter", 2, 0, 0, "format is not"},
        {"Item 2 = ; 2", 2, 0, 0, "no name"},
        {"Item -2 = Backscatter; 2", -2, 0, 0, "item number"},
        {"Item 2x = Backscatter; 2", 2, 0, 0, "item number"},
        {"Item 99999999999 = Backscatter; 2", 2, 0, 0, "item number"},
        {"Item 1 = Other; 2", 1, 10, 0, "defined before"},
        {"Name = Other", 1, 10, 0, "named before"},
        {"Colour = Red", 1, 10, 0, "unknown key"},
    };
    for (const Case& c : cases) {
        const DataDefinition definition = Loaded(
            QStringLiteral("[Group 3]\nName = Seabed\nItem 1 = Depth; 10\n") + c.entry + "\n");
        int format = 0;
        definition.GetGroupItemFormat(3, c.item, format);
        EXPECT_EQ(format, c.format) << c.entry;
        int texts = 0;
        for (QString text; definition.GetGroupItemMapTxt(3, c.item, texts, text);)
            ++texts;
        EXPECT_EQ(texts, c.texts) << c.entry;
        EXPECT_EQ(definition.GetGroupName(3), "Seabed") << c.entry;
        EXPECT_EQ(definition.GetGroupItemName(3, 1), "Depth") << c.entry;
        const QStringList errors = definition.Errors();
        if (*c.error) {
            ASSERT_EQ(errors.size(), 1) << c.entry;
            EXPECT_TRUE(errors[0].contains(c.error)) << errors[0].toStdString();
        } else {
            EXPECT_TRUE(errors.isEmpty()) << errors.join('\n').toStdString();
        }
    }
}

TEST(DataDefinition, SectionsThatAreNoGroup)
{
    const DataDefinition none = Loaded("Item 1 = Depth; 10\n[Groups 2]\nItem 1 = Depth; 10\n[Group]\nName = x\n");
    EXPECT_EQ(none.Errors().size(), 3);
    int format = 0;
    EXPECT_FALSE(none.GetGroupItemFormat(2, 1, format));

    FileObject file;
    file.LoadFromText("[group 4]\nItem 0 = Quality; 1\n");
    DataDefinition definition;
    EXPECT_TRUE(definition.Load(file));
    EXPECT_TRUE(definition.GetGroupItemFormat(4, 0, format));
    file.LoadFromText("; nothing\n");
    EXPECT_FALSE(definition.Load(file)); // replaces: the old group is gone
    EXPECT_FALSE(definition.GetGroupItemFormat(4, 0, format));
}

TEST(DataDefinition, SampleTextsAndTheirBounds)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const DataDefinition& definition = DataDefinition::GetDataDefinition();
    EXPECT_TRUE(definition.Errors().isEmpty()) << definition.Errors().join('\n').toStdString();
    const struct { int group, item, index; const char* text; } cases[] = {
        {3, 1, 0, "Mud"}, {3, 1, 5, "Rock"}, {3, 1, 6, nullptr}, {3, 1, -1, nullptr},
        {7, 1, 4, "Buoy"}, {7, 1, 5, nullptr}, {3, 2, 0, nullptr}, {3, 9, 0, nullptr}, {9, 1, 0, nullptr},
    };
    for (const auto& c : cases) {
        QString text = "unchanged";
        EXPECT_EQ(definition.GetGroupItemMapTxt(c.group, c.item, c.index, text), c.text != nullptr)
            << c.group << ',' << c.item << ',' << c.index;
        EXPECT_EQ(text, c.text ? c.text : "unchanged");
    }
    // The sample table of the bottom classes: one entry per text.
    FileObject file;
    ColorTable table;
    ASSERT_TRUE(file.FileOpen(DataSearch::GetDataSearch().GetFullPath(25, "SeabedClasses")));
    ASSERT_TRUE(table.FileOpen(file));
    EXPECT_EQ(table.NumEntries(), 6);
    EXPECT_TRUE(table.Errors().isEmpty());
}

TEST(DataDefinition, FollowsTheProjectsCommonFolder)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const QString other = test.ProjectsFolder() + "/OtherCommon";
    Write(other + "/DataDefinition.def", "[Group 3]\nItem 1 = Bottom class; 30; Clay\n");
    QString text;
    EXPECT_TRUE(DataDefinition::GetDataDefinition().GetGroupItemMapTxt(3, 1, 1, text));

    DataSearch& search = DataSearch::GetDataSearch();
    ASSERT_TRUE(search.Open(test.ProjectsFolder(), "NorthSea", other));
    EXPECT_TRUE(DataDefinition::GetDataDefinition().GetGroupItemMapTxt(3, 1, 0, text));
    EXPECT_EQ(text, "Clay");
    EXPECT_FALSE(DataDefinition::GetDataDefinition().GetGroupItemMapTxt(3, 1, 1, text));

    // Edited in place: read again at the next call.
    Write(other + "/DataDefinition.def", "[Group 3]\nItem 1 = Bottom class; 30; Peat; Clay\n");
    EXPECT_TRUE(DataDefinition::GetDataDefinition().GetGroupItemMapTxt(3, 1, 1, text));

    search.Close();
    int format = 0;
    EXPECT_FALSE(DataDefinition::GetDataDefinition().GetGroupItemFormat(3, 1, format));
}

TEST(DataSearch, FileSubTypesByNameInAnyCase)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    const DataSearch& search = DataSearch::GetDataSearch();
    const struct { int type; const char* name; const char* attribs; } cases[] = {
        {25, "SeabedClasses", "MAP,3,1,30"}, {25, "seabedCLASSES.CTB", "MAP,3,1,30"},
        {25, " BottomClasses ", "BC"}, {25, "Depth", ""}, {25, "", ""}, {60, "SeabedClasses", ""},
    };
    for (const auto& c : cases) {
        QString attribs = "stale";
        EXPECT_EQ(search.GetFileSubTypeAttribs(c.type, c.name, attribs), *c.attribs != 0) << c.name;
        EXPECT_EQ(attribs, c.attribs) << c.name;
    }
}

TEST(DataSearch, BottomTypesFromTheAttributeDefinitions)
{
    QString list;
    {
        TestProject test;
        ASSERT_TRUE(test.IsOpen());
        ASSERT_TRUE(CAttribDefMap::GetAttribDefMap().GetCtlAttribs("BottomTypes", list));
        const CQelString names(list, ',');
        ASSERT_EQ(names.Size(), 20);
        EXPECT_EQ(names[0], "Fluid mud");
        EXPECT_EQ(names[19], "Bedrock");
        EXPECT_FALSE(CAttribDefMap::GetAttribDefMap().GetCtlAttribs("bottomtypes", list));
    }
    EXPECT_FALSE(CAttribDefMap::GetAttribDefMap().GetCtlAttribs("BottomTypes", list));
    EXPECT_TRUE(list.isEmpty());
}

TEST(DataInfo, OnlyThreeWholeNumbersRead)
{
    const struct { const char* text; bool ok; } cases[] = {
        {"3,1,30", true}, {" 3 , 1 ,30 ", true}, {"0,0,0", true}, {"2147483647,1,1", true},
        {"2147483648,1,1", false}, {"3,1", false}, {"3,1,30,4", false}, {"3,,30", false},
        {"-3,1,30", false}, {"+3,1,30", false}, {"3.0,1,30", false}, {"0x3,1,30", false},
        {"3 1 30", false}, {"", false}, {"3,1,30,", false},
    };
    for (const auto& c : cases) {
        CDataInfo info(7, 8, 9);
        EXPECT_EQ(info.SetFromString(c.text), c.ok) << c.text;
        if (!c.ok) {
            EXPECT_EQ(info.ToString(), "7,8,9") << c.text;
        }
    }
    CDataInfo info;
    ASSERT_TRUE(info.SetFromString(CQelString("MAP, 3, 1 ,30", ',').Fields().mid(1).join(',')));
    int group = 0, item = 0, format = 0;
    info.GetInfo(group, item, format);
    EXPECT_EQ(QList<int>({group, item, format}), QList<int>({3, 1, 30}));
}

TEST(QelString, FieldsAtASeparator)
{
    CQelString fields(" Mud ,, Sand ", ',');
    EXPECT_EQ(fields.Fields(), QStringList({"Mud", "", "Sand"}));
    EXPECT_FALSE(fields.Erase(3));
    EXPECT_TRUE(fields.Erase(1));
    EXPECT_EQ(fields.Join(';'), "Mud;Sand");
    EXPECT_EQ(fields[2], QString());
    EXPECT_EQ(CQelString("", ',').Size(), 0);
}
