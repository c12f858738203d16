// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QSize>

#include <functional>

class QWidget;

/// Tells a window the size available to it: the screen without the desktop's panels and the
/// window's frame. Follows the window to other screens.
class ScreenFit final : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of `window`. Calls `fit` now and whenever the size may have changed.
    ScreenFit(QWidget& window, const std::function<void(QSize)>& fit);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setScreen(QScreen* screen);
    void fit();

    QWidget& m_window;
    std::function<void(QSize)> m_fit;
    QPointer<QScreen> m_screen;
};
