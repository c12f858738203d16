// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QWidget;

/// Darkens `window` while a sheet or an alert keeps it from being used, so that what is in front
/// stands out even where no desktop draws a frame or a shadow around it. To be called with each
/// event that comes to the window.
void shadeWhileBlocked(QWidget& window, const QEvent& event);
