// SPDX-License-Identifier: MIT
#include "CavernyxPlatformerApp.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "ColorScheme.h"
#include "DisplayCheck.h"
#include "Install/Leftovers.h"
#include "Install/Paths.h"
#include "Platform/PlatformError.h"
#include "Platform/SessionLock.h"
#include "Platform/TerminationSignals.h"
#include "SingleInstance.h"
#include "Views/ContentView.h"
#include "Views/LauncherStyle.h"
#include "WidgetDesktop.h"

#include <QIcon>
#include <QImageReader>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QThreadPool>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <stop_token>

namespace {

/// Names and settings that have to be known before the application is made.
void prepare()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Cavernyx Platformer"));
    QCoreApplication::setApplicationName(QStringLiteral("Cavernyx Platformer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CAVERNYX_VERSION));
    QGuiApplication::setDesktopFileName(
        QStringLiteral("io.github.brindlework_demos.CavernyxPlatformer"));
    // A fraction of the screen's scale is used as it is, so that sizes stay exact.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication::setStyle(new LauncherStyle);
}

/// The icon at the sizes that are shown here; the desktop finds the others where it is installed.
QIcon programIcon()
{
    QIcon icon;
    for (const auto* const file : {":/icon/icon-64.png", ":/icon/icon-128.png"}) {
        QImageReader reader(QString::fromLatin1(file), "png");
        // Otherwise Qt loads every image plug-in to ask whether the file is one of its own.
        reader.setAutoDetectImageFormat(false);
        icon.addPixmap(QPixmap::fromImageReader(&reader));
    }
    return icon;
}

/// What the desktop hands to a program that the player has started. Read before the application is
/// made, which takes it away.
QByteArray activationToken()
{
    const auto token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

QString sessionLockFile()
{
    try {
        return Paths::sessionLock();
    } catch (const PlatformError&) {
        return {}; // Without a home nothing can be installed, and so nothing is shared.
    }
}

/// Never destroyed: a program that ends without having released it keeps the claim until it is
/// gone, and with it all that still works on the files.
SessionLock& session()
{
    static auto& lock = *new SessionLock(sessionLockFile());
    return lock;
}

/// Lets the next start go on at once. The application's own end can take long: it waits until the
/// system has given up on host names that nobody knows.
void leaveInstallation()
{
    // The children have ended by now; every other change to the installation is this pool's work.
    QThreadPool::globalInstance()->waitForDone();
    session().release();
}

void sayThatAnotherDoesNotAnswer()
{
    const auto sentence = QCoreApplication::translate(
        "CavernyxPlatformerApp",
        "Cavernyx Platformer is already running, but does not answer. Close it first.");
    std::fputs(qPrintable(sentence + u'\n'), stderr);
    QMessageBox::warning(nullptr, QCoreApplication::applicationName(), sentence);
}

QApplication makeApplication(int& argumentCount, char** arguments)
{
    const DisplayCheck check;
    prepare();
    return QApplication(argumentCount, arguments);
}

} // namespace

AppModel& AppModel::shared()
{
    static WidgetDesktop desktop;
    // Never released: it serves until the process is gone.
    static auto& model = *new AppModel(desktop, session());
    return model;
}

CavernyxPlatformerApp::CavernyxPlatformerApp(char* programName)
    : m_arguments{programName, nullptr}
    , m_activationToken(activationToken())
    , m_application(makeApplication(m_argumentCount, m_arguments))
{
    // Nothing is edited here; a caret in the selectable texts need not wake the processor.
    QApplication::setCursorFlashTime(0);
    // The delegate decides when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);
    loadTranslation();
    QApplication::setWindowIcon(programIcon());
}

int CavernyxPlatformerApp::run()
{
    auto& lock = session(); // It makes the folder that the address is derived from.
    SingleInstance instance(lock, SingleInstance::addressOf(sessionLockFile()));
    switch (instance.start(m_activationToken)) {
    case SingleInstance::Start::first: {
        const auto status = runFirst(instance);
        leaveInstallation();
        return status;
    }
    case SingleInstance::Start::handedOver:
        return EXIT_SUCCESS;
    case SingleInstance::Start::noAnswer:
        sayThatAnotherDoesNotAnswer();
        return EXIT_FAILURE;
    }
    Q_UNREACHABLE();
}

int CavernyxPlatformerApp::runFirst(SingleInstance& instance)
{
    std::stop_source end;
    auto clearing = Leftovers::clear(session(), end.get_token());
    auto& model = AppModel::shared();
    clearing.then(&model, [&model](bool anyRemoved) {
        if (anyRemoved)
            model.updateSize();
    });
    ColorScheme colorScheme;
    ContentView window(model);
    AppDelegate delegate(model, window);
    const TerminationSignals terminationSignals;

    QObject::connect(&instance, &SingleInstance::activated, &delegate, &AppDelegate::activate);
    QObject::connect(&delegate, &AppDelegate::terminating, &instance,
                     &SingleInstance::stopListening);
    QObject::connect(&terminationSignals, &TerminationSignals::received, &delegate,
                     &AppDelegate::terminate);

    delegate.applicationDidFinishLaunching();
    const auto status = QApplication::exec();
    end.request_stop();
    return status;
}

void CavernyxPlatformerApp::loadTranslation()
{
    const auto folder = QCoreApplication::applicationDirPath() +
                        QStringLiteral("/../share/cavernyx-platformer/translations");
    // What Qt says by itself, as in the menu of a selectable text, is in the same language as ours.
    if (installTranslation(QStringLiteral("cavernyx-platformer"), folder))
        installTranslation(QStringLiteral("qtbase"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

bool CavernyxPlatformerApp::installTranslation(const QString& name, const QString& folder)
{
    auto* const translator = new QTranslator(&m_application);
    return translator->load(QLocale(), name, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(translator);
}
