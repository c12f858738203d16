// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QWidget;

/// Makes `window` stand back while a sheet or an alert keeps it from being used: it is darkened, so
/// that what is in front stands out even where no desktop draws a frame or a shadow around it, and
/// hands the keyboard on where a window manager gives it that. To be called with each event that
/// comes to the window.
void standBackWhileBlocked(QWidget& window, const QEvent& event);
