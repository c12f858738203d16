// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Stack.h"

#include <QDialog>

class ScrollColumn;

/// A sheet over the main window, exactly 440 wide and as high as its content. On a screen with less
/// room the content scrolls above the Done button. That button, Return from anywhere in the sheet,
/// Escape and the shortcut that closes a window close it.
class Sheet : public QDialog
{
    Q_OBJECT

public:
    /// `parent` is the window that the sheet blocks while it is open.
    Sheet(const QString& title, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// The width of the children of a sheet.
    static constexpr auto contentWidth = 400;

    /// Lays out the children, and below them the row with the Done button.
    void setContent(int spacing, const QList<StackItem>& children);
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void fit();

    ScrollColumn* m_content;
    QWidget* m_bottomRow;
    /// The room that the screen has for the sheet.
    QSize m_available;
};
