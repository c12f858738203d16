// SPDX-License-Identifier: MIT
#pragma once

#include "Views/Sheet.h"

/// The sheet that credits the game and the engine and says what leaves the machine. It reads
/// nothing from the model.
class AboutView final : public Sheet
{
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent);
};
