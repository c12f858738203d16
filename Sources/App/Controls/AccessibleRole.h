// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// Tells assistive technology that `widget` has `role`, where Qt gives its class another one or
/// none. To be called in the widget's constructor.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);
