// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QPushButton;

/// A sheet over the main window: exactly 440 wide, as high as its content, closed by its Done
/// button, by Return from anywhere in it and by Escape.
class Sheet : public QDialog
{
    Q_OBJECT

public:
    /// `parent` is the window the sheet hangs on and blocks while it is open.
    Sheet(const QString& title, QWidget* parent);

    /// As wide as every sheet, and as high as its content is at that width.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// The last row of every sheet.
    [[nodiscard]] QWidget* doneRow();
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QPushButton* m_done = nullptr;
};
