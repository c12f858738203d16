// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ColorScheme.h"

#include <QPalette>

/// The light and the dark palette of the launcher, for platforms that bring none of their own.
namespace Palettes {

[[nodiscard]] QPalette light();
[[nodiscard]] QPalette dark();

/// Sets the application's palette for `preference`. Without a preference it is the platform
/// theme's own palette, or ours where the theme has none.
void apply(ColorScheme::Preference preference);

} // namespace Palettes
