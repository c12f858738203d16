// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Appearance.h"

#include <QPalette>

/// The palettes of the launcher, for platforms that bring none of their own.
namespace Palettes {

[[nodiscard]] QPalette light();
[[nodiscard]] QPalette dark();
[[nodiscard]] QPalette highContrastLight();
[[nodiscard]] QPalette highContrastDark();

/// Sets the application's palette: the platform theme's own where that is as wanted, otherwise, or
/// where the theme has none, one of ours.
void apply(const Appearance& wanted);

} // namespace Palettes
