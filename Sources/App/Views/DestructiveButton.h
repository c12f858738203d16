// SPDX-License-Identifier: MIT
#pragma once

#include "Views/BorderedButton.h"

/// A bordered button in the style of an action that cannot be taken back: its title is red.
class DestructiveButton final : public BorderedButton
{
    Q_OBJECT

public:
    using BorderedButton::BorderedButton;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};
