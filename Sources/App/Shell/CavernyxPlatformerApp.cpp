// SPDX-License-Identifier: MIT
#include "Shell/CavernyxPlatformerApp.h"

#include "Controls/LauncherStyle.h"
#include "Controls/Palettes.h"
#include "Install/Paths.h"
#include "Model/AppModel.h"
#include "Platform/Appearance.h"
#include "Platform/FontConfiguration.h"
#include "Platform/Platform.h"
#include "Project/GameFacts.h"
#include "Shell/AppDelegate.h"
#include "Shell/SetupMonitor.h"
#include "Shell/WidgetDesktop.h"
#include "System/Errors.h"
#include "System/InstallationLock.h"
#include "System/OffThread.h"
#include "System/TerminationSignals.h"
#include "Views/ContentView.h"

#include <QIcon>
#include <QImageReader>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QScopeGuard>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Sets what must be set before the application is constructed.
void prepare()
{
    QCoreApplication::setApplicationName(GameFacts::launcherName.toString());
    QCoreApplication::setApplicationVersion(QString::fromUtf8(CAVERNYX_VERSION));
    QGuiApplication::setDesktopFileName(GameFacts::applicationId.toString());
    // Does not round fractional scale factors.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication::setStyle(new LauncherStyle);
}

std::mutex messagesMutex;
QStringList startMessages;

/// Turns Qt's fatal error "no display" into one sentence and exit status 1.
void handleStartMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const std::lock_guard guard(messagesMutex);
    startMessages.append(message);
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "%s needs a graphical desktop, and no display could be opened.\n",
                 qPrintable(GameFacts::launcherName.toString()));
    std::_Exit(EXIT_FAILURE);
}

/// Prints Qt's messages afterwards, since they may belong to the fatal error.
QApplication makeApplication(int& argumentCount, char** arguments)
{
    qInstallMessageHandler(handleStartMessage);
    const auto guard = qScopeGuard([] {
        qInstallMessageHandler(nullptr);
        for (const auto& message : std::exchange(startMessages, {}))
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    prepare();
    const FontConfiguration fonts; // Loads while Qt connects to the display.
    return QApplication(argumentCount, arguments);
}

void setAppearance(const Appearance& appearance)
{
    Palettes::apply(appearance);
    static_cast<LauncherStyle*>(QApplication::style())->setReducesMotion(appearance.reducedMotion);
}

/// The icon in the sizes of the window's frame and its alerts. The desktop uses the installed ones.
QIcon programIcon()
{
    QIcon icon;
    for (const auto& file : {u":/icon/icon-64.png"_s, u":/icon/icon-128.png"_s}) {
        QImageReader reader(file, "png");
        // To detect the format, Qt would load every image plug-in.
        reader.setAutoDetectImageFormat(false);
        icon.addPixmap(QPixmap::fromImageReader(&reader));
    }
    return icon;
}

/// Call it before the application is constructed, which unsets these variables.
QByteArray activationToken()
{
    const auto token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

/// Never destroyed: if the program ends without releasing the lock, the process holds it until its
/// last thread has ended.
InstallationLock& installationLock()
{
    static auto& lock = *new InstallationLock(Paths::lockFile());
    return lock;
}

/// Allows another launcher to start while this process is still ending.
void releaseLock()
{
    // Whatever else changes the installation runs on this pool; all child processes have ended.
    workerPool().waitForDone();
    installationLock().release();
}

QString translationsFolder()
{
    return hostPlatform().translationsFolder(QCoreApplication::applicationDirPath(),
                                             GameFacts::programName.toString());
}

} // namespace

AppModel& AppModel::shared()
{
    static WidgetDesktop desktop;
    // Never destroyed: it is used until the process ends.
    static auto& model = *new AppModel(desktop, installationLock());
    return model;
}

CavernyxPlatformerApp::CavernyxPlatformerApp(char* programName)
    : m_arguments{programName, nullptr}
    , m_activationToken(activationToken())
    , m_application(makeApplication(m_argumentCount, m_arguments))
    , m_translation(translationsFolder(), QLocale().uiLanguages())
{
    // A blinking cursor in a read-only text would wake the processor.
    QApplication::setCursorFlashTime(0);
    // The delegate decides when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);
    // The first picture does not wait for the icon.
    QTimer::singleShot(0, [] { QApplication::setWindowIcon(programIcon()); });
}

int CavernyxPlatformerApp::run()
{
    try {
        // First, because it creates the folder that serverName() resolves.
        auto& lock = installationLock();
        SingleInstance instance(lock, SingleInstance::serverName(Paths::lockFile()));
        return run(instance);
    } catch (const PlatformError& error) {
        warn(error.message());
        return EXIT_FAILURE;
    }
}

int CavernyxPlatformerApp::run(SingleInstance& instance)
{
    switch (start(instance)) {
    case SingleInstance::Start::first: {
        const auto status = runFirst(instance);
        releaseLock();
        return status;
    }
    case SingleInstance::Start::handedOver:
        // Qt 6.4 can hang when it closes a Wayland connection that is this new.
        std::_Exit(EXIT_SUCCESS);
    case SingleInstance::Start::noAnswer:
        warn(tr("%1 is already running, but does not answer. Close it first.")
                 .arg(GameFacts::launcherName));
        return EXIT_FAILURE;
    }
    Q_UNREACHABLE();
}

SingleInstance::Start CavernyxPlatformerApp::start(SingleInstance& instance)
{
    // The other launcher usually answers sooner.
    constexpr auto maxSilence = 300ms;
    std::unique_ptr<QMessageBox> message;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&message] {
        message = std::make_unique<QMessageBox>(
            QMessageBox::Information, QCoreApplication::applicationName(),
            tr("%1 is already running. Waiting for its answer…").arg(GameFacts::launcherName));
        message->show();
    });
    timer.start(maxSilence);
    return instance.start(m_activationToken);
}

int CavernyxPlatformerApp::runFirst(SingleInstance& instance)
{
    auto& model = AppModel::shared();
    Palettes::apply({});
    const AppearancePortal portal;
    ContentView window(model);
    AppDelegate delegate(model, window);
    const SetupMonitor setupMonitor(model, window);
    const TerminationSignals terminationSignals;

    QObject::connect(&portal, &AppearancePortal::changed, &setAppearance);
    QObject::connect(&instance, &SingleInstance::activated, &delegate, &AppDelegate::activate);
    QObject::connect(&setupMonitor, &SetupMonitor::activated, &delegate, &AppDelegate::activate);
    QObject::connect(&delegate, &AppDelegate::terminating, &instance,
                     &SingleInstance::stopListening);
    QObject::connect(&terminationSignals, &TerminationSignals::received, &delegate,
                     &AppDelegate::terminate);

    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}

void CavernyxPlatformerApp::warn(const QString& sentence)
{
    std::fputs(qPrintable(sentence + u'\n'), stderr);
    QMessageBox::warning(nullptr, QCoreApplication::applicationName(), sentence);
}
