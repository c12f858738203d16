// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QSize>

#include <functional>

class QWidget;

/// Tells a window how large it can be on its screen, between the desktop's panels and inside its
/// frame. Follows the window to other screens.
class ScreenFit final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `window`. Calls `fit` with that size, now and whenever it may have changed.
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
