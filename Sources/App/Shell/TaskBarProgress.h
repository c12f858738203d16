// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

class AppModel;

/// How far a setup as a whole is, on the task bar. It never goes back.
class TaskBarProgress final
{
public:
    /// To be called after each change of the model. Shows the progress while a setup runs and
    /// `isWanted`, and takes it away otherwise.
    void update(const AppModel& model, bool isWanted);

private:
    void advance(const AppModel& model);
    void show();
    void hide();

    QString m_step;
    int m_stepsDone = 0;
    int m_percent = 0;
    bool m_isShown = false;
    int m_percentShown = 0;
    QElapsedTimer m_sinceShown;
};
