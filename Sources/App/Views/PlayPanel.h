// SPDX-License-Identifier: MIT
#pragma once

#include "Views/RoundedBox.h"

class AppModel;
class LogDisclosure;
class PlayButton;
class ProgressBar;
class QPushButton;
class StatusDot;
class TextLabel;

/// Where the player starts and follows everything: status, progress, Play with Stop and Cancel, the
/// report of a failure, and the log.
///
/// It keeps no state: everything it shows is derived anew from the model after each of its changes,
/// and what has not changed is not touched.
class PlayPanel final : public RoundedBox
{
    Q_OBJECT

public:
    /// `model` must outlive the panel.
    explicit PlayPanel(AppModel& model);

    /// The Return key, wherever nothing else uses it: presses Play if that is enabled.
    void pressDefaultButton();

    [[nodiscard]] PlayButton& playButton() { return *m_play; }

Q_SIGNALS:
    /// The log has been disclosed. It is shown and laid out once the events that wait have had
    /// their turn.
    void disclosed(QWidget* log);

private:
    void refresh();
    void refreshStatus();
    void refreshProgress();
    void refreshButtons();

    AppModel& m_model;
    StatusDot* m_dot = nullptr;
    TextLabel* m_title = nullptr;
    TextLabel* m_detail = nullptr;
    QWidget* m_progressBlock = nullptr;
    ProgressBar* m_progress = nullptr;
    TextLabel* m_progressText = nullptr;
    PlayButton* m_play = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_cancel = nullptr;
    LogDisclosure* m_log = nullptr;
};
