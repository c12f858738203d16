// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Sheet.h"

/// The sheet that credits the game and the engine and says what leaves the machine.
class AboutView final : public Sheet
{
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent);
};
