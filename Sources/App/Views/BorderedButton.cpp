// SPDX-License-Identifier: MIT
#include "Views/BorderedButton.h"

#include "Views/ReturnKey.h"

BorderedButton::BorderedButton(const QString& title)
    : QPushButton(title)
{
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    leaveReturnToWindow(*this);
}
