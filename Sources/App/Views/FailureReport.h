// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class TextBox;

/// The failure report and a button that copies it. Visible only in the phase `needs`, while there
/// is a report.
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
    /// Null until the first report is shown, since most players never see one.
    TextBox* m_box = nullptr;
};
