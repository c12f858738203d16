// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

#include <functional>

class QWidget;

/// Calls `fit` with the size available to `window`: its screen without the desktop's panels and the
/// window's frame. Calls it now and whenever the size may have changed, also on another screen.
void fitToScreen(QWidget& window, const std::function<void(QSize)>& fit);
