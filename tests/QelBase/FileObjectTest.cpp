// Sectioned files: parsing, lossless saving, typed reads and in-place writes.
#include <QelBase/FileObject.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace {

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool writeAll(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

} // namespace

TEST(FileObject, ParsesSectionsEntriesAndIgnoresJunk)
{
    FileObject fo;
    fo.LoadFromText(QStringLiteral("top = 1\n"
                                   "; comment\n"
                                   "# other comment\n"
                                   "[Colors]\n"
                                   "  Red  =  255 0 0  \n"
                                   "this line is junk\n"
                                   " = no key\n"
                                   "url = a=b=c\n"
                                   "[params]\n"
                                   "x=\n"
                                   "[COLORS]\n"
                                   "Blue = 0 0 255\n"));
    EXPECT_EQ(fo.MalformedLineCount(), 2);
    EXPECT_EQ(fo.GetSections(), (QStringList{"", "Colors", "params"}));

    const QList<QPair<QString, QString>> expected{
        {"Red", "255 0 0"}, {"url", "a=b=c"}, {"Blue", "0 0 255"}};
    EXPECT_EQ(fo.GetEntries("Colors"), expected);

    QString value;
    EXPECT_TRUE(fo.GetString("Params", "x", value));
    EXPECT_EQ(value, "");
}

TEST(FileObject, DuplicateKeysKeepFileOrderAndIterationStops)
{
    FileObject fo;
    fo.LoadFromText("[S]\nk=1\nother=x\nK=2\nk=3\n");
    EXPECT_EQ(fo.GetValues("s", "k"), (QStringList{"1", "2", "3"}));
    QString key, value;
    QStringList seen;
    for (bool ok = fo.GetFirstEntry("S", key, value); ok; ok = fo.GetNextEntry(key, value))
        seen << key + '=' + value;
    EXPECT_EQ(seen, (QStringList{"k=1", "other=x", "K=2", "k=3"}));
    EXPECT_FALSE(fo.GetNextEntry(key, value));
}

TEST(FileObject, OpenMissingFileCreateAndSaveIntoAFile)
{
    QTemporaryDir dir;
    FileObject fo;
    fo.LoadFromText("[A]\nx=1\n");
    EXPECT_FALSE(fo.FileOpen(dir.filePath("missing.ini")));
    EXPECT_FALSE(fo.FileOpen(dir.path()));   // a folder is not a file

    const QString created = dir.filePath("sub/new.ini");
    EXPECT_TRUE(fo.FileOpen(created, FileObject::OPEN_CREATE));
    fo.SetString("A", "x", "1");
    EXPECT_TRUE(fo.FileSave());   // creates the folder
    EXPECT_EQ(readAll(created), "[A]\nx=1\n");

    FileObject unbound;
    unbound.SetInt("A", "x", 1);
    const QString blocker = dir.filePath("plainfile");
    ASSERT_TRUE(writeAll(blocker, "old content"));
    EXPECT_FALSE(unbound.FileSave(blocker + "/child.ini"));   // parent is a file
    EXPECT_EQ(readAll(blocker), "old content");
}

TEST(FileObject, SaveKeepsMalformedLinesCommentsAndPositions)
{
    const QString text = "; header comment\n"
                         "[A]\n"
                         "first = 1   \n"
                         "%%% garbage %%%\n"
                         "; about second\n"
                         "second=2\n"
                         "\n"
                         "[B]\n"
                         "b=1\n";
    FileObject fo;
    fo.LoadFromText(text);
    EXPECT_EQ(fo.ToText(), text);   // untouched lines come back verbatim
    fo.SetInt("a", "FIRST", 10);    // in place, name kept as written
    fo.SetString("A", "third", "3");
    fo.SetString("C", "c", "multi\nline");
    EXPECT_EQ(fo.ToText(), "; header comment\n"
                           "[A]\n"
                           "first=10\n"
                           "%%% garbage %%%\n"
                           "; about second\n"
                           "second=2\n"
                           "third=3\n"
                           "\n"
                           "[B]\n"
                           "b=1\n"
                           "\n"
                           "[C]\n"
                           "c=multi line\n");
}

TEST(FileObject, TypedReadsLeaveValueOnBadInput)
{
    FileObject fo;
    fo.LoadFromText("[T]\n"
                    "i1 = -42\ni3 = 12abc\nd5 =\n"
                    "b1 = YES\nb2 = off\nb3 = 2\n"
                    "t1 = 1, 2 ,3\nt2 = 1 2\nt3 = 1 2 3 4\nt4 = 1 x 3\n");
    for (const auto& [key, ok, expected] : {std::tuple{"i1", true, -42}, {"i3", false, 99}, {"missing", false, 99}}) {
        int v = 99;
        EXPECT_EQ(fo.GetInt("T", key, v), ok) << key;
        EXPECT_EQ(v, expected) << key;
    }
    double d = 9.0;
    EXPECT_FALSE(fo.GetDouble("T", "d5", d));
    EXPECT_EQ(d, 9.0);
    for (const auto& [key, ok, expected] : {std::tuple{"b1", true, true}, {"b2", true, false}, {"b3", false, true}}) {
        bool b = ok ? !expected : expected;
        EXPECT_EQ(fo.GetBool("T", key, b), ok) << key;
        EXPECT_EQ(b, expected) << key;
    }

    int a = 0, m = 0, c = 0;
    EXPECT_TRUE(fo.GetIntTriple("T", "t1", a, m, c));
    EXPECT_EQ((QList<int>{a, m, c}), (QList<int>{1, 2, 3}));
    for (const char* bad : {"t2", "t3", "t4"}) {
        a = m = c = -1;
        EXPECT_FALSE(fo.GetIntTriple("T", bad, a, m, c)) << bad;
        EXPECT_EQ((QList<int>{a, m, c}), (QList<int>{-1, -1, -1})) << bad;
    }
}

TEST(FileObject, DoublesAndTriplesRoundTrip)
{
    const double values[] = {-0.0, 1.0 / 3.0, std::numeric_limits<double>::denorm_min()};
    FileObject fo;
    for (double v : values) {
        fo.SetDouble("D", "v", v);
        FileObject copy;
        copy.LoadFromText(fo.ToText());
        double back = 7.0;
        ASSERT_TRUE(copy.GetDouble("D", "v", back)) << fo.ToText().toStdString();
        EXPECT_EQ(back, v);
        EXPECT_EQ(std::signbit(back), std::signbit(v));
    }
    fo.SetDouble("D", "v", 0.1);
    EXPECT_EQ(fo.GetValues("D", "v"), QStringList{"0.1"});
}

TEST(FileObject, AddRemoveAndRejectedKeys)
{
    FileObject fo;
    fo.LoadFromText("[S]\nk=1\nx=0\n[T]\nk=9\n");
    fo.AddEntry("S", "k", "2");
    EXPECT_EQ(fo.GetValues("S", "k"), (QStringList{"1", "2"}));
    EXPECT_TRUE(fo.RemoveEntry("s", "K"));
    EXPECT_FALSE(fo.RemoveEntry("S", "k"));

    for (const char* key : {"", "  ", "a=b", "[x", ";c", "#c"})
        fo.SetString("S", key, "v");
    EXPECT_EQ(fo.GetEntries("S").size(), 1);

    EXPECT_TRUE(fo.RemoveSection("t"));
    EXPECT_FALSE(fo.RemoveSection("T"));
    EXPECT_EQ(fo.ToText(), "[S]\nx=0\n");
}

TEST(FileObject, AKeyWrittenFirstReadsBackEvenWhenItStartsLikeAByteOrderMark)
{
    // A key beginning with U+FEFF, written as the first line, read back as a byte-order mark and
    // lost its first character.
    FileObject fo;
    fo.SetString("", QString(QChar(0xFEFF)) + "U", "v");
    fo.AddEntry("S", QString(QChar(0xFEFF)), "w");
    FileObject back;
    back.LoadFromText(fo.ToText());
    for (const char* section : {"", "S"})
        EXPECT_EQ(back.GetEntries(section), fo.GetEntries(section)) << fo.ToText().toStdString();
}

TEST(FileObject, ByteOrderMarksLeadingALineAreBlanks)
{
    // A file starting with three marks read its first line as junk, but as a comment once a
    // save had dropped a mark: the file changed meaning when written back.
    QTemporaryDir dir;
    const QString path = dir.filePath("marks.ini");
    const QByteArray bytes = "\xEF\xBB\xBF\xEF\xBB\xBF\xEF\xBB\xBF; comment\r\ntop = value\r\n"
                             "\xEF\xBB\xBF[S]\r\n \xEF\xBB\xBFk = v\r\n";
    ASSERT_TRUE(writeAll(path, bytes));
    FileObject fo;
    ASSERT_TRUE(fo.FileOpen(path));
    const QList<QPair<QString, QString>> top{{"top", "value"}}, s{{"k", "v"}};
    FileObject loaded;
    loaded.LoadFromText(fo.ToText());
    ASSERT_TRUE(fo.FileSave());
    for (const FileObject* read : {&fo, &loaded}) {
        EXPECT_EQ(read->MalformedLineCount(), 0);
        EXPECT_EQ(read->GetEntries(""), top);
        EXPECT_EQ(read->GetEntries("S"), s);
    }
    EXPECT_EQ(readAll(path), bytes) << "written back as read";

    // A character cut off at the end of the file is not lost.
    ASSERT_TRUE(writeAll(path, "k = v\xD4"));
    QString value;
    ASSERT_TRUE(fo.FileOpen(path) && fo.GetString("", "k", value));
    EXPECT_EQ(value, QString("v") + QChar(0xFFFD));
}
