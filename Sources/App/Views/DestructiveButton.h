// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A bordered button in the style of an action that cannot be taken back: its title is red.
class DestructiveButton final : public QPushButton
{
    Q_OBJECT

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};
