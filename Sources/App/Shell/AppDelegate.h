// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppModel;
class QWidget;

/// Brings the window to the front when the program has started, and decides when the program ends.
///
/// It ends when its window is closed, after a question if the game runs, or when the system tells
/// it to; in each case only after everything that the model has started has ended.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the delegate.
    AppDelegate(AppModel& model, QWidget& window);

    /// Shows the window in front.
    void applicationDidFinishLaunching();
    /// Asks the model whether the program may quit, and if so begins to. Returns false when the
    /// player declined; the window then stays.
    bool applicationShouldTerminate();
    /// Begins to quit without a question, because the system ends the program.
    void terminate();
    /// Brings the window to the front because the program was started again. A Wayland desktop
    /// allows that only with the `activationToken` of that start; others may just mark the window
    /// as wanting attention.
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
