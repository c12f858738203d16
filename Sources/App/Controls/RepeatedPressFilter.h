// SPDX-License-Identifier: MIT
#pragma once

class QObject;

/// Keeps a double click, or a key that is pressed twice or held, from pressing two controls.
/// Affects all windows of the program as long as `parent` exists.
///
/// The presses of such a series belong to the control that got the first one. They are ignored if
/// they would reach another control, or if theirs has been disabled or hidden meanwhile. Presses by
/// assistive technology are not affected.
void ignoreRepeatedPresses(QObject& parent);
