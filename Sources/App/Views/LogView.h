// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class LongTextEdit;
class QPushButton;

/// The log as one selectable text, and a button that copies all of it. It never scrolls by itself.
class LogView final : public QWidget
{
    Q_OBJECT

public:
    explicit LogView(AppModel& model);

    /// Inserts the log after `widget` in the tab order.
    void followInTabOrder(QWidget& widget);

private:
    void showNewLines(qsizetype dropped, const QStringList& added);

    LongTextEdit* m_edit = nullptr;
    QPushButton* m_copy;
};
