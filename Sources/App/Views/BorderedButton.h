// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// An ordinary button. Return stays the default button's, also where the focus is on this one,
/// which the space bar presses; a click does not move the focus.
inline QPushButton* borderedButton(const QString& title)
{
    auto* const button = new QPushButton(title);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}
