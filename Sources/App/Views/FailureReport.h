// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class TextBox;

/// The report of the failure that the player is told of, and a button that copies it. It shows
/// only while the model is in need and has a report.
class FailureReport final : public QWidget
{
    Q_OBJECT

public:
    /// `model` must outlive the view.
    explicit FailureReport(AppModel& model);

private:
    void build();
    void refresh();

    AppModel& m_model;
    /// There once a report has been shown: it costs memory, and most players never see one.
    TextBox* m_box = nullptr;
};
