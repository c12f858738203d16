// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class LongTextEdit;
class QPushButton;

/// The log as one selectable text, and a button that copies all of it.
///
/// The view starts at the top and never scrolls by itself, neither when lines are added nor when
/// the oldest are dropped.
class LogView final : public QWidget
{
    Q_OBJECT

public:
    explicit LogView(AppModel& model);

    /// Puts the log right after `widget` in the tab order.
    void followInTabOrder(QWidget& widget);

private:
    void showNewLines(qsizetype dropped, const QStringList& added);

    LongTextEdit* m_edit = nullptr;
    QPushButton* m_copy;
};
