// QelGallery started as a user starts it: refused projects, runs without a display, screenshot
// names, its language, and the unpacked sample project removed on every way out.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

struct Outcome {
    int exitCode = -1;
    bool crashed = false;
    QString out;
    QStringList errorLines; // non-empty lines on stderr
    QStringList leftovers;  // what the program left in its temporary folder
};

class GalleryStart : public ::testing::Test {
protected:
    // Own temporary folder, no display, no platform chosen, the given language.
    QProcessEnvironment Environment(const QString& language = QStringLiteral("C")) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LANGUAGE", "LC_ALL", "LC_MESSAGES" })
            env.remove(QString::fromLatin1(name));
        env.insert(QStringLiteral("TMPDIR"), m_tmp.path());
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
        env.insert(QStringLiteral("LANG"), language);
        env.insert(QStringLiteral("HOME"), m_home.path());
        return env;
    }

    Outcome Finish(QProcess& process, int timeoutMs = 60000) const
    {
        Outcome outcome;
        if (!process.waitForFinished(timeoutMs)) {
            process.kill();
            process.waitForFinished();
        }
        outcome.crashed = process.exitStatus() != QProcess::NormalExit;
        outcome.exitCode = process.exitCode();
        outcome.out = QString::fromLocal8Bit(process.readAllStandardOutput());
        const QString err = QString::fromLocal8Bit(process.readAllStandardError());
        for (const QString& line : err.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            if (!line.startsWith(QLatin1String("This plugin does not support"))) // offscreen platform notes
                outcome.errorLines << line;
        outcome.leftovers = QDir(m_tmp.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        return outcome;
    }

    Outcome Run(const QStringList& arguments, const QProcessEnvironment& env) const
    {
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(QEL_GALLERY_EXE), arguments);
        return Finish(process);
    }

    // A writable copy of the sample projects.
    QString CopyOfSamples() const
    {
        const QString target = m_work.path() + QStringLiteral("/projects");
        QProcess copy;
        copy.start(QStringLiteral("cp"), { QStringLiteral("-R"), QStringLiteral(QEL_SAMPLES_DIR), target });
        copy.waitForFinished();
        return target;
    }

    QTemporaryDir m_tmp, m_runtime, m_home, m_work;
};

TEST_F(GalleryStart, ProjectsItCannotShowAreRefusedInOneLineAndLeaveNothingBehind)
{
    const QString projects = CopyOfSamples();
    ASSERT_TRUE(QFile::remove(projects + QStringLiteral("/Common/Units.def")));
    const struct {
        QStringList arguments;
        QString named; // what the line must name
    } cases[] = {
        { { QStringLiteral("--project"), QStringLiteral("Foo") }, QStringLiteral("NorthSeaED50") },
        { { QStringLiteral("--projects"), m_work.path() + QStringLiteral("/none"), QStringLiteral("--project"), QStringLiteral("NorthSea") },
          QStringLiteral("Project.qpd") },
        { { QStringLiteral("--projects"), projects, QStringLiteral("--project"), QStringLiteral("NorthSea") }, QStringLiteral("Units.def") },
    };
    QProcessEnvironment env = Environment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments.join(QLatin1Char(' ')).toStdString());
        const Outcome outcome = Run(c.arguments, env);
        EXPECT_FALSE(outcome.crashed);
        EXPECT_EQ(outcome.exitCode, 2);
        ASSERT_EQ(outcome.errorLines.size(), 1) << outcome.errorLines.join(QLatin1Char('\n')).toStdString();
        EXPECT_TRUE(outcome.errorLines[0].contains(c.named)) << outcome.errorLines[0].toStdString();
        EXPECT_TRUE(outcome.leftovers.isEmpty()) << outcome.leftovers.join(QLatin1Char(' ')).toStdString();
    }
}

TEST_F(GalleryStart, ScreenshotsWithoutADisplayHaveTheSameNamesInEveryLanguage)
{
    const QString shots = m_work.path() + QStringLiteral("/shots");
    const Outcome outcome = Run({ QStringLiteral("--screenshot"), shots }, Environment(QStringLiteral("nl_NL.UTF-8")));
    EXPECT_FALSE(outcome.crashed);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errorLines.join(QLatin1Char('\n')).toStdString();
    for (const char* name : { "01-library-normal.png", "04-entry-measure3d-twilight.png", "night-messagebox.png" })
        EXPECT_TRUE(QFile::exists(shots + QLatin1Char('/') + QLatin1String(name))) << name;
    EXPECT_TRUE(outcome.leftovers.isEmpty()) << outcome.leftovers.join(QLatin1Char(' ')).toStdString();
}

// Help needs no display; the window without one is refused in one line.
TEST_F(GalleryStart, HelpSpeaksTheSystemsLanguageOrTheOneAskedForAndRefusalsTakeOneLine)
{
    const QString dutch = QStringLiteral("Toont de bedieningselementen van de QelMfc0-bibliotheek.");
    const QString english = QStringLiteral("Shows the controls of the QelMfc0 library.");
    const struct {
        QString system;
        QStringList arguments;
        QString description;
    } cases[] = {
        { QStringLiteral("nl_NL.UTF-8"), { QStringLiteral("--help") }, dutch },
        { QStringLiteral("C"), { QStringLiteral("--language=nl_BE"), QStringLiteral("--help") }, dutch },
        { QStringLiteral("nl_NL.UTF-8"), { QStringLiteral("--language"), QStringLiteral("en"), QStringLiteral("--help") }, english },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE((c.system + QLatin1Char(' ') + c.arguments.join(QLatin1Char(' '))).toStdString());
        const Outcome help = Run(c.arguments, Environment(c.system));
        EXPECT_FALSE(help.crashed);
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_TRUE(help.out.contains(c.description) && help.out.contains(QLatin1String("--screenshot")))
            << help.out.toStdString();
    }
    const Outcome window = Run({}, Environment());
    EXPECT_FALSE(window.crashed);
    EXPECT_EQ(window.exitCode, 2);
    EXPECT_EQ(window.errorLines.size(), 1) << window.errorLines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(window.leftovers.isEmpty());

    // A language the gallery does not speak: one line that names it, before anything is unpacked.
    QProcessEnvironment offscreen = Environment();
    offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    const Outcome unknown = Run({ QStringLiteral("--language"), QStringLiteral("xx") }, offscreen);
    EXPECT_EQ(unknown.exitCode, 2);
    ASSERT_EQ(unknown.errorLines.size(), 1) << unknown.errorLines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(unknown.errorLines[0].contains(QLatin1String("\"xx\"")) && unknown.errorLines[0].contains(QLatin1String("en, nl")))
        << unknown.errorLines[0].toStdString();
    EXPECT_TRUE(unknown.leftovers.isEmpty());
}

TEST_F(GalleryStart, TerminationSignalQuitsAndRemovesTheUnpackedProject)
{
    QProcessEnvironment env = Environment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(QEL_GALLERY_EXE), {});
    ASSERT_TRUE(process.waitForStarted());
    // Running once the sample project is unpacked and the window has been up a moment.
    const QDir tmp(m_tmp.path());
    for (int i = 0; i < 300 && tmp.isEmpty(QDir::Dirs | QDir::NoDotAndDotDot); ++i)
        QThread::msleep(20);
    ASSERT_FALSE(tmp.isEmpty(QDir::Dirs | QDir::NoDotAndDotDot));
    QThread::msleep(500);
    process.terminate();
    const Outcome outcome = Finish(process);
    EXPECT_FALSE(outcome.crashed);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.leftovers.isEmpty()) << outcome.leftovers.join(QLatin1Char(' ')).toStdString();
}

} // namespace
