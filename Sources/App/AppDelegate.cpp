// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include "AppModel.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

AppDelegate::AppDelegate(AppModel& model, QWidget& window)
    : m_model(model)
    , m_window(window)
{
    qApp->installEventFilter(this);
    connect(&m_model, &AppModel::flowEnded, this, &AppDelegate::quitWhenIdle);
    // Directly, as the signal asks for: when it returns, the session goes on to end the program.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &AppDelegate::expectSessionEnd,
            Qt::DirectConnection);

    auto* const quit = new QAction(&m_window);
    quit->setShortcuts({QKeySequence::Quit, QKeySequence::Close});
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
    // A second request while the question stands, or while the end is under way, changes nothing.
    if (m_asking || m_quitting)
        return m_quitting;
    {
        const QScopedValueRollback asking(m_asking, true);
        // The system may have ended the question together with the program.
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

void AppDelegate::expectSessionEnd()
{
    m_sessionEnds = true;
}

void AppDelegate::beginToQuit()
{
    m_quitting = true;
    Q_EMIT terminating();
    // Hiding a question that stands is to decline it.
    const auto windows = QApplication::topLevelWidgets();
    for (auto* const window : windows)
        window->hide();
    quitWhenIdle();
}

void AppDelegate::activate(const QByteArray& activationToken)
{
    if (m_quitting)
        return;
    // This is where Qt looks for it on Wayland, and only there. No program started later may
    // inherit it, and elsewhere the environment, which other threads read, is better left alone.
    constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";
    const auto isPassedOn = !activationToken.isEmpty() &&
                            QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (isPassedOn)
        qputenv(tokenVariable, activationToken);
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    applicationDidFinishLaunching();
    if (isPassedOn)
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
