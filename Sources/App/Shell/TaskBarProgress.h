// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

class AppModel;

/// Shows the progress of a whole setup on the task bar. The value never decreases.
class TaskBarProgress final
{
public:
    /// Call it after each change of the model. Shows the progress if a setup runs and `isWanted`,
    /// and hides it otherwise.
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
