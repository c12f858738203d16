// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QSize>

class QWidget;

/// Gives a window its least size, or as much of it as its screen has room for beside the desktop's
/// panels and within the window's frame. It follows the window to other screens, and the screen
/// when that changes.
class ScreenFit final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `window`. A window that is as small as it may be stays so.
    ScreenFit(QWidget& window, QSize least);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void follow(QScreen* screen);
    void fit();

    QWidget& m_window;
    QSize m_least;
    QPointer<QScreen> m_screen;
};
