// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// An ordinary button. Return stays the default button's, also where the focus is on this one,
/// which the space bar presses; a click does not move the focus.
class BorderedButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BorderedButton(const QString& title);
};
