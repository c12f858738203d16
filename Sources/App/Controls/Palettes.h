// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Appearance.h"

#include <QPalette>

/// The palettes of the launcher, for platforms whose theme has none.
namespace Palettes {

[[nodiscard]] QPalette light();
[[nodiscard]] QPalette dark();
[[nodiscard]] QPalette highContrastLight();
[[nodiscard]] QPalette highContrastDark();

/// Sets the application's palette: the palette of the platform's theme if it is as `wanted`, else
/// one of the above.
void apply(const Appearance& wanted);

} // namespace Palettes
