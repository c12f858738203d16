// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppModel;
class QWidget;

/// Shows the window, and ends the program: when the window is closed, after a question if the game
/// runs, or when the system ends the session. It exits only after the model's flow has ended.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the delegate.
    AppDelegate(AppModel& model, QWidget& window);

    /// Shows the window and brings it to the front.
    void applicationDidFinishLaunching();
    /// Asks the model whether the program may quit, and begins to quit if so. Returns false if the
    /// player declined.
    bool applicationShouldTerminate();
    /// Begins to quit without a question.
    void terminate();
    /// Brings the window to the front because the program was started again. A Wayland desktop
    /// requires the `activationToken` of that start; other desktops may only highlight the window
    /// in the task bar.
    void activate(const QByteArray& activationToken);

Q_SIGNALS:
    /// The program has begun to quit.
    void terminating();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void beginToQuit();
    void quitWhenIdle();

    AppModel& m_model;
    QWidget& m_window;
    bool m_asking = false;
    bool m_quitting = false;
    bool m_sessionEnds = false;
};
