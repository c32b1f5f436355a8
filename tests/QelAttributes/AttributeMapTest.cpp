// Attribute maps: lookups, growth of value lists, typed access and file round trips; the
// definitions map.
#include <QelAttributes/AttribDefMap.h>
#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelAttributes/QelDouble.h>
#include <QelBase/FileObject.h>

#include <QThread>
#include <gtest/gtest.h>

TEST(AttributeMap, FindAndFindCreate)
{
    CAttributeMap map;
    EXPECT_EQ(map.FindValue("Gain"), nullptr);
    CAttribValue* v = map.FindCreate("TableGain", 3);
    ASSERT_NE(v, nullptr);
    v->SetDouble(7.5);
    ASSERT_NE(map.FindValue("TableGain", 2), nullptr);
    EXPECT_EQ(map.FindValue("TableGain", 2)->GetType(), CAttribValue::Type::None);
    EXPECT_EQ(map.FindValue("TableGain", 4), nullptr);
    EXPECT_EQ(map.FindCreate("x", CAttributeMap::kMaxIndex + 1), nullptr);
    EXPECT_EQ(map.FindCreate("TableGain", 1), map.FindValue("TableGain", 1));   // no growth
    EXPECT_EQ(map.Count(), 1);
}

TEST(AttributeMap, TypedAccess)
{
    CAttributeMap map;
    map.SetAttribColor(ATTR_PANECOLOR, RGB(10, 20, 30));
    map.SetAttribValue(ATTR_FONTNAME, "Arial");          // a string, never a bool
    map.SetAttribValue(ATTR_FONTSIZE, 12);
    map.SetAttribValue(ATTR_YAXISRANGE, qMakePair(-10.0, 10.0));
    map.SetAttribValue("Gain", CQelDouble(0.5));
    map.FindCreate("Empty");
    double size = 0;
    EXPECT_TRUE(map.GetAttribValue(ATTR_FONTSIZE, size));   // int read as double
    EXPECT_EQ(size, 12.0);
    QPair<double, double> range;
    EXPECT_TRUE(map.GetAttribValue(ATTR_YAXISRANGE, range));
    EXPECT_EQ(range, qMakePair(-10.0, 10.0));

    // Missing, None and unreadable values leave the out value alone.
    int untouched = 77;
    EXPECT_FALSE(map.GetAttribValue("Missing", untouched));
    EXPECT_FALSE(map.GetAttribValue("Empty", untouched));
    EXPECT_FALSE(map.GetAttribValue(ATTR_FONTNAME, untouched));
    EXPECT_EQ(untouched, 77);

    EXPECT_TRUE(map.Remove("Gain"));
    EXPECT_FALSE(map.Remove("Gain"));
    EXPECT_EQ(map.Keys(), (QStringList{"Empty", "FontName", "FontSize", "PaneColor", "YAxisRange"}));
}

TEST(AttributeMap, FileRoundTripKeepsOrderAndComments)
{
    CAttributeMap map;
    map.SetAttribValue("Name", "Dredge head; port");
    map.SetAttribColor("Color", 0x00FF8001);
    map.FindCreate("Table", 2)->SetDouble(0.3);
    map.FindCreate("Table", 0)->SetInt(1);

    FileObject file;
    file.LoadFromText("[Other]\nx=1\n[Attr]\n; kept comment\nold = i:5\n[Tail]\ny=2\n");
    map.Save(file, "Attr");
    EXPECT_EQ(file.ToText().toStdString(), "[Other]\nx=1\n[Attr]\n; kept comment\n"
                             "Color=c:#0180FF\nName=s:Dredge head; port\n"
                             "Table=i:1\nTable=n:\nTable=d:0.3\n"
                             "[Tail]\ny=2\n");

    FileObject reread;
    reread.LoadFromText(file.ToText());
    CAttributeMap back;
    back.SetAttribValue("Stale", 1);
    ASSERT_TRUE(back.Load(reread, "Attr"));
    EXPECT_FALSE(back.Load(reread, "Missing"));
    EXPECT_EQ(back, map);

    // Hand-written values without a type letter are kept as strings and still convert.
    FileObject hand;
    hand.LoadFromText("[A]\nGain = 12.5\nMode = i:oops\n");
    ASSERT_TRUE(back.Load(hand, "A"));
    double gain = 0;
    EXPECT_TRUE(back.GetAttribValue("Gain", gain));
    EXPECT_EQ(gain, 12.5);
    EXPECT_EQ(back.FindValue("Mode")->GetString(), "i:oops");
}

TEST(AttribDefMap, LoadFindAndThreads)
{
    CAttribDefMap& defs = CAttribDefMap::GetAttribDefMap();
    defs.Clear();
    FileObject file;
    file.LoadFromText("[AttributeDefinitions]\n"
                      "Gain = double; Receiver gain; a;b ; FMT_DISTANCE,0,100,1\n"
                      "Name = String\n"
                      "Flag = bool; Show it\n"
                      "Bad = matrix; nope; FMT_DEPTH\n");
    ASSERT_TRUE(defs.Load(file));
    EXPECT_EQ(defs.Count(), 3);
    const CAttribDefRec* gain = defs.Find("Gain");
    ASSERT_NE(gain, nullptr);
    EXPECT_EQ(gain->description, "Receiver gain; a;b");
    EXPECT_EQ(gain->GetCtlAttribs(), "FMT_DISTANCE,0,100,1");
    EXPECT_EQ(defs.Find("Bad"), nullptr);

    // Redefining keeps earlier records readable; readers and writers may run together.
    defs.Add({"Gain", CAttribValue::Type::Int, "again", "FMT_DEPTH"});
    EXPECT_EQ(gain->GetCtlAttribs(), "FMT_DISTANCE,0,100,1");
    EXPECT_EQ(defs.Find("Gain")->type, CAttribValue::Type::Int);
    QThread* writer = QThread::create([&defs] {
        for (int i = 0; i < 500; ++i)
            defs.Add({QStringLiteral("W%1").arg(i), CAttribValue::Type::Int, {}, {}});
    });
    writer->start();
    for (int i = 0; i < 500; ++i)
        ASSERT_NE(defs.Find("Name"), nullptr);
    writer->wait();
    delete writer;
    EXPECT_EQ(defs.Count(), 503);
    defs.Clear();
}
