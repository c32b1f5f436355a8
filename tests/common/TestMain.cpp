// Test main shared by every test program: runs headless, never touches the user's files.
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("QelTests"));
    QCoreApplication::setApplicationName(QStringLiteral("QelTests"));
    QApplication app(argc, argv);
    // Per-user settings of every test program go to a folder of its own that disappears with it.
    QTemporaryDir settingsDir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
