#include "QelMfc0/QelMfc0.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QScreen>
#include <QTranslator>
#include <QelBase/DisplayScale.h>
#include <QelMfc0/colour/ApplicationPalette.h>
#include <VersionControl/VersionControl.h>
#include <memory>

static void RegisterQelMfc0Resources()
{
    Q_INIT_RESOURCE(QelMfc0);
}

namespace {
Q_LOGGING_CATEGORY(lcQelMfc0, "qel.mfc0")

enum class AttachState { Detached, Attached, Refused };

struct ModuleState {
    AttachState state = AttachState::Detached;
    QString lastError;
    std::unique_ptr<QTranslator> translator;
    QelMfc0AttachOptions options;
};

ModuleState& Module()
{
    static ModuleState module;
    return module;
}

// Logical pixels per inch of the primary screen over 96; 1.0 without a screen.
double ScreenDpiScale()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return 1.0;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return 1.0;
    const double dpi = screen->logicalDotsPerInchY();
    return dpi > 0.0 ? dpi / 96.0 : 1.0;
}

// The language module: the translation of the library's texts for the user's locale, if one
// is shipped. Missing translations leave the library's own (English) texts.
std::unique_ptr<QTranslator> LoadLanguageModule()
{
    auto translator = std::make_unique<QTranslator>();
    if (!QelMfc0LoadTranslation(*translator, QLocale()))
        return nullptr;
    if (!QCoreApplication::installTranslator(translator.get()))
        return nullptr;
    return translator;
}

void AttachAtStartup()
{
    QelMfc0Attach();
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, [] { QelMfc0Detach(); });
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(AttachAtStartup)

bool QelMfc0LoadTranslation(QTranslator& translator, const QLocale& locale)
{
    RegisterQelMfc0Resources();
    return translator.load(locale, QStringLiteral("QelMfc0"), QStringLiteral("_"),
                           QStringLiteral(":/QelMfc0/translations"));
}

void QelMfc0SetAttachOptions(const QelMfc0AttachOptions& options)
{
    ModuleState& module = Module();
    const QelMfc0AttachOptions old = module.options;
    module.options = options;
    if (module.state != AttachState::Attached || !QCoreApplication::instance())
        return;
    if (old.installTranslator && !options.installTranslator && module.translator) {
        QCoreApplication::removeTranslator(module.translator.get());
        module.translator.reset();
    } else if (!old.installTranslator && options.installTranslator && !module.translator) {
        module.translator = LoadLanguageModule();
    }
    if (old.applyModeStyle && !options.applyModeStyle)
        ApplicationPalette::RestoreOriginal();
}

QelMfc0AttachOptions QelMfc0CurrentAttachOptions()
{
    return Module().options;
}

QString QelMfc0BuildStamp()
{
    return QStringLiteral(__DATE__ " " __TIME__);
}

bool QelMfc0Attach()
{
    ModuleState& module = Module();
    if (module.state == AttachState::Attached)
        return true;
    if (!CheckDllVersion(kQelMfc0Version, QString::fromLatin1(kQelMfc0SourceName), QelMfc0BuildStamp())) {
        module.state = AttachState::Refused;
        module.lastError = LastVersionError();
        qCCritical(lcQelMfc0).noquote() << "QelMfc0 is not usable:" << module.lastError;
        return false;
    }
    RegisterQelMfc0Resources();
    SetDpiScaleProvider(&ScreenDpiScale);
    if (QCoreApplication::instance() && module.options.installTranslator)
        module.translator = LoadLanguageModule();
    module.state = AttachState::Attached;
    module.lastError.clear();
    return true;
}

void QelMfc0Detach()
{
    ModuleState& module = Module();
    if (module.translator && QCoreApplication::instance())
        QCoreApplication::removeTranslator(module.translator.get());
    module.translator.reset();
    SetDpiScaleProvider(nullptr);
    module.state = AttachState::Detached;
}

bool IsQelMfc0Attached()
{
    return Module().state == AttachState::Attached;
}

QString QelMfc0LastError()
{
    return Module().lastError;
}
