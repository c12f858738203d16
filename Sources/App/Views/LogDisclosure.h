// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class DisclosureButton;
class LogView;

/// The title that discloses the log, and the log under it while it is disclosed. The model
/// remembers which.
class LogDisclosure final : public QWidget
{
    Q_OBJECT

public:
    /// `model` must outlive the view.
    explicit LogDisclosure(AppModel& model);

Q_SIGNALS:
    /// The log has been disclosed. It is shown and laid out once the events that wait have had
    /// their turn.
    void disclosed(QWidget* log);

private:
    void refresh();

    AppModel& m_model;
    DisclosureButton* m_title;
    /// There only while it is shown.
    LogView* m_log = nullptr;
};
