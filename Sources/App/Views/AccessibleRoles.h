// SPDX-License-Identifier: MIT
#pragma once

/// Tells assistive technology what those of the window's widgets are that Qt has no role for. Once
/// in the life of the program is enough, before the first window.
void installAccessibleRoles();
