// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Darkens a window while a sheet or an alert blocks it, since some desktops draw neither a frame
/// nor a shadow around those. If a window manager activates the blocked window, activates the sheet
/// or alert instead.
class Dimmer final : public QWidget
{
    Q_OBJECT

public:
    /// Becomes a child of `window`.
    explicit Dimmer(QWidget& window);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
