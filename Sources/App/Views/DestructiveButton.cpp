// SPDX-License-Identifier: MIT
#include "Views/DestructiveButton.h"

#include "Views/SystemColors.h"

#include <QStyleOptionButton>

void DestructiveButton::initStyleOption(QStyleOptionButton* option) const
{
    BorderedButton::initStyleOption(option);
    const auto face = option->palette.color(QPalette::Active, QPalette::Button);
    const auto red =
        SystemColors::readable(SystemColors::red(option->palette), face, option->palette);
    option->palette.setColor(QPalette::Active, QPalette::ButtonText, red);
    option->palette.setColor(QPalette::Inactive, QPalette::ButtonText, red);
    option->palette.setColor(QPalette::Disabled, QPalette::ButtonText,
                             SystemColors::withOpacity(red, 0.45));
}
