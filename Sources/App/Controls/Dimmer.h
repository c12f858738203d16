// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Darkens a window while a sheet or an alert blocks it, so that what is in front stands out where
/// the desktop draws neither frame nor shadow around it. If a window manager activates the blocked
/// window, the keyboard is handed on to the one in front.
class Dimmer final : public QWidget
{
    Q_OBJECT

public:
    /// Belongs to `window`.
    explicit Dimmer(QWidget& window);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
