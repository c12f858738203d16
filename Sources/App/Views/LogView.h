// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTimer>
#include <QWidget>

class AppModel;
class LogStore;
class QPlainTextEdit;
class TextBox;

/// The launcher's log as one block of text that can be selected, with a button that copies it.
///
/// It starts at the top and stays where the reader leaves it, however much comes after or falls out
/// before. It takes over what the log publishes in slices short enough that the window answers at
/// once also while the engine writes thousands of lines; a log that has settled costs nothing.
class LogView final : public QWidget
{
    Q_OBJECT

public:
    explicit LogView(AppModel& model);

private:
    void catchUp();
    void removeStaleLines();
    void appendMissingLines();
    [[nodiscard]] bool isUpToDate() const;

    LogStore& m_log;
    TextBox* m_box;
    QPlainTextEdit& m_edit;
    /// Runs the next slice once the events that wait have had their turn.
    QTimer m_nextSlice;
    /// Which lines of the log are in the box, counted as LogStore::firstLineNumber() counts.
    qint64 m_shownFirst = 0;
    qint64 m_shownCount = 0;
};
