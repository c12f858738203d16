// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class AppModel;
class LogStore;
class LongTextEdit;
class QPushButton;
class TextBox;

/// The launcher's log as one block of text that can be selected, with a button that copies it.
///
/// It starts at the top and stays where the reader leaves it, however much comes after or falls out
/// before. A log that has settled costs nothing.
class LogView final : public QWidget
{
    Q_OBJECT

public:
    explicit LogView(AppModel& model);

    /// Puts the log after `widget` on the keyboard's way through the window.
    void followInTabOrder(QWidget& widget);

private:
    void catchUp();

    LogStore& m_log;
    TextBox* m_box;
    LongTextEdit& m_edit;
    QPushButton* m_copy;
    /// The first line that the box has, counted as LogStore::firstLineNumber() counts.
    qint64 m_firstLine = 0;
};
