// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Boxes.h"

class AppModel;
class LogView;
class PlayButton;
class ProgressBar;
class QPushButton;
class StatusDot;
class TextLabel;

/// The status, the progress, the buttons Play, Stop and Cancel, the failure report and the log.
///
/// It keeps no state: after each change of the model it sets all values again.
class PlayPanel final : public RoundedBox
{
    Q_OBJECT

public:
    /// `model` must outlive the panel.
    explicit PlayPanel(AppModel& model);

    [[nodiscard]] PlayButton& playButton() { return *m_play; }

Q_SIGNALS:
    /// `log` is now shown. It gets its size on the next event-loop iteration.
    void disclosed(QWidget* log);

private:
    void refresh();
    void refreshStatus();
    void refreshProgress();
    void refreshButtons();
    void refreshLog();

    AppModel& m_model;
    StatusDot* m_dot;
    TextLabel* m_title;
    TextLabel* m_detail;
    ProgressBar* m_progress;
    TextLabel* m_progressText;
    QWidget* m_progressBlock;
    PlayButton* m_play;
    QPushButton* m_stop;
    QPushButton* m_cancel;
    QPushButton* m_showLog;
    QWidget* m_logBlock;
    /// Null while hidden.
    LogView* m_log = nullptr;
};
