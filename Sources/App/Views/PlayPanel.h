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

/// Where the player starts and follows everything: status, progress, Play with Stop and Cancel, the
/// failure report and the log.
///
/// It keeps no state. After each change of the model it sets everything it shows; a setter that
/// finds its value unchanged does nothing.
class PlayPanel final : public RoundedBox
{
    Q_OBJECT

public:
    /// `model` must outlive the panel.
    explicit PlayPanel(AppModel& model);

    [[nodiscard]] PlayButton& playButton() { return *m_play; }

Q_SIGNALS:
    /// The log is shown now. It gets its size on the next event-loop iteration.
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
    /// Exists only while it is shown.
    LogView* m_log = nullptr;
};
