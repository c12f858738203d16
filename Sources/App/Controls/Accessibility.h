// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

/// Sets the role of `widget` for assistive technology, if the default of its class does not fit.
/// Call it in the constructor of the widget.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Makes push buttons act at once when assistive technology presses them. Qt animates the press and
/// acts 100 ms later, when the button may be deleted. May be called several times.
void installAccessibleButtons();
