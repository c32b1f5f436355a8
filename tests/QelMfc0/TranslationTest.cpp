// Every text of the code has a finished Dutch translation with the same placeholders and
// accelerators; the library attached in Dutch speaks Dutch unless the host declines.
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QelBase/QelUnitCnv.h>
#include <QelBase/UnitCategories.h>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/StringTable.h>
#include <gtest/gtest.h>

#include <map>

namespace {

struct Message {
    QString context, source, comment;
    bool numerus = false;
    QString type;              // empty when finished
    QStringList translations;  // one per numerus form
};

QString KeyOf(const Message& m)
{
    return m.context + QChar(0x1F) + m.source + QChar(0x1F) + m.comment;
}

// The messages of a .ts file; false when it cannot be read.
bool ReadTs(const QString& path, std::map<QString, Message>& messages, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return error = path + ": " + file.errorString(), false;
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        const QString name = xml.name().toString(); // outlives readElementText()
        if (xml.isEndElement() && name == u"message")
            messages[KeyOf(message)] = message;
        if (!xml.isStartElement())
            continue;
        if (name == u"name")
            context = xml.readElementText();
        else if (name == u"message")
            message = Message { context, {}, {}, xml.attributes().value(QLatin1String("numerus")) == u"yes", {}, {} };
        else if (name == u"source")
            message.source = xml.readElementText();
        else if (name == u"comment")
            message.comment = xml.readElementText();
        else if (name == u"translation")
            message.type = xml.attributes().value(QLatin1String("type")).toString();
        if ((name == u"translation" && !message.numerus) || name == u"numerusform")
            message.translations << xml.readElementText();
    }
    if (xml.hasError())
        return error = path + ": " + xml.errorString(), false;
    return true;
}

// The placeholders of a text: %1..%9 (also as %L1) and the unit placeholders %A..%Z, sorted.
QStringList Placeholders(const QString& text)
{
    static const QRegularExpression marker(QStringLiteral("%(L?[1-9]|[A-KM-Z])"));
    QStringList found;
    for (auto it = marker.globalMatch(text); it.hasNext();)
        found << it.next().captured(1);
    found.sort();
    return found;
}

// True when the text marks a keyboard accelerator ("&File"; "&&" is a plain ampersand).
bool HasAccelerator(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&' && text[i + 1] == u'&')
            ++i;
        else if (text[i] == u'&' && !text[i + 1].isSpace())
            return true;
    }
    return false;
}

QString Quoted(const Message& m)
{
    return QString("%1: \"%2\"").arg(m.context, QString(m.source).replace('\n', "\\n"));
}

struct Catalogue {
    const char* name;
    const char* lupdateList; // the include folders and sources lupdate scans
    const char* tsFiles;     // the committed translations, ';'-separated
    const char *context, *text; // a text the scan must find, so that an empty scan cannot pass
};

const Catalogue kCatalogues[] = {
    { "library", QEL_LIBRARY_LUPDATE_LIST, QEL_LIBRARY_TS, "QelMfc0", "Night" },
#ifdef QEL_GALLERY_TS
    { "gallery", QEL_GALLERY_LUPDATE_LIST, QEL_GALLERY_TS, "GalleryWindow", "&File" },
#endif
};

} // namespace

TEST(Translations, EveryTextOfTheCodeHasAFinishedTranslationWithTheSamePlaceholders)
{
    for (const Catalogue& catalogue : kCatalogues) {
        for (const QString& tsPath : QString::fromUtf8(catalogue.tsFiles).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            SCOPED_TRACE(tsPath.toStdString());
            // A fresh scan of the code, so that a text not yet in the committed file counts too.
            QTemporaryDir work;
            const QString fresh = work.filePath(QFileInfo(tsPath).fileName());
            QProcess lupdate;
            lupdate.start(QEL_LUPDATE, { "-silent", "-no-obsolete", "-locations", "none", QString("@") + catalogue.lupdateList, "-ts", fresh });
            ASSERT_TRUE(lupdate.waitForFinished(120000));
            ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();

            std::map<QString, Message> scanned, committed;
            QString error;
            ASSERT_TRUE(ReadTs(fresh, scanned, error)) << error.toStdString();
            ASSERT_TRUE(ReadTs(tsPath, committed, error)) << error.toStdString();
            const Message known { catalogue.context, catalogue.text, {}, false, {}, {} };
            ASSERT_TRUE(scanned.count(KeyOf(known))) << catalogue.name << ": the scan missed " << Quoted(known).toStdString();

            QStringList problems;
            for (const auto& [key, text] : scanned) {
                const auto found = committed.find(key);
                const QStringList translations = found == committed.end() ? QStringList() : found->second.translations;
                if (translations.isEmpty() || translations.contains(QString()) || !found->second.type.isEmpty()) {
                    problems << Quoted(text) + " has no finished translation";
                    continue;
                }
                for (const QString& translation : translations) {
                    if (Placeholders(translation) != Placeholders(text.source))
                        problems << Quoted(text) + QString(" has other placeholders in \"%1\"").arg(translation);
                    if (HasAccelerator(translation) != HasAccelerator(text.source))
                        problems << Quoted(text) + QString(" has an accelerator in only one of \"%1\"").arg(translation);
                }
            }
            EXPECT_TRUE(problems.isEmpty()) << problems.size() << " texts need work (a build adds new ones as unfinished):\n  "
                                            << problems.join("\n  ").toStdString();
        }
    }
}

TEST(Translations, TheLibraryAttachedInDutchShowsItsAndTheSuiteTextsInDutch)
{
    const QLocale userLocale;
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QelMfc0Detach();
    ASSERT_TRUE(QelMfc0Attach());

    EXPECT_EQ(LoadQelString(QelStrings::MODE_NIGHT), "Nacht");
    EXPECT_EQ(UnitCategoryDisplayName(UNIT_DEPTH), "Diepte-eenheden");
    EXPECT_EQ(UnitCategoryName(UNIT_DEPTH), "Depth Units") << "the file key stays as the files write it";
    UnitInfo unit;
    ASSERT_TRUE(CQelUnitCnv::FindUnit(UNIT_DISTANCE, QStringLiteral("NM"), unit));
    EXPECT_EQ(unit.name, "Zeemijl");
    QString description, extension;
    int pathKind = 0;
    ASSERT_TRUE(DataSearch::GetDataSearch().GetFileTypeInfo(DataSearch::TYPE_PROJECT, description, extension, pathKind));
    EXPECT_EQ(description, "Projectdefinitiebestand");

    // A host that declines the translator: the installed one goes, a new attach installs none,
    // and the host may load the library's translation itself.
    QelMfc0AttachOptions options;
    options.installTranslator = false;
    QelMfc0SetAttachOptions(options);
    EXPECT_EQ(LoadQelString(QelStrings::MODE_NIGHT), "Night");
    QelMfc0Detach();
    ASSERT_TRUE(QelMfc0Attach());
    EXPECT_EQ(LoadQelString(QelStrings::MODE_NIGHT), "Night");
    QTranslator hostOwned;
    ASSERT_TRUE(QelMfc0LoadTranslation(hostOwned, QLocale(QLocale::Dutch)));
    QCoreApplication::installTranslator(&hostOwned);
    EXPECT_EQ(LoadQelString(QelStrings::MODE_NIGHT), "Nacht");
    QCoreApplication::removeTranslator(&hostOwned);
    QelMfc0SetAttachOptions(QelMfc0AttachOptions());

    QLocale::setDefault(userLocale);
    QelMfc0Detach();
    ASSERT_TRUE(QelMfc0Attach());
    if (userLocale.language() != QLocale::Dutch) {
        EXPECT_EQ(LoadQelString(QelStrings::MODE_NIGHT), "Night") << "back in the user's language";
    }
}
