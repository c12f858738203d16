// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppModel;
class QWidget;

/// Brings the window to the front when the program has started, and decides when the program ends:
/// with its window, after the question while the game runs, and only once everything that the model
/// had started has ended.
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

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void quitWhenIdle();

    AppModel& m_model;
    QWidget& m_window;
    bool m_asking = false;
    bool m_quitting = false;
};
