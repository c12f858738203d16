// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppModel;
class QWidget;

/// Brings the window to the front when the program has started, and decides when the program ends:
/// with its window, after the question while the game runs, or when the system says so, and only
/// once everything that the model had started has ended.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the delegate.
    AppDelegate(AppModel& model, QWidget& window);

    /// Shows the window in front.
    void applicationDidFinishLaunching();
    /// Asks the model whether the program may quit, and if so begins to. False when the player
    /// declined; the window then stays.
    bool applicationShouldTerminate();
    /// Begins to quit without a question: the system wants the program gone.
    void terminate();
    /// Brings the window to the front, as another start of the program asks. By `activationToken`,
    /// if it gave one, a Wayland desktop knows that the player wanted this; another desktop may
    /// only mark the window as wanting attention.
    void activate(const QByteArray& activationToken);

Q_SIGNALS:
    /// The program has begun to quit and will do so.
    void terminating();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// The session is about to end, unless another program keeps it from that. When the application
    /// is told to quit then, it is the session's end, and no question is asked.
    void expectSessionEnd();
    void beginToQuit();
    void quitWhenIdle();

    AppModel& m_model;
    QWidget& m_window;
    bool m_asking = false;
    bool m_quitting = false;
    bool m_sessionEnds = false;
};
