// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Stack.h"

#include <QDialog>

class ScrollColumn;

/// A sheet over the main window, 440 wide and as high as its content; on a small screen the content
/// scrolls above the Done button. That button, Return, Escape and the shortcut for closing a window
/// close it.
class Sheet : public QDialog
{
    Q_OBJECT

public:
    /// `parent` is the window that an open sheet blocks.
    Sheet(const QString& title, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// The width of the children.
    static constexpr auto contentWidth = 400;

    /// Adds the children above the Done button. Call it once, in the constructor.
    void setContent(int spacing, const QList<StackItem>& children);
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void fit();

    ScrollColumn* m_content;
    QWidget* m_bottomRow;
    /// The size available on the screen.
    QSize m_available;
};
