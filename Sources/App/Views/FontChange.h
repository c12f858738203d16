// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QWidget;

/// Hands a change of the application's font on to everything in `window`. Qt tells the windows
/// alone, and a widget with a size of its own would keep the old one. Other events are left alone.
void passOnFontChange(QWidget& window, const QEvent& event);
