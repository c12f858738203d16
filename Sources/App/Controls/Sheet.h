// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Stack.h"

#include <QDialog>

/// A sheet over the main window, exactly 440 wide and as high as its content. Its Done button,
/// Return from anywhere in it, Escape and the shortcut that closes a window close it.
class Sheet : public QDialog
{
    Q_OBJECT

public:
    /// `parent` is the window that the sheet blocks while it is open.
    Sheet(const QString& title, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// Lays out the children, and below them the row with the Done button.
    void setContent(int spacing, const QList<StackItem>& children);
    bool event(QEvent* event) override;
};
