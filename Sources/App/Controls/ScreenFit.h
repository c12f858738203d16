// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QSize>

class QWidget;

/// Sets the minimum size of a window: the wanted one, or as much of it as fits on the window's
/// screen between the desktop's panels and inside the window's frame. Follows the window to other
/// screens. A window that has its minimum size keeps it when that changes.
class ScreenFit final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `window`.
    ScreenFit(QWidget& window, QSize minSize);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setScreen(QScreen* screen);
    void fit();

    QWidget& m_window;
    QSize m_minSize;
    QPointer<QScreen> m_screen;
};
