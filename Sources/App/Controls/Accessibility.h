// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// Tells assistive technology that `widget` has `role`, where Qt gives its class another one or
/// none. To be called in the widget's constructor.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Has assistive technology press push buttons at once. Qt animates such a press and acts 100 ms
/// later, when the button may be gone. May be called more than once.
void installAccessibleButtons();
