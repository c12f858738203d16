// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include "AppModel.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

AppDelegate::AppDelegate(AppModel& model, QWidget& window)
    : m_model(model)
    , m_window(window)
{
    m_window.installEventFilter(this);
    connect(&m_model, &AppModel::flowEnded, this, &AppDelegate::quitWhenIdle);

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
        m_quitting = m_model.confirmQuit();
    }
    if (m_quitting) {
        m_window.hide();
        quitWhenIdle();
    }
    return m_quitting;
}

bool AppDelegate::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(object, event);
    event->setAccepted(applicationShouldTerminate());
    return true;
}

void AppDelegate::quitWhenIdle()
{
    if (m_quitting && !m_model.isFlowRunning())
        QCoreApplication::exit();
}
