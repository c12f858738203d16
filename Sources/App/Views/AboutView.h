// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Sheet.h"

/// The sheet with the credits of the game and the engine, and what is downloaded and sent.
class AboutView final : public Sheet
{
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent);
};
