// SPDX-License-Identifier: MIT
#include "Shell/AppDelegate.h"

#include "Model/AppModel.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

using namespace Qt::StringLiterals;

AppDelegate::AppDelegate(AppModel& model, QWidget& window)
    : m_model(model)
    , m_window(window)
{
    qApp->installEventFilter(this);
    connect(&m_model, &AppModel::flowEnded, this, &AppDelegate::quitWhenIdle);
    // The desktop ends the session; a quit event follows, which then asks no question. The signal
    // requires a direct connection.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { m_sessionEnds = true; },
        Qt::DirectConnection);

    auto* const quit = new QAction(&m_window);
    quit->setShortcuts({QKeySequence::Quit, QKeySequence::Close});
    quit->setAutoRepeat(false); // The key may still be held after closing a sheet.
    connect(quit, &QAction::triggered, &m_window, &QWidget::close);
    m_window.addAction(quit);
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

bool AppDelegate::applicationShouldTerminate()
{
    // A second request has no effect.
    if (m_asking || m_quitting)
        return m_quitting;
    {
        const QScopedValueRollback asking(m_asking, true);
        // terminate() may have been called during the question.
        if (!m_model.confirmQuit() || m_quitting)
            return m_quitting;
    }
    beginToQuit();
    return true;
}

void AppDelegate::terminate()
{
    if (m_quitting)
        return;
    m_model.endForQuit();
    beginToQuit();
}

void AppDelegate::beginToQuit()
{
    m_quitting = true;
    Q_EMIT terminating();
    // Hiding an open question declines it.
    const auto windows = QApplication::topLevelWidgets();
    for (auto* const window : windows)
        window->hide();
    quitWhenIdle();
}

void AppDelegate::activate(const QByteArray& activationToken)
{
    if (m_quitting)
        return;
    // Qt reads the token from the environment, on Wayland only. It is removed at once so that no
    // child process inherits it. Not set elsewhere, because other threads read the environment.
    constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";
    const auto setsToken =
        !activationToken.isEmpty() && QGuiApplication::platformName().startsWith("wayland"_L1);
    if (setsToken)
        qputenv(tokenVariable, activationToken);
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    applicationDidFinishLaunching();
    if (setsToken)
        qunsetenv(tokenVariable);
}

bool AppDelegate::eventFilter(QObject* object, QEvent* event)
{
    const auto closes = object == &m_window && event->type() == QEvent::Close;
    const auto quits = object == qApp && event->type() == QEvent::Quit;
    if (!closes && !quits)
        return QObject::eventFilter(object, event);
    if (quits && m_sessionEnds)
        terminate();
    event->setAccepted(m_quitting || applicationShouldTerminate());
    return true;
}

void AppDelegate::quitWhenIdle()
{
    if (m_quitting && !m_model.isFlowRunning())
        QCoreApplication::exit();
}
